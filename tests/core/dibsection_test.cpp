#include "core/dibsection.h"
#include "core/prompter.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <tuple>
#include <vector>

using namespace tf;

namespace {

// A pixel of the surface by memory coordinates: (blue, green, red) packed as 0xBBGGRR.
uint32_t memPixel(const cDIBSection &d, int x, int memRow)
{
    const ConstDibView v = d.view();
    const uint8_t *p = v.row(memRow) + x * 3;
    return uint32_t(p[0]) << 16 | uint32_t(p[1]) << 8 | p[2];
}

void setMemPixel(cDIBSection &d, int x, int memRow, uint8_t b, uint8_t g, uint8_t r)
{
    uint8_t *p = d.view().row(memRow) + x * 3;
    p[0] = b;
    p[1] = g;
    p[2] = r;
}

// Fills every pixel byte with a pattern that differs between pixels and channels.
void fillPattern(cDIBSection &d, unsigned seed = 7)
{
    const DibView v = d.view();
    unsigned s = seed;
    for (int y = 0; y < v.height; ++y)
        for (int i = 0; i < v.width * 3; ++i) {
            s = s * 1103515245u + 12345u;
            v(i, y) = uint8_t(s >> 16);
        }
}

bool sameMemory(const cDIBSection &a, const cDIBSection &b)
{
    return a.dib_width() == b.dib_width() && a.dib_height() == b.dib_height() &&
           std::memcmp(a.DIBSectionBitsPtr(), b.DIBSectionBitsPtr(), a.view().byteCount()) == 0;
}

// The bilinear rule written out plainly, for comparison.
std::vector<uint8_t> referenceResample(const cDIBSection &src, int nw, int nh)
{
    const ConstDibView s = src.view();
    const float xScale = float(double(s.width - 1) / nw);
    const float yScale = float(double(s.height - 1) / nh);
    std::vector<uint8_t> out(size_t(nw) * nh * 3);
    for (int y = 0; y < nh; ++y) {
        const double sy = double(yScale) * y;
        const int iy = int(std::floor(sy));
        const double fy = sy - iy;
        const int iy1 = std::min(iy + 1, s.height - 1);
        for (int x = 0; x < nw; ++x) {
            const double sx = double(xScale) * x;
            const int ix = int(std::floor(sx));
            const double fx = sx - ix;
            const int ix1 = std::min(ix + 1, s.width - 1);
            for (int c = 0; c < 3; ++c) {
                const double left = std::nearbyint((1 - fy) * s(ix * 3 + c, iy) + fy * s(ix * 3 + c, iy1));
                const double right =
                    std::nearbyint((1 - fy) * s(ix1 * 3 + c, iy) + fy * s(ix1 * 3 + c, iy1));
                out[(size_t(y) * nw + x) * 3 + c] = uint8_t(std::nearbyint((1 - fx) * left + fx * right));
            }
        }
    }
    return out;
}

std::vector<uint8_t> pixelBytes(const cDIBSection &d)
{
    const ConstDibView v = d.view();
    std::vector<uint8_t> out;
    for (int y = 0; y < v.height; ++y)
        out.insert(out.end(), v.row(y), v.row(y) + v.width * 3);
    return out;
}

} // namespace

TEST(DIBSection, CreateWithBackColorZeroIsBlackAndHeaderIsRight)
{
    cDIBSection d;
    EXPECT_EQ(d.hDIB(), 0u);
    ASSERT_TRUE(d.Create(5, 3, 0));
    EXPECT_NE(d.hDIB(), 0u);
    ASSERT_NE(d.DIBSectionBitsPtr(), nullptr);
    EXPECT_EQ(d.dib_width(), 5);
    EXPECT_EQ(d.dib_height(), 3);
    EXPECT_EQ(d.dib_channels(), 3);
    EXPECT_EQ(d.BytesPerScanLine(), 16);
    const BITMAPINFOHEADER &bi = d.header();
    EXPECT_EQ(bi.biSize, 40u);
    EXPECT_EQ(bi.biWidth, 5);
    EXPECT_EQ(bi.biHeight, 3);
    EXPECT_EQ(bi.biPlanes, 1);
    EXPECT_EQ(bi.biBitCount, 24);
    EXPECT_EQ(bi.biCompression, BI_RGB);
    EXPECT_EQ(bi.biSizeImage, 48u);
    for (int i = 0; i < 48; ++i)
        EXPECT_EQ(d.DIBSectionBitsPtr()[i], 0) << i;
    EXPECT_TRUE(d.dib_hdc().valid());
    EXPECT_TRUE(d.dib_hdc().bottomUp());
}

