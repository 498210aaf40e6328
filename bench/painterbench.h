#pragma once
// What the painter benchmarks share: a session of their own, the loop that runs one painter
// alone (without the dispatcher's undo image, which for a large picture is the workspace's
// cost, not the painter's), and the yardstick of writing a picture's bytes once.
#include "generators/painters.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <QImage>
#include <benchmark/benchmark.h>
#include <cstring>
#include <memory>

namespace tf::bench {

// A session with every panel, the painter table and a picture of w x h.
inline std::unique_ptr<Session> paintSession(int w, int h)
{
    registerAllPanels();
    auto s = std::make_unique<Session>();
    s->setPainters(painterTable());
    s->workspace().New_BildSize(w, h);
    Set_BILD(*s);
    return s;
}

// Paints `key` once an iteration on a w x h picture. With `sameSeed` every run paints the same
// picture; otherwise the seed counts up from 1.
inline void paintLoop(benchmark::State &state, Session &s, const QString &key, int w, int h,
                      bool sameSeed = false)
{
    s.paint().GrafKey = key;
    const PainterEntry *entry = findPainter(s.painters(), key);
    TransparencyState &t = s.transparency();
    uint32_t seed = sameSeed ? 7 : 1;
    for (auto _ : state) {
        s.seed(sameSeed ? seed : seed++);
        PaintContext ctx{s, *t.XBild, *t.XUndo, *t.XWork, readOptionVariables(s.controls(), w, h)};
        entry->paint(ctx);
    }
}

// Writing every byte of a side x side picture once: what a per-pixel painter is measured by.
inline void writeBytes(benchmark::State &state, int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    uint8_t v = 0;
    for (auto _ : state) {
        std::memset(image.bits(), ++v, size_t(image.sizeInBytes()));
        benchmark::DoNotOptimize(image.bits());
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * image.sizeInBytes());
}

} // namespace tf::bench
