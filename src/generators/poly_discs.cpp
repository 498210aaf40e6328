// The records and discs: a long-playing record ("LP-…") or a compact disc ("CD-…") centred on
// the picture, built from concentric circles: the outer disc at radius r, its rim at r - 2,
// the edge of the grooves or of the data at r - 12, the label or hub, the hole and the ring
// pressed round it at the hole's radius + 7 (at 712 pixels; all radii scale with the disc).
// The grooves of a record catch the light in two opposite sectors; a compact disc shows its
// rainbow there. The "cut out" forms lay ColorBack round the disc; "LP-RING-cut out" also
// cuts out the label, leaving the grooved ring.
#include "generators/figures.h"
#include "generators/polygraphics.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"

#include <QImage>
#include <algorithm>
#include <cmath>
#include <functional>

namespace tf {

using namespace fig;

namespace {

enum class Disc { LP, CD, CDColored };

struct DiscShape {
    Disc kind = Disc::LP;
    bool cutOut = false;
    bool ringOnly = false;
};


// One pass over the pixels between two radii: each takes the colour `base` gives for its
// distance from the centre (or keeps its own without one), lightened by the light that falls
// in two opposite sectors at angle `phi`, or for a disc's rainbow tinted by a hue that turns
// with the angle and the radius, as the tracks split the light. Fine rings are drawn this way
// rather than circle by circle, which would cost a pass over the picture each.
void radialPass(PictureBox &pic, double cx, double cy, double inner, double outer, double phi,
                bool rainbow, const std::function<ColorLong(double)> &base)
{
    QImage &img = pic.mutableImage();
    const int y0 = std::max(0, int(cy - outer)), y1 = std::min(img.height() - 1, int(cy + outer));
    const int x0 = std::max(0, int(cx - outer)), x1 = std::min(img.width() - 1, int(cx + outer));
    for (int y = y0; y <= y1; ++y) {
        auto *row = reinterpret_cast<QRgb *>(img.scanLine(y));
        for (int x = x0; x <= x1; ++x) {
            const double dx = x - cx, dy = y - cy;
            const double d = std::sqrt(dx * dx + dy * dy);
            if (d < inner || d > outer) continue;
            const double a = std::atan2(dy, dx);
            const double cs = std::cos(a - phi);
            const double c2 = cs * cs, c4 = c2 * c2, c8 = c4 * c4;
            const double light = c8 * c2; // |cos|^10: two narrow beams
            int r, g, b;
            if (base) {
                const ColorLong c = base(d);
                r = RedOf(c);
                g = GreenOf(c);
                b = BlueOf(c);
            } else {
                r = qRed(row[x]);
                g = qGreen(row[x]);
                b = qBlue(row[x]);
            }
            if (rainbow) {
                const double hue = std::fmod(a * 2 + d / outer * 4.0 + 12.0, 2 * Pi);
                const double s = light * 0.75;
                r = int(r * (1 - s) + s * (127.5 + 127.5 * std::cos(hue)));
                g = int(g * (1 - s) + s * (127.5 + 127.5 * std::cos(hue - 2 * Pi / 3)));
                b = int(b * (1 - s) + s * (127.5 + 127.5 * std::cos(hue + 2 * Pi / 3)));
            } else {
                const int add = int(70 * light);
                r += add;
                g += add;
                b += add;
            }
            row[x] = qRgb(std::clamp(r, 0, 255), std::clamp(g, 0, 255), std::clamp(b, 0, 255));
        }
    }
    pic.markChanged();
}

void paintDisc(PaintContext &ctx, DiscShape shape)
{
    begin(ctx, 2);
    PictureBox &pic = ctx.XBild;
    const int w = ctx.opt.W, h = ctx.opt.H;
    const ColorLong back = ctx.colours().ColorBack;
    const double cx = (w - 1) / 2.0, cy = (h - 1) / 2.0;
    const double r = std::max(4.0, std::min(w, h) / 2.0 - std::max(2.0, std::min(w, h) / 80.0));
    const double scale = r / 350.0;
    const auto at = [&](double minus) { return std::max(1.0, r - minus * scale); };
    ColorLong label = figureColour(ctx, 2);
    if (label == NoColour) label = ctx.colours().ColorFore;
    const ColorLong second = secondColour(ctx);
    const double phi = rnd(ctx) * Pi;
    pic.setDrawWidth(1);
    if (shape.cutOut) box(pic, 0, 0, w - 1, h - 1, back, NoColour);

    const double hole = std::max(1.5, 6 * scale);
    if (shape.kind == Disc::LP) {
        const double labelR = r * 0.34;
        disc(pic, cx, cy, r, 0x101010, 0x2A2A2A);
        pic.Circle(cx, cy, at(2), 0x3A3A3A);
        // The grooves: fine rings two pixels apart, a wider lighter gap between the tracks.
        const double grooveTop = at(12);
        const int tracks = 5 + int(Int(rnd(ctx) * 4));
        const double grooveEnd = labelR * 1.08;
        const double trackW = (grooveTop - grooveEnd) / tracks;
        const double gap = std::max(0.6, scale);
        radialPass(pic, cx, cy, grooveEnd, grooveTop, phi, false, [&](double d) {
            const double fromTop = grooveTop - d;
            const double inTrack = std::fmod(fromTop, trackW);
            if (fromTop > gap && (inTrack < gap || trackW - inTrack < gap * 0.5))
                return ColorLong(0x2E2E2E);
            return ColorLong(int(d) % 4 < 2 ? 0x1C1C1C : 0x0C0C0C);
        });
        pic.Circle(cx, cy, grooveTop, 0x242424);
        if (shape.ringOnly) {
            disc(pic, cx, cy, labelR, back, 0x2A2A2A);
        } else {
            disc(pic, cx, cy, labelR, label, blend(label, 0, 0.3));
            pic.Circle(cx, cy, labelR * 0.9, blend(label, second, 0.5));
            pic.Circle(cx, cy, hole + 7 * scale, blend(label, 0, 0.35));
            disc(pic, cx, cy, hole, back, blend(back, 0, 0.3));
        }
    } else {
        const double hub = r * 0.31, clear = r * 0.19, cdHole = r * 0.125;
        disc(pic, cx, cy, r, 0xC8C8C8, 0x969696);
        pic.Circle(cx, cy, at(2), 0xB4B4B4);
        if (shape.kind == Disc::CDColored) {
            // A printed face: rings from the label colour to the second one.
            const double top = at(2);
            radialPass(pic, cx, cy, hub, top, phi, false, [&](double d) {
                return blend(label, second, (top - d) / (top - hub));
            });
        } else {
            radialPass(pic, cx, cy, hub, at(12), phi, true, nullptr);
            pic.Circle(cx, cy, at(12), 0xA0A0A0);
        }
        disc(pic, cx, cy, hub, 0xE0E0E0, 0xA8A8A8);
        disc(pic, cx, cy, clear, 0xF0F0F0, 0xC0C0C0);
        pic.Circle(cx, cy, cdHole + 7 * scale, 0xB0B0B0);
        disc(pic, cx, cy, cdHole, back, 0x909090);
    }
    end(ctx);
}

} // namespace

void paintLPBlack(PaintContext &ctx) { paintDisc(ctx, {Disc::LP, false, false}); }
void paintLPCutOut(PaintContext &ctx) { paintDisc(ctx, {Disc::LP, true, false}); }
void paintLPRingCutOut(PaintContext &ctx) { paintDisc(ctx, {Disc::LP, true, true}); }
void paintCDStandard(PaintContext &ctx) { paintDisc(ctx, {Disc::CD, false, false}); }
void paintCDColored(PaintContext &ctx) { paintDisc(ctx, {Disc::CDColored, false, false}); }
void paintCDCutOut(PaintContext &ctx) { paintDisc(ctx, {Disc::CD, true, false}); }

} // namespace tf
