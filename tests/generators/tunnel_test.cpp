// "Plasma": the paint, the tunnel's map and frames, and the run in the work picture.
#include "generators/plasmapaint.h"
#include "generators/tunnel.h"
#include "generators/tunnelrun.h"
#include "paintfixture.h"

#include <cmath>
#include <set>

using namespace tf;

namespace {

constexpr double PiLiteral = 3.1415926535898;

// The colour long of a pixel of a picture.
ColorLong pixelAt(const QImage &image, int x, int y) { return fromQRgb(image.pixel(x, y)); }

struct PlasmaPaint : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(160, 120);
    }
};

} // namespace

TEST(PlasmaAtan2, QuadrantsAndAxes)
{
    EXPECT_DOUBLE_EQ(Plasma_Atan2(0, 1), 0);
    EXPECT_DOUBLE_EQ(Plasma_Atan2(1, 0), PiLiteral / 2);
    EXPECT_DOUBLE_EQ(Plasma_Atan2(-1, 0), -PiLiteral / 2);
    EXPECT_DOUBLE_EQ(Plasma_Atan2(0, 0), 0);
    EXPECT_DOUBLE_EQ(Plasma_Atan2(0, -1), PiLiteral);
    EXPECT_NEAR(Plasma_Atan2(-1, -1), -3 * PiLiteral / 4, 1e-12);
    EXPECT_NEAR(Plasma_Atan2(1, -1), 3 * PiLiteral / 4, 1e-12);
    EXPECT_NEAR(Plasma_Atan2(-2, 2), -PiLiteral / 4, 1e-12);
}

TEST(Tunnel, FramesReadTheFieldThroughTheMapMovedBySpeed)
{
    const PlasmaField field = Plasma_Fill(96, 64, {2, 16, true, true}, 11);
    const Palette512 palette = Plasma_Palette(RGB(0, 0, 0), RGB(255, 200, 100), 1);
    TunnelSettings t;
    t.speed = 3;
    t.spin = true;
    t.hole = 6;
    t.cx = 40;
    t.cy = 30;
    Tunnel tunnel(field, palette, 80, 60, t);
    QImage frame(80, 60, QImage::Format_RGB32);

    // The centre lies in the hole: black. A pixel far out reads the field through the map.
    tunnel.render(frame);
    EXPECT_EQ(tunnel.mapV(40, 30), -1);
    EXPECT_EQ(frame.pixel(40, 30), 0xFF000000u);
    auto expected = [&](int x, int y) {
        const int u = (tunnel.mapU(x, y) - tunnel.offU() + 96) % 96;
        const int v = (tunnel.mapV(x, y) - tunnel.offV() + 64) % 64;
        return 0xFF000000u | palette[field.at(u, v)];
    };
    for (auto [x, y] : {std::pair{0, 0}, {79, 59}, {10, 45}, {70, 5}}) {
        ASSERT_GE(tunnel.mapV(x, y), 0);
        EXPECT_EQ(frame.pixel(x, y), expected(x, y)) << x << "," << y;
    }
    // Two frames on, both offsets have moved by 2 * speed.
    tunnel.advance(1);
    tunnel.advance(1);
    EXPECT_EQ(tunnel.offV(), 6);
    EXPECT_EQ(tunnel.offU(), 6);
    tunnel.render(frame);
    for (auto [x, y] : {std::pair{0, 0}, {79, 59}, {10, 45}})
        EXPECT_EQ(frame.pixel(x, y), expected(x, y)) << x << "," << y;
    // The offsets wrap at the field's size: 64 rows on the tunnel shows the first frame again
    // along the rows.
    tunnel.advance(64.0 / 3 - 2);
    EXPECT_EQ(tunnel.offV(), 0);

    // Every pixel outside the hole lies in the field; the map turns with the angle.
    std::set<int> columns;
    for (int y = 0; y < 60; ++y)
        for (int x = 0; x < 80; ++x) {
            if (tunnel.mapV(x, y) < 0) continue;
            ASSERT_LT(tunnel.mapU(x, y), 96);
            ASSERT_LT(tunnel.mapV(x, y), 64);
            columns.insert(tunnel.mapU(x, y));
        }
    EXPECT_GT(columns.size(), 80u);
}

