// The drawn types, the curve family, the records, the tiles and the matrix through the Paint
// command: the edge cases of their counts and sizes, pixels at known places, and every type
// painting without a fault on odd sizes, with transparency and with the colour tables.
#include "paintfixture.h"

#include "generators/matrixrain.h"
#include "generators/polygraphics.h"
#include "generators/webtiles.h"
#include "paint/colourdialog.h"
#include "paint/sessionview.h"

using namespace tf;

namespace {

using PolyTest = PaintFixture;

constexpr ColorLong White = 0xFFFFFF;
constexpr ColorLong Red = 0x0000FF;
constexpr ColorLong Blue = 0xFF0000;

// The keys painted by this family.
const char *const polyKeys[] = {
    "Boxes-Kreisradius", "Boxes-Randomized", "Squares-Randomized", "Kacheln", "Tunnel",
    "Lines-Quarterarea", "Lines-Polygonal", "Lines-Mikado", "Bitblt-Kacheln", "Bitblt-Schmieren",
    "Filled-Triangles", "Interne Kacheln", "Poly-Elliptic", "Poly-Area", "Circles",
    "Circle-Ellipses", "Circle-Kegel", "Circle-Waves", "Soap-Bubbles", "Black Rain", "Snow",
    "Confetti", "Lissajou", "LissaBand", "Thread-Rosette", "Squares-In-Square", "Rose",
    "Rose-Crazy", "Exchange Rates", "Soundwaves", "Sinus", "Pulse", "Pulse-Sky", "Pulse-Ground",
    "Equalizer", "Horiz-Bars", "Vertic-Bars", "The Matrix", "LP-black", "LP-cut out",
    "LP-RING-cut out", "CD-standard", "CD-colored", "CD-cut out",
};

} // namespace

TEST_F(PolyTest, EveryTypePaintsOnOddSizesWithTransparencyAndWithTheColourTables)
{
    for (const auto &[w, h] : {std::pair{1, 1}, {3, 2}, {61, 37}}) {
        size(w, h);
        for (int variant = 0; variant < 4; ++variant) {
            set("ScrollTransparence", variant == 1 ? "50" : "0");
            for (const char *key : polyKeys) {
                // "Poly-Area" may switch the table off; every type starts from the variant.
                ColourState &c = s.colours();
                c.RandomValues = variant != 1;
                c.RandomColors = variant == 0;
                c.XDuotones = {variant == 2, variant == 3};
                ASSERT_EQ(paint(key, uint32_t(7 + variant)), PaintOutcome::Painted)
                    << key << " " << w << "x" << h << " variant " << variant;
                ASSERT_TRUE(prompter.asked().empty())
                    << key << ": " << prompter.asked().front().text.toStdString();
            }
        }
    }
}

TEST_F(PolyTest, BlockTilesFromValueOneExchangeTheQuartersOfThePicture)
{
    size(8, 8);
    fixedColours(0, White);
    PictureBox &b = s.workspace().Bild;
    const ColorLong quarter[4] = {RGB(10, 0, 0), RGB(20, 0, 0), RGB(30, 0, 0), RGB(40, 0, 0)};
    b.Line(0, 0, 3, 3, quarter[0], LineFlags::BF);
    b.Line(4, 0, 7, 3, quarter[1], LineFlags::BF);
    b.Line(0, 4, 3, 7, quarter[2], LineFlags::BF);
    b.Line(4, 4, 7, 7, quarter[3], LineFlags::BF);
    set("cmbNumbArr", "0");
    set("cmbKachelSize", "1");
    ASSERT_EQ(paint("Bitblt-Kacheln"), PaintOutcome::Painted);
    // Half the width: the quarters change places crosswise.
    EXPECT_EQ(at(0, 0), quarter[3]);
    EXPECT_EQ(at(7, 7), quarter[0]);
    EXPECT_EQ(at(7, 0), quarter[2]);
    EXPECT_EQ(at(0, 7), quarter[1]);

    // Four tiles a width: only the corners of two pixels move.
    set("cmbKachelSize", "4");
    ASSERT_EQ(paint("Bitblt-Kacheln"), PaintOutcome::Painted);
    EXPECT_EQ(at(0, 0), quarter[0]);
    EXPECT_EQ(at(2, 2), quarter[3]);
    EXPECT_EQ(at(3, 3), quarter[3]);
}

