#pragma once

#include "platform/commondialog.h"
#include "platform/engine/pageengine.h"
#include "platform/form.h"
#include "platform/menutable.h"
#include "platform/toolbartable.h"

#include <memory>
#include <vector>

class QAction;
class QLabel;
class QMainWindow;
class QToolBar;
class QToolButton;

namespace zt {

// The form designer: a form is laid out by eye in the work area `Result`, one field
// at a time built into the strip `tagbar` and dragged from there, and its code is
// generated for the view that opened the designer. The design is nothing but the
// work area's document; the designer keeps no model of its own.
class morvane : public Form {
public:
    explicit morvane(FormRegistry& forms);
    ~morvane() override;

    void load() override;

    // File menu.
    void mnuNew();
    void mnuOpen();
    void mnuSave();
    void mnuEditHTML();
    void mnuPreview();
    void mnuHTMLGen();
    void mnuExit();
    // Edit menu.
    void mnuCopy();
    void mnuCut();
    void mnuPaste();
    void mnuDelete();
    void mnuUndo();
    void mnuRedo();
    // Format menu.
    void mnuBold();
    void mnuItalics();
    void mnuUnderline();
    void mnuFont();
    void mnuBoxBorder();
    void mnuBoxBGColour();
    // Insert menu. The field dialogs' openers are in openers.cpp.
    void mnuLabel();
    void mnuTextBox();
    void mnuButton();
    void mnuTextArea();
    void mnuRadio();
    void mnuCheckBox();
    void mnuList();
    void mnuDropDown();
    void mnuFieldSet();
    void mnuBrowseBox();
    void mnuHidden();
    void mnuDrawing();
    // Help menu.
    void help();
    void mnuShowTip();
    void mnuAbout();

    // Toolbar1: a click dispatches on the key, and any failure is passed over.
    void Toolbar1_ButtonClick(const QString& key);
    // The key "Properties": the box properties as a pop-up at the pointer.
    void showBoxProperties();

    struct Ui {
        explicit Ui(Pickers& pickers) : ComDlg(pickers) {}

        std::unique_ptr<PageEngine> Result;
        std::unique_ptr<PageEngine> tagbar;
        CommonDialog ComDlg;
        QLabel* lblGenerated = nullptr;
        QToolBar* Toolbar1 = nullptr;
        // The frame of insert buttons.
        QWidget* toolbar = nullptr;
        QToolButton* btnLabel = nullptr;
        QToolButton* btnText = nullptr;
        QToolButton* btnButton = nullptr;
        QToolButton* btnTextArea = nullptr;
        QToolButton* btnRadio = nullptr;
        QToolButton* btnCheckBox = nullptr;
        QToolButton* btnListBox = nullptr;
        QToolButton* btnDropDown = nullptr;
        QToolButton* btnFieldSet = nullptr;
        QToolButton* btnFile = nullptr;
        QToolButton* btnHidden = nullptr;
        QToolButton* btnGenerate = nullptr;

        QAction* mnuFile = nullptr;
        QAction* mnuNew = nullptr;
        QAction* mnuOpen = nullptr;
        QAction* mnuSave = nullptr;
        QAction* mnuEditHTML = nullptr;
        QAction* mnuPreview = nullptr;
        QAction* mnuHTMLGen = nullptr;
        QAction* mnuExit = nullptr;
        QAction* mnuEdit = nullptr;
        QAction* mnuCopy = nullptr;
        QAction* mnuCut = nullptr;
        QAction* mnuPaste = nullptr;
        QAction* mnuDelete = nullptr;
        QAction* mnuUndo = nullptr;
        QAction* mnuRedo = nullptr;
        QAction* mnuMormat = nullptr;
        QAction* mnuBold = nullptr;
        QAction* mnuItalics = nullptr;
        QAction* mnuUnderline = nullptr;
        QAction* mnuFont = nullptr;
        QAction* mnuBoxProps = nullptr;
        QAction* mnuBoxBorder = nullptr;
        QAction* mnuBoxBGColour = nullptr;
        QAction* mnuInsert = nullptr;
        QAction* mnuLabel = nullptr;
        QAction* mnuTextBox = nullptr;
        QAction* mnuButton = nullptr;
        QAction* mnuTextArea = nullptr;
        QAction* mnuRadio = nullptr;
        QAction* mnuCheckBox = nullptr;
        QAction* mnuList = nullptr;
        QAction* mnuDropDown = nullptr;
        QAction* mnuFieldSet = nullptr;
        QAction* mnuBrowseBox = nullptr;
        QAction* mnuHidden = nullptr;
        QAction* mnuDrawing = nullptr;
        QAction* mnuHelp = nullptr;
        QAction* help = nullptr;
        QAction* mnuShowTip = nullptr;
        QAction* mnuAbout = nullptr;
    } ui;

private:
    // A command of the work area whose failure nobody catches.
    void onResult(DhtmlCommand id);
    // A formatting command of the work area; a failure is passed over.
    void formatResult(DhtmlCommand id);
    // Replaces the colour after key in the form box's style wherever it occurs.
    void boxColour(const QString& key, int offset);

    QMainWindow* m_window;
};

// The command map of the designer: its menus in menu order, the keys of Toolbar1,
// and the insert buttons of the frame `toolbar` followed by btnGenerate.
const std::vector<MenuRow<morvane>>& morvaneMenus();
const std::vector<ToolKey<morvane>>& morvaneToolKeys();
const std::vector<FormatButton<morvane>>& morvaneButtons();

} // namespace zt