TEST(DIBSection, CreateWithBackColorOneFills)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(3, 2, 1));
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x) {
            EXPECT_EQ(memPixel(d, x, y), 0x000001u); // red 1, in the third byte
            EXPECT_EQ(d.dib_hdc().pixel(x, y), 1);
        }
        for (int i = 9; i < 12; ++i)
            EXPECT_EQ(d.view()(i, y), 0) << "padding stays 0";
    }
    cDIBSection e;
    ASSERT_TRUE(e.Create(2, 2, 0x00123456));
    EXPECT_EQ(e.view()(0, 0), 0x12); // blue
    EXPECT_EQ(e.view()(1, 0), 0x34); // green
    EXPECT_EQ(e.view()(2, 0), 0x56); // red
}

TEST(DIBSection, RowsArePaddedToFourBytes)
{
    const int expected[] = {0, 4, 8, 12, 12, 16, 20, 24};
    for (int w = 1; w <= 7; ++w) {
        cDIBSection d;
        ASSERT_TRUE(d.Create(w, 5));
        EXPECT_EQ(d.BytesPerScanLine(), expected[w]) << w;
        EXPECT_EQ(d.header().biSizeImage, uint32_t(expected[w] * 5)) << w;
        EXPECT_EQ(d.view().stride, expected[w]);
    }
}

TEST(DIBSection, BadSizesGiveAnEmptyObjectAndFalseWithoutAMessage)
{
    ScriptedPrompter prompter;
    PrompterScope scope(prompter);
    cDIBSection d;
    ASSERT_TRUE(d.Create(4, 4, 0xFF));
    for (auto [w, h] : {std::pair{0, 5}, {5, 0}, {-1, 3}, {3, -7}, {0, 0}}) {
        EXPECT_FALSE(d.Create(w, h)) << w << "x" << h;
        EXPECT_EQ(d.hDIB(), 0u);
        EXPECT_EQ(d.DIBSectionBitsPtr(), nullptr);
        EXPECT_EQ(d.dib_width(), 0);
        EXPECT_EQ(d.dib_height(), 0);
        EXPECT_EQ(d.BytesPerScanLine(), 0);
        EXPECT_FALSE(d.dib_hdc().valid());
        EXPECT_TRUE(d.view().empty());
    }
    EXPECT_FALSE(d.CreateDIB(-5, 10));
    EXPECT_FALSE(d.CreateFromPicture(QImage()));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST(DIBSection, ASurfaceOf14000By14000CanBeMadeAndFreed)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(14000, 14000, 0));
    EXPECT_EQ(d.BytesPerScanLine(), 42000);
    EXPECT_EQ(d.header().biSizeImage, 588000000u);
    EXPECT_EQ(d.view()(0, 0), 0);
    EXPECT_EQ(d.view()(41999, 13999), 0);
    d.ClearUp();
    EXPECT_EQ(d.hDIB(), 0u);
    EXPECT_EQ(d.DIBSectionBitsPtr(), nullptr);
}

TEST(DIBSection, ClearUpEmptiesAndCreateStartsAFreshContext)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(3, 3));
    SetStretchBltMode(d.dib_hdc(), HALFTONE);
    d.dib_hdc().setClip(QRect(0, 0, 1, 1));
    ASSERT_TRUE(d.Create(2, 2));
    EXPECT_EQ(GetStretchBltMode(d.dib_hdc()), BLACKONWHITE);
    EXPECT_FALSE(d.dib_hdc().hasClip());
    EXPECT_EQ(d.dib_hdc().width(), 2);
}

TEST(DIBSection, PaintingThroughTheContextWritesTheSurfacesOwnMemory)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(4, 3));
    const uint8_t *bits = d.DIBSectionBitsPtr();
    {
        auto p = d.dib_hdc().painter();
        p->fillRect(QRect(0, 0, 1, 1), QColor(10, 20, 30)); // top left as shown
    }
    EXPECT_EQ(d.DIBSectionBitsPtr(), bits);
    EXPECT_EQ(d.dib_hdc().image()->constBits(), bits) << "the image did not detach";
    // The top row as shown is the last memory row.
    EXPECT_EQ(d.view()(0, 2), 30);
    EXPECT_EQ(d.view()(1, 2), 20);
    EXPECT_EQ(d.view()(2, 2), 10);
    EXPECT_EQ(d.view()(0, 0), 0);
}

