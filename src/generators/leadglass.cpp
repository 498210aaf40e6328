// Draw_MLeadGlass: the panes of the layout, their lead, and the lead figures over them.
#include "generators/leadglass.h"

#include "core/blit.h"
#include "core/fault.h"
#include "core/picturebox.h"
#include "generators/leadpen.h"
#include "generators/mondrian.h"
#include "generators/mondrianlayout.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tf {

namespace {

constexpr double PiV = std::numbers::pi;
// The smallest length a cell must have per split before it is subdivided: lead-glass panes
// stay large enough to hold their lead.
constexpr int16_t LeadMinRatio = 32;

ControlKey key(const char *name, int index = -1)
{
    return {QString::fromLatin1(name), index};
}

int32_t rounded(double x) { return CLng(x); }

// What the paint reads from the panel and the general options at its start.
struct Options {
    bool drawBorders = false, fill = false, withWhite = false, center = false;
    bool random = false, duoActive = false;
    bool rauten = false, kaleido = false, tiffany = false, doSub = false, harmonic = false;
    bool sunRings = false, rosette = false, flower = false, plants = false, hills = false;
    bool crystals = false;
    bool formSun = false, formRect = false;
    int16_t panelH = 2, panelV = 2;
    int32_t margin = 0, borderW = 20, sizeCorr = 0;
};

Options readOptions(Session &s)
{
    const Controls &k = s.controls();
    Options o;
    o.drawBorders = k.checked(QStringLiteral("XBorders"));
    o.fill = k.checked(QStringLiteral("XFill"));
    o.withWhite = k.checked(QStringLiteral("XFill_White"));
    o.center = k.checked(QStringLiteral("XCenter"));
    o.random = s.colours().RandomValues;
    o.duoActive = s.colours().XDuotones[0] || s.colours().XDuotones[1];
    o.rauten = k.checked(key("XMLG", 3));
    o.kaleido = k.checked(key("XMLG", 4));
    o.tiffany = k.checked(key("XMLG", 5));
    o.doSub = k.checked(key("XMLG", 6));
    o.harmonic = k.checked(key("XMLG", 7));
    o.sunRings = k.checked(key("XMLG_Paint", 0));
    o.rosette = k.checked(key("XMLG_Paint", 1));
    o.flower = k.checked(key("XMLG_Paint", 2));
    o.plants = k.checked(key("XMLG_Paint", 3));
    o.hills = k.checked(key("XMLG_Paint", 4));
    o.crystals = k.checked(key("XMLG_Paint", 5));
    // The frame " Formen ": "Ohne", "Sonne", "Rechteck".
    const int form = k.listIndex(key("optXMLGForms"));
    o.formSun = form == 1;
    o.formRect = form == 2;
    o.panelH = CInt(Max(2.0, Val(k.text(key("txtMLGKachel", 0)))));
    o.panelV = CInt(Max(2.0, Val(k.text(key("txtMLGKachel", 1)))));
    o.margin = CLng(Val(k.text(key("txtMLGKachel", 2))));
    o.borderW = CLng(Val(k.text(key("txtMLGKachel", 3))));
    o.sizeCorr = CLng(Val(k.text(key("txtMLGKachel", 4))));
    return o;
}

double rnd(Session &s) { return double(s.Rnd()); }

// A colour of the whole table, NoColour for an unfilled cell or an empty table.
ColorLong tableColour(Session &s)
{
    const ColourState &c = s.colours();
    const int upper = int(c.DuoColors.size()) - 1;
    if (upper < 1)
        return NoColour;
    return duoCell(c, rounded(Int(rnd(s) * upper) + 1)).value_or(NoColour);
}

class LeadGlass {
public:
    LeadGlass(PaintContext &ctx, LeadGlassCall call)
        : m_ctx(ctx), m_s(ctx.session), m_t(ctx.session.mondrian()), m_pic(ctx.XBild),
          m_call(call), m_w(ctx.XBild.Width()), m_h(ctx.XBild.Height()),
          m_frameColour(ctx.session.colours().ColorBorder)
    {
    }

