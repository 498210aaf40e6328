#include "tools/aaline.h"

#include "core/numeric.h"
#include "core/picturebox.h"
#include "tools/linevr.h"

#include <QRect>
#include <algorithm>
#include <climits>
#include <cmath>

namespace tf {

ColorLong Mix_Colors(ColorLong a, ColorLong b, double f)
{
    const auto mix = [f](int u, int v) {
        return std::clamp(int(roundHalfEven(u * f + v * (1.0 - f))), 0, 255);
    };
    return RGB(mix(RedOf(a), RedOf(b)), mix(GreenOf(a), GreenOf(b)), mix(BlueOf(a), BlueOf(b)));
}

namespace {

// The length of the overlap of [a0, a1] with [b0, b1], 0 when they do not meet.
double overlap(double a0, double a1, double b0, double b1)
{
    return std::max(0.0, std::min(a1, b1) - std::max(a0, b0));
}

} // namespace

void AA_Line(PictureBox &picture, double x1, double y1, double x2, double y2, ColorLong color,
             int pen, bool flag)
{
    if (x1 == x2 && y1 == y2) return;
    DeviceContext &dc = picture.hDC();
    if (pen == 2) {
        LineVR line;
        line.LineGP(dc, int(roundHalfEven(x1)), int(roundHalfEven(y1)), int(roundHalfEven(x2)),
                    int(roundHalfEven(y2)), color);
        picture.markChanged();
        return;
    }
    const double width = std::max(1, pen);
    const bool steep = std::abs(x2 - x1) <= std::abs(y2 - y1);
    // Major coordinate m, minor n, walking from the smaller m.
    double m0 = steep ? y1 : x1, n0 = steep ? x1 : y1;
    double m1 = steep ? y2 : x2, n1 = steep ? x2 : y2;
    if (m1 < m0) {
        std::swap(m0, m1);
        std::swap(n0, n1);
    }
    const double slope = (n1 - n0) / (m1 - m0);
    // The band's extent across the walk: the perpendicular width seen along the minor axis.
    const double across = width * std::sqrt(1.0 + slope * slope);
    const int w = dc.width(), h = dc.height();
    const int mMax = steep ? h - 1 : w - 1, nMax = steep ? w - 1 : h - 1;
    const int kFirst = std::max(0, int(std::floor(m0 + 0.5)));
    const int kLast = std::min(mMax, int(std::ceil(m1 - 0.5)));
    int left = INT_MAX, top = INT_MAX, right = INT_MIN, bottom = INT_MIN;
    for (int k = kFirst; k <= kLast; ++k) {
        const double share = overlap(m0, m1, k - 0.5, k + 0.5);
        if (share <= 0.0) continue;
        const double mid = n0 + slope * (std::clamp(double(k), m0, m1) - m0);
        const double lo = mid - across / 2.0, hi = mid + across / 2.0;
        const int iFirst = std::max(0, int(std::floor(lo + 0.5)));
        const int iLast = std::min(nMax, int(std::ceil(hi - 0.5)));
        for (int i = iFirst; i <= iLast; ++i) {
            const double f = overlap(lo, hi, i - 0.5, i + 0.5) * share;
            const int x = steep ? i : k, y = steep ? k : i;
            if (f >= 1.0 - 1e-9 || (!flag && f >= 0.5))
                dc.setPixel(x, y, color);
            else if (flag && f > 0.0)
                dc.setPixel(x, y, Mix_Colors(color, dc.pixel(x, y), f));
            else
                continue;
            left = std::min(left, x);
            right = std::max(right, x);
            top = std::min(top, y);
            bottom = std::max(bottom, y);
        }
    }
    if (left <= right) picture.markChanged(QRect(QPoint(left, top), QPoint(right, bottom)));
}

} // namespace tf
