#pragma once
// The picture frame's content: shows a picture control pixel for pixel, unscaled, and repaints
// the parts the control reports as changed. Mouse input comes out in picture coordinates.

#include <QWidget>

namespace tf {
class PictureBox;
}

namespace tf::ui {

class PictureView : public QWidget {
    Q_OBJECT
public:
    explicit PictureView(PictureBox &picture, QWidget *parent = nullptr);
    ~PictureView() override;

    // Takes the control's size (after the workspace changed it).
    void syncSize();
    QSize sizeHint() const override;
    PictureBox &picture() { return m_picture; }

signals:
    void mousePressed(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPoint at);
    // A move, also without a button (the view tracks the mouse).
    void mouseMoved(Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers, QPoint at);
    void mouseReleased(Qt::MouseButton button, Qt::KeyboardModifiers modifiers, QPoint at);
    void mouseDoubleClicked(Qt::MouseButton button, QPoint at);
    void mouseLeft();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    PictureBox &m_picture;
};

} // namespace tf::ui
