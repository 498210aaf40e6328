// The mountains, the wave grid, the rotating lines, the spirograph and the circle gradients in
// the desktop program: their panels come on top and are read by the paint, and Stop during a
// long circle gradient ends it with what is painted. With TF_SCREENSHOTS set to a folder the
// window is saved there.
#include "windowfixture.h"

#include <QElapsedTimer>
#include <QTimer>

using namespace tf;

namespace {

using CentreWindowTest = StartedWindow;

} // namespace

TEST_F(CentreWindowTest, TheMountainsAndCircleGradientsBringTheirPanelsOnTop)
{
    ASSERT_TRUE(options());
    for (const auto &[key, panel] :
         {std::pair{"Mountains", "feat_07Mountains"}, {"Mountains-Pen", "feat_07Mountains"},
          {"Mountains-Gradient", "feat_07Mountains"}, {"Radial", "feat_04CircleGradients"},
          {"Sunburst", "feat_04CircleGradients"}, {"Radial-4spirals", "feat_04CircleGradients"}}) {
        choose(key);
        EXPECT_EQ(options()->currentPanel(), QString::fromLatin1(panel)) << key;
    }
}

TEST_F(CentreWindowTest, EveryNewTypePaintsFromTheWindow)
{
    Session &s = window->session();
    window->resize(1500, 1000);
    for (const char *key : {"Spirograph", "Mountains", "Mountains-Pen", "Mountains-Gradient",
                            "Wave-Grid", "70th-Rotating", "70th-Rotating-Crazy", "Radial",
                            "Sunburst", "Radial-4spirals"}) {
        choose(key);
        s.workspace().Bild.setPicture(QImage());
        s.workspace().Bild.Cls();
        const QImage before = s.workspace().Bild.Image();
        paintButton()->click();
        EXPECT_NE(s.workspace().Bild.Image(), before) << key;
        EXPECT_EQ(paintButton()->text(), QStringLiteral("Paint <F5>")) << key;
    }
    choose("Mountains");
    s.colours().RandomValues = false;
    s.controls().set({QStringLiteral("X3DMountain")}, QStringLiteral("1"));
    paintButton()->click();
    options()->raise();
    screenshot(*window, "centre-mountains");
    choose("Radial-4spirals");
    paintButton()->click();
    options()->raise();
    screenshot(*window, "centre-spirals");
}

TEST_F(CentreWindowTest, StopDuringALongCircleGradientKeepsWhatIsPainted)
{
    Session &s = window->session();
    s.workspace().New_BildSize(2400, 1800);
    choose("Radial-4spirals");
    s.colours().RandomValues = false;
    s.colours().RandomColors = false;
    s.colours().ColorFore = RGB(255, 0, 0);
    s.colours().ColorBack = RGB(0, 0, 255);
    // Paint cleared to green, so what the discs did not reach shows.
    s.workspace().Bild.Line(0, 0, 2399, 1799, RGB(0, 255, 0), LineFlags::BF);
    s.workspace().Bild.setPicture(s.workspace().Bild.Image());

    QString whilePainting;
    prompter.script({Answer::Ok});
    QTimer::singleShot(40, [&] {
        whilePainting = paintButton()->text();
        paintButton()->click();
    });
    QElapsedTimer clock;
    clock.start();
    paintButton()->click();
    EXPECT_EQ(whilePainting, QStringLiteral("STO&PP !"));
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("Die Ausgabe wurde angehalten! Bitte bestätigen."));
    EXPECT_EQ(paintButton()->text(), QStringLiteral("Paint <F5>"));
    EXPECT_FALSE(s.runState().busy());
    // The discs are painted quarter by quarter: the last one (lower left) was never reached.
    EXPECT_EQ(s.workspace().Bild.Point(600, 1350), RGB(0, 255, 0));
}
