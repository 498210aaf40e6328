#pragma once
// The matrix window of "The Matrix": a window of its own, full screen, in which columns of
// green glyphs fall, animated by a timer. Escape, a key or a click closes it; it deletes
// itself when closed.

#include "generators/matrixrain.h"

#include <QImage>
#include <QTimer>
#include <QWidget>
#include <memory>

namespace tf::ui {

class MatrixWindow : public QWidget {
public:
    MatrixWindow(int glyph, int speed, uint32_t seed, QWidget *parent = nullptr);

    // The frame shown now (for a look from tests).
    const QImage &frame() const { return m_frame; }
    // One step of the rain and a repaint, as the timer makes them.
    void tick();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    void rebuild();

    int m_glyph;
    int m_speed;
    uint32_t m_seed;
    std::unique_ptr<MatrixRain> m_rain;
    QImage m_frame;
    QTimer m_timer;
};

} // namespace tf::ui
