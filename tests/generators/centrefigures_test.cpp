// The spirograph, the mountains, the wave grid, the rotating lines and the circle gradients
// through the Paint command: where their figures lie, the colours they take, the panels they
// read and Stop in the middle of each long one.
#include "paintfixture.h"

#include "core/workspace.h"
#include "generators/circlegradients.h"
#include "generators/rosettes.h"
#include "generators/wavegrid.h"
#include "paint/painter.h"

#include <cmath>
#include <numeric>
#include <set>
#include <string>

using namespace tf;

namespace {

constexpr ColorLong Ground = 0x00FF00;
constexpr ColorLong Red = 0x0000FF;
constexpr ColorLong Blue = 0xFF0000;

int lumaOfPixel(ColorLong c) { return (RedOf(c) * 299 + GreenOf(c) * 587 + BlueOf(c) * 114) / 1000; }

struct CentreFigures : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(240, 180);
    }
    void ground() { PaintFixture::ground(Ground); }
};

// ---- Spirograph ----

TEST(SpirographGear, TheWheelClosesTheCurveAfterItsTurns)
{
    for (int turns = 1; turns <= 7; ++turns)
        for (double wheel : {0.2, 7.0, 33.0, 90.0, 200.0, 400.0}) {
            const SpirographGear g = spirographGear(300, wheel, turns);
            EXPECT_EQ(g.turns, turns);
            EXPECT_GT(g.lobes, g.turns);
            EXPECT_EQ(std::gcd(g.lobes, g.turns), 1) << turns << ' ' << wheel;
            // Rolled round the ring k times the wheel has turned a whole number of times.
            EXPECT_NEAR(g.wheel * g.lobes, 300.0 * turns, 1e-9);
            EXPECT_LT(g.wheel, 300.0 * 0.9 + 1e-9);
            EXPECT_GE(g.lobes, 3);
        }
    // A wheel of a third of the ring gives three lobes in one turn.
    const SpirographGear three = spirographGear(300, 100, 1);
    EXPECT_EQ(three.lobes, 3);
    EXPECT_DOUBLE_EQ(three.wheel, 100.0);
    // Turns 0 counts as 1.
    EXPECT_EQ(spirographGear(300, 100, 0).turns, 1);
}

TEST_F(CentreFigures, TheSpirographStaysInsideItsRingAboutTheCentre)
{
    fixedColours(Red, Blue);
    set("XCenter", QStringLiteral("1"));
    set("cmbNumbArr", QStringLiteral("4"));
    set("Scrollstep", QStringLiteral("40"));
    ground();
    ASSERT_EQ(paint("Spirograph", 3), PaintOutcome::Painted);
    const double reach = 0.46 * 180;
    int outside = 0, red = 0;
    for (int y = 0; y < 180; ++y)
        for (int x = 0; x < 240; ++x) {
            const ColorLong c = at(x, y);
            if (c == Ground) continue;
            // Soft edges mix the red line into the green ground; blue never appears.
            EXPECT_EQ(BlueOf(c), 0);
            red += RedOf(c) > GreenOf(c);
            if (std::hypot(x - 120.0, y - 90.0) > reach + 1.5) ++outside;
        }
    EXPECT_EQ(outside, 0);
    EXPECT_GT(red, 100);
    // The curve's start lies on the ring's axis to the right of the centre, within the ring.
    bool onAxis = false;
    for (int x = 121; x < 120 + int(reach) + 2; ++x) onAxis |= at(x, 90) != Ground;
    EXPECT_TRUE(onAxis);
}

TEST_F(CentreFigures, TheSpirographPaintsWithTablesAndStops)
{
    expectEveryVariantPaints({"Spirograph"}, Ground);
    s.colours().RandomColors = false;
    s.colours().ColorFore = Red;
    expectStopKeepsAPart("Spirograph", 4, Ground);
}

// ---- Mountains ----

struct MountainTest : CentreFigures {
    void SetUp() override
    {
        CentreFigures::SetUp();
        fixedColours(Red, Blue);
        set("radMountHorizon", QStringLiteral("1"));
        set("X3DMountain", QStringLiteral("0"));
    }
    // Per column the first row of the ground colour from the top (h when none).
    std::vector<int> ridgeRows(bool fromBottom = false)
    {
        const PictureBox &b = s.workspace().Bild;
        std::vector<int> out;
        for (int x = 0; x < b.Width(); ++x) {
            int y = 0;
            while (y < b.Height() && b.Point(x, fromBottom ? b.Height() - 1 - y : y) != Red) ++y;
            out.push_back(y);
        }
        return out;
    }
};

