// Pixels and closed figures of the graphics-device calls.
#include "core/gdi.h"
#include "core/gdi_raster.h"

#include <cstdlib>
#include <utility>
#include <vector>

namespace tf {

namespace {

ColorLong brushFill(const DeviceContext &dc) { return dc.brush.hollow ? -1 : dc.brush.color; }

void order(int &a, int &b)
{
    if (a > b)
        std::swap(a, b);
}

std::vector<QPoint> toPoints(std::span<const POINTAPI> pts)
{
    std::vector<QPoint> out;
    out.reserve(pts.size());
    for (const POINTAPI &p : pts)
        out.emplace_back(p.x, p.y);
    return out;
}

bool roundBox(DeviceContext &dc, int left, int top, int right, int bottom, double ew, double eh)
{
    if (!dc.valid())
        return false;
    order(left, right);
    order(top, bottom);
    if (right == left || bottom == top)
        return true;
    raster::drawRoundBox(dc, raster::boxOfRect(left, top, right, bottom, ew, eh),
                         raster::strokeOf(dc), brushFill(dc));
    return true;
}

} // namespace

ColorLong GetPixel(const DeviceContext &dc, int x, int y)
{
    if (!dc.valid() || !dc.clip().contains(x, y))
        return -1;
    return dc.pixel(x, y);
}

ColorLong SetPixel(DeviceContext &dc, int x, int y, ColorLong c)
{
    if (!dc.valid() || !dc.clip().contains(x, y))
        return -1;
    c &= 0xFFFFFF;
    dc.setPixel(x, y, c);
    return c;
}

bool SetPixelV(DeviceContext &dc, int x, int y, ColorLong c) { return SetPixel(dc, x, y, c) >= 0; }

bool Polyline(DeviceContext &dc, std::span<const POINTAPI> pts)
{
    if (!dc.valid() || pts.size() < 2)
        return false;
    const auto points = toPoints(pts);
    raster::drawPoly(dc, points, false, raster::strokeOf(dc), -1);
    return true;
}

bool Polyline(DeviceContext &dc, const POINTAPI *pts, int count)
{
    return count > 0 && Polyline(dc, std::span<const POINTAPI>(pts, size_t(count)));
}

bool Polygon(DeviceContext &dc, std::span<const POINTAPI> pts)
{
    if (!dc.valid() || pts.size() < 2)
        return false;
    const auto points = toPoints(pts);
    raster::drawPoly(dc, points, true, raster::strokeOf(dc), brushFill(dc));
    return true;
}

bool Polygon(DeviceContext &dc, const POINTAPI *pts, int count)
{
    return count > 0 && Polygon(dc, std::span<const POINTAPI>(pts, size_t(count)));
}

bool Ellipse(DeviceContext &dc, int left, int top, int right, int bottom)
{
    order(left, right);
    order(top, bottom);
    return roundBox(dc, left, top, right, bottom, right - left, bottom - top);
}

bool RoundRect(DeviceContext &dc, int left, int top, int right, int bottom, int width, int height)
{
    return roundBox(dc, left, top, right, bottom, std::abs(width), std::abs(height));
}

bool Rectangle(DeviceContext &dc, int left, int top, int right, int bottom)
{
    return roundBox(dc, left, top, right, bottom, 0, 0);
}

} // namespace tf
