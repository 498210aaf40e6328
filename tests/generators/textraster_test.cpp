// The raster texts: the shapes of frames and their font sizes, the spiral's frames, and what
// the three types paint: text only inside its frame, nothing in the margin, umlauts with their
// dots, the sample for an empty text.
#include "paintfixture.h"

#include "generators/mondrianlayout.h"
#include "generators/textraster.h"
#include "paint/mondriantables.h"
#include "paint/textstate.h"
#include "core/status.h"

#include <array>
#include <set>

using namespace tf;

namespace {

constexpr ColorLong White = 0xFFFFFF;

TEST(RasterKind, ShapeDecidesKindAndFontSize)
{
    // Not above the smallest font size in either side: empty.
    EXPECT_EQ(rasterKind(4, 100, 4, SplitMix), RasterKind::Empty);
    EXPECT_EQ(rasterKind(100, 4, 4, SplitMix), RasterKind::Empty);
    EXPECT_EQ(rasterKind(12, 12, 12, SplitMix), RasterKind::Empty);
    // Sides differing by less than 8: one letter, but not in word mode.
    EXPECT_EQ(rasterKind(40, 47, 4, SplitMix), RasterKind::Q);
    EXPECT_EQ(rasterKind(40, 47, 4, SplitLetters), RasterKind::Q);
    EXPECT_EQ(rasterKind(40, 47, 4, SplitWords), RasterKind::R);
    EXPECT_EQ(rasterKind(40, 48, 4, SplitMix), RasterKind::R);
    EXPECT_EQ(rasterKind(20, 41, 4, SplitMix), RasterKind::V);
    EXPECT_EQ(rasterKind(20, 40, 4, SplitMix), RasterKind::R);
    EXPECT_EQ(rasterKind(81, 40, 4, SplitMix), RasterKind::H);

    EXPECT_DOUBLE_EQ(rasterFontSize(RasterKind::Q, 40, 44), 18);
    EXPECT_DOUBLE_EQ(rasterFontSize(RasterKind::V, 20, 100), 8);
    EXPECT_DOUBLE_EQ(rasterFontSize(RasterKind::H, 100, 30), 13);
    EXPECT_DOUBLE_EQ(rasterFontSize(RasterKind::R, 61, 45), 20);
}

TEST(SpiralFrames, CutFromEachSideInTurnAndCoverTheArea)
{
    const QRect area(10, 10, 400, 300);
    const std::vector<QRect> frames = spiralFrames(area, 2, 2, 4);
    ASSERT_GE(frames.size(), 4u);
    EXPECT_LE(frames.size(), 4u); // at most H * V frames
    // Left half, then the top half of the rest, then its right half, the rest last.
    EXPECT_EQ(frames[0], QRect(10, 10, 200, 300));
    EXPECT_EQ(frames[1], QRect(210, 10, 200, 150));
    EXPECT_EQ(frames[2], QRect(310, 160, 100, 150));
    EXPECT_EQ(frames[3], QRect(210, 160, 100, 150));

    // Many turns: the frames never overlap and cover the area exactly; the cutting stops
    // before a strip would be thinner than the smallest side.
    const std::vector<QRect> many = spiralFrames(area, 3, 5, 6);
    long long sum = 0;
    for (size_t i = 0; i < many.size(); ++i) {
        EXPECT_TRUE(area.contains(many[i]));
        sum += 1LL * many[i].width() * many[i].height();
        for (size_t j = i + 1; j < many.size(); ++j) EXPECT_FALSE(many[i].intersects(many[j]));
    }
    EXPECT_EQ(sum, 400LL * 300);
    EXPECT_LE(many.size(), 15u);
    for (size_t i = 0; i + 1 < many.size(); ++i)
        EXPECT_GE(std::min(many[i].width(), many[i].height()), 6);
}

TEST(RasterText, LettersAndWordsGoOnFromOnePlace)
{
    RasterText t(QStringList{QStringLiteral("Öl"), QStringLiteral("Fuß"), QStringLiteral("Äpfel")});
    EXPECT_EQ(t.takeWord(), QStringLiteral("Öl"));
    EXPECT_EQ(t.takeLetters(2), QStringLiteral("Fu"));
    // A word after letters takes the rest of the word they broke into.
    EXPECT_EQ(t.peekWord(), QStringLiteral("ß"));
    EXPECT_EQ(t.takeWord(), QStringLiteral("ß"));
    EXPECT_EQ(t.takeWord(), QStringLiteral("Äpfel"));
    // At the end the text starts again, letters without blanks.
    EXPECT_EQ(t.takeLetters(4), QStringLiteral("ÖlFu"));
    t.giveBack(3);
    EXPECT_EQ(t.takeWord(), QStringLiteral("l"));
    t.giveBack(2);
    EXPECT_EQ(t.takeLetters(12), QStringLiteral("ÖlFußÄpfelÖl"));
}

struct RasterPaintTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(400, 300);
        ground(White);
        s.colours().RandomColors = false;
        s.colours().RandomValues = false;
        set("XFntAntiAlias", QStringLiteral("0"));
        set("XOrthoT1", QStringLiteral("0"), 3); // no frame lines: only text is ink
    }
    bool ink(int x, int y) { return (image().pixel(x, y) & 0xFFFFFF) != 0xFFFFFF; }
    QRect inkWithin(const QRect &r) { return boxOfOther(White, r); }
    // The colours of the ink inside `r`.
    std::set<QRgb> coloursWithin(const QRect &r)
    {
        std::set<QRgb> out;
        for (int y = r.top(); y <= r.bottom(); ++y)
            for (int x = r.left(); x <= r.right(); ++x)
                if (ink(x, y)) out.insert(image().pixel(x, y) & 0xFFFFFF);
        return out;
    }
};

