#include "generators/textdraw.h"

#include "core/gdi.h"
#include "core/numeric.h"
#include "core/picturebox.h"
#include "core/projectfont.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace tf::text {

const char *const LatinSample =
    "Lorem ipsum dolor sit amet consectetuer adipiscing elit sed diam nonummy nibh euismud "
    "tuncidunt ut laoreet dolore magna aliquam erat volutpat Ut wisi enim ad minim veniam quis "
    "nostrud exerci tation ullamcorper suscipit lobortis nisl ut aliquipex ea commodo consequat "
    "Duis autem vel eum iriure dolor in hendrerit in vulputate velt esse molestie consequat vel "
    "illum dolore eu feugiat nulla facilisisat vero etaccumsan et iusto odio dignissimqui blandit "
    "praesent luptatum zzril delenit augue duis dolore te feugait nulla facilisi";

namespace {

const double Rad = Pi / 180.0;

int rounded(double x) { return int(roundHalfEven(x)); }
double rnd(PaintContext &ctx) { return double(ctx.Rnd()); }

ControlKey key(const char *name, int index = -1) { return ControlKey{QString::fromLatin1(name), index}; }

} // namespace

TextFont dialogFont(const Controls &c)
{
    loadProjectFont();
    TextFont f;
    f.name = c.text(key("cmbFontName")).trimmed();
    if (f.name.isEmpty()) f.name = QStringLiteral("Arial");
    f.size = std::clamp(c.number(key("txtFontSize")), 1.0, 999.0);
    f.widthPercent = c.checked(key("XFontWidthActiv"))
                         ? std::clamp(int(c.number(key("txtFontWidth"))), 10, 400)
                         : 0;
    f.bold = c.checked(key("imgBold"));
    f.antialias = c.checked(key("XFntAntiAlias"));
    return f;
}

Font logicalFont(const TextFont &f, double angle)
{
    LOGFONT lf;
    lf.lfHeight = -std::max(1, rounded(20.0 * f.size / 15.0));
    lf.lfEscapement = angle == 0 ? 0 : rounded(angle * 10.0);
    lf.lfWeight = f.bold ? 700 : 400;
    lf.lfQuality = uint8_t(f.antialias ? ANTIALIASED_QUALITY : NONANTIALIASED_QUALITY);
    lf.lfFaceName = f.name;
    Font font = CreateFontIndirectA(lf);
    if (f.widthPercent > 0 && f.widthPercent != 100) {
        const int natural = QFontMetrics(toQFont(font)).averageCharWidth();
        font.width = std::max(1, rounded(natural * f.widthPercent / 100.0));
    }
    return font;
}

QString prepareText(PaintContext &ctx, const char *bigLetters, int bigLettersIndex,
                    bool keepLines, bool allowMixFonts)
{
    const Controls &c = ctx.session.controls();
    QString text = c.text(key("txtOrthoIn"));
    if (text.isEmpty()) text = QString::fromLatin1(LatinSample);
    text.replace(QLatin1String("\r\n"), QLatin1String("$$"));
    text.replace(QLatin1Char('\n'), QLatin1String("$$"));
    text.replace(QLatin1Char('\r'), QLatin1String("$$"));
    if (!keepLines) {
        text.replace(QLatin1String("$$"), QLatin1String(" "));
        while (text.endsWith(QLatin1Char(' '))) text.chop(1);
    }
    if (bigLetters && c.checked(key(bigLetters, bigLettersIndex))) text = text.toUpper();
    ctx.session.text().UseMixFonts = allowMixFonts && c.checked(key("XText_Mixfonts"));
    return text;
}

void mixFont(PaintContext &ctx, TextFont &f)
{
    TextState &st = ctx.session.text();
    if (!st.UseMixFonts) return;
    if (st.FontList.isEmpty()) Load_SystemFonts(st);
    if (st.FontList.isEmpty()) return;
    const int i = int(std::floor(rnd(ctx) * st.FontCount()));
    f.name = st.FontList[std::clamp(i, 0, st.FontCount() - 1)];
}

ColorLong randomTextColour(PaintContext &ctx)
{
    const int r = rounded(rnd(ctx) * 255), g = rounded(rnd(ctx) * 255), b = rounded(rnd(ctx) * 255);
    return RGB(r, g, b);
}

ColorLong randomShadowGrey(PaintContext &ctx)
{
    const int v = rounded(rnd(ctx) * 129 + 64);
    return RGB(v, v, v);
}

