// The one format in which the real engine writes a page: the program's text
// commands search the engine's text for exact strings, so each rule of the format
// is pinned here, and every text must come back unchanged from a second trip.

#include "enginekit.h"

#include "platform/engine/webengine.h"

#include <gtest/gtest.h>

namespace zt::test {
namespace {

const QString kMarker = kEngineGeneratorMarker;

// Sets the page, reads it, and checks that the text read is a fixed point.
std::string roundTrip(WebPageEngine& engine, const QString& page) {
    engine.setDocumentHTML(page);
    const QString once = engine.documentHTML();
    engine.setDocumentHTML(once);
    EXPECT_EQ(engine.documentHTML().toStdString(), once.toStdString()) << "not stable";
    return once.toStdString();
}

TEST(PageFormat, BodyContent) {
    struct Case {
        const char* what;
        QString given;
        QString written;
    };
    const Case cases[] = {
        {"elements lower case, values quoted, entities kept",
         R"(<P ALIGN=center CLASS='x'>A &amp; B &lt; C&nbsp;D &gt; E</P>)",
         R"(<p align="center" class="x">A &amp; B &lt; C&nbsp;D &gt; E</p>)"},
        {"inline style as name: value; with #rrggbb colours",
         R"(<DIV STYLE="COLOR:#FF0000;background-color: rgb(0, 128, 255);FONT-WEIGHT:bold">x</DIV>)",
         R"(<div style="color: #ff0000; background-color: #0080ff; font-weight: bold;">x</div>)"},
        {"a style the engine cannot read stays as given", R"(<span style="nonsense">x</span>)",
         R"(<span style="nonsense">x</span>)"},
        {"void elements without end tag or slash",
         R"(a<BR/>b<HR noshade><IMG SRC="a.gif" ALT=""><INPUT type=checkbox checked>)",
         R"(a<br>b<hr noshade=""><img src="a.gif" alt=""><input type="checkbox" checked="">)"},
        {"quotes and non-breaking spaces in values",
         R"(<a title='say "hi"&nbsp;now' href="a.html?b=1&amp;c=2">x</a>)",
         R"(<a title="say &quot;hi&quot;&nbsp;now" href="a.html?b=1&amp;c=2">x</a>)"},
        {"comments kept", "<!-- note -->\r\n<p>x</p>", "<!-- note -->\r\n<p>x</p>"},
        {"a line break that opens a pre stays", "<PRE>\r\n\r\n  code</PRE>",
         "<pre>\r\n\r\n  code</pre>"},
        {"the parser's own table body appears", "<TABLE><TR><TD>1</TD></TR></TABLE>",
         "<table><tbody><tr><td>1</td></tr></tbody></table>"},
        {"text outside ASCII stays as text", "<p>caf\u00e9 \u20ac</p>", "<p>caf\u00e9 \u20ac</p>"},
        {"LF breaks become CR LF", "<p>one\ntwo</p>\n<p>three</p>",
         "<p>one\r\ntwo</p>\r\n<p>three</p>"},
        {"a script in the body stays, raw and unrun",
         R"(<script>if (a < b && c) document.write("<p id=ran>")</script><p>x</p>)",
         R"(<script>if (a < b && c) document.write("<p id=ran>")</script><p>x</p>)"},
    };
    WebPageEngine& engine = EngineKit::web();
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        const QString written = c.written + QStringLiteral("\r\n");
        EXPECT_EQ(roundTrip(engine, "<HTML><HEAD></HEAD><BODY>" + c.given + "</BODY></HTML>"),
                  pageWithMarker(written).toStdString());
    }
}

TEST(PageFormat, WholePageAndItsGeneratorLines) {
    const QString given = "<!-- before -->\n"
                          "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
                          "\"http://www.w3.org/TR/html4/loose.dtd\">\n"
                          "<html lang=en>\n"
                          "  <head>\n"
                          "    <title>A &amp; B</title>\n"
                          "    <!-- in head -->\n"
                          "    <style>p > b { color: red }</style>\n"
                          "    <script>document.title = 'ran';</script>\n"
                          "  </head>\n"
                          "\n"
                          "  <body BGCOLOR=\"#FFFFFF\" onload=\"start()\">\n"
                          "    <p>Text</p>\n"
                          "  </body>\n"
                          "</html>\n";
    const QString written = "<!-- before -->\r\n"
                            "<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
                            "\"http://www.w3.org/TR/html4/loose.dtd\">\r\n"
                            "<HTML lang=\"en\">\r\n"
                            "<HEAD>\r\n" +
                            kMarker +
                            "\r\n"
                            "<title>A &amp; B</title>\r\n"
                            "<!-- in head -->\r\n"
                            "<style>p > b { color: red }</style>\r\n"
                            "<script>document.title = 'ran';</script>\r\n"
                            "</HEAD>\r\n"
                            "<BODY bgcolor=\"#FFFFFF\" onload=\"start()\">\r\n"
                            "    <p>Text</p>\r\n"
                            "</BODY>\r\n"
                            "</HTML>\r\n";
    EXPECT_EQ(roundTrip(EngineKit::web(), given), written.toStdString());

    // Two generator lines, one of them in the body: both kept as written, no marker added.
    const QString twice =
        "<HTML>\r\n<HEAD>\r\n<META content=\"MSHTML 6.00.2800.1106\" name=GENERATOR>"
        "\r\n</HEAD>\r\n<BODY><META content=\"MSHTML 6.00.2600.0\" name=GENERATOR>"
        "\r\n</BODY>\r\n</HTML>\r\n";
    EXPECT_EQ(roundTrip(EngineKit::web(), twice), twice.toStdString());
}

TEST(PageFormat, LayoutModeFollowsTheDoctype) {
    WebPageEngine& engine = EngineKit::web();
    const struct {
        QString doctype;
        const char* mode;
    } cases[] = {
        {"", "BackCompat"},
        {"<!DOCTYPE html>\r\n", "CSS1Compat"},
        {"<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.0 Transitional//EN\">\r\n", "BackCompat"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.doctype.toStdString());
        const QString page = c.doctype + pageWithMarker("<p>x</p>\r\n");
        EXPECT_EQ(roundTrip(engine, page), page.toStdString());
        EXPECT_EQ(evaluate(engine, "document.compatMode").toString().toStdString(), c.mode);
    }
}

} // namespace
} // namespace zt::test
