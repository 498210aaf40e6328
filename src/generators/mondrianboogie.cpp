// Draw_MondrianBoogie: the grid, the layout in units, the nodes and the lines of squares.
#include "generators/mondrianboogie.h"

#include "core/fault.h"
#include "generators/boogiebars.h"
#include "generators/framecanvas.h"
#include "generators/mondrianlayout.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>
#include <memory>

namespace tf {

namespace {

ControlKey key(const char *name, int index = -1)
{
    return {QString::fromLatin1(name), index};
}

int32_t rounded(double x)
{
    return CLng(x);
}

double rnd(Session &s)
{
    return double(s.Rnd());
}

// The fixed colours of the two colour lists, from "Schwarz" on.
const ColorLong fixedColours[] = {
    RGB(0, 0, 0),   RGB(255, 255, 255), RGB(128, 128, 128), RGB(255, 0, 0), RGB(0, 160, 0),
    RGB(0, 0, 255), RGB(255, 255, 0),   RGB(255, 128, 0),   RGB(128, 0, 128),
};

ColorLong fixedColour(int i)
{
    return fixedColours[std::clamp(i, 0, int(std::size(fixedColours)) - 1)];
}

// The ground by cmbMondrian_Format(2): "Standard" a warm white, "Zufall" a pick, then the
// three colours of the colour state and the fixed colours.
ColorLong groundColour(Session &s, int index)
{
    const ColourState &c = s.colours();
    switch (index) {
    case 0: return RGB(244, 242, 234);
    case 1: return Pick_RandomColor(s);
    case 2: return c.ColorFore;
    case 3: return c.ColorBack;
    case 4: return c.ColorBorder;
    default: return fixedColour(index - 5);
    }
}

struct Painter {
    PaintContext &ctx;
    Session &s;
    FrameCanvas &canvas;
    MondrianCall call;
    BoogieState &st;
    int picW = 0, picH = 0;
    int16_t penW = 1;
    bool chaos = false;
    bool kaleido = false;
    int nodeColour = 0;
    std::vector<ColorLong> nodeTable; // the kept entries of "MondrianColorsNoWhite"
    std::unique_ptr<BoogieBars> bars;  // the plasma bars of the types above 2

    ColorLong tableColour()
    {
        const ColourState &c = s.colours();
        const int cells = st.ColourX * st.ColourY - 1;
        const int upper = int(c.DuoColors.size()) - 1;
        const int i = std::clamp(rounded(Int(rnd(s) * cells) + 1), 1, Max(1, upper));
        return duoCell(c, i).value_or(NoColour);
    }

    void buildTable(const bool duoActive, const bool withWhite)
    {
        if (nodeColour == 2) {
            Set_Duo_Colortable(s, 1, true, QStringLiteral("MondrianColorsNoWhite"), 5, 5);
            const auto &cells = s.colours().DuoColors;
            nodeTable.assign(cells.begin(), cells.begin() + std::min<size_t>(26, cells.size()));
        }
        QString name;
        if (duoActive)
            name = QStringLiteral("DuoMondrian");
        else if (s.colours().RandomColors)
            name = QStringLiteral("RandomMondrian");
        else
            name = QStringLiteral("MondrianColorsNoWhite");
        // The schemes hold 25 colours: a smaller table ("Farbtiefe reduzieren") reads only its
        // first cells of them.
        const int cols = st.ColourX * st.ColourY >= 25 ? st.ColourX : 5;
        const int rows = st.ColourX * st.ColourY >= 25 ? st.ColourY : 5;
        Set_Duo_Colortable(s, 1, withWhite, name, cols, rows);
    }

    ColorLong nodeFieldColour()
    {
        switch (nodeColour) {
        case 0: return tableColour();
        case 1: return Pick_RandomColor(s);
        case 2: {
            if (nodeTable.empty())
                return tableColour();
            const int i = rounded(Int(rnd(s) * double(nodeTable.size())));
            return nodeTable[size_t(std::clamp(i, 0, int(nodeTable.size()) - 1))];
        }
        default: return fixedColour(nodeColour - 3);
        }
    }

    // A box of grid pixels (without offsets), clipped to the grid's end.
    void box(double l, double t, double r, double b, ColorLong c)
    {
        if (c == NoColour)
            return;
        const int x1 = rounded(l) + st.OffX, y1 = rounded(t) + st.OffY;
        const int x2 = rounded(r) + st.OffX - 1, y2 = rounded(b) + st.OffY - 1;
        if (x2 < x1 || y2 < y1)
            return;
        canvas.fillBox(x1, y1, x2, y2, c);
    }

