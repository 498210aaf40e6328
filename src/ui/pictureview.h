#pragma once
// The picture frame's content: shows a picture control pixel for pixel, unscaled, and repaints
// the parts the control reports as changed.

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

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    PictureBox &m_picture;
};

} // namespace tf::ui
