// Placing a loaded picture on the work picture, with the question and its answers.
#include "files/loadplace.h"
#include "paint/session.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {

QImage filled(int w, int h, QRgb c)
{
    QImage i(w, h, QImage::Format_RGB32);
    i.fill(c);
    return i;
}

struct Placing : ::testing::Test {
    Session s;
    ScriptedPrompter prompter;
    void SetUp() override
    {
        s.setPrompter(&prompter);
        s.workspace().New_BildSize(40, 30);
        s.workspace().Bild.setPicture(filled(40, 30, qRgb(0, 0, 255)));
    }
};

} // namespace

TEST_F(Placing, OpenAsksWhenTheSizeDiffersAndFollowsTheAnswer)
{
    const QImage red = filled(20, 10, qRgb(255, 0, 0));
    prompter.script({Answer::Yes});
    ASSERT_TRUE(Bild_Handle_Laden(s, red, loadDialogTitle(LoadCommand::Open)));
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Bild automatisch einpassen?"));
    EXPECT_EQ(prompter.asked()[0].buttons, Buttons::YesNo);
    EXPECT_EQ(prompter.asked()[0].icon, Icon::Question);
    EXPECT_EQ(s.workspace().Bild.Image().size(), QSize(40, 30)); // stretched into it
    EXPECT_EQ(s.workspace().Bild.Image().pixel(39, 29), qRgb(255, 0, 0));
    EXPECT_TRUE(s.workspace().BildChanged);
    EXPECT_TRUE(s.workspace().commands.undo);

    prompter.script({Answer::No});
    ASSERT_TRUE(Bild_Handle_Laden(s, red, loadDialogTitle(LoadCommand::Open)));
    EXPECT_EQ(QSize(s.workspace().BildW, s.workspace().BildH), QSize(20, 10));
    EXPECT_EQ(s.workspace().lastaction, QStringLiteral("BILDRESIZED"));
    EXPECT_FALSE(s.workspace().BildChanged); // the file as it is stored

    // The same size: no question.
    prompter.clear();
    ASSERT_TRUE(Bild_Handle_Laden(s, filled(20, 10, qRgb(0, 255, 0)), loadDialogTitle(LoadCommand::Open)));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(Placing, TakingItsOwnSizeIsHeldAt1600)
{
    prompter.script({Answer::No});
    ASSERT_TRUE(Bild_Handle_Laden(s, filled(2000, 1000, qRgb(1, 2, 3)), loadDialogTitle(LoadCommand::Open)));
    EXPECT_EQ(QSize(s.workspace().BildW, s.workspace().BildH), QSize(1600, 800));
}

TEST_F(Placing, TilesAndImportChoices)
{
    EXPECT_TRUE(isTileTitle(QStringLiteral("Web-Background picture")));
    EXPECT_FALSE(isTileTitle(QStringLiteral("Web-Backgroun")));
    QImage tile = filled(16, 16, qRgb(10, 10, 10));
    tile.setPixel(0, 0, qRgb(200, 0, 0));
    prompter.script({Answer::Yes});
    ASSERT_TRUE(Bild_Handle_Laden(s, tile, loadDialogTitle(LoadCommand::Tile)));
    const QImage &tiled = s.workspace().Bild.Image();
    EXPECT_EQ(tiled.size(), QSize(40, 30));
    EXPECT_EQ(tiled.pixel(16, 16), qRgb(200, 0, 0));
    EXPECT_EQ(tiled.pixel(32, 0), qRgb(200, 0, 0));
    EXPECT_EQ(tiled.pixel(33, 0), qRgb(10, 10, 10));

    const QImage back = filled(40, 30, qRgb(0, 0, 255));
    ImportChoice half;
    half.Opt_Wert = ImportChoice::Percent;
    half.Prozent_Wert = 50;
    const QImage placed = placeImport(filled(20, 10, qRgb(255, 0, 0)), back, half);
    EXPECT_EQ(placed.pixel(15, 12), qRgb(255, 0, 0)); // a 10 x 5 picture centred at (15, 12)
    EXPECT_EQ(placed.pixel(14, 12), qRgb(0, 0, 255));
    EXPECT_EQ(placed.pixel(24, 16), qRgb(255, 0, 0));
    EXPECT_EQ(placed.pixel(25, 16), qRgb(0, 0, 255));
    ImportChoice aspect;
    aspect.Opt_Wert = ImportChoice::KeepAspect;
    const QImage fitted = placeImport(filled(20, 10, qRgb(255, 0, 0)), back, aspect);
    EXPECT_EQ(fitted.pixel(0, 5), qRgb(255, 0, 0)); // 40 x 20 from row 5
    EXPECT_EQ(fitted.pixel(0, 4), qRgb(0, 0, 255));
    EXPECT_EQ(fitted.pixel(39, 24), qRgb(255, 0, 0));
    EXPECT_EQ(fitted.pixel(39, 25), qRgb(0, 0, 255));

    // An import with the dialog's answer asks nothing; a cancelled one changes nothing.
    prompter.clear();
    ImportChoice cancelled;
    cancelled.Cancelled = true;
    EXPECT_FALSE(Bild_Handle_Laden(s, tile, loadDialogTitle(LoadCommand::Import), &cancelled));
    EXPECT_TRUE(Bild_Handle_Laden(s, tile, loadDialogTitle(LoadCommand::Import), &aspect));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(Placing, APasteIntoAShownSelectionTurnsTheActionString)
{
    EXPECT_FALSE(pasteIntoSelection(s, filled(4, 4, qRgb(1, 1, 1))));
    Workspace &ws = s.workspace();
    ws.PicSelect.resize(8, 6);
    ws.PicSelect.setVisible(true);
    ASSERT_TRUE(pasteIntoSelection(s, filled(4, 4, qRgb(9, 8, 7))));
    EXPECT_EQ(ws.lastaction, QStringLiteral("RECTCOPIED"));
    EXPECT_EQ(ws.PicSelect.Image().pixel(7, 5), qRgb(9, 8, 7));
    ws.PicSelect.setVisible(false);
    ws.picSelectC.resize(8, 6);
    ws.picSelectC.setVisible(true);
    ASSERT_TRUE(pasteIntoSelection(s, filled(4, 4, qRgb(9, 8, 7))));
    EXPECT_EQ(ws.lastaction, QStringLiteral("CIRCCOPIED"));
}
