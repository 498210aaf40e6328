#pragma once
// Small helpers of the figures around a centre that paint per pixel (the mountains, the wave
// grid, the circle gradients): rows of pixels straight into the target, and a second colour
// kept apart from the first so that two close picks never give a one-coloured picture.

#include "core/colour.h"

#include <cstdint>

namespace tf {

class PictureBox;

// Writes n pixels of Qt's 0xAARRGGBB into row y (top-down) of the target from column 0,
// clipped to its width; the caller marks the picture changed when all rows are written.
void putRow(PictureBox &pic, int y, const uint32_t *row, int n);

// The brightness of a colour, 0..255 (0.299 red, 0.587 green, 0.114 blue).
double lumaOf(ColorLong c);

// `b` as it is when one of its channels differs from `a`'s by at least `gap` and its
// brightness by at least half of it; else `b` moved half way to black (when `a` is light) or
// to white (when `a` is dark), so the two stay apart (a light yellow line on white would
// hardly show).
ColorLong apartFrom(ColorLong a, ColorLong b, double gap = 64);
// The gap a thin line keeps from the picture it is drawn on: a line shows less of its colour
// than an area does.
constexpr double LineGap = 112;

} // namespace tf
