// The warps of the transform menu that keep the picture's size: lens, waves, polar
// coordinates, twirl and bend. Each is an inverse mapping from S into D (warp.h).
#include "filters/distortions.h"

#include "filters/filterrun.h"
#include "filters/warp.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tf {

namespace {

using warp::Source;

// The middle of the picture in pixel-centre coordinates.
double middle(int size)
{
    return (size - 1) / 2.0;
}

} // namespace

// A round lens of `diameter` per cent of the shorter side, set at the picked position (the
// middle when none): inside it the picture is magnified towards the lens's centre, by up to
// five times at scaling 100; at its rim the picture joins without a seam. Scaling 0 leaves the
// picture as it was.
void filterLens(FilterRun &run)
{
    const int W = run.width(), H = run.height();
    const double radius = std::max(0.5, run.args.sliders[0] / 100.0 * std::min(W, H) / 2.0);
    const double k = std::clamp(run.args.sliders[1], 0, 100) / 100.0 * 0.8;
    const QPoint at = run.args.position;
    const double cx = at.x() >= 0 ? at.x() : middle(W);
    const double cy = at.y() >= 0 ? at.y() : middle(H);
    if (k <= 0) return;
    warp::inverseMap(run, true, 0, [&](int x, int y, double &fx, double &fy) {
        const double dx = x - cx, dy = y - cy;
        const double rho2 = (dx * dx + dy * dy) / (radius * radius);
        if (rho2 >= 1.0) return Source::Keep;
        // r' = r (1 - k (1 - rho^2)): steady at the rim, 1 - k at the centre.
        const double f = 1.0 - k * (1.0 - rho2);
        fx = cx + dx * f;
        fy = cy + dy * f;
        return Source::Sample;
    });
}

// Waves across the picture: each row moves sideways and each column up or down by a sine.
// Frequency 0..100 gives 0 to 20 waves over the picture, amplitude 1..100 moves by up to a
// tenth of the shorter side, and the start angle (degrees) sets the phase at the top left.
void filterWaves(FilterRun &run)
{
    const int W = run.width(), H = run.height();
    const double waves = run.args.sliders[0] / 5.0;
    const double amplitude = run.args.sliders[1] / 1000.0 * std::min(W, H);
    const double phase = run.args.sliders[2] * Pi / 180.0;
    // The shift of each column and each row, reckoned once.
    std::vector<double> byColumn(static_cast<size_t>(W)), byRow(static_cast<size_t>(H));
    for (int x = 0; x < W; ++x)
        byColumn[size_t(x)] = amplitude * std::sin(2 * Pi * waves * x / W + phase);
    for (int y = 0; y < H; ++y)
        byRow[size_t(y)] = amplitude * std::sin(2 * Pi * waves * y / H + phase);
    warp::inverseMap(run, true, 0, [&](int x, int y, double &fx, double &fy) {
        fx = x + byRow[size_t(y)];
        fy = y + byColumn[size_t(x)];
        return Source::Sample;
    });
}

// Polar coordinates. A positive factor wraps the picture around its middle (its top edge
// becomes the centre, its sides meet below it), a negative one unrolls a round picture into
// rows; the factor's size (up to 200) is how far the way goes, 0 leaves the picture.
void filterPolar(FilterRun &run)
{
    const int W = run.width(), H = run.height();
    const double t = std::clamp(run.args.sliders[0], -200, 200) / 200.0;
    if (t == 0) return;
    const double amount = std::abs(t);
    const double cx = middle(W), cy = middle(H);
    const double rmax = std::hypot(W / 2.0, H / 2.0);
    warp::inverseMap(run, true, 0, [&](int x, int y, double &fx, double &fy) {
        double px, py;
        if (t > 0) {
            // Target in polar form: its angle picks the column, its distance the row.
            const double dx = x - cx, dy = y - cy;
            const double angle = std::atan2(dx, -dy); // 0 straight up, clockwise
            px = (angle + Pi) / (2 * Pi) * W - 0.5;
            py = std::hypot(dx, dy) / rmax * H - 0.5;
        } else {
            // Target as rows of the angle and the distance: the source lies on a circle.
            const double angle = (x + 0.5) / W * 2 * Pi - Pi;
            const double r = (y + 0.5) / H * rmax;
            px = cx + r * std::sin(angle);
            py = cy - r * std::cos(angle);
        }
        fx = x + (px - x) * amount;
        fy = y + (py - y) * amount;
        return Source::Sample;
    });
}