TEST_F(MountainTest, TheGroundLiesUnderASkyBetweenTheTopLineAndTheFoot)
{
    set("scrollMountain", QStringLiteral("50"), 1);
    ground();
    ASSERT_EQ(paint("Mountains", 4), PaintOutcome::Painted);
    // The top row is the sky colour itself, the bottom row all ground.
    for (int x = 0; x < 240; x += 7) {
        EXPECT_EQ(at(x, 0), Blue) << x;
        EXPECT_EQ(at(x, 179), Red) << x;
    }
    // The ridge stays between the top line (50 %) and 85 % of the height, and below it the
    // column is ground to the bottom.
    const std::vector<int> rows = ridgeRows();
    for (int x = 0; x < 240; ++x) {
        EXPECT_GE(rows[size_t(x)], 90) << x;
        EXPECT_LE(rows[size_t(x)], 154) << x;
        for (int y = rows[size_t(x)]; y < 180; y += 5) EXPECT_EQ(at(x, y), Red);
    }
}

TEST_F(MountainTest, TheWalkIsHeldToTheAmplitudeAndTheHorizonOnTopMirrorsIt)
{
    set("scrollMountain", QStringLiteral("1"), 0);
    ground();
    ASSERT_EQ(paint("Mountains", 9), PaintOutcome::Painted);
    const std::vector<int> rows = ridgeRows();
    for (size_t x = 1; x < rows.size(); ++x) EXPECT_LE(std::abs(rows[x] - rows[x - 1]), 2) << x;

    set("radMountHorizon", QStringLiteral("0")); // "Oben"
    ground();
    ASSERT_EQ(paint("Mountains", 9), PaintOutcome::Painted);
    EXPECT_EQ(at(100, 0), Red);
    EXPECT_EQ(at(100, 179), Blue);
    // The same ridge, upside down.
    EXPECT_EQ(ridgeRows(true), rows);
}

TEST_F(MountainTest, CloseColoursStillGiveTwoAndTheGradientDarkensDownwards)
{
    fixedColours(0x808080, 0x808080);
    ground();
    ASSERT_EQ(paint("Mountains", 2), PaintOutcome::Painted);
    EXPECT_NE(at(10, 0), at(10, 179));
    EXPECT_GE(std::abs(lumaOfPixel(at(10, 0)) - lumaOfPixel(at(10, 179))), 50);

    fixedColours(Red, Blue);
    ground();
    ASSERT_EQ(paint("Mountains-Gradient", 2), PaintOutcome::Painted);
    const ColorLong foot = at(120, 179);
    EXPECT_LT(RedOf(foot), 255 / 2);
    EXPECT_EQ(BlueOf(foot), 0);
}

TEST_F(MountainTest, ThePenDrawsRidgesOnTheClearedPicture)
{
    set("cmbNumbArr", QStringLiteral("3"));
    ground();
    ASSERT_EQ(paint("Mountains-Pen", 6), PaintOutcome::Painted);
    // Lines only: most of the picture stays as it was, every column is crossed, and most
    // show all three ranges (a nearer range hides the lines behind it where they dip below).
    EXPECT_GT(count(Ground), 240 * 180 * 8 / 10);
    int allThree = 0;
    for (int x = 0; x < 240; ++x) {
        int crossed = 0;
        for (int y = 0; y < 180; ++y) crossed += at(x, y) != Ground;
        EXPECT_GE(crossed, 1) << x;
        allThree += crossed >= 3;
    }
    EXPECT_GT(allThree, 120);
}

TEST_F(MountainTest, EveryMountainPaintsAndStops)
{
    s.colours().RandomValues = true;
    s.colours().RandomColors = true;
    expectEveryVariantPaints({"Mountains", "Mountains-Pen", "Mountains-Gradient"}, Ground);
    expectStopKeepsAPart("Mountains", 3, Ground);
    expectStopKeepsAPart("Mountains-Gradient", 3, Ground);
    set("cmbNumbArr", QStringLiteral("5"));
    s.colours().RandomValues = false;
    expectStopKeepsAPart("Mountains-Pen", 3, Ground);
}

// ---- Wave-Grid ----

