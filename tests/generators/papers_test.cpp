// The papers and the jalousie through the Paint command: the step rule of the slats, the
// slat colours at known rows, and the ruled lines at their places.
#include "paintfixture.h"

#include "generators/papers.h"
#include "paint/sessionview.h"

using namespace tf;

namespace {

struct PapersTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        fixedColours(0x000000, 0xFFFFFF);
        size(100, 100);
        ground(0xFFFFFF);
    }
    void set(const char *name, const QString &value, int index = -1) { setRaw(name, value, index); }
    PaintOutcome paint(const char *key) { return PaintFixture::paint(key, 3); }
};

TEST(JalousieStep, ZeroTextAndTooLargeSteps)
{
    EXPECT_EQ(jalousieStep(QStringLiteral("0"), 712), 1);
    EXPECT_EQ(jalousieStep(QStringLiteral("Lamellen"), 712), 1);
    EXPECT_EQ(jalousieStep(QStringLiteral("-5"), 712), 1);
    EXPECT_EQ(jalousieStep(QString(), 712), 1);
    EXPECT_EQ(jalousieStep(QStringLiteral("12"), 712), 12);
    EXPECT_EQ(jalousieStep(QStringLiteral("5000"), 712), 712);
}

TEST_F(PapersTest, JalousieSlatsOfAZeroOrTextStepAreOneRowHigh)
{
    // Black to white: each one-row slat adds 255/256/2 to every channel.
    for (const char *step : {"0", "Lamellen", "1"}) {
        set("txtStep", QString::fromLatin1(step));
        ASSERT_EQ(paint("Jalousie"), PaintOutcome::Painted) << step;
        EXPECT_EQ(at(50, 0), 0x000000) << step;
        EXPECT_EQ(at(50, 1), 0x000000) << step; // 0.498 rounds to 0
        EXPECT_EQ(at(50, 2), 0x010101) << step;
        EXPECT_EQ(at(50, 100 - 1), RGB(49, 49, 49)) << step;
    }
}

TEST_F(PapersTest, JalousieSlatsKeepTheirColourOverTheStep)
{
    set("txtStep", QStringLiteral("10"));
    ASSERT_EQ(paint("Jalousie"), PaintOutcome::Painted);
    EXPECT_EQ(at(3, 0), at(90, 9));
    EXPECT_EQ(at(3, 10), RGB(5, 5, 5)); // 10 * 255/256 / 2 = 4.98
    EXPECT_NE(at(3, 9), at(3, 10));
}

TEST_F(PapersTest, JalousieFourColoursAndDiagonalPaintTheWholePicture)
{
    s.colours().RandomColors = true;
    set("XJalousieG", QStringLiteral("1"), 0);
    set("XJalousieG", QStringLiteral("1"), 1);
    set("txtStep", QStringLiteral("7"));
    ASSERT_EQ(paint("Jalousie"), PaintOutcome::Painted);
    // Leaning slats: along a slat's top edge the colour holds, across it it changes.
    EXPECT_EQ(at(10, 50), at(20, 40));
    EXPECT_EQ(at(60, 50), at(70, 40));
    EXPECT_NE(at(10, 50), at(60, 50)); // the second pair on the right half
}

TEST_F(PapersTest, RuledLinesStaffsAndSquaresLieAtTheirDistance)
{
    set("cmbNumbArr", QStringLiteral("4"));
    set("XCenter", QStringLiteral("1"));
    set("XAAlias", QStringLiteral("0"));
    set("scrollPaperAngle", QStringLiteral("0"));
    ASSERT_EQ(paint("PAP-Lines"), PaintOutcome::Painted);
    EXPECT_EQ(at(10, 50), 0x000000);
    EXPECT_EQ(at(10, 25), 0x000000);
    EXPECT_EQ(at(10, 60), 0xFFFFFF);
    EXPECT_EQ(at(50, 10), 0xFFFFFF);

    ASSERT_EQ(paint("PAP-Karo"), PaintOutcome::Painted);
    EXPECT_EQ(at(50, 10), 0x000000);
    EXPECT_EQ(at(25, 60), 0x000000);
    EXPECT_EQ(at(60, 60), 0xFFFFFF);

    // Staves: five lines ten rows apart from the centre down, three left out above it.
    set("cmbNumbArr", QStringLiteral("10"));
    ASSERT_EQ(paint("PAP-Notes"), PaintOutcome::Painted);
    for (int y : {10, 50, 60, 90}) EXPECT_EQ(at(5, y), 0x000000) << y;
    for (int y : {20, 30, 40, 55}) EXPECT_EQ(at(5, y), 0xFFFFFF) << y;
}

TEST_F(PapersTest, TurnedLinesCrossTheWholePicture)
{
    set("cmbNumbArr", QStringLiteral("5"));
    set("scrollPaperAngle", QStringLiteral("45"));
    ASSERT_EQ(paint("PAP-Karo"), PaintOutcome::Painted);
    // With lines every 20 pixels at 45 degrees, no 30 x 30 corner stays empty.
    for (const auto &[x0, y0] : {std::pair{0, 0}, {70, 0}, {0, 70}, {70, 70}}) {
        bool inked = false;
        for (int y = y0; y < y0 + 30 && !inked; ++y)
            for (int x = x0; x < x0 + 30 && !inked; ++x) inked = at(x, y) == 0x000000;
        EXPECT_TRUE(inked) << x0 << "," << y0;
    }
}

} // namespace