TEST(DIBSection, ByteViewIndexesByteInRowThenMemoryRow)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(2, 3));
    DibView v = d.view();
    EXPECT_EQ(v.width, 2);
    EXPECT_EQ(v.height, 3);
    EXPECT_EQ(v.stride, 8);
    v(5, 0) = 200; // red of pixel 1, memory row 0 = the bottom row as shown
    EXPECT_EQ(d.dib_hdc().pixel(1, 2), 200);
    EXPECT_EQ(&v(0, 1), d.DIBSectionBitsPtr() + 8);
    EXPECT_EQ(v.at(7, 2), 0);
    EXPECT_THROW(v.at(8, 0), Fault);
    EXPECT_THROW(v.at(0, 3), Fault);
    EXPECT_THROW(v.at(-1, 0), Fault);
    try {
        v.at(0, -1);
    } catch (const Fault &f) {
        EXPECT_EQ(f.number(), Fault::SubscriptOutOfRange);
    }
}

TEST(DIBSection, LoadPictureBltAndPaintPictureRoundTripWithARgb32Picture)
{
    QImage pic(4, 3, QImage::Format_RGB32);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            pic.setPixel(x, y, qRgb(10 * x + 1, 20 * y + 2, 7 * x + 5 * y + 3));
    DeviceContext picDc(&pic, false);

    cDIBSection d;
    ASSERT_TRUE(d.Create(4, 3));
    ASSERT_TRUE(d.LoadPictureBlt(picDc, 0, 0));
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(d.dib_hdc().pixel(x, y), fromQRgb(pic.pixel(x, y)));
    // Memory row 0 is the bottom row of the picture.
    const QRgb bottomLeft = pic.pixel(0, 2);
    EXPECT_EQ(d.view()(0, 0), qBlue(bottomLeft));
    EXPECT_EQ(d.view()(1, 0), qGreen(bottomLeft));
    EXPECT_EQ(d.view()(2, 0), qRed(bottomLeft));

    QImage back(4, 3, QImage::Format_RGB32);
    back.fill(Qt::black);
    DeviceContext backDc(&back, false);
    ASSERT_TRUE(d.PaintPicture(backDc, 0, 0));
    EXPECT_EQ(back, pic);

    // A part: source (1,1) of 2x2 to the surface's (0,0); the rest stays.
    cDIBSection part;
    ASSERT_TRUE(part.Create(3, 3));
    ASSERT_TRUE(part.LoadPictureBlt(picDc, 1, 1, 2, 2));
    EXPECT_EQ(part.dib_hdc().pixel(0, 0), fromQRgb(pic.pixel(1, 1)));
    EXPECT_EQ(part.dib_hdc().pixel(1, 1), fromQRgb(pic.pixel(2, 2)));
    EXPECT_EQ(part.dib_hdc().pixel(2, 2), 0);
    EXPECT_EQ(part.dib_hdc().pixel(2, 0), 0);

    // PaintPicture with offsets: surface (1,0) 2x1 to (2,2).
    back.fill(Qt::black);
    ASSERT_TRUE(d.PaintPicture(backDc, 2, 2, 2, 1, 1, 0));
    EXPECT_EQ(back.pixel(2, 2), pic.pixel(1, 0));
    EXPECT_EQ(back.pixel(3, 2), pic.pixel(2, 0));
    EXPECT_EQ(back.pixel(1, 2), qRgb(0, 0, 0));

    // An empty object does nothing.
    cDIBSection empty;
    EXPECT_FALSE(empty.PaintPicture(backDc, 0, 0));
    EXPECT_FALSE(empty.LoadPictureBlt(picDc, 0, 0));
}

TEST(DIBSection, CreateFromPictureTakesAnyFormat)
{
    QImage pic(3, 2, QImage::Format_RGB32);
    pic.setPixel(0, 0, qRgb(1, 2, 3));
    pic.setPixel(1, 0, qRgb(4, 5, 6));
    pic.setPixel(2, 0, qRgb(7, 8, 9));
    pic.setPixel(0, 1, qRgb(10, 11, 12));
    pic.setPixel(1, 1, qRgb(13, 14, 15));
    pic.setPixel(2, 1, qRgb(255, 0, 128));
    for (const QImage::Format f :
         {QImage::Format_RGB32, QImage::Format_RGB888, QImage::Format_BGR888, QImage::Format_ARGB32}) {
        cDIBSection d;
        ASSERT_TRUE(d.CreateFromPicture(pic.convertToFormat(f))) << f;
        EXPECT_EQ(d.dib_width(), 3);
        EXPECT_EQ(d.dib_height(), 2);
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 3; ++x)
                EXPECT_EQ(d.dib_hdc().pixel(x, y), fromQRgb(pic.pixel(x, y))) << f;
    }
}