TEST_F(CentreFigures, TheWaveFamiliesKeepOnlyTheirStartsAboveAndBelowTheThresholds)
{
    size(712, 500);
    Workspace &ws = s.workspace();
    PaintContext ctx{s, ws.Bild, ws.BildUndo, ws.BildWork, readOptionVariables(s.controls(), 712, 500)};
    for (int i = 0; i < 20; ++i) {
        const WaveFamilies F = waveFamilies(ctx);
        ASSERT_FALSE(F.rows.empty());
        ASSERT_FALSE(F.columns.empty());
        for (const Wave &r : F.rows) {
            EXPECT_GT(std::cos(r.phase * Pi / 180), 0.9);
            EXPECT_NEAR(r.at(0), r.base + r.amplitude * std::cos(r.phase * Pi / 180), 1e-9);
        }
        for (const Wave &c : F.columns) EXPECT_LT(std::sin(c.phase * Pi / 180), 0.1);
        // The rows reach over the whole height and the columns over the whole width.
        EXPECT_LE(F.rows.front().base, 0 + F.rows.front().amplitude + 60);
        EXPECT_GE(F.rows.back().base, 500 - F.rows.back().amplitude - 60);
        EXPECT_GE(F.columns.back().base, 712 - F.columns.back().amplitude - 100);
    }
}

TEST_F(CentreFigures, TheWaveGridWeavesTheTwoColoursUnderBorderLines)
{
    fixedColours(Red, Blue);
    s.colours().ColorBorder = 0x000000;
    ground();
    ASSERT_EQ(paint("Wave-Grid", 3), PaintOutcome::Painted);
    // Filled: nothing of the ground is left; the cells are red or blue, the lines black, and
    // soft edges mix them; green never appears.
    EXPECT_EQ(count(Ground), 0);
    EXPECT_GT(count(Red), 240 * 180 / 5);
    EXPECT_GT(count(Blue), 240 * 180 / 5);
    EXPECT_GT(count(0x000000), 100);
    for (int y = 0; y < 180; y += 3)
        for (int x = 0; x < 240; x += 3) EXPECT_EQ(GreenOf(at(x, y)), 0) << x << ' ' << y;

    // Without filling only the lines are drawn, rows in the first colour and columns in the
    // second.
    set("XFill", QStringLiteral("0"));
    ground();
    ASSERT_EQ(paint("Wave-Grid", 3), PaintOutcome::Painted);
    EXPECT_GT(count(Ground), 240 * 180 / 2);
    EXPECT_GT(count(Red), 50);
    EXPECT_GT(count(Blue), 50);
    EXPECT_EQ(count(0x000000), 0);
}

TEST_F(CentreFigures, TheWaveGridPaintsWithTablesAndStops)
{
    expectEveryVariantPaints({"Wave-Grid"}, Ground);
    expectStopKeepsAPart("Wave-Grid", 3, Ground);
    set("XFill", QStringLiteral("0"));
    expectStopKeepsAPart("Wave-Grid", 3, Ground);
}

// ---- 70th-Rotating ----

TEST(RotatingLine, TheFourStylesTurnTheirEndsAsNamed)
{
    const double r = Pi / 180;
    const RotatingLine spoke = rotatingLine(0, 30, 100);
    EXPECT_DOUBLE_EQ(spoke.r1, 100);
    EXPECT_DOUBLE_EQ(spoke.r2, 100);
    EXPECT_NEAR(spoke.a2 - spoke.a1, Pi, 1e-12);
    const RotatingLine cardioid = rotatingLine(1, 30, 100);
    EXPECT_NEAR(cardioid.a2, 60 * r, 1e-12);
    const RotatingLine rosette = rotatingLine(2, 30, 100);
    EXPECT_DOUBLE_EQ(rosette.r2, 35);
    EXPECT_NEAR(rosette.a2, -60 * r, 1e-12);
    const RotatingLine star = rotatingLine(3, 30, 100);
    EXPECT_NEAR(star.a2 - star.a1, 144 * r, 1e-12);
}

TEST_F(CentreFigures, TheRotatingLinesStayOnTheirCircleInOneColour)
{
    fixedColours(Red, Blue);
    set("XCenter", QStringLiteral("1"));
    set("cmbNumbArr", QStringLiteral("12"));
    const double R = 0.48 * 180;
    for (uint32_t seed : {1u, 2u, 3u, 4u, 5u}) {
        ground();
        ASSERT_EQ(paint("70th-Rotating", seed), PaintOutcome::Painted);
        int outside = 0;
        for (int y = 0; y < 180; ++y)
            for (int x = 0; x < 240; ++x) {
                const ColorLong c = at(x, y);
                if (c == Ground) continue;
                EXPECT_EQ(c, Red);
                if (std::hypot(x - 120.0, y - 90.0) > R + 1.5) ++outside;
            }
        EXPECT_EQ(outside, 0) << seed;
        EXPECT_GT(count(Red), 12 * 20) << seed;
    }
}

