// The frames of group 8 and the dispatch of every border and cut-out type by its key; the
// cut-outs themselves are in borders_cutout.cpp.
#include "generators/borders.h"
#include "generators/leadglass.h"

#include "generators/figures.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/controls.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <vector>

namespace tf {

using namespace fig;

namespace {

constexpr int LeadGlassCells = 25; // the 5 x 5 table of "DuoMLeadGlass"

int frameValue(PaintContext &ctx, const char *name, int index = -1)
{
    return ctx.session.controls().value(ControlKey{QString::fromLatin1(name), index});
}

// "A-Rahmen-Standard": a disc in the second colour at the centre, the pen width its radius,
// then the frame as box outlines from the edge inwards, one for each pixel of the thickness.
void outerFrame(PaintContext &ctx)
{
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int thickness = std::clamp(frameValue(ctx, "txtRahmendicke"), 1,
                                     std::max(1, (std::min(w, h) + 1) / 2));
    disc(pic, w / 2.0, h / 2.0, ctx.opt.PenWidth, frameColourBack(ctx), NoColour);
    const ColorLong c = frameColour(ctx);
    pic.setDrawWidth(1);
    for (int k = 0; k < thickness; ++k)
        box(pic, k, k, w - 1 - k, h - 1 - k, NoColour, c);
}

// "I-Rahmen-Standard": four quadrilaterals between the outer edge of the frame and its
// opening. The opening is txtRahmendickeI(0) x (1) (0, or more than fits, leaves a
// thickness's margin to the picture's edge), centred; with "Trapeze" the pieces meet in mitres
// and are shaded like a moulding lit from the upper left, else top and bottom run the full
// width and all four take one colour.
void innerFrame(PaintContext &ctx)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    const int t = ctx.colours().RandomValues ? int(Int(rnd(ctx) * 200 + 2))
                                             : std::max(1, frameValue(ctx, "txtRahmendicke"));
    const auto side = [t](int wanted, int size) {
        const int most = std::max(1, size - 4 * t);
        return wanted <= 0 ? most : std::min(wanted, most);
    };
    const int iw = side(frameValue(ctx, "txtRahmendickeI", 0), w);
    const int ih = side(frameValue(ctx, "txtRahmendickeI", 1), h);
    const int ix1 = (w - iw) / 2, iy1 = (h - ih) / 2, ix2 = ix1 + iw, iy2 = iy1 + ih;
    const int ox1 = ix1 - t, oy1 = iy1 - t, ox2 = ix2 + t, oy2 = iy2 + t;
    const bool trapez = ctx.session.controls().checked(QStringLiteral("XRahmendickeITrapez"));
    const ColorLong c = frameColour(ctx);
    const ColorLong outline = outlineColour(ctx);
    std::vector<std::vector<POINTAPI>> pieces;
    if (trapez) {
        pieces = {{{ox1, oy1}, {ox2, oy1}, {ix2, iy1}, {ix1, iy1}},
                  {{ox1, oy1}, {ix1, iy1}, {ix1, iy2}, {ox1, oy2}},
                  {{ox2, oy1}, {ox2, oy2}, {ix2, iy2}, {ix2, iy1}},
                  {{ox1, oy2}, {ix1, iy2}, {ix2, iy2}, {ox2, oy2}}};
    } else {
        pieces = {{{ox1, oy1}, {ox2, oy1}, {ox2, iy1}, {ox1, iy1}},
                  {{ox1, iy1}, {ix1, iy1}, {ix1, iy2}, {ox1, iy2}},
                  {{ix2, iy1}, {ox2, iy1}, {ox2, iy2}, {ix2, iy2}},
                  {{ox1, iy2}, {ox2, iy2}, {ox2, oy2}, {ox1, oy2}}};
    }
    // Top, left, right, bottom: light to dark.
    const double shade[] = {0.35, 0.15, -0.15, -0.35};
    for (size_t k = 0; k < pieces.size(); ++k) {
        ColorLong fill = c;
        if (trapez)
            fill = shade[k] > 0 ? blend(c, 0xFFFFFF, shade[k]) : blend(c, 0x000000, -shade[k]);
        polygon(ctx.XBild, pieces[k], fill, outline, 1);
    }
}

// "I-Rahmen-Random": NumberValue rectangles of four lines about a centre (the picture's with
// UseCenter, else one drawn towards the upper left), each side a random whole number of
// steps away from it, the step Rnd*20+2 pixels.
void randomFrame(PaintContext &ctx)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    double cx = w / 2.0, cy = h / 2.0;
    if (!ctx.opt.UseCenter) {
        cx = rounded(w / 2.0 - (w / 2.0 + 20) * rnd(ctx));
        cy = rounded(h / 2.0 - (h / 2.0 + 20) * rnd(ctx));
    }
    const int step = std::min(int(Int(rnd(ctx) * 20 + 2)), std::max(1, std::min(w, h)));
    const int n = countOf(ctx, rounded(rnd(ctx) * 30) + 1, 1);
    const int pen = ctx.opt.PenWidth;
    const auto reach = [&](double from, double to) {
        const int steps = std::max(1, int(std::abs(to - from) / step));
        return (int(Int(rnd(ctx) * steps)) + 1) * step;
    };
    for (int k = 0; k < n; ++k) {
        const ColorLong c = frameColour(ctx);
        const double x1 = cx - reach(cx, 0), x2 = cx + reach(cx, w);
        const double y1 = cy - reach(cy, 0), y2 = cy + reach(cy, h);
        line(ctx, x1, y1, x2, y1, c, pen);
        line(ctx, x2, y1, x2, y2, c, pen);
        line(ctx, x2, y2, x1, y2, c, pen);
        line(ctx, x1, y2, x1, y1, c, pen);
        ctx.DoEvents();
        if (ctx.stopRequested()) return;
    }
}

