#include "pagetext.h"

#include "platform/runtimefailure.h"

#include "platform/desktop.h"

#include <QRegularExpression>

namespace zt::pagetext {

QStringList generatorMetaTags(QStringView html) {
    static const QRegularExpression metaTag(QStringLiteral(R"(<meta\b[^>]*>)"),
                                            QRegularExpression::CaseInsensitiveOption);
    // The name attribute, not a "name=" that stands inside another attribute's value
    // is assumed; the tags the program meets are written by tools, not by hand.
    static const QRegularExpression generatorName(
        QStringLiteral(R"((?:^|\s)name\s*=\s*(?:"generator"|'generator'|generator(?=[\s/>])))"),
        QRegularExpression::CaseInsensitiveOption);
    QStringList tags;
    auto matches = metaTag.globalMatch(html);
    while (matches.hasNext()) {
        const QString tag = matches.next().captured();
        if (generatorName.match(tag).hasMatch())
            tags << tag;
    }
    return tags;
}

QString withCrLf(QStringView text) {
    QString result;
    result.reserve(text.size() + text.size() / 32);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'\r') {
            if (i + 1 < text.size() && text[i + 1] == u'\n')
                ++i;
            result += QLatin1String("\r\n");
        } else if (c == u'\n') {
            result += QLatin1String("\r\n");
        } else {
            result += c;
        }
    }
    return result;
}

QString htmlOfPlainText(QStringView text) {
    QString html = text.toString().toHtmlEscaped();
    html.replace(QLatin1String("&quot;"), QLatin1String("\""));
    return withCrLf(html).replace(QLatin1String("\r\n"), QLatin1String("<br>"));
}

QString htmlToPaste(const Clipboard& clipboard) {
    QString html = clipboard.html();
    if (html.isEmpty())
        html = htmlOfPlainText(clipboard.text());
    if (html.isEmpty())
        throw RuntimeFailure::invalidProcedureCall();
    return html;
}

} // namespace zt::pagetext
