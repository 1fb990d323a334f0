// The real engine's own dialogs for font, picture, link and find, answered as a
// user would: fields filled by name, buttons clicked, the page read back.

#include "enginekit.h"

#include "platform/engine/webengine.h"
#include "support/failureof.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

#include <gtest/gtest.h>

namespace zt::test {
namespace {

// Answers the dialog that a command shows, as soon as it is up; the command may
// ask the page a few things before it shows one.
class DialogAnswer {
public:
    explicit DialogAnswer(std::function<void(QWidget&)> answer) {
        m_timer.setInterval(5);
        QObject::connect(&m_timer, &QTimer::timeout, [this, answer] {
            if (QWidget* dialog = QApplication::activeModalWidget()) {
                m_timer.stop();
                shown = true;
                answer(*dialog);
            }
        });
        m_timer.start();
    }
    bool shown = false;

private:
    QTimer m_timer;
};

template <class Control> Control* find(QWidget& dialog, const std::string& name) {
    auto* control = dialog.findChild<Control*>(QString::fromStdString(name));
    EXPECT_TRUE(control) << name;
    return control;
}

std::string text(QWidget& dialog, const std::string& name) {
    auto* combo = dialog.findChild<QComboBox*>(QString::fromStdString(name));
    return (combo ? combo->currentText() : find<QLineEdit>(dialog, name)->text()).toStdString();
}

void fill(QWidget& dialog, const std::string& name, const std::string& value) {
    if (auto* combo = dialog.findChild<QComboBox*>(QString::fromStdString(name)))
        combo->setCurrentText(QString::fromStdString(value));
    else
        find<QLineEdit>(dialog, name)->setText(QString::fromStdString(value));
}

std::string message(QWidget& dialog) {
    auto* label = find<QLabel>(dialog, "lblMessage");
    return label->isVisible() ? label->text().toStdString() : std::string();
}

// Puts the selection on [from, to) of the first text node holding text, or around
// the first picture.
const char* const kSelect = R"(
    function select(text, from, to) {
        const range = document.createRange();
        if (text === null) {
            range.selectNode(document.querySelector('img'));
        } else {
            const walker = document.createTreeWalker(document.body, NodeFilter.SHOW_TEXT);
            let node = walker.nextNode();
            while (!node.data.includes(text))
                node = walker.nextNode();
            const at = node.data.indexOf(text);
            range.setStart(node, at + from);
            range.setEnd(node, at + to);
        }
        getSelection().removeAllRanges();
        getSelection().addRange(range);
    })";

class PageDialogs : public ::testing::Test {
protected:
    void SetUp() override { engine.setBrowseMode(false); }
    void TearDown() override { engine.setBrowseMode(false); }

    void show(const char* body, const char* selection) {
        setBody(engine, body);
        evaluate(engine, QLatin1String(kSelect) + QLatin1String(selection));
    }
    std::string body() { return bodyOf(engine); }
    // Where the selection starts in the body's text, and what it holds.
    std::string selection() {
        return evaluate(engine, QStringLiteral(R"((() => {
            const range = getSelection().getRangeAt(0);
            const before = document.createRange();
            before.setStart(document.body, 0);
            before.setEnd(range.startContainer, range.startOffset);
            return before.toString().length + ':' + range.toString();
        })())"))
            .toString()
            .toStdString();
    }

    WebPageEngine& engine = EngineKit::web();
};

