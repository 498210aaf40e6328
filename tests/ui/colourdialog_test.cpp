#include "paint/session.h"
#include "ui/colourdialogdock.h"
#include "ui/colourfield.h"
#include "ui/pictureview.h"
#include "windowfixture.h"

#include <QCheckBox>
#include <QLabel>
#include <QToolButton>

using namespace tf;

namespace {

struct ColourDialogTest : StartedWindow {
    ui::ColourDialogDock *dock = nullptr;
    void SetUp() override
    {
        StartedWindow::SetUp();
        dock = window->findChild<ui::ColourDialogDock *>(QStringLiteral("frmColorDialog"));
        ASSERT_TRUE(dock);
    }
    ui::PictureView *chart(const char *name)
    {
        return dock->findChild<ui::PictureView *>(QString::fromLatin1(name));
    }
    ColourState &colours() { return window->session().colours(); }
    // The grey chart runs from black at x 0 to white at its right end.
    void pressGrey(int x, Qt::MouseButton b, Qt::KeyboardModifiers m = Qt::NoModifier)
    {
        emit chart("picPaletteGrey")->mousePressed(b, m, QPoint(x, 5));
        emit chart("picPaletteGrey")->mouseReleased(b, m, QPoint(x, 5));
    }
};

} // namespace

TEST_F(ColourDialogTest, ButtonsAndModifiersSendThePickedColourToItsField)
{
    const ColorLong grey = chart("picPaletteGrey")->picture().Point(128, 5);
    ASSERT_EQ(RedOf(grey), GreenOf(grey));
    pressGrey(128, Qt::LeftButton);
    EXPECT_EQ(colours().ColorFore, grey);
    EXPECT_EQ(dock->findChild<ui::ColourField *>(QStringLiteral("picForeColor"))->colour(), grey);

    pressGrey(0, Qt::RightButton);
    EXPECT_EQ(colours().ColorBack, 0);
    EXPECT_EQ(colours().ColorFore, grey);

    const ColorLong border = colours().ColorBorder;
    pressGrey(255, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_EQ(colours().ColorBorder, 0xFFFFFF);
    EXPECT_EQ(colours().ColorFore, grey);
    EXPECT_NE(border, 0xFFFFFF);

    pressGrey(64, Qt::LeftButton, Qt::ShiftModifier);
    const ColorLong dark = chart("picPaletteGrey")->picture().Point(64, 5);
    EXPECT_EQ(colours().ColorFore, dark);
    EXPECT_EQ(colours().ColorBorder, dark);
}

TEST_F(ColourDialogTest, TheStripFollowsTheTwoColoursUnlessThePaletteIsLocked)
{
    pressGrey(0, Qt::LeftButton);    // black
    pressGrey(255, Qt::RightButton); // white
    // Channels more than 128 apart climb by one a step from the foreground.
    EXPECT_EQ(colours().Pal256[200], RGB(200, 200, 200));
    colours().XLockPalette = true;
    pressGrey(128, Qt::LeftButton);
    EXPECT_EQ(colours().Pal256[200], RGB(200, 200, 200));
}

TEST_F(ColourDialogTest, SwitchAndEqualsAndTheMouseReadOut)
{
    pressGrey(0, Qt::LeftButton);
    pressGrey(255, Qt::RightButton);
    dock->findChild<QToolButton *>(QStringLiteral("picColoSwitch"))->click();
    EXPECT_EQ(colours().ColorFore, 0xFFFFFF);
    EXPECT_EQ(colours().ColorBack, 0);
    dock->findChild<QToolButton *>(QStringLiteral("picColoIdent"))->click();
    EXPECT_EQ(colours().ColorBack, 0xFFFFFF);

    emit chart("picPaletteGrey")->mouseMoved(Qt::NoButton, Qt::NoModifier, QPoint(255, 3));
    EXPECT_EQ(dock->findChild<QLabel *>(QStringLiteral("lblTextColor"))->text(),
              QStringLiteral("R:255 G:255: B:255"));
}

TEST_F(ColourDialogTest, DuotoneBoxesExcludeEachOtherAndTurnRandomColoursOff)
{
    auto *duo0 = dock->findChild<QCheckBox *>(QStringLiteral("XDuotones(0)"));
    auto *duo1 = dock->findChild<QCheckBox *>(QStringLiteral("XDuotones(1)"));
    auto *random = dock->findChild<QCheckBox *>(QStringLiteral("XRandomColors"));
    ASSERT_TRUE(random->isChecked());
    duo0->click();
    EXPECT_TRUE(colours().DuoActive);
    EXPECT_FALSE(random->isChecked());
    duo1->click();
    EXPECT_TRUE(duo1->isChecked());
    EXPECT_FALSE(duo0->isChecked());
    random->click();
    EXPECT_FALSE(colours().DuoActive);
    EXPECT_FALSE(duo1->isChecked());
}

TEST_F(ColourDialogTest, ANewBackgroundFillsThePlaceUnderAVisibleSelection)
{
    Workspace &ws = window->session().workspace();
    ws.PicSelect.resize(10, 8);
    ws.PicSelect.Move(20, 30);
    ws.PicSelect.setVisible(true);
    pressGrey(0, Qt::RightButton);
    EXPECT_EQ(ws.Bild.Point(20, 30), 0);
    EXPECT_EQ(ws.Bild.Point(29, 37), 0);
    EXPECT_EQ(ws.Bild.Point(30, 37), 0xFFFFFF);
    EXPECT_EQ(ws.Bild.Point(19, 30), 0xFFFFFF);
}
