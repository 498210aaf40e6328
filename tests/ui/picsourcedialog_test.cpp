// frmDiaSetBildquelle: a directory or a file chosen as the mosaic's source, and a path that
// does not exist refused with the reason under the field.
#include "windowfixture.h"

#include "generators/picmosaik.h"
#include "paint/session.h"
#include "ui/picsourcedialog.h"

#include <QCheckBox>
#include <QFile>
#include <QLineEdit>
#include <QRadioButton>

using namespace tf;

struct PicSourceDialogTest : WindowFixture {};

TEST_F(PicSourceDialogTest, HandsAnExistingDirectoryOrFileToTheSessionAndTheSourceOption)
{
    start();
    Session &s = window->session();
    ui::PicSourceDialog dialog(s, window.get());
    EXPECT_TRUE(dialog.optDirectory()->isChecked()) << "the panel's default";

    dialog.txtPath()->setText(dir.filePath(QStringLiteral("nowhere")));
    EXPECT_FALSE(dialog.cmdOK());
    EXPECT_EQ(dialog.info(), QStringLiteral("Das Verzeichnis gibt es nicht."));
    EXPECT_TRUE(s.picSources().PicSource.isEmpty());

    dialog.txtPath()->setText(dir.path());
    dialog.subDirs()->setChecked(true);
    screenshot(dialog, "picsourcedialog");
    ASSERT_TRUE(dialog.cmdOK());
    EXPECT_EQ(s.picSources().PicSource, dir.path());
    EXPECT_TRUE(s.controls().checked(QStringLiteral("XPicMosaikSubDirs")));

    // A file: the source option follows.
    const QString file = dir.filePath(QStringLiteral("one.png"));
    ASSERT_TRUE(QImage(4, 4, QImage::Format_RGB32).save(file));
    dialog.optFile()->setChecked(true);
    EXPECT_FALSE(dialog.subDirs()->isEnabled());
    dialog.txtPath()->setText(dir.path());
    EXPECT_FALSE(dialog.cmdOK()) << "a directory is no file";
    dialog.txtPath()->setText(file);
    ASSERT_TRUE(dialog.cmdOK());
    EXPECT_EQ(s.picSources().PicSource, file);
    EXPECT_EQ(s.controls().listIndex(ControlKey{QStringLiteral("optPicMosaikSource")}), 0);
}
