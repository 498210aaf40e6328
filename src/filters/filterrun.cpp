#include "filters/filterrun.h"

#include "core/fault.h"
#include "core/largeimage.h"

#include "paint/session.h"

#include <cstring>

namespace tf {

FilterRun::FilterRun(PixelPlane dst, PixelPlane src, const FilterArgs &a, Session &session)
    : D(dst), S(src), args(a), random(session.random()), m_session(session)
{
}

int FilterRun::threads() const
{
    return m_session.filters().threads;
}

void FilterRun::copyDstToSrc()
{
    if (S.data == D.data) return;
    for (int y = 0; y < height(); ++y)
        std::memcpy(S.row(y), D.row(y), size_t(width()) * 4);
}

void FilterRun::progress(int percent)
{
    FilterState &f = m_session.filters();
    f.FilterPercent = percent;
    if (f.FilterProgressOn) m_session.status().setProgress(percent, 101);
}

void FilterRun::DoEvents()
{
    m_session.DoEvents();
}

void FilterRun::step(void (*kernel)(FilterRun &), int32_t argument)
{
    copyDstToSrc();
    FilterArgs a = args;
    a.argument = argument;
    FilterRun sub(D, S, a, m_session);
    kernel(sub);
}

namespace {

// Gives `image` bytes of its own when it shares them, on memory for large pictures
// (largeimage.h): a filter's copy of a large picture is filled once, row after row.
void ownBytes(QImage &image)
{
    if (image.isDetached()) return;
    QImage own = largeCopy(image);
    if (own.isNull()) throw Fault(Fault::OutOfMemory);
    image = std::move(own);
}

} // namespace

FilterWorkspace::FilterWorkspace(const QImage &picture, Reads reads)
    : m_dst(picture.convertToFormat(QImage::Format_RGB32)), m_reads(reads)
{
    if (reads != Reads::Dst) m_src = m_dst; // a share of the picture's bytes
    // D is a deep copy: the picture stays as it is until the result is written back.
    ownBytes(m_dst);
    if (reads == Reads::Steps) ownBytes(m_src);
}

FilterWorkspace::FilterWorkspace(QImage &&picture, Reads reads) : m_reads(reads)
{
    if (reads != Reads::Dst || picture.format() != QImage::Format_RGB32) {
        *this = FilterWorkspace(static_cast<const QImage &>(picture), reads);
        return;
    }
    m_dst = std::move(picture);
    ownBytes(m_dst); // a copy only when someone else still holds the bytes
}

PixelPlane FilterWorkspace::S()
{
    if (m_reads == Reads::Dst) return plane(m_dst);
    if (m_reads == Reads::Steps) return plane(m_src);
    // Read only: constBits leaves the shared bytes shared.
    const QImage &shared = m_src;
    return {const_cast<uint8_t *>(shared.constBits()), shared.width(), shared.height(),
            shared.bytesPerLine()};
}

PixelPlane FilterWorkspace::plane(QImage &image)
{
    return {image.bits(), image.width(), image.height(), image.bytesPerLine()};
}

} // namespace tf
