// A 14000 x 14000 Superformat paint through the route of a Superformat painter: a layout of
// 400 flat frames with lines between them, filled into SuperDIB by LineDIB. Reports the time
// and the peak memory (VmHWM, reset before each run) above what the process held before, as
// megabytes and as a share of the 588 MB surface:
// - the first paint (a new surface),
// - a paint over it (the former picture is kept run-length coded for Undo),
// - Undo (the picture and the kept one exchanged).
#include "generators/painters.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/superformatpaint.h"

#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>
#include <algorithm>
#include <cstring>
#include <fstream>
#include <string>

using namespace tf;

namespace {

constexpr int Side = 14000;

// Kilobytes of a line of /proc/self/status ("VmHWM:", "VmRSS:").
long statusKb(const char *field)
{
    std::ifstream in("/proc/self/status");
    std::string line;
    const std::string name(field);
    while (std::getline(in, line))
        if (line.compare(0, name.size(), name) == 0) return std::stol(line.substr(name.size()));
    return 0;
}

// Sets VmHWM back to the present resident size.
void resetPeak()
{
    std::ofstream clear("/proc/self/clear_refs");
    clear << "5";
}

// 20 x 20 frames of a seeded colour, two-pixel lines between them.
void frames(PaintContext &ctx)
{
    SuperformatPaint super(ctx);
    if (!super.begin(RGB(255, 255, 255))) return;
    cDIBSection &dib = super.surface();
    const int n = 20, w = dib.dib_width() / n, h = dib.dib_height() / n;
    for (int r = 0; r < n; ++r)
        for (int c = 0; c < n; ++c) {
            const ColorLong colour = RGB(int(ctx.Rnd() * 255), int(ctx.Rnd() * 255), 200);
            cDIBSection::LineDIB(dib, c * w, r * h, c * w + w - 3, r * h + h - 3, colour,
                                 QStringLiteral("BF"));
            cDIBSection::LineDIB(dib, c * w, r * h + h - 2, c * w + w - 1, r * h + h - 1, 0,
                                 QStringLiteral("BF"));
            cDIBSection::LineDIB(dib, c * w + w - 2, r * h, c * w + w - 1, r * h + h - 1, 0,
                                 QStringLiteral("BF"));
            super.progress(r * n + c + 1, n * n);
            if (super.stopRequested()) return;
        }
}

const PainterEntry table[] = {{"ART-MondrianSuper", frames, false}};

struct SuperSession {
    QTemporaryDir temp;
    Session s;
    SuperSession()
    {
        registerAllPanels();
        s.setPainters(table);
        s.workspace().setTempDir(temp.path());
        s.workspace().New_BildSize(64, 64);
        s.controls().setRaw(ControlKey{QStringLiteral("txtSuperSize"), 0}, QString::number(Side));
        s.controls().setRaw(ControlKey{QStringLiteral("txtSuperSize"), 1}, QString::number(Side));
    }
    bool paint(uint32_t seed)
    {
        const auto where = findType(QStringLiteral("ART-MondrianSuper"));
        mn_Grafmodes(s, where->group);
        ListBoxType_Click(s, where->listIndex);
        s.paint().nextSeed = seed;
        return BtnPaint_Click(s) == PaintOutcome::Painted && s.superformat().hasPicture();
    }
};

void report(benchmark::State &state, long baseKb)
{
    const double peakMb = double(statusKb("VmHWM:") - baseKb) / 1024.0;
    const double surfaceMb = double(surfaceBytes(QSize(Side, Side))) / (1024.0 * 1024.0);
    state.counters["peak_MB_above_base"] = peakMb;
    state.counters["peak_per_surface"] = peakMb / surfaceMb;
}

void BM_SuperformatFirstPaint14000(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto session = std::make_unique<SuperSession>();
        const long base = statusKb("VmRSS:");
        resetPeak();
        state.ResumeTiming();
        if (!session->paint(1)) state.SkipWithError("no memory for the surface");
        state.PauseTiming();
        report(state, base);
        session.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SuperformatFirstPaint14000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

void BM_SuperformatPaintOver14000(benchmark::State &state)
{
    SuperSession session;
    if (!session.paint(1)) {
        state.SkipWithError("no memory for the surface");
        return;
    }
    uint32_t seed = 2;
    for (auto _ : state) {
        state.PauseTiming();
        const long base = statusKb("VmRSS:") - long(surfaceBytes(QSize(Side, Side)) / 1024);
        resetPeak();
        state.ResumeTiming();
        session.paint(seed++);
        state.PauseTiming();
        report(state, base);
        state.counters["kept_MB_in_memory"] =
            double(session.s.superformat().SuperUndoDIB.bytesInMemory()) / (1024.0 * 1024.0);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SuperformatPaintOver14000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

void BM_SuperformatUndo14000(benchmark::State &state)
{
    SuperSession session;
    if (!session.paint(1) || !session.paint(2)) {
        state.SkipWithError("no memory for the surface");
        return;
    }
    for (auto _ : state) {
        state.PauseTiming();
        const long base = statusKb("VmRSS:") - long(surfaceBytes(QSize(Side, Side)) / 1024);
        resetPeak();
        state.ResumeTiming();
        session.s.superformat().undo();
        state.PauseTiming();
        report(state, base);
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SuperformatUndo14000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

// The worst case of the kept picture: a surface of noise (a photo mosaic) does not shrink, so
// all but a sixteenth of it goes to the spill file in the work folder.
void BM_SuperformatKeepNoise14000(benchmark::State &state)
{
    SuperSession session;
    SuperformatSurfaces &sf = session.s.superformat();
    if (sf.prepare(QSize(Side, Side), 0) != SuperformatSurfaces::Prepared::New) {
        state.SkipWithError("no memory for the surface");
        return;
    }
    const DibView v = sf.SuperDIB.view();
    uint32_t r = 1;
    for (int y = 0; y < v.height; ++y)
        for (int x = 0; x < v.width * 3; x += 4) {
            r = r * 1664525u + 1013904223u;
            std::memcpy(v.row(y) + x, &r, size_t(std::min(4, v.width * 3 - x)));
        }
    for (auto _ : state) {
        state.PauseTiming();
        const long base = statusKb("VmRSS:") - long(surfaceBytes(QSize(Side, Side)) / 1024);
        resetPeak();
        state.ResumeTiming();
        sf.prepare(QSize(Side, Side), 0);
        state.PauseTiming();
        report(state, base);
        state.counters["kept_MB_in_memory"] = double(sf.SuperUndoDIB.bytesInMemory()) / 1048576.0;
        state.counters["kept_MB_in_file"] = double(sf.SuperUndoDIB.bytesInFile()) / 1048576.0;
        state.ResumeTiming();
    }
}
BENCHMARK(BM_SuperformatKeepNoise14000)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);

} // namespace
