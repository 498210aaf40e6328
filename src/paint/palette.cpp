#include "paint/palette.h"

#include "core/numeric.h"
#include "core/picturebox.h"
#include "paint/plasmapalette.h"
#include "paint/session.h"

#include <cstdlib>

namespace tf {

namespace {

// The whole-number slope of a channel: |first - second| / 256 rounded, so 0 or 1, turned
// towards the second value.
int coarseSlope(int first, int second)
{
    const int slope = CInt(std::abs(first - second) / 256.0);
    return second < first ? -slope : slope;
}

int clamp255(int v) { return v < 0 ? 0 : (v > 255 ? 255 : v); }

} // namespace

void Create2ColorPAL(Session &s, PictureBox *picPal256)
{
    ColourState &c = s.colours();
    const int r1 = RedOf(c.ColorFore), g1 = GreenOf(c.ColorFore), b1 = BlueOf(c.ColorFore);
    const int sr = coarseSlope(r1, RedOf(c.ColorBack));
    const int sg = coarseSlope(g1, GreenOf(c.ColorBack));
    const int sb = coarseSlope(b1, BlueOf(c.ColorBack));
    c.Pal256.resize(256);
    c.paletteFile.clear();
    c.systemPalette = 0;
    for (int i = 0; i < 256; ++i)
        c.Pal256[size_t(i)] = RGB(clamp255(sr * i + r1), clamp255(sg * i + g1), clamp255(sb * i + b1));
    if (picPal256)
        drawPal256(*picPal256, c.Pal256, picPal256->Width());
    if (s.paint().GrafKey == QLatin1String("Plasma") && !c.RandomColors)
        rebuildPlasmaPalette(s);
}

void ColorDialog_Load(Session &s, PictureBox *picPal256)
{
    ColourState &c = s.colours();
    c.RandomColors = true;
    c.RandomValues = true;
    c.ColorBorder = c.ColorFore;
    Create2ColorPAL(s, picPal256);
    // The plasma's palette from the two colours, without a random draw at start.
    c.PlasmaPalette = Plasma_Palette(c.ColorFore, c.ColorBack, plasmaPaletteMode(s), c.ColorBack,
                                     c.ColorFore);
}

void drawPal256(PictureBox &picPal256, const std::vector<ColorLong> &pal256, double span, int height)
{
    const int count = int(pal256.size() < 256 ? pal256.size() : 256);
    for (int i = 0; i < count; ++i) {
        const double x = i / 256.0 * span;
        picPal256.Line(x, 0, x, height, pal256[size_t(i)]);
    }
}

void drawPal512(PictureBox &picPal256, const std::vector<ColorLong> &pal512)
{
    const int count = int(pal512.size() < 512 ? pal512.size() : 512);
    const double span = picPal256.Width() + 1;
    for (int i = 0; i < count; ++i) {
        const ColorLong c = pal512[size_t(i)];
        const double x = i / 511.0 * span;
        picPal256.Line(x, 0, x, 14, RGB(BlueOf(c), GreenOf(c), RedOf(c)));
    }
}

QImage pal256Strip(const std::vector<ColorLong> &pal256, QSize size)
{
    PictureBox strip(QStringLiteral("picPal256"), size.width(), size.height());
    strip.setAutoRedraw(true);
    drawPal256(strip, pal256, strip.Width(), strip.Height());
    return strip.Image();
}

} // namespace tf
