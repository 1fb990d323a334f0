#include "vistbl.h"

#include "tablegen.h"

#include "platform/eventwatcher.h"

#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

namespace zt {

namespace {

constexpr int kCells = 100;
constexpr int kSide = 10;

// A cell takes the pointer's moves and clicks itself, so that they never reach the
// dialog behind it, whose own move clears the grid.
class GridCell : public QLabel {
public:
    using QLabel::QLabel;

protected:
    void mouseMoveEvent(QMouseEvent* event) override { event->accept(); }
    void mousePressEvent(QMouseEvent* event) override { event->accept(); }
    void mouseReleaseEvent(QMouseEvent* event) override { event->accept(); }
};

} // namespace

visTbl::visTbl(FormRegistry& forms)
    : ElementDialog(forms, {.name = "visTbl",
                            .caption = QStringLiteral("Visual Table: Zelvo"),
                            .helpPage = QStringLiteral("tb02.zhp")}) {
    build(ui.compOrEdit, {
                             // control, caption, default, place, limits
                             {widget("grid", [this](QWidget* parent) { return makeGrid(parent); }),
                              "", "", Place::Line},
                             {button("CancelButton", ui.CancelButton), "Close", "", Place::Cancel},
                             {button("btnHelp", ui.btnHelp), "Help", "", Place::Help},
                         });
    new EventWatcher(window(), QEvent::MouseMove, [this] { Form_MouseMove(); });
    ui.Timer1.onTimer = [this] { Timer1_Timer(); };
}

visTbl::~visTbl() = default;

// The cells, with the numbers 1 to 10 along the top and the left edge.
QWidget* visTbl::makeGrid(QWidget* parent) {
    auto* grid = new QWidget(parent);
    auto* layout = new QGridLayout(grid);
    layout->setSpacing(2);
    for (int n = 1; n <= kSide; ++n) {
        for (const auto& [row, column] : {std::pair(0, n), std::pair(n, 0)}) {
            auto* edge = new QLabel(QString::number(n), grid);
            edge->setAlignment(Qt::AlignCenter);
            layout->addWidget(edge, row, column);
        }
    }
    for (int index = 0; index < kCells; ++index) {
        auto* cell = new GridCell(grid);
        cell->setObjectName(QStringLiteral("num11_%1").arg(index));
        cell->setFixedSize(22, 22);
        cell->setFrameShape(QFrame::Box);
        cell->setAutoFillBackground(true);
        new EventWatcher(cell, QEvent::MouseMove, [this, index] { num11_MouseMove(index); });
        new EventWatcher(cell, QEvent::MouseButtonRelease, [this, index] { num11_Click(index); });
        layout->addWidget(cell, index / kSide + 1, index % kSide + 1);
        ui.num11[std::size_t(index)] = cell;
    }
    paintAll(false);
    return grid;
}

void visTbl::paint(int index, bool lit) {
    QLabel* cell = ui.num11[std::size_t(index)];
    QPalette colours = cell->palette();
    colours.setColor(QPalette::Window,
                     window()->palette().color(lit ? QPalette::Highlight : QPalette::Base));
    cell->setPalette(colours);
    cell->setProperty("lit", lit);
}

bool visTbl::isLit(int index) const {
    return ui.num11[std::size_t(index)]->property("lit").toBool();
}

void visTbl::paintAll(bool lit) {
    for (int index = 0; index < kCells; ++index)
        paint(index, lit);
}

// The rectangle from the top-left corner to the cell: every cell at or before it
// whose column is no further right.
void visTbl::paintUpTo(int index) {
    for (int cell = 0; cell <= index; ++cell) {
        if (cell % kSide <= index % kSide)
            paint(cell, true);
    }
}

void visTbl::num11_MouseMove(int index) {
    m_over = index;
    paintUpTo(index);
    ui.Timer1.setEnabled(true);
}

// Cells lit for an earlier position are cleared by painting all back first.
void visTbl::Timer1_Timer() {
    paintAll(false);
    if (m_over >= 0)
        paintUpTo(m_over);
}

void visTbl::Form_MouseMove() {
    paintAll(false);
    ui.Timer1.setEnabled(false);
}

void visTbl::num11_Click(int index) {
    m_clicked = index;
    paintAll(false);
    ui.Timer1.setEnabled(false);
    accept();
}

QString visTbl::fragment() {
    return gridTableMarkup(m_clicked, ui.compOrEdit.text() == caller::kComp);
}

} // namespace zt
