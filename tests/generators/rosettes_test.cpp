// The figures around a centre through the Paint command: Stop in the middle of a rosette, the
// radii that are never 0 or less, and every variant painting with the colour tables.
#include "paintfixture.h"

#include "core/picturebox.h"
#include "core/prompter.h"
#include "core/yield.h"
#include "generators/painters.h"
#include "generators/rosettes.h"
#include "paint/catalogue.h"
#include "paint/colourstate.h"
#include "paint/grafdialog.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/session.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {

constexpr ColorLong Ground = 0x00FF00;

// Answers "stop" from its n-th call on, as a window whose Stop was clicked.
class StopAfter : public YieldHook {
public:
    explicit StopAfter(int n) : m_n(n) {}
    bool yield() override { return ++calls >= m_n; }
    int calls = 0;

private:
    int m_n;
};

// Logs every caption the Paint button shows.
class CaptionLog : public GrafDialogView {
public:
    explicit CaptionLog(const GrafDialogState &d) : m_d(d) {}
    void grafDialogChanged(GrafDialogState::Change c) override
    {
        if (c == GrafDialogState::Change::Caption) captions.push_back(m_d.BtnPaintCaption());
    }
    std::vector<QString> captions;

private:
    const GrafDialogState &m_d;
};

struct RosetteTest : PaintFixture {
    void SetUp() override
    {
        PaintFixture::SetUp();
        size(301, 207);
    }
    void ground() { PaintFixture::ground(Ground); }
    int changedPixels()
    {
        const PictureBox &b = s.workspace().Bild;
        int n = 0;
        for (int y = 0; y < b.Height(); ++y)
            for (int x = 0; x < b.Width(); ++x) n += b.Point(x, y) != Ground;
        return n;
    }
};

const char *const rosetteKeys[] = {"Rosetta", "Rosetta-Pixelized", "Rosetta-Crazy",
                                   "Rosetta-Pixelized-Crazy", "Spiral", "Twister"};

TEST(RosetteRadiiTest, NeverZeroOrLess)
{
    // Every r of the first range, with the second range's ends and every cut of s.
    for (int i = 0; i < 21; ++i)
        for (double second : {0.0, 0.999})
            for (int j = 0; j < 9; ++j) {
                const RosetteRadii rr = rosetteRadii((i + 0.5) / 21, second, (j + 0.5) / 9);
                EXPECT_GT(rr.r, 0) << i;
                EXPECT_GT(rr.s, 0) << i << ' ' << j;
            }
    // A draw of r = 0 takes the second range: 50 at its low end, 150 at its top.
    EXPECT_EQ(rosetteRadii(10.5 / 21, 0.0, 0.0).r, 50);
    EXPECT_EQ(rosetteRadii(10.5 / 21, 0.999, 0.0).r, 150);
    // r = 100 cut by 80 leaves 20; r = 50 cut by 80 would be below 0 and gives 200 - 50.
    EXPECT_EQ(rosetteRadii(0.999, 0.0, 0.999).s, 20);
    EXPECT_EQ(rosetteRadii(0.0, 0.0, 0.999).s, 150);
}

TEST_F(RosetteTest, EveryVariantPaintsWithAndWithoutTheColourTable)
{
    ground();
    for (bool table : {false, true}) {
        s.colours().XDuotones[0] = table;
        for (const char *key : rosetteKeys) {
            for (uint32_t seed : {1u, 7u, 99u}) {
                ground();
                ASSERT_EQ(paint(key, seed), PaintOutcome::Painted) << key;
                EXPECT_GT(changedPixels(), 0) << key;
            }
        }
    }
}

TEST_F(RosetteTest, StopLeavesWhatIsPaintedAndShowsTheCaptions)
{
    s.colours().RandomColors = false;
    s.colours().ColorFore = 0x0000FF;
    ground();
    ASSERT_EQ(paint("Rosetta", 5), PaintOutcome::Painted);
    const int whole = changedPixels();
    // The paint became the persistent picture: lay the plain ground again.
    ground();

    CaptionLog log(s.paint().dialog);
    s.paint().dialog.setView(&log);
    StopAfter stop(6);
    s.setYieldHook(&stop);
    ASSERT_EQ(paint("Rosetta", 5), PaintOutcome::Painted);
    s.setYieldHook(nullptr);
    s.paint().dialog.setView(nullptr);

    // The driver yields once before the painter, then the rosette after each circle: it
    // ends at the fifth circle, with those circles on the picture.
    EXPECT_EQ(stop.calls, 6);
    const int part = changedPixels();
    EXPECT_GT(part, 0);
    EXPECT_LT(part, whole);
    ASSERT_GE(log.captions.size(), 3u);
    EXPECT_EQ(log.captions[log.captions.size() - 2], QStringLiteral("Stopped - Wait!"));
    EXPECT_EQ(log.captions.back(), QStringLiteral("Paint <F5>"));
    EXPECT_EQ(log.captions.front(), QStringLiteral("STO&PP !"));
}

} // namespace
