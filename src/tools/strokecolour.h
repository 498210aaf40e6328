#pragma once
// The colour a hand tool draws one stroke (one fill, one line, one shape) with.
//
// `RandomPen` is on while the colour state's RandomColors is: the colour is then drawn at
// random per stroke, else it is the foreground colour. A random colour comes from the colour
// table when the colour dialog's table is in force (a cell by Int(Rnd * Ubound), drawn again
// while it is an unpainted cell or the colour to avoid), else by the tool's own rule.

#include "core/colour.h"

#include <optional>

namespace tf {

class Session;

// How a tool draws its random colour when no colour table is in force.
enum class RandomStroke {
    Pick,   // Pick_RandomColor (fill, line, shapes)
    Spray,  // a grey-free mid colour: each channel Int(Rnd * 132) + 64
    Pen,    // each channel Int(Rnd * 224) + 16
};

// True when a random colour is drawn per stroke.
bool RandomPen(const Session &s);

// The colour of the next stroke. `avoid` is a colour the stroke must differ from (the colour
// under a fill), honoured for the table's cells.
ColorLong strokeColour(Session &s, RandomStroke rule, std::optional<ColorLong> avoid = {});

} // namespace tf
