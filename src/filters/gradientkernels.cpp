#include "filters/gradientkernels.h"

#include "filters/filterrun.h"
#include "paint/transparency.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tf {

namespace {

std::array<int, 3> bytesOf(ColorLong c) { return {BlueOf(c), GreenOf(c), RedOf(c)}; }

double ease(double t) { return t * t * (3.0 - 2.0 * t); }

} // namespace

void frameGradient(FilterRun &run)
{
    const FilterArgs::FrameGradient &f = run.args.frame;
    auto c0 = bytesOf(run.args.colours[0]);
    auto c1 = bytesOf(run.args.colours[1]);
    if (f.swap) std::swap(c0, c1);
    const double keep = std::clamp(f.keep, 0.0, 1.0);
    const int w = run.width(), h = run.height();
    const int mat = std::max(0, f.borders[2]);
    // The area inside the passepartout.
    const int iw = w - 2 * mat, ih = h - 2 * mat;
    const double soft = f.soft;
    const auto shape = [soft](double t) { return soft ? ease(std::clamp(t, 0.0, 1.0)) : t; };
    run.rows([&](int first, int last) {
        for (int y = first; y < last; ++y) {
            const uint8_t *in = run.S.row(y);
            uint8_t *out = run.D.row(y);
            for (int x = 0; x < w; ++x) {
                uint8_t *o = out + x * 4;
                const uint8_t *s = in + x * 4;
                const int edge = std::min({x, y, w - 1 - x, h - 1 - y});
                if (edge < mat || iw < 1 || ih < 1) {
                    for (size_t c = 0; c < 3; ++c) o[c] = uint8_t(c0[c]);
                    continue;
                }
                const int px = x - mat, py = y - mat;
                double t = 0.0, kept = keep;
                switch (f.style) {
                case 0:
                    t = f.horizontal ? (iw > 1 ? double(px) / (iw - 1) : 0.0)
                                     : (ih > 1 ? double(py) / (ih - 1) : 0.0);
                    break;
                case 1: {
                    const double fx = f.borders[0] > 0
                                          ? double(std::min(px, iw - 1 - px)) / f.borders[0]
                                          : 2.0;
                    const double fy = f.borders[1] > 0
                                          ? double(std::min(py, ih - 1 - py)) / f.borders[1]
                                          : 2.0;
                    t = std::min(fx, fy);
                    if (t >= 1.0) {
                        for (size_t c = 0; c < 3; ++c) o[c] = s[c];
                        continue;
                    }
                    kept = keep + (1.0 - keep) * shape(t);
                    break;
                }
                case 2: {
                    const double half = std::max(1.0, std::min(iw, ih) / 2.0);
                    t = std::min({px, iw - 1 - px, py, ih - 1 - py}) / half;
                    break;
                }
                default: {
                    const double hx = std::max(0.5, (iw - 1) / 2.0);
                    const double hy = std::max(0.5, (ih - 1) / 2.0);
                    const double dx = (px - hx) / hx, dy = (py - hy) / hy;
                    t = 1.0 - std::min(1.0, std::sqrt((dx * dx + dy * dy) / 2.0));
                    break;
                }
                }
                t = shape(std::clamp(t, 0.0, 1.0));
                for (size_t c = 0; c < 3; ++c) {
                    const int colour = int(roundHalfEven(c0[c] + (c1[c] - c0[c]) * t));
                    o[c] = clampByte(blendChannel(colour, s[c], kept));
                }
            }
        }
    });
}

void frequencyWaves(int selector, const QImage &first, QImage &result, const FilterArgs &args)
{
    const int w = std::min(first.width(), result.width());
    const int h = std::min(first.height(), result.height());
    const auto c0 = bytesOf(args.colours[0]);
    const auto c1 = bytesOf(args.colours[1]);
    const double alpha = std::clamp(args.sliders[1] / 100.0, 0.0, 1.0);
    // The wave length in percent of the longer side: the frequency itself up to 100, above
    // it 10000 / frequency (so a frequency drawn as 100 / Rnd gives Rnd * 100 percent).
    const double f = std::max(1, args.sliders[0]);
    const double percent = f <= 100 ? f : 10000.0 / f;
    const double length = std::max(4.0, percent / 100.0 * std::max(w, h));
    const double k = 2.0 * Pi / length;
    const double x1 = args.position.x(), y1 = args.position.y();
    const double x2 = args.position2.x(), y2 = args.position2.y();
    double ux = x2 - x1, uy = y2 - y1;
    const double n = std::sqrt(ux * ux + uy * uy);
    if (n > 0) {
        ux /= n;
        uy /= n;
    } else {
        ux = 1;
        uy = 0;
    }
    for (int y = 0; y < h; ++y) {
        const uint8_t *in = first.constScanLine(y);
        uint8_t *out = result.scanLine(y);
        for (int x = 0; x < w; ++x) {
            double v;
            if (selector == 3) {
                v = (1.0 + std::cos(k * ((x - x1) * ux + (y - y1) * uy))) / 2.0;
            } else {
                const double d1 = std::hypot(x - x1, y - y1), d2 = std::hypot(x - x2, y - y2);
                v = (2.0 + std::cos(k * d1) + std::cos(k * d2)) / 4.0;
            }
            for (size_t c = 0; c < 3; ++c) {
                const int colour = int(roundHalfEven(c0[c] * v + c1[c] * (1.0 - v)));
                out[x * 4 + int(c)] = clampByte(blendChannel(colour, in[x * 4 + int(c)], 1.0 - alpha));
            }
            out[x * 4 + 3] = 0xFF;
        }
    }
}

} // namespace tf
