// The mouse tool engine driven by synthetic mouse events: arming, the drawing tools and the
// brushes, and what a press does beside a selection.
#include "paint/duocolortable.h"
#include "toolfixture.h"

using namespace tf;

TEST_F(ToolFixture, APressBesideAShownSelectionWithoutItsToolChangesNothing)
{
    pattern();
    cut(2, 2, 6, 6);
    ASSERT_TRUE(ws().PicSelect.Visible());
    tools->disarm();
    const QImage before = ws().Bild.Image();
    const QImage selection = ws().PicSelect.Image();
    const QString action = ws().lastaction;
    for (Tool t : {Tool::None, Tool::Freehand, Tool::Fill, Tool::Line, Tool::CSelect}) {
        tools->arm(t);
        drag({QPoint(9, 8), QPoint(11, 9)});
        EXPECT_EQ(ws().Bild.Image(), before);
        EXPECT_EQ(ws().PicSelect.Image(), selection);
        EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(2, 2, 4, 4));
        EXPECT_EQ(ws().lastaction, action);
    }
}

TEST_F(ToolFixture, ADragOfOnePixelLeavesNoSelection)
{
    const QImage before = ws().Bild.Image();
    cut(5, 5, 6, 6);
    EXPECT_FALSE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().Bild.Image(), before);
    tools->arm(Tool::CSelect);
    drag({QPoint(3, 3), QPoint(5, 5)}); // 2 pixels: below the ellipse's least 3
    EXPECT_FALSE(ws().picSelectC.Visible());
    EXPECT_EQ(ws().Bild.Image(), before);
    cut(5, 5, 7, 7);
    EXPECT_TRUE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().PicSelect.Width(), 2);
}

TEST_F(ToolFixture, AFillAtTheLastPixelStaysInsideAndActsOnce)
{
    ws().Bild.Line(4, 0, 4, 10, Black); // a thin line leaves its end point
    tools->arm(Tool::Fill);
    click(11, 9);
    for (int y = 0; y < 10; ++y) {
        EXPECT_EQ(at(3, y), White);
        EXPECT_EQ(at(4, y), Black);
        EXPECT_EQ(at(5, y), Red);
        EXPECT_EQ(at(11, y), Red);
    }
    EXPECT_EQ(tools->armed(), Tool::None);
    // A press beyond the last pixel fills from the last pixel.
    s.colours().ColorFore = Blue;
    tools->arm(Tool::Fill);
    tools->MouseDown(vbLeftButton, 0, 40, 30);
    EXPECT_EQ(at(11, 9), Blue);
    EXPECT_EQ(at(0, 0), White);
    ws().Menu_UndoRedo();
    EXPECT_EQ(at(11, 9), Red);
}

TEST_F(ToolFixture, ARandomFillDiffersFromTheColourUnderIt)
{
    s.colours().RandomColors = true;
    s.colours().XDuotones[1] = true;
    s.colours().DuoColors = {White, White, Blue, NoColour};
    tools->arm(Tool::Fill);
    click(3, 3);
    EXPECT_EQ(at(3, 3), Blue);
}

TEST_F(ToolFixture, ThePipettesRightButtonChangesOnlyTheBackground)
{
    ws().Bild.PSet(3, 4, Blue);
    s.colours().ColorBack = White;
    tools->arm(Tool::Pipette);
    click(3, 4, vbRightButton);
    EXPECT_EQ(s.colours().ColorBack, Blue);
    EXPECT_EQ(s.colours().ColorFore, Red);
    click(0, 0);
    EXPECT_EQ(s.colours().ColorFore, White);
    EXPECT_EQ(s.colours().TextFore, White);
    EXPECT_EQ(s.colours().ColorBack, Blue);
    EXPECT_EQ(tools->armed(), Tool::Pipette); // it stays armed
}

TEST_F(ToolFixture, TheRightButtonDisarms)
{
    for (Tool t : {Tool::Line, Tool::Box, Tool::Freehand, Tool::Spray, Tool::Select}) {
        tools->arm(t);
        click(3, 3, vbRightButton);
        EXPECT_EQ(tools->armed(), Tool::None);
    }
    EXPECT_EQ(ws().Bild.Image().pixel(3, 3), qRgb(255, 255, 255));
}

