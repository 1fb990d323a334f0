#pragma once

#include "platform/form.h"
#include "platform/timer.h"

#include <QtGlobal>

class QLabel;
class QProgressBar;

namespace zt {

// The first window of the program. Ten ticks of its timer step a progress bar
// through fixed texts, bring up the visual view half-way, and at the end offer the
// start-up assistant unless the user has turned it off.
class frmSplash : public Form {
public:
    explicit frmSplash(FormRegistry& forms);
    ~frmSplash() override;

    void load() override;

    void Timer_Progress_Timer();

    struct Ui {
        QLabel* lblTitle = nullptr;
        QProgressBar* ProgressBar = nullptr;
        QLabel* lblStatus = nullptr;
        Timer Timer_Progress{417};
    } ui;

private:
    void tick(int value);
    void showTessara();

    // The tick about to run; a 16-bit counter, as the program has always kept it.
    qint16 m_tick = 0;
};

} // namespace zt
