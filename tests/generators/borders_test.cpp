// The frames and cut-out forms through the Paint command: CutMode running on between paints,
// the size limits of the cut-outs, and the frames' pixels at known places.
#include "paintfixture.h"

#include "generators/borders.h"
#include "paint/sessionview.h"

using namespace tf;

namespace {

constexpr ColorLong Black = 0x000000;
constexpr ColorLong White = 0xFFFFFF;
constexpr ColorLong Blue = 0xFF0000;

struct BordersTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        fixedColours(Black, Blue);
        size(100, 100);
        set("XBorders", QStringLiteral("0"));
        set("cmbPen", QStringLiteral("1"));
    }
    void set(const char *name, const QString &value, int index = -1) { setRaw(name, value, index); }
    // A white picture under each paint, so that every check sees one paint alone.
    PaintOutcome paint(const char *key)
    {
        ground(White);
        return PaintFixture::paint(key, 5);
    }
};

TEST(CutMode, CyclesThroughThreePatterns)
{
    EXPECT_EQ(nextCutMode(0), 1);
    EXPECT_EQ(nextCutMode(1), 2);
    EXPECT_EQ(nextCutMode(2), 0);
    EXPECT_EQ(nextCutMode(7), 0);
}

TEST_F(BordersTest, ThreePaintsShowThreeNotchPatternsAndTheFourthTheFirstAgain)
{
    set("txtCutOut", QStringLiteral("20"));
    // CutMode 1: notches of 20 wholly inside, touching the top edge at x = 25 and 75.
    ASSERT_EQ(paint("Border-Cut out Squares"), PaintOutcome::Painted);
    EXPECT_EQ(s.paint().CutMode, 1);
    EXPECT_EQ(at(20, 15), Black);
    EXPECT_EQ(at(20, 22), White);
    const QImage first = s.workspace().Bild.Image();
    // CutMode 2: the smaller pattern, five notches of 10 across, centred on the edge.
    ASSERT_EQ(paint("Border-Cut out Squares"), PaintOutcome::Painted);
    EXPECT_EQ(at(10, 2), Black);
    EXPECT_EQ(at(20, 2), White);
    EXPECT_EQ(at(10, 7), White);
    // CutMode 0: notches of 20 centred on the edge, half cut off.
    ASSERT_EQ(paint("Border-Cut out Squares"), PaintOutcome::Painted);
    EXPECT_EQ(s.paint().CutMode, 0);
    EXPECT_EQ(at(20, 5), Black);
    EXPECT_EQ(at(20, 12), White);
    ASSERT_EQ(paint("Border-Cut out Squares"), PaintOutcome::Painted);
    EXPECT_EQ(s.workspace().Bild.Image(), first);
}

TEST_F(BordersTest, CutOutSizesAreHeldToTheirLimits)
{
    size(400, 400);
    set("txtCutOut", QStringLiteral("500"));
    // Circles at most 80 across: the first paint (CutMode 1) has discs of radius 40 centred
    // 40 below the top edge.
    ASSERT_EQ(paint("Border-Cut out Circles"), PaintOutcome::Painted);
    EXPECT_EQ(at(100, 75), Black);
    EXPECT_EQ(at(100, 85), White);
    // A size of 0 is one pixel: nothing but single dots along the edge.
    set("txtCutOut", QStringLiteral("0"));
    s.paint().CutMode = 2; // the next paint centres the notches on the edge
    ASSERT_EQ(paint("Border-Cut out Triangles"), PaintOutcome::Painted);
    for (int y = 2; y < 398; y += 13) EXPECT_EQ(at(200, y), White) << y;
}

TEST_F(BordersTest, OuterAndInnerFramesLieWhereTheirThicknessSays)
{
    set("txtRahmendicke", QStringLiteral("5"));
    ASSERT_EQ(paint("A-Rahmen-Standard"), PaintOutcome::Painted);
    EXPECT_EQ(at(0, 50), Black);
    EXPECT_EQ(at(4, 50), Black);
    EXPECT_EQ(at(95, 95), Black);
    EXPECT_EQ(at(5, 50), White);
    EXPECT_EQ(at(50, 50), Blue); // the centre disc in the second colour

    set("txtRahmendicke", QStringLiteral("10"));
    set("txtRahmendickeI", QStringLiteral("40"), 0);
    set("txtRahmendickeI", QStringLiteral("20"), 1);
    ASSERT_EQ(paint("I-Rahmen-Standard"), PaintOutcome::Painted);
    EXPECT_EQ(at(25, 50), Black);
    EXPECT_EQ(at(50, 35), Black);
    EXPECT_EQ(at(50, 50), White); // the opening
    EXPECT_EQ(at(10, 50), White); // outside the frame
    set("XRahmendickeITrapez", QStringLiteral("1"));
    ASSERT_EQ(paint("I-Rahmen-Standard"), PaintOutcome::Painted);
    EXPECT_NE(at(50, 35), at(50, 65)); // lit from above, dark below
    EXPECT_EQ(at(50, 50), White);
}

TEST_F(BordersTest, FormsCoverThePictureOutsideTheirOpening)
{
    set("cmbPen", QStringLiteral("2")); // an inset of 100/12 + 8 = 16
    ASSERT_EQ(paint("Forms-Cut out Squares"), PaintOutcome::Painted);
    EXPECT_EQ(at(0, 0), Black);
    EXPECT_EQ(at(20, 20), Black); // the notched corner
    EXPECT_EQ(at(40, 20), White);
    EXPECT_EQ(at(20, 40), White);
    EXPECT_EQ(at(50, 50), White);
    EXPECT_EQ(at(99, 99), Black);
    EXPECT_EQ(at(99, 50), Black);

    ASSERT_EQ(paint("Forms-Cut out Areas"), PaintOutcome::Painted);
    EXPECT_EQ(at(50, 50), White);
    EXPECT_EQ(at(30, 50), White);
    EXPECT_EQ(at(50, 5), Black);
    EXPECT_EQ(at(0, 50), Black);
}

TEST_F(BordersTest, FilmstripHasHolesInItsBands)
{
    ASSERT_EQ(paint("Border-V-Dia positive"), PaintOutcome::Painted);
    EXPECT_EQ(at(4, 4), Blue);   // a sprocket hole
    EXPECT_EQ(at(7, 4), Black);  // the film between holes
    EXPECT_EQ(at(4, 95), Blue);
    EXPECT_EQ(at(50, 50), White);
}

TEST_F(BordersTest, EveryTypePaintsOnOddSizesWithRandomValuesAndTheTable)
{
    const char *const keys[] = {"A-Rahmen-Standard", "I-Rahmen-Standard", "I-Rahmen-Random",
                                "Border-Cut out Squares", "Border-Cut out Triangles",
                                "Border-Cut out Mix", "Border-Cut out Circles",
                                "Border-V-Dia positive", "Forms-Cut out Squares",
                                "Forms-Cut out Areas", "Forms-Cut out Rects"};
    for (const auto &[w, h] : {std::pair{37, 23}, {3, 200}, {1, 1}}) {
        size(w, h);
        s.colours().RandomColors = true;
        s.colours().RandomValues = true;
        set("XAAlias", QStringLiteral("1"));
        set("XBorders", QStringLiteral("1"));
        for (const char *key : keys) {
            EXPECT_EQ(paint(key), PaintOutcome::Painted) << key << " " << w << "x" << h;
            EXPECT_TRUE(prompter.asked().empty()) << key;
        }
    }
}

} // namespace
