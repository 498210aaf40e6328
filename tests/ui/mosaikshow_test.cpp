// The Superformat viewer frmMosaikShow over a surface filled by the test (as a Superformat
// paint fills it), the view menu's "Superformat anzeigen" and the paint dialog's label under
// the Superformat fields.
#include "core/surfacepreview.h"
#include "files/picturefile.h"
#include "paint/superformat.h"
#include "ui/mosaikshow.h"
#include "ui/supercanvas.h"
#include "windowfixture.h"

#include <QAbstractScrollArea>
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollBar>
#include <QWheelEvent>

using namespace tf;

namespace {

const ColorLong Red = RGB(220, 30, 30);
const ColorLong Blue = RGB(20, 40, 200);
const ColorLong Yellow = RGB(250, 220, 0);

// A picture of fields and lines as the Mondrian paints them, in picture coordinates: a red
// field at the top left, a blue one at the bottom right, yellow between, black lines.
void fillMondrianLike(cDIBSection &d)
{
    const int w = d.dib_width(), h = d.dib_height();
    auto box = [&](int x0, int y0, int x1, int y1, ColorLong c) {
        // LineDIB takes memory rows: row 0 is the bottom row as shown.
        cDIBSection::LineDIB(d, x0, h - 1 - y1, x1, h - 1 - y0, c, QStringLiteral("BF"));
    };
    box(0, 0, w - 1, h - 1, Yellow);
    box(0, 0, w / 3 - 1, h / 2 - 1, Red);
    box(w * 2 / 3, h / 2, w - 1, h - 1, Blue);
    box(w / 3 - 8, 0, w / 3 + 7, h - 1, 0);
    box(0, h / 2 - 8, w - 1, h / 2 + 7, 0);
}

QRgb rgbOf(ColorLong c) { return qRgb(RedOf(c), GreenOf(c), BlueOf(c)); }

QAction *actionNamed(QWidget &w, const QString &text)
{
    for (QAction *a : w.findChildren<QAction *>())
        if (a->text() == text) return a;
    return nullptr;
}

struct MosaikShowTest : WindowFixture {
    void paintSurface(int w, int h)
    {
        SuperformatSurfaces &sf = window->session().superformat();
        ASSERT_NE(sf.prepare(QSize(w, h), 0), SuperformatSurfaces::Prepared::Failed);
        fillMondrianLike(sf.SuperDIB);
        sf.touch();
    }
    ui::MosaikShow *viewer() { return window->findChild<ui::MosaikShow *>(QStringLiteral("frmMosaikShow")); }
};

} // namespace

TEST(SurfacePreview, SamplesThePartInViewAndAveragesTheOverview)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(1000, 600, 0));
    fillMondrianLike(d);
    // At 1/4 the view's pixel (10, 10) shows the surface's (42, 42): red; (200, 130) shows
    // (802, 522): blue.
    const QImage part = renderSurfacePart(d, QRect(0, 0, 250, 150), 0.25);
    ASSERT_EQ(part.size(), QSize(250, 150));
    EXPECT_EQ(part.pixel(10, 10), rgbOf(Red));
    EXPECT_EQ(part.pixel(200, 130), rgbOf(Blue));
    // Beyond the zoomed picture stays black.
    EXPECT_EQ(renderSurfacePart(d, QRect(240, 0, 20, 5), 0.25).pixel(15, 0), qRgb(0, 0, 0));
    // At 2 a surface pixel covers 2 x 2 view pixels.
    const QImage big = renderSurfacePart(d, QRect(646, 0, 6, 2), 2.0);
    EXPECT_EQ(big.pixel(3, 1), rgbOf(Red)); // x 324, the last column before the line
    EXPECT_EQ(big.pixel(4, 0), qRgb(0, 0, 0));
    EXPECT_EQ(big.pixel(5, 1), qRgb(0, 0, 0));

    const QImage over = surfaceOverview(d, 256);
    EXPECT_EQ(over.size(), QSize(250, 150)); // a factor of 4
    EXPECT_EQ(over.pixel(10, 10), rgbOf(Red));
    EXPECT_EQ(over.pixel(240, 140), rgbOf(Blue));
    // A block is the mean of its pixels: x 324..327 are one red and three black columns.
    EXPECT_EQ(over.pixel(81, 10), qRgb(55, 8, 8));
    EXPECT_EQ(over.pixel(83, 10), qRgb(0, 0, 0)); // x 332..335 lie in the line
}