TEST(DIBSection, StretchUsesTheGivenModeAndRestoresTheTargets)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(2, 2));
    d.dib_hdc().setPixel(0, 0, 0x0000FF);
    d.dib_hdc().setPixel(1, 0, 0x00FF00);
    d.dib_hdc().setPixel(0, 1, 0xFF0000);
    d.dib_hdc().setPixel(1, 1, 0xFFFFFF);
    QImage out(4, 4, QImage::Format_RGB32);
    out.fill(Qt::black);
    DeviceContext dc(&out, false);
    SetStretchBltMode(dc, HALFTONE);
    d.Stretch(dc, 0, 0, 4, 4, 0, 0, 2, 2, COLORONCOLOR);
    EXPECT_EQ(GetStretchBltMode(dc), HALFTONE);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(dc.pixel(x, y), d.dib_hdc().pixel(x / 2, y / 2));

    cDIBSection empty;
    out.fill(Qt::black);
    empty.Stretch(dc, 0, 0, 4, 4, 0, 0, 2, 2, COLORONCOLOR);
    EXPECT_EQ(dc.pixel(0, 0), 0);
}

TEST(DIBSection, ResampleAndResizeToTheSameSizeAreExactCopies)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(7, 5));
    fillPattern(d);
    auto a = d.Resample(7, 5);
    auto b = d.Resize(7, 5);
    ASSERT_TRUE(a && b);
    EXPECT_TRUE(sameMemory(d, *a));
    EXPECT_TRUE(sameMemory(d, *b));
}

TEST(DIBSection, ResampleToOneByOneSamplesTheCorner)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(3, 3));
    fillPattern(d, 99);
    auto r = d.Resample(1, 1);
    ASSERT_TRUE(r);
    ASSERT_EQ(r->dib_width(), 1);
    ASSERT_EQ(r->dib_height(), 1);
    // Memory (0,0): the bottom left pixel as shown.
    EXPECT_EQ(memPixel(*r, 0, 0), memPixel(d, 0, 0));
    EXPECT_EQ(r->dib_hdc().pixel(0, 0), d.dib_hdc().pixel(0, 2));
}

TEST(DIBSection, ResampleOfAKnownPatternRoundsEachStageHalfToEven)
{
    // 3x2 to 4x2: xScale = 2/4 = 0.5, yScale = 1/2 = 0.5.
    cDIBSection d;
    ASSERT_TRUE(d.Create(3, 2));
    setMemPixel(d, 0, 0, 10, 0, 1);
    setMemPixel(d, 0, 1, 11, 0, 2);
    setMemPixel(d, 1, 0, 20, 5, 100);
    setMemPixel(d, 1, 1, 23, 5, 101);
    setMemPixel(d, 2, 0, 40, 9, 7);
    setMemPixel(d, 2, 1, 50, 9, 7);
    auto r = d.Resample(4, 2);
    ASSERT_TRUE(r);
    const ConstDibView v = r->view();
    // (0,0): sx 0, sy 0: the source pixel itself.
    EXPECT_EQ(v(0, 0), 10);
    EXPECT_EQ(v(1, 0), 0);
    EXPECT_EQ(v(2, 0), 1);
    // (2,0): sx 1, fx 0: source column 1.
    EXPECT_EQ(v(6, 0), 20);
    EXPECT_EQ(v(8, 0), 100);
    // (1,1): sx 0.5, sy 0.5.
    //   blue: left 10.5 -> 10, right 21.5 -> 22, 0.5*10 + 0.5*22 = 16
    //   green: left 0, right 5, 2.5 -> 2 (half to even; half away from 0 would give 3)
    //   red: left 1.5 -> 2, right 100.5 -> 100, 51
    EXPECT_EQ(v(3, 1), 16);
    EXPECT_EQ(v(4, 1), 2);
    EXPECT_EQ(v(5, 1), 51);
    // (3,1): sx 1.5 between columns 1 and 2, sy 0.5.
    //   blue: left 21.5 -> 22, right 45, 33.5 -> 34; green: 5, 9 -> 7; red: 100.5 -> 100, 7 -> 53.5 -> 54
    EXPECT_EQ(v(9, 1), 34);
    EXPECT_EQ(v(10, 1), 7);
    EXPECT_EQ(v(11, 1), 54);
    EXPECT_EQ(pixelBytes(*r), referenceResample(d, 4, 2));
}

