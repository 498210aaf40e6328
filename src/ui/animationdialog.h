#pragma once
// "Animation speichern...": how many frames, at which rate, played how often; then the file.

#include <QDialog>

class QSpinBox;

namespace tf::ui {

struct AnimationChoice {
    int frames = 90;
    int fps = 30;
    int loops = 0; // 0: forever
};

class AnimationDialog : public QDialog {
    Q_OBJECT
public:
    explicit AnimationDialog(const AnimationChoice &start, QWidget *parent = nullptr);
    AnimationChoice choice() const;

private:
    QSpinBox *m_frames;
    QSpinBox *m_fps;
    QSpinBox *m_loops;
};

} // namespace tf::ui
