// The photo cube in the desktop program: its panel (with the photo source's controls) comes on
// top, Paint paints the cube from the chosen directory into the picture, and the Superformat
// cube comes up in the Superformat viewer. With TF_SCREENSHOTS set to a folder the windows are
// saved there.
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "support/testdata.h"
#include "ui/featdialogdock.h"
#include "ui/mainwindow.h"
#include "ui/mosaikshow.h"
#include "windowfixture.h"

#include <QApplication>
#include <QListWidget>
#include <QPushButton>
#include <gtest/gtest.h>

using namespace tf;

namespace {

struct PhotoCubeWindowTest : WindowFixture {
    void SetUp() override
    {
        WindowFixture::SetUp();
        start();
    }
    QListWidget *typeList() { return window->findChild<QListWidget *>(QStringLiteral("ListBoxType")); }
    QPushButton *button(const char *name)
    {
        return window->findChild<QPushButton *>(QString::fromLatin1(name));
    }
    ui::FeatDialogDock *options() { return window->findChild<ui::FeatDialogDock *>(); }
    void choose(const char *key)
    {
        const auto where = findType(QString::fromUtf8(key));
        ASSERT_TRUE(where);
        mn_Grafmodes(window->session(), where->group);
        QApplication::processEvents();
        typeList()->setCurrentRow(where->listIndex);
        ListBoxType_Click(window->session(), where->listIndex);
        QApplication::processEvents();
    }
};

TEST_F(PhotoCubeWindowTest, PaintsTheCubeFromTheChosenDirectoryInThePictureAndInSuperformat)
{
    TF_REQUIRE_TESTDATA();
    Session &s = window->session();
    window->resize(1500, 1000);
    // What the source dialog hands over for a directory.
    s.picSources().PicSource = testdataPath(QStringLiteral("photos/kodak/landscape"));
    s.controls().set(ControlKey{QStringLiteral("optPicMosaikSource")}, QStringLiteral("1"));
    s.colours().ColorBack = RGB(236, 232, 224);
    choose("Photo-CUBE");
    ASSERT_TRUE(options());
    EXPECT_EQ(options()->currentPanel(), QStringLiteral("feat_16PhotoCube"));
    const QImage before = s.workspace().Bild.Image();
    ASSERT_TRUE(button("BtnPaint"));
    button("BtnPaint")->click();
    QApplication::processEvents();
    EXPECT_TRUE(prompter.asked().empty()) << prompter.lastText().toStdString();
    const QImage cube = s.workspace().Bild.Image();
    EXPECT_NE(cube, before);
    EXPECT_EQ(cube.pixel(2, 2), qRgb(236, 232, 224));
    options()->raise();
    screenshot(*window, "photocube-window");

    choose("Photo-CUBESuper");
    s.controls().set(ControlKey{QStringLiteral("txtSuperSize"), 0}, QStringLiteral("1600"));
    s.controls().set(ControlKey{QStringLiteral("txtSuperSize"), 1}, QStringLiteral("1200"));
    button("BtnPaint")->click();
    QApplication::processEvents();
    EXPECT_TRUE(prompter.asked().empty()) << prompter.lastText().toStdString();
    EXPECT_EQ(s.superformat().SuperDIB.dib_width(), 1600);
    auto *viewer = window->findChild<ui::MosaikShow *>(QStringLiteral("frmMosaikShow"));
    ASSERT_TRUE(viewer);
    EXPECT_TRUE(viewer->isVisible());
    viewer->resize(1000, 800);
    screenshot(*viewer, "photocube-superformat");
    // The picture on screen stays as the first cube left it.
    EXPECT_EQ(s.workspace().Bild.Image(), cube);
}

} // namespace
