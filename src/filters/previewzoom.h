#pragma once
// The zoom and the visible part of the filter dialog's picture after (picPreview).
//
// The first step shows the whole picture in the preview area (reduced when it is larger);
// "+" goes on to 1/8, 1/4, 1/2, 1:1, 2:1 and 4:1 (each only where it is larger than the
// whole-picture step), "-" goes back. Zooming keeps the middle of the view where it was. The
// scroll offsets are in displayed pixels and run from 0 to the scaled picture's size less the
// area. `previewPart` runs a filter on just the visible part, with a small margin of
// neighbours around it, so that a zoomed preview of a large picture stays quick.

#include "filters/filterargs.h"

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <vector>

namespace tf {

class FilterDialogRun;

class PreviewZoom {
public:
    PreviewZoom(QSize picture, int side);

    // Displayed pixels per picture pixel.
    double scale() const { return m_levels[size_t(m_level)]; }
    int level() const { return m_level; }
    bool canZoomIn() const { return m_level + 1 < int(m_levels.size()); }
    bool canZoomOut() const { return m_level > 0; }
    void zoomIn();
    void zoomOut();

    // The picture at this scale, and how far the view can be moved across it.
    QSize scaledSize() const;
    QPoint maxOffset() const;
    QPoint offset() const { return m_offset; }
    void setOffset(QPoint offset);
    // The part of the picture in view, in picture pixels.
    QRect sourceRect() const;
    int side() const { return m_side; }

private:
    void setLevel(int level);

    QSize m_picture;
    int m_side;
    std::vector<double> m_levels;
    int m_level = 0;
    QPoint m_offset;
};

// The filter of `run` applied to the part of `original` that `zoom` shows, as it is to be
// displayed (at most side x side). Positions in `args` are picture pixels.
QImage previewPart(FilterDialogRun &run, const QImage &original, const PreviewZoom &zoom,
                   FilterArgs args);

} // namespace tf
