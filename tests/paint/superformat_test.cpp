// The Superformat surfaces and their route (the coded former picture: core/keptsurface_test): a painter of the test's own fills boxes into the
// surface through LineDIB, as the Mondrian does; an allocator of the test's own refuses memory.
#include "core/language.h"
#include "paint/catalogue.h"
#include "paint/grafdialogpanel.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/superformatpaint.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

namespace {

const ColorLong Red = RGB(255, 0, 0);
const ColorLong Blue = RGB(0, 0, 255);
const ColorLong Grey = RGB(200, 200, 200);

// The colour of pixel (x, y) in memory rows.
ColorLong pixel(const cDIBSection &d, int x, int memRow)
{
    const uint8_t *p = d.view().row(memRow) + x * 3;
    return RGB(p[2], p[1], p[0]);
}

// The painter: `frames` boxes of one colour side by side, a Stop looked at after each.
struct Probe {
    int frames = 4;
    ColorLong colour = Red;
    int painted = 0;
    int seenW = 0, seenH = 0;
} g_probe;

void superBoxes(PaintContext &ctx)
{
    SuperformatPaint super(ctx);
    if (!super.begin(Grey)) return;
    g_probe.seenW = ctx.opt.W;
    g_probe.seenH = ctx.opt.H;
    cDIBSection &dib = super.surface();
    const int w = dib.dib_width() / g_probe.frames;
    for (int i = 0; i < g_probe.frames; ++i) {
        cDIBSection::LineDIB(dib, i * w, 0, i * w + w - 1, dib.dib_height() - 1, g_probe.colour,
                             QStringLiteral("BF"));
        ++g_probe.painted;
        super.progress(i + 1, g_probe.frames);
        if (super.stopRequested()) break;
    }
}

const PainterEntry testTable[] = {{"ART-MondrianSuper", superBoxes, true}};

struct Refusing : SurfaceAllocator {
    bool refuse = false;
    int asked = 0;
    bool create(cDIBSection &dib, int w, int h, ColorLong back) override
    {
        ++asked;
        if (refuse) return false;
        return dib.Create(w, h, back);
    }
};

struct ViewLog : SessionView {
    int shown = 0;
    void showSuperformat() override { ++shown; }
};

// Asks to stop at the n-th DoEvents.
struct StopAt : YieldHook {
    int at;
    int calls = 0;
    explicit StopAt(int n) : at(n) {}
    bool yield() override { return ++calls == at; }
};

struct SuperformatTest : ::testing::Test {
    struct PanelsFirst {
        PanelsFirst() { registerPaintPanels(); }
    } panels;
    QTemporaryDir temp;
    Session s;
    ScriptedPrompter prompter;
    Refusing allocator;
    ViewLog view;
    RecordingStatus status;

    void SetUp() override
    {
        g_probe = Probe{};
        s.setPainters(testTable);
        s.setPrompter(&prompter);
        s.setView(&view);
        s.setStatus(&status);
        s.workspace().setTempDir(temp.path());
        s.workspace().New_BildSize(64, 64);
        s.superformat().setAllocator(&allocator);
        setLanguage(Language::German);
    }
    void superSize(int w, int h)
    {
        s.controls().setRaw(ControlKey{QStringLiteral("txtSuperSize"), 0}, QString::number(w));
        s.controls().setRaw(ControlKey{QStringLiteral("txtSuperSize"), 1}, QString::number(h));
    }
    PaintOutcome paint(uint32_t seed = 1)
    {
        const auto where = findType(QStringLiteral("ART-MondrianSuper"));
        mn_Grafmodes(s, where->group);
        ListBoxType_Click(s, where->listIndex);
        s.paint().nextSeed = seed;
        return BtnPaint_Click(s);
    }
    cDIBSection &dib() { return s.superformat().SuperDIB; }
};

} // namespace

