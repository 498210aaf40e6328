// The text figures: "TEXT-StarRotated" (the text repeated from a centre, each copy turned on
// by the division angle), "TEXT-Circular" (letter by letter along a circle, clockwise from
// the start angle) and "TEXT-Spiral" (the same along a spiral that grows outwards by a line
// step a turn).
//
// Along the circle and the spiral each letter stands on its baseline's middle at the curve,
// turned by the angle of its place less 180 plus the text angle: at the text angle 90 the
// letters stand upright on the curve, their feet towards the centre.
#include "generators/longrun.h"
#include "generators/textdraw.h"
#include "generators/texts.h"

#include "core/fault.h"
#include "core/gdi.h"
#include "core/numeric.h"
#include "core/picturebox.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace tf {

using namespace text;

namespace {

const double Rad = Pi / 180.0;
// The smallest size, in points, to which the circle mode sets a text to fit its span.
constexpr double MinCircleFontSize = 6.0;

ControlKey key(const char *name, int index = -1) { return ControlKey{QString::fromLatin1(name), index}; }
double rnd(PaintContext &ctx) { return double(ctx.Rnd()); }
int rounded(double x) { return int(roundHalfEven(x)); }

QPointF centreOf(PaintContext &ctx)
{
    if (ctx.opt.UseCenter) return {ctx.opt.W / 2.0, ctx.opt.H / 2.0};
    const double x = rounded(rnd(ctx) * ctx.opt.W);
    return {x, double(rounded(rnd(ctx) * ctx.opt.H))};
}

// The colours of a figure: the rule's, then per copy or letter a table cell or random ones.
struct FigureColours {
    TextColours rule;
    bool random = false;
};

FigureColours figureColours(PaintContext &ctx, bool allow_randoms)
{
    FigureColours f;
    f.rule = textColourRule(ctx, allow_randoms);
    f.random = ctx.colours().RandomColors && allow_randoms && !f.rule.table;
    return f;
}

// One letter standing on the curve at `at`, turned by `angle`.
void printLetter(PictureBox &pic, const QString &letter, QPointF at, double angle,
                 const TextFont &font, double advance, double ascent)
{
    const QPointF o = originFor(at, advance / 2, ascent, angle);
    Print_Rotated(pic, letter, o.x(), o.y(), angle, font);
}

void textStar(PaintContext &ctx, bool allow_randoms)
{
    Session &s = ctx.session;
    const Controls &c = s.controls();
    const QPointF centre = centreOf(ctx);
    const FigureColours colours = figureColours(ctx, allow_randoms);
    double start = 0, division = 0;
    int count = 1;
    if (s.colours().RandomValues && allow_randoms) {
        start = rounded(rnd(ctx) * 360);
        division = rnd(ctx) * 179 + 2;
        count = int(std::floor(rnd(ctx) * 33)) + 1;
    } else {
        start = Val(c.text(key("TRW1", 2)));
        division = Val(c.text(key("TRW1", 1)));
        count = std::clamp(int(Val(c.text(key("TRW1", 0)))), 1, 360);
    }
    const QString line = prepareText(ctx, "XTextrotation_BigLetters", -1, false, true);
    TextFont font = dialogFont(c);
    const int thickness = std::clamp(shadowThickness(c), 0, int(font.size / 2));

    ctx.Bild_CLEAR();
    Start_Transparent(s);
    StopRule stop(ctx);
    PictureBox &pic = ctx.XBild;
    for (int i = 0; i < count; ++i) {
        mixFont(ctx, font);
        const double angle = std::fmod(start + i * division, 360.0);
        ColorLong textColour = colours.rule.text, shadow = colours.rule.shadow;
        if (colours.rule.table) {
            textColour = tableColour(ctx, i + 1, colours.rule.text);
        } else if (colours.random) {
            textColour = randomTextColour(ctx);
            shadow = randomShadowGrey(ctx);
        }
        if (thickness > 0) {
            const QPoint d = shadowOffset(angle, thickness);
            pic.setForeColor(shadowColour(c, shadow, textColour));
            Print_Rotated(pic, line, centre.x() + d.x(), centre.y() + d.y(), angle, font);
        }
        pic.setForeColor(textColour);
        Print_Rotated(pic, line, centre.x(), centre.y(), angle, font);
        if (!stop.next()) break;
    }
    Ende_Transparent(s);
    pic.Refresh();
}

struct CurveOptions {
    QPointF centre;
    double radius = 0;    // the circle's, or the spiral's first
    double span = 360;    // degrees the circle's text may take
    double textAngle = 90;
    double start = 90;
    bool circleMode = true;
};

CurveOptions curveOptions(PaintContext &ctx, bool allow_randoms, bool spiral)
{
    Session &s = ctx.session;
    const Controls &c = s.controls();
    CurveOptions o;
    o.centre = centreOf(ctx);
    const double half = std::min(ctx.opt.W, ctx.opt.H) / 2.0;
    if (s.colours().RandomValues && allow_randoms) {
        o.radius = std::max(4, rounded(rnd(ctx) * 96)) / 100.0 * half;
        o.circleMode = int(std::floor(rnd(ctx) * 2)) == 1;
        o.start = rnd(ctx) * 360;
        // The share of the circle the text takes.
        o.span = 90 + rnd(ctx) * 270;
        if (spiral) o.textAngle = std::max(1.0, std::floor(rnd(ctx) * 91));
    } else {
        o.span = std::clamp(Val(c.text(key("TCW1", 0))), 1.0, 360.0);
        o.textAngle = Val(c.text(key("TCW1", 1)));
        if (spiral) o.textAngle = std::clamp(o.textAngle, 1.0, 360.0);
        o.start = Val(c.text(key("TCW1", 2)));
        o.radius = std::clamp(c.value(key("scrollQFL1")), 4, 100) / 100.0 * half;
        o.circleMode = c.checked(key("XTextCircular", 0));
    }
    o.radius = std::min(o.radius, half);
    return o;
}

ColorLong letterColour(PaintContext &ctx, const FigureColours &colours, int i)
{
    if (colours.rule.table) return tableColour(ctx, i + 1, colours.rule.text);
    if (colours.random) return randomTextColour(ctx);
    return colours.rule.text;
}

void textCircular(PaintContext &ctx, bool allow_randoms)
{
    Session &s = ctx.session;
    const Controls &c = s.controls();
    const CurveOptions o = curveOptions(ctx, allow_randoms, false);
    const FigureColours colours = figureColours(ctx, allow_randoms);
    const QString line = prepareText(ctx, "XTextCircular", 1, false, true);
    TextFont font = dialogFont(c);
    const double r = std::max(1.0, o.radius);
    const double arc = r * o.span * Rad;

    // Circle mode spreads the text over the span: a font too large for it is made smaller
    // (down to a size still legible, 6 points), and the letters share out what room is left.
    // A text too long even then stops at the span's end, as without the circle mode.
    double perWidth = 1.0 / r; // radians per pixel of advance
    bool stopAtSpan = !o.circleMode;
    if (o.circleMode) {
        const double natural = Measure_Rotated(font, line).width();
        if (natural > arc && natural > 0)
            font.size = std::max(std::min(font.size, MinCircleFontSize), font.size * arc / natural);
        const double total = Measure_Rotated(font, line).width();
        if (total > 0 && total <= arc * 1.001) perWidth = o.span * Rad / total;
        else stopAtSpan = true;
    }

    ctx.Bild_CLEAR();
    Start_Transparent(s);
    StopRule stop(ctx);
    PictureBox &pic = ctx.XBild;
    double theta = o.start; // degrees, counter-clockwise from the right; the text runs clockwise
    double used = 0;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QString letter = line.mid(i, 1);
        mixFont(ctx, font);
        const QFontMetricsF m(toQFont(logicalFont(font, 0)));
        const double advance = m.horizontalAdvance(letter);
        const double step = advance * perWidth / Rad;
        if (stopAtSpan && used + step > o.span + 1e-9) break;
        const double mid = theta - step / 2;
        const QPointF at(o.centre.x() + r * std::cos(mid * Rad), o.centre.y() - r * std::sin(mid * Rad));
        pic.setForeColor(letterColour(ctx, colours, int(i)));
        if (!letter.trimmed().isEmpty())
            printLetter(pic, letter, at, mid - 180 + o.textAngle, font, advance, m.ascent());
        theta -= step;
        used += step;
        if (!stop.next()) break;
    }
    Ende_Transparent(s);
    pic.Refresh();
}

