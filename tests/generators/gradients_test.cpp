// The gradient group through the Paint command: colours at known points, the pen and stripe
// rule, the Chromo band, the crazy bands' bounce, the per-pixel sets and the filtered ones.
#include "paintfixture.h"

#include "core/random.h"
#include "generators/gradients.h"
#include "paint/colourdialog.h"

using namespace tf;

namespace {

using GradientTest = PaintFixture;

constexpr ColorLong White = 0xFFFFFF;

} // namespace

TEST_F(GradientTest, SimpleGradientsStartExactlyOnTheStartColourAndStepEvenlyToTheEnd)
{
    size(5, 4);
    fixedColours(RGB(0, 250, 10), RGB(250, 0, 10));
    ASSERT_EQ(paint("H-Gradient"), PaintOutcome::Painted);
    // n = 5: steps of 50 per column, columns alike from top to bottom.
    for (int x = 0; x < 5; ++x)
        for (int y = 0; y < 4; ++y) EXPECT_EQ(at(x, y), RGB(50 * x, 250 - 50 * x, 10)) << x;

    ASSERT_EQ(paint("V-Gradient"), PaintOutcome::Painted);
    // n = 4: 62.5 per row, rounded half to even.
    const int red[] = {0, 62, 125, 188};
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(at(x, y), RGB(red[y], 250 - red[y], 10)) << y;

    // Equal colours give a plain picture.
    fixedColours(RGB(40, 80, 120), RGB(40, 80, 120));
    for (const char *key : {"H-Gradient", "V-Gradient"}) {
        ASSERT_EQ(paint(key), PaintOutcome::Painted);
        EXPECT_EQ(count(RGB(40, 80, 120)), 5 * 4) << key;
    }
}

TEST_F(GradientTest, TheLastStepOfASimpleGradientReachesTheEndColourExactly)
{
    // The step k = n lies just beyond the picture; on a picture one pixel larger it is the
    // last column, and the single-precision step lands on the end colour.
    for (const int n : {3, 7, 11, 255, 712}) {
        size(n + 1, 1);
        fixedColours(RGB(3, 200, 0), RGB(254, 1, 77));
        ASSERT_EQ(paint("H-Gradient"), PaintOutcome::Painted);
        EXPECT_EQ(at(0, 0), RGB(3, 200, 0)) << n;
        const ColorLong last = at(n, 0);
        // The end is reached over n + 1 columns: the step is |d| / (n + 1), so the last
        // column is the end colour less one step at most.
        EXPECT_NEAR(RedOf(last), 254 - 251.0 / (n + 1), 0.51) << n;
    }
}

TEST_F(GradientTest, AbovePenSixteenTheStripeStaysSixteenWideButThePeriodGrows)
{
    size(120, 3);
    fixedColours(RGB(0, 0, 0), RGB(0, 0, 0));
    const auto stripes = [&] {
        // The painted columns and their run lengths from the left.
        std::vector<int> runs;
        int run = 0;
        for (int x = 0; x < 120; ++x) {
            if (at(x, 1) != White) {
                ++run;
            } else if (run > 0) {
                runs.push_back(run);
                run = 0;
            }
        }
        if (run > 0) runs.push_back(run);
        return runs;
    };
    set("cmbPen", QStringLiteral("20"));
    ASSERT_EQ(paint("H-Gradient"), PaintOutcome::Painted);
    // Lines at 0, 40, 80 and 120: those at the edges are cut in half.
    std::vector<int> runs = stripes();
    ASSERT_EQ(runs.size(), 4u);
    EXPECT_EQ(at(40, 1), 0);
    EXPECT_EQ(at(20, 1), White);
    EXPECT_EQ(at(60, 1), White);
    // A 16-wide pen against a period of 40: the stripes are narrower than their gaps.
    EXPECT_LE(runs[1], 17);
    EXPECT_GE(40 - runs[1], 23);

    // The gaps show the former picture: start again from a white one.
    s.workspace().Bild.setPicture(QImage());
    set("cmbPen", QStringLiteral("10"));
    ASSERT_EQ(paint("H-Gradient"), PaintOutcome::Painted);
    runs = stripes();
    // Lines every 20: stripe and gap share the period.
    ASSERT_GE(runs.size(), 5u);
    EXPECT_NEAR(runs[2], 10, 1);
    EXPECT_EQ(at(40, 1), 0);
    EXPECT_EQ(at(50, 1), White);
}

