#include "generators/curves.h"

#include "generators/figures.h"
#include "generators/polypanels.h"

#include "core/picturebox.h"
#include "paint/colourdialog.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace tf {

using namespace fig;

void CurvePoints::add(double x, double y)
{
    m_x.push_back(x);
    m_y.push_back(y);
    m_points.push_back(POINTAPI{rounded(std::clamp(x, -1e6, 1e6)), rounded(std::clamp(y, -1e6, 1e6))});
}

void CurvePoints::polyline(PaintContext &ctx, int pen, bool closed,
                           const std::function<ColorLong(double)> &colourAt) const
{
    const size_t n = m_x.size();
    if (n < 2) return;
    const size_t segments = closed ? n : n - 1;
    for (size_t i = 0; i < segments; ++i) {
        const size_t j = (i + 1) % n;
        const ColorLong c = colourAt(double(i) / double(segments));
        if (c == NoColour) continue;
        line(ctx, m_x[i], m_y[i], m_x[j], m_y[j], c, pen);
    }
}

int gcdOf(int a, int b) { return std::gcd(std::abs(a), std::abs(b)); }

namespace {

// Two colours for a curve: two table cells, two picks, or fore and back.
std::pair<ColorLong, ColorLong> curveColours(PaintContext &ctx, int n)
{
    const ColourState &c = ctx.colours();
    if (!ctx.opt.UseDuoTable && !c.RandomColors) return {c.ColorFore, c.ColorBack};
    ColorLong a = figureColour(ctx, n), b = figureColour(ctx, n);
    if (a == NoColour) a = c.ColorFore;
    if (b == NoColour) b = c.ColorBack;
    return {a, b};
}

// There and back: 0 at both ends, 1 in the middle, so a closed curve's ramp meets itself.
double there(double t) { return 1.0 - std::abs(2.0 * t - 1.0); }

int controlNumber(PaintContext &ctx, const char *name, int index, int lo, int hi)
{
    const double v = ctx.session.controls().number(ControlKey{QString::fromLatin1(name), index});
    return std::clamp(rounded(v), lo, hi);
}

} // namespace