TEST(DIBSection, ResampleMatchesTheRuleOnLargerSurfacesWhateverTheThreads)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(301, 297));
    fillPattern(d, 3);
    for (auto [w, h] : {std::pair{257, 263}, {600, 11}, {1, 400}, {5, 3}}) {
        auto r = d.Resample(w, h);
        ASSERT_TRUE(r) << w << "x" << h;
        EXPECT_EQ(pixelBytes(*r), referenceResample(d, w, h)) << w << "x" << h;
    }
    // A source of one column or one row: the missing neighbour has weight 0.
    cDIBSection thin;
    ASSERT_TRUE(thin.Create(1, 4));
    fillPattern(thin, 5);
    auto r = thin.Resample(3, 2);
    ASSERT_TRUE(r);
    EXPECT_EQ(pixelBytes(*r), referenceResample(thin, 3, 2));
    EXPECT_EQ(memPixel(*r, 2, 0), memPixel(thin, 0, 0));
}

TEST(DIBSection, ResizeTakesTheSourcePixelAtTheFloorOfItsPosition)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(5, 3));
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x)
            setMemPixel(d, x, y, uint8_t(x), uint8_t(y), uint8_t(10 * y + x));
    // Down: xScale = 4/3: columns 0, 1 (1.33), 2 (2.67); yScale = 2/2 = 1: rows 0, 1.
    auto down = d.Resize(3, 2);
    ASSERT_TRUE(down);
    const int downCols[] = {0, 1, 2};
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(memPixel(*down, x, y), memPixel(d, downCols[x], y)) << x << "," << y;
    // Up: xScale = 4/7 = 0.571: columns 0 0 1 1 2 2 3, never the last; yScale = 2/4: rows 0 0 1 1.
    auto up = d.Resize(7, 4);
    ASSERT_TRUE(up);
    const int upCols[] = {0, 0, 1, 1, 2, 2, 3};
    const int upRows[] = {0, 0, 1, 1};
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 7; ++x)
            EXPECT_EQ(memPixel(*up, x, y), memPixel(d, upCols[x], upRows[y])) << x << "," << y;
}

TEST(DIBSection, AFaultInResampleIsReportedWithItsTag)
{
    ScriptedPrompter prompter;
    PrompterScope scope(prompter);
    cDIBSection d;
    ASSERT_TRUE(d.Create(4, 4));
    EXPECT_EQ(d.Resample(0, 3), nullptr);
    ASSERT_EQ(prompter.asked().size(), 1u);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Resample [Division by zero]"));
    EXPECT_EQ(prompter.asked().back().icon, Icon::Exclamation);

    EXPECT_EQ(d.Resize(3, -2), nullptr);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Resize [Invalid procedure call or argument]"));

    cDIBSection one;
    ASSERT_TRUE(one.Create(1, 1));
    EXPECT_EQ(one.Resize(0, 0), nullptr); // 0/0
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Resize [Overflow]"));

    cDIBSection empty;
    EXPECT_EQ(empty.Resample(2, 2), nullptr);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Resample [Invalid procedure call or argument]"));
    EXPECT_EQ(prompter.asked().size(), 4u);
}

namespace {

// The pixels of a surface by memory coordinates that hold colour c.
std::vector<std::pair<int, int>> pixelsOf(const cDIBSection &d, uint32_t bgr)
{
    std::vector<std::pair<int, int>> out;
    for (int y = 0; y < d.dib_height(); ++y)
        for (int x = 0; x < d.dib_width(); ++x)
            if (memPixel(d, x, y) == bgr)
                out.emplace_back(x, y);
    return out;
}

std::vector<std::pair<int, int>> boxPixels(int x0, int y0, int x1, int y1, bool outline)
{
    std::vector<std::pair<int, int>> out;
    for (int y = y0; y <= y1; ++y)
        for (int x = x0; x <= x1; ++x)
            if (!outline || y == y0 || y == y1 || x == x0 || x == x1)
                out.emplace_back(x, y);
    return out;
}

const ColorLong kColour = 0x00112233; // red 0x33, green 0x22, blue 0x11
const uint32_t kBgr = 0x112233;       // memPixel packs blue high

} // namespace

TEST(DIBSection, LineDIBFillsTheClampedBoxInMemoryRows)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(5, 4));
    cDIBSection::LineDIB(d, -3, 10, 2, 1, kColour, QStringLiteral("BF"), 50);
    EXPECT_EQ(pixelsOf(d, kBgr), boxPixels(0, 1, 2, 3, false));
    EXPECT_EQ(pixelsOf(d, 0).size(), 20u - 9u);
    // y is the raw memory row: memory row 1 is picture row 2.
    EXPECT_EQ(d.dib_hdc().pixel(0, 2), kColour);
    EXPECT_EQ(d.dib_hdc().pixel(0, 3), 0);
    for (int y = 0; y < 4; ++y)
        for (int i = 15; i < 16; ++i)
            EXPECT_EQ(d.view()(i, y), 0) << "padding";
}

