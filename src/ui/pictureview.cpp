#include "ui/pictureview.h"

#include "core/picturebox.h"
#include "core/workspace.h"
#include "tools/toolengine.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>

namespace tf::ui {

PictureView::PictureView(PictureBox &picture, QWidget *parent) : QWidget(parent), m_picture(picture)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    m_picture.setChangedHook([this](const QRect &r) {
        if (size() != QSize(m_picture.Width(), m_picture.Height()))
            syncSize();
        update(r);
    });
    syncSize();
}

PictureView::~PictureView()
{
    m_picture.setChangedHook({});
    if (m_ws) {
        m_ws->PicSelect.setChangedHook({});
        m_ws->picSelectC.setChangedHook({});
    }
}

void PictureView::showTools(Workspace &ws, ToolEngine &tools)
{
    m_ws = &ws;
    m_tools = &tools;
    for (PictureBox *sel : {&ws.PicSelect, &ws.picSelectC})
        sel->setChangedHook([this, sel](const QRect &r) {
            const QRect place = Selections::placeOf(*sel);
            update(r.isEmpty() ? place : r.translated(place.topLeft()));
        });
    // The frame of a shown selection blinks, as marching dashes.
    m_blink = new QTimer(this);
    m_blink->setInterval(350);
    connect(m_blink, &QTimer::timeout, this, &PictureView::blink);
    m_blink->start();
}

void PictureView::blink()
{
    for (PictureBox *sel : {&m_ws->PicSelect, &m_ws->picSelectC})
        if (sel->Visible()) {
            m_phase = (m_phase + 1) % 2;
            const QRect frame = Selections::placeOf(*sel).adjusted(-1, -1, 1, 1);
            update(QRegion(frame).subtracted(QRegion(frame.adjusted(2, 2, -2, -2))));
        }
}

void PictureView::paintTools(QPainter &p)
{
    for (PictureBox *sel : {&m_ws->PicSelect, &m_ws->picSelectC}) {
        if (!sel->Visible()) continue;
        const QRect place = Selections::placeOf(*sel);
        p.save();
        if (sel == &m_ws->picSelectC)
            p.setClipRegion(Selections::ellipseOf(place.width(), place.height()).pixels.translated(place.topLeft()),
                            Qt::IntersectClip);
        p.drawImage(place.topLeft(), sel->screenImage());
        p.restore();
        // The frame: a white line under black dashes that march with the blink.
        const QRectF frame = QRectF(place).adjusted(-0.5, -0.5, -0.5, -0.5);
        p.setPen(QPen(Qt::white, 1));
        p.setBrush(Qt::NoBrush);
        QPen dash(Qt::black, 1, Qt::CustomDashLine);
        dash.setDashPattern({4, 4});
        dash.setDashOffset(m_phase * 4);
        for (const QPen &pen : {p.pen(), dash}) {
            p.setPen(pen);
            if (sel == &m_ws->picSelectC) p.drawEllipse(frame);
            else p.drawRect(frame);
        }
    }
    const RubberBands &b = m_tools->rubberBands();
    QPen white(Qt::white, 1);
    QPen dash(Qt::black, 1, Qt::DashLine);
    auto both = [&](auto draw) {
        for (const QPen &pen : {white, dash}) {
            p.setPen(pen);
            draw();
        }
    };
    p.setBrush(Qt::NoBrush);
    if (b.selectVisible) {
        const QRectF r = QRectF(b.shapeSelect).adjusted(0.5, 0.5, -0.5, -0.5);
        both([&] { b.selectEllipse ? p.drawEllipse(r) : p.drawRect(r); });
    }
    if (b.squareVisible) {
        const QRectF r = QRectF(b.shSquare).adjusted(0.5, 0.5, 0.5, 0.5);
        both([&] { b.squareShape == RubberBands::Shape::Rectangle ? p.drawRect(r) : p.drawEllipse(r); });
    }
    if (b.lineVisible)
        both([&] { p.drawLine(QLineF(b.line1).translated(0.5, 0.5)); });
    if (b.sprayVisible) {
        const double r = b.sprayDiameter / 2.0;
        both([&] { p.drawEllipse(QPointF(b.sprayAt) + QPointF(0.5, 0.5), r, r); });
    }
}

void PictureView::syncSize()
{
    setFixedSize(m_picture.Width(), m_picture.Height());
    update();
}

QSize PictureView::sizeHint() const { return QSize(m_picture.Width(), m_picture.Height()); }

void PictureView::paintEvent(QPaintEvent *event)
{
    QPainter p(this);
    const QRect r = event->rect();
    p.drawImage(r.topLeft(), m_picture.screenImage(), r);
    if (m_ws) paintTools(p);
}

} // namespace tf::ui

namespace tf::ui {

void PictureView::mousePressEvent(QMouseEvent *event)
{
    emit mousePressed(event->button(), event->modifiers(), event->position().toPoint());
}

void PictureView::mouseMoveEvent(QMouseEvent *event)
{
    emit mouseMoved(event->buttons(), event->modifiers(), event->position().toPoint());
}

void PictureView::mouseReleaseEvent(QMouseEvent *event)
{
    emit mouseReleased(event->button(), event->modifiers(), event->position().toPoint());
}

void PictureView::mouseDoubleClickEvent(QMouseEvent *event)
{
    emit mouseDoubleClicked(event->button(), event->position().toPoint());
}

void PictureView::leaveEvent(QEvent *event)
{
    emit mouseLeft();
    QWidget::leaveEvent(event);
}

} // namespace tf::ui
