// The colour table and the colour rules. Expected cells were worked out by hand from the
// generator's sequence: a fresh session's first values are 0.7055475, 0.533424, 0.5795186.
#include "paint/duocolortable.h"
#include "paint/palette.h"
#include "paint/session.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace tf;

namespace {

constexpr ColorLong White = 0xFFFFFF;

ColorLong grey(int v) { return RGB(v, v, v); }

const std::vector<ColorLong> &table(Session &s) { return s.colours().DuoColors; }

} // namespace

TEST(PickRandomColor, ChannelsStayWithin1To255)
{
    Session s;
    // Red first: 0.7055475 * 254 + 1 = 180.21; 0.533424 * 254 + 1 = 136.49; 148.20.
    EXPECT_EQ(Pick_RandomColor(s), RGB(180, 136, 148));
    int low = 255, high = 0;
    for (int i = 0; i < 20000; ++i) {
        const ColorLong c = Pick_RandomColor(s);
        for (int ch : {RedOf(c), GreenOf(c), BlueOf(c)}) {
            ASSERT_GE(ch, 1);
            ASSERT_LE(ch, 255);
            low = std::min(low, ch);
            high = std::max(high, ch);
        }
    }
    EXPECT_EQ(low, 1);
    EXPECT_EQ(high, 255);
}

TEST(ColorPairRule, RandomColoursBeforeDuoColoursBeforeTheFields)
{
    Session s;
    s.colours().ColorFore = RGB(1, 2, 3);
    s.colours().ColorBack = RGB(250, 251, 252);

    ColorPair p = colorPairRule(s, true, RGB(9, 9, 9), RGB(8, 8, 8));
    EXPECT_EQ(p.start, RGB(180, 136, 148)); // the first draws give the start colour
    EXPECT_EQ(p.b1, 148);

    s.colours().RandomColors = false;
    p = colorPairRule(s, true, RGB(9, 10, 11), RGB(8, 7, 6));
    EXPECT_EQ(std::tuple(p.start, p.end, p.g1, p.b2),
              std::tuple(RGB(9, 10, 11), RGB(8, 7, 6), 10, 6));

    p = colorPairRule(s, false, RGB(9, 9, 9), RGB(8, 8, 8));
    EXPECT_EQ(std::tuple(p.start, p.end, p.r2), std::tuple(RGB(1, 2, 3), RGB(250, 251, 252), 250));
}

TEST(DuoColorTable, SizesOfZeroBecome25x25AndAreWrittenBack)
{
    Session s;
    int16_t cols = 0, rows = -3;
    Set_Duo_Colortable(s, 0, true, QStringLiteral("RandomTableSet"), cols, rows);
    EXPECT_EQ(cols, 25);
    EXPECT_EQ(rows, 25);
    EXPECT_EQ(table(s).size(), 626u); // cells 0..625

    cols = 4;
    rows = 0;
    Set_Duo_Colortable(s, 0, true, QStringLiteral("RandomTableSet"), cols, rows);
    EXPECT_EQ(rows, 25);
    EXPECT_EQ(table(s).size(), 101u);
}

TEST(DuoColorTable, TableReadingSkipsNoColourAndFaultsOutside)
{
    Session s;
    Set_Duo_Colortable(s, 0, false, QStringLiteral("MondrianColors"), 5, 5);
    EXPECT_EQ(duoCell(s.colours(), 0), std::nullopt);
    EXPECT_EQ(duoCell(s.colours(), 2), RGB(255, 0, 0));
    EXPECT_THROW(duoCell(s.colours(), 26), Fault);
}

TEST(DuoColorTable, ClassicSetsAndTheirRepetition)
{
    {
        Session s;
        Set_Duo_Colortable(s, 0, true, QStringLiteral("MondrianColors"), 5, 6);
        const auto &t = table(s);
        ASSERT_EQ(t.size(), 31u);
        EXPECT_EQ(t[0], White);
        EXPECT_EQ(t[2], RGB(255, 0, 0));
        EXPECT_EQ(t[5], grey(238));
        EXPECT_EQ(t[25], White);
        // From 26 on the 25 colours repeat by i Mod 25.
        EXPECT_EQ(t[26], t[1]);
        EXPECT_EQ(t[27], RGB(255, 0, 0));
        EXPECT_EQ(t[30], grey(238));
    }
    {
        Session s;
        Set_Duo_Colortable(s, 0, false, QStringLiteral("MondrianColors"), 5, 10);
        EXPECT_EQ(table(s)[0], NoColour);
        EXPECT_EQ(table(s)[50], NoColour); // cell 0
    }
    {
        Session s;
        Set_Duo_Colortable(s, 0, true, QStringLiteral("MondrianColorsNoWhite"), 6, 5);
        const auto &t = table(s);
        EXPECT_EQ(t[0], RGB(255, 239, 0));
        EXPECT_EQ(t[1], t[0]);
        EXPECT_EQ(t[5], grey(234));
        EXPECT_EQ(t[13], 0); // keeps what it had
        EXPECT_EQ(t[14], t[0]);
        EXPECT_EQ(t[25], RGB(255, 255, 0));
        EXPECT_EQ(t[30], t[5]);
    }
}

