#pragma once
// The main window's status bar `sbStatusBar`: the panels sbrState, sbrSize, sbrfixed,
// sbrSFixed and sbrFont, and a progress bar that takes the place of the state panel while it
// runs.

#include "core/status.h"

#include <QObject>
#include <map>

class QLabel;
class QProgressBar;
class QStatusBar;

namespace tf::ui {

class StatusBarSink : public StatusSink {
public:
    explicit StatusBarSink(QStatusBar *bar);
    void setPanelText(int panel, const QString &text) override;
    void setProgress(int value, int max) override;
    QString panelText(int panel) const;

private:
    std::map<int, QLabel *> m_panels;
    QProgressBar *m_progress;
};

} // namespace tf::ui
