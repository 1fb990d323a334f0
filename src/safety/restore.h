#pragma once

#include "platform/form.h"
#include "platform/textcontrol.h"

#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace zt {

class FileListBox;
class TextEditView;
class TextLineView;

// Restore points: five slots that hold a copy of the document for as long as the
// window stays loaded (Close only hides it), and named points kept as rich text
// files in the crash folder, which outlast the run.
class restore : public Form {
public:
    explicit restore(FormRegistry& forms);
    ~restore() override;

    void load() override;

    // Stores the display into the slot that the combo box names.
    void btnCreate_Click();
    // Shows slot n (1 to 5) in the display.
    void btnRestore_Click(int n);
    void btnSet_Click();
    void btnLoad_Click();
    void btnRemove_Click();
    // Asks, then writes the display into both views.
    void OKButton_Click();
    void CancelButton_Click();
    void btnHelp_Click();

    struct Ui {
        TextControl txtRestore;
        TextEditView* txtRestoreView = nullptr;
        // txtRestore1 to txtRestore5, never shown: only their text matters.
        std::array<TextControl, 5> txtRestoreSlot;
        QComboBox* cmbRestore = nullptr;
        std::array<QPushButton*, 5> btnRestore{};
        std::array<QCheckBox*, 5> chkStatus{};
        QLabel* lblTitle = nullptr;
        FileListBox* File1 = nullptr;
        TextControl txtPRestoreName;
        TextLineView* txtPRestoreNameView = nullptr;
        QPushButton* btnCreate = nullptr;
        QPushButton* btnSet = nullptr;
        QPushButton* btnLoad = nullptr;
        QPushButton* btnRemove = nullptr;
        QPushButton* OKButton = nullptr;
        QPushButton* CancelButton = nullptr;
        QPushButton* btnHelp = nullptr;
    } ui;

private:
    // The named point's file: the crash folder and the name as given.
    QString pointPath(const QString& fileName) const;
    // A failed Load or Remove: the window steps aside for the box and comes back.
    void sayFailed(const QString& text);
};

} // namespace zt
