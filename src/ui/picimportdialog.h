#pragma once
// frmPicImport ("Bild anpassen"): how an imported picture is fitted onto the work picture.
// Its answer is an ImportChoice (Prozent_Wert, Opt_Wert, Cancelled).

#include "files/loadplace.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QRadioButton;
class QSpinBox;

namespace tf::ui {

class PicImportDialog : public QDialog {
    Q_OBJECT
public:
    // `pictureSize` is the imported picture's, shown as "W/H= w / h".
    PicImportDialog(QSize pictureSize, const ImportChoice &start, QWidget *parent = nullptr);
    ImportChoice choice() const;

private:
    QRadioButton *optPicFormat[3]{};
    QSpinBox *txtValue = nullptr; // with its arrows as vscroll
    QCheckBox *XAAliasing = nullptr;
    QLabel *lblWH = nullptr;
};

} // namespace tf::ui
