#include "support/files.h"
#include "core/dibsection.h"
#include "core/prompter.h"
#include "pixel_art.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QtEndian>
#include <gtest/gtest.h>

#include <cstring>
#include <tuple>
#include <vector>

using namespace tf;
using tf::test::gradient;

namespace {

// A pixel of the surface by memory coordinates: (blue, green, red) packed as 0xBBGGRR.
uint32_t memPixel(const cDIBSection &d, int x, int memRow)
{
    const uint8_t *p = d.view().row(memRow) + x * 3;
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

} // namespace

TEST(DIBSection, CreateFillsTheHeaderAndTheBackColourAndPadsRowsToFourBytes)
{
    cDIBSection d;
    EXPECT_EQ(d.hDIB(), 0u);
    ASSERT_TRUE(d.Create(3, 2, 1));
    const BITMAPINFOHEADER &bi = d.header();
    EXPECT_EQ(std::tuple(bi.biSize, bi.biWidth, bi.biHeight, bi.biPlanes, bi.biBitCount),
              std::tuple(40u, 3, 2, uint16_t(1), uint16_t(24)));
    EXPECT_EQ(std::tuple(bi.biCompression, bi.biSizeImage), std::tuple(uint32_t(BI_RGB), 24u));
    EXPECT_TRUE(d.dib_hdc().bottomUp());
    for (int y = 0; y < 2; ++y) {
        for (int x = 0; x < 3; ++x)
            EXPECT_EQ(memPixel(d, x, y), 0x000001u); // red 1, in the third byte
        EXPECT_EQ(d.view()(9, y), 0) << "padding stays 0";
    }
    ASSERT_TRUE(d.Create(2, 2, 0x00123456));
    EXPECT_EQ(memPixel(d, 1, 1), 0x123456u);

    // Width 1 has stride 4; a new surface starts a fresh context.
    const int stride[] = {0, 4, 8, 12, 12, 16, 20, 24};
    for (int w = 1; w <= 7; ++w) {
        SetStretchBltMode(d.dib_hdc(), HALFTONE);
        d.dib_hdc().setClip(QRect(0, 0, 1, 1));
        ASSERT_TRUE(d.Create(w, 5));
        EXPECT_EQ(d.BytesPerScanLine(), stride[w]) << w;
        EXPECT_EQ(d.header().biSizeImage, uint32_t(stride[w] * 5)) << w;
        EXPECT_EQ(d.view()(stride[w] - 1, 4), 0) << w;
        EXPECT_EQ(GetStretchBltMode(d.dib_hdc()), BLACKONWHITE);
        EXPECT_FALSE(d.dib_hdc().hasClip());
    }
}

TEST(DIBSection, BadSizesGiveAnEmptyObjectAndFalseWithoutAMessage)
{
    ScriptedPrompter prompter;
    PrompterScope scope(prompter);
    cDIBSection d;
    for (auto [w, h] : {std::pair{0, 5}, {5, 0}, {-1, 3}, {3, -7}}) {
        ASSERT_TRUE(d.Create(4, 4, 0xFF));
        EXPECT_FALSE(d.Create(w, h)) << w << "x" << h;
        EXPECT_EQ(d.DIBSectionBitsPtr(), nullptr);
        EXPECT_EQ(std::tuple(d.dib_width(), d.dib_height(), d.BytesPerScanLine()),
                  std::tuple(0, 0, 0));
        EXPECT_FALSE(d.dib_hdc().valid());
    }
    EXPECT_FALSE(d.CreateFromPicture(QImage()));
    EXPECT_TRUE(prompter.asked().empty());
}

TEST(DIBSection, ASurfaceOf14000By14000CanBeMadeAndFreed)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(14000, 14000, 0));
    EXPECT_EQ(d.BytesPerScanLine(), 42000);
    EXPECT_EQ(d.header().biSizeImage, 588000000u);
    EXPECT_EQ(d.view()(41999, 13999), 0);
    d.ClearUp();
    EXPECT_EQ(d.hDIB(), 0u);
}

