// Draw_Mondrian: the frames of the layout as flat fields of the colour table, the lines
// between them, the closing lines and the kaleidoscope.
#include "generators/mondrian.h"

#include "core/blit.h"
#include "core/fault.h"
#include "core/picturebox.h"
#include "generators/framecanvas.h"
#include "generators/mondrianboogie.h"
#include "generators/mondrianlayout.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <algorithm>

namespace tf {

namespace {

const ColorLong Black24 = RGB(24, 24, 24);
const ColorLong White = RGB(255, 255, 255);
// A large field that drew RGB(24,24,24) draws again at most this often before it stays
// unfilled, so that a table without any other colour cannot hold the paint.
constexpr int LargeFieldDraws = 1000;

ControlKey key(const char *name, int index = -1)
{
    return {QString::fromLatin1(name), index};
}

int32_t rounded(double x)
{
    return CLng(x);
}

// What Draw_Mondrian reads besides its call, at the moment it paints.
struct Options {
    bool drawBorders = false;
    bool fill = false;
    bool withWhite = false;
    bool center = false;
    bool doSub = false;
    bool harmonic = false;
    bool kaleido = false;
    bool duoActive = false;
    int16_t panelH = 2, panelV = 2;
    int16_t subH = 1, subV = 1;
};

Options readOptions(Session &s)
{
    const Controls &k = s.controls();
    Options o;
    o.drawBorders = k.checked(QStringLiteral("XBorders"));
    o.fill = k.checked(QStringLiteral("XFill"));
    o.withWhite = k.checked(QStringLiteral("XFill_White"));
    o.center = k.checked(QStringLiteral("XCenter"));
    o.doSub = k.checked(key("XMondrian", 2));
    o.harmonic = k.checked(key("XMondrian", 5));
    o.kaleido = k.checked(key("XMondrian", 4));
    o.duoActive = s.colours().XDuotones[0] || s.colours().XDuotones[1];
    o.panelH = CInt(Max(2.0, Val(k.text(key("txtMondrian", 0)))));
    o.panelV = CInt(Max(2.0, Val(k.text(key("txtMondrian", 1)))));
    o.subH = int16_t(std::clamp(k.listIndex(key("cmbMondrian_subfak", 0)), 0, 3) + 1);
    o.subV = int16_t(std::clamp(k.listIndex(key("cmbMondrian_subfak", 1)), 0, 3) + 1);
    return o;
}

ColorLong cell(const ColourState &c, int i)
{
    return duoCell(c, i).value_or(NoColour);
}

} // namespace

bool mondrianSizeFromSurface(PaintContext &ctx, const FrameCanvas &canvas, int32_t &format,
                             int32_t m2)
{
    MondrianTables &t = ctx.session.mondrian();
    if (ctx.workspace().PicSelect.Visible() || canvas.width() != canvas.height()) {
        format = 0;
        t.MondrianW = canvas.width() - m2;
        t.MondrianH = canvas.height() - m2;
        return true;
    }
    return false;
}

void mondrianSizeByFormat(Session &s, int32_t &format, int32_t side, int32_t m2)
{
    MondrianTables &t = s.mondrian();
    const double d = side;
    if (format == 1) {
        t.MondrianW = rounded(double(s.Rnd()) * d / 2 - 32 + d / 2 - m2);
        t.MondrianH = side - m2;
    } else if (format == 2) {
        t.MondrianH = rounded(double(s.Rnd()) * d / 2 - 32 + d / 2 - m2);
        t.MondrianW = side - m2;
    } else {
        format = 0;
        t.MondrianW = side - m2;
        t.MondrianH = side - m2;
    }
}

MondrianSetDrawn makeMondrianSet(Session &s, const MondrianSetRequest &r)
{
    int16_t penW = r.pen;
    int16_t h = r.h, v = r.v, symH = r.symH, symV = r.symV, subH = r.subH, subV = r.subV;
    int32_t seedH = 0, seedV = 0;
    if (r.randomValues) {
        h = CInt(Int(double(s.Rnd()) * 9) + 2);
        v = CInt(Int(double(s.Rnd()) * 9) + 2);
        symH = int16_t(Int(double(s.Rnd()) * 2));
        symV = int16_t(Int(double(s.Rnd()) * 2));
        subH = subV = 1;
        if (r.drawPen && penW == 1)
            penW = int16_t(rounded(double(s.Rnd()) * 5) + 1);
        if (r.doSub) {
            if (rounded(double(s.Rnd())) == 1)
                seedH = rounded(double(s.Rnd()) * double(s.Timer()));
            if (rounded(double(s.Rnd())) == 1)
                seedV = rounded(double(s.Rnd()) * double(s.Timer()));
            else
                seedV = seedH;
        }
    } else if (r.harmonic) {
        seedH = rounded(double(s.Rnd()) * double(s.Timer()));
        seedV = rounded(double(s.Rnd()) * double(s.Timer()));
    }
    MondrianTables &t = s.mondrian();
    t.MondrianLastH = h;
    t.MondrianLastV = v;
    t.MondrianLastType = int16_t(r.type);
    t.MondrianHSplits = h;
    t.MondrianVSplits = v;
    t.MondrianUnit = 1.0f;
    t.MondrianGridW = 0;
    t.MondrianGridH = 0;
    MondrianSplitArgs a;
    a.SymH = symH;
    a.SymV = symV;
    a.Pen = penW;
    a.DoSub = r.doSub ? 1 : 0;
    a.MinRatio = r.minRatio;
    a.Mode = r.type;
    a.Unit = 1.0f;
    a.SeedH = seedH;
    a.SeedV = seedV;
    a.SubH = subH;
    a.SubV = subV;
    CreateArr_Mondrian_Splits(s, a);
    return {h, v, symH, symV, penW};
}

void chooseMondrianColours(Session &s, bool withWhite)
{
    const bool duoActive = s.colours().XDuotones[0] || s.colours().XDuotones[1];
    const bool first = Int(double(s.Rnd()) * 2) == 0;
    QString name;
    if (duoActive)
        name = first ? QStringLiteral("DuoMondrian") : QStringLiteral("DuoMLeadGlass");
    else if (s.colours().RandomColors)
        name = first ? QStringLiteral("RandomMondrian") : QStringLiteral("RandomMLeadGlass");
    else
        name = QStringLiteral("MondrianColors");
    Set_Duo_Colortable(s, 1, withWhite, name, 5, 5);
}

// The colour of a frame: a sub-frame from the whole table, a whole cell from its first 18
// entries; a large cell is never the near-black nor white, nor left unfilled.
ColorLong mondrianFrameColour(Session &s, const MondrianFrame &f, int picW, int picH)
{
    const ColourState &c = s.colours();
    const int upper = int(c.DuoColors.size()) - 1;
    if (upper < 1)
        return NoColour;
    if (f.sub)
        return cell(c, rounded(Int(double(s.Rnd()) * upper) + 1));
    ColorLong colour = cell(c, rounded(Int(double(s.Rnd()) * 18) + 1));
    const bool large = (f.right - f.left) > picW / 4.0 || (f.bottom - f.top) > picH / 4.0;
    if (colour == Black24 && large) {
        for (int draws = 0;; ++draws) {
            colour = cell(c, rounded(Int(double(s.Rnd()) * upper) + 1));
            if (colour != NoColour && colour != Black24 && colour != White)
                break;
            if (draws >= LargeFieldDraws) {
                colour = NoColour;
                break;
            }
        }
    }
    return colour;
}

namespace {

void drawMondrian(PaintContext &ctx, FrameCanvas &canvas, MondrianCall call)
{
    Session &s = ctx.session;
    MondrianTables &t = s.mondrian();
    Controls &k = s.controls();
    s.Randomize();
    const int picW = canvas.width();
    const int picH = canvas.height();
    if (call.Super)
        call.Side = Max(picW, picH);

    // The lines: without borders no pen, no frame lines.
    const Options o = readOptions(s);
    int16_t penW = call.PenWidth < 1 ? int16_t(1) : call.PenWidth;
    if (!o.drawBorders) {
        penW = 0;
        k.setRaw(key("XMondrian", 3), QStringLiteral("0"));
        call.AllFrames = 0;
    }
    const ColorLong lineColour = s.colours().ColorBorder;
    t.MondrianMargin = CLng(Val(k.text(key("txtMondrian", 2))));
    const int32_t m2 = checkedMul<int32_t>(2, t.MondrianMargin);

    // A repaint keeps the layout only while it fits: the same splits (unless random values
    // chose them) and the same type, and tables that the last set left.
    bool repaint = call.Repaint && t.holdsLayout() && t.MondrianHSplits >= 2 &&
                   t.MondrianHSplits * t.MondrianVSplits > 0 && call.Type == t.MondrianLastType &&
                   (s.colours().RandomValues ||
                    (o.panelH == t.MondrianLastH && o.panelV == t.MondrianLastV));

    // The inner size.
    if (call.Super) {
        call.Format = 0;
        t.MondrianW = picW - m2;
        t.MondrianH = picH - m2;
    } else if (repaint) {
        // the sizes of the last set
    } else if (!mondrianSizeFromSurface(ctx, canvas, call.Format, m2)) {
        mondrianSizeByFormat(s, call.Format, call.Side, m2);
    }

    if (o.fill)
        chooseMondrianColours(s, o.withWhite);

    if (!repaint) {
        // The Superformat drew counts from its size first; only their draws remain.
        if (s.colours().RandomValues && call.Super) {
            (void)s.Rnd();
            (void)s.Rnd();
        }
        MondrianSetRequest r;
        r.h = o.panelH;
        r.v = o.panelV;
        r.symH = call.SymH;
        r.symV = call.SymV;
        r.subH = o.subH;
        r.subV = o.subV;
        r.doSub = o.doSub;
        r.harmonic = o.harmonic;
        r.randomValues = s.colours().RandomValues;
        r.type = call.Type;
        r.pen = penW;
        penW = makeMondrianSet(s, r).pen;
    }

    if (!call.Super) {
        canvas.clear();
        mondrianSizeFromSurface(ctx, canvas, call.Format, m2);
    }

    int32_t offX = t.MondrianMargin, offY = t.MondrianMargin;
    if (o.center && call.Format == 1)
        offX = rounded((call.Side - t.MondrianW - m2) / 2.0) + t.MondrianMargin;
    else if (o.center && call.Format == 2)
        offY = rounded((call.Side - t.MondrianH - m2) / 2.0) + t.MondrianMargin;

    // The fields and, with all frames, the top and left lines of each.
    const std::vector<MondrianFrame> frames = mondrianFrames(t);
    ColorLong lastFill = lineColour;
    int sinceYield = 0;
    for (const MondrianFrame &f : frames) {
        const ColorLong colour = o.fill ? mondrianFrameColour(s, f, picW, picH) : NoColour;
        const int l = f.left + offX, tp = f.top + offY, r = f.right + offX, b = f.bottom + offY;
        if (f.right <= f.left || f.bottom <= f.top)
            continue; // a frame of no width: nothing to fill or outline
        if (colour != NoColour) {
            canvas.fillBox(l, tp, r - 1, b - 1, colour);
            lastFill = colour;
        }
        if (call.AllFrames != 0) {
            for (int i = 1; i <= penW; ++i) {
                canvas.line(l, tp + i - 1, r, tp + i - 1, lineColour);
                canvas.line(l + i - 1, tp, l + i - 1, b, lineColour);
            }
        }
        if (++sinceYield >= 256) {
            sinceYield = 0;
            canvas.changed();
            ctx.DoEvents();
            if (ctx.stopRequested())
                return;
        }
    }

    const int16_t h = t.MondrianHSplits, v = t.MondrianVSplits;
    if (o.drawBorders && call.AllFrames == 0) {
        // The lines of the columns and rows across the whole layout.
        const int from = penW > 1 ? rounded(-penW / 2.0) : 0;
        const int to = penW > 1 ? rounded(penW / 2.0) : 0;
        for (int c = 1; c <= h - 1; ++c) {
            const int x = t.ArrCellH(0, c, 0) + offX;
            for (int d = from; d <= to; ++d)
                canvas.line(x + d, offY, x + d, offY + t.MondrianH, lineColour);
        }
        for (int r = 1; r <= v - 1; ++r) {
            const int y = t.ArrCellV(0, 0, r) + offY;
            for (int d = from; d <= to; ++d) {
                // The large format draws its repeated horizontals in the last fill colour,
                // a pixel short: part of its look.
                if (call.Super && d != from)
                    canvas.line(offX, y + d, offX + t.MondrianW - 1, y + d, lastFill);
                else
                    canvas.line(offX, y + d, offX + t.MondrianW, y + d, lineColour);
            }
        }
    }
    if (o.drawBorders && call.AllFrames != 0) {
        // The bottom and right lines close the picture.
        int right = 0, bottom = 0;
        if (call.Format == 0) {
            right = picW - (offX + 1);
            bottom = picH - (offY + 1);
        } else {
            right = offX + t.ArrCellH(1, h - 1, 0) - 1;
            bottom = offY + t.ArrCellV(1, 0, v - 1) - 1;
        }
        const int shorten = call.Super ? penW - 1 : 0;
        for (int i = 1; i <= penW; ++i) {
            canvas.line(offX, bottom - (i - 1), right + 1 - shorten, bottom - (i - 1), lineColour);
            canvas.line(right - (i - 1), offY, right - (i - 1), bottom + 1 - shorten, lineColour);
        }
    }

    if (o.kaleido) {
        // The left half mirrored onto the right half, then the top half onto the bottom.
        DeviceContext &dc = canvas.dc();
        const int hw = rounded(picW / 2.0), hh = rounded(picH / 2.0);
        StretchBlt(dc, picW - hw, 0, hw, picH, dc, hw - 1, 0, -hw, picH, SRCCOPY);
        StretchBlt(dc, 0, picH - hh, picW, hh, dc, 0, hh - 1, picW, -hh, SRCCOPY);
    }
    canvas.changed();
}

} // namespace

MondrianCall mondrianCallFromPanel(const PaintContext &ctx, const FrameCanvas &canvas,
                                   bool repaint)
{
    const Controls &k = ctx.session.controls();
    MondrianCall call;
    call.Side = Max(canvas.width(), canvas.height());
    call.PenWidth = Max<int16_t>(1, ctx.opt.PenWidth);
    call.Repaint = repaint;
    call.SymH = int16_t(k.value(key("XMondrian", 0)));
    call.SymV = int16_t(k.value(key("XMondrian", 1)));
    call.AllFrames = int16_t(k.value(key("XMondrian", 3)));
    call.Format = std::clamp(k.listIndex(key("cmbMondrian_Format", 0)), 0, 2);
    call.Type = std::clamp(k.listIndex(key("cmbMondrian_Format", 1)), 0, 5);
    return call;
}

void Draw_Mondrian(PaintContext &ctx, FrameCanvas &canvas, MondrianCall call)
{
    guarded(QStringLiteral("Draw_Mondrian"), [&] { drawMondrian(ctx, canvas, call); });
}

void paintMondrian(PaintContext &ctx)
{
    Session &s = ctx.session;
    ctx.Bild_CLEAR();
    Start_Transparent(s);
    PictureCanvas canvas(ctx.XBild);
    MondrianCall call = mondrianCallFromPanel(ctx, canvas, s.mondrian().RepaintAsked);
    if (call.Type >= 2) {
        BoogieState state;
        Draw_MondrianBoogie(ctx, canvas, call, state);
    } else {
        Draw_Mondrian(ctx, canvas, call);
    }
    Ende_Transparent(s);
    ctx.XBild.markChanged();
}

} // namespace tf
