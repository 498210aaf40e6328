#pragma once
// The option variables: the general options read afresh at the start of every paint, as
// numbers a painter can use at once.

#include "core/numeric.h"

#include <cstdint>

namespace tf {

class Controls;

struct OptionVariables {
    int32_t NumberValue = 0;   // rounded Val(cmbNumbArr): how many figures
    int16_t PenWidth = 1;      // rounded Val(cmbPen), at least 1
    int16_t StepValue = 0;     // Scrollstep: a type's second quantity
    int32_t TileSize = 0;      // side of a tile, from cmbKachelSize (see readOptionVariables)
    bool UseBorders = false;   // XBorders: outlines
    bool UseCenter = false;    // XCenter: figures start at the centre
    bool UseFill = false;      // XFill
    bool UseFillWhite = false; // XFill_White
    bool UseDuoTable = false;  // the figures' colours come from the duo colour table
    bool UseAntiAlias = false; // XAAlias
    int16_t TranspPercent = 0; // ScrollTransparence
    double TranspLevel = 0.0;  // TranspPercent / 100
    int W = 0;                 // the target's width and height
    int H = 0;
};

// Reads the options for a target of w x h pixels. TileSize: cmbKachelSize clamped to 1..128;
// above 1 the width divided by it, rounded, else half the width. A count too large for its
// variable is an Overflow fault.
OptionVariables readOptionVariables(const Controls &controls, int w, int h);

} // namespace tf
