#include "pointlist.h"

#include "platform/form.h"
#include "platform/guard.h"
#include "platform/prompts.h"
#include "platform/services.h"
#include "platform/texteditview.h"
#include "platform/textlineview.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace zt {

namespace {

const QString kAssistant = QStringLiteral("Assistant: Zelvo");

// Enter in the point's box adds the point, instead of pressing the dialog's
// default button.
class EnterAdds : public QObject {
public:
    EnterAdds(QWidget* box, std::function<void()> add) : QObject(box), m_add(std::move(add)) {
        box->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::KeyPress)
            return false;
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Return && key != Qt::Key_Enter)
            return false;
        Guard::run(m_add);
        return true;
    }

private:
    std::function<void()> m_add;
};

// The selected row, or -1 when no row is selected.
int selectedRow(const QListWidget* list) {
    const QListWidgetItem* item = list->currentItem();
    return item && item->isSelected() ? list->currentRow() : -1;
}

QStringList rowsOf(const QListWidget* list) {
    QStringList rows;
    for (int i = 0; i < list->count(); ++i)
        rows << list->item(i)->text();
    return rows;
}

QListWidget* newList(QWidget* parent, const char* name) {
    auto* list = new QListWidget(parent);
    list->setObjectName(QString::fromLatin1(name));
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setMinimumSize(180, 140);
    return list;
}

} // namespace

PointList::PointList(Form& form, PointControls& ui, PointRules rules)
    : m_form(form), m_ui(ui), m_rules(std::move(rules)) {}

Field PointList::editor() {
    return widget("pointList", [this](QWidget* parent) { return make(parent); });
}

QWidget* PointList::make(QWidget* parent) {
    auto* editor = new QWidget(parent);
    auto* grid = new QGridLayout(editor);
    grid->setContentsMargins(0, 0, 0, 0);
    const int buttonColumn = m_rules.linked ? 2 : 1;

    QWidget* box = nullptr;
    if (m_rules.multiLinePoints) {
        box = m_ui.txtPointsEdit = new TextEditView(m_ui.txtPoints, editor);
        m_ui.txtPointsEdit->setTabChangesFocus(true);
        m_ui.txtPointsEdit->setFixedHeight(m_ui.txtPointsEdit->fontMetrics().lineSpacing() * 3);
        m_ui.txtPoints.addChangeHandler([this] { txtPoints_Change(); });
    } else {
        box = m_ui.txtPointsView = new TextLineView(m_ui.txtPoints, editor);
        new EnterAdds(box, [this] { btnAdd_Click(); });
    }
    box->setObjectName(QStringLiteral("txtPoints"));
    auto* pointLabel = new QLabel(m_rules.pointCaption, editor);
    pointLabel->setBuddy(box);
    auto* point = new QHBoxLayout;
    point->addWidget(pointLabel);
    point->addWidget(box, 1);
    grid->addLayout(point, 0, 0, 1, buttonColumn);
    m_ui.btnAdd = makeButton(editor, "btnAdd", m_rules.addCaption);
    grid->addWidget(m_ui.btnAdd, 0, buttonColumn);

    m_ui.listPoints = newList(editor, "listPoints");
    auto* pointsLabel = new QLabel(m_rules.pointsCaption, editor);
    pointsLabel->setBuddy(m_ui.listPoints);
    grid->addWidget(pointsLabel, 1, 0);
    grid->addWidget(m_ui.listPoints, 2, 0);
    if (m_rules.linked) {
        m_ui.listURL = newList(editor, "listURL");
        auto* urlLabel = new QLabel(QStringLiteral("U&RL"), editor);
        urlLabel->setBuddy(m_ui.listURL);
        grid->addWidget(urlLabel, 1, 1);
        grid->addWidget(m_ui.listURL, 2, 1);
    }
    auto* buttons = new QVBoxLayout;
    const std::pair<QPushButton**, const char*> edits[] = {{&m_ui.btnRemove, "btnRemove"},
                                                           {&m_ui.btnUp, "btnUp"},
                                                           {&m_ui.btnDown, "btnDown"},
                                                           {&m_ui.btnClear, "btnClear"}};
    const QString captions[] = {QStringLiteral("Re&move"), QStringLiteral("&Up"),
                                QStringLiteral("Do&wn"), QStringLiteral("&Clear")};
    for (int i = 0; i < 4; ++i) {
        *edits[i].first = makeButton(editor, edits[i].second, captions[i]);
        buttons->addWidget(*edits[i].first);
    }
    buttons->addStretch(1);
    grid->addLayout(buttons, 2, buttonColumn);
    if (m_rules.movesThroughCorrection) {
        m_ui.correction = newList(editor, "correction");
        m_ui.correction->hide();
    }
    // The editing buttons never take Enter from the point's box or the dialog.
    for (QPushButton* button :
         {m_ui.btnAdd, m_ui.btnRemove, m_ui.btnUp, m_ui.btnDown, m_ui.btnClear})
        button->setAutoDefault(false);

    onClick(m_ui.btnAdd, [this] { btnAdd_Click(); });
    onClick(m_ui.btnRemove, [this] { btnRemove_Click(); });
    onClick(m_ui.btnUp, [this] { btnUp_Click(); });
    onClick(m_ui.btnDown, [this] { btnDown_Click(); });
    onClick(m_ui.btnClear, [this] { btnClear_Click(); });
    return editor;
}

