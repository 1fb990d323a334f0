#include "platform/guard.h"
#include "platform/timer.h"

#include <QAction>
#include <QEventLoop>
#include <QMenu>
#include <QTimer>

#include <gtest/gtest.h>

#include <vector>

using namespace zt;

namespace {

class GuardTest : public ::testing::Test {
protected:
    void SetUp() override {
        Guard::setEnding([this](const RuntimeFailure& f) { failures.push_back(f.number()); });
        Guard::setProcessEnd([this] { ++ends; });
    }
    void TearDown() override { Guard::restoreDefaults(); }

    std::vector<int> failures;
    int ends = 0;
};

} // namespace

TEST_F(GuardTest, FailureInMenuHandlerReachesTheGuardNotQt) {
    QMenu menu;
    QAction* item = menu.addAction(QStringLiteral("&Open"));
    QObject::connect(item, &QAction::triggered, item,
                     guarded([](bool) { throw RuntimeFailure::overflow(); }));
    item->trigger();
    EXPECT_EQ(failures, std::vector<int>{RuntimeFailure::Overflow});
    // The event loop goes on serving events after the failure.
    item->trigger();
    EXPECT_EQ(failures.size(), 2u);
}

TEST_F(GuardTest, EndOfProcessOtherExceptionsAndTheBoxText) {
    bool after = false;
    EXPECT_FALSE(Guard::run([&] {
        Guard::endProcess();
        after = true;
    }));
    EXPECT_EQ(ends, 1);
    EXPECT_FALSE(after);
    EXPECT_TRUE(failures.empty());

    // Other exceptions are reported as internal errors.
    EXPECT_FALSE(Guard::run([] { throw std::runtime_error("boom"); }));
    EXPECT_EQ(failures, std::vector<int>{51});
    EXPECT_EQ(Guard::boxText(RuntimeFailure::cancel()),
              QStringLiteral("Run-time error '32755':\n\nCancel was selected."));
}

TEST_F(GuardTest, TimerTicksThroughTheGuardAndWaitsForRunningCodeOnlyWhenEnabled) {
    Timer timer(10);
    int ticks = 0;
    timer.onTimer = [&] {
        ++ticks;
        timer.setEnabled(false);
        throw RuntimeFailure::objectNotSet();
    };
    timer.setEnabled(true);
    // A zero interval, or a timer switched off again, never ticks.
    Timer zero(0);
    Timer off(5);
    zero.onTimer = off.onTimer = [&] { ticks += 100; };
    zero.setEnabled(true);
    off.setEnabled(true);
    off.setEnabled(false);

    // A tick that falls inside running program code (as during a synchronous wait
    // of the engine) is held back until that code returns.
    Guard::run([&] {
        QEventLoop wait;
        QTimer::singleShot(60, &wait, &QEventLoop::quit);
        wait.exec();
        EXPECT_EQ(ticks, 0);
    });
    QEventLoop after;
    QTimer::singleShot(60, &after, &QEventLoop::quit);
    after.exec();
    EXPECT_EQ(ticks, 1);
    EXPECT_EQ(failures, std::vector<int>{RuntimeFailure::ObjectNotSet});
}
