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
#include "painterbench.h"

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
    static const std::unique_ptr<Session> s = bench::paintSession(Side, Side);
    return *s;
}

void writeBytes(benchmark::State &state)
{
    bench::writeBytes(state, Side);
}
BENCHMARK(writeBytes)->Unit(benchmark::kMillisecond);

void gradient(benchmark::State &state)
{
    state.SetLabel(gradientKeys[state.range(0)]);
    bench::paintLoop(state, session(), QString::fromUtf8(gradientKeys[state.range(0)]), Side, Side,
                     true);
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
