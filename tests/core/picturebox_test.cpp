#include "core/picturebox.h"
#include "pixel_art.h"

#include <gtest/gtest.h>

#include <vector>

using namespace tf;
using tf::test::art;
using tf::test::artRow;
using tf::test::inkBox;

namespace {

// A white control of w x h pixels that draws into its persistent image.
struct Canvas {
    PictureBox pb;
    Canvas(int w, int h) : pb(QStringLiteral("pic"), w, h) { pb.setAutoRedraw(true); }
    std::string pixels() const { return art(pb.Image()); }
};

} // namespace

TEST(PictureBoxLine, LeavesItsEndPointInEveryDirection)
{
    Canvas c(8, 4);
    c.pb.Line(1, 0, 5, 0);
    c.pb.Line(5, 1, 1, 1);
    c.pb.Line(0, 2, 0, 2); // length zero: the one point
    c.pb.Line(3, 3, 3, 3, 0xFF);
    EXPECT_EQ(c.pixels(), ".####...\n"
                          "..####..\n"
                          "#.......\n"
                          "...r....\n");
    Canvas d(5, 5);
    d.pb.Line(0, 0, 4, 4);
    EXPECT_EQ(inkBox(d.pb.Image()), QRect(0, 0, 4, 4));
    EXPECT_EQ(artRow(d.pb.Image(), 3), "...#.");
    EXPECT_EQ(d.pb.CurrentX(), 4.0f);
    EXPECT_EQ(d.pb.CurrentY(), 4.0f);
}

TEST(PictureBoxLine, FromThePenAndStepForms)
{
    Canvas c(8, 3);
    c.pb.setCurrentX(1);
    c.pb.setCurrentY(1);
    c.pb.LineTo(4, 1);                           // 1..3
    c.pb.LineStep(true, 1, 0, true, 2, 0, 0xFF); // from (5,1) to (7,1)
    EXPECT_EQ(artRow(c.pb.Image(), 1), ".###.rr.");
    EXPECT_EQ(c.pb.CurrentX(), 7.0f);
}

TEST(PictureBoxLine, FarAwayLinesAreClippedWithoutWalkingThem)
{
    Canvas c(6, 3);
    c.pb.Line(-1e9, 1, 1e9, 1);
    EXPECT_EQ(artRow(c.pb.Image(), 1), "######");
    c.pb.Line(-2e9, -2e9 + 2, 2e9, 2e9 + 2, 0xFF); // the diagonal through (0, 2)
    EXPECT_EQ(art(c.pb.Image()), "......\n"
                                 "######\n"
                                 "r.....\n");
    EXPECT_THROW(c.pb.Line(0, 0, 1e10, 0), Fault); // beyond 32 bits: Overflow
}

TEST(PictureBoxLine, BoxesOutlinedFilledAndFilledByFillStyle)
{
    Canvas c(14, 5);
    c.pb.Line(1, 1, 4, 3, -1, LineFlags::B);
    c.pb.Line(9, 3, 6, 1, 0xFF, LineFlags::BF); // corners in any order
    c.pb.setFillStyle(0);
    c.pb.setFillColor(0xFF0000);
    c.pb.Line(11, 0, 13, 4, -1, LineFlags::B);
    EXPECT_EQ(c.pixels(), "...........###\n"
                          ".####.rrrr.#b#\n"
                          ".#..#.rrrr.#b#\n"
                          ".####.rrrr.#b#\n"
                          "...........###\n");
}

TEST(PictureBoxLine, WideLinesAreCentredAndWideBoxesGrowOutwardUnlessDrawnInside)
{
    Canvas c(12, 11);
    c.pb.setDrawWidth(3);
    c.pb.Line(2, 2, 9, 8, -1, LineFlags::B);
    EXPECT_EQ(inkBox(c.pb.Image()), QRect(QPoint(1, 1), QPoint(10, 9)));
    EXPECT_EQ(c.pb.Point(3, 3), 0); // three pixels wide, centred on the box's edge
    EXPECT_EQ(c.pb.Point(4, 4), 0xFFFFFF);

    Canvas inside(12, 11);
    inside.pb.setDrawWidth(3);
    inside.pb.setDrawStyle(6);
    inside.pb.Line(2, 2, 9, 8, -1, LineFlags::B);
    EXPECT_EQ(inkBox(inside.pb.Image()), QRect(QPoint(2, 2), QPoint(9, 8)));
    EXPECT_EQ(inside.pb.Point(4, 4), 0);
    EXPECT_EQ(inside.pb.Point(5, 5), 0xFFFFFF);

    // A wide line is centred on its path with round ends.
    Canvas line(10, 5);
    line.pb.setDrawWidth(3);
    line.pb.Line(2, 2, 7, 2);
    EXPECT_EQ(inkBox(line.pb.Image()), QRect(QPoint(1, 1), QPoint(8, 3)));
    EXPECT_EQ(artRow(line.pb.Image(), 1), ".########.");
}

