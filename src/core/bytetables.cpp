#include "core/bytetables.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#define TF_WIDE_BYTE_TABLES 1
#endif

namespace tf {

#ifdef TF_WIDE_BYTE_TABLES
namespace {

#define TF_WIDE __attribute__((target("avx512f,avx512bw,avx512vbmi")))

struct WideTable {
    __m512i part[4]; // entries 0..63, 64..127, 128..191, 192..255
};

TF_WIDE WideTable wideTable(const uchar *t)
{
    WideTable w;
    for (int k = 0; k < 4; ++k)
        w.part[k] = _mm512_loadu_si512(t + 64 * k);
    return w;
}

// 64 bytes through one table: the low seven bits pick among 128 entries of either half, the
// top bit picks the half.
TF_WIDE inline __m512i lookUp(__m512i index, const WideTable &t)
{
    const __m512i low = _mm512_permutex2var_epi8(t.part[0], index, t.part[1]);
    const __m512i high = _mm512_permutex2var_epi8(t.part[2], index, t.part[3]);
    return _mm512_mask_blend_epi8(_mm512_movepi8_mask(index), low, high);
}

// Whole blocks of 64 bytes with plain loads and stores (a masked store costs several times a
// plain one on some processors); the last, partial block masked.
TF_WIDE inline __m512i loadBlock(const uchar *p, __mmask64 in, bool whole)
{
    return whole ? _mm512_loadu_si512(p) : _mm512_maskz_loadu_epi8(in, p);
}

TF_WIDE inline void storeBlock(uchar *p, __mmask64 in, bool whole, __m512i v)
{
    if (whole)
        _mm512_storeu_si512(p, v);
    else
        _mm512_mask_storeu_epi8(p, in, v);
}

TF_WIDE void mapWide(const uchar *src, uchar *dst, int w, const uchar *tb, const uchar *tg,
                     const uchar *tr, UnusedByte unused)
{
    const bool one = tb == tg && tg == tr;
    const WideTable b = wideTable(tb);
    const WideTable g = one ? b : wideTable(tg);
    const WideTable r = one ? b : wideTable(tr);
    // Byte k of every pixel: masks of the 64 bytes' positions 0, 1, 2 and 3 within a pixel.
    const __mmask64 green = 0x2222222222222222ull, red = 0x4444444444444444ull,
                    spare = 0x8888888888888888ull;
    const __m512i fill = _mm512_set1_epi8(unused == UnusedByte::Opaque ? char(0xFF) : 0);
    const qint64 bytes = qint64(w) * 4;
    for (qint64 i = 0; i < bytes; i += 64) {
        const qint64 left = bytes - i;
        const bool whole = left >= 64;
        const __mmask64 in = whole ? ~__mmask64(0) : (__mmask64(1) << left) - 1;
        const __m512i v = loadBlock(src + i, in, whole);
        __m512i out = lookUp(v, b);
        if (!one) {
            out = _mm512_mask_blend_epi8(green, out, lookUp(v, g));
            out = _mm512_mask_blend_epi8(red, out, lookUp(v, r));
        }
        out = _mm512_mask_blend_epi8(spare, out, unused == UnusedByte::Keep ? v : fill);
        storeBlock(dst + i, in, whole, out);
    }
}

TF_WIDE void mapWideFlagged(const uchar *src, uchar *dst, int w, const uchar *table,
                            const uchar *flagTable, UnusedByte unused, quint64 *flagged)
{
    const WideTable t = wideTable(table);
    const WideTable f = wideTable(flagTable);
    const __mmask64 spare = 0x8888888888888888ull;
    const __m512i fill = _mm512_set1_epi8(unused == UnusedByte::Opaque ? char(0xFF) : 0);
    const qint64 bytes = qint64(w) * 4;
    for (qint64 i = 0, block = 0; i < bytes; i += 64, ++block) {
        const qint64 left = bytes - i;
        const bool whole = left >= 64;
        const __mmask64 in = whole ? ~__mmask64(0) : (__mmask64(1) << left) - 1;
        const __m512i v = loadBlock(src + i, in, whole);
        const __m512i out = _mm512_mask_blend_epi8(spare, lookUp(v, t), unused == UnusedByte::Keep ? v : fill);
        storeBlock(dst + i, in, whole, out);
        const __m512i flags = lookUp(v, f);
        if (_mm512_mask_test_epi8_mask(in & ~spare, flags, flags) != 0)
            flagged[block / 64] |= quint64(1) << (block % 64);
    }
}

} // namespace
#endif

int mapChannelsWideFlagged(const uchar *src, uchar *dst, int w, const uchar *table,
                           const uchar *flags, UnusedByte unused, quint64 *flagged)
{
#ifdef TF_WIDE_BYTE_TABLES
    if (haveWideByteTables()) {
        mapWideFlagged(src, dst, w, table, flags, unused, flagged);
        return w;
    }
#else
    Q_UNUSED(src);
    Q_UNUSED(dst);
    Q_UNUSED(table);
    Q_UNUSED(flags);
    Q_UNUSED(unused);
    Q_UNUSED(flagged);
#endif
    return 0;
}

bool haveWideByteTables()
{
#ifdef TF_WIDE_BYTE_TABLES
    static const bool have = [] {
        __builtin_cpu_init();
        return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") &&
               __builtin_cpu_supports("avx512vbmi");
    }();
    return have;
#else
    return false;
#endif
}

int mapChannelsWide(const uchar *src, uchar *dst, int w, const uchar *tb, const uchar *tg,
                    const uchar *tr, UnusedByte unused)
{
#ifdef TF_WIDE_BYTE_TABLES
    if (haveWideByteTables()) {
        mapWide(src, dst, w, tb, tg, tr, unused);
        return w;
    }
#else
    Q_UNUSED(src);
    Q_UNUSED(dst);
    Q_UNUSED(tb);
    Q_UNUSED(tg);
    Q_UNUSED(tr);
    Q_UNUSED(unused);
#endif
    return 0;
}

} // namespace tf
