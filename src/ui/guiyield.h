#pragma once
// Giving way in the desktop program: pending events are processed, at most every 30 ms, so
// that Stop and repainting stay alive while a paint runs on the one thread.

#include "core/yield.h"

#include <QElapsedTimer>

namespace tf::ui {

class EventLoopYield : public YieldHook {
public:
    EventLoopYield() { m_last.start(); }
    bool yield() override;

private:
    QElapsedTimer m_last;
};

} // namespace tf::ui
