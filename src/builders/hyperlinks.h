#pragma once

#include "elementdialog.h"

#include "platform/textcontrol.h"

class QCheckBox;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace zt {

struct Relationship;
class TextLineView;

// Hyperlinks: a link with its address, text, screen tip, an optional style without
// the underline, a frame target from the target dialog and the relationship of
// the linked page to the author. Opened by the source view, the visual view and
// the console, and delivered to each.
class hyperlinks : public ElementDialog {
public:
    explicit hyperlinks(FormRegistry& forms);
    ~hyperlinks() override;

    void formUnload(bool& cancel) override;

    void listBookMarks_Click();
    void btnTarget_Click();
    void btnMail_Click();
    void btnBookMarks_Click();
    void btnAdvanced_Click();
    void anotherLoc_Click();

    struct Ui {
        TextControl compOrEdit;
        TextControl txtLink;
        TextLineView* txtLinkView = nullptr;
        TextControl txtTextToDisp;
        TextLineView* txtTextToDispView = nullptr;
        TextControl txtScreentip;
        TextLineView* txtScreentipView = nullptr;
        QCheckBox* chkNoUnderline = nullptr;
        QListWidget* listBookMarks = nullptr;
        QPushButton* btnTarget = nullptr;
        QPushButton* btnMail = nullptr;
        QPushButton* btnBookMarks = nullptr;
        QPushButton* btnAdvanced = nullptr;
        QCheckBox* anotherLoc = nullptr;
        QRadioButton* frndFrnd = nullptr;
        QRadioButton* frndAcq = nullptr;
        QRadioButton* frndContact = nullptr;
        QRadioButton* frndNone = nullptr;
        QCheckBox* Met = nullptr;
        QCheckBox* profCol = nullptr;
        QCheckBox* profCow = nullptr;
        QRadioButton* geoCoresident = nullptr;
        QRadioButton* geoNeighbour = nullptr;
        QRadioButton* geonone = nullptr;
        QRadioButton* famChild = nullptr;
        QRadioButton* famparent = nullptr;
        QRadioButton* famSibling = nullptr;
        QRadioButton* famSpouse = nullptr;
        QRadioButton* famKin = nullptr;
        QRadioButton* famNone = nullptr;
        QCheckBox* RomMuse = nullptr;
        QCheckBox* RomCrush = nullptr;
        QCheckBox* RomDate = nullptr;
        QCheckBox* RomSweetheart = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
    } ui;

protected:
    QString fragment() override;

private:
    Relationship relationship() const;
    // The group boxes of the relationship, which Advanced shows and hides.
    QList<QWidget*> relationshipGroups() const;
    QList<QWidget*> bookmarkList() const;
};

} // namespace zt