TEST(DuoColorTable, RandomSets)
{
    {
        Session s;
        Set_Duo_Colortable(s, 0, true, QStringLiteral("RandomMondrianText"), 5, 5);
        const std::vector<ColorLong> expected = {
            White,    White,    White,    0x0000E5, 0x00DBDB, 0xDE0000, 0xC4C4C4,
            0x787878, 0x2323DC, 0x996666, 0xDA2525, 0x14EB14, 0x2DD22D, 0x00A4C0,
            0x00E9EA, 0xEF2CD3, 0xC11EE1, White,    White,    0xD36AD3, 0x7D7D7D,
            White,    0x9E1E9E, White,    0x7F687F, 0xA0A050};
        EXPECT_EQ(table(s), expected);
    }
    {
        // The text set's whites stay white; AddWhites turns every fifth cell to no colour.
        Session s;
        Set_Duo_Colortable(s, 1, false, QStringLiteral("RandomMondrianText"), 5, 5);
        EXPECT_EQ(table(s)[0], White);
        EXPECT_EQ(table(s)[5], NoColour);
        EXPECT_EQ(table(s)[6], 0xC4C4C4);
    }
    {
        Session s;
        Set_Duo_Colortable(s, 0, false, QStringLiteral("RandomMondrian"), 5, 5);
        const auto &t = table(s);
        for (int i : {0, 1, 2, 17, 18, 19, 21, 22, 23, 24})
            EXPECT_EQ(t[size_t(i)], NoColour) << i;
        EXPECT_EQ(t[3], 0x0000E5);
        EXPECT_EQ(t[6], grey(216));
        EXPECT_EQ(t[7], grey(147));
    }
    {
        Session s;
        Set_Duo_Colortable(s, 0, true, QStringLiteral("RandomMLeadGlass"), 5, 5);
        EXPECT_EQ(table(s)[3], RGB(229, 128, 128));
        EXPECT_EQ(table(s)[5], RGB(128, 128, 222));
    }
    {
        Session s;
        Set_Duo_Colortable(s, 0, true, QStringLiteral("RandomTableSet"), 2, 2);
        ASSERT_EQ(table(s).size(), 5u);
        EXPECT_EQ(table(s)[0], RGB(180, 136, 148));
        EXPECT_EQ(table(s)[2], 0xD0C205);
    }
}

TEST(DuoColorTable, Tints)
{
    {
        // Tint 9 of the fourth part: blue rises by 4 from a = 137 over the constant 128.
        Session s;
        Set_Duo_Colortable(s, 0, true, QStringLiteral("DuoMLeadGlass"), 5, 5);
        EXPECT_EQ(table(s)[0], 0);
        EXPECT_EQ(table(s)[1], RGB(128, 128, 141));
        EXPECT_EQ(table(s)[25], RGB(128, 128, 237));
    }
    {
        // Tint 5 of the third part, a = 136, c = 177; whites as no colour.
        Session s;
        s.random().setState(0x5001C);
        Set_Duo_Colortable(s, 1, false, QStringLiteral("DuoMLeadGlass"), 5, 5);
        EXPECT_EQ(table(s)[1], RGB(140, 177, 140));
        EXPECT_EQ(table(s)[5], NoColour);
    }
    {
        // Tint 12 of the first part, falling: RGB(255, a - 4i, 64) with a = 141.
        Session s;
        s.random().setState(0x50047);
        Set_Duo_Colortable(s, 0, true, QStringLiteral("DuoMondrian"), 5, 6);
        EXPECT_EQ(table(s)[1], RGB(255, 137, 64));
        EXPECT_EQ(table(s)[25], RGB(255, 41, 64));
        EXPECT_EQ(table(s)[26], table(s)[1]);
    }
}

