#include "generators/cubetexture.h"

#include <algorithm>
#include <cmath>

namespace tf {

CubeTexture::CubeTexture(const QImage &picture)
{
    if (picture.isNull()) return;
    const QImage rgb = picture.format() == QImage::Format_RGB32
                           ? picture
                           : picture.convertToFormat(QImage::Format_RGB32);
    Level base;
    base.w = rgb.width();
    base.h = rgb.height();
    base.bgr.resize(size_t(base.w) * size_t(base.h) * 3);
    for (int y = 0; y < base.h; ++y) {
        const uchar *s = rgb.constScanLine(y);
        uint8_t *d = base.bgr.data() + size_t(y) * size_t(base.w) * 3;
        for (int x = 0; x < base.w; ++x) {
            d[x * 3] = s[x * 4];
            d[x * 3 + 1] = s[x * 4 + 1];
            d[x * 3 + 2] = s[x * 4 + 2];
        }
    }
    m_levels.push_back(std::move(base));
    // Each copy halves the one before (an odd side rounds up, its last texel averaging
    // itself), down to a single texel.
    while (m_levels.back().w > 1 || m_levels.back().h > 1) {
        const Level &a = m_levels.back();
        Level b;
        b.w = std::max(1, (a.w + 1) / 2);
        b.h = std::max(1, (a.h + 1) / 2);
        b.bgr.resize(size_t(b.w) * size_t(b.h) * 3);
        for (int y = 0; y < b.h; ++y) {
            const int y0 = std::min(a.h - 1, 2 * y), y1 = std::min(a.h - 1, 2 * y + 1);
            for (int x = 0; x < b.w; ++x) {
                const int x0 = std::min(a.w - 1, 2 * x), x1 = std::min(a.w - 1, 2 * x + 1);
                for (int c = 0; c < 3; ++c) {
                    const int sum = a.bgr[(size_t(y0) * a.w + x0) * 3 + c] +
                                    a.bgr[(size_t(y0) * a.w + x1) * 3 + c] +
                                    a.bgr[(size_t(y1) * a.w + x0) * 3 + c] +
                                    a.bgr[(size_t(y1) * a.w + x1) * 3 + c];
                    b.bgr[(size_t(y) * b.w + x) * 3 + c] = uint8_t((sum + 2) / 4);
                }
            }
        }
        m_levels.push_back(std::move(b));
    }
}

void CubeTexture::bilinear(const Level &l, double u, double v, float bgr[3])
{
    // Texel centres lie at (i + 0.5) / w.
    const double x = std::clamp(u, 0.0, 1.0) * l.w - 0.5;
    const double y = std::clamp(v, 0.0, 1.0) * l.h - 0.5;
    const double fx0 = std::floor(x), fy0 = std::floor(y);
    const float fx = float(x - fx0), fy = float(y - fy0);
    const int x0 = std::clamp(int(fx0), 0, l.w - 1), x1 = std::clamp(int(fx0) + 1, 0, l.w - 1);
    const int y0 = std::clamp(int(fy0), 0, l.h - 1), y1 = std::clamp(int(fy0) + 1, 0, l.h - 1);
    const uint8_t *r0 = l.bgr.data() + size_t(y0) * size_t(l.w) * 3;
    const uint8_t *r1 = l.bgr.data() + size_t(y1) * size_t(l.w) * 3;
    for (int c = 0; c < 3; ++c) {
        const float top = r0[x0 * 3 + c] + (r0[x1 * 3 + c] - r0[x0 * 3 + c]) * fx;
        const float bottom = r1[x0 * 3 + c] + (r1[x1 * 3 + c] - r1[x0 * 3 + c]) * fx;
        bgr[c] = top + (bottom - top) * fy;
    }
}

void CubeTexture::sample(double u, double v, double footprint, float bgr[3]) const
{
    if (m_levels.empty()) {
        bgr[0] = bgr[1] = bgr[2] = 0.0f;
        return;
    }
    const int last = int(m_levels.size()) - 1;
    if (!(footprint > 1.0) || last == 0) {
        bilinear(m_levels.front(), u, v, bgr);
        return;
    }
    const double lod = std::min(double(last), std::log2(footprint));
    const int l0 = std::min(last, int(lod));
    const float t = float(lod - l0);
    bilinear(m_levels[size_t(l0)], u, v, bgr);
    if (t > 0.0f && l0 < last) {
        float upper[3];
        bilinear(m_levels[size_t(l0) + 1], u, v, upper);
        for (int c = 0; c < 3; ++c)
            bgr[c] += (upper[c] - bgr[c]) * t;
    }
}

} // namespace tf