    void paint();

private:
    bool sizeFromPicture();
    void layout();
    void panes();
    void centre(bool nearest, double &cx, double &cy);
    void sunRings(const LeadPen &pen, double cx, double cy);
    void figures(const LeadPen &pen);
    void plants(const LeadPen &pen);
    void hills(const LeadPen &pen);
    void crystals(const LeadPen &pen);
    void rosette(const LeadPen &pen, double cx, double cy, double radius);
    void leaf(const LeadPen &pen, double x, double y, double d);

    PaintContext &m_ctx;
    Session &m_s;
    MondrianTables &m_t;
    PictureBox &m_pic;
    LeadGlassCall m_call;
    Options m_o;
    int m_w, m_h;
    ColorLong m_frameColour;
    int16_t m_penW = 1;
    int32_t m_offX = 0, m_offY = 0;
    bool m_repaint = false;
    double m_cx = 0, m_cy = 0;
};

bool LeadGlass::sizeFromPicture()
{
    const int32_t m2 = 2 * m_t.MondrianMargin;
    if (m_ctx.workspace().PicSelect.Visible() || m_w != m_h) {
        m_call.Format = 0;
        m_t.MondrianW = m_w - m2;
        m_t.MondrianH = m_h - m2;
        return true;
    }
    return false;
}

void LeadGlass::layout()
{
    MondrianSetRequest r;
    r.h = m_o.panelH;
    r.v = m_o.panelV;
    r.symH = m_call.SymH;
    r.symV = m_call.SymV;
    r.pen = m_penW;
    r.drawPen = false; // the lead keeps the pen it was given
    r.doSub = m_o.doSub;
    r.harmonic = m_o.harmonic;
    r.randomValues = m_o.random;
    r.minRatio = LeadMinRatio;
    r.type = m_call.Type;
    const MondrianSetDrawn d = makeMondrianSet(m_s, r);
    if (m_o.random)
        m_o.rauten = d.symH == 1 && d.symV == 1 && d.h == d.v;
    // A window remembers the panel's counts, not the drawn ones.
    m_t.MondrianLastH = m_o.panelH;
    m_t.MondrianLastV = m_o.panelV;
}

// The panes in the colours of the table and, with all frames, the lead at the top and left
// of each; without all frames the lead runs along the columns and rows of the whole layout.
void LeadGlass::panes()
{
    const std::vector<MondrianFrame> frames = mondrianFrames(m_t);
    for (const MondrianFrame &f : frames) {
        if (f.right <= f.left || f.bottom <= f.top)
            continue;
        const int l = f.left + m_offX, tp = f.top + m_offY, r = f.right + m_offX,
                  b = f.bottom + m_offY;
        const ColorLong colour = m_o.fill ? tableColour(m_s) : NoColour;
        if (colour != NoColour)
            m_pic.Line(l, tp, r - 1, b - 1, colour, LineFlags::BF);
        if (m_call.AllFrames != 0 && m_penW > 0) {
            m_pic.Line(l, tp, r - 1, tp + m_penW - 1, m_frameColour, LineFlags::BF);
            m_pic.Line(l, tp, l + m_penW - 1, b - 1, m_frameColour, LineFlags::BF);
        }
        if (m_o.rauten && m_penW > 0) {
            // The lozenge through the middles of the pane's sides.
            const LeadPen pen(m_pic, m_frameColour, m_penW);
            const double mx = (l + r) / 2.0, my = (tp + b) / 2.0;
            pen.line(mx, tp, r, my);
            pen.line(r, my, mx, b);
            pen.line(mx, b, l, my);
            pen.line(l, my, mx, tp);
        }
    }
    const int16_t h = m_t.MondrianHSplits, v = m_t.MondrianVSplits;
    if (m_o.drawBorders && m_call.AllFrames == 0 && m_penW > 0) {
        const int from = -(m_penW / 2);
        for (int c = 1; c <= h - 1; ++c) {
            const int x = m_t.ArrCellH(0, c, 0) + m_offX + from;
            m_pic.Line(x, m_offY, x + m_penW - 1, m_offY + m_t.MondrianH - 1, m_frameColour,
                       LineFlags::BF);
        }
        for (int r = 1; r <= v - 1; ++r) {
            const int y = m_t.ArrCellV(0, 0, r) + m_offY + from;
            m_pic.Line(m_offX, y, m_offX + m_t.MondrianW - 1, y + m_penW - 1, m_frameColour,
                       LineFlags::BF);
        }
    }
    if (m_o.drawBorders && m_call.AllFrames != 0 && m_penW > 0) {
        // Draw_FrameBR: the bottom and right lead close the window.
        int right = 0, bottom = 0;
        if (m_call.Format == 0) {
            right = m_w - (m_offX + 1);
            bottom = m_h - (m_offY + 1);
        } else {
            right = m_offX + m_t.ArrCellH(1, h - 1, 0) - 1;
            bottom = m_offY + m_t.ArrCellV(1, 0, v - 1) - 1;
        }
        m_pic.Line(m_offX, bottom - m_penW + 1, right, bottom, m_frameColour, LineFlags::BF);
        m_pic.Line(right - m_penW + 1, m_offY, right, bottom, m_frameColour, LineFlags::BF);
    }
}

// The node of the grid nearest the picture's middle, or with `nearest` off a random one.
void LeadGlass::centre(bool nearest, double &cx, double &cy)
{
    const int16_t h = m_t.MondrianHSplits, v = m_t.MondrianVSplits;
    auto pick = [&](int count, int extent, auto edge) {
        if (count < 2)
            return 0;
        if (!nearest)
            return edge(std::clamp(int(Int(rnd(m_s) * (count - 1))) + 1, 1, count - 1));
        double best = extent;
        for (int i = 1; i <= count - 1; ++i)
            best = std::min(best, std::abs(extent / 2.0 - edge(i)));
        int chosen = count - 1;
        for (int i = 1; i <= count - 1; ++i)
            if (std::abs(std::abs(extent / 2.0 - edge(i)) - best) < 2) {
                chosen = i;
                break;
            }
        return edge(std::clamp(chosen, 1, count - 1));
    };
    cx = pick(h, m_w, [&](int c) { return m_t.ArrCellH(0, c, 0); }) + m_offX;
    cy = pick(v, m_h, [&](int r) { return m_t.ArrCellV(0, 0, r); }) + m_offY;
}

// Draw_SinCosFlowers: rings round the centre out to the farthest corner, each waving by a
// sine of more lobes than the one inside it, and rays between the first ring and the second.
void LeadGlass::sunRings(const LeadPen &pen, double cx, double cy)
{
    const int n = rounded(Int(rnd(m_s) * 5) + 4);
    const double reach = std::hypot(std::max(cx, m_w - cx), std::max(cy, m_h - cy));
    const double step = reach / n;
    for (int k = 1; k <= n; ++k) {
        const double base = step * k;
        const int lobes = 4 + 2 * k;
        const double amplitude = k == 1 ? 0 : step / 5;
        pen.polar(cx, cy, [=](double a) { return base + amplitude * std::sin(lobes * a); });
    }
    const int rays = 12;
    for (int i = 0; i < rays; ++i) {
        const double a = 2 * PiV * i / rays;
        pen.line(cx + step * std::cos(a), cy - step * std::sin(a),
                 cx + (2 * step - step / 5) * std::cos(a), cy - (2 * step - step / 5) * std::sin(a));
    }
}

// A leaf between (x,y) and (x,y-d): two quarter arcs of radius d/sqrt(2).
void LeadGlass::leaf(const LeadPen &pen, double x, double y, double d)
{
    const double r = std::sqrt((d / 2) * (d / 2) * 2);
    pen.arc(x + d / 2, y - d / 2, r, 3 * PiV / 4, 5 * PiV / 4);
    pen.arc(x - d / 2, y - d / 2, r, 7 * PiV / 4, PiV / 4);
}

// Plant arcs: stems of leaves rising from the bottom, a pass from the left and one from the
// right.
void LeadGlass::plants(const LeadPen &pen)
{
    for (int pass = 0; pass < 2; ++pass) {
        double x = pass == 0 ? rounded(-m_w / 2.0) : rounded(m_w / 2.0 + m_w);
        const double part = pass == 0 ? m_h / 2.0 : m_h / 3.0;
        const double d = rounded(rnd(m_s) * m_h) / 4.0 + rounded(rnd(m_s) * m_h) / 2.0 + part;
        const int count = rounded(Int(rnd(m_s) * 4) + 2);
        for (int i = 0; i < count; ++i) {
            const double px = x + rounded(rnd(m_s) * m_w) / 2.0;
            const double py = m_h + m_h / 4.0 - rounded(rnd(m_s) * m_h) / 4.0;
            leaf(pen, px, py, d / 2);
            leaf(pen, px, py - d / 2, d / 2);
            const double advance = rounded(rnd(m_s) * m_w / 4.0) + m_w / 8.0;
            x += pass == 0 ? advance : -advance;
        }
    }
}

// Hill arcs: the upper halves of circles whose tops lie between a quarter above and a quarter
// below three quarters of the height and whose sides run out below the bottom edge, so every
// hill rises from the bottom. The second pass starts left of the picture, narrower, and
// tosses between one arc and a hill with a lower shoulder, so that the hills alternate.
void LeadGlass::hills(const LeadPen &pen)
{
    for (int pass = 0; pass < 2; ++pass) {
        double x = pass == 0 ? 0 : rounded(-m_w / 4.0);
        const double span = pass == 0 ? m_w * 2.0 / 3.0 : m_w * 0.6;
        const int count = rounded(Int(rnd(m_s) * 4) + 2);
        for (int i = 0; i < count; ++i) {
            const double top = m_h + m_h / 4.0 - rounded(rnd(m_s) * m_h) / 2.0 - m_h / 4.0;
            const double r = std::max(span * 0.6, m_h - top + 4);
            const double cx = x + span / 2, cy = top + r;
            pen.arc(cx, cy, r, 0, PiV);
            if (pass == 1 && rounded(rnd(m_s)) == 1)
                pen.arc(cx + span / 4, cy + r * 0.25, r * 0.9, 0, PiV / 2);
            x += rounded(rnd(m_s) * span / 2) + span / 4;
        }
    }
}

// Crystals: at a few inner nodes a box of the background colour with a lozenge of lead.
void LeadGlass::crystals(const LeadPen &pen)
{
    const int16_t h = m_t.MondrianHSplits, v = m_t.MondrianVSplits;
    const int sides = m_o.kaleido ? 3 : 5;
    const int lastColumn = m_o.kaleido ? std::min(h - 2, h / 2 - 1) : h - 2;
    const int s1 = int(Int(rnd(m_s) * 10)) + 10;
    const int s2 = int(Int(rnd(m_s) * 10)) + 10;
    const int s3 = int(Int(rnd(m_s) * 10)) + 14;
    const ColorLong ground = m_s.colours().ColorBack;
    int drawn = 0;
    for (int c = 1; c <= lastColumn && drawn < sides; ++c) {
        for (int r = 1; r <= v - 2 && drawn < sides; ++r) {
            const int left = m_t.ArrCellH(0, c, 0), right = m_t.ArrCellH(1, c, 0);
            const int top = m_t.ArrCellV(0, 0, r), bottom = m_t.ArrCellV(1, 0, r);
            if (right - left <= 23 || bottom - top <= 23 || Int(rnd(m_s) * 3) != 1)
                continue;
            const double x = right + m_offX, y = bottom + m_offY;
            const int size = drawn == 0 ? s1 : (drawn % 2 ? s2 : s3);
            m_pic.Line(x - size, y - size, x + size, y + size, ground, LineFlags::BF);
            pen.box(int(x) - size, int(y) - size, int(x) + size, int(y) + size);
            pen.line(x, y - size, x + size, y);
            pen.line(x + size, y, x, y + size);
            pen.line(x, y + size, x - size, y);
            pen.line(x - size, y, x, y - size);
            ++drawn;
        }
    }
}

// Circle_Rose: Rings rings, each with its petals: circles of half the ring's radius whose
// centres lie on the ring's half, so that they meet in the middle and touch the ring.
void LeadGlass::rosette(const LeadPen &pen, double cx, double cy, double radius)
{
    int petals = 0, rings = 1;
    if (radius < 25) {
        petals = int(Int(rnd(m_s) * 8)) + 3;
    } else {
        const double k = radius < 80 ? radius / (Int(rnd(m_s) * 2) + 2)
                                     : radius / (Int(rnd(m_s) * 4) + 1);
        rings = std::clamp(int(k / 10) / 3, 1, 3);
        if (radius >= 250)
            ++rings;
        switch (int(Int(rnd(m_s) * 3))) {
        case 0: petals = rings + 1; break;
        case 1: petals = rings * 2 + 1; break;
        default: petals = 2 * (rings + int(Int(rnd(m_s) * 3)) + 1); break;
        }
        petals = std::max(petals, 3);
    }
    for (int ring = 1; ring <= rings; ++ring) {
        const double rr = radius * ring / rings;
        pen.circle(cx, cy, rr);
        const int n = petals * ring;
        const double turn = ring % 2 ? 0 : PiV / n;
        for (int i = 0; i < n; ++i) {
            const double a = turn + 2 * PiV * i / n;
            pen.circle(cx + rr / 2 * std::cos(a), cy - rr / 2 * std::sin(a), rr / 2);
        }
    }
}

void LeadGlass::figures(const LeadPen &pen)
{
    // Read again: random values draw the figures anew on every paint and repaint.
    if (m_o.random) {
        m_o.formSun = Int(rnd(m_s) * 6) == 1;
        m_o.formRect = !m_o.formSun && Int(rnd(m_s) * 5) == 3;
        m_o.sizeCorr = rounded(Int(rnd(m_s) * 100) - 40);
        m_o.rosette = Int(rnd(m_s) * 6) == 4;
        if (m_o.rosette) {
            m_o.formSun = Int(rnd(m_s) * 4) == 1;
            m_o.formRect = !m_o.formSun;
        }
        m_o.flower = Int(rnd(m_s) * 12) < 5;
        m_o.plants = Int(rnd(m_s) * 6) == 2;
        m_o.hills = Int(rnd(m_s) * 5) == 1;
    }
    if (m_o.sunRings) {
        m_o.formRect = m_o.flower = m_o.plants = m_o.hills = false;
    }
    if (m_o.plants)
        plants(pen);
    if (m_o.hills)
        hills(pen);
    if (m_o.crystals)
        crystals(pen);
    if (!m_o.formSun && !m_o.formRect && !m_o.rosette && !m_o.flower && !m_o.sunRings)
        return;

    const double least = std::min(m_w, m_h);
    double cx = m_cx, cy = m_cy, radius = 0;
    if (m_o.kaleido || m_o.sunRings) {
        const double figure = least / (Int(rnd(m_s) * 2) == 1 ? 4 : 8);
        radius = std::max(20.0, figure + figure * m_o.sizeCorr / 100.0);
        if (!m_o.sunRings)
            centre(m_o.center, cx, cy);
        if (m_o.kaleido && !m_o.sunRings) {
            cx = m_w / 2.0;
            cy = m_h / 2.0;
        }
    } else {
        radius = std::max(16.0, least / 8 + (least / 8 * m_o.sizeCorr) / 100.0);
        if (m_o.center) {
            cx = m_w / 2.0;
            cy = m_h / 2.0;
        } else {
            centre(false, cx, cy);
        }
    }

    // The form: a disc or a box in a colour of the table, white where the table has none.
    ColorLong fill = tableColour(m_s);
    if (fill == NoColour)
        fill = RGB(255, 255, 255);
    m_pic.setFillStyle(0);
    m_pic.setFillColor(fill);
    if (m_o.sunRings || m_o.formSun) {
        m_pic.Circle(cx, cy, radius, fill);
        pen.circle(cx, cy, radius);
    } else if (m_o.formRect) {
        const int x1 = rounded(cx - radius), y1 = rounded(cy - radius);
        const int x2 = rounded(cx + radius), y2 = rounded(cy + radius + 2);
        m_pic.Line(x1, y1, x2, y2, fill, LineFlags::BF);
        pen.box(x1, y1, x2, y2);
    }
    m_pic.setFillStyle(1);

    if (m_o.flower) {
        // Four petals round the centre, each a leaf of two quarter arcs.
        const double d = radius / 2 * std::sqrt(2.0);
        for (int q = 0; q < 4; ++q) {
            const double a = PiV / 4 + q * PiV / 2;
            const double tipX = cx + d * std::cos(a), tipY = cy - d * std::sin(a);
            const double mx = (cx + tipX) / 2, my = (cy + tipY) / 2;
            const double nx = -(tipY - cy) / 2, ny = (tipX - cx) / 2; // half the chord, turned
            const double r = std::hypot(nx, ny) * std::sqrt(2.0);
            const double from = std::atan2(-(cy - (my + ny)), cx - (mx + nx));
            pen.arc(mx + nx, my + ny, r, from - PiV / 2, from);
            const double from2 = std::atan2(-(tipY - (my - ny)), tipX - (mx - nx));
            pen.arc(mx - nx, my - ny, r, from2 - PiV / 2, from2);
        }
        const int n = rounded(Int(rnd(m_s) * 3) + 3);
        if (m_o.formSun) {
            pen.circle(cx, cy, radius * 0.83334);
            pen.circle(cx, cy, radius * 2 / 3);
            m_pic.setFillStyle(0);
            m_pic.setFillColor(RGB(255, 255, 255));
            m_pic.Circle(cx, cy, radius / n, RGB(255, 255, 255));
            m_pic.setFillStyle(1);
            pen.circle(cx, cy, radius / n);
        }
    }
    if (m_o.rosette)
        rosette(pen, cx, cy, radius);
}

void LeadGlass::paint()
{
    m_s.Randomize();
    Controls &k = m_s.controls();
    m_o = readOptions(m_s);

    // The lead: without borders no pen, no frame lines.
    m_penW = m_call.PenWidth < 1 ? int16_t(1) : m_call.PenWidth;
    if (!m_o.drawBorders) {
        m_penW = 0;
        k.setRaw(key("XMLG", 2), QStringLiteral("0"));
        m_call.AllFrames = 0;
    }
    if (m_o.random && m_penW == 1)
        m_penW = int16_t(rounded(rnd(m_s) * 5) + 1);
    m_t.MondrianMargin = m_o.margin;
    const int32_t m2 = checkedMul<int32_t>(2, m_t.MondrianMargin);
    const int least = std::min(m_w, m_h);

    int32_t borderW = 0;
    if (m_o.random) {
        m_o.tiffany = Int(rnd(m_s) * 7) == 3;
        borderW = (!m_o.tiffany || m_o.margin >= 10) ? m_o.margin : 30;
        borderW = std::clamp(borderW, 2, std::max(2, least / 4));
        m_o.sunRings = Int(rnd(m_s) * 5) == 1;
        m_o.crystals = m_o.sunRings && Int(rnd(m_s) * 6) == 2;
    } else {
        borderW = std::clamp(m_o.borderW, 4, std::max(4, least / 2));
    }

    m_repaint = m_call.Repaint && m_t.holdsLayout() && m_t.MondrianHSplits >= 2 &&
                m_t.MondrianHSplits * m_t.MondrianVSplits > 0 &&
                m_call.Type == m_t.MondrianLastType &&
                (m_o.random ||
                 (m_o.panelH == m_t.MondrianLastH && m_o.panelV == m_t.MondrianLastV));

    if (!m_repaint && !sizeFromPicture()) {
        mondrianSizeByFormat(m_s, m_call.Format, m_call.Side, m2);
    }

    if (m_o.fill)
        Set_Duo_Colortable(m_s, 1, m_o.withWhite,
                           m_o.duoActive ? QStringLiteral("DuoMLeadGlass")
                                         : (m_s.colours().RandomColors
                                                ? QStringLiteral("RandomMLeadGlass")
                                                : QStringLiteral("MondrianColors")),
                           5, 5);
    if (!m_repaint)
        layout();

    m_pic.Cls();
    sizeFromPicture();
    m_pic.setDrawMode(13);
    m_pic.setDrawWidth(1);
    m_pic.setFillStyle(1);
    m_offX = m_offY = m_t.MondrianMargin;
    if (m_o.center && m_call.Format == 1)
        m_offX = rounded((m_call.Side - m_t.MondrianW - m2) / 2.0) + m_t.MondrianMargin;
    else if (m_o.center && m_call.Format == 2)
        m_offY = rounded((m_call.Side - m_t.MondrianH - m2) / 2.0) + m_t.MondrianMargin;

    panes();
    m_ctx.DoEvents();
    if (m_ctx.stopRequested())
        return;

    if (m_o.kaleido) {
        // The left half mirrored onto the right, then the top half onto the bottom.
        DeviceContext &dc = m_pic.hDC();
        const int hw = rounded(m_w / 2.0), hh = rounded(m_h / 2.0);
        StretchBlt(dc, m_w - hw, 0, hw, m_h, dc, hw - 1, 0, -hw, m_h, SRCCOPY);
        StretchBlt(dc, 0, m_h - hh, m_w, hh, dc, 0, hh - 1, m_w, -hh, SRCCOPY);
        m_pic.markChanged();
    }

    // The figures' lead is as wide as the panes' lead; without frame lines the pen's own.
    const LeadPen pen(m_pic, m_frameColour, m_penW > 0 ? m_penW : std::max<int>(1, m_call.PenWidth));
    centre(m_o.center, m_cx, m_cy);
    if (m_o.sunRings)
        sunRings(pen, m_cx, m_cy);
    figures(pen);
    if (m_o.tiffany)
        Draw_LeadBorder(m_ctx, m_pic, borderW, QStringLiteral("LEADRECT"));
    m_pic.markChanged();
}

} // namespace

void Draw_MLeadGlass(PaintContext &ctx, LeadGlassCall call)
{
    guarded(QStringLiteral("Draw_MLeadGlass"), [&] { LeadGlass(ctx, call).paint(); });
}

void paintLeadGlass(PaintContext &ctx)
{
    Session &s = ctx.session;
    const Controls &k = s.controls();
    ctx.Bild_CLEAR();
    Start_Transparent(s);
    LeadGlassCall call;
    call.Side = Max(ctx.XBild.Width(), ctx.XBild.Height());
    call.PenWidth = Max<int16_t>(1, ctx.opt.PenWidth);
    call.Repaint = s.mondrian().RepaintAsked;
    call.SymH = int16_t(k.value(key("XMLG", 0)));
    call.SymV = int16_t(k.value(key("XMLG", 1)));
    call.AllFrames = int16_t(k.value(key("XMLG", 2)));
    call.Format = std::clamp(k.listIndex(key("cmbMLG_Format", 0)), 0, 2);
    call.Type = std::clamp(k.listIndex(key("cmbMLG_Format", 1)), 0, 1);
    Draw_MLeadGlass(ctx, call);
    Ende_Transparent(s);
    ctx.XBild.markChanged();
}

} // namespace tf
