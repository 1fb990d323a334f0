#include "rollovergen.h"

#include "platform/runtimefailure.h"
#include "platform/vbstrings.h"

#include <QStringList>

namespace zt {

namespace {

const QString kCrLf = QStringLiteral("\r\n");

// Puts what in at a 0-based offset, as a text box's caret would: an offset past the
// end is the end, a negative one is refused.
void insertAt(QString& text, int offset, const QString& what) {
    if (offset < 0)
        throw RuntimeFailure::invalidPropertyValue();
    text.insert(std::min(offset, int(text.size())), what);
}

// The 1-based position of what in the lower-cased text from start, 0 when absent.
qint16 findFrom(int start, const QString& text, const QString& what) {
    return vb::toInteger(vb::InStr(start, vb::LCase(text), what));
}

QString rolloverLink(const RolloverValues& v) {
    return QStringLiteral("<a href=\"") + v.link +
           QStringLiteral("\" onMouseOut=\"ZLV_swapImgRestore()\" onMouseOver=\"ZLV_swapImage('") +
           v.name + QStringLiteral("','','") + v.secondImage +
           QStringLiteral("',1)\"><img name=\"") + v.name +
           QStringLiteral("\" border=\"0\" src=\"") + v.firstImage + QStringLiteral("\"></a>");
}

} // namespace

const QString& rolloverScript() {
    static const QString script = [] {
        const char* const lines[] = {
            "<script language=\"JavaScript\">",
            "<!--",
            "function ZLV_swapImgRestore() { ",
            "  var i,x,a=document.ZLV_sr; ",
            "",
            "for(i=0;a&&i<a.length&&(x=a[i])&&x.oSrc;i++) ",
            "x.src=x.oSrc;",
            "}",
            "",
            "function ZLV_preloadImages() { ",
            "  var d=document; if(d.images){ ",
            "if(!d.ZLV_p) d.ZLV_p=new Array();",
            "    var i,j=d.ZLV_p.length,a=ZLV_preloadImages.arguments;",
            " for(i=0; i<a.length; i++)",
            "    if (a[i].indexOf(\"#\")!=0){ d.ZLV_p[j]=new Image; ",
            "d.ZLV_p[j++].src=a[i];}}",
            "}",
            "",
            "function ZLV_findObj(n, d) ",
            "{ ",
            "  var p,i,x;  if(!d) d=document; ",
            "if((p=n.indexOf(\"?\"))>0&&parent.frames.length) {",
            "    d=parent.frames[n.substring(p+1)].document; ",
            "n=n.substring(0,p);}",
            "  ",
            "if(!(x=d[n])&&d.all) ",
            "x=d.all[n]; ",
            "for(i=0;!x&&i<d.forms.length;i++) x=d.forms[i][n];",
            "  ",
            "for(i=0;!x&&d.layers&&i<d.layers.length;i++) x=ZLV_findObj(n,d.layers[i].document); "
            "return x;",
            "}",
            "",
            "function ZLV_swapImage() {",
            "  var i,j=0,x,a=ZLV_swapImage.arguments; ",
            "document.ZLV_sr=new Array; ",
            "for(i=0;i<(a.length-2);i+=3)",
            "   if ((x=ZLV_findObj(a[i]))!=null){document.ZLV_sr[j++]=x; ",
            "if(!x.oSrc) x.oSrc=x.src; x.src=a[i+2];}",
            "}",
            "//-->",
            "</script>",
        };
        QString text;
        for (const char* line : lines)
            text += QString::fromLatin1(line) + kCrLf;
        return text;
    }();
    return script;
}

QString rolloverPage(const QString& page, const RolloverValues& values) {
    // The page's length is held as a 16-bit number too.
    vb::toInteger(page.size());
    QString text = page;
    qint16 pos = 0;
    const bool hasScript = vb::toInteger(vb::InStr(text, rolloverScript())) != 0;
    const qint16 html = findFrom(1, text, QStringLiteral("<html>"));
    const bool hadBody = findFrom(1, text, QStringLiteral("<body")) != 0;
    if (findFrom(1, text, QStringLiteral("<head>")) == 0) {
        if (html != 0) {
            insertAt(text, html + 5,
                     kCrLf + QStringLiteral("<HEAD>") + kCrLf + kCrLf + QStringLiteral("</HEAD>"));
            pos += 19;
        } else {
            text = QStringLiteral("<html>") + kCrLf + QStringLiteral("<HEAD>") + kCrLf +
                   QStringLiteral("</HEAD>") + kCrLf + text;
            pos += 25;
        }
    }
    if (!hadBody) {
        const qint16 headEnd = findFrom(1, text, QStringLiteral("</head>"));
        insertAt(text, headEnd + 6, kCrLf + QStringLiteral("<body>") + kCrLf);
        pos += 10;
    }
    insertAt(text, pos, rolloverLink(values));

    const qint16 head = findFrom(1, text, QStringLiteral("<head>"));
    const qint16 body = findFrom(1, text, QStringLiteral("<body"));
    // The first onLoad anywhere from the body tag on, not only inside it.
    const qint16 load = findFrom(body, text, QStringLiteral("onload"));
    if (load != 0) {
        const qint16 paren = findFrom(load, text, QStringLiteral(")"));
        insertAt(text, paren - 1, QStringLiteral(",'") + values.secondImage + QStringLiteral("'"));
    } else {
        const qint16 close = findFrom(body, text, QStringLiteral(">"));
        insertAt(text, close - 1,
                 QStringLiteral(" onLoad=\"ZLV_preloadImages('") + values.secondImage +
                     QStringLiteral("')\""));
    }
    if (!hasScript)
        insertAt(text, head + 5, rolloverScript());
    return text;
}

} // namespace zt
