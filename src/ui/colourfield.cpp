#include "ui/colourfield.h"

#include <QMouseEvent>
#include <QPainter>

namespace tf::ui {

ColourField::ColourField(const QString &text, QWidget *parent) : QFrame(parent), m_text(text)
{
    setFrameShape(QFrame::Panel);
    setFrameShadow(QFrame::Sunken);
    setLineWidth(2);
    setMinimumSize(sizeHint());
}

void ColourField::setColour(ColorLong c)
{
    m_colour = c;
    setToolTip(QStringLiteral("R:%1 G:%2 B:%3").arg(RedOf(c)).arg(GreenOf(c)).arg(BlueOf(c)));
    update();
}

void ColourField::paintEvent(QPaintEvent *event)
{
    {
        QPainter p(this);
        p.fillRect(contentsRect(), toQColor(m_colour));
        if (!m_text.isEmpty()) {
            // The letter in black or white, whichever stands out on the colour.
            const int lum = (RedOf(m_colour) * 30 + GreenOf(m_colour) * 59 + BlueOf(m_colour) * 11) / 100;
            p.setPen(lum > 128 ? Qt::black : Qt::white);
            p.drawText(contentsRect(), Qt::AlignCenter, m_text);
        }
    }
    QFrame::paintEvent(event);
}

void ColourField::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        emit doubleClicked();
}

void ColourField::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton)
        emit rightClicked();
}

} // namespace tf::ui
