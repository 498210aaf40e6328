#pragma once
// The colours every painter draws with, and the two switches for random colours and values.
//
// Colours are colour longs (0x00BBGGRR). `RandomColors` and `RandomValues` mirror the colour
// dialog's check boxes and are on at the start: a painter then picks its colours, and its
// counts and sizes, at random instead of reading the colour fields and option panels.

#include "core/colour.h"
#include "paint/plasmapalette.h"

#include <QString>
#include <array>
#include <vector>

namespace tf {

class Session;

struct ColourState {
    ColorLong ColorFore = 0x000000;
    ColorLong ColorBack = 0xFFFFFF;
    ColorLong ColorBorder = 0x000000;
    // The text dialog's own pair, taken over from the two fields by a right click on them.
    ColorLong TextFore = 0x000000;
    ColorLong TextBack = 0xFFFFFF;
    bool RandomColors = true;
    bool RandomValues = true;

    // The colour dialog's switches that the colour table and the palette loads read and set:
    // XDuotones(0) a table of a random scheme, XDuotones(1) a table from the two colours (or
    // the palette); XLockPalette keeps the palette from being rebuilt from the two colours.
    std::array<bool, 2> XDuotones{};
    bool XLockPalette = false;

    // The next paint takes its colours through DuoColors (the driver's use_duos).
    bool DuoActive = false;
    // The colour table, cells 0..cols*rows (see duocolortable.h); NoColour marks a cell that
    // is left unpainted.
    std::vector<ColorLong> DuoColors;
    // The palette of 256 colour longs; a session starts with the ramp between the two colours.
    std::vector<ColorLong> Pal256;
    // The smoothed palette of a file, 0..511, blue in the low byte (ready for pixel writes).
    std::vector<ColorLong> Pal512;
    // Pal256 is used for colour tables instead of the ramp between the two colours.
    bool PalFromFile = false;
    // The palette was loaded or locked and is not to be rebuilt for the plasma generator.
    bool PalFixed = false;
    // The plasma's palette on show (see plasmapalette.h).
    Palette512 PlasmaPalette{};
    // Where Pal256 came from, so that a paint can be told again: a palette file's path, or the
    // number of a system palette (0 for none); both empty while it is the two-colour ramp.
    QString paletteFile;
    int systemPalette = 0;
};

// A random colour from three draws of the session's generator, red from the first:
// each channel is rounded(r * 254 + 1) in single precision, so it lies in 1..255.
ColorLong Pick_RandomColor(Session &s);

} // namespace tf
