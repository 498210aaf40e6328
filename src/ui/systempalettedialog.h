#pragma once
// The chooser of the system palettes: each palette with its name and its colours as a strip.

#include <QDialog>

class QListWidget;

namespace tf::ui {

class SystemPaletteDialog : public QDialog {
    Q_OBJECT
public:
    explicit SystemPaletteDialog(QWidget *parent = nullptr);
    // The palette chosen (from 1), 0 when the dialog was cancelled.
    int chosen() const;

    // Shows the chooser and answers the palette chosen, 0 when cancelled.
    static int ShowDialog(QWidget *parent);

private:
    QListWidget *m_list;
};

} // namespace tf::ui
