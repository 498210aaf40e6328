// Area fills: flood fills from a seed, rectangles and regions with a brush.
#include "core/gdi.h"
#include "core/gdi_raster.h"

#include <vector>

namespace tf {

namespace {

struct Span {
    int y, x0, x1;
};

// The 4-connected area around the seed whose pixels pass `inside`, as spans of rows; every
// pixel is visited once, so no colour of brush or border can make it loop.
template <typename Inside>
std::vector<Span> floodSpans(const QRect &clip, int x, int y, Inside &&inside)
{
    const int w = clip.width();
    std::vector<uint8_t> seen(size_t(w) * size_t(clip.height()), 0);
    auto visited = [&](int px, int py) -> uint8_t & {
        return seen[size_t(py - clip.top()) * size_t(w) + size_t(px - clip.left())];
    };
    std::vector<Span> spans;
    std::vector<QPoint> seeds{QPoint(x, y)};
    while (!seeds.empty()) {
        const QPoint s = seeds.back();
        seeds.pop_back();
        if (visited(s.x(), s.y()))
            continue;
        int l = s.x(), r = s.x();
        while (l > clip.left() && !visited(l - 1, s.y()) && inside(l - 1, s.y()))
            --l;
        while (r < clip.right() && !visited(r + 1, s.y()) && inside(r + 1, s.y()))
            ++r;
        for (int px = l; px <= r; ++px)
            visited(px, s.y()) = 1;
        spans.push_back({s.y(), l, r});
        for (int ny : {s.y() - 1, s.y() + 1}) {
            if (ny < clip.top() || ny > clip.bottom())
                continue;
            bool inRun = false;
            for (int px = l; px <= r; ++px) {
                const bool open = !visited(px, ny) && inside(px, ny);
                if (open && !inRun)
                    seeds.emplace_back(px, ny);
                inRun = open;
            }
        }
    }
    return spans;
}

} // namespace

bool ExtFloodFill(DeviceContext &dc, int x, int y, ColorLong crColor, unsigned fillType)
{
    if (!dc.valid() || !dc.clip().contains(x, y))
        return false;
    crColor &= 0xFFFFFF;
    const bool surface = fillType == FLOODFILLSURFACE;
    const DeviceContext &pixels = dc; // reads without detaching the image for every pixel
    const int bpp = dc.bytesPerPixel();
    auto inside = [&](int px, int py) {
        const uchar *p = pixels.scanLine(py) + px * bpp;
        return (ColorLong(p[2] | (p[1] << 8) | (p[0] << 16)) == crColor) == surface;
    };
    if (!inside(x, y))
        return false;
    const auto spans = floodSpans(dc.clip(), x, y, inside);
    if (dc.brush.hollow)
        return true;
    for (const Span &s : spans)
        raster::copySpan(dc, s.y, s.x0, s.x1, dc.brush.color);
    return true;
}

bool FloodFill(DeviceContext &dc, int x, int y, ColorLong crColor)
{
    return ExtFloodFill(dc, x, y, crColor, FLOODFILLBORDER);
}

int FillRect(DeviceContext &dc, const RECT &r, const Brush &brush)
{
    if (!dc.valid())
        return 0;
    if (brush.hollow)
        return 1;
    for (int y = r.top; y < r.bottom; ++y)
        raster::copySpan(dc, y, r.left, r.right - 1, brush.color);
    return 1;
}

bool FillRgn(DeviceContext &dc, const Region &rgn, const Brush &brush)
{
    if (!dc.valid())
        return false;
    if (brush.hollow)
        return true;
    for (const QRect &r : rgn.pixels)
        for (int y = r.top(); y <= r.bottom(); ++y)
            raster::copySpan(dc, y, r.left(), r.right(), brush.color);
    return true;
}

} // namespace tf
