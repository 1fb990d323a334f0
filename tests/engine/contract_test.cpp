// What the program may rely on from either page engine: the real one and the
// in-memory one that the program's scenario tests use must agree here.

#include "enginekit.h"

#include "support/failureof.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zt::test {
namespace {

const QString kMarker = kEngineGeneratorMarker;

class EngineContract : public ::testing::TestWithParam<EngineKind> {
protected:
    void SetUp() override {
        kit = &EngineKit::pair(GetParam());
        kit->clipboard.clear();
        first().setBrowseMode(false);
        second().setBrowseMode(false);
    }

    PageEngine& first() { return kit->first(); }
    PageEngine& second() { return kit->second(); }
    void select(PageEngine& engine, const QString& text) {
        ASSERT_TRUE(kit->selectText(engine, text)) << text.toStdString();
    }

    EnginePair* kit = nullptr;
};

TEST_P(EngineContract, ReadsBackTheFrameWithTheMarkerOnce) {
    // A page with any generator line keeps it as written, and no marker is added: the
    // marker itself, another engine's, one in lower case, the program's own.
    const auto kept = [](const QString& line) {
        return "<HTML>\r\n<HEAD>\r\n" + line + "\r\n</HEAD>\r\n<BODY></BODY>\r\n</HTML>\r\n";
    };
    const struct {
        QString given, expected; // none: as given
    } cases[] = {
        {"<!DOCTYPE html>\r\n<HTML>\r\n<HEAD>\r\n<title>T</title>\r\n</HEAD>\r\n"
         "<BODY>\r\n<p>a&nbsp;b</p>\r\n</BODY>\r\n</HTML>\r\n",
         "<!DOCTYPE html>\r\n<HTML>\r\n<HEAD>\r\n" + kMarker +
             "\r\n<title>T</title>\r\n</HEAD>\r\n<BODY>\r\n<p>a&nbsp;b</p>\r\n</BODY>\r\n"
             "</HTML>\r\n"},
        {"<html>\n<head>\n</head>\n<body>\n<p>x</p>\n</body>\n</html>\n",
         pageWithMarker("\r\n<p>x</p>\r\n")},
        {"<b>x</b> y\r\n", pageWithMarker("<b>x</b> y\r\n")},
        {kept(kMarker), {}},
        {kept(R"(<META content="MSHTML 6.00.2800.1106" name=GENERATOR>)"), {}},
        {kept(R"(<meta name="generator" content="Other Tool">)"), {}},
        {kept(R"(<META NAME="GENERATOR" Content="Zelvo Tessara">)"), {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.given.toStdString());
        first().setDocumentHTML(c.given);
        const QString once = first().documentHTML();
        EXPECT_EQ(once, c.expected.isEmpty() ? c.given : c.expected);
        first().setDocumentHTML(once);
        EXPECT_EQ(first().documentHTML(), once);
    }
    first().newDocument();
    EXPECT_EQ(first().documentHTML().toStdString(), pageWithMarker("").toStdString());
}

// Copy writes the clipboard and paste reads it, whichever engine wrote it; the
// caret stays behind what was pasted, so a second paste follows the first.
TEST_P(EngineContract, EditsTakeTheSelectionThroughTheClipboard) {
    const char* link = R"(<a href="a.html" target="_blank">Next</a>)";
    const struct {
        const char *body, *select; // none: select all
        DhtmlCommand command;
        int times;
        bool html;
        const char *clip, *wantBody, *wantHtml;
    } cases[] = {
        {"<b>Hello</b> world", nullptr, DECMD_COPY, 1, true, "", "<b>Hello</b> world",
         "<b>Hello</b> world"},
        {"<p>one two three</p>", "two", DECMD_PASTE, 2, true, "<b>Hi</b> x",
         "<p>one <b>Hi</b> x<b>Hi</b> x three</p>", "<b>Hi</b> x"},
        {"<p>keep <u>this</u> too</p>", "keep ", DECMD_CUT, 1, true, "", "<p><u>this</u> too</p>",
         "keep "},
        {"<p>keep <u>this</u> too</p>", " too", DECMD_DELETE, 1, true, "x",
         "<p>keep <u>this</u></p>", "x"},
        {link, nullptr, DECMD_CUT, 1, true, "", "", link},
        {"<p>Go on</p>", "on", DECMD_PASTE, 1, true, link,
         R"(<p>Go <a href="a.html" target="_blank">Next</a></p>)", link},
        {"<p>[]</p>", "[]", DECMD_PASTE, 1, false, "a < b & c\r\nd", "<p>a &lt; b &amp; c<br>d</p>",
         ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.body);
        const QString clip = QString::fromUtf8(c.clip);
        c.html ? kit->clipboard.setHtml(clip, QString()) : kit->clipboard.setText(clip);
        // What one engine copied, the other pastes.
        PageEngine& engine = c.command == DECMD_PASTE ? second() : first();
        setBody(engine, c.body);
        if (c.select)
            select(engine, QString::fromUtf8(c.select));
        else
            engine.execCommand(DECMD_SELECTALL);
        for (int i = 0; i < c.times; ++i)
            engine.execCommand(c.command);
        EXPECT_EQ(bodyOf(engine), c.wantBody);
        EXPECT_EQ(kit->clipboard.html().toStdString(), c.wantHtml);
    }
    EXPECT_EQ(kit->clipboard.text().toStdString(), "a < b & c\r\nd");
    setBody(first(), "<b>Hello</b> world");
    first().execCommand(DECMD_SELECTALL);
    first().execCommand(DECMD_COPY);
    EXPECT_EQ(kit->clipboard.text().toStdString(), "Hello world");
}

TEST_P(EngineContract, CommandsThatDoNotApplyFailAndBrowseModeOnlyCopies) {
    setBody(first(), "<p>text</p>");
    const QString before = first().documentHTML();
    // Nothing is selected after a page is set, and the clipboard is empty.
    for (DhtmlCommand id : {DECMD_CUT, DECMD_DELETE, DECMD_PASTE, DECMD_BOLD, DECMD_INSERTTABLE,
                            DECMD_UNDO, DECMD_BRING_TO_FRONT})
        EXPECT_EQ(failureOf([&] { first().execCommand(id); }), 5) << int(id);
    EXPECT_EQ(first().documentHTML(), before);
    EXPECT_TRUE(kit->clipboard.html().isEmpty());

    // Copy with nothing selected, then with the caret a paste leaves, succeeds and
    // leaves the clipboard as it was.
    kit->clipboard.setText(QStringLiteral("earlier"));
    EXPECT_NO_THROW(first().execCommand(DECMD_COPY));
    select(first(), QStringLiteral("text"));
    first().execCommand(DECMD_PASTE);
    EXPECT_NO_THROW(first().execCommand(DECMD_COPY));
    EXPECT_EQ(kit->clipboard.text().toStdString(), "earlier");

    setBody(first(), "<p>text</p>");
    first().setBrowseMode(true);
    first().execCommand(DECMD_SELECTALL);
    first().execCommand(DECMD_COPY);
    EXPECT_EQ(kit->clipboard.html().toStdString(), "<p>text</p>");
    for (DhtmlCommand id : {DECMD_CUT, DECMD_DELETE, DECMD_PASTE})
        EXPECT_NE(failureOf([&] { first().execCommand(id); }), 0) << int(id);
    first().setBrowseMode(false);
    EXPECT_EQ(bodyOf(first()), "<p>text</p>");
}

TEST_P(EngineContract, FilesLoadAndSave) {
    QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("page.html"));
    const QString copy = folder.filePath(QStringLiteral("copy.html"));
    writeBytes(source, "<html><head><title>Caf\xC3\xA9</title></head><body><p>\xC3\xA9t\xC3\xA9</p>"
                       "</body></html>");
    first().loadDocument(source);
    const QString loaded = first().documentHTML();
    EXPECT_TRUE(loaded.contains(QStringLiteral("<title>Caf\u00e9</title>")) &&
                loaded.contains(QStringLiteral("<p>\u00e9t\u00e9</p>")))
        << loaded.toStdString();

    first().saveDocument(copy);
    QFile saved(copy);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(saved.readAll()), loaded) << "saved as read, unrewritten";
    EXPECT_EQ(failureOf([&] { first().loadDocument(folder.filePath("missing.html")); }), 53);
    EXPECT_EQ(first().documentHTML(), loaded) << "a failed load leaves the page";
}

TEST_P(EngineContract, TenMegabytePageLoadsAndReadsBack) {
    QString content;
    for (int line = 0; content.size() < 10 * 1024 * 1024; ++line)
        content += QStringLiteral("<p>Line %1, <b>bold</b> and&nbsp;more.</p>\r\n").arg(line);
    first().setDocumentHTML("<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>" + content +
                            "</BODY>\r\n</HTML>\r\n");
    EXPECT_TRUE(first().documentHTML() == pageWithMarker(content));
    first().newDocument();
}

INSTANTIATE_TEST_SUITE_P(Engines, EngineContract,
                         ::testing::Values(EngineKind::Memory, EngineKind::Web),
                         [](const auto& info) {
                             return info.param == EngineKind::Memory ? "Memory" : "Web";
                         });

} // namespace
} // namespace zt::test