TEST_F(GradientTest, ChromoAtZeroPercentPaintsOneLineOfTheStartColour)
{
    size(6, 5);
    fixedColours(RGB(9, 8, 7), RGB(200, 200, 200));
    set("scrollProzChromo", QStringLiteral("0"));
    set("cmbOrientation", QStringLiteral("0"));
    ASSERT_EQ(paint("Chromo-Steps"), PaintOutcome::Painted);
    for (int x = 0; x < 6; ++x) EXPECT_EQ(at(x, 0), RGB(9, 8, 7));
    for (int y = 1; y < 5; ++y)
        for (int x = 0; x < 6; ++x) EXPECT_EQ(at(x, y), White);
}

TEST_F(GradientTest, ChromoPaintsItsBandFromTheSideTheOrientationNames)
{
    size(10, 10);
    fixedColours(RGB(0, 0, 0), RGB(250, 250, 250));
    set("scrollProzChromo", QStringLiteral("50"));
    set("cmbOrientation", QStringLiteral("3")); // from the right
    ASSERT_EQ(paint("Chromo-Steps"), PaintOutcome::Painted);
    // x from 10 down to fx = 5; k = 10 - x; step 250 / 5 = 50.
    EXPECT_EQ(at(9, 3), RGB(50, 50, 50));
    EXPECT_EQ(at(5, 3), RGB(250, 250, 250));
    EXPECT_EQ(at(4, 3), White);
    EXPECT_EQ(at(0, 3), White);
}

TEST_F(GradientTest, ASteepBandWithEqualColoursBouncesAtZeroAndTwoHundredFiftyFive)
{
    PictureBox pic(QStringLiteral("band"), 3, 6);
    pic.setAutoRedraw(true);
    Random rnd;
    const uint32_t before = rnd.state();
    Draw_Band(pic, rnd, 1, 1, 255, RGB(0, 0, 0), RGB(0, 0, 0));
    // Equal colours draw no random step: min(256, 200) for every channel.
    EXPECT_EQ(rnd.state(), before);
    const int grey[] = {0, 200, 255, 55, 0, 200};
    for (int y = 0; y < 6; ++y) EXPECT_EQ(pic.Point(1, y), RGB(grey[y], grey[y], grey[y])) << y;
}

TEST_F(GradientTest, WithoutRandomValuesTheBandTakesPenAndStepsFromTheDialogAtLeastOne)
{
    size(4, 8);
    fixedColours(RGB(10, 10, 10), RGB(10, 10, 10));
    set("Scrollstep", QStringLiteral("0"));
    set("cmbPen", QStringLiteral("2"));
    ASSERT_EQ(paint("H-GradientCrazy"), PaintOutcome::Painted);
    // Steps 0 is raised to 1, so each line moves by min(2, 200) = 2; lines every 2 rows.
    EXPECT_EQ(at(2, 0), RGB(10, 10, 10));
    EXPECT_EQ(at(2, 2), RGB(12, 12, 12));
    EXPECT_EQ(at(2, 4), RGB(14, 14, 14));
}

