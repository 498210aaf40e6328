// The picture commands (turns, picture size, canvas, cropping) and the distortions that change
// the picture's size, through the workspace with undo: Undo gives the former size back.
#include "filterpictures.h"
#include "filters/filtercommand.h"
#include "filters/filtertable.h"
#include "filters/geometry.h"
#include "paint/colourstate.h"
#include "paint/session.h"

#include <gtest/gtest.h>

using namespace tf;
using namespace filtertest;

namespace {

struct Geometry : FilterSession {
    QImage start;
    Workspace &ws = s.workspace();

    void SetUp() override
    {
        FilterSession::SetUp();
        ws.New_BildSize(12, 7);
        start = noisy(12, 7);
        ws.Bild.setPicture(start);
    }
    const QImage &bild() { return ws.Bild.Image(); }
    QSize size() const { return {ws.BildW, ws.BildH}; }
    // Shows a selection of a noisy w x h picture at (x, y) and answers the picture.
    QImage select(int w, int h, int x, int y)
    {
        const QImage part = noisy(w, h);
        ws.PicSelect.resize(w, h);
        ws.PicSelect.setPicture(part);
        ws.PicSelect.Move(x, y);
        ws.PicSelect.setVisible(true);
        return part;
    }
};

} // namespace

TEST_F(Geometry, QuarterTurnsTurnClockwiseAndFourGiveThePictureBack)
{
    const QImage right = turnedQuarters(start, 1);
    EXPECT_EQ(right.size(), QSize(7, 12));
    // The top-left pixel goes to the top right.
    EXPECT_EQ(right.pixel(6, 0), start.pixel(0, 0));
    EXPECT_EQ(turnedQuarters(start, 3).pixel(0, 11), start.pixel(0, 0));
    EXPECT_EQ(turnedQuarters(start, 2).pixel(11, 6), start.pixel(0, 0));

    ASSERT_TRUE(Menu_Turn(s, 1));
    EXPECT_EQ(size(), QSize(7, 12));
    EXPECT_EQ(bild(), right);
    EXPECT_TRUE(ws.lastaction.contains(QLatin1String("$TURN90")));
    for (int i = 0; i < 3; ++i)
        ASSERT_TRUE(Menu_Turn(s, 1));
    EXPECT_EQ(size(), QSize(12, 7));
    EXPECT_EQ(bild(), start);
    // Undo takes the last quarter back, with the size.
    ws.Menu_UndoRedo();
    EXPECT_EQ(size(), QSize(7, 12));
    EXPECT_EQ(bild(), turnedQuarters(start, 3));
    ws.Menu_UndoRedo();
    EXPECT_EQ(bild(), start);
}

TEST_F(Geometry, PictureSizeResamplesOrResizesAndUndoGivesTheSizeBack)
{
    ASSERT_TRUE(Menu_PictureSize(s, 24, 14, false));
    EXPECT_EQ(size(), QSize(24, 14));
    // The nearest pixel below, counted in the surface's bottom-up memory rows with the scales
    // 11/24 and 6/14: column 3 -> 1; row 5 is memory row 8 -> 3, picture row 3.
    EXPECT_EQ(bild().pixel(3, 5), start.pixel(1, 3));
    EXPECT_TRUE(ws.lastaction.contains(QLatin1String("BILDRESIZED")));
    ws.Menu_UndoRedo();
    EXPECT_EQ(size(), QSize(12, 7));
    EXPECT_EQ(bild(), start);
    // Smoothly to the same size is an exact copy; a flat picture stays flat at any size.
    ASSERT_TRUE(Menu_PictureSize(s, 12, 7, true));
    EXPECT_EQ(bild(), start);
    ws.Bild.setPicture(flat(12, 7, RGB(40, 50, 60)));
    ASSERT_TRUE(Menu_PictureSize(s, 5, 30, true));
    EXPECT_EQ(bild(), flat(5, 30, RGB(40, 50, 60)));
    // A size past the limits is refused with a message and changes nothing.
    EXPECT_FALSE(Menu_PictureSize(s, 0, 30, true));
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Die Größe 0 x 30 ist nicht möglich: jede Seite "
                                                  "muss zwischen 1 und 14000 Pixeln liegen."));
    EXPECT_EQ(size(), QSize(5, 30));
}

