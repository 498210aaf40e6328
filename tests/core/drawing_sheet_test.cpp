// A sheet of the whole drawing vocabulary, written to drawing_sheet.png in the working
// directory for a person to look at; a few pixels of it are checked here.
#include "core/gdi.h"
#include "core/picturebox.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {

constexpr ColorLong Black = 0x000000;
constexpr ColorLong White = 0xFFFFFF;
constexpr ColorLong Red = 0x0000FF;
constexpr ColorLong Green = 0x00A000;
constexpr ColorLong Blue = 0xFF0000;
constexpr ColorLong Yellow = 0x00FFFF;
constexpr ColorLong Grey = 0xC0C0C0;

void caption(PictureBox &pb, double x, double y, const QString &text)
{
    pb.setCurrentX(x);
    pb.setCurrentY(y);
    pb.Print(text);
}

} // namespace

TEST(DrawingSheet, ShowsTheVocabulary)
{
    PictureBox pb(QStringLiteral("sheet"), 640, 520);
    pb.setAutoRedraw(true);
    pb.setFontName(QStringLiteral("Arial"));
    pb.setFontSize(8);

    // Row 1: the seven draw styles on thin lines, and one wide line.
    for (int style = 0; style <= 6; ++style) {
        const double x = 10 + style * 88;
        caption(pb, x, 6, QStringLiteral("DrawStyle %1").arg(style));
        pb.setDrawStyle(style);
        pb.Line(x, 26, x + 80, 26);
        pb.Line(x, 30, x + 80, 50);
    }
    pb.setDrawStyle(0);

    // Row 2: copy-pen and XOR over coloured bars; the XOR circle is drawn twice on the right.
    caption(pb, 10, 62, QStringLiteral("DrawMode 13"));
    caption(pb, 170, 62, QStringLiteral("DrawMode 7"));
    caption(pb, 330, 62, QStringLiteral("DrawMode 7 twice"));
    for (int i = 0; i < 3; ++i) {
        const ColorLong bar = i == 0 ? Red : i == 1 ? Green : Blue;
        for (int panel = 0; panel < 3; ++panel)
            pb.Line(10 + panel * 160 + i * 40, 80, 40 + panel * 160 + i * 40, 150, bar,
                    LineFlags::BF);
    }
    pb.setFillStyle(0);
    pb.setFillColor(Yellow);
    pb.setDrawWidth(3);
    pb.Circle(70, 115, 32, Black);
    pb.setDrawMode(R2_XORPEN);
    pb.Circle(230, 115, 32, White);
    pb.Circle(390, 115, 32, White);
    pb.Circle(390, 115, 32, White);
    pb.setDrawMode(R2_COPYPEN);
    pb.setDrawWidth(1);
    pb.setFillStyle(1);

    // Row 3: arcs and pies with aspects.
    caption(pb, 10, 162, QStringLiteral("arc 0..pi"));
    pb.Circle(50, 215, 35, Blue, 0.0, Pi);
    caption(pb, 100, 162, QStringLiteral("arc, aspect 0.5"));
    pb.Circle(150, 215, 40, Blue, Pi / 4, 7 * Pi / 4, 0.5);
    caption(pb, 210, 162, QStringLiteral("pie, aspect 2"));
    pb.setFillStyle(0);
    pb.setFillColor(Yellow);
    pb.Circle(250, 215, 40, Red, -Pi / 6, -3 * Pi / 2, 2.0);
    caption(pb, 300, 162, QStringLiteral("pie -0..-pi/2"));
    pb.Circle(330, 225, 40, Black, -0.0, -Pi / 2);
    caption(pb, 390, 162, QStringLiteral("full, width 4"));
    pb.setDrawWidth(4);
    pb.setFillColor(Grey);
    pb.Circle(440, 215, 30, Green);
    pb.setDrawWidth(1);
    pb.setFillStyle(1);
    caption(pb, 500, 162, QStringLiteral("PSet width 1..6"));
    for (int w = 1; w <= 6; ++w) {
        pb.setDrawWidth(w);
        pb.PSet(505 + (w - 1) * 20, 215, Black);
    }
    pb.setDrawWidth(1);

    // Row 4: boxes.
    caption(pb, 10, 262, QStringLiteral("B"));
    pb.Line(10, 280, 80, 330, Black, LineFlags::B);
    caption(pb, 100, 262, QStringLiteral("BF"));
    pb.Line(100, 280, 170, 330, Red, LineFlags::BF);
    caption(pb, 190, 262, QStringLiteral("B, FillStyle 0"));
    pb.setFillStyle(0);
    pb.setFillColor(Yellow);
    pb.Line(190, 280, 260, 330, Blue, LineFlags::B);
    pb.setFillStyle(1);
    caption(pb, 280, 262, QStringLiteral("B, width 5"));
    pb.setDrawWidth(5);
    pb.Line(285, 285, 345, 325, Green, LineFlags::B);
    caption(pb, 370, 262, QStringLiteral("width 5, inside"));
    pb.setDrawStyle(6);
    pb.Line(370, 280, 440, 330, Green, LineFlags::B);
    pb.setDrawStyle(0);
    pb.setDrawWidth(1);

    // Row 4, right: graphics-device figures with the control's pen and a brush of their own.
    DeviceContext &dc = pb.hDC();
    caption(pb, 470, 262, QStringLiteral("Polygon, RoundRect"));
    const POINTAPI star[] = {{500, 280}, {512, 330}, {470, 298}, {530, 298}, {488, 330}};
    SelectObject(dc, CreatePen(PS_SOLID, 1, Black));
    Brush before = SelectObject(dc, CreateSolidBrush(Red));
    Polygon(dc, star, 5);
    SelectObject(dc, CreateSolidBrush(Grey));
    RoundRect(dc, 545, 280, 630, 330, 20, 20);

    // Row 5: flood fills and rotated text.
    caption(pb, 10, 352, QStringLiteral("FloodFill"));
    pb.Circle(60, 420, 40, Black);
    pb.Line(20, 420, 100, 420, Black);
    SelectObject(dc, CreateSolidBrush(Green));
    FloodFill(dc, 60, 400, Black);
    caption(pb, 120, 352, QStringLiteral("ExtFloodFill surface"));
    // The diagonal runs one pixel past the corner, since a line leaves its end point.
    pb.Line(120, 375, 200, 455, Yellow, LineFlags::BF);
    pb.Line(120, 375, 201, 456, Red);
    SelectObject(dc, CreateSolidBrush(Blue));
    ExtFloodFill(dc, 190, 380, Yellow, FLOODFILLSURFACE);
    SelectObject(dc, before);

    caption(pb, 230, 352, QStringLiteral("TextOutA at 0, 45, 90 degrees"));
    SetBkMode(dc, TRANSPARENT);
    SetTextColor(dc, Blue);
    const Font saved = SelectObject(dc, CreateFontA(-20, 0, 0, 0, 700, 0, 0, 0, 0, 0, 0, 0, 0,
                                                    QStringLiteral("Arial")));
    TextOutA(dc, 240, 380, QStringLiteral("Text 0"));
    SelectObject(dc, CreateFontA(-20, 0, 450, 450, 700, 0, 0, 0, 0, 0, 0, 0, 0,
                                 QStringLiteral("Arial")));
    TextOutA(dc, 340, 480, QStringLiteral("Text 45"));
    SelectObject(dc, CreateFontA(-20, 0, 900, 900, 700, 0, 0, 0, 0, 0, 0, 0, 0,
                                 QStringLiteral("Arial")));
    TextOutA(dc, 470, 500, QStringLiteral("Text 90"));
    SelectObject(dc, saved);
    pb.Line(515, 372, 630, 402, Grey, LineFlags::BF);
    pb.setFontTransparent(false);
    pb.setForeColor(Red);
    caption(pb, 520, 380, QStringLiteral("Print, opaque"));
    pb.setFontTransparent(true);
    pb.setForeColor(Black);

    const QImage &sheet = pb.Image();
    ASSERT_TRUE(sheet.save(QStringLiteral("drawing_sheet.png")));

    // A few pixels of what is shown.
    EXPECT_EQ(pb.Point(10 + 5 * 88 + 40, 26), White); // DrawStyle 5 draws nothing
    EXPECT_EQ(pb.Point(10 + 6 * 88 + 40, 26), Black);
    EXPECT_EQ(pb.Point(70, 115), Yellow);             // copy-pen fill
    EXPECT_EQ(pb.Point(235, 115), Green ^ Yellow);    // XOR fill over the green bar
    EXPECT_EQ(pb.Point(395, 115), Green);             // XOR twice: the bar again
    EXPECT_EQ(pb.Point(340, 215), Yellow);            // inside the pie's quadrant
    EXPECT_EQ(pb.Point(320, 235), White);             // outside it
    EXPECT_EQ(pb.Point(135, 300), Red);               // BF
    EXPECT_EQ(pb.Point(225, 300), Yellow);            // B filled by FillColor
    EXPECT_EQ(pb.Point(60, 400), Green);              // flood fill above the line
    EXPECT_EQ(pb.Point(60, 440), White);              // ... not below it
    EXPECT_EQ(pb.Point(190, 380), Blue);              // surface fill right of the diagonal
    EXPECT_EQ(pb.Point(130, 450), Yellow);            // ... not left of it
    EXPECT_EQ(pb.Point(520, 381), White);             // opaque text cell over grey
}