TEST_F(GradientTest, FixedFourSquaresRunFromTheEdgesToTheCentreInAlternateDirections)
{
    size(20, 20);
    fixedColours(RGB(0, 0, 200), RGB(200, 100, 0));
    ASSERT_EQ(paint("Fixed 4 squares"), PaintOutcome::Painted);
    // Upper left and lower right from the start colour at the edge, the others from the end.
    const ColorLong ul = at(3, 0), ur = at(16, 0), ll = at(3, 19), lr = at(16, 19);
    EXPECT_EQ(ul, lr);
    EXPECT_EQ(ur, ll);
    EXPECT_LT(RedOf(ul), 30);
    EXPECT_GT(RedOf(ur), 170);
    // Near the centre the ramps meet their other ends.
    EXPECT_GT(RedOf(at(3, 9)), 170);
    EXPECT_LT(RedOf(at(16, 9)), 30);
}

TEST_F(GradientTest, TheSameSeedGivesTheSameBytesAndTheRandomSetsDiffer)
{
    size(40, 30);
    for (const char *key : {"Random Lines", "Random Noise", "Neon vertical"}) {
        ASSERT_EQ(paint(key, 5), PaintOutcome::Painted);
        const QImage first = image().copy();
        ASSERT_EQ(paint(key, 5), PaintOutcome::Painted);
        EXPECT_EQ(image(), first) << key;
    }
    ASSERT_EQ(paint("Random Lines", 5), PaintOutcome::Painted);
    const QImage lines = image().copy();
    ASSERT_EQ(paint("Random Noise", 5), PaintOutcome::Painted);
    EXPECT_NE(image(), lines);
}

TEST_F(GradientTest, EveryGradientTypePaintsWithRandomAndChosenColoursTransparencyAndDuotones)
{
    size(24, 18);
    // Every type of the group paints.
    for (const CatalogueRow &row : groupRows(5)) {
        if (row.isSeparator()) continue;
        const char *k = row.key;
        s.colours().RandomColors = true;
        s.colours().RandomValues = true;
        s.colours().DuoActive = false;
        set("ScrollTransparence", QStringLiteral("0"));
        ASSERT_EQ(paint(k, 3), PaintOutcome::Painted) << k;
        // Half transparent over that picture.
        set("ScrollTransparence", QStringLiteral("50"));
        ASSERT_EQ(paint(k, 4), PaintOutcome::Painted) << k;

        fixedColours(RGB(20, 40, 200), RGB(250, 220, 10));
        set("ScrollTransparence", QStringLiteral("0"));
        ASSERT_EQ(paint(k, 3), PaintOutcome::Painted) << k;

        // A colour table from a random scheme.
        clickDuotones(s, 0, true);
        ASSERT_TRUE(s.colours().DuoActive);
        ASSERT_EQ(paint(k, 3), PaintOutcome::Painted) << k;
        clickDuotones(s, 0, false);
        EXPECT_TRUE(prompter.asked().empty()) << k;
    }
}

TEST_F(GradientTest, UnderAColourTableSimpleGradientsTakeTheTablesColoursButBandsDoNot)
{
    size(8, 4);
    fixedColours(RGB(1, 1, 1), RGB(2, 2, 2));
    s.colours().DuoActive = true;
    s.colours().DuoColors = {RGB(255, 0, 0), RGB(255, 0, 0)};
    ASSERT_EQ(paint("H-Gradient"), PaintOutcome::Painted);
    EXPECT_EQ(at(0, 0), RGB(255, 0, 0));
    EXPECT_EQ(at(7, 3), RGB(255, 0, 0));
    // The crazy bands take two random colours instead.
    set("Scrollstep", QStringLiteral("0"));
    ASSERT_EQ(paint("V-GradientCrazy"), PaintOutcome::Painted);
    EXPECT_NE(at(0, 0), RGB(255, 0, 0));
    EXPECT_NE(at(0, 0), RGB(1, 1, 1));
}