TEST(DIBSection, LineDIBBoxDrawsFourEdgesWithReversedCoordinates)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(6, 5));
    cDIBSection::LineDIB(d, 4, 3, 1, 0, kColour, QStringLiteral("B"), 0);
    EXPECT_EQ(pixelsOf(d, kBgr), boxPixels(1, 0, 4, 3, true));

    cDIBSection e;
    ASSERT_TRUE(e.Create(4, 3));
    cDIBSection::LineDIB(e, -5, -5, 100, 100, kColour, QStringLiteral("B"), 100);
    EXPECT_EQ(pixelsOf(e, kBgr), boxPixels(0, 0, 3, 2, true));

    // Two rows: only the two edges.
    cDIBSection f;
    ASSERT_TRUE(f.Create(4, 3));
    cDIBSection::LineDIB(f, 0, 0, 3, 1, kColour, QStringLiteral("B"), 100);
    EXPECT_EQ(pixelsOf(f, kBgr), boxPixels(0, 0, 3, 1, false));
}

TEST(DIBSection, LineDIBBoxOfOneRowOrColumnIsOneLine)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(5, 5));
    cDIBSection::LineDIB(d, 1, 2, 3, 2, kColour, QStringLiteral("B"), 100);
    EXPECT_EQ(pixelsOf(d, kBgr), boxPixels(1, 2, 3, 2, false));

    cDIBSection e;
    ASSERT_TRUE(e.Create(5, 5));
    cDIBSection::LineDIB(e, 7, 4, 9, 1, kColour, QStringLiteral("B"), 100);
    EXPECT_EQ(pixelsOf(e, kBgr), boxPixels(4, 1, 4, 4, false));

    cDIBSection f;
    ASSERT_TRUE(f.Create(3, 3));
    cDIBSection::LineDIB(f, 1, 1, 1, 1, kColour, QStringLiteral("B"), 100);
    EXPECT_EQ(pixelsOf(f, kBgr), boxPixels(1, 1, 1, 1, false));
}

TEST(DIBSection, LineDIBWithAnotherBoxtypeOrAnEmptyTargetDrawsNothing)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(3, 3));
    cDIBSection::LineDIB(d, 0, 0, 2, 2, kColour, QString(), 100);
    cDIBSection::LineDIB(d, 0, 0, 2, 2, kColour, QStringLiteral("bf"), 100);
    EXPECT_EQ(pixelsOf(d, 0).size(), 9u);
    cDIBSection empty;
    cDIBSection::LineDIB(empty, 0, 0, 2, 2, kColour, QStringLiteral("BF"), 100);
    EXPECT_EQ(empty.hDIB(), 0u);
}

namespace {

QByteArray readFile(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return f.readAll();
}

uint32_t le32(const QByteArray &b, int at) { return qFromLittleEndian<quint32>(b.constData() + at); }
uint16_t le16(const QByteArray &b, int at) { return qFromLittleEndian<quint16>(b.constData() + at); }

} // namespace

TEST(DIBSection, SaveBmpWritesTheSystemsHeaderAndTheRows)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath(QStringLiteral("three.bmp"));
    {
        QFile old(path);
        ASSERT_TRUE(old.open(QIODevice::WriteOnly));
        old.write("an older and longer file that must be replaced as a whole");
    }
    cDIBSection d;
    ASSERT_TRUE(d.Create(3, 2));
    const int bgr[6][3] = {{1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12}, {13, 14, 15}, {16, 17, 18}};
    for (int i = 0; i < 6; ++i)
        setMemPixel(d, i % 3, i / 3, uint8_t(bgr[i][0]), uint8_t(bgr[i][1]), uint8_t(bgr[i][2]));
    ASSERT_TRUE(cDIBSection::Save_BMP(path, d));

    const QByteArray b = readFile(path);
    ASSERT_EQ(b.size(), 54 + 12 * 2);
    EXPECT_EQ(b.left(2), QByteArray("BM"));
    EXPECT_EQ(le16(b, 0), 19778);
    EXPECT_EQ(le32(b, 2), 40u + 12u * 2u) << "bfSize leaves out the 14-byte file header";
    EXPECT_EQ(le16(b, 6), 0);
    EXPECT_EQ(le16(b, 8), 0);
    EXPECT_EQ(le32(b, 10), 54u);
    EXPECT_EQ(le32(b, 14), 40u);
    EXPECT_EQ(le32(b, 18), 3u);
    EXPECT_EQ(le32(b, 22), 2u);
    EXPECT_EQ(le16(b, 26), 1);
    EXPECT_EQ(le16(b, 28), 24);
    for (int i = 30; i < 54; ++i)
        EXPECT_EQ(b[i], 0) << "header byte " << i;
    const uint8_t rows[24] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0, 0, 0, 10, 11, 12, 13, 14, 15, 16, 17, 18, 0, 0, 0};
    for (int i = 0; i < 24; ++i)
        EXPECT_EQ(uint8_t(b[54 + i]), rows[i]) << "pixel byte " << i;

    // The file reads back as the same picture.
    QImage img(path);
    ASSERT_FALSE(img.isNull());
    ASSERT_EQ(img.size(), QSize(3, 2));
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(fromQRgb(img.pixel(x, y)), d.dib_hdc().pixel(x, y)) << x << "," << y;
}

