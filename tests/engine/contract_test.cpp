// What the program may rely on from either page engine: the real one and the
// in-memory one that the program's scenario tests use must agree here.

#include "enginekit.h"

#include "platform/runtimefailure.h"

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
    // The body's content as the engine reads it back, without the line break that
    // the real engine puts before </BODY>.
    static std::string body(PageEngine& engine) {
        const QString page = engine.documentHTML();
        const qsizetype start = page.indexOf(QLatin1String("<BODY>")) + 6;
        const qsizetype end = page.lastIndexOf(QLatin1String("</BODY>"));
        return page.mid(start, end - start).trimmed().toStdString();
    }
    // A whole page around a body.
    static QString page(const char* body) {
        return QStringLiteral("<HTML><HEAD></HEAD><BODY>%1</BODY></HTML>").arg(QLatin1String(body));
    }
    void select(PageEngine& engine, const QString& text) {
        ASSERT_TRUE(kit->selectText(engine, text)) << text.toStdString();
    }

    EnginePair* kit = nullptr;
};

TEST_P(EngineContract, ReadsBackTheFrameWithTheMarkerOnce) {
    struct Case {
        const char* what;
        QString given, expected;
    };
    const Case cases[] = {
        {"a page without a generator line gets the marker first in its head",
         "<!DOCTYPE html>\r\n<HTML>\r\n<HEAD>\r\n<title>T</title>\r\n</HEAD>\r\n"
         "<BODY>\r\n<p>a&nbsp;b</p>\r\n</BODY>\r\n</HTML>\r\n",
         "<!DOCTYPE html>\r\n<HTML>\r\n<HEAD>\r\n" + kMarker +
             "\r\n<title>T</title>\r\n</HEAD>\r\n<BODY>\r\n<p>a&nbsp;b</p>\r\n</BODY>\r\n"
             "</HTML>\r\n"},
        {"lower-case frame tags and LF breaks",
         "<html>\n<head>\n</head>\n<body>\n<p>x</p>\n</body>\n</html>\n",
         pageWithMarker("\r\n<p>x</p>\r\n")},
        {"a fragment is the body of a page", "<b>x</b> y\r\n", pageWithMarker("<b>x</b> y\r\n")},
    };
    // A page with any generator line keeps it as written, and no marker is added: the
    // marker itself, another engine's, one in lower case, the program's own.
    for (const QString& line :
         {kMarker, QStringLiteral(R"(<META content="MSHTML 6.00.2800.1106" name=GENERATOR>)"),
          QStringLiteral(R"(<meta name="generator" content="Other Tool">)"),
          QStringLiteral(R"(<META NAME="GENERATOR" Content="Zelvo Tessara">)")}) {
        const QString framed =
            "<HTML>\r\n<HEAD>\r\n" + line + "\r\n</HEAD>\r\n<BODY></BODY>\r\n</HTML>\r\n";
        first().setDocumentHTML(framed);
        EXPECT_EQ(first().documentHTML().toStdString(), framed.toStdString());
    }
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        first().setDocumentHTML(c.given);
        const QString once = first().documentHTML();
        EXPECT_EQ(once.toStdString(), c.expected.toStdString());
        first().setDocumentHTML(once);
        EXPECT_EQ(first().documentHTML().toStdString(), c.expected.toStdString());
    }
    first().newDocument();
    EXPECT_EQ(first().documentHTML().toStdString(), pageWithMarker("").toStdString())
        << "a new document is the blank page";
}

TEST_P(EngineContract, CopyAndPasteCarryHtmlFromOneEngineToAnother) {
    first().setDocumentHTML(page("<b>Hello</b> world"));
    first().execCommand(DECMD_SELECTALL);
    first().execCommand(DECMD_COPY);
    EXPECT_EQ(kit->clipboard.html().toStdString(), "<b>Hello</b> world");
    EXPECT_EQ(kit->clipboard.text().toStdString(), "Hello world");
    // Copying leaves the page alone.
    EXPECT_TRUE(first().documentHTML().contains(QStringLiteral("<b>Hello</b> world")));

    second().setDocumentHTML(page("<p>one two three</p>"));
    select(second(), QStringLiteral("two"));
    second().execCommand(DECMD_PASTE);
    // The caret stays behind what was pasted, so a second paste follows the first.
    second().execCommand(DECMD_PASTE);
    EXPECT_EQ(body(second()), "<p>one <b>Hello</b> world<b>Hello</b> world three</p>");
}

TEST_P(EngineContract, CutAndDeleteRemoveTheSelection) {
    first().setDocumentHTML(page("<p>keep <u>this</u> too</p>"));
    select(first(), QStringLiteral("keep "));
    first().execCommand(DECMD_CUT);
    EXPECT_EQ(kit->clipboard.html().toStdString(), "keep ");
    EXPECT_EQ(body(first()), "<p><u>this</u> too</p>");

    first().setDocumentHTML(page("<p>keep <u>this</u> too</p>"));
    select(first(), QStringLiteral(" too"));
    first().execCommand(DECMD_DELETE);
    EXPECT_EQ(body(first()), "<p>keep <u>this</u></p>");
    EXPECT_EQ(kit->clipboard.html().toStdString(), "keep ") << "delete leaves the clipboard";
}