TEST_F(PageDialogs, FontPictureAndLinkApplyWhatTheUserChose) {
    // Fields as name=value;... and the buttons clicked: every click but the last
    // leaves the dialog open with a message.
    const struct {
        DhtmlCommand command;
        const char *body, *selection, *prefilled, *typed, *clicks;
        const char* expected; // nullptr: the page as it was
        int failure;
        bool shown = true;
    } cases[] = {
        {DECMD_FONT, "<p>one two</p>", "select('two', 0, 3)", "cmbSize=3;txtColour=#000000",
         "cmbFace=Courier;cmbSize=5;txtColour=#ff0000", "OKButton",
         R"(<p>one <font face="Courier" size="5" color="#ff0000">two</font></p>)", 0},
        {DECMD_FONT, "<p>one two</p>", "select('two', 0, 3)", "", "cmbSize=7", "CancelButton",
         nullptr, RuntimeFailure::Cancel},
        {DECMD_FONT, "<p>one two</p>", "select('two', 1, 1)", "", "", "", nullptr,
         RuntimeFailure::InvalidProcedureCall, false},
        {DECMD_IMAGE, "<p>ab</p>", "select('ab', 1, 1)",
         "txtSource=", "txtSource=pics/a b.png;txtAlternate=A;txtWidth=20", "OKButton",
         R"(<p>a<img src="pics/a b.png" alt="A" width="20">b</p>)", 0},
        {DECMD_IMAGE, "<p>a<img src=\"x.png\" alt=\"old\" width=\"5\">b</p>", "select(null)",
         "txtSource=x.png;txtAlternate=old;txtWidth=5", "txtAlternate=;txtHeight=10", "OKButton",
         R"(<p>a<img src="x.png" width="5" height="10">b</p>)", 0},
        {DECMD_IMAGE, "<p>ab</p>", "select('ab', 0, 2)", "", "txtAlternate=A",
         "OKButton CancelButton", nullptr, RuntimeFailure::Cancel},
        {DECMD_HYPERLINK, "<p>one two</p>", "select('two', 0, 3)", "txtAddress=http://",
         "txtAddress=a.html", "OKButton", R"(<p>one <a href="a.html">two</a></p>)", 0},
        {DECMD_HYPERLINK, "<p><a href=\"old.html\">go</a> on</p>", "select('go', 1, 1)",
         "txtAddress=old.html", "txtAddress=new.html", "OKButton",
         R"(<p><a href="new.html">go</a> on</p>)", 0},
        {DECMD_HYPERLINK, "<p>ab</p>", "select('ab', 1, 1)", "", "txtAddress=x.html", "OKButton",
         R"(<p>a<a href="x.html">x.html</a>b</p>)", 0},
        {DECMD_HYPERLINK, "<p>ab</p>", "select('ab', 0, 2)", "", "txtAddress=http://",
         "OKButton OKButton CancelButton", nullptr, RuntimeFailure::Cancel},
    };
    const auto fields = [](const char* list) {
        std::vector<std::pair<std::string, std::string>> named;
        for (const QString& field : QString::fromUtf8(list).split(';', Qt::SkipEmptyParts))
            named.emplace_back(field.section('=', 0, 0).toStdString(),
                               field.section('=', 1).toStdString());
        return named;
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.body) + " " + c.selection);
        show(c.body, c.selection);
        const std::string before = body();
        DialogAnswer answer([&](QWidget& dialog) {
            for (const auto& [name, value] : fields(c.prefilled))
                EXPECT_EQ(text(dialog, name), value) << name;
            for (const auto& [name, value] : fields(c.typed))
                fill(dialog, name, value);
            const QStringList clicks = QString::fromUtf8(c.clicks).split(' ', Qt::SkipEmptyParts);
            for (qsizetype i = 0; i < clicks.size(); ++i) {
                find<QAbstractButton>(dialog, clicks[i].toStdString())->click();
                if (i + 1 < clicks.size()) {
                    EXPECT_TRUE(dialog.isVisible());
                    EXPECT_NE(message(dialog), "");
                    fill(dialog, fields(c.typed)[0].first, "");
                }
            }
        });
        EXPECT_EQ(failureOf([&] { engine.execCommand(c.command); }), c.failure);
        EXPECT_EQ(answer.shown, c.shown);
        EXPECT_EQ(body(), c.expected ? c.expected : before);
    }

    // A page being browsed has none of them.
    engine.setBrowseMode(true);
    for (DhtmlCommand command : {DECMD_FONT, DECMD_IMAGE, DECMD_HYPERLINK, DECMD_FINDTEXT}) {
        DialogAnswer answer([](QWidget& dialog) { static_cast<QDialog&>(dialog).reject(); });
        EXPECT_EQ(failureOf([&] { engine.execCommand(command); }),
                  RuntimeFailure::InvalidProcedureCall);
        EXPECT_FALSE(answer.shown) << command;
    }
}

TEST_F(PageDialogs, FindSelectsMatchAfterMatchAndGoesRoundThePage) {
    const char* const page =
        "<p>Word word sword <b>wo</b>rd</p><textarea>word</textarea><p>end</p>";
    show(page, "select('Word', 0, 0)");
    const std::string before = body();
    const struct {
        const char* text;
        bool matchCase, wholeWord, up;
        const char* selected; // start in the body's text, and the text
        bool found = true;
    } steps[] = {
        {"word", false, false, false, "0:Word"},          {"word", false, false, false, "5:word"},
        {"word", false, false, false, "11:word"},         {"word", false, false, false, "16:word"},
        {"word", false, false, false, "0:Word"},          {"word", true, true, false, "5:word"},
        {"WORD", false, true, false, "16:word"},          {"word", false, false, true, "11:word"},
        {"Word  word", true, false, true, "0:Word word"}, {"word", true, false, true, "16:word"},
        {"rdend", false, false, false, "16:word", false},
    };
    DialogAnswer answer([&](QWidget& dialog) {
        for (const auto& step : steps) {
            SCOPED_TRACE(step.text);
            fill(dialog, "txtFind", step.text);
            find<QAbstractButton>(dialog, "chkCase")->setChecked(step.matchCase);
            find<QAbstractButton>(dialog, "chkWholeWord")->setChecked(step.wholeWord);
            find<QAbstractButton>(dialog, step.up ? "optUp" : "optDown")->setChecked(true);
            find<QAbstractButton>(dialog, "btnFindNext")->click();
            EXPECT_EQ(selection(), step.selected);
            EXPECT_EQ(message(dialog).empty(), step.found) << message(dialog);
        }
        find<QAbstractButton>(dialog, "btnClose")->click();
    });
    EXPECT_EQ(failureOf([&] { engine.execCommand(DECMD_FINDTEXT); }), 0);
    EXPECT_TRUE(answer.shown);
    EXPECT_EQ(body(), before);
}

} // namespace
} // namespace zt::test