TEST(DIBSection, SaveBmpOfALargerSurfaceReadsBack)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("big.bmp"));
    cDIBSection d;
    ASSERT_TRUE(d.Create(601, 1203)); // rows of 1803 pixel bytes and 1 byte of padding
    fillPattern(d, 11);
    for (int y = 0; y < d.dib_height(); ++y)
        d.view()(1803, y) = 0xEE;
    ASSERT_TRUE(cDIBSection::Save_BMP(path, d));
    const QByteArray b = readFile(path);
    ASSERT_EQ(size_t(b.size()), 54 + d.view().byteCount());
    EXPECT_EQ(le32(b, 2), 40u + 1804u * 1203u);
    // Padding bytes are written as zeros whatever the memory holds.
    bool rowsSame = true;
    for (int y = 0; y < d.dib_height(); ++y) {
        const char *row = b.constData() + 54 + y * 1804;
        rowsSame = rowsSame && std::memcmp(row, d.view().row(y), 1803) == 0 && row[1803] == 0;
    }
    EXPECT_TRUE(rowsSame);
    for (int y = 0; y < d.dib_height(); ++y)
        d.view()(1803, y) = 0;
    cDIBSection back;
    ASSERT_TRUE(back.CreateFromPicture(QImage(path)));
    EXPECT_TRUE(sameMemory(d, back));
}

TEST(DIBSection, SaveBmpOfAnEmptySurfaceWritesNothing)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("empty.bmp"));
    cDIBSection empty;
    EXPECT_FALSE(cDIBSection::Save_BMP(path, empty));
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 0);
}

TEST(DIBSection, GetBestFitInfo)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(100, 50));
    int x = -1, y = -1, w = -1, h = -1;
    // Fits: never enlarged, centred.
    d.GetBestFitInfo(200, 200, x, y, w, h, false);
    EXPECT_EQ(std::tuple(x, y, w, h), std::tuple(50, 75, 100, 50));
    d.GetBestFitInfo(100, 50, x, y, w, h, false);
    EXPECT_EQ(std::tuple(x, y, w, h), std::tuple(0, 0, 100, 50));
    d.GetBestFitInfo(201, 101, x, y, w, h, false); // halves truncated
    EXPECT_EQ(std::tuple(x, y, w, h), std::tuple(50, 25, 100, 50));
    // StretchFit enlarges: xScale 2 < yScale 4.
    d.GetBestFitInfo(200, 200, x, y, w, h, true);
    EXPECT_EQ(std::tuple(x, y, w, h), std::tuple(0, 50, 200, 100));
    // Too large: shrunk.
    d.GetBestFitInfo(50, 50, x, y, w, h, false);
    EXPECT_EQ(std::tuple(x, y, w, h), std::tuple(0, 12, 50, 25));
    // xScale >= yScale: the height fills the box.
    cDIBSection tall;
    ASSERT_TRUE(tall.Create(50, 100));
    tall.GetBestFitInfo(200, 100, x, y, w, h, true);
    EXPECT_EQ(std::tuple(x, y, w, h), std::tuple(75, 0, 50, 100));
    // Rounding half to even: 0.5 * 5 = 2.5 -> 2, 0.5 * 3 = 1.5 -> 2.
    cDIBSection odd;
    ASSERT_TRUE(odd.Create(4, 5));
    odd.GetBestFitInfo(2, 100, x, y, w, h, false);
    EXPECT_EQ(std::tuple(x, y, w, h), std::tuple(0, 49, 2, 2));
    ASSERT_TRUE(odd.Create(4, 3));
    odd.GetBestFitInfo(2, 100, x, y, w, h, true);
    EXPECT_EQ(std::tuple(x, y, w, h), std::tuple(0, 49, 2, 2));
    // An empty surface.
    cDIBSection empty;
    empty.GetBestFitInfo(20, 20, x, y, w, h, true);
    EXPECT_EQ(std::tuple(x, y, w, h), std::tuple(0, 0, 0, 0));
}

