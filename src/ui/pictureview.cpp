#include "ui/pictureview.h"

#include "core/picturebox.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

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

PictureView::~PictureView() { m_picture.setChangedHook({}); }

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
