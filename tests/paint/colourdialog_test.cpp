// The colour dialog's controls acting on the colour state.
#include "paint/colourdialog.h"

#include "paint/duocolortable.h"
#include "paint/session.h"

#include <gtest/gtest.h>

using namespace tf;

TEST(ColourDialog, PickedColoursGoWhereTheButtonsSayAndOnlyTheChartsRebuildThePalette)
{
    Session s;
    ColourState &c = s.colours();
    const ColorLong red = RGB(255, 0, 0), blue = RGB(0, 0, 255);

    pickChartColour(s, PaletteChart::picPal256, red, {});
    EXPECT_EQ(c.ColorFore, red);
    EXPECT_EQ(c.Pal256[255], RGB(255, 255, 255)); // still the grey ramp

    pickChartColour(s, PaletteChart::picPalette, red, {});
    EXPECT_EQ(c.Pal256[0], red);
    EXPECT_EQ(c.Pal256[200], RGB(255, 200, 200));

    c.XLockPalette = true;
    pickChartColour(s, PaletteChart::picPalette, blue, {true, false, false});
    EXPECT_EQ(c.ColorBack, blue);
    EXPECT_EQ(c.Pal256[255], RGB(255, 255, 255)); // locked: still the ramp to white
}

TEST(ColourDialog, TheTwoTableBoxes)
{
    Session s;
    ColourState &c = s.colours();
    clickDuotones(s, 0, true);
    EXPECT_FALSE(c.RandomColors);
    EXPECT_TRUE(c.DuoActive);
    EXPECT_EQ(c.DuoColors.size(), 26u); // a random lead glass set of 5 x 5

    // The other box goes off; a long table keeps its length as one column.
    Set_Duo_Colortable(s, 0, true, QStringLiteral("RandomTableSet"), 10, 10);
    clickDuotones(s, 1, true);
    EXPECT_FALSE(c.XDuotones[0]);
    EXPECT_TRUE(c.XDuotones[1]);
    EXPECT_EQ(c.DuoColors.size(), 101u);
    EXPECT_TRUE(c.DuoActive);

    releaseChart(s, PaletteChart::picPal256);
    EXPECT_EQ(c.DuoColors.size(), 26u);

    clickDuotones(s, 1, false);
    EXPECT_FALSE(c.DuoActive);

    clickDuotones(s, 1, true);
    clickRandomColors(s, true);
    EXPECT_TRUE(c.RandomColors);
    EXPECT_FALSE(c.XDuotones[1]);
    EXPECT_FALSE(c.DuoActive);
    c.XDuotones[0] = true;
    clickRandomColors(s, false);
    EXPECT_TRUE(c.DuoActive);
}

TEST(ColourDialog, LockingAndUnlockingThePalette)
{
    Session s;
    ColourState &c = s.colours();
    clickLockPalette(s, true);
    EXPECT_TRUE(c.PalFromFile);
    EXPECT_TRUE(c.PalFixed);

    c.ColorFore = RGB(0, 0, 255);
    c.ColorBack = RGB(255, 0, 255);
    clickLockPalette(s, false);
    EXPECT_EQ(c.Pal256[10], RGB(10, 0, 255));
    // The new table reads the new palette at entries 5, 15, ... 245.
    ASSERT_EQ(c.DuoColors.size(), 26u);
    EXPECT_EQ(c.DuoColors[1], RGB(5, 0, 255));
    EXPECT_EQ(c.DuoColors[25], RGB(245, 0, 255));
}