TEST(DIBSection, TheContextAndTheByteViewShareTheSurfacesMemoryBottomUp)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(4, 3));
    const uint8_t *bits = d.DIBSectionBitsPtr();
    d.dib_hdc().painter()->fillRect(QRect(0, 0, 1, 1), QColor(10, 20, 30)); // top left as shown
    EXPECT_EQ(d.dib_hdc().image()->constBits(), bits) << "the image did not detach";
    EXPECT_EQ(memPixel(d, 0, 2), 0x1E140Au); // the top row as shown is the last memory row
    EXPECT_EQ(memPixel(d, 0, 0), 0u);

    const DibView v = d.view();
    v(5, 0) = 200; // red of pixel 1 in memory row 0, the bottom row as shown
    EXPECT_EQ(d.dib_hdc().pixel(1, 2), 200);
    EXPECT_EQ(&v(0, 1), bits + 12);
    EXPECT_EQ(v.at(11, 2), 0);
    for (auto [b, row] : {std::pair{12, 0}, {0, 3}, {-1, 0}, {0, -1}}) {
        try {
            v.at(b, row);
            ADD_FAILURE() << b << "," << row;
        } catch (const Fault &f) {
            EXPECT_EQ(f.number(), Fault::SubscriptOutOfRange);
        }
    }
}

TEST(DIBSection, LoadPictureBltAndPaintPictureRoundTripWithARgb32Picture)
{
    QImage pic = gradient(4, 3);
    DeviceContext picDc(&pic, false);
    cDIBSection d;
    ASSERT_TRUE(d.Create(4, 3));
    ASSERT_TRUE(d.LoadPictureBlt(picDc, 0, 0));
    QImage back(4, 3, QImage::Format_RGB32);
    back.fill(Qt::black);
    DeviceContext backDc(&back, false);
    ASSERT_TRUE(d.PaintPicture(backDc, 0, 0));
    EXPECT_EQ(back, pic);

    // A part: source (1,1) of 2x2 to the surface's (0,0); the rest stays.
    cDIBSection part;
    ASSERT_TRUE(part.Create(3, 3));
    ASSERT_TRUE(part.LoadPictureBlt(picDc, 1, 1, 2, 2));
    EXPECT_EQ(part.dib_hdc().pixel(1, 1), fromQRgb(pic.pixel(2, 2)));
    EXPECT_EQ(part.dib_hdc().pixel(2, 2), 0);
    // PaintPicture with offsets: surface (1,0) 2x1 to (2,2).
    back.fill(Qt::black);
    ASSERT_TRUE(d.PaintPicture(backDc, 2, 2, 2, 1, 1, 0));
    EXPECT_EQ(back.pixel(3, 2), pic.pixel(2, 0));
    EXPECT_EQ(back.pixel(1, 2), qRgb(0, 0, 0));

    cDIBSection empty;
    EXPECT_FALSE(empty.PaintPicture(backDc, 0, 0));
    EXPECT_FALSE(empty.LoadPictureBlt(picDc, 0, 0));
}

TEST(DIBSection, CreateFromPictureTakesAnyFormat)
{
    const QImage pic = gradient(3, 2);
    for (const QImage::Format f :
         {QImage::Format_RGB32, QImage::Format_RGB888, QImage::Format_BGR888, QImage::Format_ARGB32}) {
        cDIBSection d;
        ASSERT_TRUE(d.CreateFromPicture(pic.convertToFormat(f))) << f;
        for (int y = 0; y < 2; ++y)
            for (int x = 0; x < 3; ++x)
                EXPECT_EQ(d.dib_hdc().pixel(x, y), fromQRgb(pic.pixel(x, y))) << f;
    }
}

TEST(DIBSection, StretchUsesTheGivenModeAndRestoresTheTargets)
{
    cDIBSection d;
    ASSERT_TRUE(d.CreateFromPicture(gradient(2, 2)));
    QImage out(4, 4, QImage::Format_RGB32);
    out.fill(Qt::black);
    DeviceContext dc(&out, false);
    SetStretchBltMode(dc, HALFTONE);
    d.Stretch(dc, 0, 0, 4, 4, 0, 0, 2, 2, COLORONCOLOR);
    EXPECT_EQ(GetStretchBltMode(dc), HALFTONE);
    EXPECT_EQ(dc.pixel(1, 1), d.dib_hdc().pixel(0, 0));
    EXPECT_EQ(dc.pixel(2, 3), d.dib_hdc().pixel(1, 1));
}

