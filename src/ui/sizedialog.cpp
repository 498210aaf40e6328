#include "ui/sizedialog.h"

#include "core/numeric.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>
#include <cmath>

namespace tf::ui {

const SizeDialog::Proportion *SizeDialog::proportions(int *count)
{
    static const Proportion table[] = {
        {QT_TRANSLATE_NOOP("tf::ui::SizeDialog", "frei"), 0.0},
        {QT_TRANSLATE_NOOP("tf::ui::SizeDialog", "quadratisch 1:1"), 1.0},
        {QT_TRANSLATE_NOOP("tf::ui::SizeDialog", "quer 4:3"), 3.0 / 4.0},
        {QT_TRANSLATE_NOOP("tf::ui::SizeDialog", "quer 3:2"), 2.0 / 3.0},
        {QT_TRANSLATE_NOOP("tf::ui::SizeDialog", "quer 16:9"), 9.0 / 16.0},
        {QT_TRANSLATE_NOOP("tf::ui::SizeDialog", "hoch 3:4"), 4.0 / 3.0},
        {QT_TRANSLATE_NOOP("tf::ui::SizeDialog", "hoch 2:3"), 3.0 / 2.0},
        {QT_TRANSLATE_NOOP("tf::ui::SizeDialog", "hoch DIN (1:1,414)"), 1.41421356},
    };
    *count = int(std::size(table));
    return table;
}

SizeDialog::SizeDialog(int proportion, int width, int height, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmNewSize"));
    auto *form = new QFormLayout(this);
    m_proportion = new QComboBox(this);
    m_proportion->setObjectName(QStringLiteral("cmbProportion"));
    int count = 0;
    proportions(&count);
    for (int i = 0; i < count; ++i)
        m_proportion->addItem(QString());
    m_width = new QSpinBox(this);
    m_height = new QSpinBox(this);
    m_width->setObjectName(QStringLiteral("txtWidth"));
    m_height->setObjectName(QStringLiteral("txtHeight"));
    for (QSpinBox *s : {m_width, m_height})
        s->setRange(MinSide, MaxSide);
    m_width->setValue(width);
    m_height->setValue(height);
    m_proportion->setCurrentIndex(proportion >= 0 && proportion < count ? proportion : 0);
    form->addRow(tr("Seitenverhältnis:"), m_proportion);
    form->addRow(tr("Breite:"), m_width);
    form->addRow(tr("Höhe:"), m_height);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
    connect(m_proportion, &QComboBox::currentIndexChanged, this, &SizeDialog::followWidth);
    connect(m_width, &QSpinBox::valueChanged, this, &SizeDialog::followWidth);
    retranslate();
    followWidth();
}

void SizeDialog::retranslate()
{
    setWindowTitle(tr("Neues Bild"));
    int count = 0;
    const Proportion *table = proportions(&count);
    for (int i = 0; i < count; ++i)
        m_proportion->setItemText(i, tr(table[i].caption));
    for (QSpinBox *s : {m_width, m_height})
        s->setSuffix(tr(" Pixel"));
}

void SizeDialog::followWidth()
{
    int count = 0;
    const Proportion &p = proportions(&count)[std::max(0, m_proportion->currentIndex())];
    m_height->setEnabled(p.heightPerWidth == 0.0);
    if (p.heightPerWidth == 0.0) return;
    // A height past the limit takes the width down with it, so the proportion holds.
    int w = m_width->value();
    int h = CLng(w * p.heightPerWidth);
    if (h > MaxSide) {
        w = CLng(MaxSide / p.heightPerWidth);
        h = MaxSide;
        const QSignalBlocker block(m_width);
        m_width->setValue(w);
    }
    m_height->setValue(std::clamp(h, int(MinSide), int(MaxSide)));
}

int SizeDialog::proportion() const
{
    return m_proportion->currentIndex();
}
int SizeDialog::pictureWidth() const { return m_width->value(); }
int SizeDialog::pictureHeight() const { return m_height->value(); }

} // namespace tf::ui