TEST_F(RasterPaintTest, MondrianTextStaysInsideItsFramesAndOutOfTheMargin)
{
    set("txtOrthoT1", QStringLiteral("4"), 0);
    set("txtOrthoT1", QStringLiteral("3"), 1);
    set("txtOrthoT1", QStringLiteral("20"), 2);
    set("txtOrthoIn", QStringLiteral("Größe Übermaß Äpfel Öl Füße"));
    for (uint32_t seed : {1u, 2u, 3u}) {
        ground(White);
        ASSERT_EQ(paint("TEXT-Mondrian-Raster", seed), PaintOutcome::Painted);
        // The margin stays as it was.
        for (int x = 0; x < 400; ++x)
            for (int y : {0, 19, 281, 299}) ASSERT_FALSE(ink(x, y)) << x << "," << y;
        for (int y = 0; y < 300; ++y)
            for (int x : {0, 19, 381, 399}) ASSERT_FALSE(ink(x, y)) << x << "," << y;
        // Each frame holds the text of one colour, so no frame's text ran into another.
        const std::vector<MondrianFrame> frames = mondrianFrames(s.mondrian());
        ASSERT_GE(frames.size(), 12u);
        int inked = 0;
        for (const MondrianFrame &f : frames) {
            if (f.right <= f.left || f.bottom <= f.top) continue;
            const QRect r(QPoint(f.left + 20, f.top + 20), QPoint(f.right + 19, f.bottom + 19));
            EXPECT_LE(coloursWithin(r).size(), 1u) << seed;
            if (!inkWithin(r).isEmpty()) ++inked;
        }
        EXPECT_GE(inked, 10) << seed;
    }
}

TEST_F(RasterPaintTest, SimpleRasterFillsEveryCellCentred)
{
    set("txtOrthoT1", QStringLiteral("4"), 0);
    set("txtOrthoT1", QStringLiteral("3"), 1);
    set("cmbOrthoT1_Split", QStringLiteral("1"));
    set("txtOrthoIn", QStringLiteral("ABCDEFGHIJKL"));
    ASSERT_EQ(paint("TEXT-Simple-Raster"), PaintOutcome::Painted);
    for (int c = 0; c < 4; ++c)
        for (int r = 0; r < 3; ++r) {
            const QRect cell(c * 100, r * 100, 100, 100);
            const QRect box = inkWithin(cell);
            ASSERT_FALSE(box.isEmpty()) << c << "," << r;
            EXPECT_LE(coloursWithin(cell).size(), 1u);
            // The letter's ink sits in the middle of its cell and is large.
            EXPECT_NEAR(box.center().x(), cell.center().x(), 3);
            EXPECT_NEAR(box.center().y(), cell.center().y(), 3);
            EXPECT_GE(std::max(box.width(), box.height()), 30);
        }
}

TEST_F(RasterPaintTest, UmlautsPaintWithTheirDots)
{
    // The same cell with "A" and with "Ä": the umlaut's ink reaches higher.
    set("txtOrthoT1", QStringLiteral("2"), 0);
    set("txtOrthoT1", QStringLiteral("2"), 1);
    set("cmbOrthoT1_Split", QStringLiteral("1"));
    size(200, 200);
    set("txtOrthoIn", QStringLiteral("A"));
    ASSERT_EQ(paint("TEXT-Simple-Raster", 4), PaintOutcome::Painted);
    const QRect plain = inkWithin(QRect(0, 0, 100, 100));
    ground(White);
    set("txtOrthoIn", QStringLiteral("Ä"));
    ASSERT_EQ(paint("TEXT-Simple-Raster", 4), PaintOutcome::Painted);
    const QRect umlaut = inkWithin(QRect(0, 0, 100, 100));
    ASSERT_FALSE(plain.isEmpty());
    ASSERT_FALSE(umlaut.isEmpty());
    // Same seed, so the same turn: the dots add to the letter's ink box.
    EXPECT_GT(umlaut.width() * umlaut.height(), plain.width() * plain.height() * 11 / 10);
}