TextColours textColourRule(PaintContext &ctx, bool allowRandoms)
{
    ColourState &c = ctx.colours();
    TextColours t;
    if (c.RandomColors && allowRandoms) {
        t.text = randomTextColour(ctx);
        t.shadow = randomShadowGrey(ctx);
    } else {
        t.text = c.TextFore;
        t.shadow = c.TextBack;
    }
    // The star's colour mode asks for a table when none is set.
    const int mode = ctx.session.controls().listIndex(key("cmbCMStar"));
    if (mode > 0 && !c.XDuotones[0] && !c.XDuotones[1]) c.XDuotones[allowRandoms ? 0 : 1] = true;
    t.table = c.XDuotones[0] || c.XDuotones[1];
    if (c.XDuotones[0] && allowRandoms) {
        t.duoFore = Pick_RandomColor(ctx.session);
        t.duoBack = Pick_RandomColor(ctx.session);
    } else {
        t.duoFore = c.ColorFore;
        t.duoBack = c.ColorBack;
    }
    if (t.table) Set_Duo_Colortable(ctx.session, 0, true, QStringLiteral("RandomMondrianText"), 5, 5);
    return t;
}

ColorLong tableColour(PaintContext &ctx, int i, ColorLong fallback)
{
    const std::vector<ColorLong> &cells = ctx.colours().DuoColors;
    if (cells.size() < 26) return fallback;
    const ColorLong c = cells[size_t(((i - 1) % 25 + 25) % 25 + 1)];
    return c == NoColour ? fallback : c;
}

ColorLong shadowColour(const Controls &c, ColorLong ruleShadow, ColorLong textColour)
{
    switch (c.listIndex(key("icb1Color3D"))) {
    case 1: return RGB(0, 0, 0);
    case 2: return RGB(128, 128, 128);
    case 3: return RGB(255, 255, 255);
    case 4: return RGB(RedOf(textColour) / 2, GreenOf(textColour) / 2, BlueOf(textColour) / 2);
    default: return ruleShadow;
    }
}

int shadowThickness(const Controls &c)
{
    return std::max(0, rounded(std::min(Val(c.text(key("cmbShadeThickness"))), 1000.0)));
}

QPoint shadowOffset(double angle, int thickness)
{
    const double k = thickness;
    double a = std::fmod(angle, 360.0);
    if (a < 0) a += 360.0;
    double dx = 0, dy = 0;
    if (a >= 90 && a < 180) {
        const double t = (a - 90) * Rad;
        dx = (std::sin(t) - std::cos(t)) * -k;
        dy = (std::abs(std::cos(t)) + std::abs(std::sin(t))) * -k;
    } else if (a >= 180 && a < 270) {
        const double t = (a - 180) * Rad;
        dx = (std::sin(t) + std::cos(t)) * -k;
        dy = (std::abs(std::cos(t)) - std::abs(std::sin(t))) * -k;
    } else if (a >= 270) {
        const double t = (a - 270) * Rad;
        dx = (std::abs(std::cos(t)) - std::abs(std::sin(t))) * k;
        dy = (std::sin(t) + std::cos(t)) * k;
    } else {
        const double t = a * Rad;
        dx = (std::abs(std::sin(t)) + std::abs(std::cos(t))) * k;
        dy = (std::sin(t) - std::cos(t)) * k;
    }
    return {rounded(dx), rounded(dy)};
}

void Print_Rotated(PictureBox &pic, const QString &text, double x, double y, double angle,
                   const TextFont &f)
{
    DeviceContext &dc = pic.hDC();
    const Font before = SelectObject(dc, logicalFont(f, angle));
    const ColorLong colourBefore = SetTextColor(dc, pic.ForeColor());
    const int modeBefore = SetBkMode(dc, TRANSPARENT);
    TextOutA(dc, rounded(x), rounded(y), text);
    SetBkMode(dc, modeBefore);
    SetTextColor(dc, colourBefore);
    SelectObject(dc, before);
    pic.markChanged();
}

QSizeF Measure_Rotated(const TextFont &f, const QString &text)
{
    const QFontMetricsF m(toQFont(logicalFont(f, 0)));
    return {m.horizontalAdvance(text), m.ascent() + m.descent()};
}

int lineStep(const TextFont &f)
{
    const QFontMetrics m(toQFont(logicalFont(f, 0)));
    return m.ascent() + m.descent() + std::max(0, m.leading());
}

QRectF inkBox(const TextFont &f, const QString &text, double angle)
{
    const QFont font = toQFont(logicalFont(f, angle));
    QPainterPath path;
    path.addText(QPointF(0, QFontMetricsF(font).ascent()), font, text);
    QTransform turn;
    turn.rotate(-(angle == 0 ? 0.0 : rounded(angle * 10.0) / 10.0));
    return turn.map(path).boundingRect();
}

QPointF originFor(QPointF at, double u, double v, double angle)
{
    const double a = angle * Rad;
    return {at.x() - (u * std::cos(a) + v * std::sin(a)),
            at.y() - (-u * std::sin(a) + v * std::cos(a))};
}

} // namespace tf::text
