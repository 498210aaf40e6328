#pragma once
// The picture frame's content: shows a picture control pixel for pixel, unscaled, and repaints
// the parts the control reports as changed. Mouse input comes out in picture coordinates.

#include <QWidget>

class QPainter;

namespace tf {
class PictureBox;
class ToolEngine;
class Workspace;
}

class QTimer;

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
    // Shows the workspace's selections floating over the picture, with their blinking frame,
    // and the tools' rubber bands; both borrowed for the view's life.
    void showTools(Workspace &ws, ToolEngine &tools);

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
    void blink();
    void paintTools(QPainter &p);

    PictureBox &m_picture;
    Workspace *m_ws = nullptr;
    ToolEngine *m_tools = nullptr;
    QTimer *m_blink = nullptr;
    int m_phase = 0;
};

} // namespace tf::ui
