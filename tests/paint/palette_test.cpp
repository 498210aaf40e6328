// The two-colour palette and its strip.
#include "paint/palette.h"

#include "core/picturebox.h"
#include "paint/session.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {

ColorLong pixel(const PictureBox &p, int x, int y) { return p.Point(x, y); }

} // namespace

TEST(Create2ColorPAL, CoarseSlopeOfZeroOrOnePerChannel)
{
    Session s;
    ColourState &c = s.colours();
    // Red 0 -> 255 differs by more than 128: slope 1. Green 10 -> 138 differs by exactly 128:
    // slope 0. Blue 200 -> 0: slope -1, kept at 0 from entry 200 on.
    c.ColorFore = RGB(0, 10, 200);
    c.ColorBack = RGB(255, 138, 0);
    Create2ColorPAL(s);
    ASSERT_EQ(c.Pal256.size(), 256u);
    EXPECT_EQ(c.Pal256[0], RGB(0, 10, 200));
    EXPECT_EQ(c.Pal256[100], RGB(100, 10, 100));
    EXPECT_EQ(c.Pal256[255], RGB(255, 10, 0));

    // With a background of 100 in red the strip stays at the foreground's red.
    c.ColorFore = RGB(0, 0, 0);
    c.ColorBack = RGB(100, 129, 0);
    Create2ColorPAL(s);
    EXPECT_EQ(c.Pal256[255], RGB(0, 255, 0));
    EXPECT_EQ(c.Pal256[17], RGB(0, 17, 0));
}

TEST(Create2ColorPAL, StripAndPlasmaPalette)
{
    Session s;
    s.colours().ColorFore = RGB(0, 0, 0);
    s.colours().ColorBack = RGB(255, 255, 255);

    // One line per entry on a strip 256 wide, 12 high; the strip is not cleared below.
    PictureBox strip(QStringLiteral("picPal256"), 256, 14);
    strip.setAutoRedraw(true);
    Create2ColorPAL(s, &strip);
    EXPECT_EQ(pixel(strip, 0, 0), RGB(0, 0, 0));
    EXPECT_EQ(pixel(strip, 77, 11), RGB(77, 77, 77));
    EXPECT_EQ(pixel(strip, 77, 12), RGB(255, 255, 255));

    // Half as wide: x = i / 2 rounds half to even, so pixel 1 shows entry 2 and pixel 2 entry 5.
    PictureBox narrow(QStringLiteral("picPal256"), 128, 12);
    narrow.setAutoRedraw(true);
    Create2ColorPAL(s, &narrow);
    EXPECT_EQ(pixel(narrow, 0, 5), RGB(1, 1, 1));
    EXPECT_EQ(pixel(narrow, 1, 5), RGB(2, 2, 2));
    EXPECT_EQ(pixel(narrow, 2, 5), RGB(5, 5, 5));

    const QImage image = pal256Strip(s.colours().Pal256, QSize(256, 20));
    EXPECT_EQ(fromQRgb(image.pixel(200, 19)), RGB(200, 200, 200));

    // The plasma palette follows only for "Plasma" with chosen colours.
    const Palette512 none{};
    s.colours().PlasmaPalette = none;
    s.paint().GrafKey = QStringLiteral("Plasma");
    Create2ColorPAL(s);
    EXPECT_EQ(s.colours().PlasmaPalette, none);
    s.colours().RandomColors = false;
    s.colours().ColorFore = RGB(255, 0, 0);
    s.colours().ColorBack = RGB(0, 0, 255);
    Create2ColorPAL(s);
    EXPECT_EQ(s.colours().PlasmaPalette[0], 0xFF0000u);
    EXPECT_EQ(s.colours().PlasmaPalette[511], 0x0000FFu);
    s.colours().PlasmaPalette = none;
    s.paint().GrafKey = QStringLiteral("Backgroundcolor");
    Create2ColorPAL(s);
    EXPECT_EQ(s.colours().PlasmaPalette, none);
}
