#include "support/markedtext.h"
#include "testhelpers.h"

#include <QStringList>

#include <gtest/gtest.h>

using namespace zt;
using namespace zt::test;

namespace {

// A control whose Change handler records the text and selection it sees.
class TextControlTest : public ::testing::Test {
protected:
    void SetUp() override {
        box.addChangeHandler([this] { changes << box.text() + state(); });
    }

    QString state() const {
        return QStringLiteral(" %1/%2").arg(box.selStart()).arg(box.selLength());
    }

    TextControl box;
    QStringList changes;
};

} // namespace

TEST_F(TextControlTest, TextAssignmentPutsCaretAtZeroAndFiresOnceEvenForTheSameText) {
    for (const char* text : {"hello", "hello", "", "a\r\nb"}) {
        box.setSelStart(int(box.text().size()));
        changes.clear();
        box.setText(q(text));
        EXPECT_EQ(changes, QStringList{q(text) + " 0/0"});
    }
}

TEST_F(TextControlTest, SelectionIsClampedAndNegativesFailWith380) {
    // The pair in "ab\r\ncd" is positions 2 and 3.
    const std::tuple<int, int, const char*> cases[] = {
        {0, 0, "|ab\r\ncd"}, {1, 3, "a[b\r\n]cd"}, {3, 1, "ab\r[\n]cd"}, {4, 99, "ab\r\n[cd]"},
        {6, 5, "ab\r\ncd|"}, {50, 0, "ab\r\ncd|"}, {50, 3, "ab\r\ncd|"}, {0, 6, "[ab\r\ncd]"}};
    box.setText(q("ab\r\ncd"));
    changes.clear();
    for (const auto& [start, length, want] : cases) {
        box.setSelStart(start);
        box.setSelLength(length);
        EXPECT_EQ(shown(box), q(want)) << start << "," << length;
    }
    EXPECT_EQ(failureOf([&] { box.setSelStart(-1); }), 380);
    EXPECT_EQ(failureOf([&] { box.setSelLength(-5); }), 380);
    EXPECT_EQ(shown(box), q("[ab\r\ncd]"));
    box.setSelStart(1);
    EXPECT_EQ(shown(box), q("a|b\r\ncd")) << "a new start drops the length";
    EXPECT_TRUE(changes.empty()) << "selection alone is no change";
}

TEST_F(TextControlTest, FailureInHandlerLeavesTextChangedAndStopsTheLaterHandlers) {
    bool later = false;
    box.addChangeHandler([] { throw RuntimeFailure::typeMismatch(); });
    box.addChangeHandler([&] { later = true; });
    EXPECT_EQ(failureOf([&] { box.setText(q("new")); }), 13);
    EXPECT_EQ(box.text(), q("new"));
    EXPECT_EQ(changes.size(), 1);
    EXPECT_FALSE(later);
}

// The observer also learns what each assignment replaced: [start removed>inserted].
TEST_F(TextControlTest, ObserverHearsEveryChangeFirstThenHandlersRunInOrderAndNest) {
    box.setObserver([&](const TextChange& change) {
        const QString edit = QStringLiteral(" [%1 %2>%3]")
                                 .arg(change.start)
                                 .arg(change.removed)
                                 .arg(change.inserted);
        changes << "observer" + state() + (change.changesText() ? edit : QString());
    });
    // A second handler that trims a trailing space assigns again, inside the first change.
    box.addChangeHandler([&] {
        if (box.text().endsWith(u' '))
            box.setText(box.text().chopped(1));
    });
    box.setText(q("ab "));
    box.setSelStart(1);
    box.setSelLength(1);
    box.setSelText(q("X"));
    EXPECT_EQ(changes, QStringList({q("observer 0/0 [0 >3]"), q("ab  0/0"),
                                    q("observer 0/0 [0 ab >2]"), q("ab 0/0"), q("observer 1/0"),
                                    q("observer 1/1"), q("observer 2/0 [1 b>1]"), q("aX 2/0")}));
}