TEST_F(PlasmaPaint, PaintsTheRampOfTheTwoColoursSmoothly)
{
    fixedColours(RGB(0, 0, 0), RGB(255, 255, 255));
    set("scrollPlasmaW", QStringLiteral("0"), 0);
    set("scrollPlasmaW", QStringLiteral("16"), 1);
    ASSERT_EQ(paint("Plasma", 5), PaintOutcome::Painted);
    const QImage a = s.workspace().Bild.Image();
    std::set<int> greys;
    int worst = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const ColorLong c = pixelAt(a, x, y);
            ASSERT_EQ(RedOf(c), GreenOf(c));
            ASSERT_EQ(RedOf(c), BlueOf(c));
            greys.insert(RedOf(c));
            if (x > 0) worst = std::max(worst, std::abs(RedOf(c) - RedOf(pixelAt(a, x - 1, y))));
        }
    // The whole ramp from black to white, in small steps from pixel to pixel.
    EXPECT_EQ(*greys.begin(), 0);
    EXPECT_EQ(*greys.rbegin(), 255);
    EXPECT_GT(greys.size(), 100u);
    EXPECT_LE(worst, 24);
    // The palette on show is the one painted with.
    EXPECT_EQ(s.colours().PlasmaPalette[511], 0xFFFFFFu);

    // The same seed paints the same picture; another seed another one.
    ASSERT_EQ(paint("Plasma", 5), PaintOutcome::Painted);
    EXPECT_EQ(s.workspace().Bild.Image(), a);
    ASSERT_EQ(paint("Plasma", 6), PaintOutcome::Painted);
    EXPECT_NE(s.workspace().Bild.Image(), a);
}

TEST_F(PlasmaPaint, TransparencyLaysThePlasmaOverThePicture)
{
    fixedColours(RGB(0, 0, 0), RGB(0, 0, 0)); // a black plasma
    ground(RGB(200, 100, 50));
    set("ScrollTransparence", QStringLiteral("50"));
    ASSERT_EQ(paint("Plasma", 2), PaintOutcome::Painted);
    EXPECT_EQ(at(17, 33), RGB(100, 50, 25));
}

TEST_F(PlasmaPaint, LoadedPaletteWhenAskedFor)
{
    fixedColours(RGB(0, 0, 0), RGB(255, 255, 255));
    ColourState &c = s.colours();
    c.Pal512.assign(512, 0);
    for (int i = 0; i < 512; ++i) c.Pal512[size_t(i)] = i % 2 ? 0x00FF00 : 0x0000FF; // green, blue
    c.PalFromFile = c.PalFixed = true;
    set("XPlasmas", QStringLiteral("1"), 2);
    ASSERT_EQ(paint("Plasma", 3), PaintOutcome::Painted);
    const QImage a = s.workspace().Bild.Image();
    for (int y = 0; y < a.height(); y += 7)
        for (int x = 0; x < a.width(); x += 5) {
            const ColorLong p = pixelAt(a, x, y);
            ASSERT_TRUE(p == RGB(0, 255, 0) || p == RGB(0, 0, 255)) << x << "," << y;
        }
    // Unchecked, the two colours come back.
    set("XPlasmas", QStringLiteral("0"), 2);
    ASSERT_EQ(paint("Plasma", 3), PaintOutcome::Painted);
    const ColorLong p = at(9, 9);
    EXPECT_EQ(RedOf(p), GreenOf(p));
}

