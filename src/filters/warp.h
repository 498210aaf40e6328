#pragma once
// Sampling for the inverse mappings of the distortions.
//
// Positions are in pixels of S with pixel centres at whole numbers: (0, 0) is the middle of
// the top-left pixel. Bilinear weights are kept to 1/256 so that the result is the same on
// every thread and machine; a position off the picture takes the nearest edge pixel
// (`sampleClamped`) or the background (`sampleOr`).

#include "filters/filterrun.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tf::warp {

inline uint32_t pixelAt(const PixelPlane &p, int x, int y)
{
    return reinterpret_cast<const uint32_t *>(p.row(y))[x];
}

// Two pixels mixed by w/256 of the second: red and blue in one step, green in another.
inline uint32_t mix(uint32_t a, uint32_t b, uint32_t w)
{
    const uint32_t v = 256 - w;
    const uint32_t rb = (((a & 0xFF00FFu) * v + (b & 0xFF00FFu) * w) >> 8) & 0xFF00FFu;
    const uint32_t g = (((a & 0xFF00u) * v + (b & 0xFF00u) * w) >> 8) & 0xFF00u;
    return rb | g | (a & 0xFF000000u);
}

// A position in 1/256 pixels, rounded down; far positions are drawn in to one pixel beyond
// the edge, which samples the same edge pixels.
inline int fixedOf(double f, int size)
{
    f = f < -1.0 ? -1.0 : f > size ? double(size) : f;
    return int(f * 256.0 + 65536.0) - 65536;
}

// The four pixels around (fx, fy), edges repeated, mixed with weights of 1/256.
[[gnu::always_inline]] inline uint32_t bilinear(const PixelPlane &p, double fx, double fy)
{
    const int ix = fixedOf(fx, p.width), iy = fixedOf(fy, p.height);
    const uint32_t wx = uint32_t(ix & 255), wy = uint32_t(iy & 255);
    const int x0 = ix >> 8, y0 = iy >> 8;
    if (x0 >= 0 && y0 >= 0 && x0 + 1 < p.width && y0 + 1 < p.height) {
        const auto *r0 = reinterpret_cast<const uint32_t *>(p.row(y0)) + x0;
        const auto *r1 = reinterpret_cast<const uint32_t *>(p.row(y0 + 1)) + x0;
        return mix(mix(r0[0], r0[1], wx), mix(r1[0], r1[1], wx), wy);
    }
    const int mx = p.width - 1, my = p.height - 1;
    const int xa = std::clamp(x0, 0, mx), xb = std::clamp(x0 + 1, 0, mx);
    const int ya = std::clamp(y0, 0, my), yb = std::clamp(y0 + 1, 0, my);
    return mix(mix(pixelAt(p, xa, ya), pixelAt(p, xb, ya), wx),
               mix(pixelAt(p, xa, yb), pixelAt(p, xb, yb), wx), wy);
}

// The nearest pixel to (fx, fy), edges repeated.
inline uint32_t nearest(const PixelPlane &p, double fx, double fy)
{
    int x = int(std::floor(fx + 0.5)), y = int(std::floor(fy + 0.5));
    x = x < 0 ? 0 : x >= p.width ? p.width - 1 : x;
    y = y < 0 ? 0 : y >= p.height ? p.height - 1 : y;
    return pixelAt(p, x, y);
}

inline bool inside(const PixelPlane &p, double fx, double fy)
{
    // Half a pixel beyond the outer centres still lies on the picture.
    return fx > -0.5 && fy > -0.5 && fx < p.width - 0.5 && fy < p.height - 0.5;
}

// The colour long 0x00BBGGRR as a pixel of the arrays (blue, green, red, unused).
inline uint32_t pixelOf(int32_t colour)
{
    return uint32_t(((colour & 255) << 16) | (colour & 0xFF00) | ((colour >> 16) & 255));
}

// Runs body(y, x0, x1) over every row of D in strips of 64 columns, each strip from the top
// of a slice of rows to its bottom: the source pixels that neighbouring targets read lie close
// together, so they stay in the cache even where the mapping runs across the rows.
template <typename Body> void forStrips(FilterRun &run, Body &&body)
{
    constexpr int Strip = 64;
    run.rows([&](int first, int last) {
        for (int x0 = 0; x0 < run.width(); x0 += Strip) {
            const int x1 = std::min(run.width(), x0 + Strip);
            for (int y = first; y < last; ++y)
                body(y, x0, x1);
        }
    });
}

// What a target pixel of an inverse mapping shows.
enum class Source { Sample, Keep, Background };

// Runs an inverse mapping over every pixel of D: `map(x, y, fx, fy)` sets the source position
// of target pixel (x, y) and answers where the pixel comes from: S at (fx, fy) (bilinear when
// `smooth`, else the nearest pixel), D as it is (the picture as it was), or `background`.
template <typename Map> void inverseMap(FilterRun &run, bool smooth, uint32_t background, Map map)
{
    forStrips(run, [&](int y, int x0, int x1) {
        auto *out = reinterpret_cast<uint32_t *>(run.D.row(y));
        for (int x = x0; x < x1; ++x) {
            double fx = x, fy = y;
            switch (map(x, y, fx, fy)) {
            case Source::Sample:
                out[x] = smooth ? bilinear(run.S, fx, fy) : nearest(run.S, fx, fy);
                break;
            case Source::Background:
                out[x] = background;
                break;
            case Source::Keep:
                break;
            }
        }
    });
}

} // namespace tf::warp