TEST(DIBSection, ResampleAndResizeToTheSameSizeCopyAndToOneByOneSampleTheCorner)
{
    cDIBSection d;
    ASSERT_TRUE(d.Create(7, 5));
    fillPattern(d);
    auto a = d.Resample(7, 5);
    auto b = d.Resize(7, 5);
    ASSERT_TRUE(a && b);
    EXPECT_TRUE(sameMemory(d, *a));
    EXPECT_TRUE(sameMemory(d, *b));
    auto r = d.Resample(1, 1);
    ASSERT_TRUE(r);
    ASSERT_EQ(std::pair(r->dib_width(), r->dib_height()), std::pair(1, 1));
    // Memory (0,0): the bottom left pixel as shown.
    EXPECT_EQ(memPixel(*r, 0, 0), memPixel(d, 0, 0));
    EXPECT_EQ(r->dib_hdc().pixel(0, 0), d.dib_hdc().pixel(0, 4));
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
    EXPECT_EQ(memPixel(*r, 0, 0), memPixel(d, 0, 0)); // sx 0, sy 0: the source pixel itself
    EXPECT_EQ(memPixel(*r, 2, 0), memPixel(d, 1, 0)); // sx 1, fx 0: source column 1
    // (1,1): sx 0.5, sy 0.5.
    //   blue: left 10.5 -> 10, right 21.5 -> 22, 0.5*10 + 0.5*22 = 16
    //   green: left 0, right 5, 2.5 -> 2 (half to even; half away from 0 would give 3)
    //   red: left 1.5 -> 2, right 100.5 -> 100, 51
    EXPECT_EQ(memPixel(*r, 1, 1), 0x100233u);
    // (3,1): sx 1.5 between columns 1 and 2, sy 0.5.
    //   blue: left 21.5 -> 22, right 45, 33.5 -> 34; green: 5, 9 -> 7; red: 100.5 -> 100, 7 -> 53.5 -> 54
    EXPECT_EQ(memPixel(*r, 3, 1), 0x220736u);
}

TEST(DIBSection, ResampleOfARampStaysARampInEveryRowWhateverTheThreads)
{
    // Memory row y holds blue y, column x green x, red 77: the result's rows each hold one
    // blue, rising upwards, and all share the green of row 0. A band of rows that a thread
    // missed or misplaced breaks that.
    cDIBSection d;
    ASSERT_TRUE(d.Create(250, 240));
    for (int y = 0; y < 240; ++y)
        for (int x = 0; x < 250; ++x)
            setMemPixel(d, x, y, uint8_t(y), uint8_t(x), 77);
    for (auto [w, h] : {std::pair{257, 263}, {600, 11}, {1, 400}}) {
        auto r = d.Resample(w, h);
        ASSERT_TRUE(r) << w << "x" << h;
        EXPECT_EQ(memPixel(*r, 0, 0), 77u);
        uint32_t blue = 0;
        for (int y = 0; y < h; ++y) {
            ASSERT_GE(memPixel(*r, 0, y) >> 16, blue) << w << "x" << h << " row " << y;
            blue = memPixel(*r, 0, y) >> 16;
            for (int x = 0; x < w; ++x)
                ASSERT_EQ(memPixel(*r, x, y), blue << 16 | (memPixel(*r, x, 0) & 0xFF00) | 77)
                    << w << "x" << h << " at " << x << "," << y;
        }
        EXPECT_GT(blue, 200u);
    }
    // A source of one column: the missing neighbour has weight 0.
    cDIBSection thin;
    ASSERT_TRUE(thin.Create(1, 4));
    fillPattern(thin, 5);
    auto r = thin.Resample(3, 2);
    ASSERT_TRUE(r);
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
    // Up: xScale = 4/7 = 0.571: columns 0 0 1 1 2 2 3, never the last; yScale = 2/4: rows 0 0 1 1.
    struct Case {
        int w, h;
        std::vector<int> cols, rows;
    };
    for (const Case &c :
         {Case{3, 2, {0, 1, 2}, {0, 1}}, Case{7, 4, {0, 0, 1, 1, 2, 2, 3}, {0, 0, 1, 1}}}) {
        auto r = d.Resize(c.w, c.h);
        ASSERT_TRUE(r);
        for (int y = 0; y < c.h; ++y)
            for (int x = 0; x < c.w; ++x)
                EXPECT_EQ(memPixel(*r, x, y), memPixel(d, c.cols[size_t(x)], c.rows[size_t(y)]))
                    << c.w << "x" << c.h << " at " << x << "," << y;
    }
}

