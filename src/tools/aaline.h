#pragma once
// AA_Line: the anti-aliased line of any width that the generators draw, in thousands per
// paint.
//
// Geometry: the line is the band of perpendicular width `pen` around the segment from
// (x1,y1) to (x2,y2) (coordinates are pixel centres, fractions allowed). The walk goes along
// the longer axis, one pixel row (or column) per step; a step's share of the segment along
// that axis is the overlap of the pixel with the segment, so the two end steps count partly.
// Across the walk the band covers a run of pixels: the inner ones take the colour whole, the
// two edge pixels are mixed with the picture by the part of them the band covers (per channel
// colour * f + old * (1 - f), rounded half to even). So the coverage of all pixels together
// is pen times the line's length.
//
// Pen 2 is the thin soft line of LineVR::LineGP on whole coordinates. A pen below 1 counts as
// 1. `flag` false draws the same band aliased: a pixel covered half or more takes the colour
// whole, the others stay.
//
// A line whose two ends are equal draws nothing. Only the picture is the clip. The picture
// is marked changed; refreshing it is the caller's.

#include "core/colour.h"

namespace tf {

class PictureBox;

void AA_Line(PictureBox &picture, double x1, double y1, double x2, double y2, ColorLong color,
             int pen, bool flag = true);

// Per channel a * f + b * (1 - f), rounded half to even.
ColorLong Mix_Colors(ColorLong a, ColorLong b, double f);

} // namespace tf
