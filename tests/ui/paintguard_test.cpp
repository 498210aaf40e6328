// While a paint gives way to the event loop, every other handler of the window stays still.
#include "core/pictureformats.h"
#include "paint/painter.h"
#include "windowfixture.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QSlider>
#include <QTimer>
#include <functional>

using namespace tf;

namespace {

// What the painter does while it gives way; set by each test.
std::function<void()> g_whilePainting;

// Paints the picture blue, then gives way until the test has driven the window.
void yieldingPainter(PaintContext &ctx)
{
    ctx.XBild.Line(0, 0, ctx.XBild.Width() - 1, ctx.XBild.Height() - 1, RGB(0, 0, 255),
                   LineFlags::BF);
    bool done = false;
    QTimer::singleShot(0, [&] {
        if (g_whilePainting) g_whilePainting();
        done = true;
    });
    QElapsedTimer clock;
    clock.start();
    while (!done && !ctx.stopRequested() && clock.elapsed() < 10000)
        ctx.DoEvents();
}

const PainterEntry yieldingTable[] = {{"Backgroundcolor", yieldingPainter, true},
                                      {"Boxes-Kreisradius", yieldingPainter, true}};

struct PaintGuardTest : StartedWindow {
    void SetUp() override
    {
        StartedWindow::SetUp();
        window->session().setPainters(yieldingTable);
    }
    void TearDown() override
    {
        g_whilePainting = nullptr;
        WindowFixture::TearDown();
    }
    void paintFirstType()
    {
        typeList()->setCurrentRow(0);
        paintButton()->click();
    }
};

} // namespace

TEST_F(PaintGuardTest, EveryHandlerDoesNothingWhileAPaintGivesWay)
{
    Session &s = window->session();
    Workspace &ws = s.workspace();
    // A fixing of another size: a Restore during the paint would resize Bild under the painter.
    ws.New_BildSize(60, 40);
    window->fixings().BtnFix_Click();
    ws.New_BildSize(50, 30);
    const int fixLast = window->fixings().FixLast;
    s.colours().RandomColors = true;
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    const ControlKey transparency{QStringLiteral("ScrollTransparence")};
    s.controls().set(transparency, QStringLiteral("0"));
    prompter.clear();

    int triggered = 0;
    g_whilePainting = [&] {
        ASSERT_TRUE(s.runState().painting());
        child<QPushButton>("BtnRestore")->click();
        child<QPushButton>("BtnFix")->click();
        child<QPushButton>("BtnClip")->click();
        child<QComboBox>("cmbGroup")->setCurrentIndex(4);
        child<QListWidget>("ListBoxType")->setCurrentRow(2);
        child<QCheckBox>("XRandomColors")->click();
        child<QWidget>("ScrollTransparence")->findChild<QSlider *>()->setValue(50);
        // Every command of the menus, the toolbar and the keys, but Paint (it is Stop now)
        // and the end (it stops the paint first, see below).
        for (QAction *a : window->findChildren<QAction *>()) {
            if (a->parent() != window.get() || a->objectName() == QLatin1String("mn_Paint") ||
                a->objectName() == QLatin1String("mn_Ende"))
                continue;
            a->trigger();
            ++triggered;
        }
    };
    paintFirstType();

    EXPECT_GT(triggered, 30);
    EXPECT_FALSE(s.runState().busy());
    EXPECT_EQ(QSize(ws.BildW, ws.BildH), QSize(50, 30));
    EXPECT_EQ(ws.Bild.Image().size(), QSize(50, 30));
    EXPECT_EQ(ws.Bild.Point(49, 29), RGB(0, 0, 255)); // the paint, not undone, cleared or restored
    EXPECT_EQ(window->fixings().FixLast, fixLast);
    EXPECT_EQ(s.paint().GrafGroup, 1);
    EXPECT_EQ(s.paint().dialog.ListIndex(), 0);
    EXPECT_EQ(child<QComboBox>("cmbGroup")->currentIndex(), 0);
    EXPECT_EQ(child<QListWidget>("ListBoxType")->currentRow(), 0);
    EXPECT_TRUE(s.colours().RandomColors);
    EXPECT_TRUE(child<QCheckBox>("XRandomColors")->isChecked());
    EXPECT_EQ(s.controls().value(transparency), 0);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
    EXPECT_TRUE(prompter.asked().empty()) << prompter.lastText().toStdString();
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);

    // At rest the same handlers act again.
    child<QComboBox>("cmbGroup")->setCurrentIndex(4);
    EXPECT_EQ(s.paint().GrafGroup, 5);
}

TEST_F(PaintGuardTest, ClosingDuringAPaintStopsItAndClosesAfterwards)
{
    g_whilePainting = [&] {
        EXPECT_FALSE(window->close());
        EXPECT_TRUE(window->isVisible());
    };
    paintFirstType();
    EXPECT_FALSE(window->session().runState().busy());
    // The paint changed the picture: the close question comes once the paint has stopped.
    prompter.script({Answer::Yes});
    QElapsedTimer clock;
    clock.start();
    while (window->isVisible() && clock.elapsed() < 5000)
        QApplication::processEvents();
    EXPECT_FALSE(window->isVisible());
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("Das Bild wurde geändert und der aktuelle Stand "
                             "noch nicht gesichert. Wollen Sie trotzdem beenden?"));
}
