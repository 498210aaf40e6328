#include "support/files.h"
#include "core/language.h"
#include "windowfixture.h"

#include <QAction>
#include <QFile>
#include <QMenuBar>

using namespace tf;

namespace {

struct MainWindowTest : WindowFixture {
    QStringList menuTitles() const
    {
        QStringList titles;
        for (QAction *a : window->menuBar()->actions())
            titles << a->text();
        return titles;
    }
};

} // namespace

TEST_F(MainWindowTest, ClosesWithoutAQuestionWhenNothingChanged)
{
    start();
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(prompter.asked().empty());
}

TEST_F(MainWindowTest, AsksBeforeClosingWithUnsavedChangesAndNoKeepsItOpen)
{
    start();
    window->session().workspace().Bild_nachUndo(); // a change
    prompter.script({Answer::No});
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(window->isVisible());
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Das Bild wurde geändert und der aktuelle Stand noch "
                                                  "nicht gesichert. Wollen Sie trotzdem beenden?"));
    EXPECT_EQ(prompter.asked().back().buttons, Buttons::YesNo);

    prompter.script({Answer::Yes});
    EXPECT_TRUE(window->close());
}

TEST_F(MainWindowTest, ARegularEndLeavesNoUndoFilesAndKeepsTheSettings)
{
    start();
    Workspace &ws = window->session().workspace();
    window->New_BildSize(900, 800); // above 712: the undo image goes to disk
    ws.Bild_nachUndo();
    EXPECT_TRUE(QFile::exists(ws.tempPath(QStringLiteral("tmpundob.bmp"))));
    prompter.script({Answer::Yes});
    ASSERT_TRUE(window->close());
    EXPECT_FALSE(QFile::exists(ws.tempPath(QStringLiteral("tmpundob.bmp"))));

    SettingsStore reread(store->path());
    EXPECT_EQ(reread.Get_Setting(QStringLiteral("Settings"), QStringLiteral("initFormatW"), 0), 900);
    EXPECT_EQ(reread.Get_Setting(QStringLiteral("Settings"), QStringLiteral("initFormatH"), 0), 800);
}

TEST_F(MainWindowTest, RestoresTheLastPictureFormatUnlessItsIndexIsUnknown)
{
    store->Put_Setting(QStringLiteral("Settings"), QStringLiteral("initFormat"), 0);
    store->Put_Setting(QStringLiteral("Settings"), QStringLiteral("initFormatW"), 2000);
    store->Put_Setting(QStringLiteral("Settings"), QStringLiteral("initFormatH"), 1500);
    start();
    EXPECT_EQ(window->session().workspace().Bild.Width(), 2000);
    // The start leaves the text-block step and the display time for the painters that read them.
    EXPECT_EQ(window->session().startValues().TextBlockStep, 80);
    EXPECT_EQ(window->session().startValues().DisplayTime, 3000);
    window.reset();

    store->Put_Setting(QStringLiteral("Settings"), QStringLiteral("initFormat"), 13);
    start();
    EXPECT_EQ(window->session().workspace().Bild.Width(), 712);
}

TEST_F(MainWindowTest, TheLanguageSwitchesTheWholeWindowAtOnce)
{
    start();
    EXPECT_EQ(menuTitles().value(0), QStringLiteral("&Datei"));
    setLanguage(Language::English);
    QCoreApplication::processEvents();
    EXPECT_EQ(menuTitles().value(0), QStringLiteral("&File"));
    EXPECT_EQ(menuTitles().value(2), QStringLiteral("&Graphics mode"));
}

TEST_F(MainWindowTest, OpenedAndSavedFilesEnterTheLastFileList)
{
    start();
    QImage img(30, 20, QImage::Format_RGB32);
    img.fill(Qt::red);
    const QString a = dir.filePath(QStringLiteral("a.png"));
    ASSERT_TRUE(img.save(a));
    // Not fitted into the picture: the picture takes the file's size.
    prompter.script({Answer::No});
    ASSERT_TRUE(window->openPicture(a));
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Bild automatisch einpassen?"));
    EXPECT_EQ(window->session().workspace().BildW, 30);
    EXPECT_EQ(window->session().workspace().Bild.Point(29, 19), RGB(255, 0, 0));
    const QString b = dir.filePath(QStringLiteral("b.bmp"));
    ASSERT_TRUE(window->savePicture(b));
    EXPECT_TRUE(QFile::exists(b));
    EXPECT_EQ(window->recentFiles().FileCount(), 2);
    EXPECT_EQ(window->recentFiles().file(1), b);
    EXPECT_TRUE(window->recentFiles().MenuCaption(2).startsWith(QStringLiteral("&2 ")));

    // A file gone since it was listed ends without a message; a corrupt one says so.
    const size_t asked = prompter.asked().size();
    EXPECT_FALSE(window->openPicture(dir.filePath(QStringLiteral("missing.png"))));
    EXPECT_EQ(prompter.asked().size(), asked);
    const QString bad = dir.filePath(QStringLiteral("bad.png"));
    writeBytes(bad, "\x89PNG\r\n\x1a\n and nothing more");
    EXPECT_FALSE(window->openPicture(bad));
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Fehlerhaftes Bild - Siehe Statusbar!"));
    EXPECT_EQ(window->session().workspace().BildW, 30);
    EXPECT_EQ(window->session().workspace().Bild.Point(29, 19), RGB(255, 0, 0));
}
