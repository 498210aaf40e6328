// The picture chooser and the fitting dialog.
#include "support/testdata.h"

#include "paint/session.h"
#include "ui/picimportdialog.h"
#include "ui/pselectdialog.h"

#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;
using namespace tf::ui;

TEST(PSelectDialog, PatternsInTheirOrderAndValidFolderNames)
{
    QStringList captions;
    for (const auto &p : PSelectDialog::patterns())
        captions << QString::fromLatin1(p.caption);
    EXPECT_EQ(captions, (QStringList{QStringLiteral("Graphic (*.gif;*.jpg;*.bmp;*.png)"),
                                     QStringLiteral("Bitmaps (*.bmp)"), QStringLiteral("GIF (*.gif)"),
                                     QStringLiteral("JPEG (*.jpg)"), QStringLiteral("PNG (*.png)"),
                                     QStringLiteral("All Files (*.*)")}));
    EXPECT_TRUE(PSelectDialog::validDirectoryName(QStringLiteral("Neuer Ordner")));
    for (const char *bad : {"a/b", "a\\b", "c:", "x*", "wer?", "<a", "a>", "a|b", "", "  "})
        EXPECT_FALSE(PSelectDialog::validDirectoryName(QString::fromLatin1(bad))) << bad;
}

TEST(PSelectDialog, ThePreviewShowsTheSizeOrSaysInvalid)
{
    TF_REQUIRE_TESTDATA();
    Session s;
    ScriptedPrompter prompter;
    s.setPrompter(&prompter);
    const QString folder = testdataPath(QStringLiteral("photos/kodak/landscape"));
    PSelectDialog d(s, QStringLiteral("Bild laden"), folder, true);
    d.chooseFile(folder + QStringLiteral("/kodim01.jpg"));
    EXPECT_EQ(d.sizeText(), QStringLiteral("W/H= 768 / 512"));
    ASSERT_FALSE(d.preview()->pixmap().isNull());
    EXPECT_LE(d.preview()->pixmap().width(), 256);

    d.chooseFile(testdataPath(QStringLiteral("images/jpeg/bad/jd-missing-sos.jpg")));
    EXPECT_EQ(d.sizeText(), QStringLiteral("Ungültiges Bild"));

    // Deleting with nothing chosen says so and deletes nothing.
    PSelectDialog empty(s, QStringLiteral("Bild laden"), folder, true);
    empty.deleteChosen();
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Kein gültiges Bild."));
}

TEST(PSelectDialog, DeletingAsksFirstAndAnsweringNoKeepsTheFile)
{
    QTemporaryDir dir;
    const QString file = dir.filePath(QStringLiteral("x.png"));
    QImage(4, 4, QImage::Format_RGB32).save(file);
    Session s;
    ScriptedPrompter prompter;
    s.setPrompter(&prompter);
    PSelectDialog d(s, QStringLiteral("Bild laden"), dir.path(), false);
    d.chooseFile(file);
    prompter.script({Answer::No});
    d.deleteChosen();
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("Soll die Datei %1 in den Papierkorb verschoben werden?").arg(file));
    EXPECT_EQ(prompter.asked().back().title, QStringLiteral("Datei löschen"));
    EXPECT_TRUE(QFile::exists(file));
}

TEST(PicImportDialog, HandsBackTheChoice)
{
    ImportChoice start;
    start.Opt_Wert = ImportChoice::Percent;
    start.Prozent_Wert = 40;
    PicImportDialog d(QSize(800, 600), start);
    EXPECT_EQ(d.windowTitle(), QStringLiteral("Bild anpassen"));
    EXPECT_TRUE(d.findChild<QLabel *>() != nullptr);
    ImportChoice c = d.choice();
    EXPECT_EQ(c.Opt_Wert, ImportChoice::Percent);
    EXPECT_EQ(c.Prozent_Wert, 40);
    EXPECT_TRUE(c.Cancelled); // not accepted
    const auto radios = d.findChildren<QRadioButton *>();
    ASSERT_EQ(radios.size(), 3);
    radios[2]->setChecked(true);
    d.accept();
    c = d.choice();
    EXPECT_EQ(c.Opt_Wert, ImportChoice::KeepAspect);
    EXPECT_FALSE(c.Cancelled);
}
