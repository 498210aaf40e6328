// The menu "Bild" and the distortion dialogs in the main window: the mirrors and turns act
// with undo and the window follows a new size; the rotation dialog grows the picture with
// "Größe anpassen"; the lens takes its position from the picture. With TF_SCREENSHOTS set to
// a folder the window and the dialogs are also saved there as pictures.
#include "filters/blurize.h"
#include "filters/dografic.h"
#include "filters/filtertable.h"
#include "filters/geometry.h"
#include "filters/mirrors.h"
#include "ui/blurizedialog.h"
#include "ui/filtermenu.h"
#include "ui/gammadialog.h"
#include "ui/picturesizedialog.h"
#include "ui/transformmenu.h"
#include "windowfixture.h"

#include <QCheckBox>
#include <QMenuBar>
#include <QSlider>
#include <QSpinBox>

using namespace tf;

namespace {

struct TransformCommands : StartedWindow {
    QImage startPicture;
    void SetUp() override
    {
        StartedWindow::SetUp();
        Workspace &ws = window->session().workspace();
        ws.New_BildSize(320, 200);
        startPicture = photoLike(320, 200);
        ws.Bild.setPicture(startPicture);
    }
    Workspace &ws() { return window->session().workspace(); }
    const QImage &bild() { return ws().Bild.Image(); }
    ui::TransformMenu *menu() { return window->findChild<ui::TransformMenu *>(); }
};

} // namespace

TEST_F(TransformCommands, TheMenuMirrorsAndTurnsWithUndoAndTheWindowFollowsTheSize)
{
    ui::TransformMenu *m = menu();
    ASSERT_NE(m, nullptr);
    EXPECT_EQ(m->title(), QStringLiteral("B&ild"));
    m->entry(QStringLiteral("mn_MirrorV"))->trigger();
    QImage expected = startPicture;
    mirrorLeftRight(expected);
    EXPECT_EQ(bild(), expected);
    m->entry(QStringLiteral("mn_KlappH5"))->trigger();
    halfMirror(expected, HalfMirror::Prismatic);
    EXPECT_EQ(bild(), expected);

    m->entry(QStringLiteral("mn_Turn90R"))->trigger();
    EXPECT_EQ(bild(), turnedQuarters(expected, 1));
    EXPECT_EQ(ws().BildW, 200);
    EXPECT_EQ(ws().BildH, 320);
    screenshot(*window, "mainwindow-turned");
    window->findChild<QAction *>(QStringLiteral("mn_Undo"))->trigger();
    EXPECT_EQ(ws().BildW, 320);
    EXPECT_EQ(bild(), expected);
    // While a paint runs the menu does nothing.
    window->session().runState().setPainting(true);
    m->entry(QStringLiteral("mn_MirrorH"))->trigger();
    window->session().runState().setPainting(false);
    EXPECT_EQ(bild(), expected);
}

TEST_F(TransformCommands, ThePictureSizeDialogKeepsTheProportion)
{
    ui::PictureSizeDialog d(ui::PictureSizeDialog::Mode::PictureSize, 320, 200, window.get());
    d.widthBox()->setValue(160);
    EXPECT_EQ(d.pictureHeight(), 100);
    d.keepProportion()->setChecked(false);
    d.heightBox()->setValue(50);
    EXPECT_EQ(d.pictureWidth(), 160);
    EXPECT_TRUE(d.smooth());
    screenshot(d, "frmPictureSize");
    ui::PictureSizeDialog c(ui::PictureSizeDialog::Mode::Canvas, 320, 200, window.get());
    EXPECT_EQ(c.anchor(), 4);
    screenshot(c, "frmCanvasSize");
}

TEST_F(TransformCommands, TheRotationDialogGrowsThePictureAndCancelGivesItBack)
{
    Session &s = window->session();
    {
        ui::GammaDialog d(s, *findFilter(53), window.get());
        auto *fit = d.findChild<QCheckBox *>(QStringLiteral("XMaskResize"));
        ASSERT_NE(fit, nullptr);
        ASSERT_NE(d.findChild<QCheckBox *>(QStringLiteral("XCleanBack")), nullptr);
        d.slider(0)->setValue(90);
        fit->setChecked(true);
        d.cmdPreview();
        EXPECT_EQ(ws().BildW, 200);
        screenshot(d, "frmGamma-53");
        d.cmdCancel();
    }
    EXPECT_EQ(ws().BildW, 320);
    EXPECT_EQ(bild(), startPicture);
    {
        ui::GammaDialog d(s, *findFilter(53), window.get());
        d.slider(0)->setValue(90);
        d.findChild<QCheckBox *>(QStringLiteral("XMaskResize"))->setChecked(true);
        d.cmdOK();
    }
    EXPECT_EQ(bild(), turnedQuarters(startPicture, 1));
    screenshot(*window, "mainwindow-rotated");
}

TEST_F(TransformCommands, TheShapesRunAsFilter46AndTheLensTakesThePickedPosition)
{
    Session &s = window->session();
    {
        ui::GammaDialog d(s, *findFilter(1000), window.get());
        EXPECT_EQ(d.windowTitle(), QStringLiteral("Transformieren Stundenglas"));
        d.slider(0)->setValue(12);
        d.cmdOK();
    }
    FilterArgs a;
    a.selector = 0;
    a.argument = a.sliders[0] = 12;
    QImage expected = startPicture;
    Session engine;
    ASSERT_TRUE(DoGraficFilters(engine, 46, expected, a));
    EXPECT_EQ(bild(), expected);
    ws().Menu_UndoRedo();
    {
        ui::GammaDialog d(s, *findFilter(47), window.get());
        d.pickAt(QPoint(100, 60));
        EXPECT_EQ(d.values().position, QPoint(100, 60));
        d.slider(1)->setValue(90);
        d.cmdOK();
    }
    // The middle of the lens stays; the picture's far corner is outside it.
    EXPECT_EQ(bild().pixel(100, 60), startPicture.pixel(100, 60));
    EXPECT_NE(bild(), startPicture);
    EXPECT_EQ(bild().pixel(319, 199), startPicture.pixel(319, 199));
    screenshot(*window, "mainwindow-lens");
}

TEST_F(TransformCommands, TheBlurizeDialogPreviewsAndAppliesOnThePictureBefore)
{
    Session &s = window->session();
    // The picture before: a photo-like one; the picture now: a depth map from dark to bright.
    ws().Bild_nachUndo();
    QImage depth(320, 200, QImage::Format_RGB32);
    for (int y = 0; y < 200; ++y)
        for (int x = 0; x < 320; ++x)
            depth.setPixel(x, y, qRgb(x * 255 / 319, x * 255 / 319, x * 255 / 319));
    ws().Bild.setPicture(depth);
    const QImage before = pictureBefore(s);
    EXPECT_EQ(before, startPicture);
    ui::BlurizeDialog d(s, *findBlurize(1), before, window.get());
    d.slider(0)->setValue(20);
    EXPECT_LE(d.previewImage().width(), 240);
    screenshot(d, "frmBlurize-1");
    ASSERT_TRUE(d.apply());
    // The near (dark) left edge stays sharp, the far right is blurred.
    EXPECT_EQ(bild().pixel(0, 100), startPicture.pixel(0, 100));
    EXPECT_NE(bild().pixel(315, 100), startPicture.pixel(315, 100));
    ws().Menu_UndoRedo();
    EXPECT_EQ(bild(), depth);
}
