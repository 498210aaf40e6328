// A frame's piece of picture: decoded, scaled, cut or tiled (any thread), then its effects.
#include "generators/picmosaik_p.h"

#include "core/dibsection.h"
#include "files/cdstdpicture.h"
#include "filters/filterrun.h"
#include "filters/hls.h"
#include "filters/kernels.h"

#include <algorithm>

namespace tf {

namespace {

// Reads pixel (x, y) of the scaled picture, which lies in a surface (bottom-up, 3 bytes) or
// in a picture (top-down RGB32).
struct Source {
    const QImage *image = nullptr;
    ConstDibView dib;
    int width() const { return image ? image->width() : dib.width; }
    int height() const { return image ? image->height() : dib.height; }
    // Copies `count` pixels of row y from column x into `out` (RGB32).
    void copyRow(int x, int y, int count, QRgb *out) const
    {
        if (image) {
            const auto *in = reinterpret_cast<const QRgb *>(image->constScanLine(y)) + x;
            std::copy(in, in + count, out);
            return;
        }
        const uint8_t *in = dib.row(dib.height - 1 - y) + x * 3;
        for (int i = 0; i < count; ++i, in += 3)
            out[i] = qRgb(in[2], in[1], in[0]);
    }
};

PreparedPiece cut(const Source &src, const PiecePlan &plan)
{
    PreparedPiece out;
    const int fw = plan.frame.width(), fh = plan.frame.height();
    const int pw = src.width(), ph = src.height();
    if (fw <= 0 || fh <= 0 || pw <= 0 || ph <= 0)
        return out;
    if (plan.tile) {
        // The picture repeats from its origin in both directions over the whole frame.
        out.area = QRect(0, 0, fw, fh);
        out.image = QImage(fw, fh, QImage::Format_RGB32);
        if (out.image.isNull())
            throw std::bad_alloc();
        std::vector<QRgb> row(static_cast<size_t>(pw));
        for (int y = 0; y < fh; ++y) {
            const int sy = ((y - plan.origin.y()) % ph + ph) % ph;
            src.copyRow(0, sy, pw, row.data());
            auto *o = reinterpret_cast<QRgb *>(out.image.scanLine(y));
            int sx = ((0 - plan.origin.x()) % pw + pw) % pw;
            for (int x = 0; x < fw; ++x) {
                o[x] = row[size_t(sx)];
                if (++sx == pw)
                    sx = 0;
            }
        }
        return out;
    }
    out.area = QRect(0, 0, fw, fh).intersected(QRect(plan.origin, QSize(pw, ph)));
    if (out.area.isEmpty())
        return out;
    out.image = QImage(out.area.size(), QImage::Format_RGB32);
    if (out.image.isNull())
        throw std::bad_alloc();
    for (int y = 0; y < out.area.height(); ++y)
        src.copyRow(out.area.left() - plan.origin.x(), out.area.top() + y - plan.origin.y(),
                    out.area.width(), reinterpret_cast<QRgb *>(out.image.scanLine(y)));
    return out;
}

} // namespace

PreparedPiece preparePiece(const PiecePlan &plan, const QImage *whole)
{
    QImage picture;
    if (whole) {
        picture = *whole;
    } else {
        // Scaled down, the picture need not be decoded larger than it will be shown.
        const bool down = plan.scaled.width() < plan.stored.width() &&
                          plan.scaled.height() < plan.stored.height();
        LoadResult r = loadPhoto(plan.path, down ? plan.scaled : QSize());
        if (!r.loaded()) {
            PreparedPiece failed;
            failed.failed = true;
            failed.detail = r.detail;
            return failed;
        }
        picture = std::move(r.image);
    }
    if (picture.size() == plan.scaled) {
        Source src;
        src.image = &picture;
        return cut(src, plan);
    }
    cDIBSection dib;
    if (!dib.CreateFromPicture(picture))
        throw std::bad_alloc();
    picture = QImage();
    const std::unique_ptr<cDIBSection> scaled =
        plan.resample ? dib.Resample(plan.scaled.width(), plan.scaled.height())
                      : dib.Resize(plan.scaled.width(), plan.scaled.height());
    if (!scaled)
        throw std::bad_alloc();
    Source src;
    src.dib = static_cast<const cDIBSection &>(*scaled).view();
    return cut(src, plan);
}

void applyEffects(Session &s, QImage &piece, const EffectPlan &e)
{
    if (piece.isNull())
        return;
    PixelPlane plane{piece.bits(), piece.width(), piece.height(), piece.bytesPerLine()};
    FilterArgs args;
    if (e.blurPasses > 0) {
        FilterRun run(plane, plane, args, s);
        for (int i = 0; i < e.blurPasses; ++i)
            e.strongBlur ? filterBlurMore(run) : filterBlur(run);
    }
    if (e.grey) {
        FilterRun run(plane, plane, args, s);
        filterGreyScale(run);
    }
    if (e.colourise)
        Colourise(plane, e.hue, e.saturation, e.monochrome);
}

} // namespace tf
