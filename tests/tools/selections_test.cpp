// Selections through the mouse, the edit menu and Undo: the cut and its hole, moving,
// stretching, stamping, and painting inside.
#include "paint/paintdriver.h"

#include <QFile>
#include <QTransform>
#include "toolfixture.h"

using namespace tf;

TEST_F(ToolFixture, ACutLeavesAHoleInTheBackgroundColour)
{
    pattern();
    const QImage before = ws().Bild.Image();
    s.colours().ColorBack = Blue;
    cut(2, 3, 7, 6);
    ASSERT_TRUE(ws().PicSelect.Visible());
    EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(2, 3, 5, 3));
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTINIT"));
    EXPECT_EQ(s.transparency().XBild, &ws().PicSelect);
    for (int y = 3; y < 6; ++y)
        for (int x = 2; x < 7; ++x) {
            EXPECT_EQ(at(x, y), Blue);
            EXPECT_EQ(ws().PicSelect.Image().pixel(x - 2, y - 3), before.pixel(x, y));
        }
    EXPECT_EQ(ws().Bild.Image().pixel(1, 3), before.pixel(1, 3));
    EXPECT_EQ(ws().Bild.Image().pixel(7, 5), before.pixel(7, 5));
    // Undo hides the fresh selection, a second Undo shows it again.
    ws().Menu_UndoRedo();
    EXPECT_FALSE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTHIDDEN"));
    ws().Menu_UndoRedo();
    EXPECT_TRUE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTINIT"));
}

TEST_F(ToolFixture, AStampHalfOutsideKeepsOnlyTheOverlap)
{
    pattern();
    const QImage before = ws().Bild.Image();
    cut(0, 0, 4, 4);
    tools->disarm();
    drag({QPoint(1, 1), QPoint(5, 5), QPoint(11, 9)}); // the selection now lies at (10,8)
    EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(10, 8, 4, 4));
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTMOVED"));
    const QImage withHole = ws().Bild.Image();
    Menu_Edit(s, EditDeselect, clip);
    EXPECT_FALSE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTCOPIED"));
    EXPECT_EQ(s.transparency().XBild, &ws().Bild);
    const QImage now = ws().Bild.Image();
    for (int y = 0; y < 10; ++y)
        for (int x = 0; x < 12; ++x) {
            const QRgb expected = x >= 10 && y >= 8 ? before.pixel(x - 10, y - 8) : withHole.pixel(x, y);
            EXPECT_EQ(now.pixel(x, y), expected) << x << "," << y;
        }
    // The part that lay outside is gone: Undo brings back the picture and the selection.
    ws().Menu_UndoRedo();
    EXPECT_EQ(ws().Bild.Image(), withHole);
    EXPECT_TRUE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECT"));
    EXPECT_TRUE(ws().SelFlagRect);
    EXPECT_EQ(ws().PicSelect.Image(), before.copy(0, 0, 4, 4));
}

TEST_F(ToolFixture, TheRightButtonOnTheSelectionStampsItAndReleasesTheTool)
{
    pattern();
    cut(2, 2, 5, 5);
    click(3, 3, vbRightButton);
    EXPECT_FALSE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTCOPIED"));
    EXPECT_EQ(tools->armed(), Tool::None);
}

TEST_F(ToolFixture, AMoveIsUndoneToItsPlace)
{
    pattern();
    cut(2, 2, 5, 5);
    tools->disarm();
    drag({QPoint(3, 3), QPoint(7, 5)});
    drag({QPoint(7, 5), QPoint(8, 6)});
    EXPECT_EQ(Selections::placeOf(ws().PicSelect).topLeft(), QPoint(7, 5));
    ws().Menu_UndoRedo();
    EXPECT_EQ(Selections::placeOf(ws().PicSelect).topLeft(), QPoint(2, 2));
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECT"));
    EXPECT_TRUE(ws().PicSelect.Visible());
}

TEST_F(ToolFixture, StretchingByTheCornerResizesAndUndoPutsTheSizeBack)
{
    pattern();
    cut(0, 0, 10, 8);
    tools->disarm();
    EXPECT_EQ(tools->cursorAt(9, 7), ToolCursor::SizeFDiag);
    EXPECT_EQ(tools->cursorAt(0, 4), ToolCursor::SizeHor);
    EXPECT_EQ(tools->cursorAt(9, 0), ToolCursor::SizeBDiag);
    EXPECT_EQ(tools->cursorAt(4, 4), ToolCursor::Move);
    drag({QPoint(9, 7), QPoint(4, 3)});
    EXPECT_EQ(ws().PicSelect.Width(), 5);
    EXPECT_EQ(ws().PicSelect.Height(), 4);
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTRESIZED"));
    ws().Menu_UndoRedo();
    EXPECT_EQ(ws().PicSelect.Width(), 10);
    EXPECT_EQ(ws().PicSelect.Height(), 8);
}

