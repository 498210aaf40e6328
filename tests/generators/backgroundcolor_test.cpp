// "Backgroundcolor" through the Paint command, and the random colour it picks.
#include "paintfixture.h"

using namespace tf;

namespace {

struct BackgroundcolorTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(5, 4);
        mn_Grafmodes(s, 1);
        ListBoxType_Click(s, 0);
        ASSERT_EQ(s.paint().GrafKey, QStringLiteral("Backgroundcolor"));
    }
    // A picture whose pixels differ: left half one colour, right half another.
    void oldPicture(ColorLong left, ColorLong right)
    {
        PictureBox &b = s.workspace().Bild;
        b.Line(0, 0, 1, 3, left, LineFlags::BF);
        b.Line(2, 0, 4, 3, right, LineFlags::BF);
        b.setPicture(b.Image());
    }
    PaintOutcome paint(int percent)
    {
        s.controls().set(ControlKey{QStringLiteral("ScrollTransparence")},
                         QString::number(percent));
        return BtnPaint_Click(s);
    }
};

} // namespace

TEST_F(BackgroundcolorTest, WithoutRandomColoursTheBackgroundColourCoversThePicture)
{
    oldPicture(RGB(0, 0, 0), RGB(255, 255, 255));
    s.colours().RandomColors = false;
    s.colours().ColorBack = RGB(10, 20, 30);
    for (const int percent : {0, 1, 99, 100}) {
        ASSERT_EQ(paint(percent), PaintOutcome::Painted);
        for (const auto &[x, y] : {std::pair{0, 0}, {4, 3}, {2, 1}})
            EXPECT_EQ(at(x, y), RGB(10, 20, 30)) << percent;
        s.workspace().Bild.setPicture(QImage());
        oldPicture(RGB(0, 0, 0), RGB(255, 255, 255));
    }
}

TEST_F(BackgroundcolorTest, WithRandomColoursTheColourIsTheSeedsFirstPick)
{
    s.paint().nextSeed = 7;
    ASSERT_EQ(paint(0), PaintOutcome::Painted);
    Session same;
    same.seed(7);
    const ColorLong expected = Pick_RandomColor(same);
    EXPECT_EQ(at(0, 0), expected);
    EXPECT_EQ(at(4, 3), expected);
}

TEST_F(BackgroundcolorTest, BetweenTwoAndNinetyEightPercentTheColourIsMixedOverTheOldPicture)
{
    oldPicture(RGB(0, 0, 0), RGB(200, 100, 11));
    s.colours().RandomColors = false;
    s.colours().ColorBack = RGB(25, 75, 250);
    ASSERT_EQ(paint(2), PaintOutcome::Painted);
    // colour - 0.02 * (colour - old): over black 24.5 -> 24, 73.5 -> 74, 245.
    EXPECT_EQ(at(0, 0), RGB(24, 74, 245));
    // Over (200, 100, 11): 25 + 3.5 = 28.5 -> 28, 75 + 0.5 = 75.5 -> 76, 250 - 4.78 = 245.22.
    EXPECT_EQ(at(4, 3), RGB(28, 76, 245));

    // The picture painted last is the old one now: (24, 74, 245) left.
    s.colours().ColorBack = RGB(250, 0, 127);
    ASSERT_EQ(paint(98), PaintOutcome::Painted);
    // 250 - 0.98 * 226 = 28.52 -> 29; 0 + 0.98 * 74 = 72.52 -> 73; 127 + 0.98 * 118 = 242.64.
    EXPECT_EQ(at(1, 2), RGB(29, 73, 243));
    EXPECT_EQ(s.workspace().lastaction, QStringLiteral("$PAINT"));
}
