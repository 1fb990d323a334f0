#pragma once

#include "platform/commondialog.h"
#include "platform/engine/pageengine.h"
#include "platform/form.h"
#include "platform/timer.h"

#include <array>
#include <memory>

class QAction;
class QMainWindow;
class QToolBar;
class QToolButton;

namespace zt {

class StatusBar;

// The visual view: the document as a live page in txtComp, with the scratch
// control tagbar through which fragments reach the page at the caret.
class Tessara : public Form {
public:
    explicit Tessara(FormRegistry& forms);
    ~Tessara() override;

    void formUnload(bool& cancel) override;

    // File commands.
    void mnuNew();
    void mnuOpen();
    void mnuSave();
    void mnuSaveAs();
    void recent_Click(int index);
    void mnuExit();

    // The switch to the source view, and its other entries.
    void mnuEditor();
    void mnuViewEditor();

    // The start-up assistant: whether it comes up at start, and showing it now.
    void mnuEnableStartUp();
    void mnuShowStartUp();

    // A fragment into the page at the caret, completed by the next Timer1 tick.
    void VisualInsert(const QString& fragment);
    void Timer1_Timer();
    // The timed save that the Crash Recovery Wizard configures.
    void TimeCrashSave_Timer();

    void txtComp_onkeypress();
    void txtComp_DisplayChanged();
    void txtComp_onmousemove();
    void ClosePrev_Click();

    // Toolbar1: a click dispatches on the button's key; a failure is passed over.
    void Toolbar1_ButtonClick(const QString& key);

    // The commands of the menus, keys and buttons, each under its menu item's name.
    // Those still in tessara_pending.cpp do nothing yet.
    void mnuPrev();
    void mnuPrevIE();
    void mnuPageSetup();
    void mnuPrint();
    void mnuFind();
    void mnuCopy();
    void mnuCut();
    void mnuPaste();
    void mnuDelete();
    void mnuUndo();
    void mnuRedo();
    void mnuBringFront();
    void mnuBringForward();
    void mnuBringAbovetext();
    void mnuSendBack();
    void mnuSendBackward();
    void mnuBelowtext();
    void mnuSelectAll();
    void mnuPreview();
    void mnuColourPicker();
    void mnuMetaGen();
    void mnuLink();
    void mnuRemLink();
    void mnuHTML();
    void mnuInsRectBox();
    void mnuPageTitle();
    void mnuRule();
    void mnuImage();
    void mnuHeading();
    void mnuBullets();
    void mnuNumbering();
    void mnuMorvane();
    void mnuInsForm();
    void mnuTextBox();
    void mnuPassword();
    void mnuTextArea();
    void mnuRadio();
    void mnuCheckbox();
    void mnuButton();
    void mnuSubmit();
    void mnuReset();
    void mnuList();
    void mnuInsFile();
    void mnuFieldset();
    void mnuHidden();
    void mnuBold();
    void mnuItalics();
    void mnuUnderline();
    void mnuFont();
    void mnuIndent();
    void mnuOutdent();
    void mnuAlignLeft();
    void mnuAlignCentre();
    void mnuAlignRight();
    void mnuHighlight();
    void mnuPageProps();
    void mnuRemFormat();
    void mnuVisTbl();
    void mnuInsTable();
    void mnuInsRow();
    void mnuInsCol();
    void mnuInsCell();
    void mnuDelRow();
    void mnuDelCol();
    void mnuDelCel();
    void mnuMerge();
    void mnuSplit();
    void mnuSnap();
    void mnuRestore();
    void mnuSpellCheck();
    void mnuShowDetails();
    void mnuRightClick();
    void mnuDisableIEToolbar();
    void mnuPrevTextSel();
    void mnuCrashRecover();
    void mnuText();
    void mnuMarquee();
    void mnuListLinks();
    void mnuInsLayer();
    void mnuFlash();
    void mnuStripHTML();
    void mnuTemplates();
    void mnuConvTemplate();
    void mnuImportTemplate();
    void mnuMoreTemplates();
    void mnuLayoutManager();
    void mnuStyleSheet();
    void mnuNavigator();
    void mnuFTPClient();
    void mnuFileViewer();
    void mnuJavaScriptCons();
    void mnuPlugIn();
    void mnuHTMLtutor();
    void mnuTips();
    void mnuVisitAuthor();
    void mnuAbout();

