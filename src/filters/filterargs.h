#pragma once
// The values a filter is run with: the argument of DoGraficFilters and the further values the
// filter dialog `frmGamma` hands over (its sliders, colour fields and channel mixer).

#include "core/colour.h"

#include <QPoint>
#include <array>

namespace tf {

struct FilterArgs {
    // The 32-bit argument: a strength, a percentage, an entry index, or a colour long where
    // the filter wants a colour.
    int32_t argument = 0;
    // SCR_Wert(0..2): the slider values in the units of the filter.
    std::array<int, 3> sliders{};
    // COLOR_Wert(0) "Color from" and COLOR_Wert(1) "Color to/back".
    std::array<ColorLong, 2> colours{0x000000, 0xFFFFFF};
    // The channel mixer (filter 43), index 0 red, 1 green, 2 blue output: the source channel
    // (0 red, 1 green, 2 blue), Invt_Wert and Kill_Wert.
    std::array<int, 3> mixSource{0, 1, 2};
    std::array<bool, 3> invert{};
    std::array<bool, 3> kill{};
    // A position picked on the picture (light source, lens), in pixels from the top left;
    // (-1, -1) for none: the filter takes the middle of the picture.
    QPoint position{-1, -1};
};

} // namespace tf