TEST_F(SuperformatTest, PaintsIntoTheSurfaceAtTheDialogsSizeAndHandsItToTheViewer)
{
    superSize(400, 300);
    ASSERT_EQ(paint(), PaintOutcome::Painted);
    ASSERT_TRUE(s.superformat().hasPicture());
    EXPECT_EQ(dib().dib_width(), 400);
    EXPECT_EQ(dib().dib_height(), 300);
    EXPECT_EQ(pixel(dib(), 0, 0), Red);
    EXPECT_EQ(pixel(dib(), 399, 299), Red);
    // The painter saw the Superformat size; the picture control kept its own.
    EXPECT_EQ(g_probe.seenW, 400);
    EXPECT_EQ(g_probe.seenH, 300);
    EXPECT_EQ(s.workspace().Bild.Width(), 64);
    EXPECT_EQ(view.shown, 1);
    // The command line of the paint repeats the Superformat size.
    EXPECT_EQ(s.paint().lastPaint->width, 400);
    EXPECT_EQ(s.paint().lastPaint->height, 300);
    EXPECT_EQ(status.progressMax(), 0) << "the progress bar is hidden afterwards";
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(SuperformatTest, KeepsTheSurfaceForTheSameSizeAndMakesANewOneForAnother)
{
    superSize(300, 200);
    ASSERT_EQ(paint(), PaintOutcome::Painted);
    const quintptr first = dib().hDIB();
    EXPECT_EQ(allocator.asked, 1);

    g_probe.colour = Blue;
    g_probe.frames = 2;
    ASSERT_EQ(paint(), PaintOutcome::Painted);
    EXPECT_EQ(dib().hDIB(), first);
    EXPECT_EQ(allocator.asked, 1);
    EXPECT_FALSE(s.superformat().SuperKeepDIB);

    superSize(500, 200);
    g_probe.frames = 1;
    ASSERT_EQ(paint(), PaintOutcome::Painted);
    EXPECT_EQ(allocator.asked, 2);
    EXPECT_TRUE(s.superformat().SuperKeepDIB);
    EXPECT_EQ(dib().dib_width(), 500);
    // The sizes are clamped to 128..14000.
    superSize(20, 90000);
    EXPECT_EQ(superformatSize(s.controls()), QSize(128, 14000));
}

TEST_F(SuperformatTest, UndoBringsTheFormerPictureBackAndRedoTheNewOne)
{
    superSize(300, 200);
    ASSERT_EQ(paint(), PaintOutcome::Painted); // all red
    g_probe.colour = Blue;
    g_probe.frames = 2; // a width of 150: the right half turns blue over the red
    ASSERT_EQ(paint(), PaintOutcome::Painted);
    EXPECT_EQ(pixel(dib(), 10, 10), Blue);
    ASSERT_TRUE(s.superformat().canUndo());
    const uint64_t before = s.superformat().generation();

    ASSERT_TRUE(s.superformat().undo());
    EXPECT_EQ(pixel(dib(), 10, 10), Red);
    EXPECT_EQ(pixel(dib(), 299, 199), Red);
    EXPECT_NE(s.superformat().generation(), before);
    ASSERT_TRUE(s.superformat().undo()); // Redo
    EXPECT_EQ(pixel(dib(), 10, 10), Blue);

    // Undo over a change of size brings the former size back too.
    superSize(200, 200);
    g_probe.colour = Grey;
    ASSERT_EQ(paint(), PaintOutcome::Painted);
    ASSERT_TRUE(s.superformat().undo());
    EXPECT_EQ(dib().dib_width(), 300);
    EXPECT_EQ(pixel(dib(), 10, 10), Blue);
}

TEST_F(SuperformatTest, MemoryProblemDropsBothSurfacesAndKeepsTheFormerPicture)
{
    superSize(300, 200);
    ASSERT_EQ(paint(), PaintOutcome::Painted);
    superSize(600, 200);
    allocator.refuse = true;
    g_probe.painted = 0;
    EXPECT_EQ(paint(), PaintOutcome::Painted);
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.asked()[0].text, QStringLiteral("Memory problem creating Superimage!"));
    EXPECT_EQ(prompter.asked()[0].icon, Icon::Critical);
    EXPECT_EQ(prompter.asked()[0].title, QStringLiteral("Tarvelle-Forge"));
    EXPECT_EQ(g_probe.painted, 0);
    EXPECT_FALSE(s.superformat().hasPicture());
    EXPECT_EQ(view.shown, 1) << "the viewer is not shown after the failure";
    // The picture control was not touched by the failed paint.
    EXPECT_EQ(s.workspace().Bild.Width(), 64);

    // With memory again, Undo brings the former picture back at its size.
    allocator.refuse = false;
    ASSERT_TRUE(s.superformat().undo());
    EXPECT_EQ(dib().dib_width(), 300);
    EXPECT_EQ(pixel(dib(), 150, 100), Red);
}

TEST_F(SuperformatTest, SizesBelowOneAreRefusedWithTheirMessage)
{
    superSize(0, 300);
    EXPECT_EQ(paint(), PaintOutcome::Painted);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("0 - sizes not allowed"));
    EXPECT_EQ(allocator.asked, 0);
    EXPECT_EQ(superformatPlanLabel(s.controls()), QStringLiteral("0 - sizes not allowed"));
}

TEST_F(SuperformatTest, AStopLeavesTheFramesPaintedSoFar)
{
    superSize(400, 128);
    // DoEvents: once before the painter starts, then after each frame: stop after the second.
    StopAt stop(3);
    s.setYieldHook(&stop);
    ASSERT_EQ(paint(), PaintOutcome::Painted);
    s.setYieldHook(nullptr);
    EXPECT_EQ(g_probe.painted, 2);
    EXPECT_EQ(pixel(dib(), 199, 5), Red);
    EXPECT_EQ(pixel(dib(), 200, 5), Grey) << "the rest keeps the back colour of the new surface";
    EXPECT_EQ(view.shown, 1);
}

TEST_F(SuperformatTest, ThePlanLabelNamesPixelsCentimetresAndMemory)
{
    superSize(14000, 14000);
    s.controls().setRaw(ControlKey{QStringLiteral("cmbDPI")}, QStringLiteral("300"));
    EXPECT_EQ(superformatPlanLabel(s.controls()),
              QStringLiteral("Superformat: 14000 x 14000 px = 118,5 x 118,5 cm bei 300 DPI, 588 MB"));
    setLanguage(Language::English);
    superSize(4096, 2000);
    s.controls().setRaw(ControlKey{QStringLiteral("cmbDPI")}, QStringLiteral("72"));
    EXPECT_EQ(superformatPlanLabel(s.controls()),
              QStringLiteral("Superformat: 4096 x 2000 px = 144.5 x 70.6 cm at 72 DPI, 25 MB"));
    setLanguage(Language::German);
    EXPECT_EQ(surfaceBytes(QSize(14000, 14000)), qint64(588000000));
    EXPECT_EQ(surfaceBytes(QSize(1, 1)), 4);
}
