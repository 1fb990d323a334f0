#pragma once

#include <QStatusBar>

#include <vector>

class QLabel;

namespace zt {

// A status bar of panels, numbered from 1 as the program numbers them.
class StatusBar : public QStatusBar {
public:
    // widths: one entry per panel; 0 lets a panel take the free room.
    explicit StatusBar(const std::vector<int>& widths, QWidget* parent = nullptr);

    QString panelText(int panel) const;
    void setPanelText(int panel, const QString& text);
    QLabel* panel(int panel) const;
    int panelCount() const { return int(m_panels.size()); }

    // Shows the state of the Caps Lock, Num Lock and Insert keys in three panels,
    // as the desktop reports them with each key event.
    void showKeyStates(int capsPanel, int numPanel, int insertPanel);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::vector<QLabel*> m_panels;
    int m_caps = 0;
    int m_num = 0;
    int m_insert = 0;
    bool m_overwrite = false;
};

} // namespace zt