TEST_F(ToolFixture, TheLineShowsARubberBandAndDrawsOnRelease)
{
    tools->arm(Tool::Line);
    tools->MouseDown(vbLeftButton, 0, 1, 1);
    tools->MouseMove(vbLeftButton, 0, 6, 6);
    EXPECT_TRUE(tools->rubberBands().lineVisible);
    EXPECT_EQ(tools->rubberBands().line1, QLine(1, 1, 6, 6));
    EXPECT_EQ(at(3, 3), White); // the band is not drawn into the picture
    tools->MouseUp(vbLeftButton, 0, 6, 6);
    EXPECT_FALSE(tools->rubberBands().lineVisible);
    for (int i = 1; i < 6; ++i)
        EXPECT_EQ(at(i, i), Red) << i;
    EXPECT_EQ(at(6, 6), White); // a thin line leaves its end point
    EXPECT_EQ(tools->armed(), Tool::Line);
}

TEST_F(ToolFixture, ShapesFollowTheirPanel)
{
    tools->arm(Tool::Box);
    set("cmbFeatShapes", QStringLiteral("0"));
    drag({QPoint(1, 1), QPoint(5, 4)});
    EXPECT_EQ(at(1, 1), Red);
    EXPECT_EQ(at(5, 4), Red);
    EXPECT_EQ(at(3, 1), Red);
    EXPECT_EQ(at(3, 2), White); // outline only
    // Filled, with the border colour round it.
    s.colours().ColorBorder = Blue;
    set("XShapeOutlined", QStringLiteral("1"), 1);
    drag({QPoint(6, 2), QPoint(10, 8)});
    EXPECT_EQ(at(6, 2), Blue);
    EXPECT_EQ(at(8, 5), Red);
    // Neither outline nor fill, or too small: nothing.
    const QImage before = ws().Bild.Image();
    drag({QPoint(0, 0), QPoint(1, 8)});
    set("XShapeOutlined", QStringLiteral("0"), 0);
    set("XShapeOutlined", QStringLiteral("0"), 1);
    drag({QPoint(0, 0), QPoint(8, 8)});
    EXPECT_EQ(ws().Bild.Image(), before);
}

TEST_F(ToolFixture, ThePenDrawsAlongThePath)
{
    tools->arm(Tool::Freehand);
    drag({QPoint(1, 2), QPoint(4, 2), QPoint(9, 2), QPoint(9, 6)});
    for (int x = 1; x <= 9; ++x) EXPECT_EQ(at(x, 2), Red) << x;
    for (int y = 2; y <= 6; ++y) EXPECT_EQ(at(9, y), Red) << y;
    EXPECT_EQ(at(5, 4), White);
    ws().Menu_UndoRedo();
    EXPECT_EQ(at(4, 2), White); // one Undo takes the whole stroke
}

TEST_F(ToolFixture, ABroadNibSweepsItsQuad)
{
    set("optPenStyle", QStringLiteral("4")); // upright nib
    set("scrollTipWidth", QStringLiteral("2"));
    tools->arm(Tool::Freehand);
    drag({QPoint(2, 5), QPoint(8, 5)});
    for (int y = 3; y <= 7; ++y) {
        EXPECT_EQ(at(5, y), Red) << y;
        EXPECT_EQ(at(2, y), Red) << y;
    }
    EXPECT_EQ(at(5, 1), White);
}

TEST_F(ToolFixture, ABrushStrokeHasNoGapsAtAnySpeed)
{
    picture(80, 20);
    set("cmbSprayType", QStringLiteral("1"));
    set("scrollSpray", QStringLiteral("1"), 0);
    set("scrollSpray", QStringLiteral("100"), 1);
    set("XSprayBrush", QStringLiteral("0"), 0);
    tools->arm(Tool::Spray);
    drag({QPoint(2, 5), QPoint(70, 5), QPoint(70, 15)});
    for (int x = 2; x <= 70; ++x) EXPECT_EQ(at(x, 5), Red) << x;
    for (int y = 5; y <= 15; ++y) EXPECT_EQ(at(70, y), Red) << y;
    EXPECT_EQ(at(1, 5), White);
    EXPECT_EQ(at(30, 6), White);
    ws().Menu_UndoRedo();
    EXPECT_EQ(at(30, 5), White);
}

