#pragma once
// The plasma: a fractal cloud made by midpoint displacement, as palette indices or colours.
//
// `Plasma_Fill` works on a grid of cells `PlasmaStep` pixels wide. The first pass gives every
// cell a random height in -511..511. Each further pass halves the cell size (S = S \ 2, down to
// single pixels) and gives every cell the mean of the four heights the pass before left at its
// corners (x, y), (x+S, y), (x, y+S), (x+S, y+S), rounded half to even, plus a displacement
// D = rounded((u * 2 Grain - Grain) * S) with u uniform in [0, 1); Grain 0 adds nothing.
// Heights are held to -32764..32764. A corner past the right or bottom edge is taken from the
// opposite edge when that direction wraps, else from the cell's own column or row; a cell past
// the edge is cut, so any width and height fill. The heights are then spread over the palette:
// index = rounded(511 / range * (height - min)), range = max - min (at least 1), the scan for
// min and max starting at 10000 and -10000.
//
// The random numbers: every draw is a function of a 64-bit key and the cell's pass and
// position (a counter-based hash), never of the order the cells are visited. So the passes
// run on all threads, and a key gives the same field on any thread count. The key is drawn
// once from the session's generator (`plasmaKey`, two draws), so a seeded paint repeats.
//
// Fields are row by row from the top, `width` values a row.

#include "paint/plasmapalette.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace tf {

class Random;

struct PlasmaSettings {
    int grain = 0;  // PlasmaGrain, "Körnung": the displacement per pixel of cell size
    int step = 32;  // PlasmaStep, "Skalierung": the first cell size, used within 4..128
    bool wrapH = false; // PlasmaWrapH: the field repeats seamlessly from left to right
    bool wrapV = false; // PlasmaWrapV: and from top to bottom
};

// PlasmaStep as the fill uses it: below 4 as 4, above 128 as 128.
int clampPlasmaStep(int step);

// PlasmaHeight: palette indices 0..PlasmaMaxIndex.
struct PlasmaField {
    int width = 0;
    int height = 0;
    std::vector<uint16_t> index;

    uint16_t at(int x, int y) const { return index[size_t(y) * size_t(width) + size_t(x)]; }
};

// The key of a fill's random draws, from two draws of the generator.
uint64_t plasmaKey(Random &random);

// The draw of the cell in `col`, `row` of pass `pass` (0 the first): uniform in [0, 1) with
// the 24 bits of the classic generator, a SplitMix64 finaliser over key, pass and place.
float plasmaCellDraw(uint64_t key, int pass, int col, int row);

struct PlasmaGrid;

// The passes of a fill down to the last one, of single pixels: a grid of heights a quarter of
// the pixels or fewer, 16 bits each. Made first, because it allocates (and so may fail), while
// the last pass writes straight into what it fills.
struct PlasmaCoarse {
    PlasmaCoarse();
    PlasmaCoarse(PlasmaCoarse &&) noexcept;
    PlasmaCoarse &operator=(PlasmaCoarse &&) noexcept;
    ~PlasmaCoarse();

    int width = 0, height = 0;
    PlasmaSettings settings;
    uint64_t key = 0;
    int lastPass = 0;                  // the number of the pass of single pixels
    std::unique_ptr<PlasmaGrid> grid;  // the heights the pass before it left
};

// The coarse passes of the field of `width` x `height` (each at least 1) for a key.
PlasmaCoarse Plasma_Coarse(int width, int height, const PlasmaSettings &settings, uint64_t key,
                           int maxThreads = 0);

// The field of `width` x `height` (each at least 1) for a key. `maxThreads` above 0 limits
// the threads; the result is the same for any.
PlasmaField Plasma_Fill(int width, int height, const PlasmaSettings &settings, uint64_t key,
                        int maxThreads = 0);
// The same with the key drawn from `random`.
PlasmaField Plasma_Fill(int width, int height, const PlasmaSettings &settings, Random &random,
                        int maxThreads = 0);

// PlasmaOut: the field's colours through `palette`, written into rows of 32-bit pixels
// `stride` pixels apart (a QImage of Format_RGB32: pass bits() and bytesPerLine() / 4). The
// top byte of each pixel is set to 0xFF.
void Plasma_Colours(const PlasmaField &field, const Palette512 &palette, uint32_t *out,
                    std::size_t stride, int maxThreads = 0);

// The fill's last pass and its colours straight into rows of 32-bit pixels `stride` pixels
// apart, the same pixels `Plasma_Colours` gives for the field of the same key: the heights are
// written into the pixels and each is then replaced by its colour in place, so no field of the
// picture's size is held beside the picture. The grid is let go before the colouring.
void Plasma_FillColours(PlasmaCoarse coarse, const Palette512 &palette, uint32_t *out,
                        std::size_t stride, int maxThreads = 0);

// The plasma as a table of `width` x `height` 32-bit colours (blue in the low byte, top byte
// 0), for painters that cut pieces from it (the Boogie bars): the key from two draws of
// `random`, then the fill and the palette.
std::vector<uint32_t> Plasma_Table(int width, int height, const PlasmaSettings &settings,
                                   const Palette512 &palette, Random &random);

} // namespace tf
