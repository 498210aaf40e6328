#include "core/fixings.h"
#include "core/prompter.h"
#include "core/tempfiles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

namespace {

struct FixingsTest : ::testing::Test {
    QTemporaryDir dir;
    Workspace ws;
    RecordingStatus status;
    ScriptedPrompter prompter;
    PrompterScope scope{prompter};
    RunState run;
    Fixings fix{ws, status, run};

    void SetUp() override
    {
        ws.setTempDir(dir.path());
        ws.New_BildSize(24, 16);
    }

    void paintAll(ColorLong c) { ws.Bild.Line(0, 0, ws.BildW - 1, ws.BildH - 1, c, LineFlags::BF); }
    ColorLong shown() const { return ws.Bild.Point(ws.BildW - 1, ws.BildH - 1); }
    // A colour of its own for each fixing number.
    static ColorLong colourOf(int n) { return RGB(10 * n, 255 - 10 * n, 3 * n); }

    QString path(const QString &name) const { return dir.filePath(name); }
    bool exists(int n) const { return QFile::exists(path(fixingFileName(n))); }
    ColorLong fileColour(const QString &name) const
    {
        QImage img;
        if (!img.load(path(name), "BMP"))
            return -1;
        return fromQRgb(img.pixel(0, 0));
    }
    void writeFixing(int n, ColorLong c)
    {
        QImage img(5, 4, QImage::Format_RGB32);
        img.fill(toQRgb(c));
        ASSERT_TRUE(img.save(path(fixingFileName(n)), "BMP"));
    }
    void fixIn(ColorLong c)
    {
        paintAll(c);
        fix.BtnFix_Click();
    }
};

} // namespace