// A twirl about the middle, inside the circle of the shorter side: the turn is largest at the
// centre and fades to nothing at the rim. The angle (degrees) turns linearly with the
// distance from the rim, the factor adds up to a whole turn (at 100) that tightens towards the
// centre; a negative value turns the other way.
void filterTwirl(FilterRun &run)
{
    const int W = run.width(), H = run.height();
    const double factor = run.args.sliders[0] / 100.0 * 2 * Pi;
    const double angle = run.args.sliders[1] * Pi / 180.0;
    if (factor == 0 && angle == 0) return;
    const double cx = middle(W), cy = middle(H);
    const double radius = std::max(1.0, std::min(W, H) / 2.0);
    // The turn depends on the distance alone: its cosine and sine are reckoned once for every
    // eighth of a pixel out to the rim and read between the steps.
    constexpr double Steps = 8.0;
    const size_t count = size_t(radius * Steps) + 2;
    std::vector<double> cosines(count), sines(count);
    for (size_t i = 0; i < count; ++i) {
        const double rest = std::max(0.0, 1.0 - double(i) / Steps / radius);
        const double turn = angle * rest + factor * rest * rest;
        cosines[i] = std::cos(turn);
        sines[i] = std::sin(turn);
    }
    const double r2max = radius * radius;
    warp::inverseMap(run, true, 0, [&](int x, int y, double &fx, double &fy) {
        const double dx = x - cx, dy = y - cy;
        const double r2 = dx * dx + dy * dy;
        if (r2 >= r2max) return Source::Keep;
        const double t = std::sqrt(r2) * Steps;
        const size_t i = size_t(t);
        const double f = t - double(i);
        const double c = cosines[i] + (cosines[i + 1] - cosines[i]) * f;
        const double s = sines[i] + (sines[i + 1] - sines[i]) * f;
        fx = cx + dx * c - dy * s;
        fy = cy + dx * s + dy * c;
        return Source::Sample;
    });
}

// Bending: the H-factor bows the rows sideways (the middle row moves most, by up to three
// eighths of the width at 150), the V-factor bows the columns up or down. The room the picture
// leaves takes the background colour.
void filterBend(FilterRun &run)
{
    const int W = run.width(), H = run.height();
    const double h = run.args.sliders[0] / 100.0 * W / 4.0;
    const double v = run.args.sliders[1] / 100.0 * H / 4.0;
    if (h == 0 && v == 0) return;
    const uint32_t background = warp::pixelOf(run.args.background);
    std::vector<double> byRow(static_cast<size_t>(H)), byColumn(static_cast<size_t>(W));
    for (int y = 0; y < H; ++y) {
        const double u = H > 1 ? 2.0 * y / (H - 1) - 1.0 : 0.0;
        byRow[size_t(y)] = h * (1.0 - u * u);
    }
    for (int x = 0; x < W; ++x) {
        const double u = W > 1 ? 2.0 * x / (W - 1) - 1.0 : 0.0;
        byColumn[size_t(x)] = v * (1.0 - u * u);
    }
    warp::inverseMap(run, true, background, [&](int x, int y, double &fx, double &fy) {
        fx = x - byRow[size_t(y)];
        fy = y - byColumn[size_t(x)];
        return warp::inside(run.S, fx, fy) ? Source::Sample : Source::Background;
    });
}

} // namespace tf
