#include "ui/supercanvas.h"

#include "core/surfacepreview.h"

#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

namespace tf::ui {

namespace {

// The overview's longer side: views of the whole picture come from it.
constexpr int OverviewSide = 2048;

} // namespace

SuperCanvas::SuperCanvas(QWidget *parent) : QAbstractScrollArea(parent)
{
    setObjectName(QStringLiteral("picMosaik"));
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setBackgroundRole(QPalette::Dark);
}

const std::vector<double> &SuperCanvas::zoomSteps()
{
    static const std::vector<double> steps{1.0 / 64, 1.0 / 48, 1.0 / 32, 1.0 / 24, 1.0 / 16,
                                           1.0 / 12, 1.0 / 8,  1.0 / 6,  1.0 / 4,  1.0 / 3,
                                           1.0 / 2,  2.0 / 3,  1.0,      1.5,      2.0,
                                           3.0,      4.0,      6.0,      8.0};
    return steps;
}

void SuperCanvas::setSurface(const cDIBSection *dib)
{
    m_dib = dib && dib->hDIB() ? dib : nullptr;
    m_overview = m_dib ? surfaceOverview(*m_dib, OverviewSide) : QImage();
    m_overviewScale = m_dib ? double(m_overview.width()) / m_dib->dib_width() : 0;
    if (m_fit) m_zoom = fitZoom();
    updateScrollBars();
    viewport()->update();
    emit zoomChanged(m_zoom);
}

double SuperCanvas::fitZoom() const
{
    if (!m_dib) return 1;
    const QSize box = maximumViewportSize();
    const double z = std::min(double(box.width()) / m_dib->dib_width(),
                              double(box.height()) / m_dib->dib_height());
    return std::clamp(z, zoomSteps().front(), 1.0);
}

void SuperCanvas::fit()
{
    m_fit = true;
    m_zoom = fitZoom();
    updateScrollBars();
    viewport()->update();
    emit zoomChanged(m_zoom);
}

void SuperCanvas::setZoom(double zoom)
{
    zoomAt(zoom, QPointF(viewport()->width() / 2.0, viewport()->height() / 2.0));
}

double SuperCanvas::nextZoomStep(double zoom, bool in)
{
    const auto &steps = zoomSteps();
    if (in) {
        for (double step : steps)
            if (step > zoom * 1.001) return step;
        return steps.back();
    }
    for (auto it = steps.rbegin(); it != steps.rend(); ++it)
        if (*it < zoom * 0.999) return *it;
    return steps.front();
}

void SuperCanvas::zoomIn() { setZoom(nextZoomStep(m_zoom, true)); }

void SuperCanvas::zoomOut() { setZoom(nextZoomStep(m_zoom, false)); }

void SuperCanvas::zoomAt(double zoom, QPointF anchor)
{
    zoom = std::clamp(zoom, zoomSteps().front(), zoomSteps().back());
    const QPointF picturePoint = (anchor - QPointF(origin())) / m_zoom;
    m_fit = false;
    m_zoom = zoom;
    updateScrollBars();
    horizontalScrollBar()->setValue(int(std::lround(picturePoint.x() * zoom - anchor.x())));
    verticalScrollBar()->setValue(int(std::lround(picturePoint.y() * zoom - anchor.y())));
    viewport()->update();
    emit zoomChanged(m_zoom);
}

void SuperCanvas::updateScrollBars()
{
    const QSize whole = m_dib ? zoomedSize(*m_dib, m_zoom) : QSize();
    const QSize view = viewport()->size();
    horizontalScrollBar()->setRange(0, std::max(0, whole.width() - view.width()));
    verticalScrollBar()->setRange(0, std::max(0, whole.height() - view.height()));
    horizontalScrollBar()->setPageStep(view.width());
    verticalScrollBar()->setPageStep(view.height());
    horizontalScrollBar()->setSingleStep(std::max(1, view.width() / 20));
    verticalScrollBar()->setSingleStep(std::max(1, view.height() / 20));
}

QPoint SuperCanvas::origin() const
{
    const QSize whole = m_dib ? zoomedSize(*m_dib, m_zoom) : QSize();
    const QSize view = viewport()->size();
    const int x = whole.width() < view.width() ? (view.width() - whole.width()) / 2
                                               : -horizontalScrollBar()->value();
    const int y = whole.height() < view.height() ? (view.height() - whole.height()) / 2
                                                 : -verticalScrollBar()->value();
    return {x, y};
}

void SuperCanvas::paintEvent(QPaintEvent *event)
{
    QPainter p(viewport());
    p.fillRect(event->rect(), palette().color(QPalette::Dark));
    if (!m_dib) return;
    const QPoint o = origin();
    const QRect visible =
        event->rect().translated(-o).intersected(QRect(QPoint(0, 0), zoomedSize(*m_dib, m_zoom)));
    if (visible.isEmpty()) return;
    if (m_zoom <= m_overviewScale && !m_overview.isNull()) {
        // Below the overview's scale the view is drawn from the overview, smoothly.
        const double k = m_overviewScale / m_zoom;
        const QRectF source(visible.x() * k, visible.y() * k, visible.width() * k,
                            visible.height() * k);
        p.setRenderHint(QPainter::SmoothPixmapTransform);
        p.drawImage(QRectF(visible.translated(o)), m_overview, source);
        return;
    }
    p.drawImage(visible.topLeft() + o, renderSurfacePart(*m_dib, visible, m_zoom));
}

void SuperCanvas::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    if (m_fit) {
        m_zoom = fitZoom();
        emit zoomChanged(m_zoom);
    }
    updateScrollBars();
}

void SuperCanvas::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        QAbstractScrollArea::wheelEvent(event);
        return;
    }
    const int delta = event->angleDelta().y();
    if (delta == 0) return;
    zoomAt(nextZoomStep(m_zoom, delta > 0), event->position());
    event->accept();
}

void SuperCanvas::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Plus:
        zoomIn();
        return;
    case Qt::Key_Minus:
        zoomOut();
        return;
    default:
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void SuperCanvas::scrollContentsBy(int, int) { viewport()->update(); }

} // namespace tf::ui
