// The photo mosaic: a layout of 1000 frames (40 x 25 equal frames of 50 x 50 pixels on a
// 2000 x 1250 surface) filled from the 45 photos of the shared test data, duplicates and the
// random mix on, on one thread and on every core; and the same with frames of 200 x 200
// (an 8000 x 5000 surface), where less of each photo is thrown away.
#include "painterbench.h"

#include "core/dibsection.h"
#include "generators/framecanvas.h"
#include "generators/picmosaik.h"

#include <QDir>

namespace {

using namespace tf;

void setControl(Session &s, const char *name, const QString &value, int index = -1)
{
    s.controls().set(ControlKey{QString::fromLatin1(name), index}, value);
}

void Mosaic(benchmark::State &state)
{
    const int threads = int(state.range(0));
    const int frameSide = int(state.range(1));
    const QString photos = QStringLiteral(TF_TESTDATA_DIR "/photos");
    if (!QDir(photos).exists()) {
        state.SkipWithError("the shared test data folder is not there");
        return;
    }
    const int w = 40 * frameSide, h = 25 * frameSide;
    auto s = bench::paintSession(w, h);
    s->colours().RandomValues = false;
    setPicSource(*s, photos, false, true);
    setControl(*s, "XPicMosaik", QStringLiteral("1"), 0);
    setControl(*s, "XPicMosaik", QStringLiteral("1"), 1);
    setControl(*s, "XPicMosaik", QStringLiteral("0"), 2);
    setControl(*s, "txtPMKachel", QStringLiteral("40"), 0);
    setControl(*s, "txtPMKachel", QStringLiteral("25"), 1);
    setControl(*s, "XPicMosaik_Duplikate", QStringLiteral("1"));
    setControl(*s, "XPicMosaik_MixSlots", QStringLiteral("1"));
    setControl(*s, "XBorders", QStringLiteral("0"));
    cDIBSection dib;
    dib.Create(w, h, 0xFFFFFF);
    DibCanvas canvas(dib);
    TransparencyState &t = s->transparency();
    int frames = 0;
    for (auto _ : state) {
        s->seed(7);
        PaintContext ctx{*s, *t.XBild, *t.XUndo, *t.XWork, readOptionVariables(s->controls(), w, h)};
        PicMosaikRun run(ctx, picMosaikCallFromPanel(ctx, QSize(w, h), false));
        run.setThreads(threads);
        if (!run.start(canvas)) {
            state.SkipWithError("the mosaic did not start");
            return;
        }
        while (run.paintNext(canvas)) {
        }
        run.finish(canvas);
        frames = run.framesDone();
    }
    state.counters["frames"] = frames;
}

} // namespace

BENCHMARK(Mosaic)
    ->ArgNames({"threads", "frame"})
    ->Args({1, 50})
    ->Args({0, 50})
    ->Args({1, 200})
    ->Args({0, 200})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(3);