TEST(DIBSection, AFaultInResampleIsReportedWithItsTag)
{
    ScriptedPrompter prompter;
    PrompterScope scope(prompter);
    cDIBSection d, one, empty;
    ASSERT_TRUE(d.Create(4, 4));
    ASSERT_TRUE(one.Create(1, 1));
    EXPECT_EQ(d.Resample(0, 3), nullptr);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Resample [Division by zero]"));
    EXPECT_EQ(prompter.asked().back().icon, Icon::Exclamation);
    EXPECT_EQ(d.Resize(3, -2), nullptr);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Resize [Invalid procedure call or argument]"));
    EXPECT_EQ(one.Resize(0, 0), nullptr); // 0/0
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Resize [Overflow]"));
    EXPECT_EQ(empty.Resample(2, 2), nullptr);
    EXPECT_EQ(prompter.lastText(), QStringLiteral("Resample [Invalid procedure call or argument]"));
    EXPECT_EQ(prompter.asked().size(), 4u);
}

TEST(DIBSection, LineDIBClampsAndOrdersItsBoxInMemoryRows)
{
    const ColorLong colour = 0x00112233; // red 0x33, green 0x22, blue 0x11
    struct Case {
        int w, h, x0, y0, x1, y1;
        const char *type;
        int bx0, by0, bx1, by1; // the box expected, in memory coordinates
        bool outline;
    };
    const Case cases[] = {
        {5, 4, -3, 10, 2, 1, "BF", 0, 1, 2, 3, false},
        {6, 5, 4, 3, 1, 0, "B", 1, 0, 4, 3, true}, // reversed corners
        {4, 3, -5, -5, 100, 100, "B", 0, 0, 3, 2, true},
        {4, 3, 0, 0, 3, 1, "B", 0, 0, 3, 1, false}, // two rows: only the two edges
        {5, 5, 1, 2, 3, 2, "B", 1, 2, 3, 2, false}, // one row
        {5, 5, 7, 4, 9, 1, "B", 4, 1, 4, 4, false}, // one column, clamped
        {3, 3, 1, 1, 1, 1, "B", 1, 1, 1, 1, false},
        {3, 3, 0, 0, 2, 2, "", 0, 0, -1, -1, false}, // another box type: nothing
        {3, 3, 0, 0, 2, 2, "bf", 0, 0, -1, -1, false},
    };
    for (const Case &c : cases) {
        cDIBSection d;
        ASSERT_TRUE(d.Create(c.w, c.h));
        cDIBSection::LineDIB(d, c.x0, c.y0, c.x1, c.y1, colour, QString::fromLatin1(c.type), 50);
        for (int y = 0; y < c.h; ++y)
            for (int x = 0; x < c.w; ++x) {
                const bool inBox = x >= c.bx0 && x <= c.bx1 && y >= c.by0 && y <= c.by1;
                const bool onEdge = x == c.bx0 || x == c.bx1 || y == c.by0 || y == c.by1;
                EXPECT_EQ(memPixel(d, x, y), inBox && (!c.outline || onEdge) ? 0x112233u : 0u)
                    << c.w << "x" << c.h << " " << c.type << " at " << x << "," << y;
            }
        if (c.w * 3 < d.BytesPerScanLine()) {
            EXPECT_EQ(d.view()(d.BytesPerScanLine() - 1, c.h - 1), 0) << "padding";
        }
    }
    cDIBSection empty;
    cDIBSection::LineDIB(empty, 0, 0, 2, 2, colour, QStringLiteral("BF"), 100);
    EXPECT_EQ(empty.hDIB(), 0u);

    // Channels past their range are clamped, not wrapped: a blue of 0x1FF draws 0xFF and a
    // negative colour long draws black.
    const struct {
        ColorLong colour;
        uint32_t pixel; // 0xBBGGRR in memory order blue, green, red
    } clamps[] = {{0x01FF8040, 0xFF8040u}, {0x7FFFFFFF, 0xFFFFFFu}, {-1, 0u}, {-0x10000, 0u}};
    for (const auto &c : clamps) {
        cDIBSection d;
        ASSERT_TRUE(d.Create(2, 2, 0x00FFFFFF));
        cDIBSection::LineDIB(d, 0, 0, 1, 1, c.colour, QStringLiteral("BF"), 0);
        EXPECT_EQ(memPixel(d, 1, 1), c.pixel) << std::hex << c.colour;
    }
}

