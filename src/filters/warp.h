#pragma once
// Sampling for the inverse mappings of the distortions.
//
// Positions are in pixels of S with pixel centres at whole numbers: (0, 0) is the middle of
// the top-left pixel. Bilinear weights are kept to 1/256 so that the result is the same on
// every thread and machine; a position off the picture takes the nearest edge pixel
// (`sampleClamped`) or the background (`sampleOr`).

#include "filters/filterrun.h"

#include <cmath>
#include <cstdint>

namespace tf::warp {

inline uint32_t pixelAt(const PixelPlane &p, int x, int y)
{
    return reinterpret_cast<const uint32_t *>(p.row(y))[x];
}

// The four pixels around (fx, fy), edges repeated, mixed with weights of 1/256.
inline uint32_t bilinear(const PixelPlane &p, double fx, double fy)
{
    const double flx = std::floor(fx), fly = std::floor(fy);
    const int wx = int((fx - flx) * 256.0), wy = int((fy - fly) * 256.0);
    int x0 = int(flx), y0 = int(fly);
    int x1 = x0 + 1, y1 = y0 + 1;
    const int mx = p.width - 1, my = p.height - 1;
    x0 = x0 < 0 ? 0 : x0 > mx ? mx : x0;
    x1 = x1 < 0 ? 0 : x1 > mx ? mx : x1;
    y0 = y0 < 0 ? 0 : y0 > my ? my : y0;
    y1 = y1 < 0 ? 0 : y1 > my ? my : y1;
    const uint32_t a = pixelAt(p, x0, y0), b = pixelAt(p, x1, y0);
    const uint32_t c = pixelAt(p, x0, y1), d = pixelAt(p, x1, y1);
    uint32_t out = a & 0xFF000000u;
    for (int shift = 0; shift < 24; shift += 8) {
        const int ca = int(a >> shift) & 255, cb = int(b >> shift) & 255;
        const int cc = int(c >> shift) & 255, cd = int(d >> shift) & 255;
        const int top = ca * (256 - wx) + cb * wx;
        const int bottom = cc * (256 - wx) + cd * wx;
        const int v = (top * (256 - wy) + bottom * wy + 32768) >> 16;
        out |= uint32_t(v) << shift;
    }
    return out;
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

// What a target pixel of an inverse mapping shows.
enum class Source { Sample, Keep, Background };

// Runs an inverse mapping over every pixel of D: `map(x, y, fx, fy)` sets the source position
// of target pixel (x, y) and answers where the pixel comes from: S at (fx, fy) (bilinear when
// `smooth`, else the nearest pixel), D as it is (the picture as it was), or `background`.
template <typename Map>
void inverseMap(FilterRun &run, bool smooth, uint32_t background, Map map)
{
    run.rows([&](int first, int last) {
        for (int y = first; y < last; ++y) {
            auto *out = reinterpret_cast<uint32_t *>(run.D.row(y));
            for (int x = 0; x < run.width(); ++x) {
                double fx = x, fy = y;
                switch (map(x, y, fx, fy)) {
                case Source::Sample:
                    out[x] = smooth ? bilinear(run.S, fx, fy) : nearest(run.S, fx, fy);
                    break;
                case Source::Background: out[x] = background; break;
                case Source::Keep: break;
                }
            }
        }
    });
}

} // namespace tf::warp
