#include "ui/picimportdialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tf::ui {

PicImportDialog::PicImportDialog(QSize pictureSize, const ImportChoice &start, QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Bild anpassen"));
    auto *layout = new QVBoxLayout(this);
    lblWH = new QLabel(QStringLiteral("W/H= %1 / %2").arg(pictureSize.width()).arg(pictureSize.height()));
    layout->addWidget(lblWH);

    auto *group = new QButtonGroup(this);
    auto *grid = new QGridLayout;
    optPicFormat[0] = new QRadioButton(tr("Grössenanpassung"));
    txtValue = new QSpinBox;
    txtValue->setRange(1, 1000);
    txtValue->setSuffix(QStringLiteral(" %"));
    txtValue->setValue(start.Prozent_Wert);
    optPicFormat[1] = new QRadioButton(tr("Automatisch einpassen ( mit Verzerrung )"));
    optPicFormat[2] = new QRadioButton(tr("Seitenverhältnis beibehalten und automatisch anpassen"));
    for (int i = 0; i < 3; ++i) {
        group->addButton(optPicFormat[i], i);
        grid->addWidget(optPicFormat[i], i, 0);
    }
    grid->addWidget(txtValue, 0, 1);
    layout->addLayout(grid);
    optPicFormat[std::clamp(start.Opt_Wert, 0, 2)]->setChecked(true);
    txtValue->setEnabled(start.Opt_Wert == ImportChoice::Percent);
    connect(optPicFormat[0], &QRadioButton::toggled, txtValue, &QSpinBox::setEnabled);

    XAAliasing = new QCheckBox(tr("Anti-Aliasing"));
    XAAliasing->setChecked(start.antiAlias);
    layout->addWidget(XAAliasing);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

ImportChoice PicImportDialog::choice() const
{
    ImportChoice c;
    for (int i = 0; i < 3; ++i)
        if (optPicFormat[i]->isChecked())
            c.Opt_Wert = i;
    c.Prozent_Wert = txtValue->value();
    c.antiAlias = XAAliasing->isChecked();
    c.Cancelled = result() != QDialog::Accepted;
    return c;
}

} // namespace tf::ui