TEST(PictureBoxLine, DrawStylesOnAThinLine)
{
    const std::vector<std::string> expected{
        "##############################", // 0 solid
        "##################......######", // 1 dash
        "###...###...###...###...###...", // 2 dot
        "#########......###......######", // 3 dash-dot
        "#########...###...###...######", // 4 dash-dot-dot
        "..............................", // 5 transparent
        "##############################", // 6 inside solid
    };
    for (int style = 0; style <= 6; ++style) {
        Canvas c(30, 1);
        c.pb.setDrawStyle(style);
        c.pb.Line(0, 0, 30, 0);
        EXPECT_EQ(artRow(c.pb.Image(), 0), expected[size_t(style)]) << "DrawStyle " << style;
    }
    // Styles are for width 1 only; opaque text also paints the gaps in BackColor.
    Canvas wide(30, 3);
    wide.pb.setDrawStyle(1);
    wide.pb.setDrawWidth(2);
    wide.pb.Line(0, 1, 29, 1);
    EXPECT_EQ(artRow(wide.pb.Image(), 1), std::string(30, '#'));
}

TEST(PictureBoxDrawMode, XorTwiceRestoresAndWritesEachPixelOnce)
{
    Canvas c(20, 20);
    c.pb.Line(0, 0, 19, 19, 0xFF, LineFlags::BF);
    c.pb.Line(0, 10, 19, 10, 0x00FF00);
    const QImage before = c.pb.Image().copy();
    c.pb.setDrawMode(R2_XORPEN);
    c.pb.setFillStyle(0);
    c.pb.setFillColor(0x123456);
    auto drawAll = [&] {
        c.pb.Circle(10, 10, 7, 0xFFFFFF, -0.5, -4.0);
        c.pb.setDrawWidth(3);
        c.pb.Line(1, 18, 18, 2, 0x00FFFF);
        c.pb.PSet(4, 4, 0x0000FF);
        c.pb.setDrawWidth(1);
        c.pb.setDrawStyle(2);
        c.pb.Line(2, 2, 17, 17, 0xFFFFFF, LineFlags::B);
        c.pb.setDrawStyle(0);
    };
    drawAll();
    EXPECT_NE(c.pb.Image(), before);
    drawAll();
    EXPECT_EQ(c.pb.Image(), before);

    // One XOR on white must equal copying the XORed colours: a pixel written twice (outline
    // over fill, radius line over arc) would come back white.
    Canvas once(15, 15), copied(15, 15);
    for (Canvas *k : {&once, &copied}) {
        k->pb.setFillStyle(0);
        k->pb.setDrawWidth(2);
    }
    once.pb.setDrawMode(R2_XORPEN);
    once.pb.setFillColor(0x00FFFF); // white XOR this is blue
    once.pb.Circle(7, 7, 6, 0xFFFFFF, -1.0, -5.0);
    copied.pb.setFillColor(0xFF0000);
    copied.pb.Circle(7, 7, 6, 0, -1.0, -5.0);
    EXPECT_EQ(once.pixels(), copied.pixels());
    EXPECT_EQ(once.pb.Point(7, 7), 0);        // centre: on both radius lines
    EXPECT_EQ(once.pb.Point(3, 7), 0xFF0000); // inside the pie
}

