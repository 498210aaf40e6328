#include "tools/brushdabs.h"

#include "core/numeric.h"
#include "core/random.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace tf {

BrushPixels BrushPixels::fromImage(const QImage &image)
{
    const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
    BrushPixels p(rgb.width(), rgb.height());
    for (int y = 0; y < p.height; ++y) {
        const uchar *in = rgb.constScanLine(y);
        uint8_t *out = p.at(0, y);
        for (int x = 0; x < p.width; ++x) {
            out[x * 3] = in[x * 4];
            out[x * 3 + 1] = in[x * 4 + 1];
            out[x * 3 + 2] = in[x * 4 + 2];
        }
    }
    return p;
}

QImage BrushPixels::toImage() const
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        const uint8_t *in = at(0, y);
        uchar *out = image.scanLine(y);
        for (int x = 0; x < width; ++x) {
            out[x * 4] = in[x * 3];
            out[x * 4 + 1] = in[x * 3 + 1];
            out[x * 4 + 2] = in[x * 3 + 2];
            out[x * 4 + 3] = 0xFF;
        }
    }
    return image;
}

int dabRadius(int size) { return CLng(0.5 * size); }

namespace {

// Blue, green, red of a colour long: the order of the bytes of a pixel.
std::array<int, 3> bytesOf(ColorLong c) { return {BlueOf(c), GreenOf(c), RedOf(c)}; }

// Visits the pixels of the disc of `size` around (x, y) inside the array as
// f(px, py, dx, dy, r); answers the disc's rectangle clipped to the array.
template <typename F> QRect eachInDisc(int width, int height, int x, int y, int size, F &&f)
{
    const int r = dabRadius(size);
    const int limit = r * r + 1;
    for (int dy = -r; dy <= r; ++dy)
        for (int dx = -r; dx <= r; ++dx) {
            if (dx * dx + dy * dy >= limit) continue;
            const int px = x + dx, py = y + dy;
            if (px < 0 || py < 0 || px >= width || py >= height) continue;
            f(px, py, dx, dy, r);
        }
    return QRect(x - r, y - r, 2 * r + 1, 2 * r + 1).intersected(QRect(0, 0, width, height));
}

uint8_t channel(Single v) { return uint8_t(std::clamp(CLng(v), 0, 255)); }

template <typename Dab>
QRect stroke(int x0, int y0, int x1, int y1, Dab &&dab)
{
    const int dx = x1 - x0, dy = y1 - y0;
    const int n = std::max(std::abs(dx), std::abs(dy)) / 8;
    QRect changed;
    for (int i = 0; i < n; ++i)
        changed |= dab(x0 + CLng(double(dx) * i / n), y0 + CLng(double(dy) * i / n));
    changed |= dab(x1, y1);
    return changed;
}

double luma(int b, int g, int r) { return 0.299 * r + 0.587 * g + 0.114 * b; }

// The weighted mean of a pixel (weight k) and its four neighbours in `s`, channel c.
double neighbourMean(const BrushPixels &s, int x, int y, int c, double k)
{
    const int xl = std::max(x - 1, 0), xr = std::min(x + 1, s.width - 1);
    const int yu = std::max(y - 1, 0), yd = std::min(y + 1, s.height - 1);
    const double sum = k * s.at(x, y)[c] + s.at(xl, y)[c] + s.at(xr, y)[c] + s.at(x, yu)[c] +
                       s.at(x, yd)[c];
    return sum / (k + 4.0);
}

} // namespace

QRect Brush_Dab(BrushPixels &pixels, StrokeMask &mask, int x, int y, int size, int pressure,
                ColorLong color)
{
    const Single p = Single(pressure) / 100.0f;
    const Single q = 1.0f - p;
    const auto c = bytesOf(color);
    return eachInDisc(pixels.width, pixels.height, x, y, size, [&](int px, int py, int, int, int) {
        int16_t &flag = mask.at(px, py);
        if (flag != 0) return;
        flag = -1;
        uint8_t *o = pixels.at(px, py);
        for (int k = 0; k < 3; ++k)
            o[k] = channel(p * Single(c[size_t(k)]) + q * Single(o[k]));
    });
}

QRect Brush_Stroke(BrushPixels &pixels, StrokeMask &mask, int x0, int y0, int x1, int y1,
                   int size, int pressure, ColorLong color)
{
    return stroke(x0, y0, x1, y1, [&](int x, int y) {
        return Brush_Dab(pixels, mask, x, y, size, pressure, color);
    });
}

QRect Saturate_Dab(BrushPixels &pixels, StrokeMask &mask, int x, int y, int size, int pressure,
                   ColorLong color)
{
    const Single p = Single(pressure) / 100.0f;
    const auto c = bytesOf(color);
    const double own = luma(c[0], c[1], c[2]);
    return eachInDisc(pixels.width, pixels.height, x, y, size, [&](int px, int py, int, int, int) {
        int16_t &flag = mask.at(px, py);
        if (flag != 0) return;
        flag = -1;
        uint8_t *o = pixels.at(px, py);
        const double l = luma(o[0], o[1], o[2]);
        for (int k = 0; k < 3; ++k) {
            const double tinted = std::clamp(l + (c[size_t(k)] - own), 0.0, 255.0);
            o[k] = channel(Single(p * tinted + (1.0 - p) * o[k]));
        }
    });
}

QRect Saturate_Stroke(BrushPixels &pixels, StrokeMask &mask, int x0, int y0, int x1, int y1,
                      int size, int pressure, ColorLong color)
{
    return stroke(x0, y0, x1, y1, [&](int x, int y) {
        return Saturate_Dab(pixels, mask, x, y, size, pressure, color);
    });
}

QRect Airbrush_Dab(BrushPixels &pixels, int x, int y, int size, int pressure, ColorLong color,
                   Random &rnd)
{
    const Single p = Single(pressure) / 100.0f;
    const auto c = bytesOf(color);
    return eachInDisc(pixels.width, pixels.height, x, y, size,
                      [&](int px, int py, int dx, int dy, int r) {
                          const Single e = rnd.Rnd();
                          const double d = std::sqrt(double(dx * dx + dy * dy));
                          const double rim = r > 0 ? std::max(0.0, 1.0 - d / r) : 1.0;
                          const double weight = rim * e * p;
                          uint8_t *o = pixels.at(px, py);
                          for (int k = 0; k < 3; ++k)
                              o[k] = channel(Single(weight * c[size_t(k)] + (1.0 - weight) * o[k]));
                      });
}

QRect Soften_Dab(BrushPixels &target, const BrushPixels &source, int x, int y, int size,
                 int pressure)
{
    const double k = 10.0 - 0.5 * pressure / 10.0;
    return eachInDisc(target.width, target.height, x, y, size, [&](int px, int py, int, int, int) {
        uint8_t *o = target.at(px, py);
        for (int c = 0; c < 3; ++c)
            o[c] = channel(Single(neighbourMean(source, px, py, c, k)));
    });
}

QRect Sharpen_Dab(BrushPixels &target, const BrushPixels &frozen, int x, int y, int size,
                  int pressure)
{
    const double k = 15.0 - 0.5 * pressure / 10.0;
    return eachInDisc(target.width, target.height, x, y, size, [&](int px, int py, int, int, int) {
        uint8_t *o = target.at(px, py);
        for (int c = 0; c < 3; ++c) {
            const double v = frozen.at(px, py)[c];
            o[c] = channel(Single(2.0 * v - neighbourMean(frozen, px, py, c, k)));
        }
    });
}

} // namespace tf
