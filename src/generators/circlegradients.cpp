// "Radial", "Sunburst", "Radial-4spirals": discs whose colour runs between two colours.
//
// `Kreis_Scheibe` paints one disc per pixel. Each pixel inside the radius and inside the
// sector from the start to the end angle (counter-clockwise from the right, y up; an end at
// or before the start adds a turn) gets a position p along the ramp:
//
//   Radial    p = d / radius * divisions          rings: the first colour at the heart
//   Sunburst  p = θ / span * 2 * divisions         rays: `divisions` times out and back
//   Spiral    p = 2 (d / radius * divisions ± θ / turn)   rings wound into a spiral
//
// (d the distance from the centre, θ the angle from the start). The colour is the ramp from
// the first colour to the second and back (one way per unit of p), in steps: the ring step s
// (0.05 to 0.95) gives round(1 / s²) + 1 levels, so a fine step is a smooth gradient of many
// narrow rings (401 levels at 0.05) and a coarse one a few bold bands (2 at 0.95). With "Stift verwenden" the edges between
// the levels are drawn as soft lines of the pen's width in ColorBorder. The rim of the disc
// and the sector's edges are soft; what lies outside keeps the picture.
//
// "Radial" is one disc of radius (Rnd*w/2 + 50) (random values) or reaching the farthest
// corner (the panel), about the centre or a random point of the middle third; "Sunburst"
// reaches the farthest corner always, so its rays meet every edge. "Radial-4spirals" paints
// eight spiral discs at the centres of the four quarters: four of radius (Rnd*w/2 + 50)/2,
// at least covering their quarters, then four of half that radius, the colours exchanged from disc to
// disc and each second spiral wound the other way, like meshing gears.
#include "generators/circlegradients.h"

#include "generators/centrehelpers.h"
#include "generators/figures.h"
#include "generators/longrun.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/controls.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "tools/aaline.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tf {

using namespace fig;

int ringLevels(double ringStep)
{
    const double s = std::clamp(ringStep, 0.05, 0.95);
    return int(std::lround(1.0 / (s * s))) + 1;
}

double rampAt(double p, int levels)
{
    double f = std::fmod(p, 2.0);
    if (f < 0) f += 2.0;
    const double q = f <= 1.0 ? f : 2.0 - f;
    return std::round(q * (levels - 1)) / (levels - 1);
}

namespace {

// The distance in p from the nearest edge between two levels (none: a large value).
double edgeDistance(double p, int levels)
{
    double f = std::fmod(p, 2.0);
    if (f < 0) f += 2.0;
    const double q = f <= 1.0 ? f : 2.0 - f;
    const double z = q * (levels - 1);
    // Edges lie at the half levels 0.5 .. levels - 1.5.
    const double nearest = std::clamp(std::floor(z) + 0.5, 0.5, levels - 1.5);
    return std::abs(z - nearest) / (levels - 1);
}

double angleDistance(double a, double b)
{
    double d = std::fmod(std::abs(a - b), 2 * Pi);
    return std::min(d, 2 * Pi - d);
}

} // namespace

bool Kreis_Scheibe(PictureBox &pic, const Scheibe &S, StopRule &stop)
{
    DeviceContext &dc = pic.hDC();
    const int w = dc.width(), h = dc.height();
    if (S.radius <= 0 || w <= 0 || h <= 0) return true;
    const int levels = ringLevels(S.ringStep);
    const double start = S.startDeg * toRad;
    double span = (S.endDeg - S.startDeg) * toRad;
    while (span <= 0) span += 2 * Pi;
    const bool whole = span >= 2 * Pi - 1e-9;
    span = std::min(span, 2 * Pi);
    const int y0 = std::max(0, int(std::floor(S.cy - S.radius - 1)));
    const int y1 = std::min(h - 1, int(std::ceil(S.cy + S.radius + 1)));
    const int x0 = std::max(0, int(std::floor(S.cx - S.radius - 1)));
    const int x1 = std::min(w - 1, int(std::ceil(S.cx + S.radius + 1)));
    const double half = S.pen / 2.0;
    for (int y = y0; y <= y1; ++y) {
        auto *row = reinterpret_cast<uint32_t *>(dc.scanLine(y));
        for (int x = x0; x <= x1; ++x) {
            const double dx = x - S.cx, dy = S.cy - y;
            const double d = std::hypot(dx, dy);
            double cover = std::clamp(S.radius - d + 0.5, 0.0, 1.0);
            if (cover <= 0) continue;
            // Whole rings need no angle.
            double theta = 0;
            if (!whole || S.kind != ScheibeKind::Rings) {
                theta = std::fmod(std::atan2(dy, dx) - start, 2 * Pi);
                if (theta < 0) theta += 2 * Pi;
            }
            if (!whole) {
                if (theta > span) {
                    // Outside the sector: soft within a pixel of its edges.
                    const double off = std::min(angleDistance(theta, span), angleDistance(theta, 0));
                    cover *= std::clamp(0.5 - off * d, 0.0, 1.0);
                    if (cover <= 0) continue;
                } else {
                    const double in = std::min(theta, span - theta);
                    cover *= std::clamp(0.5 + in * d, 0.0, 1.0);
                }
            }
            double p = 0, grad = 1;
            const double u = d / S.radius * S.divisions;
            switch (S.kind) {
            case ScheibeKind::Rings:
                p = u;
                grad = S.divisions / S.radius;
                break;
            case ScheibeKind::Rays:
                p = theta / span * 2 * S.divisions;
                grad = 2 * S.divisions / span / std::max(d, 0.5);
                break;
            case ScheibeKind::Spiral: {
                const double turn = (S.clockwise ? -theta : theta) / (2 * Pi);
                p = 2 * (u + turn);
                grad = 2 * std::hypot(S.divisions / S.radius, 1.0 / (2 * Pi * std::max(d, 0.5)));
                break;
            }
            }
            ColorLong c = blend(S.from, S.to, rampAt(p, levels));
            if (S.border != NoColour && S.pen > 0) {
                const double px = edgeDistance(p, levels) / grad;
                const double line = std::clamp(half + 0.5 - px, 0.0, 1.0);
                if (line > 0) c = Mix_Colors(S.border, c, line);
            }
            const uint32_t was = row[x];
            const ColorLong under = fromQRgb(was);
            row[x] = toQRgb(cover >= 1.0 ? c : Mix_Colors(c, under, cover));
        }
        // A large disc gives way every 64 rows.
        if ((y - y0) % 64 == 63 && !stop.next()) {
            pic.markChanged();
            return false;
        }
    }
    pic.markChanged();
    return true;
}

