#include "ui/animationdialog.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QSpinBox>

namespace tf::ui {

AnimationDialog::AnimationDialog(const AnimationChoice &start, QWidget *parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAnimation"));
    setWindowTitle(tr("Animation speichern"));
    auto *form = new QFormLayout(this);
    m_frames = new QSpinBox(this);
    m_frames->setObjectName(QStringLiteral("txtFrames"));
    m_frames->setRange(1, 3000);
    m_frames->setValue(start.frames);
    m_fps = new QSpinBox(this);
    m_fps->setObjectName(QStringLiteral("txtFps"));
    m_fps->setRange(1, 60);
    m_fps->setValue(start.fps);
    m_loops = new QSpinBox(this);
    m_loops->setObjectName(QStringLiteral("txtLoops"));
    m_loops->setRange(0, 1000);
    m_loops->setSpecialValueText(tr("endlos"));
    m_loops->setValue(start.loops);
    form->addRow(tr("Bilder"), m_frames);
    form->addRow(tr("Bilder je Sekunde"), m_fps);
    form->addRow(tr("Wiederholungen"), m_loops);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    form->addRow(buttons);
}

AnimationChoice AnimationDialog::choice() const
{
    return {m_frames->value(), m_fps->value(), m_loops->value()};
}

} // namespace tf::ui
