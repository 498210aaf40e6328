#pragma once
// The colour dialog `frmColorDialog`, a dock beside the picture: the colour chart, the grey
// chart and the palette strip `picPal256` (click to pick: left the foreground, Shift also the
// border, Ctrl the border alone, right the background), the fields of the foreground,
// background and border colour (double click: the system's colour chooser; right click on
// foreground or background: the text colours), switch and "=", the colour under the mouse with
// its read-out, the switches of random colours and values, the palette lock, the two duotone
// boxes and the progress bar of long paints.
//
// What a click does to the colour state is the engine's (paint/colourdialog.h); the dock reads
// the mouse and shows the state afterwards.

#include "core/colour.h"
#include "core/picturebox.h"
#include "paint/colourdialog.h"

#include <QDockWidget>
#include <functional>

class QCheckBox;
class QGroupBox;
class QLabel;
class QProgressBar;
class QToolButton;

namespace tf {
class Session;
}

namespace tf::ui {

class ColourField;
class PictureView;

class ColourDialogDock : public QDockWidget {
    Q_OBJECT
public:
    explicit ColourDialogDock(Session &session, QWidget *parent = nullptr);
    ~ColourDialogDock() override;

    // Shows the colour state as it stands (after a palette load, a paint, the command line).
    void refreshFromState();
    // The strip that shows Pal256, for the palette loads.
    PictureBox &palStrip() { return m_picPal256; }
    QProgressBar *progressBar() const { return ProgressBar1; }

    // Called with the foreground after every change of it (the text dialog shows it).
    std::function<void(ColorLong)> DispDialogColor;

    // The charts' sizes.
    static constexpr int ChartWidth = 256;
    static constexpr int ChartHeight = 112;

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void connectChart(PictureView *view, PaletteChart chart);
    void pick(PaletteChart chart, PictureBox &picture, Qt::MouseButton button,
              Qt::KeyboardModifiers modifiers, QPoint at);
    void showColourUnderMouse(PictureBox &picture, QPoint at);
    void clearColourUnderMouse();
    void foregroundChanged();
    void chooseColour(int field); // 0 fore, 1 back, 2 border

    Session &m_session;
    PictureBox m_picPalette{QStringLiteral("picPalette")};
    PictureBox m_picPaletteGrey{QStringLiteral("picPaletteGrey")};
    PictureBox m_picPal256{QStringLiteral("picPal256")};
    PictureView *m_paletteView = nullptr;
    PictureView *m_greyView = nullptr;
    PictureView *m_stripView = nullptr;
    ColourField *picForeColor = nullptr;
    ColourField *picBackColor = nullptr;
    ColourField *clkBorderColor = nullptr;
    QToolButton *picColoSwitch = nullptr;
    QToolButton *picColoIdent = nullptr;
    QLabel *picTempColor = nullptr;
    QLabel *lblTextColor = nullptr;
    QCheckBox *XRandomColors = nullptr;
    QCheckBox *XRandomValues = nullptr;
    QCheckBox *XLockPalette = nullptr;
    QGroupBox *frameDuocolors = nullptr;
    QCheckBox *XDuotones[2] = {nullptr, nullptr};
    QProgressBar *ProgressBar1 = nullptr;
    QLabel *m_foreLabel = nullptr;
    QLabel *m_backLabel = nullptr;
    QLabel *m_borderLabel = nullptr;
    bool m_showing = false;
};

} // namespace tf::ui
