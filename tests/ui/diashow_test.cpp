// The slide show's window over real photos: it moves on by its timer, stands while paused,
// goes back to what it showed, closes on Escape and on the paint's Stop, and saves a clicked
// file name.
#include "generators/diashow.h"
#include "generators/painters.h"
#include "paint/session.h"
#include "support/testdata.h"
#include "ui/diashowwindow.h"
#include "ui/windowfixture.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFile>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;
using tf::ui::DiaShowWindow;

namespace {

// Lets the event loop run until `done` or `ms` milliseconds have passed.
template <typename Done> bool waitFor(Done done, int ms = 20000)
{
    QElapsedTimer clock;
    clock.start();
    while (!done() && clock.elapsed() < ms)
        QApplication::processEvents(QEventLoop::AllEvents, 20);
    return done();
}

void key(QWidget &w, int k)
{
    QKeyEvent press(QEvent::KeyPress, k, Qt::NoModifier);
    QApplication::sendEvent(&w, &press);
}

struct DiaShowTest : ::testing::Test {
    QTemporaryDir dir;
    Session s;
    ScriptedPrompter prompter;

    void SetUp() override
    {
        TF_REQUIRE_TESTDATA();
        s.setPrompter(&prompter);
        s.setPainters(painterTable());
        s.seed(17);
        s.picSources().PicSource = testdataPath(QStringLiteral("photos/kodak/landscape"));
        Controls &c = s.controls();
        c.set({QStringLiteral("optPicMosaikSource")}, QStringLiteral("1"));
        c.set({QStringLiteral("txtPMKachel"), 0}, QStringLiteral("2"));
        c.set({QStringLiteral("txtPMKachel"), 1}, QStringLiteral("2"));
        c.set({QStringLiteral("XPicMosaik"), 2}, QStringLiteral("0"));
        c.set({QStringLiteral("XPicMosaik_ShowDiaFile")}, QStringLiteral("1"));
        c.set({QStringLiteral("txtPicMosaik_Timer")}, QStringLiteral("0.05"));
    }

    void open(DiaShowWindow &w)
    {
        w.resize(320, 240);
        w.show();
        ASSERT_TRUE(waitFor([&] { return w.diaShow() && w.diaShow()->steps() >= 1; }));
    }
};

} // namespace

TEST_F(DiaShowTest, MovesOnByItsTimerAndPausesAndGoesOn)
{
    DiaShowWindow w(s);
    open(w);
    const DiaShow &show = *w.diaShow();
    EXPECT_EQ(show.size(), QSize(320, 240));
    EXPECT_EQ(show.delayMs(), 50);
    // Four frames and the frame lines make a layout; the timer goes on into the next one.
    ASSERT_TRUE(waitFor([&] { return show.layouts() >= 2; }));
    EXPECT_GE(show.steps(), 6);
    EXPECT_TRUE(prompter.asked().empty()) << prompter.lastText().toStdString();

    key(w, Qt::Key_Space);
    EXPECT_TRUE(w.paused());
    EXPECT_FALSE(w.timerRunning());
    const int steps = show.steps();
    waitFor([] { return false; }, 300);
    EXPECT_EQ(show.steps(), steps);
    EXPECT_TRUE(w.findChild<QLabel *>(QStringLiteral("lblDiaPause"))->isVisible());

    key(w, Qt::Key_Right); // the next step at once, still paused
    EXPECT_EQ(show.steps(), steps + 1);
    EXPECT_FALSE(w.timerRunning());

    key(w, Qt::Key_P);
    EXPECT_FALSE(w.paused());
    EXPECT_TRUE(waitFor([&] { return show.steps() > steps + 2; }));
}

TEST_F(DiaShowTest, GoesBackToWhatItShowedAndForwardAgainBeforePaintingOn)
{
    s.controls().set({QStringLiteral("txtPicMosaik_Timer")}, QStringLiteral("600"));
    DiaShowWindow w(s);
    open(w);
    const DiaShow &show = *w.diaShow();
    const QImage first = show.image();
    const QString firstFile = show.file();
    EXPECT_FALSE(firstFile.isEmpty());
    w.next();
    w.next();
    ASSERT_EQ(show.steps(), 3);
    const QImage third = show.image();
    EXPECT_NE(third, first);

    key(w, Qt::Key_Left);
    key(w, Qt::Key_Left);
    EXPECT_EQ(show.image(), first);
    EXPECT_EQ(show.file(), firstFile);
    EXPECT_EQ(w.captionLabel()->text(), QFileInfo(firstFile).fileName());
    key(w, Qt::Key_Left); // nothing before the first step
    EXPECT_EQ(show.image(), first);

    w.next();
    w.next();
    EXPECT_EQ(show.steps(), 3); // walked forward through what was kept
    EXPECT_EQ(show.image(), third);
    w.next();
    EXPECT_EQ(show.steps(), 4);
}

TEST_F(DiaShowTest, ClosesOnEscapeAndOnThePaintsStop)
{
    {
        DiaShowWindow w(s);
        open(w);
        int closed = 0;
        QObject::connect(&w, &DiaShowWindow::closed, [&closed] { ++closed; });
        key(w, Qt::Key_Escape);
        EXPECT_FALSE(w.isVisible());
        EXPECT_EQ(closed, 1);
        EXPECT_FALSE(w.timerRunning());
    }
    DiaShowWindow w(s);
    open(w);
    s.paint().StopPaint = true;
    EXPECT_TRUE(waitFor([&] { return !w.isVisible(); }, 2000));
    s.paint().StopPaint = false;
}

TEST_F(DiaShowTest, AClickOnTheFileNameSavesIt)
{
    s.controls().set({QStringLiteral("txtPicMosaik_Timer")}, QStringLiteral("600"));
    DiaShowWindow w(s);
    const QString list = dir.filePath(QStringLiteral("shows/DiaShow-gesichert.txt"));
    w.setSavedListPath(list);
    open(w);
    QLabel *caption = w.captionLabel();
    ASSERT_TRUE(caption->isVisible());
    const QString file = w.diaShow()->file();
    EXPECT_TRUE(file.startsWith(testdataPath(QStringLiteral("photos/kodak/landscape/"))));
    EXPECT_EQ(caption->text(), QFileInfo(file).fileName());

    QMouseEvent press(QEvent::MouseButtonPress, QPointF(3, 3), caption->mapToGlobal(QPointF(3, 3)),
                      Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(caption, &press);
    EXPECT_EQ(caption->text(), QFileInfo(file).fileName() + QStringLiteral(" – gesichert"));
    QFile saved(list);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_EQ(saved.readAll(), file.toUtf8() + '\n');
    EXPECT_EQ(QApplication::clipboard()->text(), file);

    // Without "Dateinamen anzeigen" no name stands on the show.
    s.controls().set({QStringLiteral("XPicMosaik_ShowDiaFile")}, QStringLiteral("0"));
    w.next();
    EXPECT_FALSE(caption->isVisible());
    EXPECT_FALSE(w.saveShownName());
}

TEST_F(DiaShowTest, EndsWithTheMessageWhenThereIsNoSource)
{
    s.picSources().PicSource.clear();
    DiaShowWindow w(s);
    w.resize(200, 150);
    w.show();
    EXPECT_TRUE(waitFor([&] { return !w.isVisible(); }, 5000));
    ASSERT_FALSE(prompter.asked().empty());
    EXPECT_TRUE(prompter.asked().front().text.startsWith(
        QStringLiteral("Stellen Sie bitte zuerst ein Bildverzeichnis ein!")))
        << prompter.asked().front().text.toStdString();
}
