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

    // Worked out by hand: -1 as a float is 0xBF800000; (b + (b >> 24)) & 0xFFFFFF = 0x8000BF;
    // one step gives 0x395886, the next 0x092D31. -7.25 is 0xC0E80000, giving 0xE800C0, then
    // 0xFE9C83. The sequence no longer depends on what came before.
    const struct {
        Single n;
        uint32_t state;
        Single first, second;
    } cases[] = {{-1.0f, 0x395886, 0x395886 / 16777216.0f, 0x092D31 / 16777216.0f},
                 {-7.25f, 0xFE9C83, 0xFE9C83 / 16777216.0f, 0xD1953A / 16777216.0f}};
    for (const auto &c : cases) {
        Random fresh, used;
        used.Rnd();
        used.Rnd();
        for (Random *g : {&fresh, &used}) {
            EXPECT_EQ(g->Rnd(c.n), c.first) << c.n;
            EXPECT_EQ(g->state(), c.state) << c.n;
            EXPECT_EQ(g->Rnd(), c.second) << c.n;
        }
    }
    EXPECT_FLOAT_EQ(Random().Rnd(-1.0f), 0.22400701f);
}

TEST(Random, RandomizeReplacesTheMiddleBitsByTheClockValue)
{
    // 0.5 as a double is 0x3FE00000_00000000: (0x3FE0 ^ 0x0000) << 8 replaces bits 8..23 of the
    // start state 0x050000 (whose low byte is 0): 0x3FE000, and one step gives 0x83FEC3.
    // 12345.678 has the upper word 0x40C81CD6: 0x40C8 ^ 0x1CD6 = 0x5C1E, state 0x5C1E00.
    const struct {
        double x;
        uint32_t state;
        uint32_t next;
    } cases[] = {
        {0.5, 0x3FE000, 0x83FEC3}, {12345.678, 0x5C1E00, 0xA744C3}, {86399.0, 0x570500, 0x128FC3}};
    for (const auto &c : cases) {
        Random r;
        r.Randomize(c.x);
        EXPECT_EQ(r.state(), c.state) << c.x;
        EXPECT_EQ(r.Rnd(), c.next / 16777216.0f) << c.x;
    }
    // The low byte survives a Randomize.
    Random stepped;
    stepped.Rnd(); // state 0xB49EC3
    stepped.Randomize(0.5);
    EXPECT_EQ(stepped.state(), 0x3FE0C3u);
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
