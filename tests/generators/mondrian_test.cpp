// "ART-Mondrian" through the Paint command and "Repaint letztes Set": pixels at known points of
// a plain layout, fill and lines switched off, the format's fallback, the kaleidoscope, a
// repaint that keeps its frames, the erase before another paint and the repaint's message.
#include "paintfixture.h"

#include "core/dibsection.h"
#include "generators/framecanvas.h"
#include "generators/mondrian.h"
#include "generators/mondrianlayout.h"
#include "paint/mondriantables.h"

#include "mondrianframes.h"

#include <set>

using namespace tf;
using tf::test::sameFrames;

namespace {

constexpr ColorLong Ground = 0x00FF00;
constexpr ColorLong Border = 0x123456; // in no colour table

struct MondrianTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(200, 200);
        fixedColours(0x000000, 0xFFFFFF);
        s.colours().ColorBorder = Border;
        ground(Ground);
        // A plain layout: two equal columns and rows, no subdivision, all frames, pen 1.
        set("XMondrian", "1", 0);
        set("XMondrian", "1", 1);
        set("XMondrian", "0", 2);
        set("XMondrian", "1", 3);
        set("XFill_White", "1");
        set("cmbPen", "1");
    }
};

TEST_F(MondrianTest, TwoByTwoGivesFourOutlinedFields)
{
    ASSERT_EQ(paint("ART-Mondrian"), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_EQ(s.mondrian().MondrianFrames, 4);
    // (200 - 1) / 2 = 99.5 rounds to 100: the cells meet at 100.
    EXPECT_EQ(s.mondrian().ArrCellH(1, 0, 0), 100);
    const std::set<ColorLong> classic{RGB(255, 255, 255), RGB(255, 0, 0), RGB(255, 255, 0),
                                      RGB(0, 0, 255)};
    for (auto [x, y] : {std::pair{50, 50}, {150, 50}, {50, 150}, {150, 150}}) {
        const ColorLong c = at(x, y);
        const bool grey = (c & 0xFF) == ((c >> 8) & 0xFF) && (c & 0xFF) == ((c >> 16) & 0xFF) &&
                          (c & 0xFF) >= 180;
        EXPECT_TRUE(classic.count(c) || grey) << x << "," << y << " " << std::hex << c;
        // A field is one colour up to its lines.
        EXPECT_EQ(at(x - 48, y - 48), c);
        EXPECT_EQ(at(x + 48, y + 48), c);
    }
    // The top and left lines of every field, the closing lines at the right and the bottom.
    for (int i : {0, 37, 100, 163, 199}) {
        EXPECT_EQ(at(0, i), Border) << i;
        EXPECT_EQ(at(100, i), Border) << i;
        EXPECT_EQ(at(199, i), Border) << i;
        EXPECT_EQ(at(i, 0), Border) << i;
        EXPECT_EQ(at(i, 100), Border) << i;
        EXPECT_EQ(at(i, 199), Border) << i;
    }
    EXPECT_EQ(count(Ground), 0);
}

TEST_F(MondrianTest, WithoutFillOnlyTheLinesAppearAndTheTableStays)
{
    set("XFill", "0");
    s.colours().DuoColors.assign(3, 0x777777);
    ASSERT_EQ(paint("ART-Mondrian"), PaintOutcome::Painted);
    EXPECT_EQ(s.colours().DuoColors, std::vector<ColorLong>(3, 0x777777));
    EXPECT_EQ(at(50, 50), Ground);
    EXPECT_EQ(at(150, 150), Ground);
    EXPECT_EQ(at(100, 50), Border);
    EXPECT_EQ(count(Ground) + count(Border), 200 * 200);
}

TEST_F(MondrianTest, PenZeroWithoutBordersDrawsNoLine)
{
    set("XBorders", "0");
    set("XMondrian", "1", 2);
    s.colours().RandomValues = true;
    for (uint32_t seed : {1u, 2u, 3u}) {
        ASSERT_EQ(paint("ART-Mondrian", seed), PaintOutcome::Painted);
        EXPECT_EQ(count(Border), 0) << seed;
        EXPECT_FALSE(s.controls().checked(ControlKey{QStringLiteral("XMondrian"), 3}));
    }
}

TEST_F(MondrianTest, NonSquarePicturesFallBackToTheWholeFormat)
{
    set("cmbMondrian_Format", "1", 0);
    size(300, 200);
    ground(Ground);
    ASSERT_EQ(paint("ART-Mondrian"), PaintOutcome::Painted);
    EXPECT_EQ(s.mondrian().MondrianW, 300);
    EXPECT_EQ(s.mondrian().MondrianH, 200);
    EXPECT_EQ(count(Ground), 0);

    // A square picture takes the vertical format: narrower than it is high, at the left.
    size(400, 400);
    ground(Ground);
    ASSERT_EQ(paint("ART-Mondrian", 3), PaintOutcome::Painted);
    EXPECT_EQ(s.mondrian().MondrianH, 400);
    EXPECT_GE(s.mondrian().MondrianW, 400 / 2 - 32);
    EXPECT_LE(s.mondrian().MondrianW, 400 - 32);
    EXPECT_EQ(at(399, 200), Ground);
    EXPECT_NE(at(5, 200), Ground);
}

TEST_F(MondrianTest, KaleidoscopeMirrorsBothHalves)
{
    set("XMondrian", "1", 4);
    set("XMondrian", "0", 0);
    set("XMondrian", "0", 1);
    set("txtMondrian", "5", 0);
    set("txtMondrian", "4", 1);
    size(201, 160);
    ASSERT_EQ(paint("ART-Mondrian", 9), PaintOutcome::Painted);
    for (int y = 0; y < 160; y += 7)
        for (int x = 0; x < 100; x += 3) {
            EXPECT_EQ(at(x, y), at(200 - x, y)) << x << "," << y;
            EXPECT_EQ(at(x, y / 2), at(x, 159 - y / 2)) << x << "," << y;
        }
}

TEST_F(MondrianTest, RepaintKeepsTheFramesWhenOnlyTheSubdivisionChanged)
{
    set("XMondrian", "1", 2);
    set("XMondrian", "0", 0);
    set("txtMondrian", "4", 0);
    set("txtMondrian", "3", 1);
    ASSERT_EQ(paint("ART-Mondrian", 21), PaintOutcome::Painted);
    const auto before = mondrianFrames(s.mondrian());
    const QImage first = image();

    set("cmbMondrian_subfak", "3", 0);
    s.paint().nextSeed = 99;
    ASSERT_EQ(BtnMondrian_Repaint(s), PaintOutcome::Painted);
    EXPECT_TRUE(sameFrames(before, mondrianFrames(s.mondrian())));
    EXPECT_NE(image(), first); // new colours on the same frames
    EXPECT_TRUE(prompter.asked().empty());

    // A changed H-Splits makes the repaint a new set.
    set("txtMondrian", "6", 0);
    ASSERT_EQ(BtnMondrian_Repaint(s), PaintOutcome::Painted);
    EXPECT_EQ(s.mondrian().MondrianHSplits, 6);
    EXPECT_EQ(s.mondrian().MondrianLastH, 6);
}

TEST_F(MondrianTest, AnotherPaintErasesTheLastSetAndTheRepaintStartsAnew)
{
    ASSERT_EQ(paint("ART-Mondrian"), PaintOutcome::Painted);
    EXPECT_TRUE(s.mondrian().holdsLayout());
    ASSERT_EQ(paint("Backgroundcolor"), PaintOutcome::Painted);
    EXPECT_FALSE(s.mondrian().holdsLayout());
    s.paint().GrafKey = QStringLiteral("ART-Mondrian");
    ASSERT_EQ(BtnMondrian_Repaint(s), PaintOutcome::Painted);
    EXPECT_TRUE(s.mondrian().holdsLayout());
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_TRUE(s.workspace().lastaction.contains(QStringLiteral("$PAINT")));
}

TEST_F(MondrianTest, SuperformatSizesBelowOneAreRefused)
{
    const QImage before = image();
    s.paint().GrafKey = QStringLiteral("ART-MondrianSuper");
    set("txtSuperSize", "0", 0);
    EXPECT_EQ(BtnMondrian_Repaint(s), PaintOutcome::Failed);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("0 - sizes not allowed"));
    EXPECT_EQ(image(), before);

    set("txtSuperSize", "20000", 0);
    set("txtSuperSize", "5", 1);
    const auto size = superSizeFromFields(s);
    ASSERT_TRUE(size.has_value());
    EXPECT_EQ(size->w, 14000);
    EXPECT_EQ(size->h, 128);
}

