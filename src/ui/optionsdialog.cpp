#include "ui/optionsdialog.h"

#include "core/tempfiles.h"

#include <QCheckBox>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QVBoxLayout>

namespace tf::ui {

OptionsDialog::OptionsDialog(const SystemOptions &options,
                             std::function<void(const SystemOptions &)> apply, QWidget *parent)
    : QDialog(parent), m_apply(std::move(apply))
{
    setObjectName(QStringLiteral("frmOptions"));
    auto *layout = new QVBoxLayout(this);
    tbsOptions = new QTabWidget(this);
    layout->addWidget(tbsOptions);

    m_pageSundry = new QWidget(tbsOptions);
    auto *sundry = new QVBoxLayout(m_pageSundry);
    XKillClipboard = new QCheckBox(m_pageSundry);
    sundry->addWidget(XKillClipboard);
    m_fixFrame = new QGroupBox(m_pageSundry);
    auto *fix = new QFormLayout(m_fixFrame);
    XKillFixings = new QCheckBox(m_fixFrame);
    fix->addRow(XKillFixings);
    txtFixNumber = new QSpinBox(m_fixFrame);
    txtFixNumber->setRange(1, MaxFixNumber);
    m_fixNumberLabel = new QLabel(m_fixFrame);
    fix->addRow(m_fixNumberLabel, txtFixNumber);
    auto *pathRow = new QHBoxLayout;
    txtPfad = new QLineEdit(m_fixFrame);
    BtnGetPath = new QPushButton(QStringLiteral("..."), m_fixFrame);
    BtnGetPath->setMaximumWidth(36);
    pathRow->addWidget(txtPfad);
    pathRow->addWidget(BtnGetPath);
    m_pathLabel = new QLabel(m_fixFrame);
    fix->addRow(m_pathLabel, pathRow);
    sundry->addWidget(m_fixFrame);
    sundry->addStretch();
    tbsOptions->addTab(m_pageSundry, QString());

    frameLanaguage = new QWidget(tbsOptions);
    auto *lang = new QVBoxLayout(frameLanaguage);
    optLanguage[0] = new QRadioButton(QStringLiteral("Deutsch"), frameLanaguage);
    optLanguage[1] = new QRadioButton(QStringLiteral("English"), frameLanaguage);
    lang->addWidget(optLanguage[0]);
    lang->addWidget(optLanguage[1]);
    lang->addStretch();
    tbsOptions->addTab(frameLanaguage, QString());

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    cmdOK = new QPushButton(this);
    cmdApply = new QPushButton(this);
    cmdCancel = new QPushButton(this);
    cmdOK->setDefault(true);
    buttons->addWidget(cmdOK);
    buttons->addWidget(cmdApply);
    buttons->addWidget(cmdCancel);
    layout->addLayout(buttons);

    XKillClipboard->setChecked(options.killClipboard);
    XKillFixings->setChecked(options.killFixings);
    txtFixNumber->setValue(options.fixNumber);
    txtPfad->setText(QDir::toNativeSeparators(options.tempPath));
    optLanguage[options.language == Language::German ? 0 : 1]->setChecked(true);

    connect(cmdOK, &QPushButton::clicked, this, [this] {
        if (applyOptions())
            accept();
    });
    connect(cmdApply, &QPushButton::clicked, this, [this] { applyOptions(); });
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(BtnGetPath, &QPushButton::clicked, this, &OptionsDialog::browse);
    retranslate();
}

SystemOptions OptionsDialog::options() const
{
    SystemOptions o;
    o.killClipboard = XKillClipboard->isChecked();
    o.killFixings = XKillFixings->isChecked();
    o.fixNumber = txtFixNumber->value();
    o.tempPath = QDir::fromNativeSeparators(txtPfad->text().trimmed());
    o.language = optLanguage[1]->isChecked() ? Language::English : Language::German;
    return o;
}

bool OptionsDialog::applyOptions()
{
    const SystemOptions o = options();
    // A folder that cannot be made has been reported; the dialog stays open to correct it.
    if (!o.tempPath.isEmpty() && !Check_CreateDir(o.tempPath))
        return false;
    if (m_apply)
        m_apply(o);
    return true;
}

void OptionsDialog::browse()
{
    // The folder chooser keeps its own title in both languages.
    const QString dir = QFileDialog::getExistingDirectory(this, QStringLiteral("Browse for Folder"),
                                                          txtPfad->text());
    if (!dir.isEmpty())
        txtPfad->setText(QDir::toNativeSeparators(dir));
}

void OptionsDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

void OptionsDialog::retranslate()
{
    setWindowTitle(tr("Systemoptionen"));
    tbsOptions->setTabText(0, tr(" Sonstige "));
    tbsOptions->setTabText(1, tr(" Sprache "));
    XKillClipboard->setText(tr("Zwischenablage beim Beenden leeren"));
    m_fixFrame->setTitle(tr(" Fixieren / Restaurieren "));
    XKillFixings->setText(tr("Fixierungen beim Beenden löschen"));
    m_fixNumberLabel->setText(tr("Anzahl der Fixierungen:"));
    m_pathLabel->setText(tr("Verzeichnis für temporäre Dateien:"));
    cmdOK->setText(tr("OK"));
    cmdApply->setText(tr("Übernehmen"));
    cmdCancel->setText(tr("Abbrechen"));
}

} // namespace tf::ui
