#pragma once
// Inside the colour table: what a scheme builder works on, and the builders of the schemes.
//
// A builder writes cells of a table that is already 0..n and all 0. Cells are reached through
// at(), which faults like an array subscript outside the table. Builders that fill 25 colours
// for repetition set `filled` to 25.

#include "core/colour.h"
#include "core/numeric.h"

#include <vector>

namespace tf {

class Session;
struct ColourState;

struct TableBuild {
    Session &s;
    ColourState &c;
    std::vector<ColorLong> &cells;
    int n;           // the last cell
    int whites;      // 1: add the scheme's white cells
    bool keep_white; // white (true) or NoColour (false) for them
    int filled = 0;

    ColorLong &at(int i);
    // The next random value.
    Single rnd();
    // Int(Rnd * range), the product in single precision.
    int rndInt(int range);
    // rounded(Rnd * a + b), in single precision, half to even.
    int w(int a, int b);
    // White, or NoColour unless keep_white.
    ColorLong white() const;
};

// Ramps over the whole table (duoramps.cpp).
void rampSetUp(TableBuild &b);
void AddWhites(TableBuild &b);

// The four 25-colour tints of a 12-way colour table (duotints.cpp). tint is 1..12, dir 1 or -1.
void Tint1(TableBuild &b, int tint, int dir);
void Tint2(TableBuild &b, int tint);
void Tint3(TableBuild &b, int tint);
void Tint4(TableBuild &b, int tint);

// The 25-colour sets of cells 0..25 (duosets.cpp).
void RandomSetText(TableBuild &b);
void RandomSetA(TableBuild &b);
void RandomSetB(TableBuild &b);
void ClassicSet(TableBuild &b);
void ClassicSetNoWhite(TableBuild &b);

// Recolours every cell but the NoColour ones from the palette or the fore/back ramp.
void DuoFromColors(TableBuild &b);

} // namespace tf
