#pragma once
// The paint dialog `frmGrafDialog`, a dock beside the picture for the main window's life: the
// group's type list with previews, the general options of a paint (built from their control
// table), the picture format with its pixel size, and the buttons Paint (F5; Stop while a
// paint runs), "<<" / ">>", Clip, Fix and Restore.
//
// The dialog is thin: the engine's paint driver decides; the dock shows the engine's state
// (`GrafDialogState`: the button's caption, the chosen row) and passes clicks on.

#include <QDockWidget>

class QComboBox;
class QLabel;
class QListWidget;
class QPushButton;

#include "paint/grafdialog.h"

namespace tf {
class Session;
struct ControlKey;
}

namespace tf::ui {

class ControlPanelWidget;
class PreviewCache;

class GrafDialogDock : public QDockWidget {
    Q_OBJECT
public:
    GrafDialogDock(Session &session, PreviewCache &previews, QWidget *parent = nullptr);
    ~GrafDialogDock() override;

    QPushButton *paintButton() const { return BtnPaint; }
    // Shows the engine's state again (after the engine changed group, row or caption).
    void syncFromEngine();
    // Shows a control's new value (the model changed it).
    void controlChanged(const ControlKey &key);
    // Shows what the engine changed: the Paint button's caption, the chosen row, the list.
    void engineChanged(GrafDialogState::Change change);
    // While a paint runs the dialog's other controls are disabled.
    void setPaintRunning(bool running);

signals:
    void paintRequested();                 // BtnPaint
    void rollRequested(int index);         // BtnPaintRoll(0) "<<", (1) ">>"
    void clipRequested();                  // BtnClip
    void fixRequested();
    void restoreRequested();
    void groupChosen(int group);           // the group chooser
    void paintRunningChanged(bool running);

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void loadTypeList();
    void showPreview();
    void updatePixelSize();

    Session &m_session;
    PreviewCache &m_previews;
    QComboBox *m_groups = nullptr;
    QListWidget *ListBoxType = nullptr;
    QLabel *m_preview = nullptr;
    ControlPanelWidget *m_general = nullptr;
    QLabel *lblPixelSize = nullptr;
    // Under the Superformat fields: its size in pixels, centimetres and memory.
    QLabel *lblSuperSize = nullptr;
    QPushButton *BtnPaint = nullptr;
    QPushButton *BtnPaintRoll[2] = {nullptr, nullptr};
    QPushButton *BtnClip = nullptr;
    QPushButton *BtnFix = nullptr;
    QPushButton *BtnRestore = nullptr;
    bool m_loading = false;
};

} // namespace tf::ui
