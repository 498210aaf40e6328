// "PIC-DiaShow" in the desktop program: Paint runs the show in its own full-screen window while
// the Paint button stands as Stop; Stop ends it and the status bar tells the largest sizes.
// With TF_SCREENSHOTS set to a folder two moments of the show are saved there.
#include "files/presentation.h"
#include "generators/diashow.h"
#include "generators/mondrianlayout.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "support/testdata.h"
#include "ui/diashowwindow.h"
#include "windowfixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <gtest/gtest.h>

using namespace tf;

namespace {

struct DiaShowWindowTest : StartedWindow {
    static ui::DiaShowWindow *openShow()
    {
        for (QWidget *w : QApplication::topLevelWidgets())
            if (auto *show = qobject_cast<ui::DiaShowWindow *>(w); show && show->isVisible())
                return show;
        return nullptr;
    }
};

} // namespace

TEST_F(DiaShowWindowTest, PaintRunsTheShowInItsWindowUntilStop)
{
    TF_REQUIRE_TESTDATA();
    Session &s = window->session();
    // The program starts with a display time of 3000 ms.
    EXPECT_EQ(s.controls().text(QStringLiteral("txtPicMosaik_Timer")), QStringLiteral("3"));
    s.picSources().PicSource = testdataPath(QStringLiteral("photos/kodak/landscape"));
    s.controls().set({QStringLiteral("optPicMosaikSource")}, QStringLiteral("1"));
    s.controls().set({QStringLiteral("txtPicMosaik_Timer")}, QStringLiteral("0.2"));
    s.controls().set({QStringLiteral("XPicMosaik_ShowDiaFile")}, QStringLiteral("1"));
    s.colours().RandomValues = false;
    s.controls().set({QStringLiteral("txtPMKachel"), 0}, QStringLiteral("3"));
    s.controls().set({QStringLiteral("txtPMKachel"), 1}, QStringLiteral("2"));
    choose("PIC-DiaShow");
    const QImage before = s.workspace().Bild.Image();
    auto *paint = window->findChild<QPushButton *>(QStringLiteral("BtnPaint"));

    // The paint runs the show in an event loop of its own: it is looked at from a timer.
    int moments = 0;
    QString captionWhileShowing;
    bool fullScreen = false;
    int firstLayoutSteps = 0;
    QTimer probe;
    probe.setInterval(50);
    QElapsedTimer clock;
    clock.start();
    QObject::connect(&probe, &QTimer::timeout, [&] {
        ui::DiaShowWindow *show = openShow();
        if (show && clock.hasExpired(60000)) show->close(); // never hang the suite
        if (!show || !show->diaShow()) return;
        if (moments == 0 && show->diaShow()->layoutDone()) {
            fullScreen = show->isFullScreen();
            captionWhileShowing = paint->text();
            screenshot(*show, "diashow-1");
            firstLayoutSteps = show->diaShow()->steps();
            moments = 1;
        } else if (moments == 1 && show->diaShow()->layouts() >= 2 &&
                   show->diaShow()->steps() >= firstLayoutSteps + 4) {
            screenshot(*show, "diashow-2");
            moments = 2;
            paint->click(); // Stop
        }
    });
    probe.start();
    paint->click();
    probe.stop();
    QApplication::processEvents();

    EXPECT_EQ(moments, 2);
    EXPECT_TRUE(fullScreen);
    EXPECT_TRUE(captionWhileShowing.startsWith(QStringLiteral("STO")))
        << captionWhileShowing.toStdString();
    EXPECT_EQ(openShow(), nullptr);
    EXPECT_EQ(s.workspace().Bild.Image(), before);
    EXPECT_FALSE(s.runState().busy());
    QStringList panels;
    for (QLabel *l : window->statusBar()->findChildren<QLabel *>())
        panels << l->text();
    EXPECT_TRUE(panels.join(QLatin1Char('|')).contains(QStringLiteral("Max. Splitgrößen B/H = ")))
        << panels.join(QLatin1Char('|')).toStdString();
}

TEST_F(DiaShowWindowTest, RepaintWithTheShowChosenRepeatsALoadedPresentation)
{
    TF_REQUIRE_TESTDATA();
    // A presentation of two columns split at 500 and two rows split at 300, over the photos.
    Session maker;
    MondrianTables &m = maker.mondrian();
    m.MondrianHSplits = m.MondrianLastH = 2;
    m.MondrianVSplits = m.MondrianLastV = 2;
    for (Table3 *t : {&m.ArrCellH, &m.ArrSubH, &m.ArrSubVX})
        t->redim(3, 3, 3);
    for (Table3 *t : {&m.ArrCellV, &m.ArrSubHY, &m.ArrSubV})
        t->redim(2, 3, 3);
    const int xs[] = {0, 500, 800}, ys[] = {0, 300, 800};
    for (int c = 0; c < 2; ++c)
        for (int r = 0; r < 2; ++r) {
            m.ArrCellH(0, c, r) = xs[c];
            m.ArrCellH(1, c, r) = xs[c + 1];
            m.ArrCellH(2, c, r) = 1;
            m.ArrCellV(0, c, r) = ys[r];
            m.ArrCellV(1, c, r) = ys[r + 1];
            m.ArrCellV(2, c, r) = 1;
        }
    maker.picSources().PicSource = testdataPath(QStringLiteral("photos/kodak/landscape"));
    maker.controls().set({QStringLiteral("txtPicMosaik_Timer")}, QStringLiteral("1"));
    const QString file = dir.filePath(QStringLiteral("zwei.tvp"));
    ASSERT_TRUE(picPresentation_Save(maker, file, QSize(800, 800)));

    Session &s = window->session();
    ASSERT_TRUE(picPresentation_Load(s, file, QSize()));
    afterPresentationLoaded(s);
    choose("PIC-DiaShow");
    std::vector<MondrianFrame> shown;
    QTimer probe;
    probe.setInterval(50);
    QElapsedTimer clock;
    clock.start();
    QObject::connect(&probe, &QTimer::timeout, [&] {
        ui::DiaShowWindow *show = openShow();
        if (show && clock.hasExpired(60000)) show->close(); // never hang the suite
        if (show && show->diaShow() && show->diaShow()->steps() >= 1 && shown.empty()) {
            shown = mondrianFrames(s.mondrian());
            show->close();
        }
    });
    probe.start();
    window->findChild<QPushButton *>(QStringLiteral("BtnPicMosaik_Repaint"))->click();
    probe.stop();
    ASSERT_EQ(shown.size(), 4u);
    EXPECT_EQ(shown[0].right, 500);
    EXPECT_EQ(shown[0].bottom, 300);
    EXPECT_EQ(shown[3].left, 500);
    EXPECT_EQ(shown[3].top, 300);
    EXPECT_EQ(s.paint().GrafKey, QStringLiteral("PIC-DiaShow"));
    EXPECT_TRUE(prompter.asked().empty()) << prompter.lastText().toStdString();
}
