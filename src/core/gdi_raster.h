#pragma once
// Rasterisation shared by the graphics-device calls and the picture control: width-1 lines
// with their end-point rule and dash styles, convex rounded figures as row intervals, wide
// strokes, polygons, and a labelled coverage mask that writes every pixel once.
//
// Geometry: integer coordinates are pixel centres. A figure covers the pixels whose centres
// lie inside it (boundary included). This keeps circles and boxes exactly symmetric about
// their centre pixel.

#include "core/devicecontext.h"

#include <QPoint>
#include <QRect>
#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

namespace tf::raster {

// ---- Writing pixels ---------------------------------------------------------------------------

// Writes `c` over pixels x0..x1 of row y through dc.rop2, inside the clip; x0 > x1 is empty.
void plotSpan(DeviceContext &dc, int y, int x0, int x1, ColorLong c);
// The same ignoring the raster mode (a plain copy).
void copySpan(DeviceContext &dc, int y, int x0, int x1, ColorLong c);

// ---- Width-1 lines ------------------------------------------------------------------------

// Alternating on/off lengths of a width-1 pen style (PS_DASH ... PS_DASHDOTDOT); empty for
// the others.
std::span<const int> dashPattern(int style);
// Whether position `pos` of a styled line is on; always true for an empty pattern.
bool dashOn(std::span<const int> pattern, int64_t pos);

// Visits the pixels of the line from (x1,y1) to (x2,y2) in order, as f(x, y, step). The end
// point is visited only with `includeEnd`; a line of length zero visits its one point either
// way. Only steps whose major coordinate lies inside `bounds` are visited (so far-away end
// points cost nothing); the minor coordinate is not checked. Answers the number of steps of
// the whole line (its major length), for continuing a dash pattern.
template <typename F>
int64_t thinLine(int64_t x1, int64_t y1, int64_t x2, int64_t y2, bool includeEnd,
                 const QRect &bounds, F &&f)
{
    const int64_t dx = x2 - x1, dy = y2 - y1;
    const int64_t adx = dx < 0 ? -dx : dx, ady = dy < 0 ? -dy : dy;
    const int64_t sx = dx < 0 ? -1 : 1, sy = dy < 0 ? -1 : 1;
    const bool xMajor = adx >= ady;
    const int64_t n = xMajor ? adx : ady; // steps before the end point
    const int64_t last = (includeEnd || n == 0) ? n : n - 1;
    // Major coordinate of step i is m0 + sm * i; keep it inside the bounds.
    const int64_t m0 = xMajor ? x1 : y1, sm = xMajor ? sx : sy;
    const int64_t lo = xMajor ? bounds.left() : bounds.top();
    const int64_t hi = xMajor ? bounds.right() : bounds.bottom();
    int64_t iFirst = 0, iLast = last;
    if (sm > 0) {
        iFirst = std::max<int64_t>(iFirst, lo - m0);
        iLast = std::min<int64_t>(iLast, hi - m0);
    } else {
        iFirst = std::max<int64_t>(iFirst, m0 - hi);
        iLast = std::min<int64_t>(iLast, m0 - lo);
    }
    if (iFirst > iLast)
        return n;
    // Minor offset of step i: i * dMinor / dMajor rounded, a half away from the start, i.e.
    // (2 i dMinor + dMajor) div (2 dMajor), stepped with its remainder. The first value is
    // computed in 128 bits since far-away lines can exceed 64.
    __extension__ typedef __int128 Wide;
    const int64_t dMajor = xMajor ? adx : ady, dMinor = xMajor ? ady : adx;
    const int64_t den = 2 * std::max<int64_t>(dMajor, 1);
    const Wide num = Wide(2) * iFirst * dMinor + dMajor;
    int64_t off = int64_t(num / den), rem = int64_t(num % den);
    for (int64_t i = iFirst; i <= iLast; ++i) {
        const int64_t x = xMajor ? x1 + sx * i : x1 + sx * off;
        const int64_t y = xMajor ? y1 + sy * off : y1 + sy * i;
        f(int(x), int(y), i);
        rem += 2 * dMinor;
        if (rem >= den) {
            ++off;
            rem -= den;
        }
    }
    return n;
}

// ---- Convex figures ---------------------------------------------------------------------------

// A box with elliptic corners around (cx, cy): half-extents hx, hy, corner semi-axes ex <= hx,
// ey <= hy. ex = hx, ey = hy is an ellipse; ex = ey = 0 a rectangle. A half-extent below 0
// is empty.
struct RoundBox {
    double cx = 0, cy = 0, hx = 0, hy = 0, ex = 0, ey = 0;

