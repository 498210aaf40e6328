#pragma once
// Rows of pixels between a picture's four bytes a pixel (blue, green, red, unused: RGB32) and
// a bitmap file's three (blue, green, red). Both run through byte shuffles sixteen pixels at a
// time where the processor has them (every x86-64 processor since 2006), else through loops
// the compiler turns into vector code.

#include <QtGlobal>

namespace tf {

// `w` pixels of three bytes at `src` as RGB32 at `dst`, the unused byte 0xFF.
void rowOf24To32(const uchar *src, quint32 *dst, int w);
// `w` RGB32 pixels at `src` as three bytes each at `dst`.
void rowOf32To24(const uchar *src, uchar *dst, int w);

// `w` RGB32 pixels from `src` to `dst` with their channels rearranged: byte k (0 blue,
// 1 green, 2 red) of a result pixel is byte source[k] of the same pixel (0 to 2), xor-ed with
// flip[k] and then and-ed with keep[k]. The unused byte is copied. `src` may be `dst`.
void permuteChannels(const uchar *src, uchar *dst, int w, const int source[3], const uchar flip[3],
                     const uchar keep[3]);

} // namespace tf
