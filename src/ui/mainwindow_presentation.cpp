// The picture presentations of the main window (mn_PicPres: load and save a .tvp) and the
// slide show's window (SessionView::runDiaShow).
#include "ui/mainwindow.h"

#include "files/presentation.h"
#include "ui/diashowwindow.h"
#include "ui/idleguard.h"

#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QStandardPaths>

namespace tf::ui {

namespace {

// The file dialogs of Menu_OpenPicPresentation.
class PresentationDialogs : public PresentationChooser {
public:
    explicit PresentationDialogs(QWidget *parent) : m_parent(parent) {}

    QString chooseToLoad(const QString &dir, const QString &title, const QString &filter) override
    {
        return run(dir, title, filter, QFileDialog::AcceptOpen);
    }
    QString chooseToSave(const QString &dir, const QString &title, const QString &filter) override
    {
        return run(dir, title, filter, QFileDialog::AcceptSave);
    }

private:
    QString run(const QString &dir, const QString &title, const QString &filter,
                QFileDialog::AcceptMode mode)
    {
        QFileDialog dialog(m_parent, title, dir, filter);
        dialog.setObjectName(QStringLiteral("dlgPicPresentation"));
        dialog.setAcceptMode(mode);
        dialog.setFileMode(mode == QFileDialog::AcceptOpen ? QFileDialog::ExistingFile
                                                           : QFileDialog::AnyFile);
        dialog.setDefaultSuffix(QStringLiteral("tvp"));
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
        return dialog.selectedFiles().constFirst();
    }

    QWidget *m_parent;
};

} // namespace

void MainWindow::createPresentationActions()
{
    for (int mode = 0; mode < 2; ++mode) {
        auto *a = new QAction(this);
        a->setObjectName(QStringLiteral("mn_PicPres%1").arg(mode));
        connect(a, &QAction::triggered, this,
                whenIdle(m_session, [this, mode] { openPicPresentation(mode); }));
        mn_PicPres[size_t(mode)] = a;
    }
}

void MainWindow::addPresentationMenu(QMenu *fileMenu)
{
    m_picPresMenu = fileMenu->addMenu(QString());
    m_picPresMenu->addAction(mn_PicPres[0]);
    m_picPresMenu->addAction(mn_PicPres[1]);
}

void MainWindow::retranslatePresentation()
{
    m_picPresMenu->setTitle(tr("Bild-Prä&sentation"));
    mn_PicPres[0]->setText(tr("Präsentation &laden..."));
    mn_PicPres[1]->setText(tr("Präsentation &speichern..."));
}

QString MainWindow::pictureDir() const
{
    if (!m_settings.PDirRead.isEmpty()) return m_settings.PDirRead;
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return pictures.isEmpty() ? QDir::homePath() : pictures;
}

void MainWindow::openPicPresentation(int mode)
{
    PresentationDialogs dialogs(this);
    if (Menu_OpenPicPresentation(m_session, mode, dialogs, m_settings.PDirTVP, pictureDir()) &&
        mode == 0) {
        // The loaded colours and switches show in the colour dialog.
        coloursChanged();
    }
    updateCommands();
}

void MainWindow::applyDisplayTime()
{
    // A show's pictures stay for the program's display time until the panel says otherwise.
    const int seconds = m_session.startValues().DisplayTime / 1000;
    m_session.controls().set(ControlKey{QStringLiteral("txtPicMosaik_Timer")},
                             QString::number(seconds));
}

bool MainWindow::runDiaShow()
{
    const QString folder = m_settings.PDirTVP.isEmpty() ? pictureDir() : m_settings.PDirTVP;
    runDiaShowWindow(m_session, QDir(folder).filePath(QStringLiteral("DiaShow-gesichert.txt")));
    return true;
}

} // namespace tf::ui