    void btnImage_Click();
    void btnFont_Click();

    // Runs one command of the page, passing over one that does not apply.
    void execOnPage(DhtmlCommand id);

    void titleupdate();

    struct Ui {
        explicit Ui(Pickers& pickers) : ComDlg(pickers) {}

        std::unique_ptr<PageEngine> txtComp;
        std::unique_ptr<PageEngine> tagbar;
        CommonDialog ComDlg;
        Timer Timer1{200};
        Timer TimeCrashSave{5000};
        StatusBar* StatusBar1 = nullptr;
        QToolButton* btnTools = nullptr;
        QToolButton* btnColourPicker = nullptr;
        QToolButton* btnSpell = nullptr;
        QToolButton* btnForm = nullptr;
        QToolButton* remFormatting = nullptr;
        QToolButton* btnHighlight = nullptr;
        QToolButton* btnBullets = nullptr;
        QToolButton* btnNumbering = nullptr;
        QToolButton* btnOutdent = nullptr;
        QToolButton* btnIndent = nullptr;
        QToolButton* btnTable = nullptr;
        QToolButton* btnRule = nullptr;
        QToolButton* btnImage = nullptr;
        QToolButton* btnFont = nullptr;
        QToolButton* btnLinks = nullptr;
        QToolButton* ClosePrev = nullptr;
        QToolBar* Toolbar1 = nullptr;
        QWidget* frmformatbar = nullptr;

