#include "filters/previewzoom.h"

#include "filters/filtercommand.h"

#include <algorithm>
#include <cmath>

namespace tf {

PreviewZoom::PreviewZoom(QSize picture, int side)
    : m_picture(picture.expandedTo(QSize(1, 1))), m_side(std::max(1, side))
{
    const double fit =
        std::min(1.0, double(m_side) / std::max(m_picture.width(), m_picture.height()));
    m_levels.push_back(fit);
    for (double s : {0.125, 0.25, 0.5, 1.0, 2.0, 4.0})
        if (s > fit * 1.0001) m_levels.push_back(s);
}

void PreviewZoom::zoomIn()
{
    if (canZoomIn()) setLevel(m_level + 1);
}

void PreviewZoom::zoomOut()
{
    if (canZoomOut()) setLevel(m_level - 1);
}

void PreviewZoom::setLevel(int level)
{
    // The picture point in the middle of the view stays in the middle.
    const QSize before = scaledSize();
    const double cx = (m_offset.x() + std::min(m_side, before.width()) / 2.0) / scale();
    const double cy = (m_offset.y() + std::min(m_side, before.height()) / 2.0) / scale();
    m_level = level;
    const QSize after = scaledSize();
    setOffset(QPoint(int(std::lround(cx * scale() - std::min(m_side, after.width()) / 2.0)),
                     int(std::lround(cy * scale() - std::min(m_side, after.height()) / 2.0))));
}

QSize PreviewZoom::scaledSize() const
{
    return QSize(std::max(1, int(m_picture.width() * scale())),
                 std::max(1, int(m_picture.height() * scale())));
}

QPoint PreviewZoom::maxOffset() const
{
    const QSize s = scaledSize();
    return QPoint(std::max(0, s.width() - m_side), std::max(0, s.height() - m_side));
}

void PreviewZoom::setOffset(QPoint offset)
{
    const QPoint most = maxOffset();
    m_offset = QPoint(std::clamp(offset.x(), 0, most.x()), std::clamp(offset.y(), 0, most.y()));
}

QRect PreviewZoom::sourceRect() const
{
    const QSize s = scaledSize();
    const int vw = std::min(m_side, s.width()), vh = std::min(m_side, s.height());
    const int x0 = int(std::floor(m_offset.x() / scale()));
    const int y0 = int(std::floor(m_offset.y() / scale()));
    const int x1 = int(std::ceil((m_offset.x() + vw) / scale()));
    const int y1 = int(std::ceil((m_offset.y() + vh) / scale()));
    return QRect(QPoint(x0, y0), QPoint(x1 - 1, y1 - 1)).intersected(QRect(QPoint(), m_picture));
}

QImage previewPart(FilterDialogRun &run, const QImage &original, const PreviewZoom &zoom,
                   FilterArgs args)
{
    const double scale = zoom.scale();
    const QRect view = zoom.sourceRect();
    // The filter works at the displayed resolution, but never above the picture's own; the
    // margin gives the neighbourhood filters their neighbours at the edges of the view.
    const double work = std::min(1.0, scale);
    const int margin = int(std::ceil(3.0 / work));
    const QRect piece = view.adjusted(-margin, -margin, margin, margin)
                            .intersected(original.rect());
    QImage part = original.copy(piece);
    if (work < 1.0)
        part = part.scaled(std::max(1, int(piece.width() * work)),
                           std::max(1, int(piece.height() * work)), Qt::IgnoreAspectRatio,
                           Qt::SmoothTransformation);
    const QImage filtered = run.previewOf(part, args, work, piece.topLeft());
    // Cut the view out of the filtered part and bring it to the displayed size.
    const QPoint at((view.topLeft() - piece.topLeft()) * work);
    QImage shown = filtered.copy(QRect(at, QSize(std::max(1, int(view.width() * work)),
                                                 std::max(1, int(view.height() * work)))));
    if (scale > work)
        shown = shown.scaled(int(view.width() * scale), int(view.height() * scale),
                             Qt::IgnoreAspectRatio, Qt::FastTransformation);
    // The view may start inside a picture pixel when zoomed in: drop the part before it.
    const QPoint inside(std::max(0, int(zoom.offset().x() - view.x() * scale)),
                        std::max(0, int(zoom.offset().y() - view.y() * scale)));
    const QSize area(std::min(zoom.side(), zoom.scaledSize().width()),
                     std::min(zoom.side(), zoom.scaledSize().height()));
    return shown.copy(QRect(inside, area));
}

} // namespace tf
