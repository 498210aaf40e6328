#pragma once
// The colours every painter draws with, and the two switches for random colours and values.
//
// Colours are colour longs (0x00BBGGRR). `RandomColors` and `RandomValues` mirror the colour
// dialog's check boxes and are on at the start: a painter then picks its colours, and its
// counts and sizes, at random instead of reading the colour fields and option panels.

#include "core/colour.h"

namespace tf {

class Session;

struct ColourState {
    ColorLong ColorFore = 0x000000;
    ColorLong ColorBack = 0xFFFFFF;
    ColorLong ColorBorder = 0x000000;
    bool RandomColors = true;
    bool RandomValues = true;
};

// A random colour from three draws of the session's generator, red from the first:
// each channel is rounded(r * 254 + 1) in single precision, so it lies in 1..255.
ColorLong Pick_RandomColor(Session &s);

} // namespace tf
