#pragma once
// The filter workspace and what a pixel filter is given.
//
// Layout, said once: the two arrays `FilterDst` (D, written back) and `FilterSrc` (S, an
// unchanged copy of the input) hold the picture top-down, 4 bytes a pixel in the order blue,
// green, red, unused; rows are `stride` bytes apart. Channel c of pixel (x, y) (0-based, c 0
// blue, 1 green, 2 red) is row(y)[x * 4 + c]. A filter reads S or D as its row of the table
// says (filtertable.h), writes D, and leaves the unused byte alone.
//
// Rows: `rows()` spreads a pure row loop over the threads the session allows, in slices, and
// reports progress after each slice; the result does not depend on the thread count. Loops
// that draw random numbers or read what they wrote themselves run row by row on the calling
// thread and report through `rowDone()`.

#include "core/numeric.h"
#include "core/parallel.h"
#include "filters/filterargs.h"
#include "core/vectorloops.h"
#include "filters/filtertable.h"

#include <QImage>
#include <algorithm>
#include <array>
#include <cstdint>


namespace tf {

class Random;
class Session;

// A borrowed view of one array.
struct PixelPlane {
    uint8_t *data = nullptr;
    int width = 0;
    int height = 0;
    qsizetype stride = 0;

    uint8_t *row(int y) const { return data + y * stride; }
};

inline uint8_t clampByte(int v) { return uint8_t(v < 0 ? 0 : v > 255 ? 255 : v); }
// The float-to-integer conversion of the numeric rules (half to even) for values that are
// then clamped to a channel, so they cannot overflow.
inline int roundInt(double v)
{
    return int(roundHalfEven(std::clamp(v, -1.0e9, 1.0e9)));
}

class FilterRun {
public:
    // D and S over the two arrays; S may be the same memory as D for filters that read D.
    FilterRun(PixelPlane dst, PixelPlane src, const FilterArgs &args, Session &session);

    PixelPlane D;
    PixelPlane S;
    const FilterArgs &args;
    Random &random;
    // The value at which the bar continues after a first pass.
    int FilterStart = 0;
    // A filter that changes the picture's size (stretching, rotation) leaves its result here
    // instead of in D.
    QImage resized;

    int width() const { return D.width; }
    int height() const { return D.height; }
    int threads() const;
    Session &session() const { return m_session; }

    // Copies D over S (a composite filter does so before each of its steps).
    void copyDstToSrc();

    // Runs body(first, last) over rows 0 .. height-1 (pure rows), the bar going from `start`
    // to start + span. Rows go out in chunks to whichever thread is free. A body takes its
    // loop bounds into locals of its own: a store to a row could otherwise change a bound it
    // holds by reference, as far as the compiler knows, and it would not make vector code.
    template <typename Body> void rows(Body &&body, int start = 0, int span = 100)
    {
        const int h = height();
        const int threads = threadsFor(h, width(), 1 << 15, this->threads());
        const int chunk = std::clamp(h / (threads * 64), 1, 16);
        parallelChunks(h, chunk, threads, body,
                       [&](int done) { progress(start + int(int64_t(done) * span / h)); });
        progress(start + span);
    }
    // Runs an in-place loop that reads the row above as already written and the row below as
    // not yet written: body(y, x0, x1) handles columns x0 .. x1-1 of row y. Rows follow each
    // other at a distance of `lag` columns over the threads (parallelWavefront), so the result
    // is that of the plain loop, y outer and x inner, for any thread count.
    // The threads a loop over the rows runs on (at most `threads()`, fewer on a small picture).
    int rowThreads() const { return threadsFor(height(), width(), 1 << 15, threads()); }
    // Columns an in-place row hands on at a time.
    static constexpr int InPlaceChunk = 512;
    template <typename Body> void inPlaceRows(Body &&body, int lag = 1, int start = 0, int span = 100)
    {
        const int h = height(), w = width();
        const int threads = rowThreads();
        int reported = 0;
        parallelWavefront(h, w, InPlaceChunk, lag, threads, body, [&](int done) {
            if (done - reported < 16) return;
            reported = done;
            progress(start + int(int64_t(done) * span / h));
        });
        progress(start + span);
    }
    // The bar after row y (0-based) of a row-by-row loop, going from `start` by `span`.
    void rowDone(int y, int start = 0, int span = 100)
    {
        if ((y & 15) == 15 || y + 1 == height())
            progress(start + int(int64_t(y + 1) * span / height()));
    }
    // FilterPercent, and the bar when it shows this filter.
    void progress(int percent);
    // Gives way between the passes of a two-pass filter.
    void DoEvents();
    // One step of a composite filter: S takes a full copy of D, then `kernel` runs with
    // `argument` on the same arrays.
    void step(void (*kernel)(FilterRun &), int32_t argument);

private:
    Session &m_session;
};

// The filter workspace of one run: D takes a copy of the picture. S, for a routine that reads
// the unchanged copy, is the picture's own bytes, which nothing writes while the filter runs
// (the workspace holds a share of them, so a change to the picture meanwhile would leave
// them alone); a composite filter gets a copy of its own, which each of its steps refreshes.
class FilterWorkspace {
public:
    FilterWorkspace(const QImage &picture, Reads reads);
    // The same from a picture its owner gives up: a routine that reads only D then works on
    // the picture's own bytes (no copy), as a batch run that writes nothing after a fault may.
    FilterWorkspace(QImage &&picture, Reads reads);
    PixelPlane D() { return plane(m_dst); }
    PixelPlane S();
    // The result, ready to be written back.
    const QImage &result() const { return m_dst; }

private:
    static PixelPlane plane(QImage &image);
    QImage m_dst;
    QImage m_src;
    Reads m_reads;
};

} // namespace tf