void Do_CircleGradients(PaintContext &ctx, CircleGradient type)
{
    StopRule stop(ctx);
    const int w = ctx.opt.W, h = ctx.opt.H;
    const auto [cx, cy] = figureCentre(ctx);
    const double k = type == CircleGradient::FourSpirals ? 0.5 : 1.0;
    const Controls &controls = ctx.session.controls();
    Scheibe S;
    if (ctx.colours().RandomValues) {
        S.radius = (rnd(ctx) * w / 2 + 50) * k;
        S.ringStep = rnd(ctx) * 0.9 + 0.05;
        S.startDeg = rounded(rnd(ctx) * 360);
        S.endDeg = S.startDeg + 360;
        S.divisions = rounded(rnd(ctx) * 16) + 1;
    } else {
        const auto cmw = [&](int i) { return controls.value(ControlKey{QStringLiteral("CMW1"), i}); };
        S.radius = std::hypot(std::max(cx, w - cx), std::max(cy, h - cy)) * k;
        // The step of the paint dialog, 0..255, as the ring step 0.05..0.95.
        S.ringStep = 0.05 + 0.9 * std::clamp<int>(ctx.opt.StepValue, 0, 255) / 255.0;
        S.startDeg = cmw(2);
        S.endDeg = cmw(1);
        S.divisions = std::max(1, cmw(0));
    }
    if (type == CircleGradient::Sunburst)
        S.radius = std::hypot(std::max(cx, w - cx), std::max(cy, h - cy)) + 1;
    if (controls.checked(QStringLiteral("XCMUsePen"))) {
        S.pen = std::max<int>(1, ctx.opt.PenWidth);
        S.border = ctx.colours().ColorBorder;
    }
    begin(ctx, 8);
    ColorLong c1, c2;
    if (ctx.opt.UseDuoTable) {
        c1 = figureColour(ctx, 8);
        c2 = figureColour(ctx, 8);
        if (c1 == NoColour) c1 = ctx.colours().ColorFore;
        if (c2 == NoColour) c2 = ctx.colours().ColorBack;
    } else if (ctx.colours().RandomColors) {
        c1 = Pick_RandomColor(ctx.session);
        c2 = Pick_RandomColor(ctx.session);
    } else {
        c1 = ctx.colours().ColorFore;
        c2 = ctx.colours().ColorBack;
    }
    c2 = apartFrom(c1, c2);

    if (type != CircleGradient::FourSpirals) {
        S.cx = cx;
        S.cy = cy;
        S.kind = type == CircleGradient::Radial ? ScheibeKind::Rings : ScheibeKind::Rays;
        S.from = c1;
        S.to = c2;
        if (Kreis_Scheibe(ctx.XBild, S, stop)) stop.next();
    } else {
        // Eight discs: the four quarters, then four of half the radius; the colours change
        // places from disc to disc and the spirals turn alternately.
        const double qx[4] = {w / 4.0, 3 * w / 4.0, 3 * w / 4.0, w / 4.0};
        const double qy[4] = {h / 4.0, h / 4.0, 3 * h / 4.0, 3 * h / 4.0};
        // The large discs cover their quarters at least.
        const double big = std::max(S.radius, std::hypot(w / 4.0, h / 4.0) * 1.05);
        S.kind = ScheibeKind::Spiral;
        for (int i = 0; i < 8; ++i) {
            S.cx = qx[i % 4];
            S.cy = qy[i % 4];
            S.radius = i < 4 ? big : big / 2;
            const bool swap = (i + i / 4) % 2 == 1;
            S.from = swap ? c2 : c1;
            S.to = swap ? c1 : c2;
            S.clockwise = i % 2 == 1;
            if (!Kreis_Scheibe(ctx.XBild, S, stop) || !stop.next()) break;
        }
    }
    end(ctx);
}

void paintRadial(PaintContext &ctx) { Do_CircleGradients(ctx, CircleGradient::Radial); }
void paintSunburst(PaintContext &ctx) { Do_CircleGradients(ctx, CircleGradient::Sunburst); }
void paintRadial4Spirals(PaintContext &ctx)
{
    Do_CircleGradients(ctx, CircleGradient::FourSpirals);
}

} // namespace tf
