// The hand tools in the window: the tool bar arms them, the mouse over the picture reaches the
// engine, the edit menu works on selections and the desktop's clipboard.
#include "ui/pictureview.h"
#include "windowfixture.h"

#include <QAction>
#include <QClipboard>
#include <QDockWidget>
#include <QGuiApplication>
#include <QListView>
#include <QScrollArea>
#include <QMouseEvent>

using namespace tf;

namespace {

QAction *action(tf::ui::MainWindow &w, const char *name)
{
    return w.findChild<QAction *>(QString::fromLatin1(name));
}

// A mouse event as the window system delivers it to the picture.
void mouse(QWidget *w, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held, QPoint at)
{
    QMouseEvent e(type, QPointF(at), QPointF(at), w->mapToGlobal(QPointF(at)), button, held,
                  Qt::NoModifier);
    QApplication::sendEvent(w, &e);
}

} // namespace

struct ToolsWindow : WindowFixture {
    // The view of Bild (the colour dock has views of its own).
    QWidget *view()
    {
        auto *area = window->findChild<QScrollArea *>(QStringLiteral("picContainer"));
        return area ? area->widget() : nullptr;
    }
    Workspace &ws() { return window->session().workspace(); }
};

TEST_F(ToolsWindow, TheToolBarArmsAToolAndTheMouseDrawsWithIt)
{
    start();
    window->session().colours().RandomColors = false;
    window->session().colours().ColorFore = RGB(200, 0, 0);
    QAction *pen = action(*window, "tbFreehand");
    ASSERT_TRUE(pen);
    pen->trigger();
    EXPECT_EQ(ToolEngine::of(window->session()).armed(), Tool::Freehand);
    EXPECT_TRUE(pen->isChecked());
    auto *v = view();
    mouse(v, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton, QPoint(20, 30));
    mouse(v, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton, QPoint(60, 30));
    mouse(v, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton, QPoint(60, 30));
    EXPECT_EQ(ws().Bild.Point(40, 30), RGB(200, 0, 0));
    // The right button releases the tool and the key pops up.
    mouse(v, QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton, QPoint(5, 5));
    mouse(v, QEvent::MouseButtonRelease, Qt::RightButton, Qt::NoButton, QPoint(5, 5));
    EXPECT_EQ(ToolEngine::of(window->session()).armed(), Tool::None);
    EXPECT_FALSE(pen->isChecked());
    screenshot(*window, "tools_pen");
}

TEST_F(ToolsWindow, CopyAndPasteGoThroughTheDesktopsClipboard)
{
    start();
    QImage picture(40, 30, QImage::Format_RGB32);
    picture.fill(qRgb(10, 200, 30));
    QGuiApplication::clipboard()->setImage(picture);
    QAction *paste = action(*window, "mn_Edit(2)");
    ASSERT_TRUE(paste);
    EXPECT_EQ(paste->shortcut(), QKeySequence(QStringLiteral("Ctrl+V")));
    paste->trigger();
    ASSERT_TRUE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTMOVED"));
    EXPECT_EQ(ws().PicSelect.Image().pixel(5, 5), qRgb(10, 200, 30));
    EXPECT_TRUE(action(*window, "mn_Edit(0)")->isEnabled()); // cut needs a selection
    screenshot(*window, "tools_paste");
    action(*window, "mn_Edit(6)")->trigger(); // deselect: the paste is stamped
    EXPECT_FALSE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().Bild.Point(5, 5), RGB(10, 200, 30));
    EXPECT_FALSE(action(*window, "mn_Edit(0)")->isEnabled());
    action(*window, "mn_Edit(1)")->trigger(); // copy: the whole picture
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(ws().BildW, ws().BildH));
}

TEST_F(ToolsWindow, At1600x1000TheTypeListShowsTenRows)
{
    start();
    window->resize(1600, 1000);
    QApplication::processEvents();
    QDockWidget *graf = window->findChild<QDockWidget *>(QStringLiteral("frmGrafDialog"));
    ASSERT_TRUE(graf);
    QListView *list = graf->findChild<QListView *>(QStringLiteral("ListBoxType"));
    ASSERT_TRUE(list);
    const QModelIndex first = list->model()->index(0, 0);
    const int row = list->visualRect(first).height();
    ASSERT_GT(row, 0);
    EXPECT_GE(list->viewport()->height() / row, 10);
    screenshot(*window, "tools_layout");
}

TEST_F(ToolsWindow, TheDocksStayWhereTheUserPutThem)
{
    start();
    auto *options = window->findChild<QDockWidget *>(QStringLiteral("frmFeatDialog1"));
    ASSERT_TRUE(options);
    EXPECT_EQ(window->dockWidgetArea(options), Qt::RightDockWidgetArea);
    window->addDockWidget(Qt::LeftDockWidgetArea, options);
    window->close();
    window.reset();
    start();
    options = window->findChild<QDockWidget *>(QStringLiteral("frmFeatDialog1"));
    EXPECT_EQ(window->dockWidgetArea(options), Qt::LeftDockWidgetArea);
}