TEST_F(Geometry, CanvasSizePlacesThePictureOnTheBackgroundColour)
{
    s.colours().ColorBack = RGB(200, 0, 100);
    ASSERT_TRUE(Menu_CanvasSize(s, 20, 9, 8)); // bottom right
    EXPECT_EQ(size(), QSize(20, 9));
    EXPECT_EQ(at(bild(), 0, 0), RGB(200, 0, 100));
    EXPECT_EQ(bild().pixel(19, 8), start.pixel(11, 6));
    EXPECT_EQ(bild().pixel(8, 2), start.pixel(0, 0));
    ws.Menu_UndoRedo();
    EXPECT_EQ(bild(), start);
    // Smaller than the picture: the middle is kept.
    ASSERT_TRUE(Menu_CanvasSize(s, 4, 3, 4));
    EXPECT_EQ(bild(), start.copy(4, 2, 4, 3));
}

TEST_F(Geometry, CroppingTakesTheSelectionAndNeedsOne)
{
    EXPECT_FALSE(Menu_CropToSelection(s));
    EXPECT_EQ(prompter.lastText(),
              QStringLiteral("Zum Freistellen ziehen Sie zuerst eine Auswahl auf."));
    const QImage part = select(5, 4, 3, 2);
    ASSERT_TRUE(Menu_CropToSelection(s));
    EXPECT_EQ(size(), QSize(5, 4));
    EXPECT_EQ(bild(), part);
    EXPECT_FALSE(ws.PicSelect.Visible());
    ws.Menu_UndoRedo();
    EXPECT_EQ(bild(), start);
}

TEST_F(Geometry, ATurnOfASelectionKeepsItsPlace)
{
    const QImage part = select(5, 3, 4, 2);
    ASSERT_TRUE(Menu_Turn(s, 3));
    EXPECT_EQ(ws.PicSelect.Image(), turnedQuarters(part, 3));
    EXPECT_EQ(ws.PicSelect.Left(), 4.0f);
    EXPECT_EQ(ws.PicSelect.Top(), 2.0f);
    EXPECT_EQ(bild(), start);
    EXPECT_EQ(size(), QSize(12, 7));
}

TEST_F(Geometry, RotationAndStretchThatResizeGrowBildAndCancelGivesItBack)
{
    const FilterRow &rotate = *findFilter(53);
    FilterArgs a = defaultArguments(rotate);
    a.sliders = {90, 0, 0};
    a.resizeToFit = true;
    {
        FilterDialogRun run(s, rotate);
        ASSERT_TRUE(run.preview(a));
        EXPECT_EQ(size(), QSize(7, 12));
        EXPECT_EQ(bild(), turnedQuarters(start, 1));
        run.finish(true, true);
    }
    EXPECT_EQ(size(), QSize(12, 7));
    EXPECT_EQ(bild(), start);
    {
        FilterDialogRun run(s, rotate);
        ASSERT_TRUE(run.preview(a));
        EXPECT_TRUE(run.finish(false, true));
    }
    EXPECT_EQ(size(), QSize(7, 12));
    ws.Menu_UndoRedo();
    EXPECT_EQ(size(), QSize(12, 7));
    EXPECT_EQ(bild(), start);
}

TEST_F(Geometry, ARectangularSelectionKeepsItsPlaceUnderStretchAndRotation)
{
    select(6, 4, 3, 2);
    const FilterRow &stretch = *findFilter(52);
    FilterArgs a = defaultArguments(stretch);
    a.sliders = {100, 0, 0};
    a.resizeToFit = true;
    {
        FilterDialogRun run(s, stretch);
        ASSERT_TRUE(run.preview(a));
        EXPECT_EQ(ws.PicSelect.Image().size(), QSize(12, 4));
        EXPECT_TRUE(run.finish(false, true));
    }
    EXPECT_EQ(ws.PicSelect.Left(), 3.0f);
    EXPECT_EQ(ws.PicSelect.Top(), 2.0f);
    EXPECT_EQ(size(), QSize(12, 7));
    EXPECT_EQ(bild(), start);
    // Cancelled, the selection has its size, pixels and place back.
    const QImage before = ws.PicSelect.Image();
    {
        FilterDialogRun run(s, *findFilter(53));
        FilterArgs r = defaultArguments(*findFilter(53));
        r.sliders = {45, 1, 0};
        r.resizeToFit = true;
        ASSERT_TRUE(run.preview(r));
        EXPECT_NE(ws.PicSelect.Image().size(), before.size());
        ws.PicSelect.Move(0, 0);
        run.finish(true, true);
    }
    EXPECT_EQ(ws.PicSelect.Image(), before);
    EXPECT_EQ(ws.PicSelect.Left(), 3.0f);
    EXPECT_EQ(ws.PicSelect.Top(), 2.0f);
}
