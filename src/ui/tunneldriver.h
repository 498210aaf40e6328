#pragma once
// Runs the plasma tunnel in the work picture from a timer: one frame a tick at the
// animation's frames per second, so the window stays live between frames. Stop takes effect
// at the next tick, after the frame on show.

#include <QObject>
#include <QTimer>

namespace tf {
class Session;
}

namespace tf::ui {

class TunnelDriver : public QObject {
    Q_OBJECT
public:
    explicit TunnelDriver(Session &session, QObject *parent = nullptr);

    // "Start Tunnel": false when something runs already or the start failed.
    bool start();
    // "Stop".
    void stop();
    bool running() const { return m_timer.isActive(); }

signals:
    void runningChanged(bool running);

private:
    void tick();

    Session &m_session;
    QTimer m_timer;
};

} // namespace tf::ui
