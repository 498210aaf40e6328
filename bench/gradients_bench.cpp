// Speed of the gradient group at 4096 x 4096 and of the anti-aliased line.
//
// `writeBytes` is the yardstick: filling the picture's bytes once. A plain gradient ("H-Gradient"
// and "V-Gradient" with pen 1) should stay within three times that.
#include "core/picturebox.h"
#include "generators/painters.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/session.h"
#include "tools/aaline.h"

#include <QImage>
#include <benchmark/benchmark.h>
#include <cstring>

using namespace tf;

namespace {

constexpr int Side = 4096;

const char *const gradientKeys[] = {
    "H-Gradient",         "V-Gradient",        "Chromo-Steps",         "H-GradientCrazy",
    "V-GradientCrazy",    "Fixed 4 squares",   "Randomized 4 squares", "Randomized bars",
    "Neonbars vertical",  "Neon vertical",     "Horizon",              "Lense",
    "Sky gradient",       "Random Lines",      "Random Noise",         "Framegradient-Transp",
    "Frequenzgradient-Transp",
};

Session &session()
{
    static Session *s = [] {
        registerAllPanels();
        auto *made = new Session;
        made->setPainters(painterTable());
        made->workspace().New_BildSize(Side, Side);
        return made;
    }();
    return *s;
}

void writeBytes(benchmark::State &state)
{
    QImage image(Side, Side, QImage::Format_RGB32);
    uint8_t v = 0;
    for (auto _ : state) {
        std::memset(image.bits(), ++v, size_t(image.sizeInBytes()));
        benchmark::DoNotOptimize(image.bits());
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * image.sizeInBytes());
}
BENCHMARK(writeBytes)->Unit(benchmark::kMillisecond);

void gradient(benchmark::State &state)
{
    Session &s = session();
    const QString key = QString::fromUtf8(gradientKeys[state.range(0)]);
    state.SetLabel(gradientKeys[state.range(0)]);
    s.paint().GrafKey = key;
    const PainterEntry *entry = findPainter(s.painters(), key);
    // The painter alone: the dispatcher's undo image of a picture this large goes to a file,
    // which is the workspace's cost, not the gradient's.
    TransparencyState &t = s.transparency();
    for (auto _ : state) {
        s.seed(7);
        PaintContext ctx{s, *t.XBild, *t.XUndo, *t.XWork,
                         readOptionVariables(s.controls(), Side, Side)};
        entry->paint(ctx);
    }
}
BENCHMARK(gradient)->DenseRange(0, int(std::size(gradientKeys)) - 1)->Unit(benchmark::kMillisecond);

// Lines of every slope across a 1024 x 1024 picture; the rate counts covered pixels.
void aaLine(benchmark::State &state)
{
    PictureBox pb(QStringLiteral("bench"), 1024, 1024);
    pb.setAutoRedraw(true);
    const int pen = int(state.range(0));
    int64_t pixels = 0;
    int i = 0;
    for (auto _ : state) {
        const double a = (i * 37 % 1000) + 10.5, b = (i * 91 % 1000) + 5.25;
        AA_Line(pb, a, 10.0, 1010.0 - a * 0.5, b, ColorLong(i * 7919 & 0xFFFFFF), pen);
        pixels += int64_t(std::hypot(1010.0 - a * 1.5, b - 10.0) * pen);
        ++i;
    }
    // Covered pixels per second of processor time; a million pixels take 1e6 / rate seconds.
    state.counters["pixels/s"] = benchmark::Counter(double(pixels), benchmark::Counter::kIsRate);
}
BENCHMARK(aaLine)->Arg(1)->Arg(2)->Arg(5);

} // namespace
