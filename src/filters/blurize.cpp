#include "filters/blurize.h"

#include "core/parallel.h"
#include "filters/dografic.h"
#include "filters/filtercommand.h"
#include "filters/warp.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <vector>

namespace tf {

namespace {

constexpr FilterSlider SDepth[] = {{"Radius", "Radius", 1, 40, 10, 5},
                                   {"Fokus", "Focus", 0, 255, 0, 25}};
constexpr FilterSlider SBetween[] = {{"Radius", "Radius", 1, 40, 10, 5},
                                     {"Tiefe", "Depth", 0, 100, 100, 10}};
constexpr FilterSlider SSoft[] = {{"Lage", "Position", 0, 100, 50, 10},
                                  {"Breite", "Width", 0, 100, 50, 10},
                                  {"Winkel", "Angle", 0, 360, 0, 45}};
constexpr FilterSlider SKey[] = {{"Schwelle", "Threshold", 0, 255, 128, 25},
                                 {"Weichheit", "Softness", 1, 255, 64, 25}};

constexpr BlurizeRow Table[] = {
    {1, "depth-blur", "mn_GBlur", "3-D &Tiefenunschärfe...", "3-D &depth blur...", SDepth},
    {2, "depth-between", "mn_GBlurPicture", "3-D Tiefe &zwischen zwei Bildern...",
     "3-D depth &between two pictures...", SBetween},
    {3, "soft-blend", "mn_GBlend", "&Weich überblenden...", "&Soft blend...", SSoft},
    {4, "brightness-blend", "mn_GBlendLight", "Nach &Helligkeit überblenden...",
     "Blend by &brightness...", SKey},
};

// Brightness 0..255 of a pixel.
inline int lightOf(uint32_t p)
{
    return int((((p >> 16) & 255) * 77 + ((p >> 8) & 255) * 150 + (p & 255) * 29) >> 8);
}

// A weight 0..256 rising smoothly from 0 at t <= 0 to 256 at t >= 1.
inline uint32_t smoothWeight(double t)
{
    t = std::clamp(t, 0.0, 1.0);
    return uint32_t(std::lround(t * t * (3 - 2 * t) * 256.0));
}

const uint32_t *rowOf(const QImage &img, int y)
{
    return reinterpret_cast<const uint32_t *>(img.constScanLine(y));
}

// Sums of each channel over the rectangle from the top left, one more row and column than the
// picture. Sums are kept modulo 2^32: a box's sum (at most 255 times its area) comes out
// exactly as the difference of four of them, whatever the picture's size.
class BoxSums {
public:
    BoxSums(const QImage &img, int threads)
        : m_w(img.width() + 1), m_sums(size_t(m_w) * size_t(img.height() + 1) * 3)
    {
        const int W = img.width(), H = img.height();
        // Rows first (each on its own), then down the columns in bands.
        parallelRows(
            H, W,
            [&](int first, int last) {
                for (int y = first; y < last; ++y) {
                    const uint32_t *p = rowOf(img, y);
                    uint32_t *out = at(0, y + 1);
                    uint32_t r = 0, g = 0, b = 0;
                    for (int x = 0; x < W; ++x) {
                        r += (p[x] >> 16) & 255;
                        g += (p[x] >> 8) & 255;
                        b += p[x] & 255;
                        out[3 * (x + 1)] = r;
                        out[3 * (x + 1) + 1] = g;
                        out[3 * (x + 1) + 2] = b;
                    }
                }
            },
            1 << 16, threads);
        parallelRows(
            m_w * 3, H,
            [&](int first, int last) {
                for (int y = 2; y <= H; ++y) {
                    uint32_t *row = at(0, y);
                    const uint32_t *above = at(0, y - 1);
                    for (int i = first; i < last; ++i)
                        row[i] += above[i];
                }
            },
            1 << 16, threads);
    }
    // The mean of the box x0..x1, y0..y1 (inclusive) as a pixel.
    uint32_t mean(int x0, int y0, int x1, int y1) const
    {
        const uint32_t *a = at(x0, y0), *b = at(x1 + 1, y0), *c = at(x0, y1 + 1),
                       *d = at(x1 + 1, y1 + 1);
        const uint32_t n = uint32_t((x1 - x0 + 1) * (y1 - y0 + 1));
        uint32_t out = 0xFF000000u;
        for (int ch = 0; ch < 3; ++ch) {
            const uint32_t sum = d[ch] - b[ch] - c[ch] + a[ch];
            out |= ((sum + n / 2) / n) << (16 - 8 * ch);
        }
        return out;
    }

private:
    uint32_t *at(int x, int y) { return m_sums.data() + (size_t(y) * size_t(m_w) + size_t(x)) * 3; }
    const uint32_t *at(int x, int y) const
    {
        return m_sums.data() + (size_t(y) * size_t(m_w) + size_t(x)) * 3;
    }
    int m_w;
    std::vector<uint32_t> m_sums;
};

// The box mean of radius r about (x, y), the box cut at the edges.
uint32_t boxAt(const BoxSums &sums, int x, int y, int r, int W, int H)
{
    return sums.mean(std::max(0, x - r), std::max(0, y - r), std::min(W - 1, x + r),
                     std::min(H - 1, y + r));
}

void depthBlur(const QImage &depth, QImage &picture, const FilterArgs &a, int threads)
{
    const int W = picture.width(), H = picture.height();
    const BoxSums sums(picture, threads);
    const int radius = a.sliders[0], focus = a.sliders[1];
    parallelRows(
        H, W * 8,
        [&](int first, int last) {
            for (int y = first; y < last; ++y) {
                const uint32_t *d = rowOf(depth, y);
                auto *out = reinterpret_cast<uint32_t *>(picture.scanLine(y));
                for (int x = 0; x < W; ++x) {
                    const int r = (radius * std::abs(lightOf(d[x]) - focus) + 127) / 255;
                    if (r > 0) out[x] = boxAt(sums, x, y, r, W, H);
                }
            }
        },
        1 << 14, threads);
}

void depthBetween(const QImage &front, QImage &back, const FilterArgs &a, int threads)
{
    const int W = back.width(), H = back.height();
    const BoxSums sums(back, threads);
    const int radius = a.sliders[0], depth = a.sliders[1];
    parallelRows(
        H, W * 8,
        [&](int first, int last) {
            for (int y = first; y < last; ++y) {
                const uint32_t *f = rowOf(front, y);
                auto *out = reinterpret_cast<uint32_t *>(back.scanLine(y));
                for (int x = 0; x < W; ++x) {
                    // w: how far back this pixel lies, 0..256.
                    const uint32_t w = uint32_t(lightOf(f[x]) * depth * 256 / (255 * 100));
                    const int r = int((uint32_t(radius) * w + 128) / 256);
                    const uint32_t behind = r > 0 ? boxAt(sums, x, y, r, W, H) : out[x];
                    out[x] = warp::mix(f[x], behind, w);
                }
            }
        },
        1 << 14, threads);
}

void softBlend(const QImage &now, QImage &before, const FilterArgs &a, int threads)
{
    const int W = before.width(), H = before.height();
    const double angle = a.sliders[2] * Pi / 180.0;
    const double ux = std::cos(angle), uy = std::sin(angle);
    // Distances along the direction run from lo at one corner to hi at the opposite one.
    const double corners[4] = {0.0, (W - 1) * ux, (H - 1) * uy, (W - 1) * ux + (H - 1) * uy};
    const double lo = *std::min_element(corners, corners + 4),
                 hi = *std::max_element(corners, corners + 4);
    const double span = std::max(1.0, hi - lo);
    const double middle = a.sliders[0] / 100.0, band = std::max(1e-6, a.sliders[1] / 100.0);
    parallelRows(
        H, W,
        [&](int first, int last) {
            for (int y = first; y < last; ++y) {
                const uint32_t *n = rowOf(now, y);
                auto *out = reinterpret_cast<uint32_t *>(before.scanLine(y));
                for (int x = 0; x < W; ++x) {
                    const double t = ((x * ux + y * uy) - lo) / span;
                    out[x] = warp::mix(out[x], n[x], smoothWeight((t - middle) / band + 0.5));
                }
            }
        },
        1 << 16, threads);
}

void brightnessBlend(const QImage &now, QImage &before, const FilterArgs &a, int threads)
{
    const int W = before.width(), H = before.height();
    const double threshold = a.sliders[0], softness = std::max(1, a.sliders[1]);
    uint32_t weights[256];
    for (int v = 0; v < 256; ++v)
        weights[v] = smoothWeight((v - threshold) / softness + 0.5);
    parallelRows(
        H, W,
        [&](int first, int last) {
            for (int y = first; y < last; ++y) {
                const uint32_t *n = rowOf(now, y);
                auto *out = reinterpret_cast<uint32_t *>(before.scanLine(y));
                for (int x = 0; x < W; ++x)
                    out[x] = warp::mix(n[x], out[x], weights[lightOf(n[x])]);
            }
        },
        1 << 16, threads);
}

} // namespace

std::span<const BlurizeRow> blurizeTable()
{
    return Table;
}

const BlurizeRow *findBlurize(int selector)
{
    for (const BlurizeRow &r : Table)
        if (r.selector == selector) return &r;
    return nullptr;
}

const BlurizeRow *findBlurize(const QString &name)
{
    for (const BlurizeRow &r : Table)
        if (name.compare(QLatin1String(r.name), Qt::CaseInsensitive) == 0) return &r;
    return nullptr;
}

FilterArgs blurizeDefaults(const BlurizeRow &row)
{
    FilterArgs a;
    for (size_t i = 0; i < row.sliders.size() && i < 3; ++i)
        a.sliders[i] = row.sliders[i].def;
    a.argument = a.sliders[0];
    return a;
}

void runBlurize(int selector, const QImage &first, QImage &second, const FilterArgs &args,
                int threads)
{
    switch (selector) {
    case 1:
        depthBlur(first, second, args, threads);
        break;
    case 2:
        depthBetween(first, second, args, threads);
        break;
    case 3:
        softBlend(first, second, args, threads);
        break;
    case 4:
        brightnessBlend(first, second, args, threads);
        break;
    default:
        break;
    }
}

QImage pictureBefore(Session &s)
{
    Workspace &ws = s.workspace();
    if (!ws.commands.undo) return QImage();
    PictureBox &temp = ws.PicTemp;
    temp.resize(ws.BildW, ws.BildH);
    temp.setPicture(QImage());
    temp.Cls();
    ws.UndoBlt_auf_Bild(temp, 0, 0, 0, 0, 0, 0, false, false);
    QImage before = temp.Image();
    temp.resize(10, 10);
    return before;
}

bool Menu_Blurize(Session &s, int selector, const FilterArgs &args)
{
    const QImage before = pictureBefore(s);
    if (before.isNull()) {
        s.ask(QCoreApplication::translate("Blurize",
                                          "Es gibt noch kein Bild vor der letzten Änderung: "
                                          "laden oder malen Sie zuerst zwei Bilder nacheinander."),
              Buttons::Ok, Icon::Information);
        return false;
    }
    Workspace &ws = s.workspace();
    return runOnTarget(s, {&ws.Bild, &ws.BildWork, FilterTarget::Picture},
                       QStringLiteral("DoGraficFilters2 [%1]").arg(selector), [&](QImage &now) {
                           QImage result = before;
                           if (DoGraficFilters2(s, selector, now, result, args)) now = result;
                       });
}

} // namespace tf