TEST_F(PolyTest, EqualizerKeepsThirtyBarsAndPaintsOneForNone)
{
    // The count is held to thirty, and so is the value the panel keeps.
    int32_t value = 50;
    EXPECT_EQ(equalizerBars(value), 30);
    EXPECT_EQ(value, 30);

    // The bars counted on the lowest segment row of the painted picture.
    size(300, 120);
    fixedColours(Red, White);
    s.controls().set(ControlKey{QStringLiteral("XBorders")}, QStringLiteral("0"));
    const auto barsOnRow = [&](int y) {
        int runs = 0;
        bool inside = false;
        for (int x = 0; x < 300; ++x) {
            const bool lit = at(x, y) != White;
            if (lit && !inside) ++runs;
            inside = lit;
        }
        return runs;
    };
    for (const auto &[number, bars] : {std::pair{"0", 1}, {"50", 30}, {"7", 7}}) {
        ground(White);
        set("cmbNumbArr", number);
        ASSERT_EQ(paint("Equalizer"), PaintOutcome::Painted);
        EXPECT_EQ(barsOnRow(117), bars) << number;
    }
}

TEST_F(PolyTest, CircleBoxesOfNoSizeDrawNothing)
{
    // On a picture of one pixel every box has the size 0 in both directions.
    size(1, 1);
    ground(RGB(1, 2, 3));
    s.colours().RandomColors = true;
    for (const uint32_t seed : {1u, 2u, 3u}) {
        ASSERT_EQ(paint("Boxes-Kreisradius", seed), PaintOutcome::Painted);
        EXPECT_EQ(at(0, 0), RGB(1, 2, 3));
    }
}

TEST_F(PolyTest, TheColourTableIsBuiltForTheRandomCount)
{
    size(40, 40);
    clickDuotones(s, 0, true);
    s.colours().RandomValues = true;
    ASSERT_TRUE(s.colours().XDuotones[0]);
    for (const uint32_t seed : {5u, 77u}) {
        ASSERT_EQ(paint("Boxes-Kreisradius", seed), PaintOutcome::Painted);
        Session same;
        same.seed(seed);
        const int n = int(Int(double(same.Rnd()) * 200)) + 4;
        // Cells 0..n: one column of n rows.
        EXPECT_EQ(int(s.colours().DuoColors.size()), n + 1) << seed;
    }
    // The tiles take a table of their grid: 5 x 4 tiles of 8 pixels.
    size(40, 32);
    set("cmbKachelSize", "5");
    ASSERT_EQ(paint("Kacheln"), PaintOutcome::Painted);
    EXPECT_EQ(int(s.colours().DuoColors.size()), 5 * 4 + 1);
}

TEST_F(PolyTest, TilesAreChequeredInTheTwoColoursWithoutRandomColours)
{
    size(8, 8);
    fixedColours(Red, Blue);
    set("cmbKachelSize", "4");
    s.controls().set(ControlKey{QStringLiteral("XBorders")}, QStringLiteral("0"));
    ASSERT_EQ(paint("Kacheln"), PaintOutcome::Painted);
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 8; ++x)
            ASSERT_EQ(at(x, y), ((x / 2 + y / 2) % 2 == 0) ? Red : Blue) << x << "," << y;
}

TEST_F(PolyTest, SquaresRandomizedWithACountOfOneDrawNothing)
{
    size(50, 50);
    fixedColours(Red, White);
    ground(White);
    set("cmbNumbArr", "1");
    ASSERT_EQ(paint("Squares-Randomized"), PaintOutcome::Painted);
    for (int y = 0; y < 50; y += 7)
        for (int x = 0; x < 50; x += 7) ASSERT_EQ(at(x, y), White);
}

TEST_F(PolyTest, RecordsAndRosesStayInsideTheirCircle)
{
    size(200, 100);
    fixedColours(Red, Blue);
    ground(White);
    ASSERT_EQ(paint("LP-cut out"), PaintOutcome::Painted);
    // Round the record lies the background colour; the middle is the hole, also cut out.
    for (const auto &[x, y] : {std::pair{0, 0}, {199, 99}, {100, 0}, {100, 99}, {20, 50}})
        EXPECT_EQ(at(x, y), Blue) << x << "," << y;
    EXPECT_EQ(at(100, 50), Blue);
    EXPECT_NE(at(100, 20), Blue); // the grooves
    EXPECT_EQ(at(100, 36), Red);  // the label

    ground(White);
    ASSERT_EQ(paint("LP-black"), PaintOutcome::Painted);
    EXPECT_EQ(at(0, 0), White); // the former picture shows round the record

    ground(White);
    ASSERT_EQ(paint("Rose"), PaintOutcome::Painted);
    for (int y = 0; y < 100; ++y)
        for (const int x : {0, 20, 45, 155, 180, 199})
            ASSERT_EQ(at(x, y), White) << x << "," << y;
    int drawn = 0;
    for (int x = 50; x < 150; ++x) drawn += at(x, 50) != White;
    EXPECT_GT(drawn, 2);
}

