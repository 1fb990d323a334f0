#pragma once

#include "platform/commondialog.h"
#include "platform/form.h"
#include "platform/textcontrol.h"
#include "platform/textfiles.h"

#include <QString>

#include <array>

class QAction;
class QListWidget;
class QMainWindow;
class QPushButton;
class QToolBar;
class QToolButton;

namespace zt {
class Pickers;
}

namespace zt {

class StatusBar;
class TextEditView;
class TextLineView;

// The source view: the document as plain text in `area`, with the fields of the
// open document that both views share (the path in Tag, the dirty mark in star,
// the hand-over name in comdlg).
class Zelvo : public Form {
public:
    explicit Zelvo(FormRegistry& forms);
    ~Zelvo() override;

    void load() override;
    void formUnload(bool& cancel) override;

    // File commands.
    void mnuew();
    void mnuOpen();
    void mnuSave();
    void mnuSaveAs();
    void mnuInsFile();
    void recent_Click(int index);
    void mnuExit();

    // The switch to the visual view, and its other entries.
    void mnuTessara();
    void mnuViewTessara();

    // The Edit menu opening: Find Next is there only after a search.
    void mnuEdit();
    // Toolbar1: a click dispatches on the button's key.
    void Toolbar1_ButtonClick(const QString& key);
    // The toolbar key "Delete": the selection goes.
    void deleteKey();

    // Commands whose work comes with later parts of the program: each is the
    // named entry point of its menu item or key and does nothing yet.
    void mnuPreview();
    void mnuPageSetup();
    void mnuPrint();
    void mnuFind();
    void mnuFindNext();
    void mnuCopy();
    void mnuCut();
    void mnuPaste();
    void mnuLcase();
    void mnuUcase();
    void mnuTitleCase();
    void mnuIcase();
    void mnuSelectAll();
    void mnuViewPreview();
    void mnuColourPicker();
    void mnuMetaGen();
    void mnuEditProperties();
    void mnubold();
    void mnuitalics();
    void mnuUnderline();
    void mnuFont();
    void mnuPreformat();
    void mnuSuperscript();
    void mnuSubscript();
    void mnuALeft();
    void mnuACenter();
    void mnuARight();
    void mnuAJustify();
    void mnuIndent();
    void mnuOutdent();
    void mnuTabify();
    void mnuUntabify();
    void mnuHighlight();
    void mnuAbbreviation();
    void mnuBig();
    void mnuCode();
    void mnuEmphasis();
    void mnuKeyboard();
    void mnuQuote();
    void mnuSmall();
    void mnuStrong();
    void mnuHR();
    void mnuImage();
    void mnuRollImage();
    void mnuPageTitle();
    void mnuBullets();
    void mnuNumbering();
    void mnuMorvane();
    void mnuiForm();
    void mnuTextBox();
    void mnuPassword();
    void mnuTextArea();
    void mnuButton();
    void mnuSubmit();
    void mnuReset();
    void mnuRadio();
    void mnuCheckbox();
    void mnuDropDown();
    void mnuFileUpload();
    void mnuFieldset();
    void mnuHidden();
    void mnuHyperlink();
    void mnuLinkMail();
    void mnuBookmarks();
    void mnuVisTbl();
    void mnuinstable();
    void mnuinsrowcol();
    void mnuHeading();
    void mnuParagraph();
    void mnuLineBreak();
    void mnuWordBreak();
    void mnuNoBreak();
    void mnuComment();
    void mnuRectangularBox();
    void mnusmartsel();
    void mnuSpell();
    void mnuAutoRecog();
    void mnuAutoDelete();
    void mnuFindEndTag();
    void mnuShowTempClip();
    void mnuCopyToTemp();
    void mnuRestore();
    void mnuPreventRightClick();
    void mnuDisImgTbar();
    void mnuProtectText();
    void mnuCrashWizard();
    void mnuText();
    void mnuMarquee();
    void mnuListLinks();
    void mnuInsLayer();
    void mnuFlash();
    void mnuMakeDefault();
    void mnuBookmarkPage();
    void mnuChangePointer();
    void mnuTemplates();
    void mnuCreateTemplate();
    void mnuImportTemplate();
    void mnuMoreTemplates();
    void mnuLayoutManager();
    void mnuStyleSheet();
    void mnuNavigator();
    void mnuFTPClient();
    void mnuPlugIn();
    void mnuHTMLtutorial();
    void mnuTipOfDay();
    void mnuAuthorOnline();
    void mnuAbout();

    void showFindMe();

    void titleupdate();
    void updateLineCount();
    void area_Change();
    void autoTagRecognition();
    // The popups of the table and form menus at the pointer, as their format bar
    // buttons show them.
    void tableMenuAtPointer();
    void formMenuAtPointer();

