#pragma once

#include "elementdialog.h"

#include "platform/textcontrol.h"

class QListWidget;
class QPushButton;

namespace zt {

class TextLineView;

// Bookmarks: adds a named anchor to the source text, or selects one of the page's
// anchors there. The hidden list holds the anchors' whole tags in the order of the
// names; a scan for the link dialog adds to it as well, so after one the rows of
// the two lists part ways and Go To may pick the wrong tag.
class bookmarks : public ElementDialog {
public:
    explicit bookmarks(FormRegistry& forms);
    ~bookmarks() override;

    void btnGo_Click();

    struct Ui {
        TextControl compOrEdit;
        TextControl txtBookmark;
        TextLineView* txtBookmarkView = nullptr;
        QListWidget* listBookMarks = nullptr;
        QListWidget* listAddress = nullptr;
        QPushButton* btnAdd = nullptr;
        QPushButton* btnGo = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

protected:
    QString fragment() override;
};

// Fills the opening dialog's list with the names of the anchors in the source text
// and the bookmarks dialog's hidden list with their tags; names go to names.
void bookmarkScan(FormRegistry& forms, QListWidget* names);

} // namespace zt
