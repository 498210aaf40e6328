// Stretching (52) and rotation by degrees (53): the two distortions that may change the
// picture's size ("Größe anpassen"). Without it the result stands centred in the picture's own
// size; room it leaves takes the background colour ("Hintergrund löschen") or shows the
// picture as it was.
#include "filters/distortions.h"

#include "core/fault.h"
#include "filters/filterrun.h"
#include "filters/geometry.h"
#include "filters/warp.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tf {

namespace {

using warp::Source;

// The scale of a stretch factor: 0 keeps the size, 100 doubles it, 300 gives four times;
// -100 halves it and -200 gives a third.
double scaleOf(int factor)
{
    return factor >= 0 ? 1.0 + factor / 100.0 : 1.0 / (1.0 - factor / 100.0);
}

// A run's D as the result of another size: the picture takes `w` x `h` (filled with the
// background), and `body` fills it through a run over the new D with the old picture as S.
template <typename Body> void intoSize(FilterRun &run, int w, int h, Body body)
{
    if (w == run.width() && h == run.height()) {
        body(run);
        return;
    }
    // A result past the largest picture, or one the memory cannot hold, is a fault: the
    // picture stays as it was.
    if (w > MaxPictureSide || h > MaxPictureSide) throw Fault(Fault::Overflow);
    QImage out(std::max(1, w), std::max(1, h), QImage::Format_RGB32);
    if (out.isNull()) throw Fault(Fault::OutOfMemory);
    out.fill(toQRgb(run.args.background));
    // The rows of the new picture, the old one (D as it still is) to read from.
    FilterRun sized({out.bits(), out.width(), out.height(), out.bytesPerLine()}, run.D, run.args,
                    run.session());
    body(sized);
    run.resized = out;
}

// The mapping of target pixel (x, y) of a w x h result back into the W x H source by the
// inverse of a linear map about the middles (a, b; c, d) .
struct Affine {
    double a, b, c, d; // source = M * (target - target middle) + source middle
    double tx, ty;     // target middle
    double sx, sy;     // source middle
    void at(int x, int y, double &fx, double &fy) const
    {
        const double dx = x - tx, dy = y - ty;
        fx = sx + a * dx + b * dy;
        fy = sy + c * dx + d * dy;
    }
};

// Fills run.D by the affine map; pixels whose source lies off S take the background, or keep
// the old picture when asked and when the sizes agree.
void fillAffine(FilterRun &run, const PixelPlane &source, const Affine &m, bool smooth)
{
    const uint32_t background = warp::pixelOf(run.args.background);
    const bool keepOld = !run.args.cleanBack && run.D.data != source.data &&
                         run.D.width == source.width && run.D.height == source.height;
    warp::forStrips(run, [&](int y, int x0, int x1) {
        auto *out = reinterpret_cast<uint32_t *>(run.D.row(y));
        for (int x = x0; x < x1; ++x) {
            double fx, fy;
            m.at(x, y, fx, fy);
            if (warp::inside(source, fx, fy))
                out[x] = smooth ? warp::bilinear(source, fx, fy) : warp::nearest(source, fx, fy);
            else if (!keepOld)
                out[x] = background;
        }
    });
}

} // namespace

void filterStretchShape(FilterRun &run)
{
    const int W = run.width(), H = run.height();
    const double kx = scaleOf(run.args.sliders[0]), ky = scaleOf(run.args.sliders[1]);
    if (kx == 1.0 && ky == 1.0) return;
    const int w = run.args.resizeToFit ? std::max(1, int(std::lround(W * kx))) : W;
    const int h = run.args.resizeToFit ? std::max(1, int(std::lround(H * ky))) : H;
    const PixelPlane source = run.S;
    intoSize(run, w, h, [&](FilterRun &r) {
        const Affine m{1.0 / kx,     0, 0, 1.0 / ky, (w - 1) / 2.0, (h - 1) / 2.0, (W - 1) / 2.0,
                       (H - 1) / 2.0};
        fillAffine(r, source, m, true);
    });
}

// Rotation by the angle in degrees, clockwise for a positive angle. Whole quarter turns are
// exact; any other angle samples bilinearly with anti-aliasing, else takes the nearest pixel.
// The corners take the background colour; with "Größe anpassen" the picture grows to hold the
// whole turned picture.
void filterRotate(FilterRun &run)
{
    const int W = run.width(), H = run.height();
    double degrees = std::fmod(double(run.args.sliders[0]), 360.0);
    if (degrees < 0) degrees += 360.0;
    if (degrees == 0) return;
    const bool smooth = run.args.sliders[1] != 0;
    const PixelPlane source = run.S;
    if (std::fmod(degrees, 90.0) == 0) {
        const int q = int(degrees / 90.0);
        const bool swap = q % 2 == 1;
        if (!swap || W == H || run.args.resizeToFit) {
            // The quarter turn of the picture commands, over S as it stands.
            const QImage src(source.data, W, H, source.stride, QImage::Format_RGB32);
            const QImage turned = turnedQuarters(src, q, run.threads());
            if (turned.size() != QSize(W, H)) {
                run.resized = turned;
                return;
            }
            for (int y = 0; y < H; ++y)
                std::memcpy(run.D.row(y), turned.constScanLine(y), size_t(W) * 4);
            return;
        }
    }
    const double rad = degrees * Pi / 180.0;
    const double c = std::cos(rad), s = std::sin(rad);
    int w = W, h = H;
    if (run.args.resizeToFit) {
        w = int(std::ceil(std::abs(W * c) + std::abs(H * s) - 1e-6));
        h = int(std::ceil(std::abs(W * s) + std::abs(H * c) - 1e-6));
    }
    intoSize(run, w, h, [&](FilterRun &r) {
        // Target turned clockwise by the angle: the source is the target turned back.
        const Affine m{c, s, -s, c, (w - 1) / 2.0, (h - 1) / 2.0, (W - 1) / 2.0, (H - 1) / 2.0};
        fillAffine(r, source, m, smooth);
    });
}

} // namespace tf
