// The former picture kept run-length coded: every pixel comes back, flat fields shrink, the
// bands beyond the memory budget go to the spill file, the packets at their limits.
#include "core/keptsurface.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstring>
#include <gtest/gtest.h>

using namespace tf;

namespace {

const ColorLong Red = RGB(255, 0, 0);
const ColorLong Blue = RGB(0, 0, 255);

// Fills a surface with a pattern that has flat fields, lines and noise.
void pattern(cDIBSection &d, uint32_t seed)
{
    const DibView v = d.view();
    uint32_t r = seed;
    for (int y = 0; y < v.height; ++y)
        for (int x = 0; x < v.width; ++x) {
            uint8_t *p = v.row(y) + x * 3;
            if (y < v.height / 2) {
                p[0] = uint8_t(x / 37 * 40);
                p[1] = uint8_t(y / 11 * 7);
                p[2] = 90;
            } else {
                r = r * 1664525u + 1013904223u;
                p[0] = uint8_t(r >> 24);
                p[1] = uint8_t(r >> 16);
                p[2] = uint8_t(r >> 8);
            }
        }
}

bool samePixels(const cDIBSection &a, const cDIBSection &b)
{
    if (a.dib_width() != b.dib_width() || a.dib_height() != b.dib_height()) return false;
    for (int y = 0; y < a.dib_height(); ++y)
        if (std::memcmp(a.view().row(y), b.view().row(y), size_t(a.dib_width()) * 3) != 0)
            return false;
    return true;
}

} // namespace

TEST(KeptSurface, CodesFlatFieldsSmallAndGivesEveryPixelBack)
{
    cDIBSection source, back;
    ASSERT_TRUE(source.Create(301, 200, 0));
    pattern(source, 7);
    KeptSurface kept;
    ASSERT_TRUE(kept.keep(source));
    EXPECT_EQ(kept.size(), QSize(301, 200));
    ASSERT_TRUE(back.Create(301, 200, Blue));
    ASSERT_TRUE(kept.restoreInto(back));
    EXPECT_TRUE(samePixels(source, back));

    // A picture of flat fields shrinks to a few bytes a row; noise grows by under 1 %.
    cDIBSection flat;
    ASSERT_TRUE(flat.Create(2000, 500, Red));
    cDIBSection::LineDIB(flat, 700, 0, 1299, 499, Blue, QStringLiteral("BF"));
    ASSERT_TRUE(kept.keep(flat));
    EXPECT_LE(kept.bytesInMemory(), size_t(500 * 18));
    EXPECT_LE(kept.bytesInMemory(), flat.view().byteCount() / 100);
    EXPECT_EQ(kept.bytesInFile(), 0u);

    // A surface of another size is refused.
    EXPECT_FALSE(kept.restoreInto(back));
}

TEST(KeptSurface, SpillsBeyondItsBudgetIntoTheFileAndReadsItBack)
{
    QTemporaryDir temp;
    cDIBSection source, back;
    ASSERT_TRUE(source.Create(257, 300, 0));
    pattern(source, 3);
    KeptSurface kept;
    const QString file = temp.filePath(QStringLiteral("spill.dat"));
    kept.setSpillFile(file);
    kept.setMemoryBudget(20000);
    ASSERT_TRUE(kept.keep(source));
    EXPECT_LE(kept.bytesInMemory(), 20000u);
    EXPECT_GT(kept.bytesInFile(), 100000u);
    EXPECT_TRUE(QFile::exists(file));
    ASSERT_TRUE(back.Create(257, 300, 0));
    ASSERT_TRUE(kept.restoreInto(back));
    EXPECT_TRUE(samePixels(source, back));
    kept.clear();
    EXPECT_FALSE(QFile::exists(file));
}

TEST(KeptSurface, RunsAndLiteralsAtTheirLimits)
{
    // 130 equal pixels are one long run; 170 different pixels a literal of 128 and one of 42.
    std::vector<uint8_t> px(300 * 3);
    for (size_t i = 0; i < 130; ++i) px[i * 3] = 5;
    for (size_t i = 130; i < 300; ++i) px[i * 3] = uint8_t(i);
    QByteArray code;
    KeptSurface::encodePixels(px.data(), 300, code);
    EXPECT_EQ(uint8_t(code[0]), 255); // a long run of 130
    EXPECT_EQ(uint8_t(code[1]), 130);
    EXPECT_EQ(uint8_t(code[6]), 127); // a literal of 128
    EXPECT_EQ(code.size(), 6 + 1 + 128 * 3 + 1 + 42 * 3);
    std::vector<uint8_t> back(300 * 3, 0xAA);
    ASSERT_TRUE(KeptSurface::decodePixels(code.constData(), size_t(code.size()), back.data(), 300));
    EXPECT_EQ(back, px);
    // A code cut short or with bytes left over is refused.
    EXPECT_FALSE(KeptSurface::decodePixels(code.constData(), size_t(code.size() - 1), back.data(), 300));
    EXPECT_FALSE(KeptSurface::decodePixels(code.constData(), size_t(code.size()), back.data(), 299));
}

