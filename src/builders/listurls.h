#pragma once

#include "formlist.h"

namespace zt {

// List With Linked Points: a drop-down list in a form whose points each go to an
// address when chosen. Each point's address is asked for as it is added and kept
// beside it. The dialog steps out of sight while its buttons work.
class ListURLs : public ElementDialog {
public:
    explicit ListURLs(FormRegistry& forms);
    ~ListURLs() override;

    // Insert: hidden first, and shown again when the name is missing.
    void accept() override;

    struct Ui : SelectControls, PointControls {
        TextControl compOrEdit;
        QPushButton* btnInsert = nullptr;
    } ui;
    PointList pointList;

protected:
    QString fragment() override;
};

} // namespace zt
