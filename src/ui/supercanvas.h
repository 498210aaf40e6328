#pragma once
// The picture area of the Superformat viewer: a surface shown scaled to fit or at a zoom,
// with scroll bars, drawn part by part straight from the surface (core/surfacepreview.h), so
// that a 14000 x 14000 picture is never copied whole for the screen.
//
// Zoom: "+" and "-" and the mouse wheel with Ctrl step through the zoom steps (the point
// under the mouse, or the middle of the view, stays where it is); fit() shows the whole
// picture in the window and keeps it so while the window is resized; setZoom(1) is 100 %.

#include "core/dibsection.h"

#include <QAbstractScrollArea>
#include <QImage>
#include <vector>

namespace tf::ui {

class SuperCanvas : public QAbstractScrollArea {
    Q_OBJECT
public:
    explicit SuperCanvas(QWidget *parent = nullptr);

    // The surface to show (borrowed; null shows nothing). Call again after the surface
    // changed: the overview is made anew.
    void setSurface(const cDIBSection *dib);

    double zoom() const { return m_zoom; }
    bool fitting() const { return m_fit; }
    // The zoom that shows the whole picture in the viewport (at most 1).
    double fitZoom() const;
    void fit();
    void setZoom(double zoom);
    void zoomIn();
    void zoomOut();

    // The zoom steps, from 1/64 to 8.
    static const std::vector<double> &zoomSteps();
    // The next step above (in) or below `zoom`; the last step at either end.
    static double nextZoomStep(double zoom, bool in);

signals:
    void zoomChanged(double zoom);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    // Sets the zoom keeping the zoomed point under `anchor` (viewport coordinates) in place.
    void zoomAt(double zoom, QPointF anchor);
    void updateScrollBars();
    // The top left of the zoomed picture in the viewport (centred when it is smaller).
    QPoint origin() const;

    const cDIBSection *m_dib = nullptr;
    QImage m_overview;         // the whole picture reduced, for the zooms below its scale
    double m_overviewScale = 0;
    double m_zoom = 1;
    bool m_fit = true;
};

} // namespace tf::ui
