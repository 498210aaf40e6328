// The line gradients: "H-Gradient", "V-Gradient", "Chromo-Steps" and the crazy bands.
#include "generators/gradients.h"

#include "core/picturebox.h"
#include "core/random.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <vector>

namespace tf {

DuoArguments duoArguments(PaintContext &ctx)
{
    DuoArguments d;
    const ColourState &c = ctx.colours();
    if (!c.DuoActive) return d;
    std::vector<ColorLong> cells;
    for (const ColorLong cell : c.DuoColors)
        if (cell != NoColour) cells.push_back(cell);
    if (cells.empty()) return d;
    const auto pick = [&] {
        const int i = int(Int(double(ctx.Rnd()) * double(cells.size())));
        return cells[size_t(std::clamp(i, 0, int(cells.size()) - 1))];
    };
    d.use_duos = true;
    d.duocolo1 = pick();
    d.duocolo2 = pick();
    return d;
}

namespace {

// The pen width of the simple gradients: the rounded value of cmbPen, at least 1.
int penOf(PaintContext &ctx) { return std::max<int>(1, ctx.opt.PenWidth); }

// The three channel steps from `from` to `to` over n: |difference| / n in single precision,
// negative where the end value is below the start. A length of 0 gives no step.
struct Steps {
    Single r = 0, g = 0, b = 0;
};
Steps stepsOf(int r1, int g1, int b1, int r2, int g2, int b2, double n)
{
    const auto one = [n](int from, int to) {
        if (n == 0) return Single(0);
        const Single d = Single(std::abs(to - from)) / Single(n);
        return to < from ? -d : d;
    };
    return {one(r1, r2), one(g1, g2), one(b1, b2)};
}

ColorLong colourAt(const Steps &s, double k, int r1, int g1, int b1)
{
    const auto ch = [k](Single step, int start) {
        return std::clamp(CLng(Single(step * Single(k)) + Single(start)), 0, 255);
    };
    return RGB(ch(s.r, r1), ch(s.g, g1), ch(s.b, b1));
}

// Draws lines that run across the whole picture, each the same along its length: `vertical`
// lines from top to bottom or horizontal ones from left to right. They are drawn (by `draw`,
// on whatever picture control it is given) once on a strip one pixel thick and then laid
// down along the picture, so that a line costs its pixels and not a walk. Pixels that no line
// covers keep the picture, which the strip finds by drawing twice over two different grounds.
void acrossLines(PictureBox &target, bool vertical, const std::function<void(PictureBox &)> &draw)
{
    if (target.DrawMode() != 13 || !target.AutoRedraw() || target.DrawStyle() != 0) {
        draw(target);
        return;
    }
    const int w = target.Width(), h = target.Height();
    const int n = vertical ? w : h;
    PictureBox dark(QStringLiteral("strip"), vertical ? w : 1, vertical ? 1 : h);
    PictureBox light(QStringLiteral("strip"), vertical ? w : 1, vertical ? 1 : h);
    for (PictureBox *strip : {&dark, &light}) {
        strip->setAutoRedraw(true);
        strip->setDrawWidth(target.DrawWidth());
    }
    dark.setBackColor(0x000000);
    light.setBackColor(0xFFFFFF);
    draw(dark);
    draw(light);
    const QImage &a = dark.Image();
    const QImage &b = light.Image();
    std::vector<uint32_t> colour(static_cast<size_t>(n));
    std::vector<char> painted(static_cast<size_t>(n));
    bool all = true;
    for (int i = 0; i < n; ++i) {
        const QRgb pa = vertical ? a.pixel(i, 0) : a.pixel(0, i);
        const QRgb pb = vertical ? b.pixel(i, 0) : b.pixel(0, i);
        painted[size_t(i)] = !((pa & 0xFFFFFF) == 0 && (pb & 0xFFFFFF) == 0xFFFFFF);
        colour[size_t(i)] = painted[size_t(i)] ? pa : 0;
        all = all && painted[size_t(i)];
    }
    QImage &image = target.mutableImage();
    for (int y = 0; y < h; ++y) {
        auto *row = reinterpret_cast<uint32_t *>(image.scanLine(y));
        if (vertical) {
            if (all) {
                std::memcpy(row, colour.data(), size_t(w) * 4);
            } else {
                for (int x = 0; x < w; ++x)
                    if (painted[size_t(x)]) row[x] = colour[size_t(x)];
            }
        } else if (painted[size_t(y)]) {
            std::fill(row, row + w, colour[size_t(y)]);
        }
    }
    target.markChanged();
}

// Bounce: the channel advances by its step and turns back at 0 and 255.
void Bounce(Single &channel, Single &step)
{
    Single v = channel + step;
    if (v < 0) {
        v = 0;
        step = -step;
    } else if (v > 255) {
        v = 255;
        step = -step;
    }
    channel = v;
}

} // namespace

void Create_Gradientsimple(PaintContext &ctx, int16_t set_nr, bool use_duos, ColorLong duocolo1,
                           ColorLong duocolo2, bool do_transparence)
{
    PictureBox &bild = ctx.XBild;
    const int pen = penOf(ctx);
    // With a pen of 1 the lines cover every pixel, so clearing first would only write the
    // picture twice.
    if (pen > 1) ctx.Bild_CLEAR();
    if (do_transparence) Start_Transparent(ctx.session);

    bild.setDrawWidth(std::min(pen, 16));
    const ColorPair c = colorPairRule(ctx.session, use_duos, duocolo1, duocolo2);
    const int w = bild.Width(), h = bild.Height();
    const int n = set_nr == 2 ? h : w;
    const Steps s = stepsOf(c.r1, c.g1, c.b1, c.r2, c.g2, c.b2, n);
    acrossLines(bild, set_nr != 2, [&](PictureBox &pic) {
        for (int k = 0; k <= n; ++k) {
            // Above a pen of 1 a stripe of the pen's width, then a gap of the same period.
            if (pen > 1 && Mod(k, pen * 2) != 0) continue;
            const ColorLong colour = colourAt(s, k, c.r1, c.g1, c.b1);
            if (set_nr == 2)
                pic.Line(0, k, w, k, colour);
            else
                pic.Line(k, 0, k, h, colour);
        }
    });

    if (do_transparence) Ende_Transparent(ctx.session);
}

void Create_GradientChromo(PaintContext &ctx)
{
    PictureBox &bild = ctx.XBild;
    ctx.Bild_CLEAR();
    Start_Transparent(ctx.session);

    const int pen = penOf(ctx);
    bild.setDrawWidth(std::min(pen, 16));
    const Controls &controls = ctx.session.controls();
    const double p = controls.value(QStringLiteral("scrollProzChromo"));
    const int orientation = controls.value(QStringLiteral("cmbOrientation"));
    const double H = bild.ScaleHeight(), W = bild.ScaleWidth();
    const int ey = CLng(p * H / 100), fy = CLng((1 - p / 100) * H);
    const int ex = CLng(p * W / 100), fx = CLng((1 - p / 100) * W);

    ColorLong start, end;
    if (ctx.colours().RandomColors) {
        start = Pick_RandomColor(ctx.session);
        end = Pick_RandomColor(ctx.session);
    } else {
        start = ctx.colours().ColorFore;
        end = ctx.colours().ColorBack;
    }
    const int r1 = RedOf(start), g1 = GreenOf(start), b1 = BlueOf(start);
    const int e = orientation <= 1 ? ey : ex;
    const Steps s = stepsOf(r1, g1, b1, RedOf(end), GreenOf(end), BlueOf(end), e);
    // Only every (pen * 2)-th line is drawn above a pen of 1, counted on the loop variable.
    const auto drawn = [pen](int v) { return pen <= 1 || Mod(v, pen * 2) == 0; };
    const bool vertical = orientation >= 2;
    acrossLines(bild, vertical, [&](PictureBox &pic) {
        switch (orientation) {
        case 0:
            for (int k = 0; k <= ey; ++k)
                if (drawn(k)) pic.Line(0, k, W, k, colourAt(s, k, r1, g1, b1));
            break;
        case 1:
            for (int y = int(H); y >= fy; --y)
                if (drawn(y)) pic.Line(0, y, W, y, colourAt(s, H - y, r1, g1, b1));
            break;
        case 2:
            for (int k = 0; k <= ex; ++k)
                if (drawn(k)) pic.Line(k, 0, k, H, colourAt(s, k, r1, g1, b1));
            break;
        default:
            for (int x = int(W); x >= fx; --x)
                if (drawn(x)) pic.Line(x, 0, x, H, colourAt(s, W - x, r1, g1, b1));
            break;
        }
    });

    Ende_Transparent(ctx.session);
}

void Draw_Band(PictureBox &picture, Random &rnd, int set_nr, int pen, int steps, ColorLong start,
               ColorLong end)
{
    Single dr, dg, db;
    if (start == end) {
        dr = dg = db = Single(std::min(steps + 1, 200));
    } else {
        dr = std::min(Single((rnd.Rnd() - 0.5f) * Single(steps + 1)), Single(200));
        dg = std::min(Single((rnd.Rnd() - 0.5f) * Single(steps + 1)), Single(200));
        db = std::min(Single((rnd.Rnd() - 0.5f) * Single(steps + 1)), Single(200));
    }
    Single r = Single(RedOf(start)), g = Single(GreenOf(start)), b = Single(BlueOf(start));
    const int w = picture.Width(), h = picture.Height();
    for (int p = 0;;) {
        const ColorLong colour = RGB(CLng(r), CLng(g), CLng(b));
        if (set_nr == 1)
            picture.Line(0, p, w, p, colour);
        else
            picture.Line(p, 0, p, h, colour);
        if ((set_nr == 1 && p > h) || (set_nr != 1 && p > w)) break;
        Bounce(r, dr);
        Bounce(g, dg);
        Bounce(b, db);
        p = CLng(double(p) + pen);
    }
    picture.Refresh();
}

void Create_Gradientband(PaintContext &ctx, int16_t set_nr, bool use_duos, ColorLong,
                         ColorLong, bool do_transparence)
{
    PictureBox &bild = ctx.XBild;
    ctx.DoEvents();
    ctx.Bild_CLEAR();
    if (do_transparence) Start_Transparent(ctx.session);

    int pen, steps;
    if (ctx.colours().RandomValues) {
        pen = int(Int(ctx.Rnd() * 15.0f)) + 1;
        steps = CLng(ctx.Rnd() * 255.0f) + 1;
    } else {
        pen = CLng(Val(ctx.session.controls().text(QStringLiteral("cmbPen"))));
        steps = ctx.opt.StepValue;
        const QString &key = ctx.session.paint().GrafKey;
        if (key == QLatin1String("Vertic-Bars") || key == QLatin1String("Horiz-Bars"))
            steps = (steps + 1) * 25;
    }
    pen = std::max(pen, 1);
    steps = std::max(steps, 1);
    bild.setDrawWidth(pen);

    // With a colour table two random colours all the same: the table's two are not used.
    ColorLong start, end;
    if (ctx.colours().RandomColors || use_duos) {
        start = Pick_RandomColor(ctx.session);
        end = Pick_RandomColor(ctx.session);
    } else {
        start = ctx.colours().ColorFore;
        end = ctx.colours().ColorBack;
    }
    Draw_Band(bild, ctx.session.random(), set_nr, pen, steps, start, end);
    ctx.DoEvents();

    if (do_transparence) Ende_Transparent(ctx.session);
}

void paintHGradient(PaintContext &ctx)
{
    const DuoArguments d = duoArguments(ctx);
    Create_Gradientsimple(ctx, 1, d.use_duos, d.duocolo1, d.duocolo2, true);
}

void paintVGradient(PaintContext &ctx)
{
    const DuoArguments d = duoArguments(ctx);
    Create_Gradientsimple(ctx, 2, d.use_duos, d.duocolo1, d.duocolo2, true);
}

void paintHGradientCrazy(PaintContext &ctx)
{
    const DuoArguments d = duoArguments(ctx);
    Create_Gradientband(ctx, 1, d.use_duos, d.duocolo1, d.duocolo2, true);
}

void paintVGradientCrazy(PaintContext &ctx)
{
    const DuoArguments d = duoArguments(ctx);
    Create_Gradientband(ctx, 2, d.use_duos, d.duocolo1, d.duocolo2, true);
}

} // namespace tf
