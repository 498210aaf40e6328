#pragma once
// The size dialog of a new picture in a free format: width and height in pixels.

#include <QDialog>

class QSpinBox;

namespace tf::ui {

class SizeDialog : public QDialog {
    Q_OBJECT
public:
    SizeDialog(int width, int height, QWidget *parent = nullptr);
    int pictureWidth() const;
    int pictureHeight() const;

    // The largest side a picture on screen may have; larger pictures are Superformat work.
    static constexpr int MaxSide = 4000;

private:
    QSpinBox *m_width;
    QSpinBox *m_height;
};

} // namespace tf::ui
