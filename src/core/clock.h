#pragma once
// The session clock behind `Timer`: seconds since midnight as a single.
//
// Normally the wall clock. Given a seed, a deterministic clock: it starts from a time drawn
// from the seed and advances by 1/64 s at each reading, so that `Randomize Timer` in a painter
// gives the same sequence for the same seed.

#include "core/numeric.h"

#include <cstdint>
#include <optional>

namespace tf {

class SessionClock {
public:
    // Seconds since midnight.
    Single Timer();

    void useWallClock() { m_seed.reset(); }
    void useSeed(uint32_t seed);
    bool deterministic() const { return m_seed.has_value(); }

private:
    std::optional<uint32_t> m_seed;
    uint64_t m_ticks = 0;
};

} // namespace tf
