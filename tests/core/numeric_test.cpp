#include "core/colour.h"
#include "core/numeric.h"
#include "core/random.h"
#include "core/clock.h"

#include <gtest/gtest.h>

#include <tuple>

using namespace tf;

TEST(Numeric, ConversionsRoundHalfToEven)
{
    EXPECT_EQ(CInt(2.5), 2);
    EXPECT_EQ(CInt(3.5), 4);
    EXPECT_EQ(CInt(-2.5), -2);
    EXPECT_EQ(CInt(-3.5), -4);
    EXPECT_EQ(CInt(2.4999), 2);
    EXPECT_EQ(CInt(2.5001), 3);
    EXPECT_EQ(CLng(0.5), 0);
    EXPECT_EQ(CLng(1.5), 2);
    EXPECT_EQ(CByte(254.5), 254);
    EXPECT_EQ(CByte(-0.5), 0); // rounds to 0 before the range check
}

TEST(Numeric, ConversionsFaultOutsideTheirRange)
{
    EXPECT_EQ(CInt(32767.4), 32767);
    EXPECT_EQ(CInt(-32768.0), -32768);
    EXPECT_THROW(CInt(32767.5), Fault); // rounds to 32768
    EXPECT_THROW(CInt(-32768.6), Fault);
    EXPECT_EQ(CByte(255.0), 255);
    EXPECT_THROW(CByte(255.5), Fault); // 256 after rounding
    EXPECT_THROW(CByte(-0.6), Fault);
    EXPECT_EQ(CLng(2147483647.0), 2147483647);
    EXPECT_THROW(CLng(2147483647.5), Fault); // half to even: 2147483648
    EXPECT_THROW(CLng(std::nan("")), Fault);
    try {
        CInt(40000.0);
        FAIL();
    } catch (const Fault &f) {
        EXPECT_EQ(f.number(), 6);
        EXPECT_EQ(f.description(), QStringLiteral("Overflow"));
    }
}

TEST(Numeric, IntegerArithmeticFaults)
{
    EXPECT_EQ(checkedAdd<int16_t>(32000, 767), 32767);
    EXPECT_THROW(checkedAdd<int16_t>(32000, 768), Fault);
    EXPECT_THROW(checkedMul<int32_t>(65536, 32768), Fault);
    EXPECT_THROW(IntDiv(5, 0), Fault);
    EXPECT_THROW(Mod(5, 0), Fault);
    EXPECT_THROW(checkedDiv(1.0, 0.0), Fault);
}

TEST(Numeric, IntFixDivisionAndMod)
{
    EXPECT_EQ(Int(-2.5), -3.0);
    EXPECT_EQ(Fix(-2.5), -2.0);
    EXPECT_EQ(Int(2.7), 2.0);
    EXPECT_EQ(IntDiv(7, 2), 3);
    EXPECT_EQ(IntDiv(-7, 2), -3);
    EXPECT_EQ(IntDiv(7.5, 2.0), 4); // 7.5 rounds to 8 first
    EXPECT_EQ(IntDiv(6.5, 2.0), 3); // 6.5 rounds to 6 first
    EXPECT_EQ(Mod(-7, 3), -1);
    EXPECT_EQ(Mod(7, -3), 1);
    EXPECT_EQ(Mod(5.5, 3.0), 0); // 5.5 rounds to 6
}

TEST(Numeric, ColourLongs)
{
    EXPECT_EQ(RGB(255, 0, 0), 0x0000FF);
    EXPECT_EQ(RGB(1, 2, 3), 0x030201);
    EXPECT_EQ(RGB(300, 256, 1000), 0xFFFFFF);
    EXPECT_THROW(RGB(-1, 0, 0), Fault);
    const ColorLong c = RGB(10, 20, 30);
    EXPECT_EQ(std::tuple(RedOf(c), GreenOf(c), BlueOf(c)), std::tuple(10, 20, 30));
    EXPECT_EQ(toQRgb(c), qRgb(10, 20, 30));
}

TEST(Random, FreshGeneratorGivesTheClassicSequence)
{
    Random r;
    EXPECT_FLOAT_EQ(r.Rnd(), 0.7055475f);
    EXPECT_FLOAT_EQ(r.Rnd(), 0.533424f);
    EXPECT_FLOAT_EQ(r.Rnd(), 0.5795186f);
}

TEST(Random, ZeroRepeatsAndNegativeReseeds)
{
    Random r;
    const Single a = r.Rnd();
    EXPECT_EQ(r.Rnd(0), a);
    EXPECT_EQ(r.Rnd(0), a);
    EXPECT_EQ(r.Rnd(1), 0.533424f);

    Random x, y;
    x.Rnd();
    x.Rnd();
    const Single s1 = x.Rnd(-3);
    const Single s2 = y.Rnd(-3);
    EXPECT_EQ(s1, s2); // a negative argument makes the sequence independent of the past
    EXPECT_EQ(x.Rnd(), y.Rnd());
    Random z;
    EXPECT_NE(z.Rnd(-4), s1);
}

TEST(Random, RandomizeKeepsTheLowByteAndStaysWithinZeroAndOne)
{
    Random a;
    a.Randomize(12345.678);
    EXPECT_EQ(a.state() & 0xFF, Random::StartState & 0xFF);
    Random c;
    c.Randomize(12345.0);
    EXPECT_NE(c.state(), Random().state());
    for (int i = 0; i < 10000; ++i) {
        const Single v = c.Rnd();
        ASSERT_GE(v, 0.0f);
        ASSERT_LT(v, 1.0f);
    }
}

TEST(Random, SeededClockIsDeterministic)
{
    SessionClock a, b;
    a.useSeed(7);
    b.useSeed(7);
    EXPECT_EQ(a.Timer(), b.Timer());
    const Single t1 = a.Timer(), t2 = a.Timer();
    EXPECT_GT(t2, t1);
    SessionClock wall;
    EXPECT_FALSE(wall.deterministic());
    EXPECT_GE(wall.Timer(), 0.0f);
    EXPECT_LT(wall.Timer(), 86400.0f);
}
