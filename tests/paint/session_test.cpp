#include "core/fault.h"
#include "paint/session.h"

#include <gtest/gtest.h>

using namespace tf;

namespace {
struct StopAfter : YieldHook {
    int calls = 0;
    int stopAt;
    explicit StopAfter(int n) : stopAt(n) {}
    bool yield() override { return ++calls >= stopAt; }
};
} // namespace

TEST(SessionTest, ASeedMakesRandomAndTimerReproducible)
{
    Session a, b, c;
    a.seed(42);
    b.seed(42);
    c.seed(43);
    for (Session *s : {&a, &b, &c})
        s->Randomize();
    const Single first = a.Rnd();
    EXPECT_EQ(b.Rnd(), first);
    EXPECT_NE(c.Rnd(), first);
    for (int i = 0; i < 50; ++i)
        ASSERT_EQ(a.Rnd(), b.Rnd());
}

TEST(SessionTest, AStopRequestOfTheYieldHookSetsStopPaint)
{
    Session s;
    StopAfter hook(3);
    s.setYieldHook(&hook);
    s.DoEvents();
    s.DoEvents();
    EXPECT_FALSE(s.paint().StopPaint);
    s.DoEvents();
    EXPECT_TRUE(s.paint().StopPaint);
}
