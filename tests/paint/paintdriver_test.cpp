// The Paint command over a painter table of the test's own: a painter that draws one row per
// step and gives way before each, one that faults, and keys without a painter.
#include "core/fault.h"
#include "core/language.h"
#include "paint/grafdialogpanel.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

namespace {

const ColorLong Red = RGB(255, 0, 0);

struct Probe {
    int steps = 6;
    int rows = 0;
    std::vector<Single> rnd;
} g_probe;

void rows(PaintContext &ctx)
{
    ctx.Bild_CLEAR();
    g_probe.rnd.push_back(ctx.Rnd());
    for (int y = 0; y < g_probe.steps; ++y) {
        ctx.DoEvents();
        if (ctx.stopRequested()) return;
        ctx.XBild.Line(0, y, ctx.opt.W - 1, y, Red, LineFlags::BF);
        ++g_probe.rows;
    }
}

void faulty(PaintContext &)
{
    throw Fault(Fault::Overflow);
}

const PainterEntry testTable[] = {
    {"Backgroundcolor", rows, true},  {"Boxes-Kreisradius", rows, true},
    {"Boxes-Randomized", rows, true}, {"Squares-Randomized", rows, true},
    {"Tunnel", nullptr, true},        {"Lines-Quarterarea", rows, true},
    {"Lines-Polygonal", rows, true},  {"Lines-Mikado", faulty, true},
    {"Bitblt-Kacheln", rows, false},  {"Bitblt-Schmieren", rows, false},
};

struct PanelsFirst {
    PanelsFirst() { registerPaintPanels(); }
};

// Runs `click` at the n-th DoEvents of a paint.
struct ClickAt : YieldHook {
    int at;
    std::function<void()> click;
    int calls = 0;
    ClickAt(int n, std::function<void()> f) : at(n), click(std::move(f)) {}
    bool yield() override
    {
        if (++calls == at) click();
        return false;
    }
};

// Keeps every state the Paint button shows.
struct CaptionLog : SessionView {
    Session *s = nullptr;
    std::vector<GrafDialogState::Button> captions;
    void grafDialogChanged(GrafDialogState::Change c) override
    {
        if (c == GrafDialogState::Change::Caption)
            captions.push_back(s->paint().dialog.buttonState());
    }
};

struct PaintDriverTest : ::testing::Test {
    PanelsFirst panels;
    Session s;
    ScriptedPrompter prompter;
    RecordingStatus status;
    CaptionLog log;
    std::vector<GrafDialogState::Button> &captions = log.captions;

    void SetUp() override
    {
        s.setPainters(testTable);
        g_probe = Probe{};
        s.setPrompter(&prompter);
        s.setStatus(&status);
        s.workspace().New_BildSize(8, 10);
        log.s = &s;
        s.setView(&log);
        choose(1, 0);
    }
    void TearDown() override { setLanguage(Language::German); }
    void choose(int group, int listIndex)
    {
        mn_Grafmodes(s, group);
        ListBoxType_Click(s, listIndex);
    }
    Workspace &ws() { return s.workspace(); }
};

using B = GrafDialogState::Button;

} // namespace

TEST_F(PaintDriverTest, WithNoTypeChosenTheUserIsToldAndNothingChanges)
{
    s.paint().dialog.setListIndex(-1);
    const QImage before = ws().Bild.Image();
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::NoTypeChosen);
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Sie haben keine Grafikoption ausgewählt!"));
    EXPECT_EQ(prompter.asked().back().icon, Icon::Information);
    EXPECT_EQ(ws().Bild.Image(), before);
    EXPECT_FALSE(ws().BildChanged);
    EXPECT_FALSE(ws().commands.undo || ws().commands.save || ws().commands.print);
    EXPECT_EQ(g_probe.rnd.size(), 0u);

    setLanguage(Language::English);
    BtnPaint_Click(s);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Please select a graficoption!"));
}

TEST_F(PaintDriverTest, APaintPutsPaintBehindTheSelectionStateOfLastaction)
{
    ws().lastaction = QStringLiteral("RECTMOVED");
    ws().PicSelect.resize(3, 3);
    ws().PicSelect.setVisible(true);
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::Painted);
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECT$PAINT"));
    // The paint went on the selection.
    EXPECT_EQ(ws().PicSelect.Point(1, 1), Red);
    EXPECT_EQ(ws().Bild.Point(1, 1), RGB(255, 255, 255));

    ws().PicSelect.setVisible(false);
    BtnPaint_Click(s);
    EXPECT_EQ(ws().lastaction, QStringLiteral("$PAINT"));

    ws().picSelectC.setVisible(true);
    ws().lastaction = QStringLiteral("CIRCRESIZED");
    BtnPaint_Click(s);
    EXPECT_EQ(ws().lastaction, QStringLiteral("CIRC$PAINT"));
}

