#pragma once

#include <QString>

namespace zt {

class Pickers;

// A form's file and colour dialog control. Its properties stay between uses, as
// the program relies on: FileName is the hand-over of the last dialog, Color the
// last colour, CancelError once set stays set.
class CommonDialog {
public:
    explicit CommonDialog(Pickers& pickers) : m_pickers(pickers) {}

    QString fileName;
    QString filter;
    QString defaultExt;
    QString dialogTitle;
    bool cancelError = false;
    quint32 color = 0; // 0x00BBGGRR

    // Each Show asks the desktop's picker. On Cancel the properties keep their
    // values, and with cancelError set the call fails with 32755 instead.
    void showOpen();
    void showSave();
    void showColor();
    void showPrinter();

private:
    void cancelled() const;

    Pickers& m_pickers;
};

} // namespace zt
