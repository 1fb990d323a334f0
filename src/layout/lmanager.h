#pragma once

#include "platform/commondialog.h"
#include "platform/engine/pageengine.h"
#include "platform/form.h"
#include "platform/textcontrol.h"

#include <memory>

class QPushButton;
class QToolButton;

namespace zt {

class Pickers;

// The Layout Manager: rectangular boxes placed on a page skeleton in the work area
// `result`, each new box built into the strip `tagbar` and dragged from there, and
// the result handed to the view that opened it. The layout is nothing but the work
// area's document; a box's place and size are the inline style the engine writes
// as the user drags.
class LManager : public Form {
public:
    explicit LManager(FormRegistry& forms);
    ~LManager() override;

    // A thumbnail: 0 empties the work area, 1 to 4 put that sample in its place, in
    // both cases without a question.
    void PicType_Click(int index);
    // Add New Box: the box maker.
    void btnAddNew_Click();
    // Edit HTML: the layout as text, with this window hidden meanwhile.
    void btnEditHTML_Click();
    // Use Layout: the layout into the view that opened the Layout Manager.
    void btnUseLayout_Click();
    void btnSaveLayout_Click();
    void btnLoadLayout_Click();
    void btnHelp_Click();

    struct Ui {
        explicit Ui(Pickers& pickers) : ComDlg(pickers) {}

        std::unique_ptr<PageEngine> result;
        std::unique_ptr<PageEngine> tagbar;
        // The four samples as text, fixed.
        TextControl type1;
        TextControl type2;
        TextControl type3;
        TextControl type4;
        // The blank page and the four samples.
        QToolButton* PicType[5] = {};
        TextControl txtCompOrEdit;
        QPushButton* btnAddNew = nullptr;
        QPushButton* btnEditHTML = nullptr;
        QPushButton* btnUseLayout = nullptr;
        QPushButton* btnSaveLayout = nullptr;
        QPushButton* btnLoadLayout = nullptr;
        QPushButton* btnHelp = nullptr;
        CommonDialog ComDlg;
    } ui;
};

} // namespace zt
