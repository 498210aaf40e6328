#pragma once
// The dabs of the spray tools, as functions over the brush's pixel array and its stroke mask.
//
// Layout, said once: `BrushPixels` holds the picture of the brush area top-down, 3 bytes a
// pixel in the order blue, green, red, rows of exactly width * 3 bytes; channel c (0 blue,
// 1 green, 2 red) of pixel (x, y) is bytes[(y * width + x) * 3 + c]. `StrokeMask` holds one
// flag per pixel of the same area: -1 once the running stroke has painted the pixel, 0 before.
//
// The disc of a dab of `size` around (x, y): r := size / 2 rounded half to even (so size 1
// gives r 0: one pixel), and the offsets (dx, dy) in -r..r with dx² + dy² < r² + 1. Pixels
// outside the array (`ImageRect`) are skipped. A pressure p of 0..100 is the share p / 100 of
// the colour in the mix with the old pixel.
//
// Each dab answers the rectangle it may have changed, for the caller to show.

#include "core/colour.h"

#include <QImage>
#include <QRect>
#include <cstdint>
#include <vector>

namespace tf {

class Random;

struct BrushPixels {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> bytes;

    BrushPixels() = default;
    BrushPixels(int w, int h) : width(w), height(h), bytes(size_t(w) * size_t(h) * 3) {}
    uint8_t *at(int x, int y) { return bytes.data() + (size_t(y) * size_t(width) + size_t(x)) * 3; }
    const uint8_t *at(int x, int y) const
    {
        return bytes.data() + (size_t(y) * size_t(width) + size_t(x)) * 3;
    }
    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width && y < height; }

    // The array of a picture (any format), and back as Format_RGB32.
    static BrushPixels fromImage(const QImage &image);
    QImage toImage() const;
};

struct StrokeMask {
    int width = 0;
    int height = 0;
    std::vector<int16_t> flags;

    StrokeMask() = default;
    StrokeMask(int w, int h) : width(w), height(h), flags(size_t(w) * size_t(h)) {}
    int16_t &at(int x, int y) { return flags[size_t(y) * size_t(width) + size_t(x)]; }
    // A new stroke starts: no pixel is painted yet.
    void clear() { std::fill(flags.begin(), flags.end(), int16_t(0)); }
};

// The spray types of `cmbSprayType`, in the order of its list.
enum class SprayType { Airbrush = 0, Brush = 1, BrushSaturation = 2, Soften = 3, Sharpen = 4 };

// The radius of a dab of `size`: half of it, rounded half to even.
int dabRadius(int size);

// Type 1: each pixel of the disc not yet painted in this stroke takes
// rounded(p * colour + (1 - p) * old) per channel and is marked. Pressure 0 leaves the
// pixels as they were but marks them; 100 gives the plain colour.
QRect Brush_Dab(BrushPixels &pixels, StrokeMask &mask, int x, int y, int size, int pressure,
                ColorLong color);
// A dab at every eighth pixel along the straight line from (x0,y0) to (x1,y1), and one at
// the end: the connected brush. The mask keeps the overlaps from darkening.
QRect Brush_Stroke(BrushPixels &pixels, StrokeMask &mask, int x0, int y0, int x1, int y1,
                   int size, int pressure, ColorLong color);

// Type 2: as type 1, but the colour is given through its hue and saturation: each pixel
// keeps its brightness (its luma) and takes the colour's difference from the colour's own
// luma, mixed with the old pixel by the pressure.
QRect Saturate_Dab(BrushPixels &pixels, StrokeMask &mask, int x, int y, int size, int pressure,
                   ColorLong color);
QRect Saturate_Stroke(BrushPixels &pixels, StrokeMask &mask, int x0, int y0, int x1, int y1,
                      int size, int pressure, ColorLong color);

// Type 0: every pixel of the disc is sprayed at a random level, thinning out to the rim:
// weight := (1 - d / r) * e * p with d the distance from the centre and e one draw of `rnd`
// per pixel (row by row, left to right); the centre of a dab of radius 0 has weight e * p.
// The mask is not used: spraying on the same place makes it denser.
QRect Airbrush_Dab(BrushPixels &pixels, int x, int y, int size, int pressure, ColorLong color,
                   Random &rnd);

// Type 3: each pixel of the disc becomes the mean of the pixel (weight k) and its four
// neighbours (weight 1 each) in `source`, k := 10 - 0.5 * pressure / 10; neighbours beyond
// the array are the border pixel again. `source` may be `target` itself (the overlay mode:
// the dab reads what it wrote) or the frozen copy.
QRect Soften_Dab(BrushPixels &target, const BrushPixels &source, int x, int y, int size,
                 int pressure);
// Type 4: with k := 15 - 0.5 * pressure / 10 and m the mean as in Soften_Dab, read from the
// frozen copy, each pixel of the disc becomes 2 * c - m: pushed away from the mean.
QRect Sharpen_Dab(BrushPixels &target, const BrushPixels &frozen, int x, int y, int size,
                  int pressure);

} // namespace tf
