#pragma once

#include "builders/elementdialog.h"
#include "builders/formlist.h"
#include "builders/pointlist.h"

namespace zt {

// List for the designer's strip: a selection list of points typed one a line, Enter
// ending each. The List Box button opens it with a size of 5, Drop Down Box without.
class MformList : public ElementDialog {
public:
    explicit MformList(FormRegistry& forms);
    ~MformList() override;

    struct Ui : SelectControls, PointControls {
        QPushButton* btnInsert = nullptr;
    } ui;
    PointList pointList;

protected:
    QString fragment() override;
};

} // namespace zt