namespace {

uint32_t le32(const QByteArray &b, int at) { return qFromLittleEndian<quint32>(b.constData() + at); }
uint16_t le16(const QByteArray &b, int at) { return qFromLittleEndian<quint16>(b.constData() + at); }

} // namespace

TEST(DIBSection, SaveBmpWritesTheSystemsHeaderAndTheRows)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("three.bmp"));
    writeBytes(path, "an older and longer file that must be replaced as a whole");
    cDIBSection d;
    ASSERT_TRUE(d.Create(3, 2));
    for (int i = 0; i < 6; ++i)
        setMemPixel(d, i % 3, i / 3, uint8_t(3 * i + 1), uint8_t(3 * i + 2), uint8_t(3 * i + 3));
    ASSERT_TRUE(cDIBSection::Save_BMP(path, d));

    const QByteArray b = bytesOf(path);
    ASSERT_EQ(b.size(), 54 + 12 * 2);
    EXPECT_EQ(b.left(2), QByteArray("BM"));
    EXPECT_EQ(le32(b, 2), 40u + 12u * 2u) << "bfSize leaves out the 14-byte file header";
    EXPECT_EQ(le32(b, 6), 0u);
    EXPECT_EQ(le32(b, 10), 54u);
    EXPECT_EQ(le32(b, 14), 40u);
    EXPECT_EQ(le32(b, 18), 3u);
    EXPECT_EQ(le32(b, 22), 2u);
    EXPECT_EQ(le16(b, 26), 1);
    EXPECT_EQ(le16(b, 28), 24);
    EXPECT_EQ(b.mid(30, 24), QByteArray(24, '\0'));
    const char rows[24] = {1,  2,  3,  4,  5,  6,  7,  8,  9,  0, 0, 0,
                           10, 11, 12, 13, 14, 15, 16, 17, 18, 0, 0, 0};
    EXPECT_EQ(b.mid(54), QByteArray(rows, 24));

    const QImage img(path);
    ASSERT_EQ(img.size(), QSize(3, 2));
    EXPECT_EQ(fromQRgb(img.pixel(2, 0)), d.dib_hdc().pixel(2, 0));
}

TEST(DIBSection, SaveBmpOfALargerSurfaceReadsBackAndAnEmptyOneWritesNothing)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("big.bmp"));
    cDIBSection d;
    ASSERT_TRUE(d.Create(601, 1203)); // rows of 1803 pixel bytes and 1 byte of padding
    fillPattern(d, 11);
    for (int y = 0; y < d.dib_height(); ++y)
        d.view()(1803, y) = 0xEE;
    ASSERT_TRUE(cDIBSection::Save_BMP(path, d));
    const QByteArray b = bytesOf(path);
    ASSERT_EQ(size_t(b.size()), 54 + d.view().byteCount());
    EXPECT_EQ(le32(b, 2), 40u + 1804u * 1203u);
    // Padding bytes are written as zeros whatever the memory holds.
    for (int y = 0; y < d.dib_height(); ++y)
        d.view()(1803, y) = 0;
    EXPECT_EQ(std::memcmp(b.constData() + 54, d.DIBSectionBitsPtr(), d.view().byteCount()), 0);

    cDIBSection empty;
    EXPECT_FALSE(cDIBSection::Save_BMP(dir.filePath(QStringLiteral("empty.bmp")), empty));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{QStringLiteral("big.bmp")});
}

