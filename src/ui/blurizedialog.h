#pragma once
// The dialog of a routine of the 3-D Blurize family: its sliders (from the family's table), a
// small preview of the result on reduced copies of the picture now and the picture before, and
// OK / Abbrechen. OK runs the routine on Bild with undo.

#include "filters/filterargs.h"

#include <QDialog>
#include <QImage>
#include <array>

class QLabel;
class QSlider;

namespace tf {
class Session;
struct BlurizeRow;
} // namespace tf

namespace tf::ui {

class BlurizeDialog : public QDialog {
    Q_OBJECT
public:
    // `before` is the picture before the last change at Bild's size.
    BlurizeDialog(Session &session, const BlurizeRow &row, const QImage &before,
                  QWidget *parent = nullptr);

    FilterArgs values() const;
    QSlider *slider(int i) const { return m_sliders[size_t(i)]; }
    QImage previewImage() const { return m_preview; }
    // OK: the routine on Bild; answers what Menu_Blurize answered.
    bool apply();

private:
    void refresh();

    Session &m_session;
    const BlurizeRow &m_row;
    QImage m_now, m_before, m_preview;
    QLabel *m_picture = nullptr;
    std::array<QSlider *, 3> m_sliders{};
    std::array<QLabel *, 3> m_labels{};
};

} // namespace tf::ui
