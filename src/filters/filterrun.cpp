#include "filters/filterrun.h"

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

FilterWorkspace::FilterWorkspace(const QImage &picture, bool needSource)
    : m_dst(picture.convertToFormat(QImage::Format_RGB32))
{
    // A deep copy: the picture stays as it is until the result is written back.
    m_dst.detach();
    if (needSource) {
        m_src = m_dst;
        m_src.detach();
    }
}

PixelPlane FilterWorkspace::plane(QImage &image)
{
    return {image.bits(), image.width(), image.height(), image.bytesPerLine()};
}

} // namespace tf
