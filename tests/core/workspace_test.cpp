#include "core/prompter.h"
#include "core/workspace.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

namespace {

struct WorkspaceTest : ::testing::Test {
    QTemporaryDir dir;
    Workspace ws;
    ScriptedPrompter prompter;
    PrompterScope scope{prompter};

    void SetUp() override { ws.setTempDir(dir.path()); }

    void paintAll(ColorLong c)
    {
        ws.Bild.Line(0, 0, ws.BildW - 1, ws.BildH - 1, c, LineFlags::BF);
    }
    ColorLong at(int x, int y) { return ws.Bild.Point(x, y); }
    bool undoFileExists() { return QFile::exists(ws.tempPath(QStringLiteral("tmpundob.bmp"))); }
};

} // namespace

TEST_F(WorkspaceTest, NewSizeSetsThePictureAndItsFollowers)
{
    ws.New_BildSize(300, 200);
    EXPECT_EQ(ws.BildW, 300);
    EXPECT_EQ(ws.BildH, 200);
    EXPECT_EQ(ws.BildMax, 300);
    for (PictureBox *p : {&ws.Bild, &ws.BildWork, &ws.BildUndo, &ws.PicWork, &ws.Bild_CD}) {
        EXPECT_EQ(p->Width(), 300) << p->name().toStdString();
        EXPECT_EQ(p->Height(), 200) << p->name().toStdString();
    }
    EXPECT_FALSE(ws.PicSelect.Visible());
    EXPECT_FALSE(ws.picSelectC.Visible());
}

TEST_F(WorkspaceTest, TwoUndoPressesGiveThePictureBackFromMemoryAt712AndFromDiskAt713)
{
    for (const auto &[w, h] : {std::pair{712, 712}, {500, 713}}) {
        ws.New_BildSize(w, h);
        paintAll(RGB(255, 0, 0));
        ws.Bild_nachUndo();
        EXPECT_EQ(undoFileExists(), h > 712);
        EXPECT_TRUE(ws.commands.undo && ws.commands.save && ws.BildChanged);
        paintAll(RGB(0, 0, 255));
        ws.lastaction = QStringLiteral("$PAINT");

        ws.Menu_UndoRedo();
        EXPECT_EQ(at(5, 5), RGB(255, 0, 0)) << h;
        EXPECT_EQ(at(w - 1, h - 1), RGB(255, 0, 0)) << h;
        ws.Menu_UndoRedo();
        EXPECT_EQ(at(5, 5), RGB(0, 0, 255)) << h;
        EXPECT_EQ(ws.lastaction, QStringLiteral("$PAINT")); // Redo stays possible
    }
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(WorkspaceTest, AMissingUndoFileReportsAndKeepsThePicture)
{
    ws.New_BildSize(800, 600);
    paintAll(RGB(1, 2, 3));
    ws.Bild_nachUndo();
    QFile::remove(ws.tempPath(QStringLiteral("tmpundob.bmp")));
    paintAll(RGB(4, 5, 6));
    ws.Menu_UndoRedo();
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Menu_UndoRedo  [File not found]"));
    EXPECT_EQ(prompter.asked().back().icon, Icon::Critical); // the general reporter: stop icon
    EXPECT_EQ(at(10, 10), RGB(4, 5, 6));
}

TEST_F(WorkspaceTest, UndoBltFromMemoryOrDiskWithZeroWidthCopiesTheFullUndoWidth)
{
    for (const int w : {20, 720}) {
        ws.New_BildSize(w, 10);
        paintAll(RGB(200, 0, 0));
        ws.Bild_nachUndo();
        paintAll(RGB(0, 0, 0));
        ws.UndoBlt_auf_Bild(ws.Bild, 0, 2, 0, 3, 0, 0, false, false);
        EXPECT_EQ(at(0, 2), RGB(200, 0, 0)) << w;
        EXPECT_EQ(at(w - 1, 4), RGB(200, 0, 0)) << w;
        EXPECT_EQ(at(w - 1, 5), RGB(0, 0, 0)) << w;
        EXPECT_EQ(at(0, 1), RGB(0, 0, 0)) << w;
    }
}

TEST_F(WorkspaceTest, SelectionUndoImagesFollowTheSameRule)
{
    for (const int w : {100, 1000}) { // the picture's size decides: memory, then disk
        ws.New_BildSize(w, 100);
        ws.PicSelect.resize(8, 6);
        ws.PicSelect.Line(0, 0, 7, 5, RGB(7, 7, 7), LineFlags::BF);
        ws.PicSelect.setVisible(true);
        ws.PicSelect_nachUndo();
        EXPECT_EQ(QFile::exists(ws.tempPath(QStringLiteral("tmpundom.bmp"))), w > 712);
        ws.PicSelect.Cls();
        ws.Undoimage_auf_Bild(ws.PicSelect, true, false);
        EXPECT_EQ(ws.PicSelect.Point(7, 5), RGB(7, 7, 7)) << w;
    }
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(WorkspaceTest, AnUndoneLargePictureGoesToDiskNotToMemory)
{
    ws.New_BildSize(700, 700);
    paintAll(RGB(10, 20, 30));
    ws.Bild_nachUndo();
    EXPECT_FALSE(undoFileExists());
    ws.New_BildSize(800, 700); // enlarged: the undo image stays the 700 one in memory
    ws.lastaction = QStringLiteral("BILDRESIZED");
    paintAll(RGB(40, 50, 60));

    ws.Menu_UndoRedo();
    EXPECT_EQ(ws.BildW, 700);
    EXPECT_EQ(at(699, 699), RGB(10, 20, 30));
    EXPECT_TRUE(undoFileExists());                // the 800-wide picture went to disk
    EXPECT_TRUE(ws.BildUndo.Picture().isNull());  // and holds no copy in memory
    ws.Menu_UndoRedo();
    EXPECT_EQ(ws.BildW, 800);
    EXPECT_EQ(at(799, 0), RGB(40, 50, 60));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(WorkspaceTest, EveryUndoReaderLooksWhereTheUndoImageWasPut)
{
    // Taken on disk at 800 pixels, then the picture shrinks below 712 without a new undo image:
    // each reader still finds the image in its file, not in the memory slot.
    ws.New_BildSize(800, 20);
    paintAll(RGB(90, 80, 70));
    ws.Bild_nachUndo();
    ws.New_BildSize(40, 20);
    paintAll(RGB(0, 0, 0));

    ws.UndoBlt_auf_Bild(ws.Bild, 0, 0, 10, 10, 0, 0, false, false);
    EXPECT_EQ(at(9, 9), RGB(90, 80, 70));
    paintAll(RGB(0, 0, 0));
    ws.UndoStretch_auf_Bild(ws.Bild, 0, 0, 40, 20, 0, 0, 800, 20, false);
    EXPECT_EQ(at(39, 19), RGB(90, 80, 70));
    ws.Undoimage_auf_Bild(ws.PicTemp, false, false);
    EXPECT_EQ(ws.PicTemp.Picture().width(), 800);

    paintAll(RGB(1, 1, 1));
    ws.lastaction = QStringLiteral("BILDRESIZED");
    ws.Menu_UndoRedo();
    EXPECT_EQ(ws.BildW, 800);
    EXPECT_EQ(at(799, 19), RGB(90, 80, 70));
    EXPECT_TRUE(prompter.asked().empty());
}
