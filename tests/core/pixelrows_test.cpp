// Rows between three bytes a pixel (a bitmap file) and RGB32 (a picture), at widths on either
// side of the sixteen pixels the shuffles take at once.
#include "core/pixelrows.h"

#include <gtest/gtest.h>
#include <vector>

using namespace tf;

TEST(PixelRows, ThreeBytesSpreadToFourAndPackBackAtEveryWidth)
{
    for (int w : {0, 1, 5, 15, 16, 17, 31, 32, 33, 47, 100}) {
        std::vector<uchar> file(size_t(w) * 3 + 7, 0xAB); // bytes past the row must stay
        for (size_t i = 0; i < size_t(w) * 3; ++i)
            file[i] = uchar(i * 37 + 11);
        std::vector<quint32> picture(size_t(w) + 3, 0x12345678u);
        rowOf24To32(file.data(), picture.data(), w);
        for (int x = 0; x < w; ++x) {
            const quint32 expected = 0xFF000000u | quint32(file[3 * x + 2]) << 16 |
                                     quint32(file[3 * x + 1]) << 8 | file[3 * x];
            ASSERT_EQ(picture[size_t(x)], expected) << "width " << w << " pixel " << x;
        }
        EXPECT_EQ(picture[size_t(w)], 0x12345678u) << w;
        // The unused byte does not go to the file.
        for (int x = 0; x < w; ++x)
            picture[size_t(x)] &= 0x00FFFFFFu | quint32(x) << 24;
        std::vector<uchar> back(file.size(), 0xAB);
        rowOf32To24(reinterpret_cast<const uchar *>(picture.data()), back.data(), w);
        EXPECT_EQ(back, file) << "width " << w;
    }
}

TEST(PixelRows, ChannelsRearrangeFlipAndClearInEveryPixel)
{
    // Blue takes red inverted, green is cleared, red takes blue; the unused byte stays.
    const int source[3] = {2, 1, 0};
    const uchar flip[3] = {255, 0, 0}, keep[3] = {255, 0, 255};
    for (int w : {1, 3, 4, 5, 9, 18}) {
        std::vector<uchar> in(size_t(w) * 4), out(in.size(), 0x5A);
        for (size_t i = 0; i < in.size(); ++i)
            in[i] = uchar(i * 53 + 7);
        permuteChannels(in.data(), out.data(), w, source, flip, keep);
        for (int x = 0; x < w; ++x) {
            const uchar *p = in.data() + 4 * x, *q = out.data() + 4 * x;
            EXPECT_EQ(q[0], 255 - p[2]) << "width " << w << " pixel " << x;
            EXPECT_EQ(q[1], 0) << w << " " << x;
            EXPECT_EQ(q[2], p[0]) << w << " " << x;
            EXPECT_EQ(q[3], p[3]) << w << " " << x;
        }
        // In place, as a routine that reads only its destination would run it.
        std::vector<uchar> same = in;
        permuteChannels(same.data(), same.data(), w, source, flip, keep);
        EXPECT_EQ(same, out) << w;
    }
}