TEST_F(CentreFigures, TheCrazyLinesRunFromTheFirstColourToTheSecond)
{
    fixedColours(Red, Blue);
    set("XCenter", QStringLiteral("1"));
    set("cmbNumbArr", QStringLiteral("30"));
    ground();
    ASSERT_EQ(paint("70th-Rotating-Crazy", 2), PaintOutcome::Painted);
    std::set<ColorLong> colours;
    for (int y = 0; y < 180; ++y)
        for (int x = 0; x < 240; ++x)
            if (at(x, y) != Ground) colours.insert(at(x, y));
    EXPECT_GT(colours.size(), 10u);
    for (ColorLong c : colours) EXPECT_EQ(GreenOf(c), 0);
}

TEST_F(CentreFigures, TheRotatingLinesPaintWithTablesAndStop)
{
    expectEveryVariantPaints({"70th-Rotating", "70th-Rotating-Crazy"}, Ground);
    s.colours().RandomValues = false;
    set("cmbNumbArr", QStringLiteral("50"));
    expectStopKeepsAPart("70th-Rotating", 10, Ground);
    expectStopKeepsAPart("70th-Rotating-Crazy", 10, Ground);
}

// ---- The circle gradients ----

TEST(CircleRamp, TheRingStepGivesTheLevelsAndTheRampRunsOutAndBack)
{
    EXPECT_EQ(ringLevels(0.05), 401);
    EXPECT_EQ(ringLevels(0.5), 5);
    EXPECT_EQ(ringLevels(0.95), 2);
    EXPECT_EQ(ringLevels(0.0), 401); // held to 0.05
    EXPECT_EQ(ringLevels(2.0), 2);   // held to 0.95
    EXPECT_DOUBLE_EQ(rampAt(0, 5), 0);
    EXPECT_DOUBLE_EQ(rampAt(1, 5), 1);
    EXPECT_DOUBLE_EQ(rampAt(2, 5), 0);
    EXPECT_DOUBLE_EQ(rampAt(0.5, 5), 0.5);
    EXPECT_DOUBLE_EQ(rampAt(1.5, 5), 0.5);
    EXPECT_DOUBLE_EQ(rampAt(-0.5, 5), 0.5);
    // Two levels: the first colour, then the second, nothing between.
    EXPECT_DOUBLE_EQ(rampAt(0.3, 2), 0);
    EXPECT_DOUBLE_EQ(rampAt(0.7, 2), 1);
}

struct CircleTest : CentreFigures {
    void SetUp() override
    {
        CentreFigures::SetUp();
        fixedColours(Red, Blue);
        set("XCenter", QStringLiteral("1"));
        set("Scrollstep", QStringLiteral("0")); // the finest ring step
        set("CMW1", QStringLiteral("1"), 0);
        set("CMW1", QStringLiteral("360"), 1);
        set("CMW1", QStringLiteral("0"), 2);
        set("XCMUsePen", QStringLiteral("0"));
    }
};

TEST_F(CircleTest, RadialRunsFromTheFirstColourAtTheHeartToTheSecondAtTheFarthestCorner)
{
    ground();
    ASSERT_EQ(paint("Radial", 1), PaintOutcome::Painted);
    EXPECT_EQ(at(120, 90), Red);
    const ColorLong corner = at(1, 1);
    EXPECT_GT(BlueOf(corner), 240);
    EXPECT_LT(RedOf(corner), 15);
    // Outwards the red falls and the blue rises, step by step.
    for (int x = 121; x < 239; ++x) {
        EXPECT_LE(RedOf(at(x, 90)), RedOf(at(x - 1, 90))) << x;
        EXPECT_GE(BlueOf(at(x, 90)), BlueOf(at(x - 1, 90))) << x;
        EXPECT_EQ(GreenOf(at(x, 90)), 0);
    }
    // Mirror images about the centre are equal.
    EXPECT_EQ(at(150, 90), at(90, 90));
    EXPECT_EQ(at(120, 60), at(120, 120));
}

