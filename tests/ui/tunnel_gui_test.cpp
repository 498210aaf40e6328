// The plasma tunnel in the window: it runs from the timer while the window stays live, the
// other commands wait, Stop ends it after a frame.
#include "windowfixture.h"

#include <QAction>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QImageReader>
#include <QLineEdit>
#include <QSpinBox>
#include <QTimer>
#include <QMenuBar>
#include <QStackedWidget>

using namespace tf;

namespace {

struct TunnelGui : StartedWindow {
    void SetUp() override
    {
        StartedWindow::SetUp();
        choose("Plasma");
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
    // The timer shows frame after frame (30 a second on a free machine; a loaded one is
    // given three seconds for the first three).
    QElapsedTimer clock;
    clock.start();
    while (s.animation().framesShown < 3 && clock.elapsed() < 3000) wait(20);
    EXPECT_GE(s.animation().framesShown, 3);
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

TEST_F(TunnelGui, SaveAnimationWritesTheTunnelOnShow)
{
    Session &s = window->session();
    child<QPushButton>("BtnPlasmaRepaint(0)")->click();
    wait(150);
    child<QPushButton>("BtnPlasmaRepaint(1)")->click();
    wait(100);
    ASSERT_FALSE(s.runState().animating());
    const QImage onShow = s.workspace().Bild.Image();

    const QString path = dir.filePath(QStringLiteral("tunnel.gif"));
    bool sawDialog = false, sawFiles = false;
    // The frames dialog, then the file dialog, answered as a user would, as soon as each is
    // shown (a look every 50 ms; after 10 s whatever is open is cancelled).
    QTimer answer;
    QElapsedTimer clock;
    clock.start();
    QObject::connect(&answer, &QTimer::timeout, [&] {
        for (QWidget *w : QApplication::topLevelWidgets()) {
            auto *files = qobject_cast<QFileDialog *>(w);
            if (files && files->isVisible() && !sawFiles &&
                files->objectName() == QLatin1String("dlgAnimationFile")) {
                sawFiles = true;
                files->setDirectory(dir.path());
                if (auto *name = files->findChild<QLineEdit *>(QStringLiteral("fileNameEdit")))
                    name->setText(QStringLiteral("tunnel.gif"));
                QMetaObject::invokeMethod(files, "accept", Qt::QueuedConnection);
                return;
            }
            auto *dialog = qobject_cast<QDialog *>(w);
            if (dialog && dialog->objectName() == QLatin1String("frmAnimation") && !sawDialog) {
                sawDialog = true;
                if (auto *frames = dialog->findChild<QSpinBox *>(QStringLiteral("txtFrames")))
                    frames->setValue(4);
                screenshot(*dialog, "animation_dialog");
                QMetaObject::invokeMethod(dialog, "accept", Qt::QueuedConnection);
                return;
            }
        }
        if (clock.elapsed() > 10000)
            if (auto *modal = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
                modal->reject();
    });
    answer.start(50);
    window->findChild<QAction *>(QStringLiteral("mn_AnimationSpeichern"))->trigger();
    answer.stop();
    wait(200);
    EXPECT_TRUE(sawDialog);
    EXPECT_TRUE(sawFiles);
    QImageReader reader(path, "gif");
    EXPECT_EQ(reader.imageCount(), 4);
    // The first frame is the frame on show (within the GIF's colours).
    const QImage first = reader.read().convertToFormat(QImage::Format_RGB32);
    ASSERT_EQ(first.size(), onShow.size());
    int worst = 0;
    for (int y = 0; y < first.height(); y += 17)
        for (int x = 0; x < first.width(); x += 13)
            worst = std::max(worst, std::abs(qGreen(first.pixel(x, y)) - qGreen(onShow.pixel(x, y))));
    EXPECT_LE(worst, 24);
}
