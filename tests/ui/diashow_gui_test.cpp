// "PIC-DiaShow" in the desktop program: Paint runs the show in its own full-screen window while
// the Paint button stands as Stop; Stop ends it and the status bar tells the largest sizes.
// With TF_SCREENSHOTS set to a folder two moments of the show are saved there.
#include "generators/diashow.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "support/testdata.h"
#include "ui/diashowwindow.h"
#include "windowfixture.h"

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <gtest/gtest.h>

using namespace tf;

namespace {

struct DiaShowWindowTest : WindowFixture {
    void SetUp() override
    {
        WindowFixture::SetUp();
        start();
    }
    void choose(const char *key)
    {
        const auto where = findType(QString::fromUtf8(key));
        ASSERT_TRUE(where);
        mn_Grafmodes(window->session(), where->group);
        QApplication::processEvents();
        window->findChild<QListWidget *>(QStringLiteral("ListBoxType"))
            ->setCurrentRow(where->listIndex);
        QApplication::processEvents();
    }
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
    QObject::connect(&probe, &QTimer::timeout, [&] {
        ui::DiaShowWindow *show = openShow();
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
