// "ART-Mondrian" in the desktop program: its panel comes on top with the button "Repaint
// letztes Set", which paints the same frames again. With TF_SCREENSHOTS set to a folder the
// window is saved there.
#include "generators/mondrianframes.h"
#include "paint/mondriantables.h"
#include "windowfixture.h"

using namespace tf;

namespace {

using MondrianWindowTest = StartedWindow;

TEST_F(MondrianWindowTest, RepaintLetztesSetPaintsTheSameFramesAgain)
{
    choose("ART-Mondrian");
    EXPECT_EQ(options()->currentPanel(),
              QStringLiteral("feat_01Mondrian"));
    paintButton()->click();
    QApplication::processEvents();
    Session &s = window->session();
    ASSERT_TRUE(s.mondrian().holdsLayout());
    const auto frames = mondrianFrames(s.mondrian());
    const QImage first = s.workspace().Bild.Image();

    auto *repaint = button("BtnMondrian_Repaint");
    ASSERT_NE(repaint, nullptr);
    EXPECT_EQ(repaint->text(), QStringLiteral("Repaint letztes Set"));
    repaint->click();
    QApplication::processEvents();
    EXPECT_TRUE(test::sameFrames(mondrianFrames(s.mondrian()), frames));
    EXPECT_NE(s.workspace().Bild.Image(), first);
    EXPECT_TRUE(prompter.asked().empty());
    auto *dock = options();
    dock->raise();
    screenshot(*window, "mondrian-window");
    dock->setFloating(true);
    dock->resize(360, 900);
    screenshot(*dock, "mondrian-panel");
}

TEST_F(MondrianWindowTest, TheTypeListOfThePanelPaintsABoogie)
{
    choose("ART-Mondrian");
    Session &s = window->session();
    ASSERT_TRUE(s.controls().set(ControlKey{QStringLiteral("cmbMondrian_Format"), 1},
                                 QStringLiteral("2")));
    const QImage before = s.workspace().Bild.Image();
    paintButton()->click();
    QApplication::processEvents();
    EXPECT_NE(s.workspace().Bild.Image(), before);
    EXPECT_EQ(s.mondrian().MondrianLastType, 2);
    EXPECT_TRUE(prompter.asked().empty());
    screenshot(*window, "boogie-window");
}

} // namespace
