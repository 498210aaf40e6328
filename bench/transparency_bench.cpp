// Speed of the transparency blend: a paint laid over the former picture, at the standard
// 712 x 712 format and at a large 4000 x 3000 picture.
#include "paint/transparency.h"

#include <QImage>
#include <benchmark/benchmark.h>

using namespace tf;

namespace {

QImage picture(int w, int h, uint seed)
{
    QImage img(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y) {
        auto *line = reinterpret_cast<QRgb *>(img.scanLine(y));
        for (int x = 0; x < w; ++x)
            line[x] = 0xFF000000u | ((uint(x) * 2654435761u + uint(y) * 40503u + seed) & 0xFFFFFFu);
    }
    return img;
}

void blendOverPicture(benchmark::State &state)
{
    const int w = int(state.range(0));
    const int h = int(state.range(1));
    QImage old = picture(w, h, 1);
    const QImage paint = picture(w, h, 2);
    for (auto _ : state) {
        blendOver(old, paint, 0.37);
        benchmark::DoNotOptimize(old.constBits());
    }
    state.SetItemsProcessed(state.iterations() * w * h);
}
BENCHMARK(blendOverPicture)->Args({712, 712})->Args({4000, 3000})->Unit(benchmark::kMillisecond);

void blendColour(benchmark::State &state)
{
    const int w = int(state.range(0));
    const int h = int(state.range(1));
    QImage img = picture(w, h, 3);
    for (auto _ : state) {
        blendColourOver(img, 0x336699, 0.5);
        benchmark::DoNotOptimize(img.constBits());
    }
    state.SetItemsProcessed(state.iterations() * w * h);
}
BENCHMARK(blendColour)->Args({712, 712})->Args({4000, 3000})->Unit(benchmark::kMillisecond);

} // namespace
