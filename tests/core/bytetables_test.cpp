// Channel bytes through tables 64 bytes at a time, against the plain rule, at widths on either
// side of the sixteen pixels of a block.
#include "core/bytetables.h"

#include <gtest/gtest.h>
#include <vector>

using namespace tf;

TEST(ByteTables, ChannelsGoThroughTheirTablesAndFlaggedBlocksAreNamed)
{
    if (!haveWideByteTables()) GTEST_SKIP() << "the processor maps bytes one at a time";
    uchar tb[256], tg[256], tr[256], flags[256];
    for (int i = 0; i < 256; ++i) {
        tb[i] = uchar(255 - i);
        tg[i] = uchar(i * 7);
        tr[i] = uchar(i / 2);
        flags[i] = i == 200 ? 1 : 0;
    }
    for (int w : {1, 15, 16, 17, 40, 100}) {
        std::vector<uchar> in(size_t(w) * 4 + 8, 0x33), out(in.size(), 0x11);
        for (int i = 0; i < w * 4; ++i)
            in[size_t(i)] = uchar(i * 13 + 5);
        in[size_t(w) * 4 - 1] = 200; // the unused byte of the last pixel: never a flag
        ASSERT_EQ(mapChannelsWide(in.data(), out.data(), w, tb, tg, tr, UnusedByte::Opaque), w);
        for (int x = 0; x < w; ++x) {
            const uchar *p = in.data() + 4 * x, *q = out.data() + 4 * x;
            ASSERT_EQ(q[0], tb[p[0]]) << w << " " << x;
            ASSERT_EQ(q[1], tg[p[1]]) << w << " " << x;
            ASSERT_EQ(q[2], tr[p[2]]) << w << " " << x;
            ASSERT_EQ(q[3], 0xFF) << w << " " << x;
        }
        EXPECT_EQ(out[size_t(w) * 4], 0x11) << "nothing past the row, width " << w;

        // One table, the unused byte kept; a flagged value in pixel 17's green only.
        if (w > 17) in[17 * 4 + 1] = 200;
        std::vector<quint64> flagged(size_t(w + 1023) / 1024, 0);
        ASSERT_EQ(mapChannelsWideFlagged(in.data(), out.data(), w, tg, flags, UnusedByte::Keep,
                                         flagged.data()),
                  w);
        for (int x = 0; x < w; ++x)
            for (int k = 0; k < 4; ++k)
                ASSERT_EQ(out[size_t(4 * x + k)], k == 3 ? in[size_t(4 * x + k)] : tg[in[size_t(4 * x + k)]]);
        EXPECT_EQ(flagged[0], w > 17 ? quint64(2) : quint64(0)) << w;
    }
}