TEST_P(EngineContract, VisualInsertMovesAFragmentThroughAScratchPage) {
    const QString fragment = QStringLiteral(R"(<a href="page2.html" target="_blank">Next</a>)");
    second().setDocumentHTML(fragment);
    second().execCommand(DECMD_SELECTALL);
    second().execCommand(DECMD_CUT);
    EXPECT_EQ(kit->clipboard.html().toStdString(), fragment.toStdString());

    first().setDocumentHTML(page("<p>Go on</p>"));
    select(first(), QStringLiteral("on"));
    first().execCommand(DECMD_PASTE);
    EXPECT_EQ(body(first()), ("<p>Go " + fragment + "</p>").toStdString());
}

TEST_P(EngineContract, CommandsThatDoNotApplyFailAndACaretCopiesNothing) {
    first().setDocumentHTML(page("<p>text</p>"));
    const QString before = first().documentHTML();
    // Nothing is selected after a page is set, and the clipboard is empty.
    for (DhtmlCommand id : {DECMD_CUT, DECMD_DELETE, DECMD_PASTE, DECMD_BOLD, DECMD_INSERTTABLE,
                            DECMD_UNDO, DECMD_BRING_TO_FRONT}) {
        SCOPED_TRACE(int(id));
        try {
            first().execCommand(id);
            ADD_FAILURE() << "no failure";
        } catch (const RuntimeFailure& failure) {
            EXPECT_EQ(failure.number(), RuntimeFailure::InvalidProcedureCall);
        }
    }
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
}

TEST_P(EngineContract, BrowseModeRefusesEditsButCopies) {
    first().setDocumentHTML(page("<p>text</p>"));
    first().setBrowseMode(true);
    first().execCommand(DECMD_SELECTALL);
    first().execCommand(DECMD_COPY);
    EXPECT_EQ(kit->clipboard.html().toStdString(), "<p>text</p>");
    for (DhtmlCommand id : {DECMD_CUT, DECMD_DELETE, DECMD_PASTE})
        EXPECT_THROW(first().execCommand(id), RuntimeFailure) << int(id);
    first().setBrowseMode(false);
    EXPECT_EQ(body(first()), "<p>text</p>");
}

TEST_P(EngineContract, PasteTakesPlainTextWhenTheClipboardHasNoHtml) {
    first().setDocumentHTML(page("<p>[]</p>"));
    select(first(), QStringLiteral("[]"));
    kit->clipboard.setText(QStringLiteral("a < b & c\r\nd"));
    first().execCommand(DECMD_PASTE);
    EXPECT_EQ(body(first()), "<p>a &lt; b &amp; c<br>d</p>");
}

TEST_P(EngineContract, FilesLoadAndSave) {
    QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("page.html"));
    const QString copy = folder.filePath(QStringLiteral("copy.html"));
    writeBytes(source, "<html><head><title>Caf\xC3\xA9</title></head><body><p>\xC3\xA9t\xC3\xA9</p>"
                       "</body></html>");

    first().loadDocument(source);
    const QString loaded = first().documentHTML();
    EXPECT_TRUE(loaded.contains(QStringLiteral("<title>Caf\u00e9</title>")))
        << loaded.toStdString();
    EXPECT_TRUE(loaded.contains(QStringLiteral("<p>\u00e9t\u00e9</p>")));

    first().saveDocument(copy);
    QFile saved(copy);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(saved.readAll()), loaded) << "saved as read, unrewritten";

    try {
        first().loadDocument(folder.filePath(QStringLiteral("missing.html")));
        ADD_FAILURE() << "a missing file loaded";
    } catch (const RuntimeFailure& failure) {
        EXPECT_EQ(failure.number(), RuntimeFailure::FileNotFound);
    }
    EXPECT_EQ(first().documentHTML(), loaded) << "a failed load leaves the page";
}

TEST_P(EngineContract, TenMegabytePageLoadsAndReadsBack) {
    const QString paragraph =
        QStringLiteral("<p>Line %1 of a long page, <b>bold</b> and&nbsp;more.</p>\r\n");
    QString content;
    for (int line = 0; content.size() < 10 * 1024 * 1024; ++line)
        content += paragraph.arg(line);
    first().setDocumentHTML(QStringLiteral("<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>") + content +
                            QStringLiteral("</BODY>\r\n</HTML>\r\n"));
    const QString read = first().documentHTML();
    const QString expected = pageWithMarker(content);
    EXPECT_EQ(read.size(), expected.size());
    EXPECT_TRUE(read == expected);
    first().newDocument();
}

INSTANTIATE_TEST_SUITE_P(Engines, EngineContract,
                         ::testing::Values(EngineKind::Memory, EngineKind::Web),
                         [](const auto& info) { return kindName(info.param); });

} // namespace
} // namespace zt::test
