#pragma once

#include "platform/dialogparts.h"
#include "platform/textcontrol.h"

#include <QStringList>

class QListWidget;
class QPushButton;

namespace zt {

class Form;
class TextEditView;
class TextLineView;

// The controls of a list that the user builds point by point: the point being
// entered, the list of points and the buttons that edit it. A dialog's `ui`
// derives from this, so its handlers read `ui.listPoints` as the dialog's own.
struct PointControls {
    TextControl txtPoints;
    TextLineView* txtPointsView = nullptr;
    // The point's box where it takes several lines.
    TextEditView* txtPointsEdit = nullptr;
    QPushButton* btnAdd = nullptr;
    QListWidget* listPoints = nullptr;
    // The linked list's address of each point, row for row with listPoints.
    QListWidget* listURL = nullptr;
    QPushButton* btnRemove = nullptr;
    QPushButton* btnUp = nullptr;
    QPushButton* btnDown = nullptr;
    QPushButton* btnClear = nullptr;
    // Never on screen: the rows in their new order while a move rebuilds the list.
    QListWidget* correction = nullptr;
};

// How one dialog's point list differs from the others'.
struct PointRules {
    // The caption above the list of points.
    QString pointsCaption;
    QString pointCaption = QStringLiteral("&Point:");
    QString addCaption = QStringLiteral("&Add");
    // The point's box takes several lines, and a line break typed at its end adds the
    // point: Enter adds it there too, as the one line it is.
    bool multiLinePoints = false;
    // Up and Down, when the row can move, hide the dialog, write the rows in their
    // new order into the hidden list `correction`, refill the points from it and show
    // the dialog again.
    bool movesThroughCorrection = false;
    // Each point links to an address that Add asks for, kept in listURL.
    bool linked = false;
    // The address Add offers.
    QString urlDefault = {};
    // An address not given is told in a plain box with the default title, not in a
    // warning of the assistant.
    bool plainUrlWarning = false;
    // Down with no row selected is not refused: it reads row -1 as an empty point,
    // puts that in at row 1 of the points and fails at taking row -1 out, which ends
    // it there, one row longer than the addresses.
    bool downWithoutSelection = false;
    // Each button hides the dialog while it works and shows it again at the end.
    bool hidesAround = false;
    QString removeWarning = QStringLiteral("No point selected to remove");
    bool removeFocusesButton = true;
    // The box style of Clear's question; 0 clears without asking.
    int clearAsks = 0;
    bool clearFocusesPoints = true;
};

// The row editing of a point list: Add (and Enter in the point's box), Remove, Up,
// Down and Clear. A linked list edits its two lists together, so that they keep the
// same length and order and each address stays with its point.
class PointList {
public:
    PointList(Form& form, PointControls& ui, PointRules rules);

    // The row of the dialog's table that makes the controls and wires them.
    Field editor();

    void btnAdd_Click();
    void btnRemove_Click();
    void btnUp_Click();
    void btnDown_Click();
    void btnClear_Click();
    void txtPoints_Change();

    QStringList points() const;
    QStringList urls() const;

private:
    QWidget* make(QWidget* parent);
    // The lists that every edit changes alike.
    QList<QListWidget*> lists() const;
    // Moves the selected row by step, on every list, and selects it there.
    void move(int step);
    // The same move by way of the hidden list `correction`.
    void moveThroughCorrection(int step);
    // The box the point is typed into.
    QWidget* pointBox() const;
    // Runs an edit, with the dialog out of sight while it works where the rules say.
    template <class Edit> void around(Edit edit);

    Form& m_form;
    PointControls& m_ui;
    PointRules m_rules;
};

} // namespace zt
