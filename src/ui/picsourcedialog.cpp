#include "ui/picsourcedialog.h"

#include "generators/picmosaik.h"
#include "paint/session.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tf::ui {

PicSourceDialog::PicSourceDialog(Session &session, QWidget *parent)
    : QDialog(parent), m_session(session)
{
    setObjectName(QStringLiteral("frmDiaSetBildquelle"));
    setWindowTitle(tr("Bildquelle"));
    auto *layout = new QVBoxLayout(this);

    auto *kind = new QGroupBox(QCoreApplication::translate("Controls", " Quelle "), this);
    auto *kindRow = new QHBoxLayout(kind);
    m_file = new QRadioButton(QCoreApplication::translate("Controls", "Datei"), kind);
    m_file->setObjectName(QStringLiteral("optPicMosaikSource_0"));
    m_directory =
        new QRadioButton(QCoreApplication::translate("Controls", "Dateiverzeichnis"), kind);
    m_directory->setObjectName(QStringLiteral("optPicMosaikSource_1"));
    kindRow->addWidget(m_file);
    kindRow->addWidget(m_directory);
    kindRow->addStretch(1);
    layout->addWidget(kind);

    auto *pathRow = new QHBoxLayout;
    m_path = new QLineEdit(this);
    m_path->setObjectName(QStringLiteral("txtPicSource"));
    m_path->setMinimumWidth(420);
    auto *browseButton = new QPushButton(QStringLiteral("..."), this);
    browseButton->setObjectName(QStringLiteral("cmdBrowse"));
    pathRow->addWidget(m_path, 1);
    pathRow->addWidget(browseButton);
    layout->addLayout(pathRow);

    m_subDirs =
        new QCheckBox(QCoreApplication::translate("Controls", "Unterverzeichnisse"), this);
    m_subDirs->setObjectName(QStringLiteral("XPicMosaikSubDirs"));
    layout->addWidget(m_subDirs);

    m_info = new QLabel(this);
    m_info->setObjectName(QStringLiteral("lblInfo"));
    m_info->setWordWrap(true);
    layout->addWidget(m_info);

    // Buttons of our own: a standard button takes its text back from the toolkit on a change
    // of language.
    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(tr("Abbrechen"), QDialogButtonBox::RejectRole);
    layout->addWidget(buttons);

    const PicSourceList &l = session.picSources();
    const Controls &k = session.controls();
    const bool fromFile = k.listIndex(ControlKey{QStringLiteral("optPicMosaikSource")}) == 0;
    (fromFile ? m_file : m_directory)->setChecked(true);
    m_path->setText(l.PicSource);
    m_subDirs->setChecked(k.checked(QStringLiteral("XPicMosaikSubDirs")));
    kindChanged();

    connect(m_file, &QRadioButton::toggled, this, &PicSourceDialog::kindChanged);
    connect(browseButton, &QPushButton::clicked, this, &PicSourceDialog::browse);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        if (cmdOK())
            accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

QString PicSourceDialog::info() const
{
    return m_info->text();
}

void PicSourceDialog::kindChanged()
{
    m_subDirs->setEnabled(m_directory->isChecked());
    m_info->clear();
}

void PicSourceDialog::browse()
{
    const QString start = m_path->text();
    QString chosen;
    if (m_file->isChecked()) {
        chosen = QFileDialog::getOpenFileName(
            this, tr("Bild wählen"), QFileInfo(start).absolutePath(),
            tr("Bilder") + QStringLiteral(" (*.jpg *.jpeg *.png *.bmp *.gif *.JPG *.JPEG *.PNG "
                                          "*.BMP *.GIF)"));
    } else {
        chosen = QFileDialog::getExistingDirectory(this, tr("Bildverzeichnis wählen"), start);
    }
    if (!chosen.isEmpty())
        m_path->setText(chosen);
}

bool PicSourceDialog::cmdOK()
{
    const QString path = m_path->text().trimmed();
    const bool fromFile = m_file->isChecked();
    const QFileInfo fi(path);
    if (path.isEmpty() || (fromFile ? !fi.isFile() : !fi.isDir())) {
        m_info->setText(fromFile ? tr("Die Datei gibt es nicht.")
                                 : tr("Das Verzeichnis gibt es nicht."));
        return false;
    }
    setPicSource(m_session, fi.absoluteFilePath(), fromFile, m_subDirs->isChecked());
    return true;
}

} // namespace tf::ui