TEST_F(ToolFixture, StretchingByTheLeftEdgeKeepsTheRightEdge)
{
    pattern();
    cut(2, 2, 10, 8); // 8 x 6 at (2,2)
    tools->disarm();
    drag({QPoint(2, 5), QPoint(6, 5)});
    EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(6, 2, 4, 6));
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTRESIZED"));
    // Past the opposite edge it stays one pixel wide.
    drag({QPoint(6, 5), QPoint(11, 5)});
    EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(9, 2, 1, 6));
    ws().Menu_UndoRedo();
    EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(2, 2, 8, 6));
}

TEST_F(ToolFixture, ToolsPaintInsideTheSelectionAndUndoSwapsTheStroke)
{
    cut(2, 2, 8, 8);
    tools->arm(Tool::Freehand);
    const QImage bild = ws().Bild.Image();
    drag({QPoint(3, 4), QPoint(6, 4)});
    EXPECT_EQ(ws().Bild.Image(), bild);
    for (int x = 1; x <= 4; ++x) EXPECT_EQ(selAt(x, 2), Red) << x;
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECT$PAINT"));
    ws().Menu_UndoRedo();
    EXPECT_EQ(selAt(2, 2), White);
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECT"));
    ws().Menu_UndoRedo(); // and back again
    EXPECT_EQ(selAt(2, 2), Red);
}

TEST_F(ToolFixture, TheEllipseCutsAndStampsOnlyItsPixels)
{
    pattern();
    const QImage before = ws().Bild.Image();
    s.colours().ColorBack = Blue;
    tools->arm(Tool::CSelect);
    drag({QPoint(1, 1), QPoint(11, 9)});
    ASSERT_TRUE(ws().picSelectC.Visible());
    EXPECT_EQ(ws().lastaction, QStringLiteral("CIRCINIT"));
    EXPECT_EQ(at(6, 5), Blue);                                    // the middle is cut
    EXPECT_EQ(ws().Bild.Image().pixel(1, 1), before.pixel(1, 1)); // the corner is not
    EXPECT_EQ(ws().PicMask.Point(0, 0), White);
    EXPECT_EQ(ws().PicMask.Point(5, 4), Black);
    // Moved one pixel to the right and stamped: the ellipse's pixels only.
    tools->disarm();
    drag({QPoint(6, 5), QPoint(7, 5)});
    Menu_Edit(s, EditDeselect, clip);
    EXPECT_EQ(ws().lastaction, QStringLiteral("CIRCCOPIED"));
    EXPECT_EQ(ws().Bild.Image().pixel(7, 5), before.pixel(6, 5));
    EXPECT_EQ(ws().Bild.Image().pixel(2, 1), before.pixel(2, 1));
}

TEST_F(ToolFixture, ShiftMakesTheEllipseACircleInsideThePicture)
{
    tools->arm(Tool::CSelect);
    drag({QPoint(4, 5), QPoint(11, 5)}, vbShiftMask);
    ASSERT_TRUE(ws().picSelectC.Visible());
    // Seven to the right, but only four to the top edge.
    EXPECT_EQ(Selections::placeOf(ws().picSelectC), QRect(0, 1, 8, 8));
}

TEST_F(ToolFixture, CopyCutAndPasteGoThroughTheClipboard)
{
    pattern();
    const QImage before = ws().Bild.Image();
    Menu_Edit(s, EditCopy, clip);
    EXPECT_EQ(clip.held, before); // without a selection, the whole picture
    cut(1, 1, 4, 3);
    Menu_Edit(s, EditCut, clip);
    EXPECT_EQ(clip.held, before.copy(1, 1, 3, 2));
    EXPECT_FALSE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTHIDDEN"));

    Menu_Edit(s, EditPaste, clip, QPoint(6, 5));
    ASSERT_TRUE(ws().PicSelect.Visible());
    EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(6, 5, 3, 2));
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTMOVED"));
    Menu_Edit(s, EditDeselect, clip);
    EXPECT_EQ(ws().Bild.Image().pixel(6, 5), before.pixel(1, 1));

    // A picture larger than the work picture comes in with its proportions.
    clip.held = QImage(48, 20, QImage::Format_RGB32);
    clip.held.fill(Qt::green);
    Menu_Edit(s, EditPaste, clip, QPoint(3, 3));
    EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(0, 3, 12, 5));
    // Undo of a paste takes it away.
    ws().Menu_UndoRedo();
    EXPECT_FALSE(ws().PicSelect.Visible());
}

TEST_F(ToolFixture, PasteWithoutAPictureSaysSoAndChangesNothing)
{
    RecordingStatus status;
    s.setStatus(&status);
    const QImage before = ws().Bild.Image();
    Menu_Edit(s, EditPaste, clip);
    EXPECT_EQ(status.panelText(sbrState), QStringLiteral("Die Zwischenablage enthält kein Bild."));
    EXPECT_EQ(ws().Bild.Image(), before);
    EXPECT_FALSE(ws().PicSelect.Visible());
    s.setStatus(nullptr);
}

