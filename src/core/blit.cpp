#include "core/blit.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace tf {

namespace {

inline uint32_t readBgr(const uchar *p) { return uint32_t(p[0]) | (uint32_t(p[1]) << 8) | (uint32_t(p[2]) << 16); }

inline void writeBgr(uchar *p, uint32_t v, int bpp)
{
    p[0] = uchar(v);
    p[1] = uchar(v >> 8);
    p[2] = uchar(v >> 16);
    if (bpp == 4)
        p[3] = 0xFF;
}

// Pattern colour in the 0x00RRGGBB byte order of the pixel rows (blue in the low byte).
inline uint32_t patternOf(const DeviceContext &dc)
{
    const ColorLong c = dc.brush.color;
    return uint32_t(BlueOf(c)) | (uint32_t(GreenOf(c)) << 8) | (uint32_t(RedOf(c)) << 16);
}

bool usesSource(uint32_t rop)
{
    const uint32_t t = (rop >> 16) & 0xFF;
    return ((t >> 2) & 0x33) != (t & 0x33);
}

// A source sample function for a destination pixel; rows of the source are copied first when
// source and destination are the same context, so overlapping copies read the old pixels.
struct SourceRows {
    std::vector<uchar> copy;
    const DeviceContext *src = nullptr;
    int top = 0;
    int rowBytes = 0;
    int bpp = 0;

    void take(const DeviceContext *s, int y0, int y1, bool same)
    {
        src = s;
        bpp = s->bytesPerPixel();
        if (!same)
            return;
        top = y0;
        rowBytes = s->width() * bpp;
        copy.resize(size_t(std::max(0, y1 - y0)) * size_t(rowBytes));
        for (int y = y0; y < y1; ++y)
            std::memcpy(copy.data() + size_t(y - y0) * size_t(rowBytes), s->scanLine(y),
                        size_t(rowBytes));
    }
    const uchar *row(int y) const
    {
        if (copy.empty())
            return src->scanLine(y);
        return copy.data() + size_t(y - top) * size_t(rowBytes);
    }
};

} // namespace

uint32_t applyRop3(uint32_t rop, uint32_t p, uint32_t s, uint32_t d)
{
    const uint32_t t = (rop >> 16) & 0xFF;
    switch (t) {
    case 0xCC: return s;
    case 0xEE: return s | d;
    case 0x88: return s & d;
    case 0x66: return s ^ d;
    case 0x44: return s & ~d;
    case 0x33: return ~s;
    case 0x11: return ~(s | d);
    case 0xC0: return p & s;
    case 0xBB: return ~s | d;
    case 0xF0: return p;
    case 0x5A: return p ^ d;
    case 0x55: return ~d;
    case 0x00: return 0;
    case 0xFF: return 0xFFFFFFFF;
    default: break;
    }
    uint32_t r = 0;
    for (unsigned i = 0; i < 8; ++i) {
        if (!(t & (1u << i)))
            continue;
        r |= ((i & 4) ? p : ~p) & ((i & 2) ? s : ~s) & ((i & 1) ? d : ~d);
    }
    return r;
}

bool BitBlt(DeviceContext &dst, int x, int y, int w, int h, const DeviceContext *src, int sx,
            int sy, uint32_t rop)
{
    const bool needSrc = usesSource(rop);
    if (!dst.valid() || (needSrc && (!src || !src->valid())))
        return false;
    if (w <= 0 || h <= 0)
        return true;

    // Clip against the destination and, when read, the source.
    QRect target = QRect(x, y, w, h).intersected(dst.clip());
    if (needSrc)
        target = target.intersected(QRect(src->rect()).translated(x - sx, y - sy));
    if (target.isEmpty())
        return true;

    const int dx0 = target.left(), dy0 = target.top();
    const int tw = target.width(), th = target.height();
    const int offX = sx - x, offY = sy - y;
    const int dbpp = dst.bytesPerPixel();
    const uint32_t pat = patternOf(dst);

    SourceRows rows;
    if (needSrc)
        rows.take(src, dy0 + offY, dy0 + offY + th, src == &dst);

    const uint32_t code = (rop >> 16) & 0xFF;
    for (int j = 0; j < th; ++j) {
        uchar *d = dst.scanLine(dy0 + j) + dx0 * dbpp;
        if (!needSrc) {
            for (int i = 0; i < tw; ++i, d += dbpp)
                writeBgr(d, applyRop3(rop, pat, 0, readBgr(d)), dbpp);
            continue;
        }
        const int sbpp = rows.bpp;
        const uchar *s = rows.row(dy0 + j + offY) + (dx0 + offX) * sbpp;
        if (code == 0xCC && sbpp == dbpp && dbpp == 3) {
            std::memcpy(d, s, size_t(tw) * 3);
        } else if (code == 0xCC) {
            for (int i = 0; i < tw; ++i, d += dbpp, s += sbpp) {
                d[0] = s[0];
                d[1] = s[1];
                d[2] = s[2];
                if (dbpp == 4)
                    d[3] = 0xFF;
            }
        } else {
            for (int i = 0; i < tw; ++i, d += dbpp, s += sbpp)
                writeBgr(d, applyRop3(rop, pat, readBgr(s), readBgr(d)), dbpp);
        }
    }
    return true;
}

