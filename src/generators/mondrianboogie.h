#pragma once
// The Boogies of the Mondrian family: the layout of the subdivision engine in its Boogie mode,
// on a grid of small squares. The lines are rows of squares one grid unit wide, coloured from
// the table (or from the four colours of the panel); some cells hold a node, a larger block
// with inner blocks. "Boogie-Rocks", "Boogie-Blocks" and "Boogie-Soft-Ice" cut their squares
// from bars painted by the plasma.
//
// The grid unit is the smaller side over the number of squares across (cmbNumbArr, random
// 20..70) less the lines; a unit of 0 (a tiny picture with many squares) cannot be painted and
// is reported under "Draw_MondrianBoogie".

#include "core/colour.h"
#include "generators/mondrian.h"

#include <vector>

namespace tf {

// The painter's state: the grid and its nodes as the last Boogie left them.
struct BoogieState {
    int32_t Squares = 0; // squares across the shorter side
    Single Unit = 0;     // the edge of a square in pixels
    struct Node {
        int32_t left = 0, top = 0, right = 0, bottom = 0;
    };
    std::vector<Node> Nodes;
    int32_t OffX = 0, OffY = 0; // the grid's offsets
    int16_t BgIndex = 0;        // cmbMondrian_Format(2)
    bool FourColours = false;   // XMondrian(6): the lines take Colours4
    ColorLong Colours4[4] = {};
    bool DoBoogies = false;     // XMondrian(7): paint the nodes
    int32_t GridW = 0, GridH = 0;
    int16_t ColourX = 8, ColourY = 8;
    int16_t UnitsH = 1, UnitsV = 1;
};

// Paints a Boogie on `canvas` (call.Type 2 to 5). Faults go to the handler under
// "Draw_MondrianBoogie". The state of the grid is left in `state`.
void Draw_MondrianBoogie(PaintContext &ctx, FrameCanvas &canvas, MondrianCall call,
                         BoogieState &state);

} // namespace tf
