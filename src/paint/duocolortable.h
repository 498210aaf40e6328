#pragma once
// The colour table `DuoColors` and the two rules by which a painter takes its colours.
//
// Colour pair rule: a painter that works from a start and an end colour takes two random
// colours when RandomColors is on, else the paint driver's duo colours when use_duos is on,
// else the foreground and background of the colour state.
//
// Colour table rule: a painter that needs many colours builds the table once with
// Set_Duo_Colortable, then reads cells at indices of its own choosing and paints nothing for
// a cell that holds NoColour.
//
// Table building draws from the session's random generator in a fixed order (including draws
// whose value is not used), so a seeded paint gives the same table every time.

#include "core/colour.h"

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

namespace tf {

class Session;
struct ColourState;

// A cell of the colour table that is not painted.
constexpr ColorLong NoColour = -1;

struct ColorPair {
    ColorLong start = 0, end = 0;
    int r1 = 0, g1 = 0, b1 = 0; // channels of start
    int r2 = 0, g2 = 0, b2 = 0; // channels of end
};

// The colour pair rule. With RandomColors the start colour is drawn before the end colour.
ColorPair colorPairRule(Session &s, bool use_duos, ColorLong duocolo1, ColorLong duocolo2);

// The cell i of the colour table; nullopt for NoColour. An index outside the table is a
// SubscriptOutOfRange fault.
std::optional<ColorLong> duoCell(const ColourState &c, int i);

// Builds DuoColors anew as cells 0..cols*rows by `scheme` (one of duoSchemeNames()).
//
// A size of 0 or less in cols or rows is taken as 25 and written back. whites = 1 adds the
// scheme's white cells where it has them; keep_white chooses between white (true) and
// NoColour (false) for them. Schemes of 25 colours repeat them over a larger table: cell i
// takes cell (i Mod 25) from 26 on. Unless the scheme is "MondrianColorsNoWhite", a table with
// RandomColors off and XDuotones(1) set is recoloured from the palette (PalFromFile, set here
// when XLockPalette is) or from the ramp between the foreground and background.
//
// cols*rows must fit 16 bits. Faults (a larger table; a 25-colour scheme on a table of fewer
// than 25 cells) are reported under "Set_Duo_Colortable" and leave the table as far as it was
// written. An unknown scheme leaves every cell 0 before the closing steps.
void Set_Duo_Colortable(Session &s, int whites, bool keep_white, const QString &scheme,
                        int16_t &cols, int16_t &rows);
// The same for sizes the caller does not need back.
void Set_Duo_Colortable(Session &s, int whites, bool keep_white, const QString &scheme,
                        int cols, int rows);

// The schemes that Set_Duo_Colortable knows, in the order of its table.
QStringList duoSchemeNames();

} // namespace tf
