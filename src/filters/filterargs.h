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
    // The frame gradient of filter 45: with `on` the mix runs from "Color from" to
    // "Color to/back" as a gradient of `style` (0 linear, 1 frame, 2 rectangle, 3 ellipse),
    // see gradientkernels.h.
    struct FrameGradient {
        bool on = false;
        int style = 1;
        bool horizontal = true; // the linear gradient runs from left to right, else top down
        bool swap = false;      // the two colours change places
        bool soft = true;       // an eased rather than a straight ramp
        // The share of the old picture kept (0 gives the gradient whole, 1 leaves the picture).
        double keep = 0.0;
        // Frame widths at the left and right, at the top and bottom, and of the passepartout
        // (a band of "Color from" round the edge; below 1 none).
        std::array<int, 3> borders{0, 0, -1};
    } frame;
    // The second point of the two-point waves of DoFrequencyWaves (the first is `position`).
    QPoint position2{-1, -1};
    // The distortions: the shape of filter 46 (the dialog-level number minus 1000), the
    // background colour (the corners of a rotation, the room a bent or shrunk picture leaves),
    // and the check boxes of stretching and rotation: "Größe anpassen" (the picture takes the
    // size of the result) and "Hintergrund löschen" (uncovered room takes the background
    // colour; without it the picture as it was shows there).
    int selector = 0;
    ColorLong background = 0xFFFFFF;
    bool resizeToFit = false;
    bool cleanBack = true;
};

} // namespace tf
