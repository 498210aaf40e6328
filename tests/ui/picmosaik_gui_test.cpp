// "PIC-Mosaik" in the desktop program: its panel comes on top, a mosaic of the shared photos
// is painted with the Paint button and again with "Repaint letztes Set" on the same frames,
// and "PIC-MosaikSuper" hands its picture to the Superformat viewer. With TF_SCREENSHOTS set
// to a folder the window, the panel and the viewer are saved there.
#include "generators/mondrianlayout.h"
#include "generators/picmosaik.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/session.h"
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

struct PicMosaikWindowTest : StartedWindow {
    void set(const char *name, const char *value, int index = -1)
    {
        ASSERT_TRUE(window->session().controls().set(
            ControlKey{QString::fromLatin1(name), index}, QString::fromLatin1(value)));
    }
};

TEST_F(PicMosaikWindowTest, PaintsAMosaicOfThePhotosAndRepaintsItsFrames)
{
    TF_REQUIRE_TESTDATA();
    for (const char *key : {"PIC-Mosaik", "PIC-MosaikSuper", "PIC-DiaShow", "Photo-CUBE",
                            "Photo-CUBESuper"}) {
        choose(key);
        const bool cube = QString::fromLatin1(key).startsWith(QLatin1String("Photo-CUBE"));
        EXPECT_EQ(window->findChild<ui::FeatDialogDock *>()->currentPanel(),
                  cube ? QStringLiteral("feat_16PhotoCube") : QStringLiteral("feat_15PicMosaik"))
            << key;
    }
    choose("PIC-Mosaik");
    Session &s = window->session();
    setPicSource(s, testdataPath(QStringLiteral("photos")), false, true);
    set("txtPMKachel", "5", 0);
    set("txtPMKachel", "4", 1);
    set("cmbPen", "2");
    window->findChild<QPushButton *>(QStringLiteral("BtnPaint"))->click();
    QApplication::processEvents();
    EXPECT_TRUE(prompter.asked().empty());
    EXPECT_EQ(s.picSources().PicCount, 45);
    ASSERT_TRUE(s.mondrian().holdsLayout());
    const auto frames = mondrianFrames(s.mondrian());
    const QImage first = s.workspace().Bild.Image();
    auto *options = window->findChild<ui::FeatDialogDock *>();
    options->raise();
    window->resize(1550, 1000);
    screenshot(*window, "picmosaik-window");

    auto *repaint = window->findChild<QPushButton *>(QStringLiteral("BtnPicMosaik_Repaint"));
    ASSERT_NE(repaint, nullptr);
    repaint->click();
    QApplication::processEvents();
    const auto again = mondrianFrames(s.mondrian());
    ASSERT_EQ(frames.size(), again.size());
    for (size_t i = 0; i < frames.size(); ++i) {
        EXPECT_EQ(frames[i].left, again[i].left);
        EXPECT_EQ(frames[i].bottom, again[i].bottom);
    }
    EXPECT_NE(s.workspace().Bild.Image(), first) << "new pictures in the same frames";
    EXPECT_NE(window->findChild<QPushButton *>(QStringLiteral("BtnPicMosaik_SetPics")), nullptr);
    options->setFloating(true);
    options->resize(360, 1000);
    screenshot(*options, "picmosaik-panel");
}

TEST_F(PicMosaikWindowTest, TheSuperformatMosaicGoesToTheViewer)
{
    TF_REQUIRE_TESTDATA();
    choose("PIC-MosaikSuper");
    Session &s = window->session();
    setPicSource(s, testdataPath(QStringLiteral("photos")), false, true);
    set("txtSuperSize", "2400", 0);
    set("txtSuperSize", "1600", 1);
    set("txtPMKachel", "8", 0);
    set("txtPMKachel", "6", 1);
    window->findChild<QPushButton *>(QStringLiteral("BtnPaint"))->click();
    QApplication::processEvents();
    EXPECT_TRUE(prompter.asked().empty());
    ASSERT_TRUE(s.superformat().hasPicture());
    EXPECT_EQ(s.superformat().SuperDIB.dib_width(), 2400);
    auto *viewer = window->findChild<ui::MosaikShow *>(QStringLiteral("frmMosaikShow"));
    ASSERT_NE(viewer, nullptr);
    viewer->resize(900, 650);
    screenshot(*viewer, "picmosaik-super");
}

} // namespace
