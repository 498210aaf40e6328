#include "ui/sizedialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>

namespace tf::ui {

SizeDialog::SizeDialog(int width, int height, QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Neues Bild"));
    auto *form = new QFormLayout(this);
    m_width = new QSpinBox(this);
    m_height = new QSpinBox(this);
    for (QSpinBox *s : {m_width, m_height}) {
        s->setRange(16, MaxSide);
        s->setSuffix(tr(" Pixel"));
    }
    m_width->setValue(width);
    m_height->setValue(height);
    form->addRow(tr("Breite:"), m_width);
    form->addRow(tr("Höhe:"), m_height);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

int SizeDialog::pictureWidth() const { return m_width->value(); }
int SizeDialog::pictureHeight() const { return m_height->value(); }

} // namespace tf::ui
