#pragma once
// The dialogs of the picture commands: "Bildgröße" (a new size, the proportion kept when asked,
// smooth resampling or the nearest pixel) and "Arbeitsfläche" (a new canvas size and where the
// picture stands on it, the new room in the background colour).

#include <QDialog>
#include <array>

class QCheckBox;
class QComboBox;
class QRadioButton;
class QSpinBox;

namespace tf::ui {

class PictureSizeDialog : public QDialog {
    Q_OBJECT
public:
    enum class Mode { PictureSize, Canvas };
    PictureSizeDialog(Mode mode, int width, int height, QWidget *parent = nullptr);

    int pictureWidth() const;
    int pictureHeight() const;
    // Picture size: true for smooth resampling (Resample), false for the nearest pixel (Resize).
    bool smooth() const;
    // Canvas: 0 top left .. 8 bottom right, row by row.
    int anchor() const;

    // For tests.
    QSpinBox *widthBox() const { return m_width; }
    QSpinBox *heightBox() const { return m_height; }
    QCheckBox *keepProportion() const { return m_keep; }

private:
    void widthChanged();
    void heightChanged();

    Mode m_mode;
    double m_heightPerWidth;
    QSpinBox *m_width = nullptr;
    QSpinBox *m_height = nullptr;
    QCheckBox *m_keep = nullptr;
    QComboBox *m_method = nullptr;
    std::array<QRadioButton *, 9> m_anchor{};
};

} // namespace tf::ui
