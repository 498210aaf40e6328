// The cut-out forms and cut-out borders.
//
// The forms cover the picture outside an opening in one colour: "Squares" an opening of two
// centred boxes, one wide and one tall, whose union has notched corners, their inset by the
// pen and the size; "Areas" two overlapping centred circles. They fill row by row the spans outside the
// opening, so the edge of the opening is exact at any size.
//
// "Forms-Cut out Rects" lays a grid of boxes of side a and gap c over the picture and keeps
// the outer b rings of it. The "Border-Cut out" types put notches of size s along the four
// edges, up to 14 on each. Both advance CutMode each paint and draw by it:
//   rects:   0 filled boxes, 1 outlined boxes, 2 every second box (a chequer);
//   notches: 0 centred on the edge (half cut off), 1 wholly inside touching the edge,
//            2 the smaller pattern: half the size, twice as many, half cut off.
// "Border-V-Dia positive" is a strip of film: a band at top and bottom, each with a row of
// square sprocket holes.
#include "generators/borders.h"

#include "generators/figures.h"

#include "core/gdi.h"
#include "core/picturebox.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tf {

using namespace fig;

namespace {

struct Opening {
    bool round = false;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0; // a box, corners inclusive
    double cx = 0, cy = 0, r = 0;          // a circle
};

// Fills every pixel outside all openings with `colour`, one span of a row at a time.
void fillOutside(PictureBox &pic, int w, int h, const std::vector<Opening> &openings,
                 ColorLong colour)
{
    DeviceContext &dc = pic.hDC();
    const Brush brush{false, colour};
    std::vector<std::pair<int, int>> inside; // [from, to) spans of the row
    for (int y = 0; y < h; ++y) {
        inside.clear();
        const double py = y + 0.5;
        for (const Opening &o : openings) {
            double from, to;
            if (o.round) {
                const double dy = py - o.cy;
                if (std::abs(dy) >= o.r) continue;
                const double half = std::sqrt(o.r * o.r - dy * dy);
                from = o.cx - half;
                to = o.cx + half;
            } else {
                if (y < o.y1 || y > o.y2) continue;
                from = o.x1;
                to = o.x2 + 1;
            }
            inside.emplace_back(std::clamp(int(std::lround(from)), 0, w),
                                std::clamp(int(std::lround(to)), 0, w));
        }
        std::sort(inside.begin(), inside.end());
        int x = 0;
        for (const auto &[from, to] : inside) {
            if (from > x) FillRect(dc, RECT{x, y, from, y + 1}, brush);
            x = std::max(x, to);
        }
        if (x < w) FillRect(dc, RECT{x, y, w, y + 1}, brush);
    }
    pic.markChanged();
}

// The inset of the forms: a twelfth of the smaller side and four pens, held to a sixth of it.
int formInset(PaintContext &ctx)
{
    const int side = std::min(ctx.opt.W, ctx.opt.H);
    return std::clamp(side / 12 + ctx.opt.PenWidth * 4, 1, std::max(1, side / 6));
}

int16_t advanceCutMode(PaintContext &ctx)
{
    int16_t &mode = ctx.session.paint().CutMode;
    mode = nextCutMode(mode);
    return mode;
}

enum class Notch { Box, Triangle, Disc };

// A notch of size s centred at (x, y); `inward` points into the picture (the triangle's apex).
void notch(PaintContext &ctx, Notch kind, double x, double y, double s, double inX, double inY,
           ColorLong colour)
{
    PictureBox &pic = ctx.XBild;
    const ColorLong outline = outlineColour(ctx);
    switch (kind) {
    case Notch::Box:
        box(pic, rounded(x - s / 2), rounded(y - s / 2), rounded(x + s / 2) - 1,
            rounded(y + s / 2) - 1, colour, outline);
        break;
    case Notch::Disc:
        disc(pic, x, y, s / 2, colour, outline);
        break;
    case Notch::Triangle: {
        // The base across the edge direction behind the centre, the apex s/2 inwards of it.
        const double ax = -inY, ay = inX; // along the edge
        const std::vector<POINTAPI> pts = {
            {rounded(x - inX * s / 2 - ax * s / 2), rounded(y - inY * s / 2 - ay * s / 2)},
            {rounded(x - inX * s / 2 + ax * s / 2), rounded(y - inY * s / 2 + ay * s / 2)},
            {rounded(x + inX * s / 2), rounded(y + inY * s / 2)},
        };
        polygon(pic, pts, colour, outline, 1);
        break;
    }
    }
}

} // namespace

void paintFormsCutOutSquares(PaintContext &ctx)
{
    const int w = ctx.opt.W, h = ctx.opt.H, a = formInset(ctx);
    std::vector<Opening> open(2);
    open[0] = Opening{false, double(a), 2.0 * a, double(w - 1 - a), double(h - 1 - 2 * a)};
    open[1] = Opening{false, 2.0 * a, double(a), double(w - 1 - 2 * a), double(h - 1 - a)};
    fillOutside(ctx.XBild, w, h, open, frameColour(ctx));
}

