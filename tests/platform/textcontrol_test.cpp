#include "platform/runtimefailure.h"
#include "platform/textcontrol.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using namespace zt;

namespace {

struct Recorded {
    QString text;
    int selStart;
    int selLength;
};

// A control whose Change handler records the state it sees.
class TextControlTest : public ::testing::Test {
protected:
    void SetUp() override {
        box.addChangeHandler([this] {
            changes.push_back({box.text(), box.selStart(), box.selLength()});
        });
    }

    TextControl box;
    std::vector<Recorded> changes;
};

int failureNumber(const std::function<void()>& body) {
    try {
        body();
    } catch (const RuntimeFailure& failure) {
        return failure.number();
    }
    return 0;
}

} // namespace

TEST_F(TextControlTest, TextAssignmentPutsCaretAtZeroAndFiresOnce) {
    for (const QString& text :
         {QStringLiteral("hello"), QStringLiteral("hello"), QString(), QStringLiteral("a\r\nb")}) {
        box.setSelStart(box.text().size());
        changes.clear();
        box.setText(text);
        ASSERT_EQ(changes.size(), 1u) << text.toStdString();
        EXPECT_EQ(changes[0].text, text);
        EXPECT_EQ(changes[0].selStart, 0);
        EXPECT_EQ(changes[0].selLength, 0);
    }
    EXPECT_EQ(box.text().size(), 4) << "CR LF is two characters";
}

TEST_F(TextControlTest, SelectionIsClampedToTheText) {
    struct Case {
        int start;
        int length;
        int wantStart;
        int wantLength;
        const char* selected;
    };
    // "ab\r\ncd" is six characters; the pair is positions 2 and 3.
    const Case cases[] = {
        {0, 0, 0, 0, ""}, {1, 3, 1, 3, "b\r\n"}, {3, 1, 3, 1, "\n"}, {4, 99, 4, 2, "cd"},
        {6, 5, 6, 0, ""}, {50, 0, 6, 0, ""},     {50, 3, 6, 0, ""},  {0, 6, 0, 6, "ab\r\ncd"},
    };
    box.setText(QStringLiteral("ab\r\ncd"));
    changes.clear();
    for (const Case& c : cases) {
        box.setSelStart(c.start);
        box.setSelLength(c.length);
        EXPECT_EQ(box.selStart(), c.wantStart) << c.start << "," << c.length;
        EXPECT_EQ(box.selLength(), c.wantLength) << c.start << "," << c.length;
        EXPECT_EQ(box.selText(), QString::fromLatin1(c.selected));
    }
    EXPECT_TRUE(changes.empty()) << "selection alone is no change";
}

TEST_F(TextControlTest, NegativePositionsFailWith380AndChangeNothing) {
    box.setText(QStringLiteral("abcdef"));
    box.setSelStart(2);
    box.setSelLength(2);
    EXPECT_EQ(failureNumber([&] { box.setSelStart(-1); }), 380);
    EXPECT_EQ(failureNumber([&] { box.setSelLength(-5); }), 380);
    EXPECT_EQ(box.selStart(), 2);
    EXPECT_EQ(box.selLength(), 2);
    box.setSelStart(1);
    EXPECT_EQ(box.selLength(), 0) << "a new start drops the length";
}

TEST_F(TextControlTest, SelTextReplacesSelectionAndLeavesCaretBehindIt) {
    struct Case {
        const char* text;
        int start;
        int length;
        const char* inserted;
        const char* want;
        int wantCaret;
    };
    const Case cases[] = {
        {"hello world", 6, 5, "there", "hello there", 11},
        {"hello", 0, 0, ">", ">hello", 1},
        {"hello", 5, 0, "\r\n", "hello\r\n", 7},
        {"a\r\nb", 1, 2, "", "ab", 1},
        {"abc", 1, 1, "", "ac", 1},
        {"abc", 0, 3, "x\r\ny\r\n", "x\r\ny\r\n", 6},
    };
    for (const Case& c : cases) {
        box.setText(QString::fromLatin1(c.text));
        box.setSelStart(c.start);
        box.setSelLength(c.length);
        changes.clear();
        box.setSelText(QString::fromLatin1(c.inserted));
        EXPECT_EQ(box.text(), QString::fromLatin1(c.want));
        EXPECT_EQ(box.selStart(), c.wantCaret) << c.want;
        EXPECT_EQ(box.selLength(), 0);
        ASSERT_EQ(changes.size(), 1u);
        EXPECT_EQ(changes[0].text, box.text()) << "the handler sees the new text";
    }
}

TEST_F(TextControlTest, HandlersRunInOrderAndNestedAssignmentsFireAgain) {
    std::vector<QString> order;
    box.addChangeHandler([&] { order.push_back(QStringLiteral("second:") + box.text()); });
    // A handler that trims a trailing space assigns again, inside the first change.
    box.addChangeHandler([&] {
        if (box.text().endsWith(u' '))
            box.setText(box.text().chopped(1));
    });
    box.setText(QStringLiteral("ab "));
    EXPECT_EQ(box.text(), QStringLiteral("ab"));
    EXPECT_EQ(order,
              (std::vector<QString>{QStringLiteral("second:ab "), QStringLiteral("second:ab")}));
    EXPECT_EQ(changes.size(), 2u);
}

TEST_F(TextControlTest, FailureInHandlerLeavesTextChangedAndComesOut) {
    bool later = false;
    box.addChangeHandler([] { throw RuntimeFailure::typeMismatch(); });
    box.addChangeHandler([&] { later = true; });
    EXPECT_EQ(failureNumber([&] { box.setText(QStringLiteral("new")); }), 13);
    EXPECT_EQ(box.text(), QStringLiteral("new"));
    EXPECT_EQ(changes.size(), 1u);
    EXPECT_FALSE(later) << "handlers after the failing one do not run";

    box.setSelStart(3);
    EXPECT_EQ(failureNumber([&] { box.setSelText(QStringLiteral("er")); }), 13);
    EXPECT_EQ(box.text(), QStringLiteral("newer"));
    EXPECT_EQ(box.selStart(), 5);
}

TEST_F(TextControlTest, ObserverHearsEveryChangeBeforeTheHandlers) {
    std::vector<QString> events;
    box.setObserver([&] {
        events.push_back(QStringLiteral("observer %1/%2").arg(box.selStart()).arg(box.selLength()));
    });
    box.addChangeHandler([&] { events.push_back(QStringLiteral("change")); });
    box.setText(QStringLiteral("abcd"));
    box.setSelStart(1);
    box.setSelLength(2);
    box.setSelText(QStringLiteral("X"));
    EXPECT_EQ(events,
              (std::vector<QString>{QStringLiteral("observer 0/0"), QStringLiteral("change"),
                                    QStringLiteral("observer 1/0"), QStringLiteral("observer 1/2"),
                                    QStringLiteral("observer 2/0"), QStringLiteral("change")}));
}
