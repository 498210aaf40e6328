// Speed of the distortions and picture commands on a 4096 x 4096 picture: each routine alone
// on the filter arrays with the values a user would give it ("Distortion/<name>" on all
// threads, "OneThread/<name>" on one), and the
// quarter turn and the picture size ("Geometry/<name>").
#include "filters/distortions.h"
#include "filters/filterrun.h"
#include "filters/filtertable.h"
#include "filters/geometry.h"
#include "filters/mirrors.h"
#include "paint/session.h"

#include <QImage>
#include <benchmark/benchmark.h>
#include <functional>

using namespace tf;

namespace {

constexpr int Side = 4096;

const QImage &photo()
{
    static const QImage img = [] {
        QImage p(Side, Side, QImage::Format_RGB32);
        for (int y = 0; y < Side; ++y) {
            auto *line = reinterpret_cast<QRgb *>(p.scanLine(y));
            for (int x = 0; x < Side; ++x)
                line[x] =
                    qRgb((x * 255) / Side, (y * 255) / Side, ((x ^ y) * 2654435761u >> 24) & 255);
        }
        return p;
    }();
    return img;
}

struct Case {
    const char *name;
    FilterKernel kernel;
    std::array<int, 3> sliders;
    int selector = 0;
    bool resize = false;
};

const Case Cases[] = {
    {"hourglass", TransGMirrors, {10, 0, 0}, 0},
    {"fisheye", TransGMirrors, {10, 0, 0}, 8},
    {"lens", filterLens, {80, 80, 0}},
    {"waves", filterWaves, {25, 25, 0}},
    {"polar", filterPolar, {200, 0, 0}},
    {"twirl", filterTwirl, {0, 90, 0}},
    {"bend", filterBend, {80, 60, 0}},
    {"stretch", filterStretchShape, {100, -50, 0}, 0, true},
    {"rotate-30", filterRotate, {30, 1, 0}, 0, true},
    {"rotate-30-nearest", filterRotate, {30, 0, 0}},
};

void distortion(benchmark::State &state, const Case *c, int threads)
{
    Session s;
    s.filters().threads = threads;
    FilterArgs args;
    args.sliders = c->sliders;
    args.argument = c->sliders[0];
    args.selector = c->selector;
    args.resizeToFit = c->resize;
    FilterWorkspace ws(photo(), Reads::Src);
    for (auto _ : state) {
        FilterRun run(ws.D(), ws.S(), args, s);
        c->kernel(run);
        benchmark::DoNotOptimize(ws.result().constBits());
    }
}

void geometry(benchmark::State &state, const std::function<QImage(const QImage &)> *op)
{
    for (auto _ : state) {
        QImage out = (*op)(photo());
        benchmark::DoNotOptimize(out.constBits());
    }
}

const std::function<QImage(const QImage &)> TurnRight = [](const QImage &p) {
    return turnedQuarters(p, 1);
};
const std::function<QImage(const QImage &)> MirrorV = [](const QImage &p) {
    QImage out = p;
    mirrorLeftRight(out);
    return out;
};
const std::function<QImage(const QImage &)> Resample = [](const QImage &p) {
    return scaledPicture(p, 3000, 2000, true);
};

const bool registered = [] {
    // On all threads, and on one to show the cost of a core.
    for (const Case &c : Cases)
        for (const auto &[prefix, threads] : {std::pair{"Distortion/", 0}, {"OneThread/", 1}})
            benchmark::RegisterBenchmark((prefix + std::string(c.name)).c_str(), distortion, &c,
                                         threads)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime()
                ->MinTime(0.2);
    for (const auto &[name, op] :
         {std::pair{"turn-right", &TurnRight}, {"mirror-v", &MirrorV}, {"resample", &Resample}})
        benchmark::RegisterBenchmark((std::string("Geometry/") + name).c_str(), geometry, op)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->MinTime(0.2);
    return true;
}();

} // namespace
