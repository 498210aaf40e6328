#pragma once
// "Wave-Grid" (wavegrid.cpp says the figure): two families of cosine waves, rows and columns,
// woven into a chequer of wavy cells and drawn over with soft lines.

#include "core/colour.h"

#include <vector>

namespace tf {

struct PaintContext;
class PictureBox;

// One wave: at t (x for a row, y for a column) it lies at
// base + amplitude * cos((phase + t * 360 / length) degrees).
struct Wave {
    double base = 0;
    double amplitude = 0;
    double phase = 0; // degrees
    double length = 1;
    double at(double t) const;
};

// The drawn rows (cosine of the start above 0.9) and columns (sine of the start below 0.1),
// from the session's random generator; each sorted by its base.
struct WaveFamilies {
    std::vector<Wave> rows;
    std::vector<Wave> columns;
};
WaveFamilies waveFamilies(PaintContext &ctx);

// Draws a wave as a soft line of width `pen` across the picture (a row when `across`, else a
// column) over t from 0 to `extent` and a little beyond; false (nothing drawn) for NoColour.
bool Draw_Waveline(PictureBox &pic, const Wave &wave, bool across, double extent,
                   ColorLong colour, int pen);

// The wave grid; `use_table` takes the band colours from the colour table.
void Create_Wavegrid(PaintContext &ctx, bool use_table);
void paintWaveGrid(PaintContext &ctx);

} // namespace tf
