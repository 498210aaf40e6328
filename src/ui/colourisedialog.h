#pragma once
// frmColourise, "Hue/Sättigung": a hue strip to pick the hue from (it runs the sextants -1 to
// 5, red to red), the saturation slider, the chosen colour, "Monochrome", and Vorschau / OK /
// Abbrechen around a ColouriseRun.

#include "filters/colourcommand.h"

#include <QDialog>
#include <memory>

class QCheckBox;
class QLabel;
class QSlider;

namespace tf::ui {

class HueStrip;

class ColouriseDialog : public QDialog {
    Q_OBJECT
public:
    ColouriseDialog(Session &session, QWidget *parent = nullptr);
    ~ColouriseDialog() override;

    bool Cancelled() const { return m_cancelled; }
    bool Previewed() const { return m_previewed; }
    ColouriseValues values() const { return m_values; }
    void setHue(Single hue);
    void setSaturation(int percent);
    void cmdPreview();
    void cmdOK();
    void cmdCancel();

protected:
    void reject() override;

private:
    void changed();

    std::unique_ptr<ColouriseRun> m_run;
    ColouriseValues m_values;
    bool m_previewed = false;
    bool m_cancelled = true;
    HueStrip *m_picHue = nullptr;
    QSlider *m_scrollSaturation = nullptr;
    QLabel *m_lblscrollSaturation = nullptr;
    QLabel *m_picSelected = nullptr;
    QLabel *m_lblInfo = nullptr;
    QCheckBox *m_XMonochrome = nullptr;
};

} // namespace tf::ui
