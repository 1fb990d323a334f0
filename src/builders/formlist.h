#pragma once

#include "elementdialog.h"
#include "listgen.h"
#include "pointlist.h"

#include "platform/textcontrol.h"

class QRadioButton;

namespace zt {

class TextLineView;

// The fields of a selection list that stand above its points: the list's name,
// size, tab index and whether several rows may be chosen. The drop-down list and
// the list with linked points share them.
struct SelectControls {
    TextControl txtName;
    TextLineView* txtNameView = nullptr;
    TextControl txtSize;
    TextLineView* txtSizeView = nullptr;
    TextControl txtTab;
    TextLineView* txtTabView = nullptr;
    QRadioButton* radYes = nullptr;
    QRadioButton* radNo = nullptr;
    QPushButton* CancelButton = nullptr;
    QPushButton* btnHelp = nullptr;
};

// The table of such a dialog: these fields, the name required, then the points and
// the foot buttons, accept being the dialog's own; Cancel and Help where it has them.
Controls selectDialog(SelectControls& ui, const std::function<void(TextControl&)>& numeric,
                      PointList& points, const Control& accept, bool cancelAndHelp = true);
SelectValues selectValues(const SelectControls& ui);

// List: a drop-down or scrolling selection list of the points entered, for the
// view that opened it.
class formList : public ElementDialog {
public:
    explicit formList(FormRegistry& forms);
    ~formList() override;

    struct Ui : SelectControls, PointControls {
        TextControl compOrEdit;
        QPushButton* OKButton = nullptr;
    } ui;
    PointList pointList;

protected:
    QString fragment() override;
};

} // namespace zt
