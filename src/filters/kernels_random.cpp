// The filters that draw random numbers. They run row by row on the calling thread, so that a
// seeded run gives the same picture whatever the number of cores.
#include "filters/kernels.h"

#include "core/random.h"
#include "filters/filterrun.h"

namespace tf {

void filterDiffuse(FilterRun &run)
{
    const int a = run.args.argument;
    const double half = a / 2.0;
    const int w = run.width(), h = run.height();
    for (int y = 0; y < h; ++y) {
        uint8_t *out = run.D.row(y);
        for (int x = 0; x < w; ++x) {
            int dx = roundInt(double(run.random.Rnd()) * a - half);
            int dy = roundInt(double(run.random.Rnd()) * a - half);
            if (x + dx < 0 || x + dx >= w) dx = 0;
            if (y + dy < 0 || y + dy >= h) dy = 0;
            // The same array: a pixel may pick up a value moved earlier in the pass.
            const uint8_t *from = run.D.row(y + dy) + (x + dx) * 4;
            out[x * 4] = from[0];
            out[x * 4 + 1] = from[1];
            out[x * 4 + 2] = from[2];
        }
        run.rowDone(y);
    }
}

void filterAddNoise(FilterRun &run)
{
    const int a = run.args.argument;
    const double range = 2.0 * a + 1.0;
    const int w = run.width(), h = run.height();
    for (int y = 0; y < h; ++y) {
        const uint8_t *in = run.S.row(y);
        uint8_t *out = run.D.row(y);
        for (int x = 0; x < w * 4; x += 4)
            for (int c = 0; c < 3; ++c) // blue, green, red: three independent offsets
                out[x + c] = clampByte(in[x + c] + roundInt(double(run.random.Rnd()) * range - a));
        run.rowDone(y);
    }
}

// Oil colours: a fixed recipe of seven steps, each on a fresh copy of the last result.
void filterDissolve(FilterRun &run)
{
    run.step(filterSaturation, 60);
    run.step(filterErode, 0);
    run.step(filterDespeckle, 0);
    run.step(filterDiffuse, 2);
    run.step(filterDilate, 0);
    run.step(filterDespeckle, 0);
    run.step(filterDespeckle, 0);
}

} // namespace tf