void textSpiral(PaintContext &ctx, bool allow_randoms)
{
    Session &s = ctx.session;
    const Controls &c = s.controls();
    const CurveOptions o = curveOptions(ctx, allow_randoms, true);
    const FigureColours colours = figureColours(ctx, allow_randoms);
    const QString line = prepareText(ctx, "XTextCircular", 1, false, true);
    TextFont font = dialogFont(c);
    const double pitch = lineStep(font) * 1.1;
    // Out to the farthest corner, so the spiral fills the picture.
    const double reach = std::hypot(std::max(o.centre.x(), ctx.opt.W - o.centre.x()),
                                    std::max(o.centre.y(), ctx.opt.H - o.centre.y()));
    double r = std::max(pitch, o.radius / 4);

    ctx.Bild_CLEAR();
    Start_Transparent(s);
    StopRule stop(ctx);
    PictureBox &pic = ctx.XBild;
    double theta = o.start;
    for (qsizetype i = 0; i < line.size() && r - pitch < reach; ++i) {
        const QString letter = line.mid(i, 1);
        mixFont(ctx, font);
        const QFontMetricsF m(toQFont(logicalFont(font, 0)));
        const double advance = m.horizontalAdvance(letter);
        const double step = advance / r / Rad;
        const double mid = theta - step / 2;
        const QPointF at(o.centre.x() + r * std::cos(mid * Rad), o.centre.y() - r * std::sin(mid * Rad));
        pic.setForeColor(letterColour(ctx, colours, int(i)));
        if (!letter.trimmed().isEmpty())
            printLetter(pic, letter, at, mid - 180 + o.textAngle, font, advance, m.ascent());
        theta -= step;
        r += pitch * step / 360.0;
        if (!stop.next()) break;
    }
    Ende_Transparent(s);
    pic.Refresh();
}

} // namespace

void Do_Textstar(PaintContext &ctx, bool allow_randoms)
{
    guarded(QStringLiteral("Do_Textstar"), [&] { textStar(ctx, allow_randoms); });
}

void Do_TextCircular(PaintContext &ctx, bool allow_randoms)
{
    guarded(QStringLiteral("Do_TextCircular"), [&] { textCircular(ctx, allow_randoms); });
}

void Do_TextSpiral(PaintContext &ctx, bool allow_randoms)
{
    guarded(QStringLiteral("Do_TextSpiral"), [&] { textSpiral(ctx, allow_randoms); });
}

void paintTextStar(PaintContext &ctx) { Do_Textstar(ctx, true); }
void paintTextCircular(PaintContext &ctx) { Do_TextCircular(ctx, true); }
void paintTextSpiral(PaintContext &ctx) { Do_TextSpiral(ctx, true); }

} // namespace tf