TEST(PictureBoxPixels, PointAndPSet)
{
    Canvas c(7, 5);
    c.pb.PSet(1, 1);
    c.pb.setDrawWidth(3);
    c.pb.PSet(4, 2, 0xFF);
    EXPECT_EQ(c.pixels(), ".......\n"
                          ".#.rrr.\n"
                          "...rrr.\n"
                          "...rrr.\n"
                          ".......\n");
    EXPECT_EQ(c.pb.Point(4, 2), 0xFF);
    EXPECT_EQ(c.pb.Point(0.4, 0.5), 0xFFFFFF); // half to even: (0, 0)
    EXPECT_EQ(c.pb.Point(1.5, 1), 0xFFFFFF);   // rounds to 2
    EXPECT_EQ(c.pb.Point(-1, 0), -1);
    EXPECT_EQ(c.pb.Point(7, 0), -1);
    EXPECT_EQ(c.pb.Point(0, 5), -1);
    EXPECT_EQ(c.pb.CurrentX(), 4.0f);
}

TEST(PictureBoxCircle, FullCircleIsSymmetricAndFilledOnRequest)
{
    Canvas c(7, 7);
    c.pb.Circle(3, 3, 2);
    EXPECT_EQ(c.pixels(), ".......\n"
                          "..###..\n"
                          ".#...#.\n"
                          ".#...#.\n"
                          ".#...#.\n"
                          "..###..\n"
                          ".......\n");
    c.pb.setFillStyle(0);
    c.pb.setFillColor(0xFF);
    c.pb.Circle(3, 3, 2);
    EXPECT_EQ(artRow(c.pb.Image(), 3), ".#rrr#.");
    EXPECT_EQ(c.pb.CurrentX(), 3.0f);
}

TEST(PictureBoxCircle, AspectSquashesTheShorterAxis)
{
    Canvas flat(21, 21);
    flat.pb.Circle(10, 10, 8, -1, {}, {}, 0.5);
    EXPECT_EQ(inkBox(flat.pb.Image()), QRect(QPoint(2, 6), QPoint(18, 14)));
    Canvas tall(21, 21);
    tall.pb.Circle(10, 10, 8, -1, {}, {}, 2.0);
    EXPECT_EQ(inkBox(tall.pb.Image()), QRect(QPoint(6, 2), QPoint(14, 18)));
}

TEST(PictureBoxCircle, ArcsAndPies)
{
    Canvas arc(21, 21);
    arc.pb.Circle(10, 10, 8, -1, 0.0, Pi); // the upper half, counter-clockwise
    EXPECT_EQ(inkBox(arc.pb.Image()), QRect(QPoint(2, 2), QPoint(18, 10)));
    EXPECT_EQ(arc.pb.Point(10, 10), 0xFFFFFF); // no radius lines

    Canvas pie(21, 21);
    pie.pb.setFillStyle(0);
    pie.pb.setFillColor(0xFF);
    pie.pb.Circle(10, 10, 8, -1, -0.0, -Pi / 2); // -0 still asks for the radius line
    EXPECT_EQ(inkBox(pie.pb.Image()), QRect(QPoint(10, 2), QPoint(18, 10)));
    EXPECT_EQ(artRow(pie.pb.Image(), 10).substr(10), "#########..");
    EXPECT_EQ(pie.pb.Point(10, 4), 0);
    EXPECT_EQ(pie.pb.Point(13, 7), 0xFF);

    // One negative end: a radius line, but an open figure is not filled.
    Canvas open(21, 21);
    open.pb.setFillStyle(0);
    open.pb.setFillColor(0xFF);
    open.pb.Circle(10, 10, 8, -1, 0.0, -Pi);
    EXPECT_EQ(artRow(open.pb.Image(), 10), "..#########.......#..");
    EXPECT_EQ(open.pb.Point(10, 7), 0xFFFFFF);
    EXPECT_THROW(open.pb.Circle(10, 10, 5, -1, 7.0), Fault);
}

TEST(PictureBoxPersistence, ClsGoesBackToPictureAndBackColor)
{
    PictureBox pb(QStringLiteral("pic"), 4, 3);
    pb.setAutoRedraw(true);
    pb.setBackColor(0xFF0000);
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.fill(toQRgb(0xFF));
    pb.setPicture(picture);
    pb.Line(0, 0, 3, 2, 0, LineFlags::BF);
    pb.setCurrentX(2);
    pb.Cls();
    EXPECT_EQ(art(pb.Image()), "rrbb\n"
                               "rrbb\n"
                               "bbbb\n");
    EXPECT_EQ(pb.CurrentX(), 0.0f);
    // Picture = Image keeps what was drawn across the next Cls.
    pb.PSet(3, 2, 0x00FF00);
    pb.setPicture(pb.Image());
    pb.Cls();
    EXPECT_EQ(pb.Point(3, 2), 0x00FF00);
}

