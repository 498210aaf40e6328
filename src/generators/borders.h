#pragma once
// The frames and cut-out forms of groups 8 and 9, painted over the picture that is there:
// "A-Rahmen-Standard"        an outer frame of txtRahmendicke box outlines from the edge inwards
// "I-Rahmen-Standard"        an inner frame of four quadrilaterals around an opening of
//                            txtRahmendickeI(0) x txtRahmendickeI(1), mitred with "Trapeze"
// "I-Rahmen-Random"          rectangles of four lines about a centre, sides on a random grid
// "Forms-Cut out Squares"    the picture outside two centred boxes (a notched opening) in a colour
// "Forms-Cut out Areas"      the picture outside two overlapping centred circles
// "Forms-Cut out Rects"      rows of boxes along the edges
// "Border-Cut out Squares", "...Triangles", "...Mix", "...Circles"
//                            notches of size txtCutOut along the four edges
// "Border-V-Dia positive"    a filmstrip: dark bands at top and bottom with sprocket holes
// The "Cut out" types advance the session's CutMode (0, 1, 2, 0, ...) on every paint and
// choose their pattern by it, so that three paints show three patterns.

#include "core/colour.h"

#include <cstdint>

namespace tf {

struct PaintContext;

constexpr const char *FramePanelName = "feat_10Rahmen";

void Create_Borders(PaintContext &ctx);

// CutMode + 1, back to 0 above 2.
int16_t nextCutMode(int16_t CutMode);
// The size of the cut-outs: txtCutOut held to 1..limit, or with RandomValues
// rounded(Rnd * smaller side / 2), at least 1.
int cutOutSize(PaintContext &ctx, int limit);

// The colours of a frame: a pick with RandomColors, ColorFore / ColorBack otherwise, a cell of
// the lead-glass table when the table is in force.
ColorLong frameColour(PaintContext &ctx);
ColorLong frameColourBack(PaintContext &ctx);

// borders_cutout.cpp
void paintFormsCutOutSquares(PaintContext &ctx);
void paintFormsCutOutAreas(PaintContext &ctx);
void paintFormsCutOutRects(PaintContext &ctx);
void paintBorderCutOut(PaintContext &ctx);
void paintBorderDia(PaintContext &ctx);

void registerFramePanels();

} // namespace tf