    // The tag list beside the text, and the quick reference bar above it.
    void lstAllTags_Click();
    void lstAllTags_DblClick();
    void txtSearchTag_Change();
    void txtSearchTag_GotFocus();
    void txtSearchTag_LostFocus();
    void insertCatalogueTag();
    void insertReferenceLine();
    void btnQBHtml_Click();
    void btnQBCss_Click();
    void btnQBForms_Click();
    void btnQBTables_Click();
    // Fills the tag list from a library file, one line of the file a line of the list;
    // a missing file, or one above 32767 bytes, leaves the list and says so.
    void loadTagList(const QString& path);

    // The document's path; empty means never saved.
    QString Tag;
    // How the document's file was written on disk; its saves write the same way.
    textfiles::Encoding encoding;

    struct Ui {
        explicit Ui(Pickers& pickers) : comdlg(pickers) {}

        TextControl area;
        TextEditView* areaView = nullptr;
        TextControl star;
        TextControl txtSearch;
        TextControl area1;
        TextControl txtSearchTag;
        TextLineView* txtSearchTagView = nullptr;
        QListWidget* lstAllTags = nullptr;
        QWidget* tagPanel = nullptr;
        QPushButton* btnQBHtml = nullptr;
        QPushButton* btnQBCss = nullptr;
        QPushButton* btnQBForms = nullptr;
        QPushButton* btnQBTables = nullptr;
        CommonDialog comdlg;
        StatusBar* StatusBar1 = nullptr;
        QToolBar* Toolbar1 = nullptr;
        QWidget* frmformatbar = nullptr;
        QToolButton* btnTools = nullptr;
        QToolButton* btnColourPicker = nullptr;
        QToolButton* btnSpell = nullptr;
        QToolButton* btnForm = nullptr;
        QToolButton* btnTable = nullptr;
        QToolButton* btnRule = nullptr;
        QToolButton* btnImage = nullptr;
        QToolButton* btnHighlight = nullptr;
        QToolButton* btnFont = nullptr;
        QToolButton* btnLinks = nullptr;
        QToolButton* btnBullets = nullptr;
        QToolButton* btnNumbering = nullptr;
        QToolButton* btnIndent = nullptr;
        QToolButton* btnOutdent = nullptr;
        QToolButton* btnShowTempClip = nullptr;
        QToolButton* btnCopyTempClip = nullptr;

