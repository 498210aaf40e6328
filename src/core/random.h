#pragma once
// The classic single-precision random generator, one per session.
//
// State: 24 bits. Each step: state = (state * 0x43FD43FD + 0xC39EC3) & 0xFFFFFF, and the value
// is state / 2^24 as a float, uniform in [0, 1). A fresh generator starts at 0x50000, so its
// first three values are 0.7055475, 0.533424, 0.5795186. The same seed gives the same sequence.

#include "core/numeric.h"

#include <cstdint>

namespace tf {

class Random {
public:
    static constexpr uint32_t StartState = 0x50000;

    // The next value. Rnd(n) with n > 0 is the same as Rnd().
    Single Rnd();
    // Rnd with an argument: negative n first sets the state from the bits of the float n,
    // then steps; 0 repeats the last value; positive n steps.
    Single Rnd(Single n);
    // Replaces bits 8..23 of the state with (hi16 ^ lo16) of the upper 32 bits of the double.
    void Randomize(double x);

    uint32_t state() const { return m_state; }
    void setState(uint32_t s) { m_state = s & 0xFFFFFF; }

private:
    uint32_t m_state = StartState;
};

} // namespace tf
