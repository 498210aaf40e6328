// The filter menu and the filter dialog in the main window: the menu runs the engine's filter,
// the dialog previews on a reduced copy, applies on OK and gives the picture back on Cancel.
// With TF_SCREENSHOTS set to a folder the dialogs are also saved there as pictures.
#include "filters/dografic.h"
#include "filters/filtertable.h"
#include "ui/colourfield.h"
#include "ui/colourisedialog.h"
#include "ui/filtermenu.h"
#include "ui/gammadialog.h"
#include "windowfixture.h"

#include <QSlider>

using namespace tf;

namespace {

struct FilterDialogs : WindowFixture {
    void SetUp() override
    {
        WindowFixture::SetUp();
        this->start_();
    }
    void start_()
    {
        start();
        Workspace &ws = window->session().workspace();
        ws.New_BildSize(800, 600);
        this->startPicture = photoLike(800, 600);
        ws.Bild.setPicture(startPicture);
    }
    QImage startPicture;
    const QImage &bild() { return window->session().workspace().Bild.Image(); }
    ui::FilterMenu *menu() { return window->findChild<ui::FilterMenu *>(); }
};

} // namespace

TEST_F(FilterDialogs, TheMenuRunsTheSameFilterAsTheEngine)
{
    ui::FilterMenu *m = menu();
    ASSERT_NE(m, nullptr);
    QAction *negative = m->entryAction(QStringLiteral("mn_Negative"));
    ASSERT_NE(negative, nullptr);
    negative->trigger();
    QImage expected = startPicture;
    Session engine;
    ASSERT_TRUE(DoGraficFilters(engine, 2, expected, {}));
    EXPECT_EQ(bild(), expected);
    QAction *rotation = m->entryAction(QStringLiteral("mn_Rotation"));
    ASSERT_NE(rotation, nullptr);
    EXPECT_TRUE(rotation->isEnabled());
    EXPECT_TRUE(m->entryAction(QStringLiteral("mn_SwapBank"), 3)->isEnabled());
}

TEST_F(FilterDialogs, ASliderDialogPreviewsSmallAppliesOnOkAndCancelGivesThePictureBack)
{
    Session &s = window->session();
    {
        ui::GammaDialog d(s, *findFilter(31), window.get());
        EXPECT_TRUE(d.Previewed());
        d.slider(0)->setValue(250);
        EXPECT_FALSE(d.Previewed());
        // The small preview is a reduced copy: the picture is larger than the preview area.
        EXPECT_LE(d.previewImage().width(), 240);
        screenshot(d, "frmGamma-31");
        d.cmdCancel();
    }
    EXPECT_EQ(bild(), startPicture);
    {
        ui::GammaDialog d(s, *findFilter(31), window.get());
        d.slider(0)->setValue(250);
        d.cmdOK();
        EXPECT_FALSE(d.Cancelled());
    }
    QImage expected = startPicture;
    FilterArgs a;
    a.argument = 250;
    Session engine;
    ASSERT_TRUE(DoGraficFilters(engine, 31, expected, a));
    EXPECT_EQ(bild(), expected);
    s.workspace().Menu_UndoRedo();
    EXPECT_EQ(bild(), startPicture);
}

TEST_F(FilterDialogs, TheColourFieldDialogPicksTheColourFromThePicture)
{
    ui::GammaDialog d(window->session(), *findFilter(40), window.get());
    d.pickAt(QPoint(400, 300));
    EXPECT_EQ(d.colourField(0)->colour(), fromQRgb(startPicture.pixel(400, 300)));
    EXPECT_EQ(d.values().position, QPoint(400, 300));
    screenshot(d, "frmGamma-40");
    d.cmdOK();
    EXPECT_NE(bild(), startPicture);
}

TEST_F(FilterDialogs, TheChannelMixerAndTheHueDialog)
{
    {
        ui::GammaDialog d(window->session(), *findFilter(43), window.get());
        EXPECT_NE(d.findChild<QWidget *>(QStringLiteral("frBanks")), nullptr);
        EXPECT_EQ(d.findChild<QWidget *>(QStringLiteral("frScrolls")), nullptr);
        screenshot(d, "frmGamma-43");
        d.cmdCancel();
    }
    ui::ColouriseDialog c(window->session(), window.get());
    c.setHue(0.5f);
    c.setSaturation(25);
    c.cmdPreview();
    screenshot(c, "frmColourise");
    c.cmdCancel();
    EXPECT_EQ(bild(), startPicture);
}