QWidget* PointList::pointBox() const {
    return m_ui.txtPointsEdit ? static_cast<QWidget*>(m_ui.txtPointsEdit) : m_ui.txtPointsView;
}

// A line break just before the caret ends the point: what stands before the last two
// characters becomes a row.
void PointList::txtPoints_Change() {
    const QString& text = m_ui.txtPoints.text();
    const int caret = m_ui.txtPoints.selStart();
    if (caret < 2 || QStringView(text).mid(caret - 2, 2) != u"\r\n")
        return;
    m_ui.listPoints->addItem(text.left(text.size() - 2));
    m_ui.txtPoints.setText(QString());
}

QList<QListWidget*> PointList::lists() const {
    QList<QListWidget*> all{m_ui.listPoints};
    if (m_ui.listURL)
        all << m_ui.listURL;
    return all;
}

template <class Edit> void PointList::around(Edit edit) {
    if (m_rules.hidesAround)
        m_form.hide();
    edit();
    if (m_rules.hidesAround)
        m_form.show();
}

// A point may be empty. A linked point needs its address: without one nothing is
// added. The point's box is emptied either way.
void PointList::btnAdd_Click() {
    around([this] {
        Prompts& prompts = *m_form.services().prompts;
        if (!m_rules.linked) {
            m_ui.listPoints->addItem(m_ui.txtPoints.text());
        } else if (const QString url = prompts.inputBox(
                       QStringLiteral(
                           "Enter the url/location to which the point has to be linked to"),
                       QStringLiteral("Enter address/URL"), m_rules.urlDefault);
                   !url.isEmpty()) {
            m_ui.listURL->addItem(url);
            m_ui.listPoints->addItem(m_ui.txtPoints.text());
        } else if (m_rules.plainUrlWarning) {
            prompts.msgBox(QStringLiteral("Valid URL was not entered"));
        } else {
            prompts.msgBox(QStringLiteral("Valid URL was not entered"), vbExclamation, kAssistant);
        }
        m_ui.txtPoints.setText(QString());
        pointBox()->setFocus();
    });
}

void PointList::btnRemove_Click() {
    around([this] {
        const int row = selectedRow(m_ui.listPoints);
        if (row < 0) {
            m_form.services().prompts->msgBox(m_rules.removeWarning, vbExclamation, kAssistant);
            if (m_rules.removeFocusesButton)
                m_ui.btnRemove->setFocus();
            return;
        }
        for (QListWidget* list : lists()) {
            delete list->takeItem(row);
            list->setCurrentRow(-1);
        }
    });
}

void PointList::btnUp_Click() {
    if (m_rules.movesThroughCorrection)
        return moveThroughCorrection(-1);
    around([this] { move(-1); });
}

void PointList::btnDown_Click() {
    if (m_rules.movesThroughCorrection)
        return moveThroughCorrection(1);
    around([this] { move(1); });
}

// The rows before the pair, the pair swapped, then the rest. The moved row stays
// selected, so that it can be moved on.
void PointList::moveThroughCorrection(int step) {
    const int row = selectedRow(m_ui.listPoints);
    const int to = row + step;
    if (row < 0 || to < 0 || to >= m_ui.listPoints->count())
        return;
    m_form.hide();
    QStringList rows = rowsOf(m_ui.listPoints);
    rows.swapItemsAt(row, to);
    m_ui.correction->clear();
    m_ui.correction->addItems(rows);
    m_ui.listPoints->clear();
    m_ui.listPoints->addItems(rowsOf(m_ui.correction));
    m_ui.listPoints->setCurrentRow(to);
    m_form.show();
}

// The row is copied to its new place and the old one removed. The first row does
// not go up, the last does not go down, and without a selected row nothing moves
// unless the rules say otherwise. The address list selects the row first.
void PointList::move(int step) {
    const int row = selectedRow(m_ui.listPoints);
    const int to = row + step;
    if (m_ui.listURL)
        m_ui.listURL->setCurrentRow(row);
    if (row < 0 && step > 0 && m_rules.downWithoutSelection && m_ui.listPoints->count() > 0) {
        m_ui.listPoints->insertItem(1, QString());
        return;
    }
    if (row < 0 || to < 0 || to >= m_ui.listPoints->count())
        return;
    for (QListWidget* list : lists()) {
        const QString text = list->item(row) ? list->item(row)->text() : QString();
        list->insertItem(step < 0 ? to : row + 2, text);
        delete list->takeItem(step < 0 ? row + 1 : row);
        list->setCurrentRow(to);
    }
}

void PointList::btnClear_Click() {
    around([this] {
        if (m_rules.clearAsks != 0 &&
            m_form.services().prompts->msgBox(
                QStringLiteral("Are you sure you wish to clear the list?"), m_rules.clearAsks,
                kAssistant) != vbYes)
            return;
        for (QListWidget* list : lists())
            list->clear();
        if (m_rules.clearFocusesPoints)
            pointBox()->setFocus();
    });
}

QStringList PointList::points() const {
    return rowsOf(m_ui.listPoints);
}

QStringList PointList::urls() const {
    return m_ui.listURL ? rowsOf(m_ui.listURL) : QStringList();
}

} // namespace zt
