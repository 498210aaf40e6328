// The lead-glass and cathedral windows in the desktop program: their panels come on top, the
// paint reads them, and the panel's buttons repaint the last set (keeping its frames) or paint
// a new one. With TF_SCREENSHOTS set to a folder the window is saved there.
#include "generators/mondrianframes.h"
#include "paint/mondriantables.h"
#include "windowfixture.h"

using namespace tf;

namespace {

using LeadGlassWindowTest = StartedWindow;

TEST_F(LeadGlassWindowTest, ThePanelsButtonsRepaintTheSetAndPaintANewOne)
{
    Session &s = window->session();
    window->resize(1500, 1000);
    s.colours().RandomValues = false;
    s.controls().set(ControlKey{QStringLiteral("txtMLGKachel"), 0}, QStringLiteral("5"));
    s.controls().set(ControlKey{QStringLiteral("XMLG_Paint"), 1}, QStringLiteral("1"));
    s.controls().set(ControlKey{QStringLiteral("XMLG"), 5}, QStringLiteral("1"));
    s.controls().set(ControlKey{QStringLiteral("cmbPen"), -1}, QStringLiteral("3"));
    choose("ART-Mondrian-LeadGlass");
    ASSERT_TRUE(options());
    EXPECT_EQ(options()->currentPanel(), QStringLiteral("feat_20MLeadGlass"));
    ASSERT_TRUE(button("BtnPaint"));
    button("BtnPaint")->click();
    QApplication::processEvents();
    EXPECT_EQ(s.mondrian().MondrianHSplits, 5);
    const auto frames = mondrianFrames(s.mondrian());
    const QImage first = s.workspace().Bild.Image();

    ASSERT_TRUE(button("BtnMLG_Repaint_0"));
    button("BtnMLG_Repaint_0")->click();
    QApplication::processEvents();
    EXPECT_TRUE(test::sameFrames(mondrianFrames(s.mondrian()), frames));
    EXPECT_NE(s.workspace().Bild.Image(), first);
    options()->raise();
    screenshot(*window, "leadglass-window");

    ASSERT_TRUE(button("BtnMLG_Repaint_1"));
    button("BtnMLG_Repaint_1")->click();
    QApplication::processEvents();
    EXPECT_TRUE(s.mondrian().holdsLayout());
    EXPECT_TRUE(prompter.asked().empty());

    choose("ART-Cathedral-LeadGlass");
    EXPECT_EQ(options()->currentPanel(), QStringLiteral("feat_21CathedralWindow"));
    button("BtnPaint")->click();
    QApplication::processEvents();
    options()->raise();
    screenshot(*window, "cathedral-window");
    EXPECT_TRUE(prompter.asked().empty());
}

} // namespace
