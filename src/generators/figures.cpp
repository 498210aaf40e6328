#include "generators/figures.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"
#include "tools/aaline.h"

#include <algorithm>
#include <cmath>

namespace tf::fig {

double rnd(PaintContext &ctx) { return double(ctx.Rnd()); }

int rounded(double x) { return CLng(x); }

Centre figureCentre(PaintContext &ctx)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    if (ctx.opt.UseCenter)
        return {w / 2.0, h / 2.0};
    const double x = rounded(w / 3.0 + rnd(ctx) * w / 3.0);
    const double y = rounded(h / 3.0 + rnd(ctx) * h / 3.0);
    return {x, y};
}

int countOf(PaintContext &ctx, int random, int lower)
{
    if (ctx.colours().RandomValues) return random;
    return std::max(lower, int(ctx.opt.NumberValue));
}

void begin(PaintContext &ctx, int n, int cols)
{
    ctx.Bild_CLEAR();
    PictureBox &pic = ctx.XBild;
    pic.setDrawMode(13);
    pic.setDrawStyle(0);
    pic.setDrawWidth(std::max<int>(1, ctx.opt.PenWidth));
    pic.setForeColor(0);
    if (ctx.opt.UseDuoTable) {
        cols = std::clamp(cols, 1, std::max(1, n));
        Set_Duo_Colortable(ctx.session, 0, true, QStringLiteral("KachelMix"), cols,
                           std::clamp(std::max(1, n) / cols, 1, 32000 / cols));
    }
    Start_Transparent(ctx.session);
}

void end(PaintContext &ctx)
{
    Ende_Transparent(ctx.session);
    ctx.XBild.markChanged();
}

ColorLong tableColour(PaintContext &ctx, int i, int n)
{
    const ColourState &c = ctx.colours();
    const int cells = int(c.DuoColors.size()) - 1;
    if (cells < 1) return NoColour;
    const int last = std::clamp(n, 1, cells);
    const int index = Mod(i - 1, last) + 1;
    return duoCell(c, index).value_or(NoColour);
}

namespace {
ColorLong ruleColour(PaintContext &ctx, int n, ColorLong plain)
{
    if (ctx.opt.UseDuoTable) {
        const int i = int(Int(rnd(ctx) * n)) + 1;
        return tableColour(ctx, i, n);
    }
    if (ctx.colours().RandomColors) return Pick_RandomColor(ctx.session);
    return plain;
}
} // namespace

ColorLong figureColour(PaintContext &ctx, int n)
{
    return ruleColour(ctx, n, ctx.colours().ColorFore);
}

ColorLong figureColourBack(PaintContext &ctx, int n)
{
    return ruleColour(ctx, n, ctx.colours().ColorBack);
}

ColorLong secondColour(PaintContext &ctx)
{
    return ctx.colours().RandomColors ? Pick_RandomColor(ctx.session) : ctx.colours().ColorBack;
}

void line(PaintContext &ctx, double x1, double y1, double x2, double y2, ColorLong colour,
          int pen)
{
    if (ctx.opt.UseAntiAlias) {
        AA_Line(ctx.XBild, x1, y1, x2, y2, colour, std::max(1, pen));
        return;
    }
    ctx.XBild.setDrawWidth(std::max(1, pen));
    ctx.XBild.Line(x1, y1, x2, y2, colour);
}

void box(PictureBox &pic, int x1, int y1, int x2, int y2, ColorLong fill, ColorLong outline)
{
    if (fill != NoColour) pic.Line(x1, y1, x2, y2, fill, LineFlags::BF);
    if (outline != NoColour) pic.Line(x1, y1, x2, y2, outline, LineFlags::B);
}

void disc(PictureBox &pic, double x, double y, double r, ColorLong fill, ColorLong outline,
          double aspect)
{
    if (r <= 0) return;
    const int style = pic.FillStyle();
    const ColorLong fillBefore = pic.FillColor();
    if (fill != NoColour) {
        pic.setFillStyle(0);
        pic.setFillColor(fill);
    } else {
        pic.setFillStyle(1);
    }
    const ColorLong edge = outline != NoColour ? outline : fill;
    if (edge != NoColour) {
        if (aspect == 1.0)
            pic.Circle(x, y, r, edge);
        else
            pic.Circle(x, y, r, edge, std::nullopt, std::nullopt, aspect);
    }
    pic.setFillStyle(style);
    pic.setFillColor(fillBefore);
}

void polygon(PictureBox &pic, const std::vector<POINTAPI> &pts, ColorLong fill,
             ColorLong outline, int pen)
{
    if (pts.size() < 2) return;
    DeviceContext &dc = pic.hDC();
    const Pen penBefore = dc.pen;
    const Brush brushBefore = dc.brush;
    dc.pen = outline != NoColour ? Pen{PS_SOLID, std::max(1, pen), outline}
                                 : Pen{PS_NULL, 1, 0};
    dc.brush = fill != NoColour ? Brush{false, fill} : Brush{true, 0};
    Polygon(dc, pts);
    dc.pen = penBefore;
    dc.brush = brushBefore;
    pic.markChanged();
}

ColorLong outlineColour(PaintContext &ctx)
{
    return ctx.opt.UseBorders ? ctx.colours().ColorBorder : NoColour;
}

ColorLong blend(ColorLong a, ColorLong b, double t)
{
    t = std::clamp(t, 0.0, 1.0);
    return Mix_Colors(b, a, t);
}

} // namespace tf::fig
