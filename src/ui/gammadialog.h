#pragma once
// frmGamma, the general filter dialog: the picture before and after (a reduced copy when the
// picture is larger than the preview area), up to three sliders, two colour fields or the
// channel mixer, a position prompt, and Vorschau / OK / Abbrechen. It is set up from the row
// of the filter table and drives a FilterDialogRun: the small preview follows every change at
// once; "Vorschau" and OK compute the full result on the picture; Abbrechen gives the picture
// back exactly.

#include "filters/filterargs.h"

#include <QDialog>
#include <QImage>
#include <array>
#include <memory>

class QCheckBox;
class QLabel;
class QRadioButton;
class QSlider;

namespace tf {
class Session;
class FilterDialogRun;
struct FilterRow;
} // namespace tf

namespace tf::ui {

class ColourField;

class GammaDialog : public QDialog {
    Q_OBJECT
public:
    GammaDialog(Session &session, const FilterRow &row, QWidget *parent = nullptr);
    ~GammaDialog() override;

    // The values as the controls hold them (SCR_Wert, COLOR_Wert, the mixer, the position).
    FilterArgs values() const;
    bool Previewed() const { return m_previewed; }
    bool Cancelled() const { return m_cancelled; }
    // For tests and the command buttons.
    QSlider *slider(int i) const { return m_sliders[size_t(i)]; }
    ColourField *colourField(int i) const { return m_colours[size_t(i)]; }
    void pickAt(const QPoint &pictureXY);
    void cmdPreview();
    void cmdOK();
    void cmdCancel();
    // The small preview as shown.
    QImage previewImage() const { return m_previewImage; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void reject() override;

private:
    void sliderChanged();
    void updateLabels();
    void refreshSmallPreview();

    Session &m_session;
    const FilterRow &m_row;
    std::unique_ptr<FilterDialogRun> m_run;
    QImage m_reduced;
    double m_scale = 1.0;
    QImage m_previewImage;
    bool m_ready = false; // set-up finished: slider events count from now on
    bool m_previewed = false;
    bool m_cancelled = true;
    QPoint m_position{-1, -1};

    QLabel *m_picOriginal = nullptr;
    QLabel *m_picPreview = nullptr;
    std::array<QSlider *, 3> m_sliders{};
    std::array<QLabel *, 3> m_labels{};
    std::array<ColourField *, 2> m_colours{};
    std::array<std::array<QRadioButton *, 3>, 3> m_source{};
    std::array<QCheckBox *, 3> m_invert{};
    std::array<QCheckBox *, 3> m_kill{};
    QCheckBox *m_maskResize = nullptr; // XMaskResize "Größe anpassen"
    QCheckBox *m_cleanBack = nullptr;  // XCleanBack "Hintergrund löschen"
};

} // namespace tf::ui