    // Step 12: a node with its inner blocks.
    void paintNode(const BoogieState::Node &n)
    {
        const double u = st.Unit;
        const double w = std::abs(n.right - n.left), h = std::abs(n.bottom - n.top);
        int kind = 0;
        if (w > 2 * u && h > 2 * u) {
            const double cells = (w / u) * (h / u);
            if (cells <= 6)
                kind = 0;
            else if (rounded(w / u) == 3 || rounded(h / u) == 3)
                kind = 1;
            else if (cells > 9)
                kind = 2;
        }
        const ColorLong field = nodeFieldColour();
        box(n.left, n.top, n.right, n.bottom, field);
        if (kind >= 1) {
            // An inner block one unit in from the edge.
            ColorLong inner = tableColour();
            if (inner == field)
                inner = tableColour();
            box(n.left + u, n.top + u, n.right - u, n.bottom - u, inner);
        }
        if (kind == 2) {
            // A square of one unit at the centre.
            const double cx = Int((n.left + n.right) / 2.0 / u) * u;
            const double cy = Int((n.top + n.bottom) / 2.0 / u) * u;
            box(cx, cy, cx + u, cy + u, field);
        }
    }

    // Step 10: a square of the line at grid position (x, y) pixels.
    void square(double x, double y, double size, bool vertical, int count)
    {
        ColorLong c = NoColour;
        if (st.FourColours)
            c = vertical ? st.Colours4[1] : st.Colours4[3];
        else
            c = tableColour();
        if (c == NoColour)
            return;
        const int x1 = rounded(x) + st.OffX, y1 = rounded(y) + st.OffY;
        if (x1 > picW - st.OffX || y1 > picH - st.OffY)
            return;
        if (bars && bars->ready()) {
            bars->Draw_BoogieStrip(canvas, x1, y1, vertical ? QStringLiteral("3")
                                                            : QStringLiteral("2"), count);
            return;
        }
        const int side = Max(1, rounded(size));
        canvas.fillBox(x1, y1, x1 + side - 1, y1 + side - 1, c);
    }

    // A line of squares from square 1 to `count` along x (vertical line) or y.
    void lineOfSquares(double at, int count, bool vertical)
    {
        const double u = st.Unit;
        for (int i = 1; i <= count; ++i) {
            double pos = rounded((i - 1) * u);
            double x = vertical ? at : pos, y = vertical ? pos : at;
            double size = u;
            if (chaos && i > 1 && i < count && Int(rnd(s) * count) == 4) {
                x -= u / 2;
                y -= u / 2;
                size = (rounded(rnd(s) * 2) + 1) * u / 2;
            }
            square(x, y, size, vertical, count);
        }
    }

