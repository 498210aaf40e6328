// cDIBSection::Resample (bilinear) and cDIBSection::Resize (nearest).
//
// Both work on raw memory rows on both sides (row 0 the bottom row as shown). With W x H the
// source size and NW x NH the target size:
//   xScale = (W-1)/NW, yScale = (H-1)/NH  (single precision for Resample, double for Resize);
//   the divisor is the new size, not the new size minus 1: the largest sampled position stays
//   below W-1 and H-1, so the last source row and column are approached but never reached.
// Resample, for each target pixel: sy = yScale*y, iy = Int(sy), fy = sy-iy (and the same for
// x, in double precision from the single scale); for both columns ix and ix+1 each channel is
// (1-fy)*source(ix,iy) + fy*source(ix,iy+1) rounded half to even, then the pixel's channel is
// (1-fx)*left + fx*right, rounded the same way. Where the neighbour at +1 does not exist (a
// source 1 wide or 1 high) its weight is 0 and the last column or row stands in for it.
// Resize copies source pixel (Int(xScale*x), Int(yScale*y)).
// Equal size is an exact copy through LoadPictureBlt. Rows are split over threads; each row
// depends on the source alone, so the result does not depend on the thread count.
#include "core/dibsection.h"
#include "core/parallel.h"

#include <algorithm>
#include <cmath>
#include <vector>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace tf {

namespace {

// Rounds half to even (the current rounding mode, nearest by default, as roundHalfEven).
inline int roundToInt(double v)
{
#if defined(__SSE2__)
    return _mm_cvtsd_si32(_mm_set_sd(v));
#else
    return int(std::nearbyint(v));
#endif
}

// The two source columns of a target column, as byte offsets in a row, and their weights.
struct Tap {
    int left;
    int right;
    double fx;
    double gx; // 1 - fx
};

void resampleBand(ConstDibView src, DibView dst, const std::vector<Tap> &taps, Single yScale,
                  int first, int last)
{
    const int lastRow = src.height - 1;
    for (int y = first; y < last; ++y) {
        const double sy = double(yScale) * y;
        const int iy = int(Int(sy));
        const double fy = sy - iy, gy = 1 - fy;
        const uint8_t *r0 = src.row(iy);
        const uint8_t *r1 = src.row(std::min(iy + 1, lastRow));
        uint8_t *d = dst.row(y);
        const Tap *t = taps.data();
        for (int x = 0; x < dst.width; ++x, ++t, d += 3) {
            const uint8_t *a = r0 + t->left, *b = r1 + t->left;
            const uint8_t *c = r0 + t->right, *e = r1 + t->right;
            const int lb = roundToInt(gy * a[0] + fy * b[0]);
            const int lg = roundToInt(gy * a[1] + fy * b[1]);
            const int lr = roundToInt(gy * a[2] + fy * b[2]);
            const int rb = roundToInt(gy * c[0] + fy * e[0]);
            const int rg = roundToInt(gy * c[1] + fy * e[1]);
            const int rr = roundToInt(gy * c[2] + fy * e[2]);
            d[0] = uint8_t(roundToInt(t->gx * lb + t->fx * rb));
            d[1] = uint8_t(roundToInt(t->gx * lg + t->fx * rg));
            d[2] = uint8_t(roundToInt(t->gx * lr + t->fx * rr));
        }
    }
}

// The worker of Resample: fills dst from src. False after a reported fault.
bool ResampleDIB(ConstDibView src, DibView dst, Single xScale, Single yScale)
{
    return guardedSurface(QStringLiteral("ResampleDIB"), [&] {
        const int lastCol = src.width - 1;
        std::vector<Tap> taps(size_t(dst.width));
        for (int x = 0; x < dst.width; ++x) {
            const double sx = double(xScale) * x;
            const int ix = int(Int(sx));
            const double fx = sx - ix;
            taps[size_t(x)] = {ix * 3, std::min(ix + 1, lastCol) * 3, fx, 1 - fx};
        }
        parallelRows(dst.height, int64_t(dst.width) * 4, [&](int first, int last) {
            resampleBand(src, dst, taps, yScale, first, last);
        });
    });
}

// The worker of Resize: fills dst from src. False after a reported fault.
bool ResizeDIB(ConstDibView src, DibView dst, double xScale, double yScale)
{
    return guardedSurface(QStringLiteral("ResizeDIB"), [&] {
        std::vector<int> cols(size_t(dst.width));
        for (int x = 0; x < dst.width; ++x)
            cols[size_t(x)] = std::min(int(Int(xScale * x)), src.width - 1) * 3;
        parallelRows(dst.height, dst.width, [&](int first, int last) {
            for (int y = first; y < last; ++y) {
                const uint8_t *s = src.row(std::min(int(Int(yScale * y)), src.height - 1));
                uint8_t *d = dst.row(y);
                for (const int c : cols) {
                    const uint8_t *p = s + c;
                    d[0] = p[0];
                    d[1] = p[1];
                    d[2] = p[2];
                    d += 3;
                }
            }
        });
    });
}

// A new all-zero surface for a result; a size that cannot be made is a fault here.
std::unique_ptr<cDIBSection> newSurface(int w, int h)
{
    auto made = std::make_unique<cDIBSection>();
    if (!made->Create(w, h, 0))
        throw Fault(w < 1 || h < 1 ? Fault::InvalidCall : Fault::OutOfMemory);
    return made;
}

// The exact copy that an equal size gives.
std::unique_ptr<cDIBSection> copyOf(const cDIBSection &src)
{
    auto made = newSurface(src.dib_width(), src.dib_height());
    if (!made->LoadPictureBlt(src.dib_hdc(), 0, 0, -1, -1, SRCCOPY))
        return nullptr;
    return made;
}

} // namespace

std::unique_ptr<cDIBSection> cDIBSection::Resample(int lNewWidth, int lNewHeight) const
{
    std::unique_ptr<cDIBSection> result;
    guardedSurface(QStringLiteral("Resample"), [&] {
        if (!hDIB())
            throw Fault(Fault::InvalidCall);
        if (lNewWidth == dib_width() && lNewHeight == dib_height()) {
            result = copyOf(*this);
            return;
        }
        const Single xScale = CSng(checkedDiv(dib_width() - 1, lNewWidth));
        const Single yScale = CSng(checkedDiv(dib_height() - 1, lNewHeight));
        auto made = newSurface(lNewWidth, lNewHeight);
        if (ResampleDIB(view(), made->view(), xScale, yScale))
            result = std::move(made);
    });
    return result;
}

std::unique_ptr<cDIBSection> cDIBSection::Resize(int lNewWidth, int lNewHeight) const
{
    std::unique_ptr<cDIBSection> result;
    guardedSurface(QStringLiteral("Resize"), [&] {
        if (!hDIB())
            throw Fault(Fault::InvalidCall);
        if (lNewWidth == dib_width() && lNewHeight == dib_height()) {
            result = copyOf(*this);
            return;
        }
        const double xScale = checkedDiv(dib_width() - 1, lNewWidth);
        const double yScale = checkedDiv(dib_height() - 1, lNewHeight);
        auto made = newSurface(lNewWidth, lNewHeight);
        if (ResizeDIB(view(), made->view(), xScale, yScale))
            result = std::move(made);
    });
    return result;
}

} // namespace tf
