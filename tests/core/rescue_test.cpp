// The start and end of the program around the work folder: rescue of undo images left by a
// crash, the cleanup at a regular end, the work folder's creation, and the single-instance lock.
#include "support/files.h"
#include "core/fixings.h"
#include "core/prompter.h"
#include "core/rescue.h"
#include "core/singleinstance.h"
#include "core/tempfiles.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

namespace {

const QString kPictureQuestion = QStringLiteral(
    "Nach dem letzten Beenden von Tarvelle-Forge gibt es noch ein wiederherstellbares Undobild. "
    "Dies ist die letzte Chance das Bild zu retten. Soll das Bild gerettet werden?");
const QString kMaskQuestion = QStringLiteral(
    "Nach dem letzten Beenden von Tarvelle-Forge gibt es noch eine wiederherstellbare "
    "Undobildmaske. Dies ist die letzte Chance das Bild zu retten. Soll die Bildmaske gerettet "
    "werden?");

struct RescueTest : ::testing::Test {
    QTemporaryDir dir;
    ScriptedPrompter prompter;
    PrompterScope scope{prompter};
    // 5 March 2024, 12:34:56.7: 45296 whole seconds since midnight.
    const QDateTime crashNight{QDate(2024, 3, 5), QTime(12, 34, 56, 700)};

    QString path(const QString &name) const { return dir.filePath(name); }
    void touch(const QString &name, const QByteArray &content = "BM") { writeBytes(path(name), content); }
    QStringList files() const { return QDir(dir.path()).entryList(QDir::Files, QDir::Name); }
};

} // namespace

TEST_F(RescueTest, ALeftUndoPictureIsOfferedAndRescuedUnderTheDateAndSecond)
{
    touch(QStringLiteral("tmpundob.bmp"), "picture");
    prompter.script({Answer::Yes});
    const QStringList rescued = CheckRestore_lost_Undopics(dir.path(), crashNight);

    const QString target = path(QStringLiteral("20240305_restp_45296.bmp"));
    EXPECT_EQ(rescued, QStringList{target});
    EXPECT_EQ(files(), QStringList{QStringLiteral("20240305_restp_45296.bmp")});
    EXPECT_EQ(bytesOf(target), QByteArray("picture"));

    ASSERT_EQ(prompter.asked().size(), 2u);
    const Prompt &question = prompter.asked()[0];
    EXPECT_EQ(question.text, kPictureQuestion);
    EXPECT_EQ(question.buttons, Buttons::YesNo);
    EXPECT_EQ(question.icon, Icon::Question);
    EXPECT_EQ(prompter.asked()[1].text,
              QStringLiteral("Der Pfad/Name des geretteten Bildes ist ") + target);
    EXPECT_EQ(prompter.asked()[1].icon, Icon::Information);
}

TEST_F(RescueTest, PictureAndMaskAreOfferedInTurnAndNoLeavesTheFile)
{
    touch(QStringLiteral("tmpundob.bmp"));
    touch(QStringLiteral("tmpundom.bmp"));
    prompter.script({Answer::No, Answer::Yes});
    const QStringList rescued = CheckRestore_lost_Undopics(dir.path(), crashNight);

    EXPECT_EQ(rescued, QStringList{path(QStringLiteral("20240305_restm_45296.bmp"))});
    EXPECT_EQ(files(), (QStringList{QStringLiteral("20240305_restm_45296.bmp"),
                                    QStringLiteral("tmpundob.bmp")}));
    ASSERT_EQ(prompter.asked().size(), 3u);
    EXPECT_EQ(prompter.asked()[0].text, kPictureQuestion);
    EXPECT_EQ(prompter.asked()[1].text, kMaskQuestion);
    EXPECT_EQ(prompter.asked()[2].text, QStringLiteral("Der Pfad/Name des geretteten Bildmaske ist ") +
                                            path(QStringLiteral("20240305_restm_45296.bmp")));
}

