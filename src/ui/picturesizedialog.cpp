#include "ui/picturesizedialog.h"

#include "filters/geometry.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <cmath>

namespace tf::ui {

PictureSizeDialog::PictureSizeDialog(Mode mode, int width, int height, QWidget *parent)
    : QDialog(parent), m_mode(mode), m_heightPerWidth(double(height) / std::max(1, width))
{
    setObjectName(mode == Mode::PictureSize ? QStringLiteral("frmPictureSize")
                                            : QStringLiteral("frmCanvasSize"));
    setWindowTitle(mode == Mode::PictureSize ? tr("Bildgröße") : tr("Arbeitsfläche"));
    auto *form = new QFormLayout(this);
    m_width = new QSpinBox(this);
    m_height = new QSpinBox(this);
    m_width->setObjectName(QStringLiteral("txtWidth"));
    m_height->setObjectName(QStringLiteral("txtHeight"));
    for (QSpinBox *s : {m_width, m_height}) {
        s->setRange(1, MaxPictureSide);
        s->setSuffix(tr(" Pixel"));
    }
    m_width->setValue(width);
    m_height->setValue(height);
    form->addRow(tr("Breite:"), m_width);
    form->addRow(tr("Höhe:"), m_height);
    if (mode == Mode::PictureSize) {
        m_keep = new QCheckBox(tr("Seitenverhältnis beibehalten"), this);
        m_keep->setObjectName(QStringLiteral("XKeepProportion"));
        m_keep->setChecked(true);
        form->addRow(QString(), m_keep);
        m_method = new QComboBox(this);
        m_method->setObjectName(QStringLiteral("cmbMethod"));
        m_method->addItem(tr("Glätten (bilinear)"));
        m_method->addItem(tr("Nächster Bildpunkt"));
        form->addRow(tr("Verfahren:"), m_method);
        connect(m_width, &QSpinBox::valueChanged, this, &PictureSizeDialog::widthChanged);
        connect(m_height, &QSpinBox::valueChanged, this, &PictureSizeDialog::heightChanged);
    } else {
        auto *grid = new QGridLayout;
        for (int i = 0; i < 9; ++i) {
            auto *b = new QRadioButton(this);
            b->setObjectName(QStringLiteral("optAnchor%1").arg(i));
            b->setChecked(i == 4);
            grid->addWidget(b, i / 3, i % 3);
            m_anchor[size_t(i)] = b;
        }
        form->addRow(tr("Lage des Bildes:"), grid);
    }
    // The cancel button is our own: a standard one takes Qt's caption at a language change.
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    buttons->addButton(tr("Abbrechen"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

void PictureSizeDialog::widthChanged()
{
    if (!m_keep || !m_keep->isChecked()) return;
    const QSignalBlocker block(m_height);
    m_height->setValue(std::max(1, int(std::lround(m_width->value() * m_heightPerWidth))));
}

void PictureSizeDialog::heightChanged()
{
    if (!m_keep || !m_keep->isChecked()) return;
    const QSignalBlocker block(m_width);
    m_width->setValue(std::max(1, int(std::lround(m_height->value() / m_heightPerWidth))));
}

int PictureSizeDialog::pictureWidth() const
{
    return m_width->value();
}
int PictureSizeDialog::pictureHeight() const
{
    return m_height->value();
}
bool PictureSizeDialog::smooth() const
{
    return !m_method || m_method->currentIndex() == 0;
}

int PictureSizeDialog::anchor() const
{
    for (int i = 0; i < 9; ++i)
        if (m_anchor[size_t(i)] && m_anchor[size_t(i)]->isChecked()) return i;
    return 4;
}

} // namespace tf::ui