TEST_F(GradientTest, AFrameGradientFadesFromTheEdgeIntoTheUntouchedPicture)
{
    size(30, 20);
    fixedColours(RGB(200, 0, 0), RGB(0, 0, 200));
    set("optGColorTyp", QStringLiteral("1"));
    set("scrollGColorProz", QStringLiteral("100"));
    set("txtGColorBorder", QStringLiteral("5"), 0);
    set("txtGColorBorder", QStringLiteral("4"), 1);
    ASSERT_EQ(paint("Framegradient-Transp"), PaintOutcome::Painted);
    // The edge takes the start colour whole; the inside keeps the white picture.
    EXPECT_EQ(at(0, 10), RGB(200, 0, 0));
    EXPECT_EQ(at(15, 0), RGB(200, 0, 0));
    EXPECT_EQ(at(15, 10), White);
    EXPECT_EQ(at(6, 10), White);
    const ColorLong mid = at(2, 10);
    EXPECT_NE(mid, White);
    EXPECT_NE(mid, RGB(200, 0, 0));

    // A passepartout of 2 pixels takes the start colour whole, the frame lies inside it.
    set("chkGPassepartout", QStringLiteral("1"));
    set("txtGColorBorder", QStringLiteral("2"), 2);
    ASSERT_EQ(paint("Framegradient-Transp"), PaintOutcome::Painted);
    EXPECT_EQ(at(1, 10), RGB(200, 0, 0));
    EXPECT_EQ(at(2, 10), RGB(200, 0, 0));
    EXPECT_NE(at(4, 10), RGB(200, 0, 0));
    EXPECT_EQ(at(15, 10), White);
}

TEST_F(GradientTest, AWholeCoveringLinearFrameGradientRunsBetweenTheTwoColours)
{
    size(11, 3);
    fixedColours(RGB(0, 0, 0), RGB(250, 250, 250));
    set("optGColorTyp", QStringLiteral("0"));
    set("optGColorVer", QStringLiteral("0"));
    set("chkGColorHV", QStringLiteral("0"), 1); // straight ramp
    set("scrollGColorProz", QStringLiteral("100"));
    ASSERT_EQ(paint("Framegradient-Transp"), PaintOutcome::Painted);
    EXPECT_EQ(at(0, 1), RGB(0, 0, 0));
    EXPECT_EQ(at(5, 1), RGB(125, 125, 125));
    EXPECT_EQ(at(10, 1), RGB(250, 250, 250));
    // Swapped colours run the other way.
    set("chkGColorHV", QStringLiteral("1"), 0);
    ASSERT_EQ(paint("Framegradient-Transp"), PaintOutcome::Painted);
    EXPECT_EQ(at(0, 1), RGB(250, 250, 250));
}

TEST_F(GradientTest, FrequencyWavesLieBetweenTheirColoursAtFullOpacity)
{
    size(40, 30);
    fixedColours(RGB(0, 0, 0), RGB(0, 0, 0));
    set("scroll26FRQ", QStringLiteral("100"), 0);
    set("scroll26FRQ", QStringLiteral("3"), 1);
    for (const char *wave : {"0", "1"}) {
        set("cmb26Frequenz", QString::fromLatin1(wave));
        ASSERT_EQ(paint("Frequenzgradient-Transp"), PaintOutcome::Painted);
        // Black between black and black, laid whole over the white picture.
        for (int y = 0; y < 30; y += 7)
            for (int x = 0; x < 40; x += 9) EXPECT_EQ(at(x, y), RGB(0, 0, 0)) << wave;
    }
    fixedColours(RGB(255, 0, 0), RGB(0, 0, 255));
    set("scroll26FRQ", QStringLiteral("50"), 0);
    set("scroll26FRQ", QStringLiteral("1"), 1);
    ASSERT_EQ(paint("Frequenzgradient-Transp"), PaintOutcome::Painted);
    // The wave lies over the picture painted before, black, at half opacity: red and blue
    // share half of full light between them.
    for (int y = 0; y < 30; y += 5)
        for (int x = 0; x < 40; x += 5) {
            const ColorLong c = at(x, y);
            EXPECT_EQ(GreenOf(c), 0);
            EXPECT_NEAR(RedOf(c) + BlueOf(c), 127.5, 1.5);
        }
}