struct BorderType {
    const char *key;
    void (*paint)(PaintContext &);
};

// The one list of the types this routine paints.
constexpr BorderType borderTypes[] = {
    {"A-Rahmen-Standard", outerFrame},
    {"I-Rahmen-Standard", innerFrame},
    {"I-Rahmen-Random", randomFrame},
    {"Forms-Cut out Squares", paintFormsCutOutSquares},
    {"Forms-Cut out Areas", paintFormsCutOutAreas},
    {"Forms-Cut out Rects", paintFormsCutOutRects},
    {"Border-Cut out Squares", paintBorderCutOut},
    {"Border-Cut out Triangles", paintBorderCutOut},
    {"Border-Cut out Mix", paintBorderCutOut},
    {"Border-Cut out Circles", paintBorderCutOut},
    {"Border-V-Dia positive", paintBorderDia},
    {"Border-Tiffany-Rect", paintTiffanyBorder},
};

ColorLong tableOr(PaintContext &ctx, ColorLong plain)
{
    if (ctx.opt.UseDuoTable) {
        const ColorLong c = tableColour(ctx, int(Int(rnd(ctx) * LeadGlassCells)) + 1,
                                        LeadGlassCells);
        if (c != NoColour) return c;
    }
    return ctx.colours().RandomColors ? Pick_RandomColor(ctx.session) : plain;
}

} // namespace

int16_t nextCutMode(int16_t CutMode)
{
    ++CutMode;
    return CutMode > 2 ? 0 : CutMode;
}

int cutOutSize(PaintContext &ctx, int limit)
{
    if (ctx.colours().RandomValues)
        return std::max(1, rounded(rnd(ctx) * std::min(ctx.opt.W, ctx.opt.H) / 2));
    return std::clamp(frameValue(ctx, "txtCutOut"), 1, limit);
}

ColorLong frameColour(PaintContext &ctx) { return tableOr(ctx, ctx.colours().ColorFore); }
ColorLong frameColourBack(PaintContext &ctx) { return tableOr(ctx, ctx.colours().ColorBack); }

void Create_Borders(PaintContext &ctx)
{
    ctx.opt.NumberValue = std::clamp<int32_t>(ctx.opt.NumberValue, 1, 1000);
    ctx.opt.PenWidth = std::clamp<int16_t>(ctx.opt.PenWidth, 1, 100);
    const QString &key = ctx.session.paint().GrafKey;
    const BorderType *type = nullptr;
    for (const BorderType &t : borderTypes)
        if (key == QLatin1String(t.key)) type = &t;
    if (!type) return;

    ctx.Bild_CLEAR();
    PictureBox &pic = ctx.XBild;
    pic.setDrawMode(13);
    pic.setDrawStyle(0);
    pic.setDrawWidth(ctx.opt.PenWidth);
    if (ctx.opt.UseDuoTable)
        Set_Duo_Colortable(ctx.session, 0, true, QStringLiteral("DuoMLeadGlass"), 5, 5);
    Start_Transparent(ctx.session);
    // Outlines of the figures are one pixel wide; the lines that take the pen say so.
    pic.setDrawWidth(1);
    type->paint(ctx);
    pic.setDrawWidth(ctx.opt.PenWidth);
    end(ctx);
}

} // namespace tf
