// The plasma tunnel in the window: it runs from the timer while the window stays live, the
// other commands wait, Stop ends it after a frame.
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "windowfixture.h"

#include <QAction>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QMenuBar>
#include <QPushButton>
#include <QStackedWidget>

using namespace tf;

namespace {

struct TunnelGui : WindowFixture {
    void SetUp() override
    {
        WindowFixture::SetUp();
        start();
        const TypeLocation where = *findType(QStringLiteral("Plasma"));
        mn_Grafmodes(window->session(), where.group);
        ListBoxType_Click(window->session(), where.listIndex);
        QApplication::processEvents();
    }
    template <typename T> T *child(const char *name)
    {
        return window->findChild<T *>(QLatin1String(name));
    }
    // Runs the event loop for `ms` milliseconds.
    static void wait(int ms)
    {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < ms) QApplication::processEvents(QEventLoop::AllEvents, 10);
    }
};

} // namespace

TEST_F(TunnelGui, StartRunsFramesFromTheTimerAndStopEndsIt)
{
    Session &s = window->session();
    auto *start = child<QPushButton>("BtnPlasmaRepaint(0)");
    auto *stop = child<QPushButton>("BtnPlasmaRepaint(1)");
    ASSERT_NE(start, nullptr);
    ASSERT_NE(stop, nullptr);
    if (auto *options = window->findChild<QDockWidget *>(QStringLiteral("frmFeatDialog1")))
        options->raise();
    screenshot(*window, "plasma_panel");
    EXPECT_TRUE(start->isEnabled());
    EXPECT_FALSE(stop->isEnabled());
    const QImage before = s.workspace().Bild.Image();

    start->click();
    ASSERT_TRUE(s.runState().animating());
    EXPECT_FALSE(window->menuBar()->isEnabled());
    EXPECT_FALSE(start->isEnabled());
    EXPECT_TRUE(stop->isEnabled());
    wait(400);
    // About 30 frames a second, however busy the machine: several frames have been shown.
    const long shown = s.animation().framesShown;
    EXPECT_GE(shown, 3);
    const QImage running = s.workspace().Bild.Image();
    EXPECT_NE(running, before);
    // A paint waits while the tunnel runs; Paint (F5) is its Stop.
    child<QAction>("mn_Undo")->trigger();
    EXPECT_TRUE(s.runState().animating());
    screenshot(*window, "plasma_tunnel");

    stop->click();
    wait(200);
    EXPECT_FALSE(s.runState().animating());
    EXPECT_TRUE(window->menuBar()->isEnabled());
    EXPECT_TRUE(start->isEnabled());
    EXPECT_FALSE(stop->isEnabled());
    const long atStop = s.animation().framesShown;
    wait(150);
    EXPECT_EQ(s.animation().framesShown, atStop); // no frame after the stop
    EXPECT_EQ(s.workspace().Bild.Picture(), s.workspace().Bild.Image());

    // F5 stops a running tunnel too.
    start->click();
    ASSERT_TRUE(s.runState().animating());
    child<QAction>("mn_Paint")->trigger();
    wait(200);
    EXPECT_FALSE(s.runState().animating());
}
