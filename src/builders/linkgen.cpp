#include "linkgen.h"

#include "platform/vbstrings.h"

#include <QRegularExpression>

namespace zt {

QString relationshipValue(const Relationship& r) {
    if (r.anotherAddressOfMine)
        return QStringLiteral(R"( rel="me")");
    static const char* const friendships[] = {" friend", " acquaintance", " contact", ""};
    static const char* const geographies[] = {" co-worker", " neighbor", ""};
    static const char* const families[] = {" child", " parent", " sibling", " spouse", " kin", ""};
    QString tokens = QLatin1String(friendships[r.friendship]);
    if (r.met)
        tokens += QLatin1String(" met");
    tokens += QLatin1String(geographies[r.geography]);
    tokens += QLatin1String(families[r.family]);
    const std::pair<bool, const char*> romance[] = {
        {r.muse, " met"}, {r.crush, " crush"}, {r.date, " date"}, {r.sweetheart, " sweetheart"}};
    for (const auto& [on, token] : romance) {
        if (on)
            tokens += QLatin1String(token);
    }
    return QStringLiteral(R"( rel="%1")").arg(tokens);
}

namespace {

QString titleAndStyle(const QString& screenTip, bool noUnderline) {
    QString attributes;
    if (!screenTip.isEmpty())
        attributes += QStringLiteral(R"( TITLE="%1")").arg(screenTip);
    if (noUnderline)
        attributes += QStringLiteral(R"( STYLE="text-decoration:none")");
    return attributes;
}

} // namespace

QString hyperlinkTag(const HyperlinkValues& v) {
    return QStringLiteral(R"(<A%1 href="%2")").arg(v.rel, v.link) +
           titleAndStyle(v.screenTip, v.noUnderline) + v.target +
           (v.forConsole ? QStringLiteral(" >") : QStringLiteral(">")) + v.text +
           QStringLiteral("</A>");
}

QString mailTag(const MailValues& v) {
    const QString subject =
        v.subject.isEmpty() ? QString() : QStringLiteral("?subject=") + v.subject;
    return QStringLiteral(R"(<A href="mailto:%1%2")").arg(v.address, subject) +
           titleAndStyle(v.screenTip, v.noUnderline) + u'>' + v.text + QStringLiteral("</A>");
}

QString bookmarkTag(const QString& name, bool forSource) {
    return QStringLiteral(R"(<A name="%1">%2</A>)")
        .arg(name, forSource ? QString() : QStringLiteral("&nbsp;"));
}

namespace {

QString nameIn(const QString& tag) {
    const int first = vb::InStr(tag, QStringLiteral("\""));
    const int second = first > 0 ? vb::InStr(first + 1, tag, QStringLiteral("\"")) : 0;
    if (second > 0)
        return vb::Mid(tag, first + 1, second - first - 1);
    static const QRegularExpression bare(QStringLiteral(R"(name\s*=\s*'?([^\s'>]*))"),
                                         QRegularExpression::CaseInsensitiveOption);
    return bare.match(tag).captured(1);
}

} // namespace

std::vector<ScannedBookmark> scanBookmarks(const QString& text) {
    std::vector<ScannedBookmark> found;
    const QString lower = text.toLower();
    constexpr int kLastPosition = 32767;
    for (int p = vb::InStr(2, lower, QStringLiteral("<a name")); p > 0 && p <= kLastPosition;
         p = vb::InStr(p + 1, lower, QStringLiteral("<a name"))) {
        const int end = vb::InStr(p, text, QStringLiteral(">"));
        if (end == 0)
            continue;
        const QString tag = vb::Mid(text, p, end - p + 1);
        found.push_back({tag, nameIn(tag)});
    }
    return found;
}

} // namespace zt
