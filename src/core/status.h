#pragma once
// Status-bar texts and progress, as one small interface: the GUI shows them in its status bar,
// the command line draws a progress bar on a terminal, tests read them back.

#include <QString>
#include <map>

namespace tf {

// The panels of the main window's status bar.
// sbrMouse shows the position and the colour under the mouse over the picture.
enum StatusPanel { sbrState = 1, sbrSize = 2, sbrfixed = 3, sbrSFixed = 4, sbrFont = 5, sbrMouse = 6 };

class StatusSink {
public:
    virtual ~StatusSink() = default;
    // The text of a status-bar panel (numbered from 1, as the status bar's panels are).
    virtual void setPanelText(int panel, const QString &text) = 0;
    // Shows the progress bar at value of max; max 0 hides it.
    virtual void setProgress(int value, int max) = 0;
};

// Keeps the last text of each panel and the last progress; what the command line and the
// tests use.
class RecordingStatus : public StatusSink {
public:
    void setPanelText(int panel, const QString &text) override { m_panels[panel] = text; }
    void setProgress(int value, int max) override
    {
        m_value = value;
        m_max = max;
    }
    QString panelText(int panel) const
    {
        auto it = m_panels.find(panel);
        return it == m_panels.end() ? QString() : it->second;
    }
    int progressValue() const { return m_value; }
    int progressMax() const { return m_max; }

private:
    std::map<int, QString> m_panels;
    int m_value = 0;
    int m_max = 0;
};

// Passes everything on to another sink, which can be changed: what a session lends to the
// objects that keep its status door for their whole life.
class StatusDoor : public StatusSink {
public:
    explicit StatusDoor(StatusSink &target) : m_target(&target) {}
    void setTarget(StatusSink &target) { m_target = &target; }
    StatusSink &target() const { return *m_target; }
    void setPanelText(int panel, const QString &text) override
    {
        m_target->setPanelText(panel, text);
    }
    void setProgress(int value, int max) override { m_target->setProgress(value, max); }

private:
    StatusSink *m_target;
};

} // namespace tf
