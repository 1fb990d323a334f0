#include "samples.h"

#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace zt {

namespace {

// The boxes of the samples, each exactly as the engine wrote it, attributes in its
// odd order. Z-index 102 is never used, and the three-column sample has 103 twice.

// The banner across the top.
const char* const kBanner =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px solid; BORDER-TOP: 1px solid; Z-INDEX: "
    "101; LEFT: 57px; BORDER-LEFT: 1px solid; WIDTH: 599px; BORDER-BOTTOM: 1px solid; POSITION: "
    "absolute; TOP: 10px; HEIGHT: 47px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// A column at the left.
const char* const kLeftColumn =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px dotted; BORDER-TOP: 1px dotted; Z-INDEX: "
    "103; LEFT: 11px; BORDER-LEFT: 1px dotted; WIDTH: 128px; BORDER-BOTTOM: 1px dotted; POSITION: "
    "absolute; TOP: 84px; HEIGHT: 444px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// The main area right of a left column.
const char* const kMainRight =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px ridge; BORDER-TOP: 1px ridge; Z-INDEX: "
    "104; LEFT: 142px; BORDER-LEFT: 1px ridge; WIDTH: 517px; BORDER-BOTTOM: 1px ridge; POSITION: "
    "absolute; TOP: 84px; HEIGHT: 444px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// A column at the right.
const char* const kRightColumn =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px dotted; BORDER-TOP: 1px dotted; Z-INDEX: "
    "103; LEFT: 532px; BORDER-LEFT: 1px dotted; WIDTH: 128px; BORDER-BOTTOM: 1px dotted; POSITION: "
    "absolute; TOP: 84px; HEIGHT: 444px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// The main area left of a right column.
const char* const kMainLeft =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px ridge; BORDER-TOP: 1px ridge; Z-INDEX: "
    "104; LEFT: 11px; BORDER-LEFT: 1px ridge; WIDTH: 517px; BORDER-BOTTOM: 1px ridge; POSITION: "
    "absolute; TOP: 84px; HEIGHT: 444px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// The middle of three columns.
const char* const kMiddleColumn =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px ridge; BORDER-TOP: 1px ridge; Z-INDEX: "
    "104; LEFT: 145px; BORDER-LEFT: 1px ridge; WIDTH: 382px; BORDER-BOTTOM: 1px ridge; POSITION: "
    "absolute; TOP: 84px; HEIGHT: 444px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// One main area across the page.
const char* const kWideColumn =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px ridge; BORDER-TOP: 1px ridge; Z-INDEX: "
    "104; LEFT: 15px; BORDER-LEFT: 1px ridge; WIDTH: 642px; BORDER-BOTTOM: 1px ridge; POSITION: "
    "absolute; TOP: 84px; HEIGHT: 444px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// The footer.
const char* const kFooter =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px outset; BORDER-TOP: 1px outset; Z-INDEX: "
    "105; LEFT: 8px; BORDER-LEFT: 1px outset; WIDTH: 651px; BORDER-BOTTOM: 1px outset; POSITION: "
    "absolute; TOP: 535px; HEIGHT: 30px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// The logo in the banner's corner.
const char* const kLogo =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px solid; BORDER-TOP: 1px solid; Z-INDEX: "
    "106; LEFT: 13px; BORDER-LEFT: 1px solid; WIDTH: 40px; BORDER-BOTTOM: 1px solid; POSITION: "
    "absolute; TOP: 10px; HEIGHT: 30px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// The navigation strip under the banner.
const char* const kNavigation =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px groove; BORDER-TOP: 1px groove; Z-INDEX: "
    "107; LEFT: 13px; BORDER-LEFT: 1px groove; WIDTH: 645px; BORDER-BOTTOM: 1px groove; POSITION: "
    "absolute; TOP: 61px; HEIGHT: 18px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// The left of three columns, a pixel further right and behind the strip.
const char* const kLeftBehind =
    "\r\n<DIV id=LayoutBox \r\nstyle=\"BORDER-RIGHT: 1px dotted; BORDER-TOP: 1px dotted; Z-INDEX: "
    "103; LEFT: 12px; BORDER-LEFT: 1px dotted; WIDTH: 128px; BORDER-BOTTOM: 1px dotted; POSITION: "
    "absolute; TOP: 84px; HEIGHT: 444px; BACKGROUND-COLOR: #efefef\">New \r\nLayout Box</DIV>";

// The sample's boxes in their stored order, and the text that follows the last.
QString sample(std::initializer_list<const char*> columns, const char* after) {
    QString text = QString::fromLatin1(kBanner);
    for (const char* column : columns)
        text += QString::fromLatin1(column);
    for (const char* box : {kFooter, kLogo, kNavigation})
        text += QString::fromLatin1(box);
    return text + QString::fromLatin1(after);
}

struct Box {
    QRect place;
    int z = 0;
    QString border;
};

// A positioned box's place, stacking and border style, read from its inline style.
std::vector<Box> boxesOf(const QString& layout) {
    static const QRegularExpression style(
        QStringLiteral(R"re(style="([^"]*position: *absolute[^"]*)")re"),
        QRegularExpression::CaseInsensitiveOption);
    const auto number = [](const QString& declarations, const char* name) {
        const QRegularExpression property(
            QStringLiteral(R"((?:^|[;\s])%1: *(-?\d+))").arg(QLatin1String(name)),
            QRegularExpression::CaseInsensitiveOption);
        return property.match(declarations).captured(1).toInt();
    };
    static const QRegularExpression border(QStringLiteral(R"(border-top: *\S+ +(\w+))"),
                                           QRegularExpression::CaseInsensitiveOption);
    std::vector<Box> boxes;
    for (const QRegularExpressionMatch& m : style.globalMatch(layout)) {
        const QString d = m.captured(1);
        boxes.push_back(
            {QRect(number(d, "left"), number(d, "top"), number(d, "width"), number(d, "height")),
             number(d, "z-index"), border.match(d).captured(1).toLower()});
    }
    std::stable_sort(boxes.begin(), boxes.end(),
                     [](const Box& a, const Box& b) { return a.z < b.z; });
    return boxes;
}

} // namespace