TEST_F(FixingsTest, TenFixingsFillTheRingAndTheEleventhOverwritesTheFirst)
{
    for (int n = 1; n <= 10; ++n)
        fixIn(colourOf(n));
    EXPECT_EQ(fix.FixLast, 10);
    EXPECT_EQ(fix.FixCount, 10);
    for (int n = 1; n <= 10; ++n)
        EXPECT_EQ(fileColour(fixingFileName(n)), colourOf(n)) << n;
    EXPECT_FALSE(exists(11));
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("tmpfixm10.bmp"))));

    fixIn(colourOf(11));
    EXPECT_EQ(fix.FixLast, 1);
    EXPECT_EQ(fix.FixCount, 10);
    EXPECT_EQ(fix.FixWalk, 0);
    EXPECT_EQ(fileColour(QStringLiteral("tmpfixm01.bmp")), colourOf(11));
    EXPECT_EQ(fileColour(QStringLiteral("tmpfixm02.bmp")), colourOf(2));
    EXPECT_EQ(status.panelText(sbrfixed), QStringLiteral("fixiert"));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(FixingsTest, RestoreWalksBackFromTheNewestRoundAndRound)
{
    for (int n = 1; n <= 11; ++n)
        fixIn(colourOf(n)); // the ring now holds 11, 2, 3 .. 10
    paintAll(RGB(0, 0, 0));

    // Newest first, then older ones, past number 1 on to the highest number.
    const std::vector<ColorLong> expected = {colourOf(11), colourOf(10), colourOf(9), colourOf(8),
                                             colourOf(7),  colourOf(6),  colourOf(5), colourOf(4),
                                             colourOf(3),  colourOf(2),  colourOf(11), colourOf(10)};
    for (size_t i = 0; i < expected.size(); ++i) {
        fix.BtnRestore_Click();
        EXPECT_EQ(shown(), expected[i]) << "restore " << i + 1;
    }
    // A new fixing starts the walk anew at the newest.
    fixIn(RGB(1, 2, 3));
    EXPECT_EQ(fix.FixLast, 2);
    paintAll(RGB(0, 0, 0));
    fix.BtnRestore_Click();
    EXPECT_EQ(shown(), RGB(1, 2, 3));
    fix.BtnRestore_Click();
    EXPECT_EQ(shown(), colourOf(11));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(FixingsTest, WithOneFixingTheSingleFileIsOverwrittenAndRestoredAgain)
{
    fix.FixNumb = 1;
    fixIn(colourOf(1));
    fixIn(colourOf(2));
    EXPECT_EQ(fileColour(QStringLiteral("tmpfixm.bmp")), colourOf(2));
    EXPECT_FALSE(exists(1));
    EXPECT_EQ(fix.FixLast, 0);
    for (int i = 0; i < 3; ++i) {
        paintAll(RGB(0, 0, 0));
        fix.BtnRestore_Click();
        EXPECT_EQ(shown(), colourOf(2));
    }
}

TEST_F(FixingsTest, RestoreBeforeAnyFixingDoesNothing)
{
    paintAll(RGB(7, 7, 7));
    fix.BtnRestore_Click();
    EXPECT_EQ(shown(), RGB(7, 7, 7));
    EXPECT_FALSE(ws.BildChanged);
    EXPECT_FALSE(ws.commands.undo);
    EXPECT_EQ(fix.FixWalk, 0);
    fix.FixNumb = 1;
    fix.BtnRestore_Click();
    EXPECT_EQ(shown(), RGB(7, 7, 7));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(FixingsTest, ARestoreOfAnotherSizeResizesTheWorkspaceAndUndoAndRedoGoBackAndForth)
{
    fixIn(RGB(0, 150, 0)); // 24 x 16
    ws.New_BildSize(40, 30);
    paintAll(RGB(9, 9, 9));
    ws.lastaction = QStringLiteral("$PAINT");
    fix.BtnRestore_Click();
    EXPECT_EQ(std::pair(ws.BildW, ws.BildH), std::pair(24, 16));
    EXPECT_EQ(ws.Bild.Width(), 24);
    EXPECT_EQ(shown(), RGB(0, 150, 0));
    EXPECT_TRUE(ws.BildChanged);
    ws.Menu_UndoRedo();
    EXPECT_EQ(std::pair(ws.BildW, ws.BildH), std::pair(40, 30));
    EXPECT_EQ(shown(), RGB(9, 9, 9));
    ws.Menu_UndoRedo();
    EXPECT_EQ(shown(), RGB(0, 150, 0));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(FixingsTest, GapsOnDiskCloseDownwardsAtStart)
{
    writeFixing(1, colourOf(1));
    writeFixing(2, colourOf(2));
    writeFixing(5, colourOf(5));
    fix.initFromDisk();
    EXPECT_EQ(fix.FixLast, 3);
    EXPECT_EQ(fix.FixCount, 3);
    EXPECT_EQ(fileColour(QStringLiteral("tmpfixm03.bmp")), colourOf(5));
    EXPECT_FALSE(exists(5));
    EXPECT_FALSE(exists(4));
    fix.BtnRestore_Click();
    EXPECT_EQ(shown(), colourOf(5));

    // Only the numbers of the ring count; with a single file there is no ring at all.
    Fixings single(ws, status, run);
    single.FixNumb = 1;
    EXPECT_EQ(single.Get_Max_TempPicNR(), 0);
    Fixings two(ws, status, run);
    two.FixNumb = 2;
    EXPECT_EQ(two.Get_Max_TempPicNR(), 2);
    EXPECT_TRUE(exists(3));
}

TEST_F(FixingsTest, AMissingRingFileIsPassedOverSilently)
{
    for (int n = 1; n <= 3; ++n)
        fixIn(colourOf(n));
    QFile::remove(path(fixingFileName(2)));
    paintAll(RGB(0, 0, 0));
    fix.BtnRestore_Click();
    EXPECT_EQ(shown(), colourOf(3));
    fix.BtnRestore_Click(); // number 2 is gone: nothing changes
    EXPECT_EQ(shown(), colourOf(3));
    EXPECT_EQ(fix.FixWalk, 2);
    fix.BtnRestore_Click();
    EXPECT_EQ(shown(), colourOf(1));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(FixingsTest, NothingIsFixedOrRestoredWhileAPaintOrFilterRuns)
{
    fixIn(colourOf(1));
    for (auto busy : {&RunState::setPainting, &RunState::setFiltering}) {
        (run.*busy)(true);
        fixIn(colourOf(2));
        EXPECT_FALSE(exists(2));
        EXPECT_EQ(fix.FixLast, 1);
        fix.BtnRestore_Click();
        EXPECT_EQ(shown(), colourOf(2)); // the picture under the running work stays
        EXPECT_EQ(fix.FixWalk, 0);
        (run.*busy)(false);
    }
    fixIn(colourOf(2));
    EXPECT_TRUE(exists(2));
}

TEST_F(FixingsTest, AVisibleSelectionIsFixedAndRestoredOnItsOwn)
{
    ws.PicSelect.resize(6, 5);
    ws.PicSelect.Line(0, 0, 5, 4, RGB(1, 100, 200), LineFlags::BF);
    ws.PicSelect.setVisible(true);
    paintAll(RGB(50, 50, 50));
    fix.BtnFix_Click();
    EXPECT_EQ(fileColour(QStringLiteral("tmpfixs.bmp")), RGB(1, 100, 200));
    EXPECT_FALSE(exists(1));
    EXPECT_EQ(fix.FixLast, 0);
    EXPECT_EQ(status.panelText(sbrSFixed), QStringLiteral("fixiert"));
    EXPECT_EQ(status.panelText(sbrfixed), QString());
    EXPECT_EQ(ws.PicUndo.Width(), 6); // the selection's undo image was taken

    // The restored selection takes the size of its file.
    ws.PicSelect.resize(9, 9);
    ws.PicSelect.Cls();
    fix.BtnRestore_Click();
    EXPECT_EQ(ws.PicSelect.Width(), 6);
    EXPECT_EQ(ws.PicSelect.Height(), 5);
    EXPECT_EQ(ws.PicSelect.Point(5, 4), RGB(1, 100, 200));
    EXPECT_EQ(shown(), RGB(50, 50, 50));

    // The elliptic selection when the rectangular one is hidden.
    ws.PicSelect.setVisible(false);
    ws.picSelectC.resize(3, 3);
    ws.picSelectC.Line(0, 0, 2, 2, RGB(4, 4, 4), LineFlags::BF);
    ws.picSelectC.setVisible(true);
    fix.BtnFix_Click();
    EXPECT_EQ(fileColour(QStringLiteral("tmpfixs.bmp")), RGB(4, 4, 4));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(FixingsTest, AFixingThatCannotBeWrittenIsReportedAndCountsNothing)
{
    // A folder in the place of the file makes the write fail.
    ASSERT_TRUE(QDir().mkpath(path(fixingFileName(1))));
    fixIn(colourOf(1));
    ASSERT_EQ(prompter.asked().size(), 1u);
    // The general reporter's box: the error in "  [" and "]", with the stop icon.
    EXPECT_EQ(prompter.lastText(), QStringLiteral("DoFixButton  [Path/File access error]"));
    EXPECT_EQ(prompter.asked().back().icon, Icon::Critical);
    EXPECT_EQ(fix.FixLast, 0);
    EXPECT_EQ(fix.FixCount, 0);
}
