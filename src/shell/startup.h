#pragma once

#include "platform/form.h"

#include <QRandomGenerator>
#include <QStringList>

class QCheckBox;
class QLabel;
class QListWidget;
class QPushButton;

namespace zt {

// The start-up assistant: a tip, the recent files, and the ways to begin a
// session. It comes up after the splash unless the user turned it off through the
// Options menu of the visual view.
class StartUp : public Form {
public:
    explicit StartUp(FormRegistry& forms);
    ~StartUp() override;

    void load() override;

    void btnBlank_Click();
    void btnOpenExist_Click();
    void btnTemplates_Click();
    void btnCrash_Click();
    void btnHTMLTutor_Click();
    void btnStartUpHelp_Click();
    void cmdNextTip_Click();
    void listRecent_DblClick();
    void listRecent_MouseMove();
    void chkStartup_Click();

    // This form's own copy: it writes the visual view's caption from the file
    // dialog's name rather than from the document's path.
    void titleupdate();

    struct Ui {
        QLabel* lblTipText = nullptr;
        QPushButton* cmdNextTip = nullptr;
        QListWidget* listRecent = nullptr;
        QPushButton* btnBlank = nullptr;
        QPushButton* btnOpenExist = nullptr;
        QPushButton* btnTemplates = nullptr;
        QPushButton* btnCrash = nullptr;
        QPushButton* btnHTMLTutor = nullptr;
        QPushButton* btnStartUpHelp = nullptr;
        QCheckBox* chkStartup = nullptr;
    } ui;

private:
    bool LoadTips(const QString& path);
    void nextTip();
    void DisplayCurrentTip();
    void fillRecent();
    QString selectedRecent() const;

    QStringList m_tips;
    // One-based index into m_tips.
    int m_currentTip = 0;
    QRandomGenerator m_random;
};

} // namespace zt
