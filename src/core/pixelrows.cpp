#include "core/pixelrows.h"

#include "core/vectorloops.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#define TF_PIXEL_SHUFFLES 1
#endif

namespace tf {

namespace {

TF_VECTOR_LOOP void loop24To32(const uchar *__restrict src, quint32 *__restrict dst, int w)
{
    for (int x = 0; x < w; ++x)
        dst[x] = 0xFF000000u | quint32(src[3 * x + 2]) << 16 | quint32(src[3 * x + 1]) << 8 |
                 src[3 * x];
}

TF_VECTOR_LOOP void loop32To24(const uchar *__restrict src, uchar *__restrict dst, int w)
{
    for (int x = 0; x < w; ++x) {
        dst[3 * x] = src[4 * x];
        dst[3 * x + 1] = src[4 * x + 1];
        dst[3 * x + 2] = src[4 * x + 2];
    }
}

#ifdef TF_PIXEL_SHUFFLES
// Sixteen pixels (48 bytes) as four groups of twelve bytes, each spread to four pixels.
__attribute__((target("ssse3"))) void shuffle24To32(const uchar *src, quint32 *dst, int w)
{
    const __m128i spread = _mm_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1);
    const __m128i unused = _mm_set1_epi32(int(0xFF000000u));
    int x = 0;
    for (; x + 16 <= w; x += 16, src += 48) {
        const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i *>(src));
        const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i *>(src + 16));
        const __m128i c = _mm_loadu_si128(reinterpret_cast<const __m128i *>(src + 32));
        auto *d = reinterpret_cast<__m128i *>(dst + x);
        _mm_storeu_si128(d, _mm_or_si128(_mm_shuffle_epi8(a, spread), unused));
        _mm_storeu_si128(d + 1, _mm_or_si128(_mm_shuffle_epi8(_mm_alignr_epi8(b, a, 12), spread), unused));
        _mm_storeu_si128(d + 2, _mm_or_si128(_mm_shuffle_epi8(_mm_alignr_epi8(c, b, 8), spread), unused));
        _mm_storeu_si128(d + 3, _mm_or_si128(_mm_shuffle_epi8(_mm_srli_si128(c, 4), spread), unused));
    }
    loop24To32(src, dst + x, w - x);
}

// Sixteen pixels (64 bytes) packed to twelve bytes a group of four, the groups joined into
// three stores of sixteen bytes.
__attribute__((target("ssse3"))) void shuffle32To24(const uchar *src, uchar *dst, int w)
{
    const __m128i pack = _mm_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1);
    int x = 0;
    for (; x + 16 <= w; x += 16, dst += 48) {
        const auto *s = reinterpret_cast<const __m128i *>(src + 4 * x);
        const __m128i p0 = _mm_shuffle_epi8(_mm_loadu_si128(s), pack);
        const __m128i p1 = _mm_shuffle_epi8(_mm_loadu_si128(s + 1), pack);
        const __m128i p2 = _mm_shuffle_epi8(_mm_loadu_si128(s + 2), pack);
        const __m128i p3 = _mm_shuffle_epi8(_mm_loadu_si128(s + 3), pack);
        auto *d = reinterpret_cast<__m128i *>(dst);
        _mm_storeu_si128(d, _mm_or_si128(p0, _mm_slli_si128(p1, 12)));
        _mm_storeu_si128(d + 1, _mm_or_si128(_mm_srli_si128(p1, 4), _mm_slli_si128(p2, 8)));
        _mm_storeu_si128(d + 2, _mm_or_si128(_mm_srli_si128(p2, 8), _mm_slli_si128(p3, 4)));
    }
    loop32To24(src + 4 * x, dst, w - x);
}

// Four pixels at a time: one byte shuffle, an xor and an and.
__attribute__((target("ssse3"))) int shufflePermute(const uchar *src, uchar *dst, int w,
                                                     const int source[3], const uchar flip[3],
                                                     const uchar keep[3])
{
    alignas(16) uchar from[16], flips[16], keeps[16];
    for (int p = 0; p < 4; ++p) {
        for (int k = 0; k < 3; ++k) {
            from[4 * p + k] = uchar(4 * p + source[k]);
            flips[4 * p + k] = flip[k];
            keeps[4 * p + k] = keep[k];
        }
        from[4 * p + 3] = uchar(4 * p + 3);
        flips[4 * p + 3] = 0;
        keeps[4 * p + 3] = 0xFF;
    }
    const __m128i order = _mm_load_si128(reinterpret_cast<const __m128i *>(from));
    const __m128i flipBits = _mm_load_si128(reinterpret_cast<const __m128i *>(flips));
    const __m128i keepBits = _mm_load_si128(reinterpret_cast<const __m128i *>(keeps));
    int x = 0;
    for (; x + 4 <= w; x += 4) {
        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i *>(src + 4 * x));
        const __m128i r = _mm_and_si128(_mm_xor_si128(_mm_shuffle_epi8(v, order), flipBits), keepBits);
        _mm_storeu_si128(reinterpret_cast<__m128i *>(dst + 4 * x), r);
    }
    return x;
}

bool haveShuffles()
{
    static const bool have = [] {
        __builtin_cpu_init();
        return __builtin_cpu_supports("ssse3") != 0;
    }();
    return have;
}
#endif

} // namespace

void permuteChannels(const uchar *src, uchar *dst, int w, const int source[3], const uchar flip[3],
                     const uchar keep[3])
{
    int x = 0;
#ifdef TF_PIXEL_SHUFFLES
    if (haveShuffles()) x = shufflePermute(src, dst, w, source, flip, keep);
#endif
    for (; x < w; ++x) {
        const uchar *in = src + 4 * x;
        uchar *out = dst + 4 * x;
        const uchar b = uchar((in[source[0]] ^ flip[0]) & keep[0]);
        const uchar g = uchar((in[source[1]] ^ flip[1]) & keep[1]);
        const uchar r = uchar((in[source[2]] ^ flip[2]) & keep[2]);
        out[0] = b;
        out[1] = g;
        out[2] = r;
        out[3] = in[3];
    }
}

void rowOf24To32(const uchar *src, quint32 *dst, int w)
{
#ifdef TF_PIXEL_SHUFFLES
    if (haveShuffles()) return shuffle24To32(src, dst, w);
#endif
    loop24To32(src, dst, w);
}

void rowOf32To24(const uchar *src, uchar *dst, int w)
{
#ifdef TF_PIXEL_SHUFFLES
    if (haveShuffles()) return shuffle32To24(src, dst, w);
#endif
    loop32To24(src, dst, w);
}

} // namespace tf