namespace {

// The bounding box (picture coordinates) of the pixels that are not `background`.
QRect changedBox(const cDIBSection &d, ColorLong background)
{
    QRect box;
    for (int y = 0; y < d.dib_height(); ++y)
        for (int x = 0; x < d.dib_width(); ++x)
            if (d.dib_hdc().pixel(x, y) != background)
                box |= QRect(x, y, 1, 1);
    return box;
}

int countOf(const cDIBSection &d, ColorLong c, const QRect &r)
{
    int n = 0;
    for (int y = r.top(); y <= r.bottom(); ++y)
        for (int x = r.left(); x <= r.right(); ++x)
            n += d.dib_hdc().pixel(x, y) == c;
    return n;
}

const ColorLong kRed = 0x0000FF;

} // namespace

TEST(DIBSection, PrintDIBCopiesAWhiteBoxWithTheTextToItsPlace)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(300, 100, kRed));
    cDIBSection::PrintDIB(d, 0, 0, QStringLiteral("Tarvelle"), 1, 0, QStringLiteral("Arial"),
                          0x000000, 20, 0);
    const QRect box = changedBox(d, kRed);
    ASSERT_FALSE(box.isEmpty());
    EXPECT_EQ(box.topLeft(), QPoint(6, 6));
    EXPECT_GT(box.width(), 40);
    EXPECT_GE(box.height(), 18);
    EXPECT_LE(box.height(), 24);
    const int black = countOf(d, 0x000000, box), white = countOf(d, 0xFFFFFF, box);
    EXPECT_GT(black, 20);
    EXPECT_GT(white, black);
    EXPECT_EQ(black + white, box.width() * box.height()) << "no anti-aliasing";

    // Top right: a further 40 on the right; bottom right: 6 from the bottom.
    for (const int pos : {2, 3}) {
        cDIBSection e;
        ASSERT_TRUE(e.Create(300, 100, kRed));
        cDIBSection::PrintDIB(e, 0, 0, QStringLiteral("Tarvelle"), pos, 0,
                              QStringLiteral("Arial"), 0x000000, 20, 0);
        const QRect r = changedBox(e, kRed);
        EXPECT_EQ(r.size(), box.size());
        EXPECT_EQ(r.right(), 300 - 46 - 1) << pos;
        EXPECT_EQ(pos == 2 ? r.top() : r.bottom(), pos == 2 ? 6 : 100 - 6 - 1) << pos;
    }
    // At (X, Y).
    cDIBSection f;
    ASSERT_TRUE(f.Create(300, 100, kRed));
    cDIBSection::PrintDIB(f, 30, 40, QStringLiteral("Tarvelle"), 0, 0, QStringLiteral("Arial"),
                          0x00FF00, 20, 0);
    EXPECT_EQ(changedBox(f, kRed).topLeft(), QPoint(30, 40));
    EXPECT_GT(countOf(f, 0x00FF00, changedBox(f, kRed)), 20);
}

TEST(DIBSection, PrintDIBRotatedTextCoversItsTurnedBox)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(100, 300, kRed));
    cDIBSection::PrintDIB(d, 0, 0, QStringLiteral("Tarvelle"), 4, 90, QStringLiteral("Arial"),
                          0x000000, 20, 0);
    const QRect box = changedBox(d, kRed);
    ASSERT_FALSE(box.isEmpty());
    EXPECT_EQ(box.left(), 8);
    EXPECT_EQ(box.bottom(), 300 - 8 - 1);
    EXPECT_GT(box.height(), 40);
    EXPECT_LE(box.width(), 24);
    EXPECT_GT(countOf(d, 0x000000, box), 20);
}

TEST(DIBSection, PrintDIBChoosesTheSizeFromTheTargetWhenNotGiven)
{
    cDIBSection small, large;
    ASSERT_TRUE(small.Create(1100, 200, kRed)); // n = 10
    ASSERT_TRUE(large.Create(3300, 200, kRed)); // n = 30
    cDIBSection::PrintDIB(small, 0, 0, QStringLiteral("Tarvelle"), 1, 0, QStringLiteral("Arial"), 0, 0, 0);
    cDIBSection::PrintDIB(large, 0, 0, QStringLiteral("Tarvelle"), 1, 0, QStringLiteral("Arial"), 0, 0, 0);
    const QRect a = changedBox(small, kRed), b = changedBox(large, kRed);
    EXPECT_EQ(a.height(), 10);
    EXPECT_EQ(b.height(), 30);
    EXPECT_GT(b.width(), 2 * a.width());
}
