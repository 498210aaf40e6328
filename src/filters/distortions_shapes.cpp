// TransGMirrors, the row shapes of filter 46.
//
// Each row y (1-based) is squeezed towards the middle by an inset d that the shape gives for
// that row; the squeezed row is written into a row buffer over the row as it was, so the flanks
// keep the old picture content. P is the dialog value times 4.
#include "filters/distortions.h"

#include "core/fault.h"
#include "core/numeric.h"
#include "filters/filterrun.h"

#include <cmath>
#include <cstring>
#include <vector>

namespace tf {

namespace {

// The inset of row y (1-based) for shape `selector`; false for the shapes that leave rows as
// they are (4, 7 and any other number).
bool insetOf(int selector, int y, int H, int W2, int H2, double P, double &d)
{
    const double pi = std::atan(1.0) * 4.0;
    const double yh = double(y) / H;
    switch (selector) {
    case 0: // hourglass
        d = (std::sin((2 * yh + 1.5) * pi) + 1) * P;
        return true;
    case 1: // vase
        d = (std::sin((2 * yh + 0.5) * pi) + 1) * P;
        return true;
    case 2: // torso
        d = (std::sin((3 * yh + 1) * pi) + 1) * P;
        return true;
    case 3: // lantern
        d = (std::sin((6 * yh + 1) * pi) + 1) * P;
        return true;
    case 5: // funnel
        d = 3 * P * y / H;
        return true;
    case 6: // roof
        d = 3 * P - 3 * P * y / H;
        return true;
    case 8:
    case 9: { // a circle (fisheye) or, with H2 = H, half of one (parabola)
        double q = double(H - y - H2) / H2;
        q = std::min(q * q, 1.0);
        d = W2 - W2 * std::sqrt(1 - q);
        return true;
    }
    default:
        return false;
    }
}

} // namespace

void TransGMirrors(FilterRun &run)
{
    const int selector = run.args.selector;
    guarded(QStringLiteral("TransGMirrors [%1]").arg(selector), [&] {
        const int W = run.width(), H = run.height();
        if (W < 1 || H < 1) return;
        const double P = double(run.args.argument) * 4.0;
        const int W2 = CLng(W / 2.0);
        const int H2 = selector == 9 ? H : CLng(H / 2.0);
        run.rows([&](int first, int last) {
            std::vector<uint32_t> buffer(size_t(W) + 1); // 1-based like the row's columns
            for (int row = first; row < last; ++row) {
                const int y = row + 1;
                double inset = 0;
                if (!insetOf(selector, y, H, W2, H2, P, inset)) continue;
                const int d = CLng(inset);
                const double s = double(W - 2 * d) / W;
                auto *pixels = reinterpret_cast<uint32_t *>(run.D.row(row));
                for (int x = 1; x <= W; ++x) {
                    int t = CLng(std::clamp(s * x + d, -2.0e9, 2.0e9));
                    if (t < 1) t = 1;
                    // The unshifted pixel first, then the shifted one over it: what no later
                    // write covers keeps the picture as it was.
                    buffer[size_t(x)] = pixels[x - 1];
                    if (t <= W) buffer[size_t(t)] = pixels[x - 1];
                }
                std::memcpy(pixels, buffer.data() + 1, size_t(W) * 4);
            }
        });
    });
}

} // namespace tf