const QString& sampleLayout(int n) {
    static const std::array<QString, 4> samples{
        sample({kLeftColumn, kMainRight}, "\r\n"),
        sample({kRightColumn, kMainLeft}, "\r\n"),
        sample({kRightColumn, kMiddleColumn}, "") + QString::fromLatin1(kLeftBehind) +
            QStringLiteral("\r\n<P>&nbsp;</P>\r\n"),
        sample({kWideColumn}, "\r\n"),
    };
    return samples.at(std::size_t(n - 1));
}

// The page of every sample is a little under 680 by 580 pixels; a layout reaching
// further is scaled down to fit whole.
QPixmap layoutThumbnail(const QString& layout, QSize size) {
    const std::vector<Box> boxes = boxesOf(layout);
    QRect page(0, 0, 680, 580);
    for (const Box& box : boxes)
        page |= box.place;
    QPixmap picture(size);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = std::min((size.width() - 4) / double(page.width()),
                                  (size.height() - 4) / double(page.height()));
    painter.translate(2, 2);
    painter.scale(scale, scale);
    for (const Box& box : boxes) {
        QPen pen(QColor(0x4a, 0x5a, 0x78), 1.2 / scale);
        if (box.border == QLatin1String("dotted") || box.border == QLatin1String("dashed"))
            pen.setStyle(Qt::DashLine);
        painter.setPen(pen);
        painter.setBrush(QColor(0xd6, 0xdf, 0xee));
        painter.drawRect(box.place);
    }
    painter.resetTransform();
    painter.setPen(QColor(0xa0, 0xa0, 0xa0));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
    return picture;
}

} // namespace zt