TEST(DuoColorTable, Ramps)
{
    {
        // Scheme 4 of the second kind: red and blue fall by 10.2 a cell, green stays 0. The
        // unused base draw comes before the cells.
        Session s;
        Set_Duo_Colortable(s, 0, true, QStringLiteral("Spirale"), 5, 5);
        EXPECT_EQ(table(s)[1], RGB(245, 0, 245));
        EXPECT_EQ(table(s)[2], RGB(235, 0, 235));
        EXPECT_EQ(table(s)[25], RGB(0, 0, 0));
        EXPECT_EQ(s.random().state(), 4858052u); // four draws before the cells
    }
    {
        // Scheme 4 of the first kind with a stripe: 246.5 rounds to 246; even cells get full
        // blue.
        Session s;
        s.random().setState(0x50005);
        Set_Duo_Colortable(s, 0, true, QStringLiteral("Spirale"), 5, 6);
        EXPECT_EQ(table(s)[1], RGB(246, 9, 246));
        EXPECT_EQ(table(s)[2], RGB(238, 17, 255));
        EXPECT_EQ(table(s)[30], RGB(0, 255, 255));
    }
    {
        // KachelMix: a draw for every cell decides the holes.
        Session s;
        Set_Duo_Colortable(s, 1, false, QStringLiteral("KachelMix"), 5, 5);
        for (int i = 1; i <= 25; ++i) {
            const bool hole = i == 3 || i == 9 || i == 11 || i == 12 || i == 13 || i == 16 ||
                              i == 23 || i == 25;
            EXPECT_EQ(table(s)[size_t(i)] == NoColour, hole) << i;
        }
        EXPECT_EQ(table(s)[1], RGB(245, 0, 245));
    }
}

TEST(DuoColorTable, PaletteSchemeAndRecolouring)
{
    Session s;
    ColorDialog_Load(s); // Pal256: the grey ramp from black to white
    Set_Duo_Colortable(s, 0, true, QStringLiteral("DuoMyPicPalette"), 5, 6);
    EXPECT_EQ(table(s)[1], grey(5));
    EXPECT_EQ(table(s)[25], grey(245));
    EXPECT_EQ(table(s)[26], grey(5));

    // With the two colours chosen: the ramp from the foreground to the background, rounded
    // half to even (56.25, 62.5).
    ColourState &c = s.colours();
    c.RandomColors = false;
    c.XDuotones[1] = true;
    c.ColorFore = RGB(200, 50, 0);
    c.ColorBack = RGB(0, 100, 0);
    Set_Duo_Colortable(s, 1, false, QStringLiteral("Spirale"), 2, 4);
    EXPECT_EQ(table(s)[1], RGB(175, 56, 0));
    EXPECT_EQ(table(s)[2], RGB(150, 62, 0));
    EXPECT_EQ(table(s)[5], NoColour);
    EXPECT_EQ(table(s)[8], RGB(0, 100, 0));

    // With the palette locked the table comes from Pal256 at rounded 256/n * i.
    c.XLockPalette = true;
    Set_Duo_Colortable(s, 0, true, QStringLiteral("Spirale"), 5, 5);
    EXPECT_TRUE(c.PalFromFile);
    EXPECT_EQ(table(s)[1], grey(10));
    EXPECT_EQ(table(s)[2], grey(20));
    EXPECT_EQ(table(s)[25], grey(255));

    // The scheme without whites is never recoloured.
    Set_Duo_Colortable(s, 0, true, QStringLiteral("MondrianColorsNoWhite"), 5, 5);
    EXPECT_EQ(table(s)[2], RGB(255, 0, 0));
}

TEST(DuoColorTable, FaultsAreReportedUnderTheTag)
{
    Session s;
    ScriptedPrompter p;
    s.setPrompter(&p);
    Set_Duo_Colortable(s, 0, true, QStringLiteral("MondrianColors"), 2, 2);
    EXPECT_EQ(p.lastText(), QStringLiteral("Set_Duo_Colortable  [Subscript out of range]"));
    EXPECT_EQ(table(s)[0], White); // as far as it was written

    Set_Duo_Colortable(s, 0, true, QStringLiteral("Spirale"), 200, 200);
    EXPECT_EQ(p.lastText(), QStringLiteral("Set_Duo_Colortable  [Overflow]"));
    EXPECT_EQ(p.asked().size(), 2u);

    Set_Duo_Colortable(s, 0, true, QStringLiteral("NoSuchScheme"), 3, 3);
    EXPECT_EQ(p.asked().size(), 2u);
    EXPECT_EQ(table(s), std::vector<ColorLong>(10, 0));
}
