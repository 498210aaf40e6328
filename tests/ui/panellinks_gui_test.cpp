// Links between option controls in the desktop program: a click on a check box enables or
// disables the widgets it governs and switches the paint dialog's "Ränder" on. With
// TF_SCREENSHOTS set to a folder the panels are saved there.
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "ui/controlpanelwidget.h"
#include "ui/featdialogdock.h"
#include "ui/mainwindow.h"
#include "windowfixture.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <gtest/gtest.h>

using namespace tf;

namespace {

struct PanelLinksWindowTest : WindowFixture {
    void SetUp() override
    {
        WindowFixture::SetUp();
        start();
        window->resize(1500, 1000);
    }
    void choose(const char *key)
    {
        const auto where = findType(QString::fromUtf8(key));
        ASSERT_TRUE(where);
        mn_Grafmodes(window->session(), where->group);
        QApplication::processEvents();
        window->findChild<QListWidget *>(QStringLiteral("ListBoxType"))->setCurrentRow(where->listIndex);
        QApplication::processEvents();
    }
    ui::ControlPanelWidget *panel(const char *name)
    {
        auto *options = window->findChild<ui::FeatDialogDock *>();
        return options ? options->panelWidget(QString::fromLatin1(name)) : nullptr;
    }
    template <typename W>
    W *widget(const char *name)
    {
        return window->findChild<W *>(QString::fromLatin1(name));
    }
};

TEST_F(PanelLinksWindowTest, TiffanyEnablesTheBorderWidthAndAllFramesSwitchesTheBordersOn)
{
    choose("ART-Mondrian-LeadGlass");
    ui::ControlPanelWidget *glass = panel("feat_20MLeadGlass");
    ASSERT_TRUE(glass);
    auto *tiffany = widget<QCheckBox>("XMLG(5)");
    auto *width = widget<QLineEdit>("txtMLGKachel(3)");
    ASSERT_TRUE(tiffany && width);
    EXPECT_FALSE(width->isEnabled());
    EXPECT_FALSE(glass->labelFor(controlKey("txtMLGKachel", 3))->isEnabled());
    tiffany->click();
    QApplication::processEvents();
    EXPECT_TRUE(width->isEnabled());
    EXPECT_TRUE(glass->labelFor(controlKey("txtMLGKachel", 3))->isEnabled());

    auto *harmonic = widget<QCheckBox>("XMLG(7)");
    auto *subdivide = widget<QCheckBox>("XMLG(6)");
    ASSERT_TRUE(harmonic && subdivide);
    EXPECT_TRUE(harmonic->isEnabled());
    subdivide->click();
    EXPECT_FALSE(harmonic->isEnabled());

    auto *allFrames = widget<QCheckBox>("XMLG(2)");
    auto *borders = widget<QCheckBox>("XBorders");
    ASSERT_TRUE(allFrames && borders);
    allFrames->click();
    borders->click();
    EXPECT_FALSE(borders->isChecked());
    allFrames->click();
    QApplication::processEvents();
    EXPECT_TRUE(borders->isChecked());
    EXPECT_TRUE(window->session().controls().checked(QStringLiteral("XBorders")));
    screenshot(*glass, "links-leadglass-panel");

    // The width keeps what was typed while the box is off again.
    width->setText(QStringLiteral("33"));
    emit width->editingFinished();
    tiffany->click();
    EXPECT_FALSE(width->isEnabled());
    EXPECT_EQ(width->text(), QStringLiteral("33"));
}

TEST_F(PanelLinksWindowTest, ABoogieTypeDisablesTheFormatAndEnablesItsColours)
{
    choose("ART-Mondrian");
    ui::ControlPanelWidget *mondrian = panel("feat_01Mondrian");
    ASSERT_TRUE(mondrian);
    auto *type = widget<QComboBox>("cmbMondrian_Format(1)");
    auto *format = widget<QComboBox>("cmbMondrian_Format(0)");
    auto *fourColours = widget<QCheckBox>("XMondrian(6)");
    QWidget *colour = mondrian->widgetFor(controlKey("pic4C", 0));
    ASSERT_TRUE(type && format && fourColours && colour);
    EXPECT_TRUE(format->isEnabled());
    EXPECT_FALSE(fourColours->isEnabled());
    EXPECT_FALSE(colour->isEnabled());
    type->setCurrentIndex(2);
    QApplication::processEvents();
    EXPECT_FALSE(format->isEnabled());
    EXPECT_TRUE(fourColours->isEnabled());
    EXPECT_FALSE(colour->isEnabled());
    fourColours->click();
    EXPECT_TRUE(colour->isEnabled());
    screenshot(*mondrian, "links-mondrian-boogie-panel");
    type->setCurrentIndex(0);
    QApplication::processEvents();
    EXPECT_TRUE(format->isEnabled());
    EXPECT_FALSE(colour->isEnabled());
    EXPECT_TRUE(fourColours->isChecked()); // kept, only disabled
    screenshot(*mondrian, "links-mondrian-standard-panel");
}

} // namespace
