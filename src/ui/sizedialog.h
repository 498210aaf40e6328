#pragma once
// The size dialog of a new picture in a free format: width and height in pixels, and a
// proportion that, once chosen, lets the height follow the width.

#include <QDialog>

class QComboBox;
class QSpinBox;

namespace tf::ui {

class SizeDialog : public QDialog {
    Q_OBJECT
public:
    // `proportion` is an index into proportions() (0: free).
    SizeDialog(int proportion, int width, int height, QWidget *parent = nullptr);
    int proportion() const;
    int pictureWidth() const;
    int pictureHeight() const;

    // The largest side a picture on screen may have; larger pictures are Superformat work.
    static constexpr int MaxSide = 4000;
    static constexpr int MinSide = 16;

    // The proportions offered: height per width, 0 for the free one.
    struct Proportion {
        const char *caption; // German source text
        double heightPerWidth;
    };
    static const Proportion *proportions(int *count);

private:
    void followWidth();
    void retranslate();

    QComboBox *m_proportion;
    QSpinBox *m_width;
    QSpinBox *m_height;
};

} // namespace tf::ui
