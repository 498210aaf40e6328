#include "core/random.h"

#include <bit>

namespace tf {

Single Random::Rnd()
{
    m_state = (m_state * 0x43FD43FDu + 0xC39EC3u) & 0xFFFFFFu;
    return Single(m_state) / Single(16777216.0f);
}

Single Random::Rnd(Single n)
{
    if (n < 0) {
        const uint32_t b = std::bit_cast<uint32_t>(n);
        m_state = (b + (b >> 24)) & 0xFFFFFFu;
        return Rnd();
    }
    if (n == 0)
        return Single(m_state) / Single(16777216.0f);
    return Rnd();
}

void Random::Randomize(double x)
{
    const uint64_t bits = std::bit_cast<uint64_t>(x);
    const uint32_t upper = uint32_t(bits >> 32);
    const uint32_t mix = ((upper >> 16) ^ upper) & 0xFFFFu;
    m_state = (m_state & 0xFFu) | (mix << 8);
}

} // namespace tf
