#include "navgen.h"

#include "platform/vbstrings.h"

#include <utility>

namespace zt {

namespace {

// One string a line, so that the tabs and the blank at the end of a line show.
const char* const kTemplateLines[] = {
    "<style>",
    "/* Navigation */",
    "",
    "#navigation",
    "{",
    "\tfloat: left; ",
    "\twidth: 100%;",
    "\tbackground-color: getBasicBGColour;",
    "}",
    "",
    "#navigation ul",
    "{",
    "\tmargin: 0 5px;",
    "\tfloat: left;",
    "\twidth: 95%;",
    "\tpadding: 10px 0;",
    "\tlist-style-type: none;",
    "",
    "\tcolor: getBasicColour;",
    "\tbackground-color: getBasicBGColour;",
    "\tborder-color: getBasicBorderColour;",
    "}",
    "",
    "#navigation li { float: left; margin: 0 0 0 5px; padding: 0; }",
    "",
    "#navigation a:link",
    "{",
    "\tfloat: left;",
    "\tdisplay: block;",
    "\tcolor: getLColour;",
    "\tpadding: 5px 10px;",
    "\tbackground-color: getBGColour;",
    "\tborder: getLinkColour getLinkThickness getLinkBorderType;",
    "}",
    "",
    "#navigation a:visited",
    "{",
    "\tfloat: left;",
    "\tdisplay: block;",
    "\tcolor: getVColour;",
    "\tpadding: 5px 10px;",
    "\tbackground-color: getVBGColour;",
    "\tborder: getVLinkColour getVLinkThickness getLinkVBorderType;",
    "}",
    "",
    "#navigation a:hover",
    "{",
    "\tfloat: left;",
    "\tdisplay: block;",
    "\tcolor: getHColour;",
    "\tpadding: 5px 10px;",
    "\tbackground-color: getHBGColour;",
    "\tborder: getHLinkColour getHLinkThickness getLinkHBorderType;",
    "}",
    "",
    "#navigation a:active",
    "{",
    "\tfloat: left;",
    "\tdisplay: block;",
    "\tpadding: 5px 10px;",
    "\tcolor: getAColour;",
    "\tbackground-color: getABGColour;",
    "\tborder: getALinkColour getALinkThickness getLinkABorderType;",
    "}",
    "",
    "#bBasic li#lBasic a",
    "{",
    "\tcolor: getBasicColour;",
    "\tbackground-color: getBasicBGColour;",
    "\tborder-color: getBasicBorderColour;",
    "}",
    "</style>",
    "",
    "<div id=\"navigation\">",
    "\t\t",
    "\t\t\t<ul>",
    "\t\t\t",
    "\t\t\t\t<li id=\"lBasic\"><A title=Home href=\"#01\">Home</a></li>",
    "\t\t\t\t<li id=\"lBasic\"><A href=\"#04\">Link 1</a></li>",
    "\t\t\t\t<li id=\"lBasic\"><A href=\"#05\">Link 2</a></li>",
    "\t\t\t\t<li id=\"lBasic\"><A href=\"#06\">Link 3</a></li>",
    "\t\t\t\t<li id=\"lBasic\"><A href=\"#02\">Link 4</a></li>",
    "\t\t\t\t<li id=\"lBasict\"><A href=\"#03\">Link 5</a></li>",
    "\t\t\t",
    "\t\t\t</ul>",
    "\t\t",
    "\t\t</div>",
};

// The order of the replacements.
const std::pair<const char*, QString NavStyle::*> kPlaceholders[] = {
    {"getLinkColour", &NavStyle::linkColour},
    {"getALinkColour", &NavStyle::aLinkColour},
    {"getHLinkColour", &NavStyle::hLinkColour},
    {"getVLinkColour", &NavStyle::vLinkColour},
    {"getLinkBorderType", &NavStyle::linkBorderType},
    {"getLinkABorderType", &NavStyle::linkABorderType},
    {"getLinkHBorderType", &NavStyle::linkHBorderType},
    {"getLinkVBorderType", &NavStyle::linkVBorderType},
    {"getLinkThickness", &NavStyle::linkThickness},
    {"getALinkThickness", &NavStyle::aLinkThickness},
    {"getHLinkThickness", &NavStyle::hLinkThickness},
    {"getVLinkThickness", &NavStyle::vLinkThickness},
    {"getBasicColour", &NavStyle::basicColour},
    {"getBasicBorderColour", &NavStyle::basicBorderColour},
    {"getBasicBGColour", &NavStyle::basicBGColour},
    {"getLColour", &NavStyle::lColour},
    {"getHColour", &NavStyle::hColour},
    {"getVColour", &NavStyle::vColour},
    {"getAColour", &NavStyle::aColour},
    {"getBGColour", &NavStyle::bgColour},
    {"getABGColour", &NavStyle::abgColour},
    {"getHBGColour", &NavStyle::hbgColour},
    {"getVBGColour", &NavStyle::vbgColour},
};

const QString kCRLF = QStringLiteral("\r\n");

} // namespace

const QString& navTemplate() {
    static const QString text = [] {
        QString joined;
        for (const char* line : kTemplateLines)
            joined += QString::fromLatin1(line) + kCRLF;
        return joined;
    }();
    return text;
}

QString navCode(const NavStyle& style) {
    QString code = navTemplate();
    for (const auto& [placeholder, value] : kPlaceholders)
        code = vb::Replace(code, QString::fromLatin1(placeholder), style.*value);
    return code;
}

QString navStyleBlock(const QString& code) {
    return vb::Left(code, vb::InStr(code, QStringLiteral("</style>")) + 7);
}

QString navBar(const QStringList& points, const QStringList& urls) {
    QString items;
    for (qsizetype i = 0; i < points.size(); ++i)
        items += QStringLiteral(R"(<li id="lBasic"><a href="%1">%2</a></li>)")
                     .arg(urls.value(i), points[i]) +
                 kCRLF;
    return QStringLiteral(R"(<br><div id="navigation"><ul>)") + items +
           QStringLiteral("</ul></div><br>");
}

int navStylePosition(const QString& text) {
    return vb::InStr(vb::LCase(text), QStringLiteral("<head>")) + 5;
}

} // namespace zt