TEST_F(MosaikShowTest, ShowsTheSurfaceToFitAndAt100PercentAndSavesIt)
{
    start();
    paintSurface(6000, 4000);
    QAction *show = actionNamed(*window, QStringLiteral("Superformat anzeigen"));
    ASSERT_NE(show, nullptr);
    show->trigger();
    ui::MosaikShow *v = viewer();
    ASSERT_NE(v, nullptr);
    v->resize(1000, 760);
    QApplication::processEvents();
    ui::SuperCanvas *canvas = v->canvas();
    EXPECT_TRUE(canvas->fitting());
    EXPECT_LT(canvas->zoom(), 0.2);
    QImage seen = canvas->viewport()->grab().toImage();
    const QSize zoomed = zoomedSize(window->session().superformat().SuperDIB, canvas->zoom());
    const QPoint o((seen.width() - zoomed.width()) / 2, (seen.height() - zoomed.height()) / 2);
    EXPECT_EQ(seen.pixel(o.x() + zoomed.width() / 6, o.y() + zoomed.height() / 4), rgbOf(Red));
    EXPECT_EQ(seen.pixel(o.x() + zoomed.width() * 5 / 6, o.y() + zoomed.height() * 3 / 4),
              rgbOf(Blue));
    screenshot(*v, "superformat_fit");

    // 100 %: the middle of the picture, where the black lines cross, comes into view.
    canvas->setZoom(1);
    canvas->horizontalScrollBar()->setValue(2000 - canvas->viewport()->width() / 2);
    canvas->verticalScrollBar()->setValue(2000 - canvas->viewport()->height() / 2);
    QApplication::processEvents();
    EXPECT_FALSE(canvas->fitting());
    seen = canvas->viewport()->grab().toImage();
    const int x0 = canvas->horizontalScrollBar()->value(), y0 = canvas->verticalScrollBar()->value();
    EXPECT_EQ(seen.pixel(2000 - x0, 2000 - y0), qRgb(0, 0, 0));
    EXPECT_EQ(seen.pixel(1990 - x0, 1900 - y0), rgbOf(Red));
    EXPECT_EQ(seen.pixel(2100 - x0, 1900 - y0), rgbOf(Yellow));
    screenshot(*v, "superformat_100");

    // Ctrl with the mouse wheel zooms about the point under the mouse: the black lines'
    // crossing stays where it was.
    const QPointF at(2000 - x0, 2000 - y0);
    QWheelEvent wheel(at, canvas->viewport()->mapToGlobal(at), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(canvas->viewport(), &wheel);
    EXPECT_DOUBLE_EQ(canvas->zoom(), 2.0 / 3);
    QApplication::processEvents();
    seen = canvas->viewport()->grab().toImage();
    EXPECT_EQ(seen.pixel(int(at.x()), int(at.y())), qRgb(0, 0, 0));
    EXPECT_EQ(seen.pixel(int(at.x()) - 12, int(at.y()) - 12), rgbOf(Red));
    canvas->setZoom(1);

    // "+" and "-" step through the zoom steps.
    canvas->zoomIn();
    EXPECT_DOUBLE_EQ(canvas->zoom(), 1.5);
    canvas->zoomOut();
    canvas->zoomOut();
    EXPECT_DOUBLE_EQ(canvas->zoom(), 2.0 / 3);

    // PNG keeps every pixel; JPEG is the picture's size.
    const QString png = dir.filePath(QStringLiteral("super.png"));
    const QString jpg = dir.filePath(QStringLiteral("super.jpg"));
    ASSERT_TRUE(v->saveTo(png, QStringLiteral("PNG")));
    ASSERT_TRUE(v->saveTo(jpg, QStringLiteral("JPG"), 80));
    const LoadResult p = LoadImage(png, LoadLimit::KeepSize);
    ASSERT_TRUE(p.loaded());
    EXPECT_EQ(p.image.size(), QSize(6000, 4000));
    EXPECT_EQ(p.image.pixel(100, 100), rgbOf(Red));
    EXPECT_EQ(p.image.pixel(5900, 3900), rgbOf(Blue));
    EXPECT_EQ(p.image.pixel(2000, 2000), qRgb(0, 0, 0));
    const LoadResult j = LoadImage(jpg, LoadLimit::KeepSize);
    ASSERT_TRUE(j.loaded());
    EXPECT_EQ(j.image.size(), QSize(6000, 4000));
    EXPECT_NEAR(qBlue(j.image.pixel(5000, 3500)), 200, 6);
    // Saving over a file asks first; No leaves it.
    prompter.script({Answer::No});
    EXPECT_FALSE(v->saveTo(png, QStringLiteral("BMP")));
    EXPECT_NE(prompter.lastText().indexOf(QStringLiteral("überschrieben")), -1);
}

TEST_F(MosaikShowTest, UndoInTheViewerBringsTheFormerPictureBack)
{
    start();
    paintSurface(800, 600);
    SuperformatSurfaces &sf = window->session().superformat();
    ASSERT_NE(sf.prepare(QSize(800, 600), 0), SuperformatSurfaces::Prepared::Failed);
    cDIBSection::LineDIB(sf.SuperDIB, 0, 0, 799, 599, Blue, QStringLiteral("BF"));
    window->session().view().showSuperformat();
    ui::MosaikShow *v = viewer();
    ASSERT_NE(v, nullptr);
    QAction *undo = actionNamed(*v, QStringLiteral("&Undo / Redo"));
    ASSERT_NE(undo, nullptr);
    ASSERT_TRUE(undo->isEnabled());
    undo->trigger();
    const uint8_t *p = sf.SuperDIB.view().row(599); // the top row as shown
    EXPECT_EQ(RGB(p[2], p[1], p[0]), Red);
}

TEST_F(MosaikShowTest, WithoutAPictureTheViewerSaysSoAndOffersNothingToSave)
{
    start();
    actionNamed(*window, QStringLiteral("Superformat anzeigen"))->trigger();
    ui::MosaikShow *v = viewer();
    ASSERT_NE(v, nullptr);
    bool said = false;
    for (QLabel *l : v->findChildren<QLabel *>())
        said = said || l->text() == QStringLiteral("Es gibt noch kein Superformat-Bild.");
    EXPECT_TRUE(said);
    EXPECT_FALSE(actionNamed(*v, QStringLiteral("Speichern andere For&mate..."))->isEnabled());
}

TEST_F(MosaikShowTest, ThePaintDialogShowsTheSuperformatsSizeAndMemory)
{
    start();
    auto *label = window->findChild<QLabel *>(QStringLiteral("lblSuperSize"));
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(),
              QStringLiteral("Superformat: 4096 x 4096 px = 34,7 x 34,7 cm bei 300 DPI, 50 MB"));
    window->session().controls().set(ControlKey{QStringLiteral("txtSuperSize"), 0},
                                      QStringLiteral("14000"));
    window->session().controls().set(ControlKey{QStringLiteral("txtSuperSize"), 1},
                                      QStringLiteral("14000"));
    EXPECT_EQ(label->text(),
              QStringLiteral("Superformat: 14000 x 14000 px = 118,5 x 118,5 cm bei 300 DPI, 588 MB"));
}
