#pragma once
// frmGamma, the general filter dialog: the picture before and after (a reduced copy when the
// picture is larger than the preview area), up to three sliders, two colour fields or the
// channel mixer, a position prompt, and Vorschau / OK / Abbrechen. The picture after zooms
// with BtnZoom "+" and "-" and moves with its scroll bars (filters/previewzoom.h). It is set up from the row
// of the filter table and drives a FilterDialogRun: the small preview follows every change at
// once; "Vorschau" and OK compute the full result on the picture; Abbrechen gives the picture
// back exactly.

#include "filters/filterargs.h"
#include "filters/previewzoom.h"

#include <QDialog>
#include <QImage>
#include <array>
#include <memory>

class QCheckBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QScrollBar;
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
    // BtnZoom "+" and "-" and the scroll bars of the picture after; null where the dialog
    // offers no picture after.
    QPushButton *zoomButton(bool in) const { return in ? m_zoomIn : m_zoomOut; }
    QScrollBar *scrollBar(Qt::Orientation o) const { return o == Qt::Horizontal ? m_hScroll : m_vScroll; }
    const PreviewZoom &zoom() const { return m_zoom; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void reject() override;

private:
    void sliderChanged();
    void updateLabels();
    void refreshSmallPreview();
    void zoomBy(bool in);
    // frmGetSteps for slider i: its value typed exactly.
    void askSliderValue(int i);
    void updateScrollBars();

    Session &m_session;
    const FilterRow &m_row;
    std::unique_ptr<FilterDialogRun> m_run;
    QImage m_reduced;
    double m_scale = 1.0;
    QImage m_previewImage;
    PreviewZoom m_zoom;
    bool m_ready = false; // set-up finished: slider events count from now on
    bool m_previewed = false;
    bool m_cancelled = true;
    QPoint m_position{-1, -1};

    QLabel *m_picOriginal = nullptr;
    QLabel *m_picPreview = nullptr;
    QPushButton *m_zoomIn = nullptr;
    QPushButton *m_zoomOut = nullptr;
    QScrollBar *m_hScroll = nullptr;
    QScrollBar *m_vScroll = nullptr;
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