TEST_F(PolyTest, InternalTilesRepeatSeamlesslyBetweenTheTwoColours)
{
    ASSERT_TRUE(internalTilesAvailable());
    ASSERT_TRUE(findType(QStringLiteral("Interne Kacheln")).has_value());
    EXPECT_EQ(findType(QStringLiteral("Interne Kacheln"))->group, 2);
    size(300, 200);
    fixedColours(RGB(0, 0, 0), RGB(255, 255, 255));
    for (int tile = 0; tile < int(webtiles().size()); ++tile) {
        ASSERT_FALSE(webtileImage(tile).isNull()) << tile;
        set("cmbInterneKachel", QString::number(tile));
        ASSERT_EQ(paint("Interne Kacheln"), PaintOutcome::Painted);
        const QImage grey = webtileImage(tile);
        for (const auto &[x, y] : {std::pair{0, 0}, {5, 9}, {127, 127}, {60, 30}}) {
            const int g = qGray(grey.pixel(x, y));
            ASSERT_EQ(at(x, y), RGB(g, g, g)) << tile;
            ASSERT_EQ(at(x + 128, y), at(x, y)) << tile;
            ASSERT_EQ(at(x, y + 128 < 200 ? y + 128 : y), at(x, y)) << tile;
        }
    }
    // In the painting colours a grey runs from the first colour to the second.
    fixedColours(Red, Blue);
    set("cmbInterneKachel", "0");
    ASSERT_EQ(paint("Interne Kacheln"), PaintOutcome::Painted);
    const int g = qGray(webtileImage(0).pixel(3, 3));
    EXPECT_NEAR(RedOf(at(3, 3)), 255 - g, 1);
    EXPECT_NEAR(BlueOf(at(3, 3)), g, 1);
    EXPECT_EQ(GreenOf(at(3, 3)), 0);
}

namespace {
struct WindowedView : SessionView {
    int opened = 0;
    bool openMatrixWindow(int, int) override
    {
        ++opened;
        return true;
    }
};
} // namespace

TEST_F(PolyTest, TheMatrixOpensItsWindowOrPaintsOneGreenFrame)
{
    size(120, 90);
    ground(RGB(9, 9, 9));
    WindowedView view;
    s.setView(&view);
    ASSERT_EQ(paint("The Matrix"), PaintOutcome::Painted);
    EXPECT_EQ(view.opened, 1);
    EXPECT_EQ(at(60, 45), RGB(9, 9, 9)); // the picture stays as it was
    s.setView(nullptr);

    ASSERT_EQ(paint("The Matrix"), PaintOutcome::Painted);
    int black = 0, green = 0, other = 0;
    for (int y = 0; y < 90; ++y)
        for (int x = 0; x < 120; ++x) {
            const ColorLong c = at(x, y);
            if (c == 0)
                ++black;
            else if (GreenOf(c) > RedOf(c) && GreenOf(c) > BlueOf(c))
                ++green;
            else
                ++other;
        }
    EXPECT_GT(black, 120 * 90 / 2);
    EXPECT_GT(green, 100);
    EXPECT_GT(green, other * 4);
}

TEST(MatrixRain, TheSameSeedFallsTheSameWay)
{
    MatrixRain a(200, 100, 10, 5, 42), b(200, 100, 10, 5, 42), c(200, 100, 10, 5, 43);
    QImage ia(200, 100, QImage::Format_RGB32), ib = ia, ic = ia;
    for (int i = 0; i < 12; ++i) {
        a.step();
        b.step();
        c.step();
    }
    a.render(ia);
    b.render(ib);
    c.render(ic);
    EXPECT_EQ(ia, ib);
    EXPECT_NE(ia, ic);
    EXPECT_EQ(a.columns(), 21);
}
