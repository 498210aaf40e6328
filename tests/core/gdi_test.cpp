// The graphics-device calls, each on a top-down RGB32 context and a bottom-up 24-bit one.
#include "core/gdi.h"
#include "pixel_art.h"

#include <gtest/gtest.h>
#include <set>

#include <algorithm>
#include <tuple>

using namespace tf;
using tf::test::art;
using tf::test::inkBox;

namespace {

// A white surface of either layout with its context; pen black, brush red.
struct Surface {
    QImage image;
    DeviceContext dc;
    Surface(int w, int h, bool bottomUp)
        : image(w, h, bottomUp ? QImage::Format_BGR888 : QImage::Format_RGB32)
    {
        image.fill(Qt::white);
        dc.attach(&image, bottomUp);
        SelectObject(dc, CreatePen(PS_SOLID, 1, 0));
        SelectObject(dc, CreateSolidBrush(0xFF));
    }
    std::string pixels() const { return art(dc); }
};

class Gdi : public ::testing::TestWithParam<bool> {
protected:
    Surface surface(int w, int h) { return Surface(w, h, GetParam()); }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Layouts, Gdi, ::testing::Values(false, true),
                         [](const auto &info) { return info.param ? "BottomUp24" : "TopDown32"; });

TEST_P(Gdi, PixelsHonourTheClipAndIgnoreTheRasterMode)
{
    Surface s = surface(3, 2);
    EXPECT_EQ(SetPixel(s.dc, 0, 0, 0xFF), 0xFF);
    EXPECT_EQ(SetPixel(s.dc, 3, 0, 0xFF), -1);
    SetROP2(s.dc, R2_XORPEN);
    EXPECT_TRUE(SetPixelV(s.dc, 1, 0, 0xFF0000));
    EXPECT_EQ(GetPixel(s.dc, 1, 0), 0xFF0000);
    s.dc.setClip(QRect(0, 1, 3, 1));
    EXPECT_EQ(GetPixel(s.dc, 0, 0), -1);
    EXPECT_EQ(SetPixel(s.dc, 2, 0, 0), -1);
    EXPECT_EQ(GetPixel(s.dc, 0, 1), 0xFFFFFF);
    s.dc.resetClip();
    EXPECT_EQ(s.pixels(), "rb.\n...\n");
    // Picture row 0 is the last memory row of a bottom-up surface.
    const int memoryRow = GetParam() ? 1 : 0;
    EXPECT_EQ(s.image.constScanLine(memoryRow)[2], 255); // red byte of (0, 0)
}

TEST_P(Gdi, RectangleEllipseAndRoundRectAreRightBottomExclusive)
{
    Surface s = surface(13, 5);
    Rectangle(s.dc, 1, 1, 5, 4);
    Ellipse(s.dc, 6, 0, 11, 5);
    EXPECT_EQ(s.pixels(), ".......###...\n"
                          ".####.#rrr#..\n"
                          ".#rr#.#rrr#..\n"
                          ".####.#rrr#..\n"
                          ".......###...\n");
    Surface r = surface(9, 7);
    RoundRect(r.dc, 0, 0, 9, 7, 4, 4);
    EXPECT_EQ(r.dc.pixel(0, 0), 0xFFFFFF); // corners rounded off
    EXPECT_EQ(r.dc.pixel(4, 0), 0);
    EXPECT_EQ(r.dc.pixel(0, 3), 0);
    EXPECT_EQ(r.dc.pixel(8, 3), 0);
    EXPECT_EQ(r.dc.pixel(4, 3), 0xFF);
}

TEST_P(Gdi, WidePensAndNullObjects)
{
    Surface s = surface(12, 12);
    SelectObject(s.dc, CreatePen(PS_SOLID, 3, 0));
    SelectObject(s.dc, GetStockHollowBrush());
    Rectangle(s.dc, 2, 2, 10, 10);
    EXPECT_EQ(inkBox(s.dc), QRect(QPoint(1, 1), QPoint(10, 10)));
    EXPECT_EQ(s.dc.pixel(5, 5), 0xFFFFFF);
    Surface n = surface(6, 6);
    SelectObject(n.dc, CreatePen(PS_NULL, 1, 0));
    Ellipse(n.dc, 0, 0, 6, 6);
    EXPECT_EQ(inkBox(n.dc), QRect(0, 0, 6, 6));
    EXPECT_EQ(n.dc.pixel(0, 0), 0xFFFFFF);
    EXPECT_EQ(n.dc.pixel(0, 2), 0xFF); // the fill alone
}

TEST_P(Gdi, EllipseIsSymmetricAndDashedOutlinesHaveGaps)
{
    Surface s = surface(17, 11);
    Ellipse(s.dc, 0, 0, 17, 11);
    for (int y = 0; y < 11; ++y)
        for (int x = 0; x < 17; ++x) {
            ASSERT_EQ(s.dc.pixel(x, y), s.dc.pixel(16 - x, y)) << x << "," << y;
            ASSERT_EQ(s.dc.pixel(x, y), s.dc.pixel(x, 10 - y)) << x << "," << y;
        }
    EXPECT_EQ(inkBox(s.dc), QRect(0, 0, 17, 11));

    Surface d = surface(40, 40);
    SelectObject(d.dc, CreatePen(PS_DOT, 1, 0));
    SelectObject(d.dc, GetStockHollowBrush());
    SetBkMode(d.dc, TRANSPARENT);
    Ellipse(d.dc, 0, 0, 40, 40);
    int black = 0, white = 0;
    for (int x = 0; x < 40; ++x)
        (d.dc.pixel(x, 0) == 0 ? black : white) += 1;
    EXPECT_GT(black, 0);
    EXPECT_GT(white, 0);
}

TEST_P(Gdi, PolygonFillsEvenOddAndWritesEachPixelOnce)
{
    Surface s = surface(9, 9);
    const POINTAPI tri[] = {{1, 1}, {7, 1}, {1, 7}};
    Polygon(s.dc, tri, 3);
    EXPECT_EQ(s.pixels(), ".........\n"
                          ".#######.\n"
                          ".#rrrr#..\n"
                          ".#rrr#...\n"
                          ".#rr#....\n"
                          ".#r#.....\n"
                          ".##......\n"
                          ".#.......\n"
                          ".........\n");
    // XOR a white pen and a cyan brush once on white: each vertex must come out black.
    Surface x = surface(9, 9);
    SelectObject(x.dc, CreatePen(PS_SOLID, 1, 0xFFFFFF));
    SelectObject(x.dc, CreateSolidBrush(0xFFFF00));
    SetROP2(x.dc, R2_XORPEN);
    Polygon(x.dc, tri, 3);
    for (const POINTAPI &p : tri)
        EXPECT_EQ(x.dc.pixel(p.x, p.y), 0);
    EXPECT_EQ(x.dc.pixel(2, 2), 0x0000FF);
    Polygon(x.dc, tri, 3);
    EXPECT_EQ(inkBox(x.dc), QRect());

    Surface l = surface(6, 1);
    const POINTAPI line[] = {{0, 0}, {3, 0}, {5, 0}};
    Polyline(l.dc, line, 3);
    EXPECT_EQ(l.pixels(), "#####.\n");
}

TEST_P(Gdi, FloodFillStopsAtTheBorderColour)
{
    Surface s = surface(9, 9);
    SelectObject(s.dc, GetStockHollowBrush());
    Rectangle(s.dc, 1, 1, 8, 8);
    SetPixel(s.dc, 4, 4, 0xFF0000); // another colour inside is filled over
    SelectObject(s.dc, CreateSolidBrush(0xFF));
    EXPECT_FALSE(FloodFill(s.dc, 1, 1, 0));  // seed on the border
    EXPECT_FALSE(FloodFill(s.dc, 9, 1, 0));  // seed outside
    EXPECT_TRUE(FloodFill(s.dc, 3, 3, 0));
    const std::string filled = s.pixels();
    EXPECT_EQ(std::count(filled.begin(), filled.end(), 'r'), 25) << filled;
    EXPECT_EQ(filled.substr(10 * 2, 10), ".#rrrrr#.\n");
    EXPECT_EQ(filled.substr(10 * 7, 20), ".#######.\n.........\n");
    // From outside it runs round the box up to the picture's edge.
    SelectObject(s.dc, CreateSolidBrush(0x00FF00));
    EXPECT_TRUE(FloodFill(s.dc, 0, 0, 0));
    EXPECT_EQ(s.dc.pixel(8, 8), 0x00FF00);
    EXPECT_EQ(s.dc.pixel(4, 4), 0xFF);
}

TEST_P(Gdi, FloodFillIsFourConnected)
{
    Surface s = surface(6, 6);
    for (int i = 0; i <= 4; ++i) // a diagonal border with corner-to-corner gaps
        SetPixel(s.dc, i, 4 - i, 0);
    EXPECT_TRUE(FloodFill(s.dc, 0, 0, 0));
    const std::string filled = s.pixels();
    EXPECT_EQ(std::count(filled.begin(), filled.end(), 'r'), 10) << filled;
    EXPECT_EQ(s.dc.pixel(2, 3), 0xFFFFFF) << "no leak past a corner-to-corner gap";
}

TEST_P(Gdi, SurfaceFillTakesOnlyTheSeedColourAndStaysInTheClip)
{
    Surface s = surface(7, 3);
    RECT green;
    SetRect(green, 0, 0, 5, 3);
    FillRect(s.dc, green, CreateSolidBrush(0x00FF00));
    SetPixel(s.dc, 2, 1, 0xFF0000);
    SelectObject(s.dc, CreateSolidBrush(0x00FF00)); // the same colour as the surface: no loop
    EXPECT_TRUE(ExtFloodFill(s.dc, 0, 0, 0x00FF00, FLOODFILLSURFACE));
    EXPECT_FALSE(ExtFloodFill(s.dc, 6, 0, 0x00FF00, FLOODFILLSURFACE));
    SelectObject(s.dc, CreateSolidBrush(0xFF));
    s.dc.setClip(QRect(0, 0, 7, 2));
    EXPECT_TRUE(ExtFloodFill(s.dc, 0, 0, 0x00FF00, FLOODFILLSURFACE));
    s.dc.resetClip();
    EXPECT_EQ(s.pixels(), "rrrrr..\n"
                          "rrbrr..\n"
                          "ggggg..\n");
}

TEST_P(Gdi, FillRectIgnoresTheRasterModeAndHollowBrushes)
{
    Surface s = surface(5, 3);
    SetROP2(s.dc, R2_XORPEN);
    RECT r{1, 0, 4, 2};
    EXPECT_EQ(FillRect(s.dc, r, CreateSolidBrush(0)), 1);
    FillRect(s.dc, RECT{0, 0, 5, 3}, GetStockHollowBrush());
    EXPECT_EQ(s.pixels(), ".###.\n.###.\n.....\n");
}

TEST(GdiRect, RightAndBottomAreExclusive)
{
    RECT a, b, c;
    SetRect(a, 0, 0, 10, 10);
    SetRect(b, 5, 5, 15, 15);
    EXPECT_TRUE(IntersectRect(c, a, b));
    EXPECT_EQ(std::tuple(c.left, c.top, c.right, c.bottom), std::tuple(5, 5, 10, 10));
    SetRect(b, 10, 0, 20, 10); // touching is not overlapping
    EXPECT_FALSE(IntersectRect(c, a, b));
    EXPECT_TRUE(IsRectEmpty(c));
    EXPECT_TRUE(IsRectEmpty(RECT{6, 0, 5, 10}));
    EXPECT_TRUE(PtInRect(a, 9, 9));
    EXPECT_FALSE(PtInRect(a, 10, 5));
    EXPECT_FALSE(PtInRect(a, POINTAPI{5, 10}));
}

TEST_P(Gdi, RegionsAreTheFiguresPixels)
{
    const Region rect = CreateRectRgn(2, 3, 6, 8);
    EXPECT_TRUE(PtInRegion(rect, 5, 7));
    EXPECT_FALSE(PtInRegion(rect, 6, 7));
    EXPECT_FALSE(PtInRegion(rect, 5, 8));
    RECT box;
    EXPECT_EQ(GetRgnBox(rect, box), SIMPLEREGION);
    EXPECT_EQ(std::tuple(box.left, box.top, box.right, box.bottom), std::tuple(2, 3, 6, 8));

    const Region oval = CreateEllipticRgn(0, 0, 10, 6);
    EXPECT_EQ(GetRgnBox(oval, box), COMPLEXREGION);
    EXPECT_EQ(box.right, 10);
    EXPECT_EQ(box.bottom, 6);
    // The region holds exactly the pixels that Ellipse covers.
    Surface s = surface(10, 6);
    SelectObject(s.dc, CreatePen(PS_NULL, 1, 0));
    Ellipse(s.dc, 0, 0, 10, 6);
    for (int y = 0; y < 6; ++y)
        for (int x = 0; x < 10; ++x)
            EXPECT_EQ(PtInRegion(oval, x, y), s.dc.pixel(x, y) == 0xFF) << x << "," << y;

    Region rest;
    EXPECT_EQ(CombineRgn(rest, rect, rect, RGN_DIFF), NULLREGION);
    EXPECT_EQ(GetRgnBox(rest, box), NULLREGION);
    EXPECT_TRUE(IsRectEmpty(box));
    Region both;
    CombineRgn(both, rect, CreateRectRgn(0, 0, 3, 4), RGN_OR);
    OffsetRgn(both, 1, 1);
    EXPECT_TRUE(PtInRegion(both, 1, 1));
    FillRgn(s.dc, both, CreateSolidBrush(0));
    EXPECT_EQ(s.dc.pixel(1, 1), 0);
}

TEST_P(Gdi, TextTurnsWithTheEscapement)
{
    Surface up = surface(60, 60);
    SelectObject(up.dc, CreateFontA(-16, 0, 900, 900, 700, 0, 0, 0, 0, 0, 0, 0, 0, "Arial"));
    SetBkMode(up.dc, TRANSPARENT);
    TextOutA(up.dc, 2, 58, "Hello");
    const QRect v = inkBox(up.dc);
    EXPECT_GT(v.height(), v.width());
    EXPECT_LE(v.bottom(), 58); // reads upwards from the reference point
    EXPECT_GE(v.left(), 2);

    // Opaque: the cell is filled with the background colour; the text colour is its own.
    Surface o = surface(60, 30);
    SelectObject(o.dc, CreateFontA(-16, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial"));
    SetBkColor(o.dc, 0x00FF00);
    SetTextColor(o.dc, 0xFF);
    SetROP2(o.dc, R2_XORPEN); // text is not combined with the picture
    TextOutA(o.dc, 0, 0, "Hi");
    SIZE ext;
    GetTextExtentPoint32A(o.dc, "Hi", ext);
    EXPECT_EQ(inkBox(o.dc), QRect(0, 0, ext.cx, ext.cy));
    EXPECT_EQ(o.dc.pixel(0, 0), 0x00FF00);
    EXPECT_NE(o.pixels().find('r'), std::string::npos);
}

TEST_P(Gdi, TextOfTheSoftQualitiesMixesItsEdgesOverThePicture)
{
    const auto colours = [](Surface &s) {
        std::set<ColorLong> seen;
        for (int y = 0; y < s.dc.height(); ++y)
            for (int x = 0; x < s.dc.width(); ++x) seen.insert(s.dc.pixel(x, y));
        return seen;
    };
    for (const int quality : {int(DEFAULT_QUALITY), int(NONANTIALIASED_QUALITY),
                              int(ANTIALIASED_QUALITY), int(CLEARTYPE_QUALITY)}) {
        SCOPED_TRACE(quality);
        Surface s = surface(80, 40);
        SelectObject(s.dc, CreateFontA(-20, 0, 150, 150, 400, 0, 0, 0, 0, 0, 0, unsigned(quality),
                                       0, "Arial"));
        SetBkMode(s.dc, TRANSPARENT);
        SetTextColor(s.dc, RGB(0, 0, 255));
        TextOutA(s.dc, 4, 12, "Sog");
        const std::set<ColorLong> seen = colours(s);
        const bool soft = quality == ANTIALIASED_QUALITY || quality == CLEARTYPE_QUALITY;
        EXPECT_TRUE(seen.count(RGB(0, 0, 255))); // the middle of a stroke is the text colour
        if (soft) {
            EXPECT_GT(seen.size(), 5u);
            // Every mixed pixel lies between the picture's white and the text's blue.
            for (const ColorLong c : seen) {
                EXPECT_EQ(RedOf(c), GreenOf(c));
                EXPECT_EQ(BlueOf(c), 255);
            }
        } else {
            EXPECT_EQ(seen.size(), 2u);
        }
    }
}

TEST(GdiText, FontHeightsAndMetrics)
{
    QImage img(4, 4, QImage::Format_RGB32);
    DeviceContext dc(&img, false);
    SelectObject(dc, CreateFontA(-20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, "Arial"));
    EXPECT_EQ(toQFont(dc.font).pixelSize(), 20); // negative: the em height
    TEXTMETRIC tm;
    ASSERT_TRUE(GetTextMetricsA(dc, tm));
    EXPECT_EQ(tm.tmHeight, tm.tmAscent + tm.tmDescent);
    EXPECT_GE(tm.tmHeight, 20);

    LOGFONT lf;
    lf.lfHeight = 30; // positive: the cell height
    lf.lfWeight = 700;
    lf.lfFaceName = QStringLiteral("Arial");
    SelectObject(dc, CreateFontIndirectA(lf));
    GetTextMetricsA(dc, tm);
    EXPECT_NEAR(tm.tmHeight, 30, 1);
    EXPECT_EQ(tm.tmWeight, 700);
}