TEST(PictureBoxPersistence, WithoutAutoRedrawDrawingOnlyReachesTheScreen)
{
    PictureBox pb(QStringLiteral("pic"), 3, 1);
    pb.PSet(0, 0, 0);
    EXPECT_EQ(art(pb.Image()), "...\n");
    EXPECT_EQ(art(pb.screenImage()), "#..\n");
    EXPECT_EQ(pb.Point(0, 0), 0);
    pb.Refresh();
    EXPECT_EQ(art(pb.screenImage()), "...\n");

    pb.setAutoRedraw(true);
    pb.PSet(1, 0, 0);
    pb.setAutoRedraw(false);
    pb.PSet(2, 0, 0);
    pb.Cls(); // clears the screen only: persistent drawing stays
    EXPECT_EQ(art(pb.screenImage()), ".#.\n");
}

TEST(PictureBoxPersistence, ResizeKeepsTheTopLeftAndFillsWithBackColor)
{
    PictureBox pb(QStringLiteral("pic"), 2, 2);
    pb.setAutoRedraw(true);
    pb.setBackColor(0xFF);
    pb.PSet(1, 1, 0);
    pb.Move(5, 6, 3, 3);
    EXPECT_EQ(art(pb.Image()), "rrr\n"
                               "r#r\n"
                               "rrr\n");
    EXPECT_EQ(pb.Left(), 5.0f);
    pb.setWidth(1);
    EXPECT_EQ(art(pb.Image()), "r\nr\nr\n");
}

TEST(PictureBoxPersistence, ABlankControlTakesItsPixelsOnlyWhenUsed)
{
    // The work pictures follow the picture's size; at 14000 x 14000 each would be 784 MB.
    PictureBox pb(QStringLiteral("pic"), 2, 2);
    pb.setAutoRedraw(true);
    pb.resize(14000, 14000);
    pb.setBackColor(0xFF);
    pb.resize(3, 2);
    EXPECT_FALSE(pb.holdsPixels());
    EXPECT_EQ(pb.Width(), 3);
    EXPECT_EQ(pb.ScaleHeight(), 2.0f);
    // Whatever reads or draws sees BackColor as it stands now.
    EXPECT_EQ(art(pb.Image()), "rrr\n"
                               "rrr\n");
    EXPECT_TRUE(pb.holdsPixels());

    // A paint kept as the picture shares its pixels with the image: the next drawing leaves
    // the picture as it was, and Cls brings it back.
    pb.PSet(0, 0, 0);
    pb.setPicture(pb.Image());
    pb.PSet(2, 1, 0);
    EXPECT_EQ(art(pb.Picture()), "#rr\n"
                                 "rrr\n");
    pb.Cls();
    EXPECT_EQ(art(pb.Image()), "#rr\n"
                               "rrr\n");
}

TEST(PictureBoxPersistence, ChangesReachTheHook)
{
    PictureBox pb(QStringLiteral("pic"), 10, 10);
    std::vector<QRect> seen;
    pb.setChangedHook([&](const QRect &r) { seen.push_back(r); });
    pb.Line(2, 3, 6, 3);
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0], QRect(QPoint(2, 3), QPoint(5, 3)));
    pb.Line(20, 20, 30, 30); // off the picture: nothing to repaint
    EXPECT_EQ(seen.size(), 1u);
    BitBlt(pb.hDC(), 0, 0, 10, 10, nullptr, 0, 0, BLACKNESS);
    pb.Print(); // the classic way to show what went through the context
    EXPECT_EQ(seen.back(), QRect(0, 0, 10, 10));
    seen.clear();
    pb.Refresh();
    EXPECT_EQ(seen.back(), QRect(0, 0, 10, 10));
}

