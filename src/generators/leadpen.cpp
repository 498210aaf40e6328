#include "generators/leadpen.h"

#include "core/picturebox.h"
#include "tools/aaline.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tf {

namespace {
constexpr double TwoPi = 2 * std::numbers::pi;
// The length of one chord of a curve in pixels: short enough that no corner shows.
constexpr double ChordLength = 3.0;
} // namespace

LeadPen::LeadPen(PictureBox &picture, ColorLong colour, int width)
    : m_pic(picture), m_colour(colour), m_width(std::max(1, width))
{
}

void LeadPen::line(double x1, double y1, double x2, double y2) const
{
    const double length = std::hypot(x2 - x1, y2 - y1);
    if (length == 0)
        return;
    // Each end reaches a little past its point: the chords of a curve overlap, and the lead
    // mixed over lead stays lead, so the joins show neither gaps nor light spots.
    const double reach = std::min(1.0, m_width / 2.0) / length;
    const double dx = (x2 - x1) * reach, dy = (y2 - y1) * reach;
    AA_Line(m_pic, x1 - dx, y1 - dy, x2 + dx, y2 + dy, m_colour, m_width, true);
}

void LeadPen::box(int x1, int y1, int x2, int y2) const
{
    if (x2 < x1) std::swap(x1, x2);
    if (y2 < y1) std::swap(y1, y2);
    const int w = std::min(m_width, std::min(x2 - x1, y2 - y1) / 2 + 1);
    m_pic.Line(x1, y1, x2, y1 + w - 1, m_colour, LineFlags::BF);
    m_pic.Line(x1, y2 - w + 1, x2, y2, m_colour, LineFlags::BF);
    m_pic.Line(x1, y1, x1 + w - 1, y2, m_colour, LineFlags::BF);
    m_pic.Line(x2 - w + 1, y1, x2, y2, m_colour, LineFlags::BF);
}

void LeadPen::arc(double cx, double cy, double r, double from, double to) const
{
    if (r <= 0)
        return;
    double sweep = to - from;
    while (sweep <= 0)
        sweep += TwoPi;
    const int steps = std::max(4, int(std::ceil(sweep * r / ChordLength)));
    double px = cx + r * std::cos(from), py = cy - r * std::sin(from);
    for (int i = 1; i <= steps; ++i) {
        const double a = from + sweep * i / steps;
        const double x = cx + r * std::cos(a), y = cy - r * std::sin(a);
        line(px, py, x, y);
        px = x;
        py = y;
    }
}

void LeadPen::circle(double cx, double cy, double r) const { arc(cx, cy, r, 0, TwoPi); }

void LeadPen::polar(double cx, double cy, const std::function<double(double)> &radiusAt) const
{
    double largest = 1;
    for (int i = 0; i < 64; ++i)
        largest = std::max(largest, radiusAt(TwoPi * i / 64));
    const int steps = std::max(16, int(std::ceil(TwoPi * largest / ChordLength)));
    double px = cx + radiusAt(0), py = cy;
    for (int i = 1; i <= steps; ++i) {
        const double a = TwoPi * i / steps;
        const double r = radiusAt(a);
        const double x = cx + r * std::cos(a), y = cy - r * std::sin(a);
        line(px, py, x, y);
        px = x;
        py = y;
    }
}

} // namespace tf
