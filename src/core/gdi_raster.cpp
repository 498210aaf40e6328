#include "core/gdi_raster.h"

#include "core/numeric.h"

#include <algorithm>
#include <cmath>

namespace tf::raster {

namespace {

// Tolerance of the inside tests: a centre on the boundary counts as inside despite rounding.
constexpr double Eps = 1e-9;
// Pixel coordinates beyond this are off every picture; clamping keeps the int conversions safe.
constexpr double Far = 1 << 30;

int toPixel(double v) { return int(std::clamp(v, -Far, Far)); }

void writeRun(uchar *p, int n, int bpp, ColorLong c)
{
    const uchar b = uchar(BlueOf(c)), g = uchar(GreenOf(c)), r = uchar(RedOf(c));
    if (bpp == 4) {
        const uint32_t v = 0xFF000000u | (uint32_t(r) << 16) | (uint32_t(g) << 8) | b;
        auto *q = reinterpret_cast<uint32_t *>(p);
        std::fill(q, q + n, v);
        return;
    }
    for (int i = 0; i < n; ++i, p += 3) {
        p[0] = b;
        p[1] = g;
        p[2] = r;
    }
}

// Clips pixels x0..x1 of row y to the context; answers false when nothing is left.
bool clipSpan(const DeviceContext &dc, int y, int &x0, int &x1)
{
    if (!dc.valid())
        return false;
    const QRect clip = dc.clip();
    if (y < clip.top() || y > clip.bottom())
        return false;
    x0 = std::max(x0, clip.left());
    x1 = std::min(x1, clip.right());
    return x0 <= x1;
}

double normalAngle(double a)
{
    const double twoPi = 2 * Pi;
    a = std::fmod(a, twoPi);
    return a < 0 ? a + twoPi : a;
}

} // namespace

// ---- Writing pixels ---------------------------------------------------------------------------

void copySpan(DeviceContext &dc, int y, int x0, int x1, ColorLong c)
{
    if (!clipSpan(dc, y, x0, x1))
        return;
    const int bpp = dc.bytesPerPixel();
    writeRun(dc.scanLine(y) + x0 * bpp, x1 - x0 + 1, bpp, c);
}

void plotSpan(DeviceContext &dc, int y, int x0, int x1, ColorLong c)
{
    if (dc.rop2 == R2_COPYPEN)
        return copySpan(dc, y, x0, x1, c);
    if (dc.rop2 == R2_NOP || !clipSpan(dc, y, x0, x1))
        return;
    const int bpp = dc.bytesPerPixel();
    uchar *p = dc.scanLine(y) + x0 * bpp;
    for (int x = x0; x <= x1; ++x, p += bpp) {
        const uint32_t d = uint32_t(p[2]) | (uint32_t(p[1]) << 8) | (uint32_t(p[0]) << 16);
        const uint32_t v = applyRop2(dc.rop2, uint32_t(c), d);
        p[0] = uchar(v >> 16);
        p[1] = uchar(v >> 8);
        p[2] = uchar(v);
        if (bpp == 4)
            p[3] = 0xFF;
    }
}

// ---- Width-1 lines ------------------------------------------------------------------------

std::span<const int> dashPattern(int style)
{
    static constexpr int dash[] = {18, 6};
    static constexpr int dot[] = {3, 3};
    static constexpr int dashDot[] = {9, 6, 3, 6};
    static constexpr int dashDotDot[] = {9, 3, 3, 3, 3, 3};
    switch (style) {
    case PS_DASH: return dash;
    case PS_DOT: return dot;
    case PS_DASHDOT: return dashDot;
    case PS_DASHDOTDOT: return dashDotDot;
    default: return {};
    }
}

bool dashOn(std::span<const int> pattern, int64_t pos)
{
    if (pattern.empty())
        return true;
    int total = 0;
    for (int n : pattern)
        total += n;
    int64_t p = pos % total;
    if (p < 0)
        p += total;
    for (size_t i = 0; i < pattern.size(); ++i) {
        if (p < pattern[i])
            return i % 2 == 0;
        p -= pattern[i];
    }
    return false;
}

// ---- Convex figures ---------------------------------------------------------------------------

RoundBox RoundBox::grown(double d) const
{
    RoundBox r = *this;
    r.hx = hx + d;
    r.hy = hy + d;
    r.ex = ex > 0 ? std::clamp(ex + d, 0.0, std::max(0.0, r.hx)) : 0.0;
    r.ey = ey > 0 ? std::clamp(ey + d, 0.0, std::max(0.0, r.hy)) : 0.0;
    return r;
}

bool RoundBox::row(int y, int &x0, int &x1) const
{
    if (hx < 0 || hy < 0)
        return false;
    const double dy = std::abs(double(y) - cy);
    if (dy > hy + Eps)
        return false;
    const double inner = hy - ey;
    double half = hx;
    if (dy > inner && ey > 0) {
        const double t = std::min(1.0, (dy - inner) / ey);
        half = (hx - ex) + ex * std::sqrt(std::max(0.0, 1.0 - t * t));
    }
    x0 = toPixel(std::ceil(cx - half - Eps));
    x1 = toPixel(std::floor(cx + half + Eps));
    return x0 <= x1;
}

int RoundBox::top() const { return toPixel(std::ceil(cy - hy - Eps)); }
int RoundBox::bottom() const { return toPixel(std::floor(cy + hy + Eps)); }

QRect RoundBox::bounds() const
{
    if (hx < 0 || hy < 0)
        return QRect();
    return QRect(QPoint(toPixel(std::ceil(cx - hx - Eps)), top()),
                 QPoint(toPixel(std::floor(cx + hx + Eps)), bottom()));
}

RoundBox boxOfRect(int left, int top, int right, int bottom, double ew, double eh)
{
    RoundBox b;
    b.cx = (double(left) + double(right) - 1) / 2;
    b.cy = (double(top) + double(bottom) - 1) / 2;
    b.hx = (double(right) - double(left)) / 2;
    b.hy = (double(bottom) - double(top)) / 2;
    b.ex = std::clamp(ew / 2, 0.0, std::max(0.0, b.hx));
    b.ey = std::clamp(eh / 2, 0.0, std::max(0.0, b.hy));
    return b;
}

bool capsuleRow(double ax, double ay, double bx, double by, double r, int y, int &x0, int &x1)
{
    // The row crosses the stroke's boundary on the end circles or on the two sides parallel
    // to the segment; every candidate lies inside the stroke, so their extremes bound the row.
    double lo = Far, hi = -Far;
    bool any = false;
    auto take = [&](double x) {
        lo = std::min(lo, x);
        hi = std::max(hi, x);
        any = true;
    };
    const double yc = y;
    for (const auto &[px, py] : {std::pair{ax, ay}, std::pair{bx, by}}) {
        const double d = yc - py;
        if (std::abs(d) <= r + Eps) {
            const double s = std::sqrt(std::max(0.0, r * r - d * d));
            take(px - s);
            take(px + s);
        }
    }
    const double vx = bx - ax, vy = by - ay;
    const double len = std::hypot(vx, vy);
    if (len > 0 && vy != 0) {
        const double nx = -vy / len * r, ny = vx / len * r;
        for (int side : {-1, 1}) {
            const double t = (yc - ay - side * ny) / vy;
            if (t >= -Eps && t <= 1 + Eps)
                take(ax + side * nx + t * vx);
        }
    }
    if (!any)
        return false;
    x0 = toPixel(std::ceil(lo - Eps));
    x1 = toPixel(std::floor(hi + Eps));
    return x0 <= x1;
}

// ---- Labelled mask ------------------------------------------------------------------------

Mask::Mask(const QRect &box) : m_box(box.isValid() ? box : QRect())
{
    m_bits.assign(size_t(std::max(0, m_box.width())) * size_t(std::max(0, m_box.height())),
                  uint8_t(Empty));
}

void Mask::span(int y, int x0, int x1, uint8_t label)
{
    if (y < m_box.top() || y > m_box.bottom())
        return;
    x0 = std::max(x0, m_box.left());
    x1 = std::min(x1, m_box.right());
    if (x0 > x1)
        return;
    uint8_t *row = m_bits.data() + size_t(y - m_box.top()) * size_t(m_box.width());
    std::fill(row + (x0 - m_box.left()), row + (x1 - m_box.left() + 1), label);
}

void Mask::spanUnder(int y, int x0, int x1, uint8_t label)
{
    if (y < m_box.top() || y > m_box.bottom())
        return;
    x0 = std::max(x0, m_box.left());
    x1 = std::min(x1, m_box.right());
    uint8_t *row = m_bits.data() + size_t(y - m_box.top()) * size_t(m_box.width());
    for (int x = x0; x <= x1; ++x)
        if (row[x - m_box.left()] == Empty)
            row[x - m_box.left()] = label;
}

void Mask::paint(DeviceContext &dc, const ColorLong colours[4]) const
{
    const int w = m_box.width();
    for (int j = 0; j < m_box.height(); ++j) {
        const uint8_t *row = m_bits.data() + size_t(j) * size_t(w);
        int i = 0;
        while (i < w) {
            const uint8_t label = row[i];
            int k = i + 1;
            while (k < w && row[k] == label)
                ++k;
            if (label != Empty && colours[label] >= 0)
                plotSpan(dc, m_box.top() + j, m_box.left() + i, m_box.left() + k - 1,
                         colours[label]);
            i = k;
        }
    }
}

// ---- Strokes and figures --------------------------------------------------------------------

Stroke strokeOf(const DeviceContext &dc, const Pen &pen)
{
    Stroke s;
    s.style = pen.style;
    s.width = std::max(1, pen.width);
    s.colour = pen.color;
    s.opaqueGaps = dc.bkMode == OPAQUE;
    s.gapColour = dc.bkColor;
    return s;
}

Stroke strokeOf(const DeviceContext &dc) { return strokeOf(dc, dc.pen); }

namespace {

// The stroke of a wide pen around a segment, as rows handed to `f(y, x0, x1)`.
template <typename F>
QRect wideSegment(const QRect &clip, int x1, int y1, int x2, int y2, int width, F &&f)
{
    // Even widths cannot be centred on a pixel: the extra row or column goes right and down.
    const double shift = (width % 2 == 0 ? 0.5 : 0.0) + 1e-7;
    const double ax = x1 + shift, ay = y1 + shift, bx = x2 + shift, by = y2 + shift;
    const double r = width / 2.0;
    const int top = std::max(clip.top(), toPixel(std::floor(std::min(ay, by) - r)));
    const int bottom = std::min(clip.bottom(), toPixel(std::ceil(std::max(ay, by) + r)));
    QRect changed;
    for (int y = top; y <= bottom; ++y) {
        int a, b;
        if (capsuleRow(ax, ay, bx, by, r, y, a, b)) {
            f(y, a, b);
            changed |= QRect(QPoint(std::max(a, clip.left()), y), QPoint(std::min(b, clip.right()), y));
        }
    }
    return changed;
}

} // namespace

QRect drawLine(DeviceContext &dc, int x1, int y1, int x2, int y2, const Stroke &stroke,
               int64_t &phase, bool includeEnd)
{
    if (!dc.valid() || !stroke.visible())
        return QRect();
    const QRect clip = dc.clip();
    if (!stroke.thin())
        return wideSegment(clip, x1, y1, x2, y2, stroke.width,
                           [&](int y, int a, int b) { plotSpan(dc, y, a, b, stroke.colour); });

    const auto pattern = dashPattern(stroke.style);
    int minX = INT32_MAX, minY = INT32_MAX, maxX = INT32_MIN, maxY = INT32_MIN;
    const int64_t n = thinLine(x1, y1, x2, y2, includeEnd, clip, [&](int x, int y, int64_t i) {
        if (!clip.contains(x, y))
            return;
        if (dashOn(pattern, phase + i))
            dc.plot(x, y, stroke.colour);
        else if (stroke.opaqueGaps)
            dc.plot(x, y, stroke.gapColour);
        else
            return;
        minX = std::min(minX, x);
        maxX = std::max(maxX, x);
        minY = std::min(minY, y);
        maxY = std::max(maxY, y);
    });
    phase += n;
    return minX > maxX ? QRect() : QRect(QPoint(minX, minY), QPoint(maxX, maxY));
}

QRect drawRoundBox(DeviceContext &dc, const RoundBox &shape, const Stroke &stroke,
                   ColorLong fill, const ArcSpec &arc)
{
    if (!dc.valid() || shape.hx < 0 || shape.hy < 0)
        return QRect();
    const bool pen = stroke.visible();
    const bool thin = stroke.thin();
    const int out = pen ? stroke.outward() : 0;
    // Outer and inner boundaries of the outline; the fill lies within the inner one.
    const RoundBox outer = shape.grown(out);
    const RoundBox inner = pen ? shape.grown(out - stroke.width) : shape;
    const QRect box = outer.bounds().adjusted(-stroke.width, -stroke.width, stroke.width,
                                              stroke.width).intersected(dc.clip());
    if (box.isEmpty())
        return QRect();

    const bool pie = arc.partial && arc.lineStart && arc.lineEnd;
    const bool filled = fill >= 0 && (!arc.partial || pie);
    const double start = normalAngle(arc.start);
    double sweep = normalAngle(arc.end) - start;
    if (sweep <= 0)
        sweep += 2 * Pi;
    // Parametric angle of a pixel, measured counter-clockwise from the arc's start.
    const double kx = shape.hx > 0 ? shape.hx : 1, ky = shape.hy > 0 ? shape.hy : 1;
    auto relAngle = [&](int x, int y) {
        return normalAngle(std::atan2(-(y - shape.cy) / ky, (x - shape.cx) / kx) - start);
    };
    auto inSector = [&](int x, int y) { return !arc.partial || relAngle(x, y) <= sweep + 1e-12; };

    Mask mask(box);
    const auto pattern = pen && thin ? dashPattern(stroke.style) : std::span<const int>();
    struct RingPixel {
        double angle;
        int x, y;
    };
    std::vector<RingPixel> dashed;

    // Rows of the shape one row beyond the box, for the 4-neighbour test of thin outlines.
    auto rowOf = [&](const RoundBox &b, int y, int &a0, int &a1) {
        if (!b.row(y, a0, a1)) {
            a0 = 1;
            a1 = 0;
            return false;
        }
        return true;
    };

    for (int y = box.top(); y <= box.bottom(); ++y) {
        int o0, o1, i0, i1;
        if (!rowOf(outer, y, o0, o1))
            continue;
        if (pen && thin) {
            // Interior: pixels whose four neighbours are all covered.
            int u0, u1, d0, d1;
            const bool up = rowOf(shape, y - 1, u0, u1), down = rowOf(shape, y + 1, d0, d1);
            i0 = std::max({o0 + 1, u0, d0});
            i1 = std::min({o1 - 1, u1, d1});
            if (!up || !down)
                i0 = 1, i1 = 0;
        } else if (!rowOf(inner, y, i0, i1)) {
            i0 = 1;
            i1 = 0;
        }
        if (filled) {
            if (!arc.partial)
                mask.span(y, i0, i1, BrushLabel);
            else
                for (int x = std::max(i0, box.left()); x <= std::min(i1, box.right()); ++x)
                    if (inSector(x, y))
                        mask.set(x, y, BrushLabel);
        }
        if (!pen)
            continue;
        // The outline: the outer row without the inner one.
        const int a0 = std::max(o0, box.left()), a1 = std::min(o1, box.right());
        for (int x = a0; x <= a1; ++x) {
            if (i0 <= i1 && x >= i0 && x <= i1) {
                x = i1;
                continue;
            }
            if (!inSector(x, y))
                continue;
            if (pattern.empty())
                mask.set(x, y, PenLabel);
            else
                dashed.push_back({relAngle(x, y), x, y});
        }
    }
    if (!dashed.empty()) {
        std::sort(dashed.begin(), dashed.end(),
                  [](const RingPixel &a, const RingPixel &b) { return a.angle < b.angle; });
        for (size_t k = 0; k < dashed.size(); ++k)
            mask.set(dashed[k].x, dashed[k].y, dashOn(pattern, int64_t(k)) ? PenLabel : GapLabel);
    }

    // Radius lines from the centre to the ends of the arc.
    if (pen && arc.partial && (arc.lineStart || arc.lineEnd)) {
        const int cx = int(roundHalfEven(shape.cx)), cy = int(roundHalfEven(shape.cy));
        auto radius = [&](double a) {
            const int ex = toPixel(roundHalfEven(shape.cx + (shape.hx - 0.5) * std::cos(a)));
            const int ey = toPixel(roundHalfEven(shape.cy - (shape.hy - 0.5) * std::sin(a)));
            if (thin)
                thinLine(cx, cy, ex, ey, true, box,
                         [&](int x, int y, int64_t) { mask.set(x, y, PenLabel); });
            else
                wideSegment(box, cx, cy, ex, ey, stroke.width,
                            [&](int y, int x0, int x1) { mask.span(y, x0, x1, PenLabel); });
        };
        if (arc.lineStart)
            radius(start);
        if (arc.lineEnd)
            radius(start + sweep);
    }

    const ColorLong colours[4] = {-1, stroke.colour, stroke.opaqueGaps ? stroke.gapColour : -1,
                                  fill};
    mask.paint(dc, colours);
    return box;
}

QRect drawPoly(DeviceContext &dc, std::span<const QPoint> pts, bool closed, const Stroke &stroke,
               ColorLong fill)
{
    if (!dc.valid() || pts.empty())
        return QRect();
    int minX = pts[0].x(), maxX = minX, minY = pts[0].y(), maxY = minY;
    for (const QPoint &p : pts) {
        minX = std::min(minX, p.x());
        maxX = std::max(maxX, p.x());
        minY = std::min(minY, p.y());
        maxY = std::max(maxY, p.y());
    }
    const int margin = stroke.width;
    const QRect box = QRect(QPoint(minX, minY), QPoint(maxX, maxY))
                          .adjusted(-margin, -margin, margin, margin)
                          .intersected(dc.clip());
    if (box.isEmpty())
        return QRect();
    Mask mask(box);
    const size_t n = pts.size();

    if (fill >= 0 && closed && n >= 3) {
        // Even-odd rule: a pixel is inside when its centre lies left of an odd number of
        // crossings; each edge owns its upper end and not its lower one.
        std::vector<double> xs;
        for (int y = box.top(); y <= box.bottom(); ++y) {
            xs.clear();
            for (size_t i = 0; i < n; ++i) {
                const QPoint &p = pts[i], &q = pts[(i + 1) % n];
                if (p.y() == q.y())
                    continue;
                const int y0 = std::min(p.y(), q.y()), y1 = std::max(p.y(), q.y());
                if (y < y0 || y >= y1)
                    continue;
                xs.push_back(p.x() + double(y - p.y()) * (q.x() - p.x()) / double(q.y() - p.y()));
            }
            std::sort(xs.begin(), xs.end());
            for (size_t k = 0; k + 1 < xs.size(); k += 2)
                mask.span(y, toPixel(std::ceil(xs[k] - Eps)), toPixel(std::ceil(xs[k + 1] - Eps)) - 1,
                          BrushLabel);
        }
    }

    if (stroke.visible()) {
        const size_t edges = closed ? n : n - 1;
        if (stroke.thin()) {
            const auto pattern = dashPattern(stroke.style);
            int64_t phase = 0;
            for (size_t i = 0; i < edges; ++i) {
                const QPoint &p = pts[i], &q = pts[(i + 1) % n];
                phase += thinLine(p.x(), p.y(), q.x(), q.y(), false, box,
                                  [&](int x, int y, int64_t k) {
                                      mask.set(x, y, dashOn(pattern, phase + k) ? PenLabel : GapLabel);
                                  });
            }
        } else {
            for (size_t i = 0; i < edges; ++i) {
                const QPoint &p = pts[i], &q = pts[(i + 1) % n];
                wideSegment(box, p.x(), p.y(), q.x(), q.y(), stroke.width,
                            [&](int y, int x0, int x1) { mask.span(y, x0, x1, PenLabel); });
            }
        }
    }
    const ColorLong colours[4] = {-1, stroke.colour, stroke.opaqueGaps ? stroke.gapColour : -1,
                                  fill};
    mask.paint(dc, colours);
    return box;
}

QRect drawDot(DeviceContext &dc, int x, int y, int width, ColorLong colour)
{
    if (!dc.valid())
        return QRect();
    if (width <= 1) {
        dc.plot(x, y, colour);
        return dc.clip().contains(x, y) ? QRect(x, y, 1, 1) : QRect();
    }
    const double shift = width % 2 == 0 ? 0.5 : 0.0;
    RoundBox disk;
    disk.cx = x + shift;
    disk.cy = y + shift;
    disk.hx = disk.hy = disk.ex = disk.ey = width / 2.0;
    const QRect box = disk.bounds().intersected(dc.clip());
    for (int j = box.top(); j <= box.bottom(); ++j) {
        int a, b;
        if (disk.row(j, a, b))
            plotSpan(dc, j, a, b, colour);
    }
    return box;
}

} // namespace tf::raster
