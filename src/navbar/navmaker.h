#pragma once

#include "navgen.h"

#include "platform/commondialog.h"
#include "platform/engine/pageengine.h"
#include "platform/form.h"
#include "platform/textcontrol.h"
#include "platform/updown.h"

#include <memory>

class QComboBox;
class QPushButton;

namespace zt {

class TextLineView;

// The Navigation Bar Creator's first step: the colours and borders of the bar and of
// its links in each state, a preview of the bar as a browser shows it, and Proceed
// to the links. The values live in the fields alone; nothing is kept between uses.
class NavMaker : public Form {
public:
    explicit NavMaker(FormRegistry& forms);
    ~NavMaker() override;

    // The window opens with the default bar showing.
    void load() override;

    // The style sheet with the sample bar, from the fields as they stand.
    QString buildCode() const;
    void btnPreview_Click();
    void btnProceed_Click();
    void btnHelp_Click();
    // A colour button: the picker's colour into its field, or nothing for black or a
    // Cancel before any pick, so black cannot be chosen here.
    void pickColour(TextControl& field);

    struct Ui {
        explicit Ui(Pickers& pickers) : ComDlg(pickers) {}

        // Basic Properties
        TextControl txtBasicColour;
        TextLineView* txtBasicColourView = nullptr;
        QPushButton* btnBasicColour = nullptr;
        TextControl txtBasicBorderColour;
        TextLineView* txtBasicBorderColourView = nullptr;
        QPushButton* btnBasicBorderColour = nullptr;
        TextControl txtBasicBGColour;
        TextLineView* txtBasicBGColourView = nullptr;
        QPushButton* btnBasicBGColour = nullptr;
        // Normal Link Properties
        QComboBox* cmbLinkBorderType = nullptr;
        TextControl txtLinkThickness;
        TextLineView* txtLinkThicknessView = nullptr;
        UpDown UDLink;
        TextControl txtLinkColour;
        TextLineView* txtLinkColourView = nullptr;
        QPushButton* btnLinkColour = nullptr;
        TextControl txtLColour;
        TextLineView* txtLColourView = nullptr;
        QPushButton* btnLColour = nullptr;
        TextControl txtBGColour;
        TextLineView* txtBGColourView = nullptr;
        QPushButton* btnBGColour = nullptr;
        // Active Link Properties
        QComboBox* cmbLinkABorderType = nullptr;
        TextControl txtALinkThickness;
        TextLineView* txtALinkThicknessView = nullptr;
        UpDown UDALink;
        TextControl txtALinkColour;
        TextLineView* txtALinkColourView = nullptr;
        QPushButton* btnALinkColour = nullptr;
        TextControl txtAColour;
        TextLineView* txtAColourView = nullptr;
        QPushButton* btnAColour = nullptr;
        TextControl txtABGColour;
        TextLineView* txtABGColourView = nullptr;
        QPushButton* btnABGColour = nullptr;
        // Hover Link Properties
        QComboBox* cmbLinkHBorderType = nullptr;
        TextControl txtHLinkThickness;
        TextLineView* txtHLinkThicknessView = nullptr;
        UpDown UDHLink;
        TextControl txtHLinkColour;
        TextLineView* txtHLinkColourView = nullptr;
        QPushButton* btnHLinkColour = nullptr;
        TextControl txtHColour;
        TextLineView* txtHColourView = nullptr;
        QPushButton* btnHColour = nullptr;
        TextControl txtHBGColour;
        TextLineView* txtHBGColourView = nullptr;
        QPushButton* btnHBGColour = nullptr;
        // Visited Link Properties
        QComboBox* cmbLinkVBorderType = nullptr;
        TextControl txtVLinkThickness;
        TextLineView* txtVLinkThicknessView = nullptr;
        UpDown UDVLink;
        TextControl txtVLinkColour;
        TextLineView* txtVLinkColourView = nullptr;
        QPushButton* btnVLinkColour = nullptr;
        TextControl txtVColour;
        TextLineView* txtVColourView = nullptr;
        QPushButton* btnVColour = nullptr;
        TextControl txtVBGColour;
        TextLineView* txtVBGColourView = nullptr;
        QPushButton* btnVBGColour = nullptr;

        // The preview: the code shown as a page, in browse mode so that it cannot be
        // edited.
        std::unique_ptr<PageEngine> Result;
        QPushButton* btnPreview = nullptr;
        QPushButton* btnProceed = nullptr;
        QPushButton* btnHelp = nullptr;
        CommonDialog ComDlg;
    } ui;
};

} // namespace zt