TEST_F(MondrianTest, DrawsTheSameOnAnOffScreenSurface)
{
    // The Superformat route paints through a DibCanvas: the same frames as on a picture.
    ASSERT_EQ(paint("ART-Mondrian", 5), PaintOutcome::Painted);
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(200, 200, 0xFFFFFF));
    DibCanvas canvas(dib);
    s.seed(5);
    PaintContext ctx{s, s.workspace().Bild, s.workspace().BildUndo, s.workspace().BildWork,
                     readOptionVariables(s.controls(), 200, 200)};
    MondrianCall call = mondrianCallFromPanel(ctx, canvas, true);
    call.Super = true;
    call.SuperW = 200;
    call.SuperH = 200;
    Draw_Mondrian(ctx, canvas, call);
    const DeviceContext &dc = dib.dib_hdc();
    EXPECT_EQ(dc.pixel(100, 50), Border);
    EXPECT_EQ(dc.pixel(199, 150), Border);
    EXPECT_EQ(dc.pixel(50, 199), Border);
    EXPECT_NE(dc.pixel(50, 50), Border);
    EXPECT_TRUE(prompter.asked().empty());
}

} // namespace

namespace {

struct BoogieTest : MondrianTest {
    void SetUp() override
    {
        MondrianTest::SetUp();
        size(400, 400);
        set("cmbMondrian_Format", "2", 1);
        set("cmbNumbArr", "20");
        set("txtMondrian", "3", 0);
        set("txtMondrian", "3", 1);
    }
};

TEST_F(BoogieTest, AUnitOfZeroFaultsThroughTheHandler)
{
    size(20, 20);
    set("cmbNumbArr", "500");
    const QImage before = image();
    EXPECT_EQ(paint("ART-Mondrian"), PaintOutcome::Painted);
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_TRUE(prompter.lastText().startsWith(QStringLiteral("Draw_MondrianBoogie  [")))
        << prompter.lastText().toStdString();
}

TEST_F(BoogieTest, TheFourColoursPaintTheLinesOfSquares)
{
    set("XMondrian", "1", 6);
    set("pic4C", QString::number(RGB(10, 20, 30)), 1);
    set("pic4C", QString::number(RGB(40, 50, 60)), 3);
    ASSERT_EQ(paint("ART-Mondrian", 4), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty());
    // A unit of 400 / (20 + 2) = 18 pixels: a line holds several squares of 18 x 18.
    EXPECT_GT(count(RGB(10, 20, 30)), 4 * 18 * 18);
    EXPECT_GT(count(RGB(40, 50, 60)), 4 * 18 * 18);
    EXPECT_EQ(count(Ground), 0); // the ground covers the picture first
}

TEST_F(BoogieTest, TheBarTypesCutTheirSquaresFromPlasmaBars)
{
    for (const char *type : {"3", "4", "5"}) {
        set("cmbMondrian_Format", type, 1);
        ASSERT_EQ(paint("ART-Mondrian", 6), PaintOutcome::Painted) << type;
        std::set<ColorLong> colours;
        for (int y = 0; y < 400; y += 3)
            for (int x = 0; x < 400; x += 3)
                colours.insert(at(x, y));
        // Plasma clouds give many shades where plain squares give a few table colours.
        EXPECT_GT(colours.size(), 40u) << type;
    }
    EXPECT_TRUE(prompter.asked().empty());
}

} // namespace
