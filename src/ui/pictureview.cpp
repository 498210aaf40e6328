#include "ui/pictureview.h"

#include "core/picturebox.h"

#include <QPaintEvent>
#include <QPainter>

namespace tf::ui {

PictureView::PictureView(PictureBox &picture, QWidget *parent) : QWidget(parent), m_picture(picture)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
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