TEST_F(PlasmaPaint, RandomColoursAndTablesPaintInColour)
{
    s.colours().RandomColors = true;
    ASSERT_EQ(paint("Plasma", 4), PaintOutcome::Painted);
    std::set<ColorLong> colours;
    const QImage a = s.workspace().Bild.Image();
    for (int y = 0; y < a.height(); y += 3)
        for (int x = 0; x < a.width(); x += 3) colours.insert(pixelAt(a, x, y));
    EXPECT_GT(colours.size(), 50u);

    fixedColours(RGB(255, 0, 0), RGB(0, 0, 255));
    s.colours().XDuotones = {false, true};
    s.colours().DuoActive = true;
    ASSERT_EQ(paint("Plasma", 4), PaintOutcome::Painted);
    EXPECT_NE(s.workspace().Bild.Image(), a);
}

TEST_F(PlasmaPaint, TunnelRunsUntilStopAndOthersWait)
{
    fixedColours(RGB(0, 0, 0), RGB(255, 255, 255));
    ground(RGB(10, 20, 30));
    const QImage before = s.workspace().Bild.Image();
    set("scrollPlasmaTunnelSpeed", QStringLiteral("5"));
    ASSERT_TRUE(BtnPlasmaRepaint_Click(s, 0));
    EXPECT_TRUE(s.runState().animating());
    EXPECT_TRUE(s.runState().busy());
    // A second start and a paint wait while it runs.
    EXPECT_FALSE(BtnPlasmaRepaint_Click(s, 0));
    EXPECT_EQ(Create_Polygraphics(s), PaintOutcome::Busy);

    const QImage first = s.workspace().Bild.Image();
    EXPECT_NE(first, before);
    ASSERT_TRUE(Plasma_TunnelFrame(s));
    const QImage second = s.workspace().Bild.Image();
    EXPECT_NE(second, first);
    EXPECT_EQ(s.animation().framesShown, 2);

    // Stop: the next tick ends the run with the frame on show as the picture.
    ASSERT_TRUE(BtnPlasmaRepaint_Click(s, 1));
    EXPECT_FALSE(Plasma_TunnelFrame(s));
    EXPECT_FALSE(s.runState().busy());
    EXPECT_EQ(s.workspace().Bild.Image(), second);
    EXPECT_FALSE(Plasma_TunnelFrame(s));
    ASSERT_NE(s.animation().current, nullptr); // kept for the export

    // One Undo brings back the picture before the start.
    s.workspace().Menu_UndoRedo();
    EXPECT_EQ(s.workspace().Bild.Image(), before);
}

TEST_F(PlasmaPaint, TunnelFramesLieOverThePictureAtTheTransparency)
{
    fixedColours(RGB(0, 0, 0), RGB(0, 0, 0)); // a black tunnel
    ground(RGB(200, 100, 50));
    set("ScrollTransparence", QStringLiteral("50"));
    ASSERT_TRUE(BtnPlasmaRepaint_Click(s, 0));
    EXPECT_EQ(at(20, 30), RGB(100, 50, 25));
    ASSERT_TRUE(Plasma_TunnelFrame(s));
    EXPECT_EQ(at(150, 100), RGB(100, 50, 25));
    BtnPlasmaRepaint_Click(s, 1);
    EXPECT_FALSE(Plasma_TunnelFrame(s));
    EXPECT_TRUE(s.animation().blend.empty());
}

TEST_F(PlasmaPaint, TunnelFieldWithRandomValuesIsTheDiagonal)
{
    s.colours().RandomColors = false;
    s.colours().RandomValues = true;
    s.seed(9);
    const auto tunnel = makeTunnel(s, 160, 120);
    // 200 + 32 wide, 120 + 32 high, both cut to a multiple of 8.
    EXPECT_EQ(tunnel->field().width, 232);
    EXPECT_EQ(tunnel->field().height, 152);
    EXPECT_EQ(tunnel->frameSize(), QSize(160, 120));
    set("XCenter", QStringLiteral("1"));
    const auto centred = makeTunnel(s, 160, 120);
    EXPECT_EQ(centred->field().width, 160);
    EXPECT_EQ(centred->mapV(80, 60), 0);
}
