#include "hyperlinks.h"

#include "linkgen.h"
#include "mail.h"
#include "target.h"

#include "platform/formregistry.h"
#include "platform/textlineview.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

namespace zt {

namespace {

const char* const kRelationshipGroups[] = {"grpRelationship", "grpFriendship", "grpProfessional",
                                           "grpGeographical", "grpFamily",     "grpRomantic"};

} // namespace

hyperlinks::hyperlinks(FormRegistry& forms)
    : ElementDialog(forms, {.name = "hyperlinks",
                            .caption = QStringLiteral("Hyperlinks : Zelvo"),
                            .shape = Dispatch::ThreeWay,
                            .console = ConsoleLanding::WholeText}) {
    build(ui.compOrEdit,
          {
              // control, caption, default, place, limits, warning
              {text("txtLink", ui.txtLink, ui.txtLinkView),
               "&Address / Location / URL / Bookmark:",
               "",
               Place::Line,
               {},
               QStringLiteral("The Link URL has not been mentioned")},
              {text("txtTextToDisp", ui.txtTextToDisp, ui.txtTextToDispView), "&Text To Display:"},
              {text("txtScreentip", ui.txtScreentip, ui.txtScreentipView), "&Screen Tip:"},
              {check("chkNoUnderline", ui.chkNoUnderline), "&No Underline", "", Place::Row},
              {button("btnTarget", ui.btnTarget), "Tar&get Frame...", "", Place::Row},
              {button("btnMail", ui.btnMail), "&E-Mail Link...", "", Place::Beside},
              {button("btnBookMarks", ui.btnBookMarks), "&Bookmarks >>", "", Place::Beside},
              {button("btnAdvanced", ui.btnAdvanced), "A&dvanced >>", "", Place::Beside},
              {list("listBookMarks", ui.listBookMarks, {}), "Bookmarks in this page:", "",
               Place::Line},
              {group("grpRelationship"), "Relationship", "", Place::Line},
              {check("anotherLoc", ui.anotherLoc), "The Link location is another address of mine",
               "", Place::InGroup},
              {group("grpFriendship"), "Friendship", "", Place::Line},
              {option("frndFrnd", ui.frndFrnd), "Friend", "", Place::InGroup},
              {option("frndAcq", ui.frndAcq), "Acquaintance", "", Place::InGroup},
              {option("frndContact", ui.frndContact), "Contact", "", Place::InGroup},
              {option("frndNone", ui.frndNone), "None", "1", Place::InGroup},
              {check("Met", ui.Met), "Met in person", "", Place::InGroup},
              {group("grpProfessional"), "Professional", "", Place::InGroup},
              {check("profCol", ui.profCol), "Colleague", "", Place::InGroup},
              {check("profCow", ui.profCow), "Co-worker", "", Place::InGroup},
              {group("grpGeographical"), "Geographical", "", Place::InGroup},
              {option("geoCoresident", ui.geoCoresident), "Co resident", "", Place::InGroup},
              {option("geoNeighbour", ui.geoNeighbour), "Neighbour", "", Place::InGroup},
              {option("geonone", ui.geonone), "None", "1", Place::InGroup},
              {group("grpFamily"), "Family", "", Place::Line},
              {option("famChild", ui.famChild), "Child", "", Place::InGroup},
              {option("famparent", ui.famparent), "Parent", "", Place::InGroup},
              {option("famSibling", ui.famSibling), "Sibling", "", Place::InGroup},
              {option("famSpouse", ui.famSpouse), "Spouse", "", Place::InGroup},
              {option("famKin", ui.famKin), "Kin", "", Place::InGroup},
              {option("famNone", ui.famNone), "None", "1", Place::InGroup},
              {group("grpRomantic"), "Romantic", "", Place::InGroup},
              {check("RomMuse", ui.RomMuse), "Muse", "", Place::InGroup},
              {check("RomCrush", ui.RomCrush), "Crush", "", Place::InGroup},
              {check("RomDate", ui.RomDate), "Date", "", Place::InGroup},
              {check("RomSweetheart", ui.RomSweetheart), "Sweetheart", "", Place::InGroup},
              {button("OKButton", ui.OKButton), "OK", "", Place::Accept},
              {button("CancelButton", ui.CancelButton), "Cancel", "", Place::Cancel},
          });
    // The bookmarks and the relationship start folded away; they add nothing the
    // dialog needs for a plain link.
    ui.txtTextToDispView->setMinimumWidth(300);
    ui.txtScreentipView->setMinimumWidth(300);
    for (QWidget* part : bookmarkList())
        part->hide();
    for (QWidget* group : relationshipGroups())
        group->hide();
    window()->adjustSize();
    QObject::connect(ui.listBookMarks, &QListWidget::itemClicked, ui.listBookMarks,
                     guarded([this](QListWidgetItem*) { listBookMarks_Click(); }));
    onClick(ui.btnTarget, [this] { btnTarget_Click(); });
    onClick(ui.btnMail, [this] { btnMail_Click(); });
    onClick(ui.btnBookMarks, [this] { btnBookMarks_Click(); });
    onClick(ui.btnAdvanced, [this] { btnAdvanced_Click(); });
    onClick(ui.anotherLoc, [this] { anotherLoc_Click(); });
}

hyperlinks::~hyperlinks() = default;

// Closed or done, it takes the target dialog along, and the target with it.
void hyperlinks::formUnload(bool&) {
    forms().unload<target>();
}

QList<QWidget*> hyperlinks::relationshipGroups() const {
    QList<QWidget*> groups;
    for (const char* name : kRelationshipGroups)
        groups << window()->findChild<QGroupBox*>(QLatin1String(name));
    return groups;
}

Relationship hyperlinks::relationship() const {
    Relationship r;
    r.anotherAddressOfMine = ui.anotherLoc->isChecked();
    r.friendship = ui.frndFrnd->isChecked()      ? Relationship::Friend
                   : ui.frndAcq->isChecked()     ? Relationship::Acquaintance
                   : ui.frndContact->isChecked() ? Relationship::Contact
                                                 : Relationship::NoFriendship;
    r.met = ui.Met->isChecked();
    r.colleague = ui.profCol->isChecked();
    r.coWorker = ui.profCow->isChecked();
    r.geography = ui.geoCoresident->isChecked()  ? Relationship::CoResident
                  : ui.geoNeighbour->isChecked() ? Relationship::Neighbour
                                                 : Relationship::NoGeography;
    const std::pair<QRadioButton*, Relationship::Family> families[] = {
        {ui.famChild, Relationship::Child},
        {ui.famparent, Relationship::Parent},
        {ui.famSibling, Relationship::Sibling},
        {ui.famSpouse, Relationship::Spouse},
        {ui.famKin, Relationship::Kin}};
    for (const auto& [option, family] : families) {
        if (option->isChecked()) {
            r.family = family;
            break;
        }
    }
    r.muse = ui.RomMuse->isChecked();
    r.crush = ui.RomCrush->isChecked();
    r.date = ui.RomDate->isChecked();
    r.sweetheart = ui.RomSweetheart->isChecked();
    return r;
}

// Reading the target's text loads that dialog if it is not, and then it is empty.
QString hyperlinks::fragment() {
    return hyperlinkTag({.rel = relationshipValue(relationship()),
                         .link = ui.txtLink.text(),
                         .screenTip = ui.txtScreentip.text(),
                         .noUnderline = ui.chkNoUnderline->isChecked(),
                         .target = forms().get<target>().ui.txtTarget.text(),
                         .text = ui.txtTextToDisp.text(),
                         .forConsole = ui.compOrEdit.text() == caller::kConsole});
}

void hyperlinks::listBookMarks_Click() {
    if (QListWidgetItem* row = ui.listBookMarks->currentItem())
        ui.txtLink.setText(u'#' + row->text());
}

void hyperlinks::btnTarget_Click() {
    forms().get<target>().show();
}

// The tip and the text move over to the mail dialog, which takes it from here.
void hyperlinks::btnMail_Click() {
    mail& other = forms().get<mail>();
    other.ui.txtScreentip.setText(ui.txtScreentip.text());
    other.ui.txtTextToDisp.setText(ui.txtTextToDisp.text());
    other.show();
    unload();
}

// The list with its caption.
QList<QWidget*> hyperlinks::bookmarkList() const {
    QList<QWidget*> parts{ui.listBookMarks};
    for (QLabel* label : window()->findChildren<QLabel*>()) {
        if (label->buddy() == ui.listBookMarks)
            parts << label;
    }
    return parts;
}

void hyperlinks::btnBookMarks_Click() {
    const bool show = ui.listBookMarks->isHidden();
    for (QWidget* part : bookmarkList())
        part->setVisible(show);
    window()->adjustSize();
}

void hyperlinks::btnAdvanced_Click() {
    const bool show = relationshipGroups().front()->isHidden();
    for (QWidget* group : relationshipGroups())
        group->setVisible(show);
    window()->adjustSize();
}

// Another address of the author's says all there is to say about the relationship.
void hyperlinks::anotherLoc_Click() {
    const bool enabled = !ui.anotherLoc->isChecked();
    for (QWidget* group : relationshipGroups().mid(1))
        group->setEnabled(enabled);
}

} // namespace zt
