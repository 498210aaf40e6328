#include "core/picturebox.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {

void fill(PictureBox &p, ColorLong c)
{
    p.Line(0, 0, p.Width() - 1, p.Height() - 1, c, LineFlags::BF);
}

// A paint of `paint` over a picture of `old` at `percent`, bracketed as every painter is;
// answers a pixel of the result.
ColorLong paintOver(int percent, ColorLong old, ColorLong paint)
{
    Session s;
    Workspace &ws = s.workspace();
    ws.New_BildSize(4, 3);
    fill(ws.Bild, old);
    s.transparency().setPercent(percent);
    Set_BILD(s);
    ws.Bild_nachUndo();
    Start_Transparent(s);
    fill(ws.Bild, paint);
    Ende_Transparent(s);
    EXPECT_EQ(ws.Bild.Point(0, 0), ws.Bild.Point(3, 2));
    return ws.Bild.Point(2, 1);
}

} // namespace

TEST(Transparency, TheBlendRoundsNewMinusFactorTimesTheDifferenceHalfToEven)
{
    EXPECT_EQ(blendChannel(255, 0, 0.5), 128);  // 127.5
    EXPECT_EQ(blendChannel(253, 0, 0.5), 126);  // 126.5
    EXPECT_EQ(blendChannel(0, 75, 0.98), 74);   // 73.5
    EXPECT_EQ(blendChannel(17, 230, 1.0), 230);
}

TEST(Transparency, OneAndNinetyNinePaintOpaqueTwoAndNinetyEightBlend)
{
    const ColorLong old = RGB(0, 0, 0);
    const ColorLong paint = RGB(25, 75, 250);
    for (const int percent : {0, 1, 99, 100})
        EXPECT_EQ(paintOver(percent, old, paint), paint) << percent;
    // 2 %: 25 - 0.5 = 24.5 -> 24, 75 - 1.5 = 73.5 -> 74, 250 - 5 = 245.
    EXPECT_EQ(paintOver(2, old, paint), RGB(24, 74, 245));
    // 98 %: 25 - 24.5 = 0.5 -> 0, 75 - 73.5 = 1.5 -> 2, 250 - 245 = 5.
    EXPECT_EQ(paintOver(98, old, paint), RGB(0, 2, 5));
    EXPECT_EQ(paintOver(50, RGB(11, 255, 0), RGB(200, 0, 253)), RGB(106, 128, 126));
}

TEST(Transparency, APaintWithASelectionShownBlendsOnlyTheSelection)
{
    Session s;
    Workspace &ws = s.workspace();
    ws.New_BildSize(6, 6);
    fill(ws.Bild, RGB(0, 0, 200));
    ws.PicSelect.resize(2, 2);
    fill(ws.PicSelect, RGB(100, 100, 100));
    ws.PicSelect.setVisible(true);

    Set_BILD(s);
    EXPECT_TRUE(targetIsSelection(s));

    s.transparency().setPercent(50);
    ws.Bild_nachUndo();
    ws.PicSelect_nachUndo();
    Start_Transparent(s);
    fill(ws.PicSelect, RGB(200, 0, 0));
    Ende_Transparent(s);
    EXPECT_EQ(ws.PicSelect.Point(1, 1), RGB(150, 50, 50));
    EXPECT_EQ(ws.Bild.Point(1, 1), RGB(0, 0, 200));

    ws.PicSelect.setVisible(false);
    Set_BILD(s);
    EXPECT_FALSE(targetIsSelection(s));
}