TEST_F(PaintDriverTest, PatchingLastactionMakesAMovedSelectionAPaintOnIt)
{
    ws().lastaction = QStringLiteral("RECTMOVED");
    patch_lastactionpaint(s);
    EXPECT_EQ(ws().lastaction, QString());
    EXPECT_TRUE(ws().BildChanged);

    ws().PicSelect.setVisible(true);
    ws().lastaction = QStringLiteral("RECTMOVED$TURN90");
    patch_lastactionpaint(s);
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECT$PAINT"));
    for (const QString &kept : {QStringLiteral("RECTRESIZED"), QStringLiteral("RECTMOVED$PAINT")}) {
        ws().lastaction = kept;
        patch_lastactionpaint(s);
        EXPECT_EQ(ws().lastaction, kept);
    }
}

TEST_F(PaintDriverTest, APaintEnablesSaveAndPrintAndBecomesThePersistentPicture)
{
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::Painted);
    EXPECT_TRUE(ws().commands.undo && ws().commands.save && ws().commands.print);
    EXPECT_EQ(ws().Bild.Picture(), ws().Bild.Image());
    EXPECT_EQ(g_probe.rows, 6);
    EXPECT_EQ(s.paint().GrafTypeMem[1], 0);
    EXPECT_EQ(captions, (std::vector<B>{B::Running, B::Rest}));

    ws().commands.print = false;
    s.paint().AutoPaintRun = true;
    BtnPaint_Click(s);
    EXPECT_FALSE(ws().commands.print);

    // A type that needs no undo image skips the preparation.
    ws().commands.undo = false;
    choose(1, 11);
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::Painted);
    EXPECT_FALSE(ws().commands.undo);
}

TEST_F(PaintDriverTest, StopWithCancelGoesOnPainting)
{
    PaintOutcome stop{};
    // DoEvents 1 comes before the painter, 2.. before each row.
    ClickAt hook(4, [&] { stop = BtnPaint_Click(s); });
    s.setYieldHook(&hook);
    prompter.script({Answer::Cancel});
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::Painted);
    EXPECT_EQ(stop, PaintOutcome::StopCancelled);
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("Die Ausgabe wurde angehalten! Bitte bestätigen."));
    EXPECT_EQ(prompter.asked().back().buttons, Buttons::OkCancel);
    EXPECT_EQ(g_probe.rows, 6);
    EXPECT_FALSE(s.paint().StopPaint);
    EXPECT_EQ(captions, (std::vector<B>{B::Running, B::Waiting, B::Running, B::Rest}));
    s.setYieldHook(nullptr);
}

TEST_F(PaintDriverTest, StopWithOkEndsThePaintAtItsNextCheckAndRefusesASecondPaintMeanwhile)
{
    setLanguage(Language::English);
    QString captionAtClick;
    PaintOutcome stop{}, second{};
    ClickAt hook(4, [&] {
        captionAtClick = s.paint().dialog.BtnPaintCaption();
        stop = BtnPaint_Click(s);
        second = BtnPaint_Click(s);
    });
    s.setYieldHook(&hook);
    prompter.script({Answer::Ok});
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::Painted);
    EXPECT_EQ(captionAtClick, QStringLiteral("STO&P !"));
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Output stopped! Please confirm."));
    EXPECT_EQ(stop, PaintOutcome::StopConfirmed);
    EXPECT_EQ(second, PaintOutcome::Busy);
    EXPECT_EQ(g_probe.rows, 2);
    EXPECT_TRUE(s.paint().StopPaint);
    EXPECT_FALSE(s.runState().painting());
    EXPECT_EQ(s.paint().dialog.BtnPaintCaption(), QStringLiteral("Paint <F5>"));
    s.setYieldHook(nullptr);

    setLanguage(Language::German);
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::Painted);
    EXPECT_FALSE(s.paint().StopPaint);
}