TEST_F(CircleTest, TheSectorRunsCounterClockwiseFromTheStartToTheEndAngle)
{
    // Which quarters about the centre took paint: up right, up left, down left, down right.
    const auto quarters = [&] {
        std::string q;
        for (auto [x, y] : {std::pair{160, 50}, {80, 50}, {80, 130}, {160, 130}})
            q += at(x, y) != Ground ? '#' : '.';
        return q;
    };
    set("CMW1", QStringLiteral("90"), 1);
    ground();
    ASSERT_EQ(paint("Radial", 1), PaintOutcome::Painted);
    EXPECT_EQ(quarters(), "#...");
    // An end before the start wraps round: 270 to 90 is the right half.
    set("CMW1", QStringLiteral("270"), 2);
    ground();
    ASSERT_EQ(paint("Radial", 1), PaintOutcome::Painted);
    EXPECT_EQ(quarters(), "#..#");
}

TEST_F(CircleTest, SunburstRaysTurnOutAndBackPerDivision)
{
    set("CMW1", QStringLiteral("2"), 0);
    ground();
    ASSERT_EQ(paint("Sunburst", 1), PaintOutcome::Painted);
    // Two divisions: the first colour at 0 and 180 degrees, the second at 90 and 270.
    EXPECT_EQ(at(200, 90), Red);
    EXPECT_EQ(at(40, 90), Red);
    const ColorLong up = at(120, 10), down = at(120, 170);
    EXPECT_GT(BlueOf(up), 245);
    EXPECT_GT(BlueOf(down), 245);
    EXPECT_EQ(count(Ground), 0);
}

TEST_F(CircleTest, ThePenDrawsTheEdgesBetweenTheLevelsInTheBorderColour)
{
    s.colours().ColorBorder = 0x00FF00 + 1; // a colour neither ramp colour holds
    set("Scrollstep", QStringLiteral("255")); // two levels, one edge per ring
    set("CMW1", QStringLiteral("3"), 0);
    ground();
    ASSERT_EQ(paint("Radial", 1), PaintOutcome::Painted);
    EXPECT_EQ(count(0x00FF01), 0);
    set("XCMUsePen", QStringLiteral("1"));
    set("cmbPen", QStringLiteral("3"));
    ground();
    ASSERT_EQ(paint("Radial", 1), PaintOutcome::Painted);
    EXPECT_GT(count(0x00FF01), 200);
}

TEST_F(CircleTest, FourSpiralsChangeTheirColoursFromQuarterToQuarter)
{
    ground();
    ASSERT_EQ(paint("Radial-4spirals", 1), PaintOutcome::Painted);
    // The smaller discs lie on top: their hearts alternate between the two colours.
    EXPECT_EQ(at(60, 45), Blue);
    EXPECT_EQ(at(180, 45), Red);
    EXPECT_EQ(at(180, 135), Blue);
    EXPECT_EQ(at(60, 135), Red);
    EXPECT_EQ(count(Ground), 0);
}

TEST_F(CircleTest, CloseColoursStillGiveAGradient)
{
    fixedColours(0x404040, 0x404040);
    ground();
    ASSERT_EQ(paint("Radial", 1), PaintOutcome::Painted);
    EXPECT_GE(std::abs(lumaOfPixel(at(120, 90)) - lumaOfPixel(at(1, 1))), 60);
}

TEST_F(CircleTest, EveryCircleGradientPaintsAndStops)
{
    s.colours().RandomValues = true;
    s.colours().RandomColors = true;
    expectEveryVariantPaints({"Radial", "Sunburst", "Radial-4spirals"}, Ground);
    expectStopKeepsAPart("Radial-4spirals", 4, Ground);
}

TEST_F(CentreFigures, EveryTypePaintsTinyAndThinPicturesWithoutAFault)
{
    const char *const keys[] = {"Spirograph", "Mountains", "Mountains-Pen", "Mountains-Gradient",
                                "Wave-Grid", "70th-Rotating", "70th-Rotating-Crazy", "Radial",
                                "Sunburst", "Radial-4spirals"};
    for (const auto &[w, h] : {std::pair{1, 1}, {2, 3}, {7, 1}, {1, 9}, {900, 2}}) {
        size(w, h);
        for (bool randomValues : {true, false}) {
            s.colours().RandomValues = randomValues;
            for (const char *key : keys)
                EXPECT_EQ(paint(key, 3), PaintOutcome::Painted) << key << ' ' << w << 'x' << h;
        }
    }
    EXPECT_TRUE(prompter.asked().empty()) << prompter.lastText().toStdString();
}

} // namespace