void DrawLissa(PaintContext &ctx, bool band)
{
    const bool randomValues = ctx.colours().RandomValues;
    const int n = countOf(ctx, randomValues ? rounded(rnd(ctx) * 200) + 2 : 0, 2);
    begin(ctx, n);
    double a = 0, b = 0;
    int points = 0;
    if (randomValues) {
        a = rnd(ctx) * 2048;
        b = rnd(ctx) * 2048;
        points = n * 8 + 64;
    } else {
        a = controlNumber(ctx, "txtLissa", 0, 1, 2048);
        b = controlNumber(ctx, "txtLissa", 1, 1, 2048);
        // Enough points for the smooth figure, at least the count's lattice.
        points = std::clamp(int(90 * (a + b)), n * 8 + 64, 40000);
    }
    const double phase = rnd(ctx) * Pi;
    const auto [c1, c2] = curveColours(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const double rx = w * 0.46, ry = h * 0.46, cx = w / 2.0, cy = h / 2.0;
    CurvePoints curve;
    for (int k = 0; k < points; ++k) {
        const double t = 2 * Pi * k / points;
        curve.add(cx + rx * std::sin(a * t + phase), cy + ry * std::sin(b * t));
    }
    if (!band) {
        curve.polyline(ctx, ctx.opt.PenWidth, true,
                       [&](double t) { return blend(c1, c2, there(t)); });
    } else {
        // The twin a quarter turn on; each pair of points is a thread of the ribbon.
        const double shift = 0.12 + rnd(ctx) * 0.25;
        const int threads = std::min(points, n * 4 + 100);
        for (int k = 0; k < threads; ++k) {
            const double t = 2 * Pi * k / threads;
            const double x1 = cx + rx * std::sin(a * t + phase), y1 = cy + ry * std::sin(b * t);
            const double x2 = cx + rx * std::sin(a * t + phase + shift);
            const double y2 = cy + ry * std::sin(b * t + shift);
            line(ctx, x1, y1, x2, y2, blend(c1, c2, there(double(k) / threads)),
                 ctx.opt.PenWidth);
        }
    }
    end(ctx);
}

void paintLissajou(PaintContext &ctx) { DrawLissa(ctx, false); }
void paintLissaBand(PaintContext &ctx) { DrawLissa(ctx, true); }

void Circle_Rose(PaintContext &ctx, bool crazy)
{
    const bool randomValues = ctx.colours().RandomValues;
    int p = 0, q = 0;
    if (randomValues) {
        p = rounded(rnd(ctx) * 30) + 6;
        q = rounded(rnd(ctx) * 30) + 5;
    } else {
        p = controlNumber(ctx, "txtRose", 0, 1, 36);
        q = controlNumber(ctx, "txtRose", 1, 1, 35);
    }
    const int n = std::max(2, p + q);
    begin(ctx, n);
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const double cx = w / 2.0, cy = h / 2.0;
    const double radius = std::min(w, h) * 0.47;
    const int layers = crazy ? 3 : 1;
    CurvePoints curve;
    for (int layer = 0; layer < layers; ++layer) {
        int lp = p, lq = q;
        if (layer > 0) {
            lp = rounded(rnd(ctx) * 30) + 6;
            lq = rounded(rnd(ctx) * 30) + 5;
        }
        const int g = gcdOf(lp, lq);
        lp /= g;
        lq /= g;
        const double k = double(lp) / lq;
        const double turn = rnd(ctx) * 2 * Pi;
        const double r = radius * (1.0 - 0.22 * layer);
        const int points = std::min(60000, 720 * lq);
        const auto [c1, c2] = curveColours(ctx, n);
        curve.clear();
        for (int i = 0; i < points; ++i) {
            const double theta = 2 * Pi * lq * i / points;
            const double rr = r * std::cos(k * theta);
            curve.add(cx + rr * std::cos(theta + turn), cy + rr * std::sin(theta + turn));
        }
        if (crazy) {
            polygon(pic, curve.points(), c1, NoColour);
            curve.polyline(ctx, 1, true, [&](double) { return c2; });
        } else {
            curve.polyline(ctx, ctx.opt.PenWidth, true,
                           [&](double t) { return blend(c1, c2, there(std::fmod(t * lq, 1.0))); });
        }
    }
    end(ctx);
}

void paintRose(PaintContext &ctx) { Circle_Rose(ctx, false); }
void paintRoseCrazy(PaintContext &ctx) { Circle_Rose(ctx, true); }

void Draw_SQINSQ(PaintContext &ctx)
{
    const bool randomValues = ctx.colours().RandomValues;
    const int n = randomValues ? rounded(rnd(ctx) * 200 / 4) + 2
                               : std::max(2, int(ctx.opt.NumberValue));
    begin(ctx, n);
    const double f = randomValues ? rnd(ctx) * 0.12 + 0.04 : 0.1;
    const int perSide = randomValues ? int(Int(rnd(ctx) * 3)) + 1 : 1;
    const auto [c1, c2] = curveColours(ctx, n);
    const bool table = ctx.opt.UseDuoTable;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const double side = double(std::min(w, h)) / perSide;
    const int cols = int(std::ceil(w / side - 1e-9)), rows = int(std::ceil(h / side - 1e-9));
    // The cells are centred, so a picture that is not square shows whole cells in the middle.
    const double ox = (w - cols * side) / 2.0, oy = (h - rows * side) / 2.0;
    const ColorLong outline = outlineColour(ctx);
    CurvePoints quad;
    for (int row = 0; row < rows; ++row) {
        for (int col = 0; col < cols; ++col) {
            const bool turn = (row + col) % 2 == 1;
            double x[4] = {ox + col * side, ox + (col + 1) * side, ox + (col + 1) * side,
                           ox + col * side};
            double y[4] = {oy + row * side, oy + row * side, oy + (row + 1) * side,
                           oy + (row + 1) * side};
            for (int d = 0; d < n; ++d) {
                ColorLong c = table ? tableColour(ctx, d + 1, n)
                                    : blend(c1, c2, d % 2 == 0 ? double(d) / n : 1.0 - double(d) / n);
                quad.clear();
                for (int i = 0; i < 4; ++i)
                    quad.add(x[i], y[i]);
                if (c != NoColour) polygon(ctx.XBild, quad.points(), c, outline, 1);
                double nx[4], ny[4];
                for (int i = 0; i < 4; ++i) {
                    const int j = turn ? (i + 3) % 4 : (i + 1) % 4;
                    nx[i] = x[i] + f * (x[j] - x[i]);
                    ny[i] = y[i] + f * (y[j] - y[i]);
                }
                std::copy(nx, nx + 4, x);
                std::copy(ny, ny + 4, y);
            }
        }
    }
    end(ctx);
}

void Circle_Rosette(PaintContext &ctx)
{
    const bool randomValues = ctx.colours().RandomValues;
    const int n = countOf(ctx, randomValues ? rounded(rnd(ctx) * 200 / 3) + 1 : 0, 1);
    begin(ctx, n);
    // Enough pins for the envelope of the threads to show as a smooth curve.
    const int pins = 4 * std::min(n, 2000) + 120;
    const int factor = randomValues ? int(Int(rnd(ctx) * 8)) + 2
                                    : controlNumber(ctx, "txtRosetteFactor", -1, 2, 99);
    const auto [c1, c2] = curveColours(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const double cx = w / 2.0, cy = h / 2.0, r = std::min(w, h) * 0.47;
    const double turn = rnd(ctx) * 2 * Pi;
    const auto pin = [&](int i, double &x, double &y) {
        const double a = turn + 2 * Pi * i / pins;
        x = cx + r * std::cos(a);
        y = cy + r * std::sin(a);
    };
    for (int i = 0; i < pins; ++i) {
        const int j = int((int64_t(i) * factor) % pins);
        if (j == i) continue;
        double x1, y1, x2, y2;
        pin(i, x1, y1);
        pin(j, x2, y2);
        line(ctx, x1, y1, x2, y2, blend(c1, c2, there(double(i) / pins)), ctx.opt.PenWidth);
    }
    end(ctx);
}

void paintFilledTriangles(PaintContext &ctx)
{
    const bool randomValues = ctx.colours().RandomValues;
    const int cols = randomValues ? int(Int(rnd(ctx) * 10)) + 4
                                  : std::clamp(int(ctx.opt.NumberValue), 1, 200);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int rows = std::max(1, rounded(double(cols) * h / std::max(1, w)));
    const int n = 2 * cols * rows;
    begin(ctx, n);
    const auto [c1, c2] = curveColours(ctx, n);
    const double cw = double(w) / cols, ch = double(h) / rows;
    // The grid's inner points are shaken by up to a third of a cell; the edge stays straight.
    std::vector<double> gx(size_t((cols + 1) * (rows + 1))), gy(gx.size());
    for (int r = 0; r <= rows; ++r) {
        for (int c = 0; c <= cols; ++c) {
            const size_t i = size_t(r * (cols + 1) + c);
            const double jx = (c > 0 && c < cols) ? (rnd(ctx) - 0.5) * cw * 0.66 : 0;
            const double jy = (r > 0 && r < rows) ? (rnd(ctx) - 0.5) * ch * 0.66 : 0;
            gx[i] = c * cw + jx - (c == cols ? 1 : 0);
            gy[i] = r * ch + jy - (r == rows ? 1 : 0);
        }
    }
    const ColorLong outline = outlineColour(ctx);
    CurvePoints tri;
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < cols; ++c) {
            const size_t a = size_t(r * (cols + 1) + c), b = a + 1;
            const size_t d = a + size_t(cols + 1), e = d + 1;
            const bool slash = rnd(ctx) < 0.5;
            const size_t corners[2][3] = {{a, b, slash ? d : e}, {slash ? b : a, e, d}};
            for (const auto &t : corners) {
                ColorLong colour;
                if (ctx.opt.UseDuoTable) {
                    colour = figureColour(ctx, n);
                } else {
                    const double mx = (gx[t[0]] + gx[t[1]] + gx[t[2]]) / 3;
                    const double my = (gy[t[0]] + gy[t[1]] + gy[t[2]]) / 3;
                    const double along = (mx / std::max(1, w) + my / std::max(1, h)) / 2;
                    colour = blend(c1, c2, along + (rnd(ctx) - 0.5) * 0.25);
                }
                if (colour == NoColour) continue;
                tri.clear();
                for (const size_t i : t)
                    tri.add(gx[i], gy[i]);
                polygon(ctx.XBild, tri.points(), colour, outline == NoColour ? colour : outline);
            }
        }
    }
    end(ctx);
}