bool PatBlt(DeviceContext &dst, int x, int y, int w, int h, uint32_t rop)
{
    return BitBlt(dst, x, y, w, h, nullptr, 0, 0, rop);
}

bool StretchBlt(DeviceContext &dst, int x, int y, int w, int h, const DeviceContext &src, int sx,
                int sy, int sw, int sh, uint32_t rop)
{
    if (!dst.valid() || !src.valid())
        return false;
    if (w == sw && h == sh && w > 0 && h > 0)
        return BitBlt(dst, x, y, w, h, &src, sx, sy, rop);
    if (w == 0 || h == 0 || sw == 0 || sh == 0)
        return true;

    // Normalise both rectangles; a sign that differs between them mirrors that axis.
    const bool mirrorX = (w < 0) != (sw < 0);
    const bool mirrorY = (h < 0) != (sh < 0);
    if (w < 0) { x += w + 1; w = -w; }
    if (h < 0) { y += h + 1; h = -h; }
    if (sw < 0) { sx += sw + 1; sw = -sw; }
    if (sh < 0) { sy += sh + 1; sh = -sh; }

    const QRect target = QRect(x, y, w, h).intersected(dst.clip());
    if (target.isEmpty())
        return true;

    SourceRows rows;
    const int sy0 = std::max(0, sy), sy1 = std::min(src.height(), sy + sh);
    if (sy0 >= sy1)
        return true;
    rows.take(&src, sy0, sy1, &src == &dst);
    const int sbpp = rows.bpp, dbpp = dst.bytesPerPixel();
    const uint32_t pat = patternOf(dst);
    const bool halftone = dst.stretchMode == HALFTONE;

    // Source span [a, b) of destination index i along one axis of n destination pixels.
    auto span = [](int i, int n, int sn, bool mirror, int &a, int &b) {
        const int k = mirror ? n - 1 - i : i;
        a = int((int64_t(k) * sn) / n);
        b = int((int64_t(k + 1) * sn) / n);
        if (b <= a)
            b = a + 1;
    };
    auto nearest = [](int i, int n, int sn, bool mirror) {
        const int k = mirror ? n - 1 - i : i;
        return int(((int64_t(2 * k + 1)) * sn) / (2 * int64_t(n)));
    };

    for (int ty = target.top(); ty <= target.bottom(); ++ty) {
        const int j = ty - y;
        uchar *d = dst.scanLine(ty) + target.left() * dbpp;
        for (int tx = target.left(); tx <= target.right(); ++tx, d += dbpp) {
            const int i = tx - x;
            uint32_t s;
            if (!halftone) {
                const int px = sx + nearest(i, w, sw, mirrorX);
                const int py = sy + nearest(j, h, sh, mirrorY);
                if (px < 0 || px >= src.width() || py < sy0 || py >= sy1)
                    continue;
                s = readBgr(rows.row(py) + px * sbpp);
            } else {
                int ax, bx, ay, by;
                span(i, w, sw, mirrorX, ax, bx);
                span(j, h, sh, mirrorY, ay, by);
                ax = std::max(sx + ax, 0);
                bx = std::min(sx + bx, src.width());
                ay = std::max(sy + ay, sy0);
                by = std::min(sy + by, sy1);
                if (ax >= bx || ay >= by)
                    continue;
                uint64_t sb = 0, sg = 0, sr = 0;
                for (int py = ay; py < by; ++py) {
                    const uchar *p = rows.row(py) + ax * sbpp;
                    for (int px = ax; px < bx; ++px, p += sbpp) {
                        sb += p[0];
                        sg += p[1];
                        sr += p[2];
                    }
                }
                const uint64_t n = uint64_t(bx - ax) * uint64_t(by - ay);
                s = uint32_t((sb + n / 2) / n) | (uint32_t((sg + n / 2) / n) << 8) |
                    (uint32_t((sr + n / 2) / n) << 16);
            }
            writeBgr(d, applyRop3(rop, pat, s, readBgr(d)), dbpp);
        }
    }
    return true;
}

} // namespace tf
