#include "navmaker.h"

#include "navlisturls.h"

#include "builders/colours.h"
#include "shell/optfunctions.h"

#include "platform/dialogparts.h"
#include "platform/formregistry.h"
#include "platform/services.h"
#include "platform/textlineview.h"
#include "platform/vbstrings.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

#include <vector>

namespace zt {

namespace {

const QStringList kBorderTypes{"solid", "dotted", "dashed", "double", "groove",
                               "ridge", "inset",  "outset", "none"};

// The rows of the dialog's table, and which field each colour button serves.
struct Rows {
    Controls controls;
    std::vector<std::pair<QPushButton**, TextControl*>> pickers;

    void colour(const char* name, TextControl& field, TextLineView*& view, const char* buttonName,
                QPushButton*& pick, const char* caption, const char* value = "") {
        controls.push_back({text(name, field, view), caption, value, Place::InGroup});
        controls.push_back({button(buttonName, pick), "...", "", Place::Beside});
        pickers.emplace_back(&pick, &field);
    }

    // A link state's border type, and its thickness with the UpDown beside it.
    void border(const char* typeName, QComboBox*& type, const char* typeValue,
                const char* thicknessName, TextControl& thickness, TextLineView*& view,
                const char* thicknessValue, Field upDown) {
        controls.push_back(
            {combo(typeName, type, kBorderTypes), "Border Type:", typeValue, Place::InGroup});
        controls.push_back(
            {text(thicknessName, thickness, view), "Thickness:", thicknessValue, Place::InGroup});
        controls.push_back({std::move(upDown), "", "", Place::Beside});
    }
};

} // namespace

NavMaker::NavMaker(FormRegistry& forms) : Form(forms), ui(*forms.services().pickers) {
    auto* window =
        new DialogWindow(QStringLiteral("NavMaker"), QStringLiteral("Navgiation Bar Creator"));
    setWindow(window);
    ui.Result = services().makeEngine(window);

    // The arrows beside a thickness field, after its unit.
    const auto arrowsFor = [](const char* name, UpDown& arrows, TextControl& thickness) {
        return upDown(
            name, arrows, [&thickness](int step) { stepNumber(thickness, step); },
            QStringLiteral("px"));
    };

    Rows rows;
    rows.controls = {
        {group("Frame6"), "", "", Place::Row},
        {widget("lblFrame6",
                [](QWidget* parent) {
                    auto* text = new QLabel(
                        QStringLiteral("Navigation Bar Creator allows you to create navigation "
                                       "bars for your web pages using Cascaded Style Sheets. "
                                       "Select the options &  click on preview after every "
                                       "change to see effect"),
                        parent);
                    text->setWordWrap(true);
                    text->setTextFormat(Qt::PlainText);
                    text->setMinimumWidth(360);
                    return text;
                }),
         "", "", Place::InGroup},
        {group("frmBasic"), "Basic Properties", "", Place::InGroup},
    };
    rows.colour("txtBasicColour", ui.txtBasicColour, ui.txtBasicColourView, "btnBasicColour",
                ui.btnBasicColour, "Colour:");
    rows.colour("txtBasicBorderColour", ui.txtBasicBorderColour, ui.txtBasicBorderColourView,
                "btnBasicBorderColour", ui.btnBasicBorderColour, "Border Colour:");
    rows.colour("txtBasicBGColour", ui.txtBasicBGColour, ui.txtBasicBGColourView,
                "btnBasicBGColour", ui.btnBasicBGColour, "Background Colour:", "#F8F5E9");

    rows.controls.push_back({group("frmLink"), "Normal Link Properties", "", Place::Row});
    rows.border("cmbLinkBorderType", ui.cmbLinkBorderType, "outset", "txtLinkThickness",
                ui.txtLinkThickness, ui.txtLinkThicknessView, "2",
                arrowsFor("UDLink", ui.UDLink, ui.txtLinkThickness));
    rows.colour("txtLinkColour", ui.txtLinkColour, ui.txtLinkColourView, "btnLinkColour",
                ui.btnLinkColour, "Border Colour:");
    rows.colour("txtLColour", ui.txtLColour, ui.txtLColourView, "btnLColour", ui.btnLColour,
                "Colour:");
    rows.colour("txtBGColour", ui.txtBGColour, ui.txtBGColourView, "btnBGColour", ui.btnBGColour,
                "BG Colour:");

    rows.controls.push_back({group("frmALink"), "Active Link Properties", "", Place::InGroup});
    rows.border("cmbLinkABorderType", ui.cmbLinkABorderType, "solid", "txtALinkThickness",
                ui.txtALinkThickness, ui.txtALinkThicknessView, "1",
                arrowsFor("UDALink", ui.UDALink, ui.txtALinkThickness));
    rows.colour("txtALinkColour", ui.txtALinkColour, ui.txtALinkColourView, "btnALinkColour",
                ui.btnALinkColour, "Border Colour:");
    rows.colour("txtAColour", ui.txtAColour, ui.txtAColourView, "btnAColour", ui.btnAColour,
                "Colour:");
    rows.colour("txtABGColour", ui.txtABGColour, ui.txtABGColourView, "btnABGColour",
                ui.btnABGColour, "BG Colour:");

    rows.controls.push_back({group("frmHLink"), "Hover Link Properties", "", Place::InGroup});
    rows.border("cmbLinkHBorderType", ui.cmbLinkHBorderType, "inset", "txtHLinkThickness",
                ui.txtHLinkThickness, ui.txtHLinkThicknessView, "1",
                arrowsFor("UDHLink", ui.UDHLink, ui.txtHLinkThickness));
    rows.colour("txtHLinkColour", ui.txtHLinkColour, ui.txtHLinkColourView, "btnHLinkColour",
                ui.btnHLinkColour, "Border Colour:");
    rows.colour("txtHColour", ui.txtHColour, ui.txtHColourView, "btnHColour", ui.btnHColour,
                "Colour:");
    rows.colour("txtHBGColour", ui.txtHBGColour, ui.txtHBGColourView, "btnHBGColour",
                ui.btnHBGColour, "BG Colour:", "#FDFCD7");

    rows.controls.push_back({group("frmVLink"), "Visited Link Properties", "", Place::InGroup});
    rows.border("cmbLinkVBorderType", ui.cmbLinkVBorderType, "solid", "txtVLinkThickness",
                ui.txtVLinkThickness, ui.txtVLinkThicknessView, "1",
                arrowsFor("UDVLink", ui.UDVLink, ui.txtVLinkThickness));
    rows.colour("txtVLinkColour", ui.txtVLinkColour, ui.txtVLinkColourView, "btnVLinkColour",
                ui.btnVLinkColour, "Border Colour:");
    rows.colour("txtVColour", ui.txtVColour, ui.txtVColourView, "btnVColour", ui.btnVColour,
                "Colour:");
    rows.colour("txtVBGColour", ui.txtVBGColour, ui.txtVBGColourView, "btnVBGColour",
                ui.btnVBGColour, "BG Colour:");

    rows.controls.push_back({widget("Result",
                                    [this](QWidget* parent) {
                                        QWidget* view = ui.Result->widget();
                                        if (!view)
                                            view = new QWidget(parent);
                                        view->setFixedHeight(130);
                                        return view;
                                    }),
                             "", "", Place::Line});
    rows.controls.push_back({button("btnHelp", ui.btnHelp), "&Help", "", Place::Help});
    rows.controls.push_back({button("btnPreview", ui.btnPreview), "&Preview", "", Place::Accept});
    rows.controls.push_back(
        {button("btnProceed", ui.btnProceed), "P&roceed >>", "", Place::Accept});
    layOut(window, rows.controls);
    // Enter previews, as the user is told to do after every change.
    ui.btnPreview->setDefault(true);

    // The basic fields stand at their labels, as in the groups below, not at the
    // far side of the wide group.
    static_cast<QGridLayout*>(window->findChild<QGroupBox*>("frmBasic")->layout())
        ->setColumnStretch(3, 1);
    // The fields are narrow: they hold a colour, a number or a border type.
    for (auto* view : window->findChildren<TextLineView*>())
        view->setFixedWidth(80);
    for (auto* type : window->findChildren<QComboBox*>())
        type->setFixedWidth(80);
    for (auto& [pick, field] : rows.pickers) {
        (*pick)->setFixedWidth(28);
        (*pick)->setAutoDefault(false);
        onClick(*pick, [this, field = field] { pickColour(*field); });
    }
    onClick(ui.btnPreview, [this] { btnPreview_Click(); });
    onClick(ui.btnProceed, [this] { btnProceed_Click(); });
    onClick(ui.btnHelp, [this] { btnHelp_Click(); });
}

NavMaker::~NavMaker() = default;

void NavMaker::load() {
    btnPreview_Click();
    btnPreview_Click();
}

QString NavMaker::buildCode() const {
    return navCode({.basicColour = ui.txtBasicColour.text(),
                    .basicBorderColour = ui.txtBasicBorderColour.text(),
                    .basicBGColour = ui.txtBasicBGColour.text(),
                    .linkBorderType = ui.cmbLinkBorderType->currentText(),
                    .linkThickness = ui.txtLinkThickness.text(),
                    .linkColour = ui.txtLinkColour.text(),
                    .lColour = ui.txtLColour.text(),
                    .bgColour = ui.txtBGColour.text(),
                    .linkABorderType = ui.cmbLinkABorderType->currentText(),
                    .aLinkThickness = ui.txtALinkThickness.text(),
                    .aLinkColour = ui.txtALinkColour.text(),
                    .aColour = ui.txtAColour.text(),
                    .abgColour = ui.txtABGColour.text(),
                    .linkHBorderType = ui.cmbLinkHBorderType->currentText(),
                    .hLinkThickness = ui.txtHLinkThickness.text(),
                    .hLinkColour = ui.txtHLinkColour.text(),
                    .hColour = ui.txtHColour.text(),
                    .hbgColour = ui.txtHBGColour.text(),
                    .linkVBorderType = ui.cmbLinkVBorderType->currentText(),
                    .vLinkThickness = ui.txtVLinkThickness.text(),
                    .vLinkColour = ui.txtVLinkColour.text(),
                    .vColour = ui.txtVColour.text(),
                    .vbgColour = ui.txtVBGColour.text()});
}

void NavMaker::btnPreview_Click() {
    ui.Result->setDocumentHTML(buildCode());
    ui.Result->setBrowseMode(true);
}

// The code handed on still holds the sample bar; the next step cuts it off.
void NavMaker::btnProceed_Click() {
    NavListURLs& links = forms().get<NavListURLs>();
    links.ui.txtCode.setText(buildCode());
    links.show();
    unload();
}

void NavMaker::btnHelp_Click() {
    showHelpPage(forms(), QStringLiteral("navmaker.zhp"));
}

void NavMaker::pickColour(TextControl& field) {
    ui.ComDlg.showColor();
    field.setText(ui.ComDlg.color == 0 ? QString() : hexColour(ui.ComDlg.color));
}

} // namespace zt
