#pragma once

#include "builders/elementdialog.h"
#include "builders/pointlist.h"

class QPushButton;

namespace zt {

// The Navigation Bar Creator's second step: the links of the bar, each a point with
// its address. Create Navigation Bar puts the bar at the caret of the view that
// opened the creator and the style sheet just behind the page's <head>, always
// through the source text, from which the page is then refreshed.
class NavListURLs : public ElementDialog {
public:
    explicit NavListURLs(FormRegistry& forms);
    ~NavListURLs() override;

    // Create Navigation Bar.
    void accept() override;

    struct Ui : PointControls {
        TextControl compOrEdit;
        // The style sheet with the sample bar, as the first step built it.
        TextControl txtCode;
        QPushButton* btnInsert = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;
    PointList pointList;

protected:
    // The bar of the points and their addresses.
    QString fragment() override;
};

} // namespace zt