TEST_F(ToolFixture, SelectAllAndAlign)
{
    Menu_Edit(s, EditSelectAll, clip);
    EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(0, 0, 12, 10));
    Menu_Edit(s, EditDeselect, clip);
    cut(0, 0, 4, 4);
    mn_PicAusrichten(s, 5);
    EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(8, 6, 4, 4));
    mn_PicAusrichten(s, 3);
    EXPECT_EQ(Selections::placeOf(ws().PicSelect), QRect(4, 3, 4, 4));
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECTMOVED"));
}

TEST_F(ToolFixture, APaintClearsTheSelectionsFlags)
{
    cut(0, 0, 4, 4);
    Menu_Edit(s, EditDeselect, clip);
    ASSERT_TRUE(ws().SelFlagRect);
    BtnPaint_Click(s);
    EXPECT_FALSE(ws().SelFlagRect);
    EXPECT_FALSE(ws().SelFlagCirc);
}

TEST_F(ToolFixture, UndoOfATurnedSelectionGivesItsSizeBack)
{
    pattern();
    cut(1, 1, 7, 4); // 6 x 3
    const QImage before = ws().PicSelect.Image();
    // A quarter turn, as the picture commands make it on a shown selection.
    ws().PicSelect_nachUndo();
    QTransform turn;
    turn.rotate(90);
    const QImage turned = before.transformed(turn);
    ws().PicSelect.resize(turned.width(), turned.height());
    ws().PicSelect.setPicture(turned);
    ws().lastaction = QStringLiteral("RECT$TURN90");
    ws().Menu_UndoRedo();
    EXPECT_EQ(ws().PicSelect.Width(), 6);
    EXPECT_EQ(ws().PicSelect.Height(), 3);
    EXPECT_EQ(ws().PicSelect.Image(), before);
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECT$TURN90")); // so the next Undo turns it again
    ws().Menu_UndoRedo();
    EXPECT_EQ(ws().PicSelect.Width(), 3);
}

TEST_F(ToolFixture, ALargePictureKeepsTheUndoOfAStampOnDisk)
{
    picture(800, 40); // above 712: the undo images lie in files
    ws().Bild.Line(0, 0, 799, 39, Blue, LineFlags::BF);
    cut(10, 10, 30, 30);
    EXPECT_EQ(at(20, 20), White);
    tools->disarm();
    drag({QPoint(15, 15), QPoint(765, 15)});
    const QImage withHole = ws().Bild.Image();
    Menu_Edit(s, EditDeselect, clip);
    EXPECT_EQ(at(770, 20), Blue);
    EXPECT_EQ(at(20, 20), White);
    ws().Menu_UndoRedo();
    EXPECT_EQ(ws().Bild.Image(), withHole);
    EXPECT_TRUE(ws().PicSelect.Visible());
    EXPECT_TRUE(QFile::exists(ws().tempPath(QStringLiteral("tmpundob.bmp"))));
}

TEST_F(ToolFixture, AChangeToAFreshSelectionIsUndoneBeforeTheCut)
{
    cut(2, 2, 8, 8);
    // A filter takes the selection's undo image and changes it, leaving "RECTINIT".
    ws().PicSelect_nachUndo();
    ws().PicSelect.PSet(1, 1, Blue);
    ASSERT_EQ(ws().lastaction, QStringLiteral("RECTINIT"));
    ws().Menu_UndoRedo();
    EXPECT_TRUE(ws().PicSelect.Visible());
    EXPECT_EQ(selAt(1, 1), White);
    EXPECT_EQ(ws().lastaction, QStringLiteral("RECT"));
}

TEST_F(ToolFixture, AnEllipseTakesAPasteThroughItsMaskAndBlendsWhenStamped)
{
    tools->arm(Tool::CSelect);
    drag({QPoint(1, 1), QPoint(11, 9)});
    ASSERT_TRUE(ws().picSelectC.Visible());
    clip.held = QImage(5, 5, QImage::Format_RGB32);
    clip.held.fill(qRgb(0, 0, 200));
    Menu_Edit(s, EditPaste, clip);
    EXPECT_EQ(ws().lastaction, QStringLiteral("CIRCMOVED"));
    EXPECT_FALSE(ws().PicSelect.Visible());
    EXPECT_EQ(ws().picSelectC.Width(), 10); // stretched into the ellipse's rectangle
    // Half transparent: the stamped pixels lie half over the picture (the hole is white).
    s.transparency().setPercent(50);
    Menu_Edit(s, EditDeselect, clip);
    EXPECT_EQ(ws().lastaction, QStringLiteral("CIRCCOPIED"));
    EXPECT_EQ(ws().Bild.Image().pixel(6, 5), qRgb(128, 128, 228));
    EXPECT_EQ(at(1, 1), White); // outside the ellipse nothing was stamped
    // Undo of the stamp: the picture as before, the ellipse with the pasted picture.
    s.transparency().setPercent(0);
    ws().Menu_UndoRedo();
    EXPECT_TRUE(ws().picSelectC.Visible());
    EXPECT_EQ(at(6, 5), White);
    EXPECT_EQ(ws().picSelectC.Image().pixel(5, 4), qRgb(0, 0, 200));
}
