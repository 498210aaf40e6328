// The filters as the user meets them beyond the menu: the command line gives the bytes of
// the menu entry, the filter dialog's picture after zooms and scrolls, and frmGetSteps asks
// for one number. With TF_SCREENSHOTS set to a folder the dialogs are saved there too.
#include "filters/dografic.h"
#include "filters/filtercommand.h"
#include "filters/filtertable.h"
#include "paint/session.h"
#include "ui/filtermenu.h"
#include "ui/gammadialog.h"
#include "ui/getstepsdialog.h"
#include "windowfixture.h"

#include <QLineEdit>
#include <QScrollBar>
#include <QSlider>

using namespace tf;

namespace {

struct FilterSurfaces : StartedWindow {
    QImage startPicture;
    void SetUp() override
    {
        StartedWindow::SetUp();
        startPicture = photoLike(700, 500);
        window->session().workspace().New_BildSize(700, 500);
        window->session().workspace().Bild.setPicture(startPicture);
    }
    QImage bild() { return window->session().workspace().Bild.Image().convertToFormat(QImage::Format_RGB32); }
    void restart() { window->session().workspace().Bild.setPicture(startPicture); }
    // The command line's result for the same picture.
    QImage commandLine(const QStringList &args)
    {
        const QString in = dir.filePath(QStringLiteral("in.png"));
        EXPECT_TRUE(startPicture.save(in));
        return writtenBy(QStringList{QStringLiteral("filter")} + args.mid(0, 1) +
                         QStringList{in, QStringLiteral("-o"), outFile()} + args.mid(1));
    }
};

} // namespace

TEST_F(FilterSurfaces, TheCommandLineGivesTheBytesOfTheMenuEntry)
{
    ui::FilterMenu *menu = window->findChild<ui::FilterMenu *>();
    ASSERT_NE(menu, nullptr);
    // A direct entry with its fixed argument, and a target routine.
    menu->entryAction(QStringLiteral("mn_SharpenMore"))->trigger();
    EXPECT_EQ(bild(), commandLine({QStringLiteral("sharpen"), QStringLiteral("--arg"), QStringLiteral("16")}));
    restart();
    menu->entryAction(QStringLiteral("mn_BW4"))->trigger();
    EXPECT_EQ(bild(), commandLine({QStringLiteral("floyd-steinberg")}));
    restart();
    // A dialog filter with its slider.
    {
        ui::GammaDialog d(window->session(), *findFilter(31), window.get());
        d.slider(0)->setValue(150);
        d.cmdOK();
    }
    EXPECT_EQ(bild(), commandLine({QStringLiteral("gamma"), QStringLiteral("--set"), QStringLiteral("Factor=1.50")}));
}

TEST_F(FilterSurfaces, ThePictureAfterZoomsAndScrolls)
{
    ui::GammaDialog d(window->session(), *findFilter(25), window.get());
    QPushButton *in = d.zoomButton(true), *out = d.zoomButton(false);
    ASSERT_NE(in, nullptr);
    EXPECT_FALSE(out->isEnabled());
    EXPECT_FALSE(d.scrollBar(Qt::Horizontal)->isEnabled());
    EXPECT_LE(d.previewImage().width(), 240);
    in->click(); // 1/2
    in->click(); // 1:1
    EXPECT_DOUBLE_EQ(d.zoom().scale(), 1.0);
    EXPECT_TRUE(out->isEnabled());
    QScrollBar *h = d.scrollBar(Qt::Horizontal);
    EXPECT_EQ(h->maximum(), 700 - 240);
    EXPECT_EQ(d.scrollBar(Qt::Vertical)->maximum(), 500 - 240);
    h->setValue(0);
    d.scrollBar(Qt::Vertical)->setValue(0);
    // At 1:1 in the top left corner the preview is the full result's corner.
    QImage full = startPicture;
    {
        Session engine;
        ASSERT_TRUE(DoGraficFilters(engine, 25, full, defaultArguments(*findFilter(25))));
    }
    EXPECT_EQ(d.previewImage(), full.copy(0, 0, 240, 240));
    in->click(); // 2:1
    screenshot(d, "frmGamma-25-zoomed");
    while (out->isEnabled())
        out->click();
    EXPECT_FALSE(h->isEnabled());
    d.cmdCancel();
    EXPECT_EQ(bild(), startPicture);
}

TEST_F(FilterSurfaces, GetStepsTakesANumberWithinItsRange)
{
    setLanguage(Language::German);
    ui::GetStepsDialog d(QStringLiteral("Faktor"), 1.0f, 0.01f, 5.0f, 0.01f, window.get());
    EXPECT_EQ(d.txtValue()->text(), QStringLiteral("1"));
    d.vscroll()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    EXPECT_EQ(d.txtValue()->text(), QStringLiteral("1,01"));
    d.txtValue()->setText(QStringLiteral("7"));
    d.cmdOK();
    EXPECT_TRUE(d.Cancelled());
    EXPECT_EQ(d.info(), QStringLiteral("Bitte geben Sie eine Zahl von 0,01 bis 5 ein."));
    screenshot(d, "frmGetSteps");
    d.txtValue()->setText(QStringLiteral("2,5"));
    d.cmdOK();
    EXPECT_FALSE(d.Cancelled());
    EXPECT_FLOAT_EQ(d.GD_Wert(), 2.5f);
}