TEST_F(RasterPaintTest, SpiralAndEmptyTextPaintTheSample)
{
    set("txtOrthoIn", QString());
    set("txtOrthoT1", QStringLiteral("3"), 0);
    set("txtOrthoT1", QStringLiteral("3"), 1);
    ASSERT_EQ(paint("TEXT-Spiral-Raster"), PaintOutcome::Painted);
    // The first strip is the left third, and it holds text.
    EXPECT_FALSE(inkWithin(QRect(0, 0, 133, 300)).isEmpty());
    EXPECT_FALSE(inkWithin(QRect(133, 0, 267, 300)).isEmpty());
    for (const QRect &f : spiralFrames(QRect(0, 0, 400, 300), 3, 3, 4))
        EXPECT_LE(coloursWithin(f).size(), 1u);
}

TEST_F(RasterPaintTest, BlanksOnlyPaintTheSample)
{
    set("txtOrthoIn", QStringLiteral("  \n\t "));
    ASSERT_EQ(paint("TEXT-Simple-Raster"), PaintOutcome::Painted);
    EXPECT_FALSE(inkWithin(QRect(0, 0, 400, 300)).isEmpty());
}

TEST_F(RasterPaintTest, FrameLinesOutlineTheGrid)
{
    set("XOrthoT1", QStringLiteral("1"), 3);
    s.colours().ColorBorder = 0x000000;
    set("txtOrthoT1", QStringLiteral("4"), 0);
    set("txtOrthoT1", QStringLiteral("3"), 1);
    ASSERT_EQ(paint("TEXT-Simple-Raster"), PaintOutcome::Painted);
    // The picture's edge and the lines between the cells.
    for (int y = 0; y < 300; y += 7) {
        EXPECT_EQ(image().pixel(0, y) & 0xFFFFFF, 0u);
        EXPECT_EQ(image().pixel(399, y) & 0xFFFFFF, 0u);
    }
    for (int x = 0; x < 400; x += 7) EXPECT_EQ(image().pixel(x, 299) & 0xFFFFFF, 0u);
}

} // namespace

namespace {

TEST_F(RasterPaintTest, MixedFontsNameTheFirstInTheStatusBar)
{
    RecordingStatus status;
    s.setStatus(&status);
    set("XText_Mixfonts", QStringLiteral("1"));
    set("txtOrthoIn", QStringLiteral("Mischung"));
    ASSERT_EQ(paint("TEXT-Simple-Raster"), PaintOutcome::Painted);
    const QString first = status.panelText(sbrFont);
    ASSERT_TRUE(first.startsWith(QStringLiteral("#1 "))) << first.toStdString();
    EXPECT_TRUE(s.text().FontList.contains(first.mid(3)));

    set("XText_Mixfonts", QStringLiteral("0"));
    ASSERT_EQ(paint("TEXT-Simple-Raster"), PaintOutcome::Painted);
    EXPECT_TRUE(status.panelText(sbrFont).isEmpty());
    s.setStatus(nullptr);
}

} // namespace

namespace {

std::vector<std::array<int32_t, 4>> frameList(Session &s)
{
    std::vector<std::array<int32_t, 4>> out;
    for (const MondrianFrame &f : mondrianFrames(s.mondrian()))
        out.push_back({f.left, f.top, f.right, f.bottom});
    return out;
}

TEST_F(RasterPaintTest, RepaintKeepsTheFramesOfTheLastGridWhileTheyFit)
{
    set("txtOrthoT1", QStringLiteral("5"), 0);
    set("txtOrthoT1", QStringLiteral("4"), 1);
    ASSERT_EQ(paint("TEXT-Mondrian-Raster", 11), PaintOutcome::Painted);
    const auto first = frameList(s);
    s.paint().nextSeed = 12;
    ASSERT_EQ(BtnOrthoText_Repaint(s), PaintOutcome::Painted);
    EXPECT_EQ(frameList(s), first);
    // Another split count is a new set.
    set("txtOrthoT1", QStringLiteral("3"), 0);
    s.paint().nextSeed = 13;
    ASSERT_EQ(BtnOrthoText_Repaint(s), PaintOutcome::Painted);
    EXPECT_EQ(s.mondrian().MondrianHSplits, 3);
    // A paint with the Paint button always lays new frames; the Mondrian type's repaint never
    // takes the text grid's frames as its own.
    EXPECT_EQ(s.mondrian().MondrianLastType, -1);
}

} // namespace