TEST(PictureBoxText, PrintMovesThePenAndPaintsOnlyInItsCell)
{
    Canvas c(80, 40);
    c.pb.Line(0, 0, 79, 39, 0xFF, LineFlags::BF);
    c.pb.setFontSize(10);
    c.pb.setCurrentX(5);
    c.pb.setCurrentY(3);
    const Single h = c.pb.TextHeight(QStringLiteral("Hi"));
    const Single w = c.pb.TextWidth(QStringLiteral("Hi"));
    EXPECT_GE(h, 13.0f);
    EXPECT_EQ(c.pb.TextHeight(QStringLiteral("a\nb")), 2 * h);
    c.pb.Print(QStringLiteral("Hi"));
    EXPECT_EQ(c.pb.CurrentX(), 0.0f);
    EXPECT_EQ(c.pb.CurrentY(), 3 + h);
    const QRect ink = inkBox(c.pb.Image(), 0xFF);
    EXPECT_TRUE(QRect(5, 3, int(w), int(h)).contains(ink)) << ink.x() << "," << ink.y();
    EXPECT_EQ(c.pb.Point(5, 3), 0xFF); // transparent: the background stays

    c.pb.Print(QStringLiteral("A"), false);
    EXPECT_EQ(c.pb.CurrentX(), c.pb.TextWidth(QStringLiteral("A")));
    c.pb.setFontTransparent(false);
    c.pb.setCurrentX(0);
    c.pb.Print(QString(), true); // empty text only moves the pen
    EXPECT_EQ(c.pb.CurrentY(), 3 + 2 * h);
    c.pb.Print(QStringLiteral("A"));
    EXPECT_EQ(c.pb.Point(0, 3 + 2 * h), 0xFFFFFF); // opaque: the cell takes BackColor
}

TEST(PictureBoxPaintPicture, StretchesExactlyAndCopiesParts)
{
    QImage src(2, 2, QImage::Format_RGB32);
    src.setPixel(0, 0, toQRgb(0xFF));
    src.setPixel(1, 0, toQRgb(0x00FF00));
    src.setPixel(0, 1, toQRgb(0xFF0000));
    src.setPixel(1, 1, toQRgb(0));
    Canvas c(6, 6);
    c.pb.PaintPicture(src, 1, 1, 4.0, 4.0);
    EXPECT_EQ(inkBox(c.pb.Image()), QRect(1, 1, 4, 4));
    EXPECT_EQ(artRow(c.pb.Image(), 2), ".rrgg.");
    EXPECT_EQ(artRow(c.pb.Image(), 3), ".bb##.");
    Canvas part(3, 1);
    part.pb.PaintPicture(src, 1, 0, 1.0, 1.0, 1.0, 1.0, 1.0, 1.0);
    EXPECT_EQ(part.pixels(), ".#.\n");
    part.pb.PaintPicture(part.pb, 0, 0); // onto itself
    EXPECT_EQ(part.pixels(), ".#.\n");
}

TEST(PictureBoxProperties, RangesScalesAndDeviceContext)
{
    PictureBox pb(QStringLiteral("pic"), 20, 10);
    EXPECT_EQ(pb.FillStyle(), 1);
    EXPECT_EQ(pb.DrawMode(), 13);
    for (const auto &bad : std::vector<std::function<void()>>{
             [&] { pb.setDrawWidth(0); }, [&] { pb.setDrawStyle(7); },
             [&] { pb.setDrawMode(17); }, [&] { pb.setFillStyle(-1); },
             [&] { pb.setWidth(-1); }}) {
        try {
            bad();
            ADD_FAILURE() << "no fault";
        } catch (const Fault &f) {
            EXPECT_EQ(f.number(), 380);
        }
    }
    EXPECT_DOUBLE_EQ(pb.ScaleX(1, vbPixels, vbTwips), 15.0);
    EXPECT_DOUBLE_EQ(pb.ScaleY(1440, vbTwips, vbInches), 1.0);
    EXPECT_DOUBLE_EQ(pb.ScaleY(1, vbCharacters, vbTwips), 240.0);
    EXPECT_DOUBLE_EQ(pb.ScaleX(2540, vbHimetric, vbCentimeters), 2.54);
    pb.setScaleMode(vbTwips);
    EXPECT_EQ(pb.ScaleWidth(), 300.0f);

    // The context that graphics-device calls draw through follows the properties.
    pb.setDrawStyle(2);
    pb.setFontSize(12);
    EXPECT_EQ(pb.hDC().pen.style, PS_DOT);
    EXPECT_EQ(pb.hDC().font.height, -16); // 12 pt at 96 pixels per inch
}