TEST_F(RescueTest, NothingIsAskedWithoutUndoFiles)
{
    touch(QStringLiteral("tmpfixm01.bmp"));
    EXPECT_TRUE(CheckRestore_lost_Undopics(dir.path(), crashNight).isEmpty());
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(RescueTest, ARescueThatCannotBeRenamedIsReported)
{
    touch(QStringLiteral("tmpundob.bmp"));
    ASSERT_TRUE(QDir().mkpath(path(QStringLiteral("20240305_restp_45296.bmp")) + "/inside"));
    prompter.script({Answer::Yes});
    EXPECT_TRUE(CheckRestore_lost_Undopics(dir.path(), crashNight).isEmpty());
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("CheckRestore_lost_Undopics  [Path/File access error]"));
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("tmpundob.bmp"))));
}

TEST_F(RescueTest, ARegularEndLeavesNoUndoFilesAndFixingsOnlyWithoutFixDelete)
{
    // Undo images as the workspace leaves them for a large picture and a selection.
    Workspace ws;
    ws.setTempDir(dir.path());
    ws.New_BildSize(800, 20);
    ws.picSelectC.setVisible(true);
    ws.Bild_nachUndo();
    ASSERT_TRUE(QFile::exists(path(QStringLiteral("tmpundob.bmp"))));
    ASSERT_TRUE(QFile::exists(path(QStringLiteral("tmpundom.bmp"))));
    for (const char *name : {"tmpalias.bmp", "tmpfixm.bmp", "tmpfixs.bmp", "tmpfixm01.bmp",
                             "tmpfixm99.bmp", "20240305_restp_45296.bmp"})
        touch(QString::fromLatin1(name));

    RecordingStatus status;
    RunState run;
    Fixings fix(ws, status, run);
    fix.removeFilesAtEnd(); // FixDelete 0: the fixings stay
    EXPECT_EQ(files(), (QStringList{QStringLiteral("20240305_restp_45296.bmp"),
                                    QStringLiteral("tmpfixm.bmp"), QStringLiteral("tmpfixm01.bmp"),
                                    QStringLiteral("tmpfixm99.bmp"), QStringLiteral("tmpfixs.bmp")}));
    fix.FixDelete = 1;
    fix.removeFilesAtEnd();
    EXPECT_EQ(files(), QStringList{QStringLiteral("20240305_restp_45296.bmp")});
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(RescueTest, AMissingWorkFolderIsMadeWithANote)
{
    const QString folder = path(QStringLiteral("neu/arbeit"));
    EXPECT_TRUE(Check_CreateDir(folder));
    EXPECT_TRUE(QDir(folder).exists());
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("Das neue Verzeichnis ") + folder + QStringLiteral(" wurde erstellt."));

    prompter.clear();
    EXPECT_TRUE(Check_CreateDir(folder)); // already there: no note
    touch(QStringLiteral("datei"));
    EXPECT_FALSE(Check_CreateDir(path(QStringLiteral("datei/unter"))));
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Check_CreateDir  [Path not found]"));
}

TEST_F(RescueTest, ASecondLockOnTheSameFileIsRefused)
{
    const QString lock = path(QStringLiteral("run/tarvelle-forge.lock"));
    {
        SingleInstance first(lock);
        ASSERT_TRUE(first.tryLock());
        SingleInstance second(lock);
        EXPECT_FALSE(second.tryLock());
        EXPECT_FALSE(second.isLocked());
        EXPECT_TRUE(first.tryLock()); // asking again keeps it
    }
    SingleInstance afterwards(lock);
    EXPECT_TRUE(afterwards.tryLock());
}

TEST_F(RescueTest, ALockLeftByAnEndedProgramIsTakenOver)
{
    QProcess ended;
    ended.start(QStringLiteral("true"), {});
    ASSERT_TRUE(ended.waitForStarted());
    const qint64 pid = ended.processId();
    ASSERT_TRUE(ended.waitForFinished());
    const QString lock = path(QStringLiteral("tarvelle-forge.lock"));
    touch(QStringLiteral("tarvelle-forge.lock"),
          QByteArray::number(pid) + "\ntarvelle-forge\n" + QSysInfo::machineHostName().toUtf8() + "\n");
    SingleInstance next(lock);
    EXPECT_TRUE(next.tryLock());
}

TEST_F(RescueTest, TheSecondProgramSaysSorry)
{
    SingleInstance::showAlreadyRunning();
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.asked()[0].title, QStringLiteral("Sorry"));
    EXPECT_EQ(prompter.asked()[0].text, QStringLiteral("Tarvelle-Forge is running soon!"));
}
