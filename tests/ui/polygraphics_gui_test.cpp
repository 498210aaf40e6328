// The drawn types in the desktop program: their option panels come on top, a paint with
// chosen options is repeated by its command line, and "The Matrix" opens its own window,
// which a key closes, leaving the picture as it was. With TF_SCREENSHOTS set to a folder the
// window (and the matrix window) is saved there.
#include "paint/paintrecord.h"
#include "ui/matrixwindow.h"
#include "windowfixture.h"

#include <QKeyEvent>

using namespace tf;

namespace {

struct PolyWindowTest : StartedWindow {
    ui::MatrixWindow *matrixWindow()
    {
        for (QWidget *w : QApplication::topLevelWidgets())
            if (auto *m = dynamic_cast<ui::MatrixWindow *>(w); m && m->isVisible()) return m;
        return nullptr;
    }
};

} // namespace

TEST_F(PolyWindowTest, TheCurveAndTileTypesBringTheirPanelsOnTop)
{
    ASSERT_TRUE(options());
    for (const auto &[key, panel] :
         {std::pair{"Poly-Area", "feat_04PolyArea"}, {"Rose", "feat_06Rose"},
          {"Lissajou", "feat_05Lissajou"}, {"Kacheln", "feat_02Kacheln"},
          {"Interne Kacheln", "feat_08InterneKacheln"}, {"The Matrix", "feat_09Matrix"}}) {
        choose(key);
        EXPECT_EQ(options()->currentPanel(), QString::fromLatin1(panel)) << key;
    }
}

TEST_F(PolyWindowTest, ARoseWithChosenOptionsIsRepeatedByItsCommandLine)
{
    Session &s = window->session();
    window->resize(1500, 1000);
    choose("Rose");
    s.colours().RandomValues = false;
    s.controls().set({QStringLiteral("txtRose"), 0}, QStringLiteral("5"));
    s.controls().set({QStringLiteral("txtRose"), 1}, QStringLiteral("3"));
    s.controls().set({QStringLiteral("XAAlias")}, QStringLiteral("1"));
    paintButton()->click();
    screenshot(*window, "poly-rose");
    ASSERT_TRUE(s.paint().lastPaint.has_value());

    s.workspace().Bild.setPicture(QImage());
    s.paint().nextSeed = s.paint().lastPaint->seed;
    paintButton()->click();
    const QImage painted = s.workspace().Bild.Image().convertToFormat(QImage::Format_RGB32);
    const QStringList args = paintCommandArguments(*s.paint().lastPaint);
    EXPECT_TRUE(args.contains(QStringLiteral("txtRose(0)=5"))) << args.join(' ').toStdString();
    EXPECT_EQ(writtenBy(args + QStringList{QStringLiteral("-o"), outFile()}), painted);
}

TEST_F(PolyWindowTest, TheMatrixOpensItsOwnWindowAndLeavesThePicture)
{
    Session &s = window->session();
    choose("Squares-In-Square");
    paintButton()->click();
    const QImage before = s.workspace().Bild.Image();
    choose("The Matrix");
    paintButton()->click();
    ui::MatrixWindow *matrix = matrixWindow();
    ASSERT_NE(matrix, nullptr);
    EXPECT_EQ(s.workspace().Bild.Image(), before);
    for (int i = 0; i < 30; ++i) matrix->tick();
    // Green glyphs on black.
    const QImage frame = matrix->frame();
    int green = 0;
    for (int y = 0; y < frame.height(); y += 3)
        for (int x = 0; x < frame.width(); x += 3) {
            const QRgb p = frame.pixel(x, y);
            green += qGreen(p) > 60 && qGreen(p) > qRed(p) && qGreen(p) > qBlue(p);
        }
    EXPECT_GT(green, 20);
    screenshot(*matrix, "poly-matrix");
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(matrix, &escape);
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(matrixWindow(), nullptr);
}
