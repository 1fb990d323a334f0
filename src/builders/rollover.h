#pragma once

#include "elementdialog.h"

#include "platform/commondialog.h"
#include "platform/textcontrol.h"

class QPushButton;

namespace zt {

class ImagePreview;
class Pickers;
class TextLineView;

// Insert Rollover Images: a link whose picture changes while the mouse is over it.
// It rewrites the whole page of the source view around the link, with the script
// that swaps the pictures, so the page is meant to be selected whole.
class rollover : public ElementDialog {
public:
    explicit rollover(FormRegistry& forms);
    ~rollover() override;

    // A browse button: a file chosen goes into its field.
    void browse(TextControl& field);

    struct Ui {
        explicit Ui(Pickers& pickers) : comdlg(pickers) {}

        TextControl txtName;
        TextLineView* txtNameView = nullptr;
        TextControl txtFirstImage;
        TextLineView* txtFirstImageView = nullptr;
        QPushButton* btnBrowseFirst = nullptr;
        TextControl txtSecondImage;
        TextLineView* txtSecondImageView = nullptr;
        QPushButton* btnBrowseSecond = nullptr;
        TextControl txtLink;
        TextLineView* txtLinkView = nullptr;
        ImagePreview* imgFirst = nullptr;
        ImagePreview* imgSecond = nullptr;
        QPushButton* insert = nullptr;
        QPushButton* CancelButton = nullptr;
        CommonDialog comdlg;
    } ui;

protected:
    // The page of the source view, rewritten.
    QString fragment() override;

private:
    QWidget* makePreviews(QWidget* parent);
};

} // namespace zt
