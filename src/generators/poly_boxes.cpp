// The boxes and tiles of the drawn types:
// "Boxes-Kreisradius"  boxes between two points on the rays of a circle round the centre;
// "Boxes-Randomized"   boxes between two random points reaching a little past the edges;
// "Squares-Randomized" squares of a side StepValue (random with RandomValues);
// "Kacheln"            a grid of tiles TileSize wide, chequered or in the colours of the rule;
// "Tunnel"             nested boxes narrowing towards a vanishing point;
// "Bitblt-Kacheln"     the corners exchanged by block copies of tiles, then random tiles moved;
// "Bitblt-Schmieren"   the picture copied onto itself with shifts of a sixteenth.
#include "generators/figures.h"
#include "generators/polygraphics.h"

#include "core/blit.h"
#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"

#include <algorithm>
#include <cmath>

namespace tf {

using namespace fig;

namespace {

// The fill and outline of a box in colour c: filled with UseFill (outlined in ColorBorder
// with UseBorders), else an outline in c.
void ruleBox(PaintContext &ctx, int x1, int y1, int x2, int y2, ColorLong c)
{
    if (ctx.opt.UseFill)
        box(ctx.XBild, x1, y1, x2, y2, c, outlineColour(ctx));
    else
        box(ctx.XBild, x1, y1, x2, y2, NoColour, c);
}

} // namespace

void paintBoxesKreisradius(PaintContext &ctx)
{
    const int n = ctx.colours().RandomValues ? int(Int(rnd(ctx) * 200)) + 4
                                             : std::max(4, int(ctx.opt.NumberValue) * 4);
    begin(ctx, n);
    const double cx = ctx.opt.W / 2.0, cy = ctx.opt.H / 2.0;
    for (int k = 1; k <= n; ++k) {
        const ColorLong c = figureColour(ctx, n);
        if (c == NoColour) continue;
        const double a = 2 * Pi * k / n;
        const int x1 = rounded((rnd(ctx) * 0.5 + 0.5) * cx * std::sin(a));
        const int y1 = rounded((rnd(ctx) * 0.5 + 0.5) * cy * std::cos(a));
        const int x2 = rounded((rnd(ctx) * 0.5 + 0.5) * cx * std::sin(a));
        const int y2 = rounded((rnd(ctx) * 0.5 + 0.5) * cy * std::cos(a));
        // A box needs a size in both directions.
        if (std::abs(x2 - x1) <= 0 || std::abs(y2 - y1) <= 0) continue;
        ruleBox(ctx, int(cx) + std::min(x1, x2), int(cy) + std::min(y1, y2),
                int(cx) + std::max(x1, x2), int(cy) + std::max(y1, y2), c);
    }
    end(ctx);
}

void paintBoxesRandomized(PaintContext &ctx)
{
    const int n = ctx.colours().RandomValues ? rounded(rnd(ctx) * 200) + 2
                                             : std::max(2, int(ctx.opt.NumberValue) + 1);
    begin(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    for (int k = 1; k <= n - 2; ++k) {
        const ColorLong c = figureColour(ctx, n);
        if (c == NoColour) continue;
        const int x1 = rounded(rnd(ctx) * (w + 20) - 10);
        const int y1 = rounded(rnd(ctx) * (h + 20) - 10);
        const int x2 = rounded(rnd(ctx) * (w + 20) - 5);
        const int y2 = rounded(rnd(ctx) * (h + 20) - 5);
        ruleBox(ctx, x1, y1, x2, y2, c);
    }
    end(ctx);
}

void paintSquaresRandomized(PaintContext &ctx)
{
    const bool randomValues = ctx.colours().RandomValues;
    const int n = randomValues ? rounded(rnd(ctx) * 200) + 2
                               : std::max(2, int(ctx.opt.NumberValue) + 1);
    begin(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    for (int k = 1; k <= n - 2; ++k) {
        const ColorLong c = figureColour(ctx, n);
        if (c == NoColour) continue;
        const int s = randomValues ? int(Int(rnd(ctx) * w / 2)) + 16 : ctx.opt.StepValue;
        const int x = rounded(rnd(ctx) * (w + 20) - 60);
        const int y = rounded(rnd(ctx) * (h + 20) - 60);
        ruleBox(ctx, x, y, x + s, y + s, c);
    }
    end(ctx);
}

void paintKacheln(PaintContext &ctx)
{
    const int t = std::max(1, int(ctx.opt.TileSize));
    const int cols = (ctx.opt.W + t - 1) / t;
    const int rows = (ctx.opt.H + t - 1) / t;
    const int n = std::max(1, cols * rows);
    begin(ctx, n, cols); // the table has the grid's size
    const ColourState &colours = ctx.colours();
    const bool chequer = !ctx.opt.UseDuoTable && !colours.RandomColors;
    for (int row = 0; row < rows; ++row) {
        for (int col = 0; col < cols; ++col) {
            const ColorLong c = chequer ? ((row + col) % 2 == 0 ? colours.ColorFore
                                                                : colours.ColorBack)
                                        : figureColour(ctx, n);
            if (c == NoColour) continue;
            box(ctx.XBild, col * t, row * t, col * t + t - 1, row * t + t - 1, c,
                outlineColour(ctx));
        }
    }
    end(ctx);
}

void paintTunnel(PaintContext &ctx)
{
    const int n = ctx.colours().RandomValues ? rounded(rnd(ctx) * 200) + 2
                                             : std::max(2, int(ctx.opt.NumberValue));
    begin(ctx, n);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const double vx = rnd(ctx) * std::max(1, w - 24) + 12;
    const double vy = rnd(ctx) * std::max(1, h - 24) + 12;
    const bool ramp = !ctx.opt.UseDuoTable && !ctx.colours().RandomColors;
    for (int k = 0; k < n; ++k) {
        ColorLong c = figureColour(ctx, n);
        if (c == NoColour) continue;
        const double t = double(k) / n;
        if (ramp) c = blend(ctx.colours().ColorFore, ctx.colours().ColorBack, t);
        // The rings narrow faster near the mouth, as a passage seen in depth.
        const double s = std::pow(1.0 - t, 1.6);
        const int x1 = rounded(vx - vx * s), y1 = rounded(vy - vy * s);
        const int x2 = rounded(vx + (w - 1 - vx) * s), y2 = rounded(vy + (h - 1 - vy) * s);
        // The edges in a darker shade of the ring: where the rings crowd near the vanishing
        // point they deepen it instead of merging into one dark wedge.
        box(ctx.XBild, x1, y1, x2, y2, c, ctx.opt.UseBorders ? blend(c, 0, 0.4) : c);
    }
    end(ctx);
}

void paintBitbltKacheln(PaintContext &ctx)
{
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int t = std::clamp(int(ctx.opt.TileSize), 1, std::max(1, std::min(w, h)));
    PictureBox copy(QStringLiteral("blocks"), w, h);
    copy.setAutoRedraw(true);
    BitBlt(copy.hDC(), 0, 0, w, h, &pic.hDC(), 0, 0, SRCCOPY);
    DeviceContext &dc = pic.hDC();
    // The four corners change places crosswise.
    BitBlt(dc, 0, 0, t, t, &copy.hDC(), w - t, h - t, SRCCOPY);
    BitBlt(dc, w - t, h - t, t, t, &copy.hDC(), 0, 0, SRCCOPY);
    BitBlt(dc, w - t, 0, t, t, &copy.hDC(), 0, h - t, SRCCOPY);
    BitBlt(dc, 0, h - t, t, t, &copy.hDC(), w - t, 0, SRCCOPY);
    // Then n tiles moved at random; without random values NumberValue of them, none for 0.
    const int n = ctx.colours().RandomValues ? rounded(rnd(ctx) * 60) + 4
                                             : std::max(0, int(ctx.opt.NumberValue));
    for (int k = 1; k <= n; ++k) {
        const int sx = int(Int(rnd(ctx) * std::max(1, w - t + 1)));
        const int sy = int(Int(rnd(ctx) * std::max(1, h - t + 1)));
        const int dx = int(Int(rnd(ctx) * std::max(1, w - t + 1)));
        const int dy = int(Int(rnd(ctx) * std::max(1, h - t + 1)));
        BitBlt(pic.hDC(), dx, dy, t, t, &pic.hDC(), sx, sy, SRCCOPY);
    }
    pic.markChanged();
}

void paintBitbltSchmieren(PaintContext &ctx)
{
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int stepX = std::max(1, w / 16), stepY = std::max(1, h / 16);
    // One of the eight directions; each copy moves the picture one step further along it.
    const int dir = int(Int(rnd(ctx) * 8));
    static constexpr int dirs[8][2] = {{1, 0}, {1, 1}, {0, 1}, {-1, 1},
                                       {-1, 0}, {-1, -1}, {0, -1}, {1, -1}};
    const int copies = ctx.colours().RandomValues ? int(Int(rnd(ctx) * 6)) + 3 : 8;
    for (int i = 1; i <= copies; ++i) {
        BitBlt(pic.hDC(), dirs[dir][0] * stepX, dirs[dir][1] * stepY, w, h, &pic.hDC(), 0, 0,
               SRCCOPY);
        pic.markChanged();
        ctx.DoEvents();
        if (ctx.stopRequested()) break;
    }
}

} // namespace tf
