#include "core/clock.h"

#include <QTime>

namespace tf {

void SessionClock::useSeed(uint32_t seed)
{
    m_seed = seed;
    m_ticks = 0;
}

Single SessionClock::Timer()
{
    if (!m_seed)
        return CSng(QTime::currentTime().msecsSinceStartOfDay() / 1000.0);
    // A start within the day, in whole 1/64 s so that every reading is exact as a float.
    const uint64_t start = (uint64_t(*m_seed) * 2654435761u) % (86000u * 64u);
    const uint64_t t = start + m_ticks++;
    return Single(double(t % (86400u * 64u)) / 64.0);
}

} // namespace tf