void paintPolyArea(PaintContext &ctx)
{
    Session &s = ctx.session;
    const bool randomValues = ctx.colours().RandomValues;
    const int n = randomValues ? int(Int(rnd(ctx) * 200 / 2)) + 3
                               : std::clamp(int(ctx.opt.NumberValue), 2, 250);
    const int kind = std::clamp(s.controls().value(QStringLiteral("cmbPolyType")), 0, 2);
    const int mode = std::clamp(s.controls().value(QStringLiteral("cmbCMStar")), 0, 2);
    ColourState &colours = ctx.colours();
    // The colour mode brings its table with it; plain colours with a table in force turn to
    // random colours.
    if (mode == StarRandomTable && !colours.XDuotones[0]) clickDuotones(s, 0, true);
    if (mode == StarDuoTable && !colours.XDuotones[1]) clickDuotones(s, 1, true);
    if (mode == StarPlain && (colours.XDuotones[0] || colours.XDuotones[1]))
        clickRandomColors(s, true);
    ctx.opt.UseDuoTable = colours.XDuotones[0] || colours.XDuotones[1];
    begin(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int m = std::min(w, h);
    const int fixedCorners = controlNumber(ctx, "txtPolyCorners", -1, 3, 24);
    const ColorLong outline = outlineColour(ctx);
    CurvePoints shape;
    // Without random colours or a table the figures run from the fore to the back colour.
    const bool ramp = !ctx.opt.UseDuoTable && !colours.RandomColors;
    for (int k = 1; k <= n; ++k) {
        ColorLong c = figureColour(ctx, n);
        if (c == NoColour) continue;
        if (ramp) c = blend(colours.ColorFore, colours.ColorBack, double(k - 1) / std::max(1, n - 1));
        const double cx = rnd(ctx) * w, cy = rnd(ctx) * h;
        const double r = rnd(ctx) * m / 5 + m / 30.0;
        const double turn = rnd(ctx) * 2 * Pi;
        const int corners = randomValues ? int(Int(rnd(ctx) * 8)) + 3 : fixedCorners;
        const bool star = kind == PolyStar || (kind == PolyMixed && rnd(ctx) < 0.5);
        const double inner = rnd(ctx) * 0.25 + 0.35;
        shape.clear();
        const int steps = star ? corners * 2 : corners;
        for (int i = 0; i < steps; ++i) {
            const double a = turn + 2 * Pi * i / steps;
            const double rr = star && i % 2 == 1 ? r * inner : r;
            shape.add(cx + rr * std::cos(a), cy + rr * std::sin(a));
        }
        polygon(ctx.XBild, shape.points(), ctx.opt.UseFill ? c : NoColour,
                ctx.opt.UseFill ? outline : c, ctx.opt.PenWidth);
    }
    end(ctx);
}

} // namespace tf
