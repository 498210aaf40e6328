#include "tools/linevr.h"

#include "core/devicecontext.h"
#include "core/numeric.h"

#include <cmath>
#include <cstdlib>

namespace tf {

void LineVR::setColor(ColorLong c)
{
    color = c;
    red = RedOf(c);
    green = GreenOf(c);
    blue = BlueOf(c);
}

bool LineVR::inClip(int x, int y) const
{
    if (!hdc || !hdc->contains(x, y)) return false;
    return !region || PtInRegion(*region, x, y);
}

void LineVR::Blend_Pixel(int x, int y, int a)
{
    if (!inClip(x, y)) return;
    if (a > 252) {
        SetPixelV(*hdc, x, y, color);
        return;
    }
    const ColorLong p = GetPixel(*hdc, x, y);
    const int pr = p > 0 ? RedOf(p) : 0;
    const int pg = p > 0 ? GreenOf(p) : 0;
    const int pb = p > 0 ? BlueOf(p) : 0;
    const int r = (red * a + pr * (255 - a)) / 256;
    const int g = (green * a + pg * (255 - a)) / 256;
    const int b = (blue * a + pb * (255 - a)) / 256;
    SetPixelV(*hdc, x, y, RGB(r, g, b));
}

void LineVR::LineGP(DeviceContext &dc, int X1, int Y1, int X2, int Y2, ColorLong Color)
{
    hdc = &dc;
    setColor(Color);
    int dx = X2 - X1, sx = 1;
    if (dx < 0) {
        dx = -dx;
        sx = -1;
    }
    int dy = Y2 - Y1, sy = 1;
    if (dy < 0) {
        dy = -dy;
        sy = -1;
    }
    if (dx + dy == 0) return;

    int x = X1, y = Y1;
    if (dx <= dy) {
        // Steep: one pixel per row, its left and right neighbours blended.
        const int g = dx * 85 / dy;
        Blend_Pixel(X1 - sx, Y1 - sy, g);
        Blend_Pixel(X1, Y1 - sy, 127);
        Blend_Pixel(X2 + sx, Y2 + sy, g);
        Blend_Pixel(X2, Y2 + sy, 127);
        int e = dy / 2;
        for (int i = 0; i <= dy; ++i) {
            if (inClip(x, y)) {
                SetPixelV(dc, x, y, Color);
                const int t = e * 255 / dy;
                Blend_Pixel(x - sx, y, 255 - t);
                Blend_Pixel(x + sx, y, t);
            }
            e += dx;
            if (e >= dy) {
                e -= dy;
                x += sx;
            }
            y += sy;
        }
    } else {
        // Shallow: one pixel per column, the pixels above and below blended.
        const int g = dy * 85 / dx;
        Blend_Pixel(X1 - sx, Y1 - sy, g);
        Blend_Pixel(X1 - sx, Y1, 127);
        Blend_Pixel(X2 + sx, Y2 + sy, g);
        Blend_Pixel(X2 + sx, Y2, 127);
        int e = dx / 2;
        for (int i = 0; i <= dx; ++i) {
            if (inClip(x, y)) {
                SetPixelV(dc, x, y, Color);
                const int t = e * 255 / dx;
                Blend_Pixel(x, y - sy, 255 - t);
                Blend_Pixel(x, y + sy, t);
            }
            e += dy;
            if (e >= dx) {
                e -= dx;
                y += sy;
            }
            x += sx;
        }
    }
}

namespace {

constexpr double TwoPi = 2.0 * 3.14159265358979323846;

double normalAngle(double a)
{
    a = std::fmod(a, TwoPi);
    return a < 0 ? a + TwoPi : a;
}

// Whether the direction (dx, up) from the centre lies on the arc start..stop.
bool onArc(int dx, int up, const Single *angles)
{
    if (!angles) return true;
    const double start = angles[0], stop = angles[1];
    if (stop - start >= TwoPi) return true;
    const double a = normalAngle(std::atan2(double(up), double(dx)));
    const double s = normalAngle(start), e = normalAngle(stop);
    return s <= e ? a >= s && a <= e : a >= s || a <= e;
}

} // namespace

void LineVR::ellipse(int cx, int cy, int rx, int ry, int thickness, const Single *angles)
{
    // One pixel at offset (ox, oy) from the centre, y down, at level a.
    const auto put = [&](int ox, int oy, int a) {
        if (onArc(ox, -oy, angles)) Blend_Pixel(cx + ox, cy + oy, a);
    };
    // The four mirror images of (ox, oy), each once.
    const auto put4 = [&](int ox, int oy, int a) {
        put(ox, oy, a);
        if (ox != 0) put(-ox, oy, a);
        if (oy != 0) put(ox, -oy, a);
        if (ox != 0 && oy != 0) put(-ox, -oy, a);
    };
    thickness = std::max(1, thickness);
    for (int j = 0; j < thickness; ++j) {
        const int a = rx - j, b = ry - j;
        if (a < 0 || b < 0) break;
        const bool outerSoft = j == 0, innerSoft = j == thickness - 1;
        if (a == 0 || b == 0) {
            // A flat ellipse is its axis.
            for (int i = 0; i <= a; ++i) put4(i, 0, 255);
            for (int i = 0; i <= b; ++i) put4(0, i, 255);
            continue;
        }
        const double len = std::sqrt(double(a) * a + double(b) * b);
        // Where the slope is below 1 the walk goes along x, beyond it along y.
        const int xe = int(double(a) * a / len);
        for (int x = 0; x <= xe; ++x) {
            const double y = b * std::sqrt(std::max(0.0, 1.0 - double(x) * x / (double(a) * a)));
            const int yi = int(std::floor(y));
            const double f = y - yi;
            put4(x, yi + 1, outerSoft ? int(f * 255.0) : 255);
            put4(x, yi, innerSoft ? int((1.0 - f) * 255.0) : 255);
        }
        const int ye = int(double(b) * b / len);
        for (int y = 0; y <= ye; ++y) {
            const double x = a * std::sqrt(std::max(0.0, 1.0 - double(y) * y / (double(b) * b)));
            const int xi = int(std::floor(x));
            const double f = x - xi;
            put4(xi + 1, y, outerSoft ? int(f * 255.0) : 255);
            put4(xi, y, innerSoft ? int((1.0 - f) * 255.0) : 255);
        }
    }
}

void LineVR::CircleGP(DeviceContext &dc, int X1, int Y1, int RadiusX, int RadiusY,
                      ColorLong Color, int Thickness)
{
    hdc = &dc;
    setColor(Color);
    ellipse(X1, Y1, std::abs(RadiusX), std::abs(RadiusY), Thickness, nullptr);
}

void LineVR::ArcGP(DeviceContext &dc, int X1, int Y1, int RadiusX, int RadiusY,
                   Single StartAngle, Single StopAngle, ColorLong Color, int Thickness)
{
    hdc = &dc;
    setColor(Color);
    const Single angles[2] = {StartAngle, StopAngle};
    ellipse(X1, Y1, std::abs(RadiusX), std::abs(RadiusY), Thickness, angles);
}

} // namespace tf