        QAction* mnuFile = nullptr;
        QAction* mnuew = nullptr;
        QAction* mnuOpen = nullptr;
        QAction* mnuSave = nullptr;
        QAction* mnuSaveAs = nullptr;
        QAction* mnuRecent = nullptr;
        std::array<QAction*, 5> recent{};
        QAction* mnuTessara = nullptr;
        QAction* mnuPreview = nullptr;
        QAction* mnuInsFile = nullptr;
        QAction* mnuPageSetup = nullptr;
        QAction* mnuPrint = nullptr;
        QAction* mnuExit = nullptr;
        QAction* mnuEdit = nullptr;
        QAction* mnuFind = nullptr;
        QAction* mnuFindNext = nullptr;
        QAction* mnuCopy = nullptr;
        QAction* mnuCut = nullptr;
        QAction* mnuPaste = nullptr;
        QAction* mnuLcase = nullptr;
        QAction* mnuUcase = nullptr;
        QAction* mnuTitleCase = nullptr;
        QAction* mnuIcase = nullptr;
        QAction* mnuSelectAll = nullptr;
        QAction* mnuView = nullptr;
        QAction* mnuViewTessara = nullptr;
        QAction* mnuEditor = nullptr;
        QAction* mnuViewPreview = nullptr;
        QAction* mnuColourPicker = nullptr;
        QAction* mnuMetaGen = nullptr;
        QAction* mnuEditProperties = nullptr;
        QAction* mnuformat = nullptr;
        QAction* mnubold = nullptr;
        QAction* mnuitalics = nullptr;
        QAction* mnuUnderline = nullptr;
        QAction* mnuFont = nullptr;
        QAction* mnuPreformat = nullptr;
        QAction* mnuSuperscript = nullptr;
        QAction* mnuSubscript = nullptr;
        QAction* mnuAlign = nullptr;
        QAction* mnuALeft = nullptr;
        QAction* mnuACenter = nullptr;
        QAction* mnuARight = nullptr;
        QAction* mnuAJustify = nullptr;
        QAction* mnuIndent = nullptr;
        QAction* mnuOutdent = nullptr;
        QAction* mnuTabify = nullptr;
        QAction* mnuUntabify = nullptr;
        QAction* mnuHighlight = nullptr;
        QAction* mnuOthers = nullptr;
        QAction* mnuAbbreviation = nullptr;
        QAction* mnuBig = nullptr;
        QAction* mnuCode = nullptr;
        QAction* mnuEmphasis = nullptr;
        QAction* mnuKeyboard = nullptr;
        QAction* mnuQuote = nullptr;
        QAction* mnuSmall = nullptr;
        QAction* mnuStrong = nullptr;
        QAction* mnuInsert = nullptr;
        QAction* mnuHR = nullptr;
        QAction* mnuImage = nullptr;
        QAction* mnuRollImage = nullptr;
        QAction* mnuPageTitle = nullptr;
        QAction* mnuBullets = nullptr;
        QAction* mnuNumbering = nullptr;
        QAction* mnuForm = nullptr;
        QAction* mnuMorvane = nullptr;
        QAction* mnuiForm = nullptr;
        QAction* mnuTextBox = nullptr;
        QAction* mnuPassword = nullptr;
        QAction* mnuTextArea = nullptr;
        QAction* mnuButton = nullptr;
        QAction* mnuSubmit = nullptr;
        QAction* mnuReset = nullptr;
        QAction* mnuRadio = nullptr;
        QAction* mnuCheckbox = nullptr;
        QAction* mnuDropDown = nullptr;
        QAction* mnuFileUpload = nullptr;
        QAction* mnuFieldset = nullptr;
        QAction* mnuHidden = nullptr;
        QAction* mnuHyperlink = nullptr;
        QAction* mnuLinkMail = nullptr;
        QAction* mnuBookmarks = nullptr;
        QAction* mnutable = nullptr;
        QAction* mnuVisTbl = nullptr;
        QAction* mnuinstable = nullptr;
        QAction* mnuinsrowcol = nullptr;
        QAction* mnuHeading = nullptr;
        QAction* mnuParagraph = nullptr;
        QAction* mnuBreak = nullptr;
        QAction* mnuLineBreak = nullptr;
        QAction* mnuWordBreak = nullptr;
        QAction* mnuNoBreak = nullptr;
        QAction* mnuComment = nullptr;
        QAction* mnuRectangularBox = nullptr;
        QAction* mnuOptions = nullptr;
        QAction* mnusmartsel = nullptr;
        QAction* mnuSpell = nullptr;
        QAction* mnuAutoRecog = nullptr;
        QAction* mnuAutoDelete = nullptr;
        QAction* mnuFindEndTag = nullptr;
        QAction* mnuTempClip = nullptr;
        QAction* mnuShowTempClip = nullptr;
        QAction* mnuCopyToTemp = nullptr;
        QAction* mnuRestore = nullptr;
        QAction* mnuProtect = nullptr;
        QAction* mnuPreventRightClick = nullptr;
        QAction* mnuDisImgTbar = nullptr;
        QAction* mnuProtectText = nullptr;
        QAction* mnuCrashWizard = nullptr;
        QAction* mnuStyle = nullptr;
        QAction* mnuText = nullptr;
        QAction* mnuMarquee = nullptr;
        QAction* mnuListLinks = nullptr;
        QAction* mnuInsertStyle = nullptr;
        QAction* mnuInsLayer = nullptr;
        QAction* mnuFlash = nullptr;
        QAction* mnuMakeDefault = nullptr;
        QAction* mnuBookmarkPage = nullptr;
        QAction* mnuChangePointer = nullptr;
        QAction* mnuTools = nullptr;
        QAction* mnuTemplates = nullptr;
        QAction* mnuCreateTemplate = nullptr;
        QAction* mnuImportTemplate = nullptr;
        QAction* mnuMoreTemplates = nullptr;
        QAction* mnuLayoutManager = nullptr;
        QAction* mnuStyleSheet = nullptr;
        QAction* mnuNavigator = nullptr;
        QAction* mnuFTPClient = nullptr;
        QAction* mnuPlugIn = nullptr;
        QAction* mnuHelp = nullptr;
        QAction* mnuHTMLtutorial = nullptr;
        QAction* mnuTipOfDay = nullptr;
        QAction* mnuAuthorOnline = nullptr;
        QAction* mnuAbout = nullptr;
    } ui;

    const QString& blankPage() const { return m_blankPage; }

private:
    void Form_Resize();
    void buildTagList(QWidget* central);
    void useLibrary(const QString& file, QPushButton* chosen, QPushButton* other);
    void fillTagList(const QStringList& lines);
    // The selected line of the tag list; empty when none is.
    QString selectedTagLine() const;
    void loadSourceFile();
    void saveSourceFile();
    void pushRecentSource();
    void setUpFileDialog(const QString& defaultExt);

    QMainWindow* m_window;
    QString m_blankPage;
};

} // namespace zt
