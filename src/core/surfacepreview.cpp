#include "core/surfacepreview.h"

#include "core/parallel.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tf {

QSize zoomedSize(const cDIBSection &dib, double zoom)
{
    if (!dib.hDIB()) return {};
    return {std::max(1, int(std::lround(dib.dib_width() * zoom))),
            std::max(1, int(std::lround(dib.dib_height() * zoom)))};
}

QImage renderSurfacePart(const cDIBSection &dib, const QRect &visible, double zoom)
{
    if (!dib.hDIB() || visible.isEmpty() || !(zoom > 0)) return {};
    QImage out(visible.size(), QImage::Format_RGB32);
    out.fill(Qt::black);
    const ConstDibView v = dib.view();
    const QSize whole = zoomedSize(dib, zoom);
    // The surface column of every column in view, -1 beyond the picture.
    std::vector<int> sx(size_t(visible.width()));
    for (int i = 0; i < visible.width(); ++i) {
        const int X = visible.x() + i;
        sx[size_t(i)] = X < 0 || X >= whole.width()
                            ? -1
                            : std::min(v.width - 1, int((X + 0.5) / zoom));
    }
    for (int j = 0; j < visible.height(); ++j) {
        const int Y = visible.y() + j;
        if (Y < 0 || Y >= whole.height()) continue;
        const int sy = std::min(v.height - 1, int((Y + 0.5) / zoom));
        const uint8_t *src = v.row(v.height - 1 - sy); // bottom-up memory rows
        auto *dst = reinterpret_cast<QRgb *>(out.scanLine(j));
        for (int i = 0; i < visible.width(); ++i) {
            const int x = sx[size_t(i)];
            if (x < 0) continue;
            const uint8_t *p = src + x * 3;
            dst[i] = qRgb(p[2], p[1], p[0]);
        }
    }
    return out;
}

QImage surfaceOverview(const cDIBSection &dib, int maxSide)
{
    if (!dib.hDIB() || maxSide < 1) return {};
    const ConstDibView v = dib.view();
    const int longer = std::max(v.width, v.height);
    const int f = std::max(1, (longer + maxSide - 1) / maxSide);
    const int ow = (v.width + f - 1) / f, oh = (v.height + f - 1) / f;
    QImage out(ow, oh, QImage::Format_RGB32);
    // Pure: each overview row reads its own block of surface rows.
    parallelRows(oh, int64_t(v.width) * f, [&](int a, int b) {
        std::vector<uint32_t> sum(size_t(ow) * 3);
        for (int oy = a; oy < b; ++oy) {
            std::fill(sum.begin(), sum.end(), 0u);
            const int y0 = oy * f, y1 = std::min(v.height, y0 + f);
            for (int y = y0; y < y1; ++y) {
                const uint8_t *src = v.row(v.height - 1 - y);
                for (int x = 0; x < v.width; ++x) {
                    uint32_t *s = &sum[size_t(x / f) * 3];
                    s[0] += src[x * 3];
                    s[1] += src[x * 3 + 1];
                    s[2] += src[x * 3 + 2];
                }
            }
            auto *dst = reinterpret_cast<QRgb *>(out.scanLine(oy));
            const int rows = y1 - y0;
            for (int ox = 0; ox < ow; ++ox) {
                const int cols = std::min(v.width, (ox + 1) * f) - ox * f;
                const uint32_t n = uint32_t(rows * cols);
                const uint32_t *s = &sum[size_t(ox) * 3];
                dst[ox] = qRgb(int((s[2] + n / 2) / n), int((s[1] + n / 2) / n),
                               int((s[0] + n / 2) / n));
            }
        }
    });
    return out;
}

} // namespace tf