    void nodes()
    {
        MondrianTables &t = s.mondrian();
        st.Nodes.clear();
        const double u = st.Unit;
        const double gridEndX = u * st.GridW, gridEndY = u * st.GridH;
        for (int r = 0; r < t.MondrianVSplits; ++r) {
            for (int c = 0; c < t.MondrianHSplits; ++c) {
                const double x0 = t.ArrCellH(0, c, r), dx = t.ArrCellH(1, c, r) - x0;
                const double y0 = t.ArrCellV(0, c, r), dy = t.ArrCellV(1, c, r) - y0;
                if (rounded(rnd(s) * 3) + 1 != 2)
                    continue;
                const int size = rounded(rnd(s) * st.Squares / 7.0);
                auto place = [&](double start, double len, double end, int32_t &lo, int32_t &hi) {
                    const int units = len > 3 * u ? rounded(rnd(s) * (len / u)) + 1
                                                  : rounded(rnd(s)) + 1;
                    const int extent = rounded(rnd(s) * size) + 2;
                    double a = start + units * u, b = a + extent * u;
                    if (b > end) {
                        a -= extent * u;
                        b = Min(b - extent * u, end);
                    }
                    lo = rounded(a);
                    hi = rounded(b);
                    return a >= 0 && b > a && b <= end;
                };
                BoogieState::Node n;
                const bool fitsX = place(x0, dx, gridEndX, n.left, n.right);
                const bool fitsY = place(y0, dy, gridEndY, n.top, n.bottom);
                if (fitsX && fitsY)
                    st.Nodes.push_back(n);
            }
        }
    }
};

void drawBoogie(PaintContext &ctx, FrameCanvas &canvas, MondrianCall call, BoogieState &st)
{
    Session &s = ctx.session;
    MondrianTables &t = s.mondrian();
    Controls &k = s.controls();
    ColourState &colours = s.colours();
    s.Randomize();
    Painter p{ctx, s, canvas, call, st, 0, 0, 1, false, false, 0, {}, {}};
    p.picW = canvas.width();
    p.picH = canvas.height();

    st.FourColours = k.checked(key("XMondrian", 6));
    if (st.FourColours)
        for (int i = 0; i < 4; ++i)
            st.Colours4[i] = k.value(key("pic4C", i));
    p.chaos = k.checked(key("XMondrian", 9));
    p.kaleido = k.checked(key("XMondrian", 4));

    // The size of the colour table.
    if (colours.RandomValues) {
        st.ColourX = int16_t(Int(rnd(s) * 3) + 1);
        if (Mod(rounded(Int(rnd(s) * 2)), 2) == 1) {
            st.ColourY = int16_t(st.ColourX + 1);
        } else {
            st.ColourX = 8;
            st.ColourY = 8;
        }
    } else if (k.checked(key("XMondrian", 8))) {
        st.ColourX = 3;
        st.ColourY = 4;
    } else {
        st.ColourX = 8;
        st.ColourY = 8;
    }
    st.BgIndex = int16_t(k.listIndex(key("cmbMondrian_Format", 2)));
    st.DoBoogies = k.checked(key("XMondrian", 7));
    p.nodeColour = k.listIndex(key("cmbMondrian_Format", 3));

    const bool drawBorders = k.checked(QStringLiteral("XBorders"));
    const bool duoActive = colours.XDuotones[0] || colours.XDuotones[1];
    const bool withWhite = k.checked(QStringLiteral("XFill_White"));
    const bool doSub = k.checked(key("XMondrian", 2));
    const bool harmonic = k.checked(key("XMondrian", 5));
    p.penW = call.PenWidth < 1 ? int16_t(1) : call.PenWidth;
    if (!drawBorders)
        call.AllFrames = 0;
    p.buildTable(duoActive, withWhite);

    // The split counts, the pen and the number of squares.
    int16_t h = CInt(Max(2.0, Val(k.text(key("txtMondrian", 0)))));
    int16_t v = CInt(Max(2.0, Val(k.text(key("txtMondrian", 1)))));
    int16_t subH = int16_t(std::clamp(k.listIndex(key("cmbMondrian_subfak", 0)), 0, 3) + 1);
    int16_t subV = int16_t(std::clamp(k.listIndex(key("cmbMondrian_subfak", 1)), 0, 3) + 1);
    int16_t symH = call.SymH, symV = call.SymV;
    int32_t seedH = 0, seedV = 0;
    const int16_t panelH = h, panelV = v;
    if (colours.RandomValues) {
        if (call.Super) {
            h = CInt(Max(2.0, call.SuperW / 1024.0) + Int(rnd(s) * 9));
            v = CInt(Max(2.0, call.SuperH / 1024.0) + Int(rnd(s) * 9));
        }
        h = CInt(Int(rnd(s) * 9) + 2);
        v = CInt(Int(rnd(s) * 9) + 2);
        symH = int16_t(Int(rnd(s) * 2));
        symV = int16_t(Int(rnd(s) * 2));
        subH = subV = 1;
        if (p.penW == 1)
            p.penW = int16_t(rounded(rnd(s)) + 1);
        if (doSub) {
            if (rounded(rnd(s)) == 1)
                seedH = rounded(rnd(s) * double(s.Timer()));
            if (rounded(rnd(s)) == 1)
                seedV = rounded(rnd(s) * double(s.Timer()));
            else
                seedV = seedH;
        }
        st.Squares = rounded(rnd(s) * 50) + 20;
    } else {
        if (harmonic) {
            seedH = rounded(rnd(s) * double(s.Timer()));
            seedV = rounded(rnd(s) * double(s.Timer()));
        }
        st.Squares = Max(1, ctx.opt.NumberValue);
    }

    // The grid unit: the shorter side over the squares and the lines.
    const double shorter = Min(p.picW, p.picH);
    const double lines = call.AllFrames != 0 ? (p.penW - 1) * 2.0 : p.penW + 1.0;
    st.Unit = Single(Int(checkedDiv(shorter, st.Squares + 2 - lines)));
    const double u = st.Unit;
    auto grid = [&](int16_t sym, int16_t count, int pic, int32_t &gridN, int16_t &units) {
        if (sym != 0) {
            gridN = rounded(checkedDiv(pic, u));
            gridN = gridN - Mod(gridN, int32_t(count)) + count - 1;
            units = CInt(Int(double(gridN - count + 1) / count) + 1);
            gridN = units * count - 1;
        } else {
            gridN = rounded(checkedDiv(pic - (p.penW + 1), u));
            units = 1;
        }
    };
    grid(symH, h, p.picW, st.GridW, st.UnitsH);
    grid(symV, v, p.picH, st.GridH, st.UnitsV);
    st.OffX = rounded((p.picW - u * st.GridW) / 2);
    st.OffY = rounded((p.picH - u * st.GridH) / 2);
    if (call.AllFrames != 0) {
        st.OffX -= rounded(p.penW / 2.0);
        st.OffY -= rounded(p.penW / 2.0);
    }

    // The layout in whole units, kept on a repaint of the same grid.
    const bool repaint = call.Repaint && t.holdsLayout() && call.Type == t.MondrianLastType &&
                         t.MondrianUnit == st.Unit && t.MondrianGridW == st.GridW &&
                         t.MondrianGridH == st.GridH &&
                         (colours.RandomValues ||
                          (panelH == t.MondrianLastH && panelV == t.MondrianLastV));
    if (!repaint) {
        t.MondrianW = p.picW - 2 * st.OffX;
        t.MondrianH = p.picH - 2 * st.OffY;
        t.MondrianLastH = h;
        t.MondrianLastV = v;
        t.MondrianLastType = int16_t(call.Type);
        t.MondrianHSplits = h;
        t.MondrianVSplits = v;
        t.MondrianUnit = st.Unit;
        t.MondrianGridW = st.GridW;
        t.MondrianGridH = st.GridH;
        MondrianSplitArgs a;
        a.SymH = symH;
        a.SymV = symV;
        a.Pen = p.penW;
        a.DoSub = doSub ? 1 : 0;
        a.MinRatio = 2;
        a.Mode = MondrianBoogie;
        a.Unit = st.Unit;
        a.SeedH = seedH;
        a.SeedV = seedV;
        a.SubH = subH;
        a.SubV = subV;
        a.UnitsH = st.UnitsH;
        a.UnitsV = st.UnitsV;
        CreateArr_Mondrian_Splits(s, a);
    }

    if (!call.Super)
        canvas.clear();
    canvas.fillBox(0, 0, p.picW - 1, p.picH - 1, groundColour(s, st.BgIndex));

    p.nodes();
    if (st.DoBoogies)
        for (size_t i = 0; i < st.Nodes.size(); i += 2) // the odd node numbers, from 1
            p.paintNode(st.Nodes[i]);
    ctx.DoEvents();

    if (call.Type > 2) {
        ColorLong first = RGB(0, 0, 255), second = RGB(32, 32, 96);
        if (st.FourColours) {
            first = liftToFull(st.Colours4[0]);
            second = liftToFull(st.Colours4[2]);
        } else if (duoActive) {
            first = colours.ColorFore;
            second = colours.ColorBack;
        } else {
            const int toss = rounded(rnd(s) * 2);
            if (toss == 1) {
                first = RGB(32, 32, 32);
                second = RGB(255, 255, 255);
            } else if (toss == 2) {
                first = RGB(32, 255, 32);
                second = RGB(32, 32, 64);
            }
        }
        p.bars = std::make_unique<BoogieBars>(s, call.Type, rounded(u),
                                              Max(st.GridW, st.GridH), first, second);
    }

    // The lines: every column and row line, the outer ones with all frames.
    const int first = call.AllFrames != 0 ? 0 : 1;
    for (int c = first; c <= t.MondrianHSplits - 1; ++c)
        p.lineOfSquares(t.ArrCellH(0, c, 0), st.GridH, true);
    for (int r = first; r <= t.MondrianVSplits - 1; ++r)
        p.lineOfSquares(t.ArrCellV(0, 0, r), st.GridW, false);
    if (call.AllFrames != 0) {
        p.lineOfSquares(u * (st.GridW - 1), st.GridH, true);
        p.lineOfSquares(u * (st.GridH - 1), st.GridW, false);
    }
    // The edges of sub-frames inside their cell.
    for (const MondrianFrame &f : mondrianFrames(t)) {
        if (!f.sub)
            continue;
        const int n = Max(1, rounded((f.bottom - f.top) / u));
        const int m = Max(1, rounded((f.right - f.left) / u));
        if (f.left > 0 && f.top >= 0)
            for (int i = 1; i <= n; ++i)
                p.square(f.left, f.top + (i - 1) * u, u, true, n);
        if (f.top > 0 && f.left >= 0)
            for (int i = 1; i <= m; ++i)
                p.square(f.left + (i - 1) * u, f.top, u, false, m);
    }
    if (p.kaleido) {
        DeviceContext &dc = canvas.dc();
        const int hw = rounded(p.picW / 2.0), hh = rounded(p.picH / 2.0);
        StretchBlt(dc, p.picW - hw, 0, hw, p.picH, dc, hw - 1, 0, -hw, p.picH, SRCCOPY);
        StretchBlt(dc, 0, p.picH - hh, p.picW, hh, dc, 0, hh - 1, p.picW, -hh, SRCCOPY);
    }
    canvas.changed();
}

} // namespace

void Draw_MondrianBoogie(PaintContext &ctx, FrameCanvas &canvas, MondrianCall call,
                         BoogieState &state)
{
    guarded(QStringLiteral("Draw_MondrianBoogie"), [&] { drawBoogie(ctx, canvas, call, state); });
}

} // namespace tf
