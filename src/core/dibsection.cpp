// cDIBSection: making and releasing the surface, block copies, the best fit.
// Resample and Resize: dibsection_resample.cpp; LineDIB and PrintDIB: dibsection_draw.cpp;
// Save_BMP: dibsection_save.cpp.
#include "core/dibsection.h"

#include "core/parallel.h"

#include <cstring>
#include <limits>
#include <memory>

namespace tf {

cDIBSection::~cDIBSection() { ClearUp(); }

void cDIBSection::ClearUp()
{
    // A new surface gets a new context with the default objects, as a new memory DC would.
    std::destroy_at(&m_dc);
    std::construct_at(&m_dc);
    m_image = QImage(); // lets go of the memory before it is freed
    m_bits.reset();
    m_tBI = BITMAPINFOHEADER{};
    m_stride = 0;
}

bool cDIBSection::CreateDIB(int lWidth, int lHeight)
{
    bool made = false;
    guardedSurface(QStringLiteral("CreateDIB"), [&] {
        ClearUp();
        if (lWidth < 1 || lHeight < 1)
            return;
        const int64_t stride = (int64_t(lWidth) * 3 + 3) & ~int64_t(3);
        if (stride > std::numeric_limits<int>::max())
            return;
        // calloc: zeroed memory, and for a large surface fresh pages that cost nothing until
        // they are touched.
        auto *p = static_cast<uint8_t *>(std::calloc(size_t(lHeight), size_t(stride)));
        if (!p)
            return;
        m_bits.reset(p);
        m_image = QImage(p, lWidth, lHeight, qsizetype(stride), QImage::Format_BGR888);
        if (m_image.isNull()) {
            ClearUp();
            return;
        }
        m_dc.attach(&m_image, true);
        m_stride = int(stride);
        m_tBI = makeDibHeader(lWidth, lHeight, 24);
        made = true;
    });
    return made;
}

bool cDIBSection::Create(int lWidth, int lHeight, ColorLong BackColor)
{
    if (!CreateDIB(lWidth, lHeight))
        return false;
    if (BackColor != 0)
        fillBox(view(), 0, 0, lWidth - 1, lHeight - 1, BackColor);
    return true;
}

bool cDIBSection::CreateFromPicture(const QImage &picThis)
{
    bool made = false;
    guardedSurface(QStringLiteral("CreateFromPicture"), [&] {
        if (picThis.isNull()) {
            ClearUp();
            return;
        }
        QImage source = contextReadable(picThis);
        if (!Create(source.width(), source.height(), 0))
            return;
        const DeviceContext dc(&source, false);
        made = LoadPictureBlt(dc, 0, 0, -1, -1, SRCCOPY);
    });
    return made;
}

bool cDIBSection::LoadPictureBlt(const DeviceContext &src, int lSrcLeft, int lSrcTop,
                                 int lSrcWidth, int lSrcHeight, uint32_t eRop)
{
    bool done = false;
    guardedSurface(QStringLiteral("LoadPictureBlt"), [&] {
        const int w = lSrcWidth < 0 ? dib_width() : lSrcWidth;
        const int h = lSrcHeight < 0 ? dib_height() : lSrcHeight;
        done = BitBlt(m_dc, 0, 0, w, h, src, lSrcLeft, lSrcTop, eRop);
    });
    return done;
}

bool cDIBSection::PaintPicture(DeviceContext &dst, int lDestLeft, int lDestTop, int lDestWidth,
                               int lDestHeight, int lSrcLeft, int lSrcTop, uint32_t eRop)
{
    bool done = false;
    guardedSurface(QStringLiteral("PaintPictureBlt"), [&] {
        const int w = lDestWidth < 0 ? dib_width() : lDestWidth;
        const int h = lDestHeight < 0 ? dib_height() : lDestHeight;
        done = BitBlt(dst, lDestLeft, lDestTop, w, h, m_dc, lSrcLeft, lSrcTop, eRop);
    });
    return done;
}

void cDIBSection::Stretch(DeviceContext &dst, int X, int Y, int nWidth, int nHeight, int xSrc,
                          int ySrc, int nSrcWidth, int nSrcHeight, int StretchColorMode)
{
    if (!hDIB())
        return;
    const int before = SetStretchBltMode(dst, StretchColorMode);
    StretchBlt(dst, X, Y, nWidth, nHeight, m_dc, xSrc, ySrc, nSrcWidth, nSrcHeight, SRCCOPY);
    SetStretchBltMode(dst, before);
}

void cDIBSection::GetBestFitInfo(int dstW, int dstH, int &bfx, int &bfy, int &bfW, int &bfH,
                                 bool StretchFit) const
{
    const int W = dib_width(), H = dib_height();
    if (W <= 0 || H <= 0) {
        bfx = bfy = bfW = bfH = 0;
        return;
    }
    if (!StretchFit && W <= dstW && H <= dstH) {
        bfW = W;
        bfH = H;
    } else {
        const double xScale = double(dstW) / W, yScale = double(dstH) / H;
        if (xScale >= yScale) {
            bfH = dstH;
            bfW = CLng(yScale * W);
        } else {
            bfW = dstW;
            bfH = CLng(xScale * H);
        }
    }
    bfx = CLng(Fix((double(dstW) - bfW) / 2));
    bfy = CLng(Fix((double(dstH) - bfH) / 2));
}

void cDIBSection::fillBox(DibView v, int x0, int y0, int x1, int y1, ColorLong c)
{
    const uint8_t px[3] = {uint8_t(BlueOf(c)), uint8_t(GreenOf(c)), uint8_t(RedOf(c))};
    const size_t n = size_t(x1 - x0 + 1) * 3;
    // The first row is written pixel by pixel, the others are copies of it.
    uint8_t *first = v.row(y0) + size_t(x0) * 3;
    for (size_t i = 0; i < n; i += 3) {
        first[i] = px[0];
        first[i + 1] = px[1];
        first[i + 2] = px[2];
    }
    // Pure writes: large boxes are split over threads (a Superformat fill is 588 MB).
    parallelRows(y1 - y0, int64_t(n), [&](int a, int b) {
        for (int y = y0 + 1 + a; y <= y0 + b; ++y)
            std::memcpy(v.row(y) + size_t(x0) * 3, first, n);
    }, int64_t(1) << 22);
}

} // namespace tf
