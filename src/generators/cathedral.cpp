// Draw_CathedralWindow and its rings.
#include "generators/cathedral.h"

#include "core/fault.h"
#include "core/gdi.h"
#include "core/picturebox.h"
#include "generators/figures.h"
#include "generators/leadpen.h"
#include "paint/colourstate.h"
#include "paint/controls.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QColor>
#include <QtGlobal>
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

namespace tf {

namespace {

constexpr double TwoPi = 2 * std::numbers::pi;

// The window's own glass when no hue is given: deep blue, ruby, gold, green, violet, sky.
const ColorLong Glass[] = {RGB(24, 48, 150),  RGB(170, 20, 30),  RGB(230, 170, 30),
                               RGB(30, 120, 60),  RGB(110, 40, 140), RGB(90, 160, 220),
                               RGB(200, 90, 30),  RGB(240, 230, 200)};

double rnd(Session &s) { return double(s.Rnd()); }

ColorLong glassColour(Session &s, ColorLong hue, int ring, int pane)
{
    if (hue < 0) {
        // Panes of a ring alternate two glasses, chosen per ring.
        const int n = int(std::size(Glass));
        return Glass[size_t((ring * 3 + (pane % 2) * (1 + ring % 3)) % n)];
    }
    QColor c(int(hue & 0xFF), int((hue >> 8) & 0xFF), int((hue >> 16) & 0xFF));
    int h = c.hsvHue() < 0 ? 0 : c.hsvHue();
    h = (h + int(rnd(s) * 60) - 30 + 360) % 360;
    const QColor shade = QColor::fromHsv(h, std::clamp(c.hsvSaturation(), 120, 255),
                                         std::clamp(90 + int(rnd(s) * 150), 0, 255));
    return RGB(shade.red(), shade.green(), shade.blue());
}

std::vector<POINTAPI> sector(double cx, double cy, double rIn, double rOut, double a0, double a1)
{
    std::vector<POINTAPI> pts;
    const int steps = std::max(2, int(std::ceil((a1 - a0) * rOut / 4)));
    for (int i = 0; i <= steps; ++i) {
        const double a = a0 + (a1 - a0) * i / steps;
        pts.push_back({int32_t(std::lround(cx + rOut * std::cos(a))),
                       int32_t(std::lround(cy - rOut * std::sin(a)))});
    }
    if (rIn < 1) {
        pts.push_back({int32_t(std::lround(cx)), int32_t(std::lround(cy))});
        return pts;
    }
    for (int i = steps; i >= 0; --i) {
        const double a = a0 + (a1 - a0) * i / steps;
        pts.push_back({int32_t(std::lround(cx + rIn * std::cos(a))),
                       int32_t(std::lround(cy - rIn * std::sin(a)))});
    }
    return pts;
}

int drawRing(PaintContext &ctx, PictureBox &picture, double Cx, double Cy, int32_t Ring1,
             int32_t Pitch, int32_t Ring2, ColorLong Hue, int ring);

void drawWindow(PaintContext &ctx, PictureBox &pic, int32_t set, float scale)
{
    Session &s = ctx.session;
    const bool random = s.colours().RandomValues;
    const double w = pic.Width(), h = pic.Height();
    const double scale0 = (random ? std::max(w, h) : std::min(w, h)) / 512.0;
    const double cx = std::round(w / 2), cy = std::round(h / 2);
    if (set < 1 || set > 5)
        throw Fault(Fault::InvalidCall);

    int32_t pitch = 0, ring1 = 0, ring2 = 0;
    switch (set) {
    case 1:
        pitch = CLng(scale0 * 20.5 * scale);
        ring1 = pitch * 6;
        ring2 = pitch * 4;
        break;
    case 2:
        pitch = CLng(scale0 * 22 * scale);
        ring1 = pitch * 5;
        ring2 = pitch * 4;
        break;
    case 3:
        pitch = CLng(scale0 * 20.5 * scale);
        ring1 = ring2 = pitch * 5;
        break;
    case 4:
        pitch = CLng(scale0 * 15 * scale);
        ring1 = pitch * 6;
        ring2 = pitch * 8;
        break;
    default:
        pitch = CLng((Int(rnd(s) * 12) + 12) * scale0 * scale);
        ring1 = CLng((Int(rnd(s) * 10) + 3) * pitch);
        ring2 = CLng((Int(rnd(s) * 10) + 2) * pitch);
        break;
    }
    if (pitch < 1)
        throw Fault(Fault::DivisionByZero); // a picture too small for one pane

    const ColorLong hue = s.colours().RandomColors ? s.colours().ColorFore : NoColour;
    // Each ring counts: odd rings turn their panes by half a pane against the even ones.
    int ringNo = 0;
    auto Draw_CathedralRing = [&](PaintContext &c, PictureBox &p, double x, double y, int32_t r1,
                                  int32_t pt, int32_t r2, ColorLong hu) {
        return drawRing(c, p, x, y, r1, pt, r2, hu, ringNo++);
    };
    Draw_CathedralRing(ctx, pic, cx, cy, ring1, pitch, ring2, hue);

    // The rings inside and outside the first, by the set; glass fills the space between the
    // centre's rosette and the first ring.
    const int32_t inner = std::min(ring1, ring2);
    const int32_t outer = std::max(ring1, ring2) == inner ? inner + pitch : std::max(ring1, ring2);
    if (inner > 2 * pitch)
        Draw_CathedralRing(ctx, pic, cx, cy, inner, pitch, 2 * pitch, hue);
    switch (set) {
    case 1:
        Draw_CathedralRing(ctx, pic, cx, cy, 2 * pitch, pitch, 0, hue);
        Draw_CathedralRing(ctx, pic, cx, cy, 2 * ring1, pitch, outer, hue);
        break;
    case 2:
    case 3: {
        const int32_t far = CLng(pitch * (Int(rnd(s) * 2) == 0 ? 7.12 : 10.84));
        Draw_CathedralRing(ctx, pic, cx, cy, 2 * pitch, pitch, 0, hue);
        Draw_CathedralRing(ctx, pic, cx, cy, far, pitch, outer, hue);
        break;
    }
    default: {
        // Rings at radii of powers of two of the pitch, the exponent drawn.
        Draw_CathedralRing(ctx, pic, cx, cy, 2 * pitch, pitch, 0, hue);
        const int power = int(Int(rnd(s) * 5));
        int32_t from = outer;
        for (int k = 0; k <= power && from < std::hypot(w, h) / 2; ++k) {
            const int32_t to = from + pitch * (1 << std::min(k, 2)) * 2;
            Draw_CathedralRing(ctx, pic, cx, cy, to, pitch, from, hue);
            from = to;
        }
        break;
    }
    }
    pic.markChanged();
}

int drawRing(PaintContext &ctx, PictureBox &picture, double Cx, double Cy, int32_t Ring1,
             int32_t Pitch, int32_t Ring2, ColorLong Hue, int ring)
{
    Session &s = ctx.session;
    double rOut = std::max(Ring1, Ring2), rIn = std::min(Ring1, Ring2);
    if (rOut == rIn)
        rOut = rIn + Pitch;
    const double pitch = std::max<int32_t>(Pitch, 4);
    const int panes = std::max(6, int(std::lround(TwoPi * rOut / (pitch * 2.5))));
    const LeadPen pen(picture, s.colours().ColorBorder, std::max<int>(1, ctx.opt.PenWidth));
    const double turn = ring % 2 ? TwoPi / panes / 2 : 0;
    for (int i = 0; i < panes; ++i) {
        const double a0 = turn + TwoPi * i / panes, a1 = turn + TwoPi * (i + 1) / panes;
        fig::polygon(picture, sector(Cx, Cy, rIn, rOut, a0, a1), glassColour(s, Hue, ring, i),
                NoColour, 1);
    }
    // The roundels: a disc in the middle of each pane where the band is wide enough.
    const double band = rOut - rIn;
    const double roundel = std::min(band, TwoPi * (rIn + band / 2) / panes) * 0.3;
    for (int i = 0; i < panes && roundel >= 3; ++i) {
        const double a = turn + TwoPi * (i + 0.5) / panes;
        const double x = Cx + (rIn + band / 2) * std::cos(a), y = Cy - (rIn + band / 2) * std::sin(a);
        fig::disc(picture, x, y, roundel, glassColour(s, Hue, ring + 1, i + 1), NoColour);
        pen.circle(x, y, roundel);
    }
    for (int i = 0; i < panes; ++i) {
        const double a = turn + TwoPi * i / panes;
        pen.line(Cx + rIn * std::cos(a), Cy - rIn * std::sin(a), Cx + rOut * std::cos(a),
                 Cy - rOut * std::sin(a));
    }
    pen.circle(Cx, Cy, rOut);
    if (rIn >= 1)
        pen.circle(Cx, Cy, rIn);
    picture.markChanged();
    return panes;
}

} // namespace

int Draw_CathedralRing(PaintContext &ctx, PictureBox &picture, double Cx, double Cy,
                       int32_t Ring1, int32_t Pitch, int32_t Ring2, ColorLong Hue)
{
    return drawRing(ctx, picture, Cx, Cy, Ring1, Pitch, Ring2, Hue, 0);
}

void Draw_CathedralWindow(PaintContext &ctx, PictureBox &picture, int32_t Set, float Scale)
{
    guarded(QStringLiteral("Draw_CathedralWindow"), [&] { drawWindow(ctx, picture, Set, Scale); });
}

void paintCathedralWindow(PaintContext &ctx)
{
    guarded(QStringLiteral("Do_CathedralWindow"), [&] {
        Session &s = ctx.session;
        ctx.Bild_CLEAR();
        Start_Transparent(s);
        const int32_t set =
            std::clamp(s.controls().listIndex(ControlKey{QStringLiteral("cmbCathedralWinNr"), -1}),
                       0, 4) + 1;
        const float scale =
            s.colours().RandomValues ? float(rnd(s) * 0.67 + 0.5) : 1.0f; // G_CathedralScale
        ctx.XBild.setDrawMode(13);
        ctx.XBild.setDrawWidth(1);
        Draw_CathedralWindow(ctx, ctx.XBild, set, scale);
        Ende_Transparent(s);
        ctx.XBild.markChanged();
    });
}

namespace {

const ControlPanel &cathedralPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(CathedralPanelName),
        QT_TRANSLATE_NOOP("Controls", "Kathedralen-Fenster"),
        {
            controlSpec("cmbCathedralWinNr", -1, ControlKind::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Set"), "0", 0, 4,
                        {"1", "2", "3", "4", "5"}),
        }};
    return panel;
}

} // namespace

void registerCathedralPanels() { registerControlPanel(&cathedralPanel()); }

} // namespace tf