TEST(DIBSection, GetBestFitInfo)
{
    struct Case {
        int w, h, dstW, dstH;
        bool stretch;
        std::tuple<int, int, int, int> fit; // x, y, w, h
    };
    const Case cases[] = {
        {100, 50, 200, 200, false, {50, 75, 100, 50}}, // fits: never enlarged, centred
        {100, 50, 100, 50, false, {0, 0, 100, 50}},
        {100, 50, 201, 101, false, {50, 25, 100, 50}}, // halves truncated
        {100, 50, 200, 200, true, {0, 50, 200, 100}},  // StretchFit: xScale 2 < yScale 4
        {100, 50, 50, 50, false, {0, 12, 50, 25}},     // too large: shrunk
        {50, 100, 200, 100, true, {75, 0, 50, 100}},   // xScale >= yScale: the height fills
        {4, 5, 2, 100, false, {0, 49, 2, 2}},          // 0.5 * 5 = 2.5 -> 2
        {4, 3, 2, 100, true, {0, 49, 2, 2}},           // 0.5 * 3 = 1.5 -> 2
    };
    for (const Case &c : cases) {
        cDIBSection d;
        ASSERT_TRUE(d.Create(c.w, c.h));
        int x = -1, y = -1, w = -1, h = -1;
        d.GetBestFitInfo(c.dstW, c.dstH, x, y, w, h, c.stretch);
        EXPECT_EQ(std::tuple(x, y, w, h), c.fit) << c.w << "x" << c.h << " in " << c.dstW << "x"
                                                 << c.dstH << (c.stretch ? " stretched" : "");
    }
    cDIBSection empty;
    int x = -1, y = -1, w = -1, h = -1;
    empty.GetBestFitInfo(20, 20, x, y, w, h, true);
    EXPECT_EQ(std::tuple(x, y, w, h), std::tuple(0, 0, 0, 0));
}

namespace {

const ColorLong kRed = 0x0000FF;

// Where PrintDIB put "Tarvelle" on a red w x h surface: the box of the pixels that are not red,
// and how many of them are in the text's colour and how many white.
struct Printed {
    QRect box;
    int ink = 0;
    int white = 0;
};

Printed print(int w, int h, int pos, Single angle, ColorLong colour, int size, int x = 0, int y = 0)
{
    cDIBSection d;
    EXPECT_TRUE(d.Create(w, h, kRed));
    cDIBSection::PrintDIB(d, x, y, QStringLiteral("Tarvelle"), pos, angle, QStringLiteral("Arial"),
                          colour, size, 0);
    Printed out;
    for (int py = 0; py < h; ++py)
        for (int px = 0; px < w; ++px) {
            const ColorLong p = d.dib_hdc().pixel(px, py);
            if (p != kRed) out.box |= QRect(px, py, 1, 1);
            out.ink += p == colour;
            out.white += p == 0xFFFFFF;
        }
    return out;
}

} // namespace

TEST(DIBSection, PrintDIBCopiesAWhiteBoxWithTheTextToItsPlace)
{
    const Printed p = print(300, 100, 1, 0, 0x000000, 20);
    const QRect box = p.box;
    EXPECT_EQ(box.topLeft(), QPoint(6, 6));
    EXPECT_GT(box.width(), 40);
    EXPECT_GE(box.height(), 18);
    EXPECT_LE(box.height(), 24);
    EXPECT_GT(p.ink, 20);
    EXPECT_GT(p.white, p.ink);
    EXPECT_EQ(p.ink + p.white, box.width() * box.height()) << "no anti-aliasing";

    // Top right: a further 40 on the right; bottom right: 6 from the bottom.
    const int right = 300 - 46 - box.width();
    EXPECT_EQ(print(300, 100, 2, 0, 0, 20).box, QRect(QPoint(right, 6), box.size()));
    EXPECT_EQ(print(300, 100, 3, 0, 0, 20).box,
              QRect(QPoint(right, 100 - 6 - box.height()), box.size()));
    EXPECT_EQ(print(300, 100, 0, 0, 0x00FF00, 20, 30, 40).box.topLeft(), QPoint(30, 40));

    // Turned bottom left: 8 from the edges, and upright.
    const QRect turned = print(100, 300, 4, 90, 0, 20).box;
    EXPECT_EQ(turned.bottomLeft(), QPoint(8, 300 - 8 - 1));
    EXPECT_GT(turned.height(), 40);
    EXPECT_LE(turned.width(), 24);
}

TEST(DIBSection, PrintDIBChoosesTheSizeFromTheTarget)
{
    const QRect small = print(1100, 200, 1, 0, 0, 0).box, large = print(3300, 200, 1, 0, 0, 0).box;
    EXPECT_EQ(small.height(), 10); // n = 10
    EXPECT_EQ(large.height(), 30); // n = 30
    EXPECT_GT(large.width(), 2 * small.width());
}
