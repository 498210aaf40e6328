// "ART-Mondrian-LeadGlass" and "Border-Tiffany-Rect": the lead of the panes at known points,
// sun rings cancelling the other figures, a repaint that keeps its frames, a border too small
// for one pane caught by the handler, and the panes of the border at known points.
#include "paintfixture.h"

#include "generators/leadglass.h"
#include "generators/mondrianlayout.h"
#include "paint/mondriantables.h"

#include "mondrianframes.h"

using namespace tf;
using tf::test::sameFrames;

namespace {

constexpr ColorLong Ground = 0x00FF00;
constexpr ColorLong Lead = 0x102030; // in no colour table

struct LeadGlassTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(200, 200);
        fixedColours(0x000000, 0xFFFFFF);
        s.colours().ColorBorder = Lead;
        ground(Ground);
        // Two equal columns and rows, no subdivision, all frames.
        set("XMLG", "1", 0);
        set("XMLG", "1", 1);
        set("XMLG", "1", 2);
        set("XMLG", "0", 6);
        set("XFill_White", "1");
        set("cmbPen", "3");
    }
};

TEST_F(LeadGlassTest, PanesAreFilledAndLeadedAtThePensWidth)
{
    ASSERT_EQ(paint("ART-Mondrian-LeadGlass"), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_EQ(s.mondrian().MondrianFrames, 4);
    const int split = s.mondrian().ArrCellH(1, 0, 0);
    // The lead at the top and left of each pane, the closing lead at the right and bottom,
    // each three pixels wide and no wider.
    for (int i : {10, 60, 150, 190}) {
        for (int d = 0; d < 3; ++d) {
            EXPECT_EQ(at(d, i), Lead) << i;
            EXPECT_EQ(at(i, d), Lead) << i;
            EXPECT_EQ(at(199 - d, i), Lead) << i;
            EXPECT_EQ(at(split + d, i), Lead) << i;
        }
        EXPECT_NE(at(3, i), Lead) << i;
        EXPECT_NE(at(split + 3, i), Lead) << i;
    }
    for (auto [x, y] : {std::pair{50, 50}, {150, 50}, {50, 150}, {150, 150}}) {
        EXPECT_NE(at(x, y), Lead);
        EXPECT_NE(at(x, y), Ground);
    }
}

TEST_F(LeadGlassTest, SunRingsCancelTheRectangleFlowerPlantsAndHills)
{
    set("XMLG_Paint", "1", 0);
    set("XFill", "0");
    ASSERT_EQ(paint("ART-Mondrian-LeadGlass", 5), PaintOutcome::Painted);
    const QImage ringsOnly = image();
    EXPECT_NE(at(100, 100), Ground); // the rings' disc lies on the middle node

    for (int i : {2, 3, 4})
        set("XMLG_Paint", "1", i);
    set("optXMLGForms", "2");
    ground(Ground); // without fill the panes keep what lies below
    ASSERT_EQ(paint("ART-Mondrian-LeadGlass", 5), PaintOutcome::Painted);
    EXPECT_EQ(image(), ringsOnly);

    // Without the rings the same figures change the picture.
    set("XMLG_Paint", "0", 0);
    ground(Ground);
    ASSERT_EQ(paint("ART-Mondrian-LeadGlass", 5), PaintOutcome::Painted);
    EXPECT_NE(image(), ringsOnly);
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(LeadGlassTest, RepaintKeepsTheFramesAndNewValuesMakeANewSet)
{
    set("XMLG", "0", 0);
    set("XMLG", "0", 1);
    set("XMLG", "1", 6);
    set("txtMLGKachel", "5", 0);
    set("txtMLGKachel", "4", 1);
    set("XMLG_Paint", "1", 1);
    ASSERT_EQ(paint("ART-Mondrian-LeadGlass", 11), PaintOutcome::Painted);
    const auto before = mondrianFrames(s.mondrian());
    const QImage first = image();

    s.paint().nextSeed = 12;
    ASSERT_EQ(BtnMLG_Repaint(s), PaintOutcome::Painted);
    EXPECT_TRUE(sameFrames(before, mondrianFrames(s.mondrian())));
    EXPECT_NE(image(), first); // new colours and a new rosette on the same frames

    bool changed = false;
    for (uint32_t seed : {13u, 14u, 15u}) {
        s.paint().nextSeed = seed;
        ASSERT_EQ(BtnMLG_NewValues(s), PaintOutcome::Painted);
        changed = changed || !sameFrames(before, mondrianFrames(s.mondrian()));
    }
    EXPECT_TRUE(changed);
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(LeadGlassTest, ABorderWithoutRoomForOnePaneIsCaughtAndThePanesStay)
{
    // 30 pixels with a border of 15 and pen 1: 16 * 4 = 64 per pane, no pane per side.
    size(30, 30);
    ground(Ground);
    set("cmbPen", "1");
    set("XMLG", "1", 5);
    set("txtMLGKachel", "15", 3);
    ASSERT_EQ(paint("ART-Mondrian-LeadGlass"), PaintOutcome::Painted);
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Draw_LeadBorder  [Division by zero]"));
    EXPECT_EQ(at(0, 0), Lead);
    EXPECT_NE(at(8, 8), Ground);
    EXPECT_EQ(s.controls().text(ControlKey{QStringLiteral("txtMLGKachel"), 3}),
              QStringLiteral("15"));
}

TEST_F(LeadGlassTest, TiffanyFramePanesLieAlongTheEdgesOverThePicture)
{
    set("cmbPen", "1");
    set("txtRahmendicke", "10");
    set("XFill", "1");
    set("XBorders", "1");
    ASSERT_EQ(paint("Border-Tiffany-Rect"), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty());
    // 11 pixels deep, 44 a pane: five panes a side of Round(190 / 5) = 38 pixels.
    for (int x : {0, 37, 38, 75, 76, 188})
        EXPECT_EQ(at(x, 5), Lead) << x;
    for (auto [x, y] : {std::pair{20, 5}, {60, 5}, {170, 5}, {5, 30}, {5, 190}, {30, 194},
                        {194, 30}, {194, 170}}) {
        EXPECT_NE(at(x, y), Lead) << x << "," << y;
        EXPECT_NE(at(x, y), Ground) << x << "," << y;
    }
    EXPECT_EQ(at(0, 10), Lead);
    EXPECT_EQ(at(10, 100), Lead);
    EXPECT_EQ(at(100, 100), Ground);
    EXPECT_EQ(at(11, 11), Ground);
    EXPECT_EQ(at(188, 188), Ground);
}

} // namespace

namespace {

struct CathedralTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(400, 400);
        fixedColours(0x000000, 0xFFFFFF);
        s.colours().ColorBorder = Lead;
        ground(Ground);
        set("cmbPen", "2");
    }
};

TEST_F(CathedralTest, EverySetGlazesTheMiddleAndLeadsItsRings)
{
    for (int set = 0; set < 5; ++set) {
        ground(Ground);
        this->set("cmbCathedralWinNr", QString::number(set));
        ASSERT_EQ(paint("ART-Cathedral-LeadGlass", 7u + set), PaintOutcome::Painted) << set;
        EXPECT_TRUE(prompter.asked().empty()) << set;
        // The centre's rosette is glass, the corners stay as they were for sets 1 to 3.
        EXPECT_NE(at(205, 195), Ground) << set;
        if (set < 3) {
            EXPECT_EQ(at(2, 2), Ground) << set;
        }
        // Going out from the middle, the lead is crossed at least three times.
        int leads = 0;
        for (int x = 200; x < 400; ++x)
            leads += at(x, 203) == Lead && at(x - 1, 203) != Lead;
        EXPECT_GE(leads, 3) << set;
    }
}

TEST_F(CathedralTest, APictureTooSmallForOnePaneIsCaught)
{
    size(8, 8);
    ground(Ground);
    ASSERT_EQ(paint("ART-Cathedral-LeadGlass"), PaintOutcome::Painted);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Draw_CathedralWindow  [Division by zero]"));
    EXPECT_EQ(at(4, 4), Ground);
}

} // namespace
