#include "ui/matrixwindow.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace tf::ui {

MatrixWindow::MatrixWindow(int glyph, int speed, uint32_t seed, QWidget *parent)
    : QWidget(parent, Qt::Window), m_glyph(glyph), m_speed(speed), m_seed(seed)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setWindowTitle(QStringLiteral("The Matrix"));
    setCursor(Qt::BlankCursor);
    setFocusPolicy(Qt::StrongFocus);
    resize(712, 712);
    // About 25 frames a second; the speed sets how far the heads fall in each.
    m_timer.setInterval(40);
    connect(&m_timer, &QTimer::timeout, this, &MatrixWindow::tick);
    rebuild();
    m_timer.start();
}

void MatrixWindow::rebuild()
{
    const QSize size = this->size().expandedTo(QSize(1, 1));
    m_rain = std::make_unique<MatrixRain>(size.width(), size.height(), m_glyph, m_speed, m_seed);
    m_frame = QImage(size, QImage::Format_RGB32);
    m_rain->render(m_frame);
}

void MatrixWindow::tick()
{
    m_rain->step();
    m_rain->render(m_frame);
    update();
}

void MatrixWindow::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.drawImage(0, 0, m_frame);
}

void MatrixWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    rebuild();
}

void MatrixWindow::keyPressEvent(QKeyEvent *event)
{
    (void)event;
    close();
}

void MatrixWindow::mousePressEvent(QMouseEvent *event)
{
    (void)event;
    close();
}

} // namespace tf::ui