TEST_F(ToolFixture, ABrushPaintsEachPixelOnceAStroke)
{
    set("cmbSprayType", QStringLiteral("1"));
    set("scrollSpray", QStringLiteral("5"), 0);
    set("scrollSpray", QStringLiteral("50"), 1);
    tools->arm(Tool::Spray);
    // Going over the same place again in one stroke does not darken it.
    drag({QPoint(5, 5), QPoint(6, 5), QPoint(5, 5), QPoint(6, 5)});
    EXPECT_EQ(ws().Bild.Image().pixel(5, 5), qRgb(255, 128, 128));
    EXPECT_EQ(tools->rubberBands().sprayDiameter, 5);
}

TEST_F(ToolFixture, ADabShowsOnlyTheRectangleItChanged)
{
    picture(400, 300);
    std::vector<QRect> reported;
    ws().Bild.setChangedHook([&](const QRect &r) { reported.push_back(r); });
    set("cmbSprayType", QStringLiteral("0"));
    set("scrollSpray", QStringLiteral("9"), 0);
    tools->arm(Tool::Spray);
    tools->MouseDown(vbLeftButton, 0, 100, 100);
    reported.clear();
    tools->MouseMove(vbLeftButton, 0, 104, 100);
    ASSERT_FALSE(reported.empty());
    for (const QRect &r : reported) EXPECT_LE(r.width() * r.height(), 20 * 20);
    tools->MouseUp(vbLeftButton, 0, 104, 100);
}

TEST_F(ToolFixture, TheStatusShowsThePositionAndTheColourUnderThePointer)
{
    ws().Bild.PSet(3, 4, RGB(10, 20, 30));
    EXPECT_EQ(tools->pointerText(3, 4), QStringLiteral("3 / 4   RGB(10, 20, 30)"));
    EXPECT_EQ(tools->pointerText(12, 4), QString());
    EXPECT_EQ(tools->cursorAt(3, 4), ToolCursor::Arrow);
    tools->arm(Tool::Pipette);
    EXPECT_EQ(tools->cursorAt(3, 4), ToolCursor::Pipette);
}

TEST_F(ToolFixture, NoToolArmsWhileAPaintRuns)
{
    s.runState().setPainting(true);
    tools->arm(Tool::Fill);
    EXPECT_EQ(tools->armed(), Tool::None);
    s.runState().setPainting(false);
}

namespace {

// A stand-in for the text painter: a dot where the position fields say.
void textAtPosition(PaintContext &ctx)
{
    const Controls &c = ctx.session.controls();
    ctx.XBild.PSet(c.number(ControlKey{QStringLiteral("txtDialogXYPos"), 0}),
                   c.number(ControlKey{QStringLiteral("txtDialogXYPos"), 1}), 0xFF0000);
}

} // namespace

TEST_F(ToolFixture, TheTextPositionNeedsTheTextPainterAndPaintsWhereClicked)
{
    tools->arm(Tool::TextPos);
    EXPECT_EQ(tools->armed(), Tool::None); // no text painter in this session
    static const PainterEntry table[] = {{"TEXT-Dialog", textAtPosition, true}};
    s.setPainters(table);
    tools->arm(Tool::TextPos);
    ASSERT_EQ(tools->armed(), Tool::TextPos);
    click(7, 3);
    EXPECT_EQ(s.controls().text(ControlKey{QStringLiteral("txtDialogXYPos"), 0}), QStringLiteral("7"));
    EXPECT_EQ(at(7, 3), Blue);
    EXPECT_EQ(tools->armed(), Tool::None); // one click
    s.setPainters({});
}
