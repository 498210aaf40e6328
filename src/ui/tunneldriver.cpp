#include "ui/tunneldriver.h"

#include "generators/tunnelrun.h"
#include "paint/session.h"

namespace tf::ui {

TunnelDriver::TunnelDriver(Session &session, QObject *parent)
    : QObject(parent), m_session(session)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &TunnelDriver::tick);
}

bool TunnelDriver::start()
{
    if (m_timer.isActive() || !BtnPlasmaRepaint_Click(m_session, 0)) return false;
    const Animation *a = m_session.animation().current.get();
    m_timer.start(1000 / std::max(1, a ? a->framesPerSecond() : 30));
    emit runningChanged(true);
    return true;
}

void TunnelDriver::stop() { BtnPlasmaRepaint_Click(m_session, 1); }

void TunnelDriver::tick()
{
    // The window asked to close: the tunnel ends like a paint.
    if (m_session.paint().StopPaint) stop();
    if (Plasma_TunnelFrame(m_session)) return;
    m_timer.stop();
    emit runningChanged(false);
}

} // namespace tf::ui