    // The box grown (or shrunk, d < 0) by d on every side; corners follow.
    RoundBox grown(double d) const;
    // The covered pixels of row y as [x0, x1]; false when none.
    bool row(int y, int &x0, int &x1) const;
    // First and last row that may be covered.
    int top() const;
    int bottom() const;
    QRect bounds() const;
};

// The hull of the rectangle right/bottom exclusive (left, top, right, bottom), rounded by
// corner ellipses of ew x eh pixels (0: square corners).
RoundBox boxOfRect(int left, int top, int right, int bottom, double ew = 0, double eh = 0);

// The covered pixels of row y of the round-ended stroke of radius r around the segment
// a-b (which may be a point); false when none.
bool capsuleRow(double ax, double ay, double bx, double by, double r, int y, int &x0, int &x1);

// ---- Labelled mask ------------------------------------------------------------------------

enum Label : uint8_t { Empty = 0, PenLabel = 1, GapLabel = 2, BrushLabel = 3 };

// A pixel mask over a rectangle of the picture; each pixel holds a label and later writes win.
class Mask {
public:
    explicit Mask(const QRect &box);
    const QRect &box() const { return m_box; }
    bool isEmpty() const { return m_box.isEmpty(); }
    uint8_t at(int x, int y) const
    {
        return m_box.contains(x, y)
                   ? m_bits[size_t(y - m_box.top()) * size_t(m_box.width()) + size_t(x - m_box.left())]
                   : uint8_t(Empty);
    }
    void set(int x, int y, uint8_t label)
    {
        if (m_box.contains(x, y))
            m_bits[size_t(y - m_box.top()) * size_t(m_box.width()) + size_t(x - m_box.left())] =
                label;
    }
    // Sets pixels x0..x1 of row y (clipped to the box).
    void span(int y, int x0, int x1, uint8_t label);
    // Sets the pixels of `label` only where the mask is empty.
    void spanUnder(int y, int x0, int x1, uint8_t label);
    // Writes each labelled pixel in colours[label] through dc.rop2; a negative colour skips
    // the label.
    void paint(DeviceContext &dc, const ColorLong colours[4]) const;

private:
    QRect m_box;
    std::vector<uint8_t> m_bits;
};

// ---- Strokes and figures --------------------------------------------------------------------

// How an outline is drawn: the pen plus what the gaps of a dashed width-1 pen get.
struct Stroke {
    int style = PS_SOLID;
    int width = 1;
    ColorLong colour = 0;
    bool opaqueGaps = false; // gaps in gapColour (background mode OPAQUE)
    ColorLong gapColour = 0xFFFFFF;

    bool visible() const { return style != PS_NULL; }
    bool thin() const { return width <= 1; }
    // Outward part of a wide outline: half of it, nothing for the inside frame style.
    int outward() const { return style == PS_INSIDEFRAME ? 0 : (width - 1) / 2; }
};

// The pen, background and raster context of a device context as a stroke.
Stroke strokeOf(const DeviceContext &dc);
Stroke strokeOf(const DeviceContext &dc, const Pen &pen);

// A line with the stroke, drawn straight to the context. Width 1 follows the end-point rule
// of thinLine (with `includeEnd`) and continues the dash pattern from `phase`, which it
// advances; wider pens draw a round-ended stroke including both ends. Answers the pixels'
// bounding box (for repaints).
QRect drawLine(DeviceContext &dc, int x1, int y1, int x2, int y2, const Stroke &stroke,
               int64_t &phase, bool includeEnd = false);

// An elliptic figure: the ellipse of `shape` (an ellipse RoundBox), optionally only the arc
// from `start` to `end` (radians, counter-clockwise, parametric), with radius lines to either
// end and, for a pie, the sector filled.
struct ArcSpec {
    bool partial = false;
    double start = 0, end = 0;
    bool lineStart = false, lineEnd = false;
};

// Draws a convex figure (ellipse, rectangle, rounded box) with outline and fill; `fill`
// negative means no fill. For an ellipse, `arc` may restrict it (fill only when both radius
// lines close it). Answers the bounding box of what may have changed.
QRect drawRoundBox(DeviceContext &dc, const RoundBox &shape, const Stroke &stroke,
                   ColorLong fill, const ArcSpec &arc = ArcSpec());

// A polygon (closed) or polyline (open) through integer points, fill negative for none;
// the polygon is filled by the even-odd rule. Answers the bounding box.
QRect drawPoly(DeviceContext &dc, std::span<const QPoint> pts, bool closed, const Stroke &stroke,
               ColorLong fill);

// A round dot of `width` pixels centred on pixel (x,y) (1: the pixel) through dc.rop2.
QRect drawDot(DeviceContext &dc, int x, int y, int width, ColorLong colour);

} // namespace tf::raster