TEST_F(PaintDriverTest, TheEngineHandlersDoNothingWhileAPaintGivesWay)
{
    // A fixing of another size, which a Restore in the middle of the paint would bring in.
    QTemporaryDir temp;
    ws().setTempDir(temp.path());
    ws().New_BildSize(12, 12);
    ws().Bild.Line(0, 0, 11, 11, RGB(0, 255, 0), LineFlags::BF);
    ASSERT_TRUE(s.fixings().BtnFix_Click());
    ws().New_BildSize(8, 10);
    ClickAt hook(3, [&] {
        mn_Grafmodes(s, 5);
        ListBoxType_Click(s, 3);
        s.fixings().BtnRestore_Click();
        EXPECT_FALSE(s.fixings().BtnFix_Click());
    });
    s.setYieldHook(&hook);
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::Painted);
    EXPECT_EQ(std::pair(s.paint().GrafGroup, s.paint().dialog.ListIndex()), std::pair(1, 0));
    EXPECT_EQ(s.paint().GrafKey, QStringLiteral("Backgroundcolor"));
    EXPECT_EQ(ws().Bild.Image().size(), QSize(8, 10));
    EXPECT_EQ(ws().Bild.Point(7, 5), Red);
    EXPECT_EQ(s.fixings().FixLast, 1);
    EXPECT_EQ(s.fixings().FixWalk, 0);
    s.setYieldHook(nullptr);
}

TEST_F(PaintDriverTest, TheRollButtonsWalkRoundTheListPastItsSeparators)
{
    // Group 1: separators at rows 6 and 10, last row 12.
    const auto roll = [&](int from, int button) {
        s.paint().dialog.setListIndex(from);
        BtnPaintRoll_Click(s, button);
        return s.paint().dialog.ListIndex();
    };
    EXPECT_EQ(roll(12, 1), 0);
    EXPECT_EQ(s.paint().GrafKey, QStringLiteral("Backgroundcolor"));
    EXPECT_EQ(roll(0, 0), 12);
    EXPECT_EQ(s.paint().GrafKey, QStringLiteral("Bitblt-Schmieren"));
    EXPECT_EQ(roll(5, 1), 7);
    EXPECT_EQ(roll(7, 0), 5);
    EXPECT_EQ(roll(9, 1), 11);
    EXPECT_EQ(roll(-1, 1), 0);
    EXPECT_EQ(roll(-1, 0), 12);
    EXPECT_EQ(s.paint().GrafTypeMem[1], 12);
}

TEST_F(PaintDriverTest, TheRollButtonsStopARunningPaintWithoutAsking)
{
    ClickAt hook(3, [&] { BtnPaintRoll_Click(s, 1); });
    s.setYieldHook(&hook);
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::Painted);
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_TRUE(s.paint().StopPaint);
    EXPECT_EQ(g_probe.rows, 1);
    EXPECT_EQ(s.paint().dialog.ListIndex(), 0);
    s.setYieldHook(nullptr);
}

TEST_F(PaintDriverTest, SeparatorsAndTypesWithoutPainterPaintNothingAndSaySo)
{
    const QImage before = ws().Bild.Image();
    choose(1, 6);
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::NotPaintable);
    EXPECT_EQ(status.panelText(sbrState), QStringLiteral("Eine Trennlinie malt nichts."));
    choose(1, 5);
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::NotPaintable);
    EXPECT_EQ(status.panelText(sbrState),
              QStringLiteral("„Tunnel“ malt noch nichts: sein Maler ist noch nicht eingebaut."));
    choose(1, 4); // "Kacheln" is not in the test's table at all.
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::NotPaintable);
    EXPECT_EQ(ws().Bild.Image(), before);
    EXPECT_FALSE(ws().BildChanged);
    EXPECT_FALSE(ws().commands.save);
}

TEST_F(PaintDriverTest, EveryPaintRecordsItsSeedAndTheSameSeedGivesTheSameNumbers)
{
    s.paint().nextSeed = 77;
    BtnPaint_Click(s);
    EXPECT_EQ(status.panelText(sbrState), QStringLiteral("Startwert 77"));
    ASSERT_TRUE(s.paint().lastPaint);
    EXPECT_EQ(s.paint().lastPaint->seed, 77u);
    EXPECT_FALSE(s.paint().nextSeed);

    BtnPaint_Click(s);
    BtnPaint_Click(s);
    const uint32_t a = s.paint().lastPaint->seed;
    EXPECT_EQ(status.panelText(sbrState), QStringLiteral("Startwert %1").arg(a));
    s.paint().nextSeed = a;
    BtnPaint_Click(s);
    ASSERT_EQ(g_probe.rnd.size(), 4u);
    EXPECT_NE(g_probe.rnd[1], g_probe.rnd[2]);
    EXPECT_EQ(g_probe.rnd[2], g_probe.rnd[3]);
    EXPECT_FALSE(s.clock().deterministic());
}

TEST_F(PaintDriverTest, AFaultingPainterIsReportedAndLeavesTheButtonAtRest)
{
    choose(1, 9);
    EXPECT_EQ(BtnPaint_Click(s), PaintOutcome::Failed);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Create_Polygraphics  [Overflow]"));
    EXPECT_FALSE(s.runState().painting());
    EXPECT_EQ(s.paint().dialog.buttonState(), B::Rest);
    EXPECT_FALSE(ws().commands.print);
}
