#pragma once
// The subdivision engine of the Mondrian family: it cuts a rectangle of MondrianW x MondrianH
// pixels into columns and rows, and some of their cells into sub-frames, and writes the result
// into the session's frame tables (paint/mondriantables.h). It draws nothing; Mondrian and
// Boogie, lead glass, the text grid and the photo mosaic paint from the same tables.
//
// Columns and rows are global: every cell of a column has the same x, every cell of a row the
// same y. A subdivided row has one cell cut into H*SubH columns of its own, a subdivided
// column one cell cut into V*SubV rows. The widths come from LadeArr_Asym_Mondrian unless the
// direction is symmetric.
//
// Random numbers come from the session's generator. LadeArr_Asym_Mondrian reseeds it: with a
// seed, Rnd(-1) and Randomize(seed) give a repeatable series (the harmonic subdivisions);
// without one, Randomize(Timer + a draw). A seeded paint therefore gives the same layout.
//
// Faults are reported through the installed prompter under "CreateArr_Mondrian_Splits" or
// "LadeArr_Asym_Mondrian"; the layout goes on with its next row, column or pass, so it can be
// left incomplete but never throws.

#include "core/numeric.h"

#include <cstdint>
#include <vector>

namespace tf {

class Session;
struct MondrianTables;

// The types of the family, which are also the modes of LadeArr_Asym_Mondrian.
enum MondrianMode : int32_t { MondrianStandard = 0, MondrianBePop = 1, MondrianBoogie = 2 };

struct MondrianSplitArgs {
    int16_t SymH = 1;     // 1: columns of equal width; else asymmetric ones
    int16_t SymV = 1;     // the same for rows
    int16_t Pen = 1;      // the frame line's width, taken off a length before it is shared out
    int16_t DoSub = 0;    // not 0: run the subdivision passes
    int16_t MinRatio = 2; // a cell is subdivided only if length / H (or / V) is at least this
    int32_t Mode = MondrianStandard;
    Single Unit = 1.0f;   // the grid unit of the Boogie mode, in pixels
    int32_t SeedH = 0;    // seeds of the subdivisions of rows and columns (0: none)
    int32_t SeedV = 0;
    int16_t SubH = 1;     // a subdivided row cell gets H*SubH parts
    int16_t SubV = 1;     // a subdivided column cell gets V*SubV parts
    int16_t UnitsH = 1;   // the width of an equal column in the Boogie mode, in units
    int16_t UnitsV = 1;
    int16_t StripFlag = 0; // spare tall, thin layouts (see CreateArr_Mondrian_Splits)
};

// The largest column width and row height seen by the layout (MaxW, MaxH).
struct MondrianExtent {
    double MaxW = 0;
    double MaxH = 0;
};

// Builds the layout of the tables' MondrianHSplits x MondrianVSplits cells over MondrianW x
// MondrianH pixels. All six tables are re-dimensioned, and so emptied, first. MondrianFrames
// is H*V plus H-1 for each subdivided row and V-1 for each subdivided column.
//
// StripFlag: the row pass is skipped when V is below 2, and in the modes 0 and 1 the column
// pass ends after its first test when V is 1 and H below 3.
MondrianExtent CreateArr_Mondrian_Splits(Session &s, const MondrianSplitArgs &args);

// Fills ArrAsym(1..Count) with the widths of Count parts of Total pixels:
//   mode 0: each part between a half-share and Count-1 half-shares of what is left, the last
//           part the rest;
//   mode 1: random weights scaled to Total, rounded, the last part corrected so that the parts
//           add up to Total exactly;
//   other:  whole multiples of Unit, at least two units each; OutCount may end below Count.
// One part is Total in every mode. OutCount says how many entries hold.
void LadeArr_Asym_Mondrian(Session &s, int16_t Count, int32_t Total, int32_t &OutCount,
                           int32_t Mode, Single Unit, int32_t Seed);

// One frame of the layout, without the picture's offsets.
struct MondrianFrame {
    int32_t left = 0, top = 0, right = 0, bottom = 0;
    bool sub = false; // a sub-frame of a subdivided cell, not a whole cell
};

// The frames in the order painters enumerate them: column by column, row by row, a cell's
// sub-frames in place of the cell. A subdivided cell shows its sub-frames only when their
// count stands at the cell's own index; a second subdivision of the same row replaces the
// first one's sub-frames, whose cell then stays without a frame. Faults (erased tables) throw.
std::vector<MondrianFrame> mondrianFrames(const MondrianTables &t);

} // namespace tf