void paintFormsCutOutAreas(PaintContext &ctx)
{
    const int w = ctx.opt.W, h = ctx.opt.H, a = formInset(ctx);
    const double d = w / 6.0;
    const double r = std::max(1.0, std::min(h / 2.0 - a, w / 3.0 - a));
    std::vector<Opening> open(2);
    open[0].round = open[1].round = true;
    open[0].cx = w / 2.0 - d;
    open[1].cx = w / 2.0 + d;
    open[0].cy = open[1].cy = h / 2.0;
    open[0].r = open[1].r = r;
    fillOutside(ctx.XBild, w, h, open, frameColour(ctx));
}

void paintFormsCutOutRects(PaintContext &ctx)
{
    int a, b, c;
    if (ctx.colours().RandomValues) {
        a = rounded(rnd(ctx) * 32) + 1;
        b = rounded(rnd(ctx) * 12) + 1;
        c = rounded(rnd(ctx) * 32) + 1;
    } else {
        a = ctx.opt.PenWidth;
        b = std::clamp<int>(ctx.opt.StepValue, 1, 13);
        c = a;
    }
    const int mode = advanceCutMode(ctx);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int pitch = a + c;
    const int cols = std::max(1, (w - c) / pitch), rows = std::max(1, (h - c) / pitch);
    // The grid centred in the picture.
    const int x0 = (w - (cols * pitch - c)) / 2, y0 = (h - (rows * pitch - c)) / 2;
    const ColorLong colour = frameColour(ctx);
    const ColorLong outline = outlineColour(ctx);
    PictureBox &pic = ctx.XBild;
    for (int j = 0; j < rows; ++j) {
        for (int i = 0; i < cols; ++i) {
            const int ring = std::min({i, j, cols - 1 - i, rows - 1 - j});
            if (ring >= b) continue;
            if (mode == 2 && (i + j) % 2 != 0) continue;
            const int x = x0 + i * pitch, y = y0 + j * pitch;
            if (mode == 1)
                box(pic, x, y, x + a - 1, y + a - 1, NoColour, colour);
            else
                box(pic, x, y, x + a - 1, y + a - 1, colour, outline);
        }
    }
}

void paintBorderCutOut(PaintContext &ctx)
{
    const QString &key = ctx.session.paint().GrafKey;
    const bool triangles = key.endsWith(QLatin1String("Triangles"));
    const bool circles = key.endsWith(QLatin1String("Circles"));
    const bool mix = key.endsWith(QLatin1String("Mix"));
    const int mode = advanceCutMode(ctx);
    const int w = ctx.opt.W, h = ctx.opt.H;
    double s = cutOutSize(ctx, circles ? 80 : 100);
    if (mode == 2) s = std::max(1.0, s / 2);
    const ColorLong Lac = frameColour(ctx);
    // Centred on the edge, or drawn in by half a size so that it touches it from inside.
    const double in = mode == 1 ? s / 2 : 0.0;
    const auto count = [&](int length) {
        const int fit = std::max(1, int(length / (2 * s)));
        return std::min(14, fit);
    };
    // "Mix" alternates along each edge, starting with a box.
    const auto put = [&](int k, double x, double y, double inX, double inY) {
        const Notch kind = circles     ? Notch::Disc
                           : triangles ? Notch::Triangle
                           : mix       ? (k % 2 == 0 ? Notch::Box : Notch::Disc)
                                       : Notch::Box;
        notch(ctx, kind, x + inX * in, y + inY * in, s, inX, inY, Lac);
    };
    const int across = count(w), down = count(h);
    for (int k = 0; k < across; ++k) {
        const double x = (k + 0.5) * w / across;
        put(k, x, 0, 0, 1);
        put(k, x, h - 1, 0, -1);
    }
    for (int k = 0; k < down; ++k) {
        const double y = (k + 0.5) * h / down;
        put(k, 0, y, 1, 0);
        put(k, w - 1, y, -1, 0);
    }
}

void paintBorderDia(PaintContext &ctx)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int q = std::max(2, rounded(h / 36.0));
    const int band = 3 * q;
    PictureBox &pic = ctx.XBild;
    const ColorLong film = frameColour(ctx), hole = frameColourBack(ctx);
    box(pic, 0, 0, w - 1, band - 1, film, NoColour);
    box(pic, 0, h - band, w - 1, h - 1, film, NoColour);
    // Holes every two sizes, the row centred across the width.
    const int holes = std::max(1, (w - q) / (2 * q));
    const int x0 = (w - (holes * 2 * q - q)) / 2;
    for (int k = 0; k < holes; ++k) {
        const int x = x0 + k * 2 * q;
        box(pic, x, q, x + q - 1, 2 * q - 1, hole, NoColour);
        box(pic, x, h - 2 * q, x + q - 1, h - q - 1, hole, NoColour);
    }
}

} // namespace tf