        QAction* mnuFile = nullptr;
        QAction* mnuNew = nullptr;
        QAction* mnuOpen = nullptr;
        QAction* mnuSave = nullptr;
        QAction* mnuSaveAs = nullptr;
        QAction* mnuRecent = nullptr;
        std::array<QAction*, 5> recent{};
        QAction* mnuViewEditor = nullptr;
        QAction* mnuPrev = nullptr;
        QAction* mnuPrevIE = nullptr;
        QAction* mnuPageSetup = nullptr;
        QAction* mnuPrint = nullptr;
        QAction* mnuExit = nullptr;
        QAction* mnuEdit = nullptr;
        QAction* mnuFind = nullptr;
        QAction* mnuCopy = nullptr;
        QAction* mnuCut = nullptr;
        QAction* mnuPaste = nullptr;
        QAction* mnuDelete = nullptr;
        QAction* mnuUndo = nullptr;
        QAction* mnuRedo = nullptr;
        QAction* mnuSend = nullptr;
        QAction* mnuBringFront = nullptr;
        QAction* mnuBringForward = nullptr;
        QAction* mnuBringAbovetext = nullptr;
        QAction* mnuSendBack = nullptr;
        QAction* mnuSendBackward = nullptr;
        QAction* mnuBelowtext = nullptr;
        QAction* mnuSelectAll = nullptr;
        QAction* mnuView = nullptr;
        QAction* mnuTessara = nullptr;
        QAction* mnuEditor = nullptr;
        QAction* mnuPreview = nullptr;
        QAction* mnuColourPicker = nullptr;
        QAction* mnuMetaGen = nullptr;
        QAction* mnuInsert = nullptr;
        QAction* mnuLink = nullptr;
        QAction* mnuRemLink = nullptr;
        QAction* mnuHTML = nullptr;
        QAction* mnuInsRectBox = nullptr;
        QAction* mnuPageTitle = nullptr;
        QAction* mnuRule = nullptr;
        QAction* mnuImage = nullptr;
        QAction* mnuHeading = nullptr;
        QAction* mnuBullets = nullptr;
        QAction* mnuNumbering = nullptr;
        QAction* mnuForm = nullptr;
        QAction* mnuMorvane = nullptr;
        QAction* mnuInsForm = nullptr;
        QAction* mnuTextBox = nullptr;
        QAction* mnuPassword = nullptr;
        QAction* mnuTextArea = nullptr;
        QAction* mnuRadio = nullptr;
        QAction* mnuCheckbox = nullptr;
        QAction* mnuButton = nullptr;
        QAction* mnuSubmit = nullptr;
        QAction* mnuReset = nullptr;
        QAction* mnuList = nullptr;
        QAction* mnuInsFile = nullptr;
        QAction* mnuFieldset = nullptr;
        QAction* mnuHidden = nullptr;
        QAction* mnuFormat = nullptr;
        QAction* mnuBold = nullptr;
        QAction* mnuItalics = nullptr;
        QAction* mnuUnderline = nullptr;
        QAction* mnuFont = nullptr;
        QAction* mnuIndent = nullptr;
        QAction* mnuOutdent = nullptr;
        QAction* mnuAlign = nullptr;
        QAction* mnuAlignLeft = nullptr;
        QAction* mnuAlignCentre = nullptr;
        QAction* mnuAlignRight = nullptr;
        QAction* mnuHighlight = nullptr;
        QAction* mnuPageProps = nullptr;
        QAction* mnuRemFormat = nullptr;
        QAction* mnuTable = nullptr;
        QAction* mnuVisTbl = nullptr;
        QAction* mnuInsTable = nullptr;
        QAction* mnuInsRow = nullptr;
        QAction* mnuInsCol = nullptr;
        QAction* mnuInsCell = nullptr;
        QAction* mnuDelRow = nullptr;
        QAction* mnuDelCol = nullptr;
        QAction* mnuDelCel = nullptr;
        QAction* mnuMerge = nullptr;
        QAction* mnuSplit = nullptr;
        QAction* mnuoptions = nullptr;
        QAction* mnuSnap = nullptr;
        QAction* mnuRestore = nullptr;
        QAction* mnuSpellCheck = nullptr;
        QAction* mnuShowDetails = nullptr;
        QAction* mnuProtectCode = nullptr;
        QAction* mnuRightClick = nullptr;
        QAction* mnuDisableIEToolbar = nullptr;
        QAction* mnuPrevTextSel = nullptr;
        QAction* mnuEnableStartUp = nullptr;
        QAction* mnuShowStartUp = nullptr;
        QAction* mnuCrashRecover = nullptr;
        QAction* mnuStyle = nullptr;
        QAction* mnuText = nullptr;
        QAction* mnuMarquee = nullptr;
        QAction* mnuListLinks = nullptr;
        QAction* mnuStyleInsert = nullptr;
        QAction* mnuInsLayer = nullptr;
        QAction* mnuFlash = nullptr;
        QAction* mnuStripHTML = nullptr;
        QAction* mnuTools = nullptr;
        QAction* mnuTemplates = nullptr;
        QAction* mnuConvTemplate = nullptr;
        QAction* mnuImportTemplate = nullptr;
        QAction* mnuMoreTemplates = nullptr;
        QAction* mnuLayoutManager = nullptr;
        QAction* mnuStyleSheet = nullptr;
        QAction* mnuNavigator = nullptr;
        QAction* mnuFTPClient = nullptr;
        QAction* mnuFileViewer = nullptr;
        QAction* mnuJavaScriptCons = nullptr;
        QAction* mnuPlugIn = nullptr;
        QAction* mnuHelp = nullptr;
        QAction* mnuHTMLtutor = nullptr;
        QAction* mnuTips = nullptr;
        QAction* mnuVisitAuthor = nullptr;
        QAction* mnuAbout = nullptr;
    } ui;

private:
    void Form_Resize();
    void saveVisualFile();
    void pushRecentVisual();
    bool openChosenFile();

    QMainWindow* m_window;
};

} // namespace zt
