#include "ui/passepdemo.h"

#include "core/fault.h"
#include "files/passepartout.h"
#include "files/picturefile.h"
#include "files/savename.h"
#include "ui/printpreview.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QResizeEvent>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tf::ui {

PasseDemo::PasseDemo(Prompter &prompter, int dpi, QWidget *parent)
    : QDialog(parent), m_prompter(prompter), m_dpi(dpi)
{
    setWindowTitle(tr("Passepartout"));
    setObjectName(QStringLiteral("frmPasseDemo"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto *bar = new QMenuBar(this);
    layout->setMenuBar(bar);

    QMenu *file = bar->addMenu(tr("&Datei"));
    QMenu *mn_Save = file->addMenu(tr("&Speichern als JPEG"));
    for (const int quality : {100, 90, 80})
        connect(mn_Save->addAction(QStringLiteral("%1 %").arg(quality)), &QAction::triggered, this,
                [this, quality] { Menu_SaveImage(quality); });
    connect(file->addAction(tr("Speichern andere For&mate...")), &QAction::triggered, this,
            &PasseDemo::Menu_SaveBMP);
    file->addSeparator();
    QAction *print = file->addAction(tr("&Drucken..."));
    print->setShortcut(QKeySequence::Print);
    connect(print, &QAction::triggered, this, &PasseDemo::mn_Drucken);
    file->addSeparator();
    connect(file->addAction(tr("S&chließen")), &QAction::triggered, this, &QDialog::accept);

    QAction *zoom = bar->addAction(tr("Zoom"));
    zoom->setCheckable(true);
    connect(zoom, &QAction::toggled, this, &PasseDemo::mn_Preview);

    picWS = new QScrollArea(this);
    picWS->setAlignment(Qt::AlignCenter);
    picWS->setBackgroundRole(QPalette::Dark);
    Picture1 = new QLabel;
    picWS->setWidget(Picture1);
    layout->addWidget(picWS);
    resize(900, 700);
}

bool PasseDemo::paintMat()
{
    bool ok = false;
    guarded(QStringLiteral("frmPasseDemo"), [&] {
        m_framed = Draw_Passepartout(fitIntoLimits(m_picture, m_maxWidth, m_maxHeight), m_set);
        if (m_framed.isNull()) {
            Prompt p;
            p.text = tr("Das Bild im Passepartout wäre größer als 14000 Pixel. Geben Sie eine "
                        "kleinere Max. Höhe oder Max. Breite an.");
            p.icon = Icon::Exclamation;
            m_prompter.ask(p);
            return;
        }
        ok = true;
    });
    showPicture();
    return ok;
}

void PasseDemo::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (m_framed.isNull()) paintMat();
}

void PasseDemo::resizeEvent(QResizeEvent *event)
{
    QDialog::resizeEvent(event);
    if (m_fit) showPicture();
}

void PasseDemo::showPicture()
{
    picWS->setWidgetResizable(m_fit);
    Picture1->setAlignment(Qt::AlignCenter);
    if (m_framed.isNull()) {
        Picture1->clear();
        return;
    }
    if (m_fit) {
        const QSize box = picWS->viewport()->size();
        const QSize size =
            m_framed.size().scaled(box, Qt::KeepAspectRatio).boundedTo(m_framed.size());
        Picture1->setPixmap(QPixmap::fromImage(
            m_framed.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    } else {
        Picture1->setPixmap(QPixmap::fromImage(m_framed));
        Picture1->resize(m_framed.size());
    }
}

void PasseDemo::mn_Preview(bool fit)
{
    m_fit = fit;
    showPicture();
}

bool PasseDemo::saveTo(const QString &path, const QString &tag, int quality)
{
    if (m_framed.isNull()) return false;
    if (QFileInfo::exists(path)) {
        Prompt p;
        p.text = tr("Soll die Datei %1 überschrieben werden?").arg(QDir::toNativeSeparators(path));
        p.buttons = Buttons::YesNo;
        p.icon = Icon::Question;
        p.defaultButton = 1;
        if (m_prompter.ask(p) != Answer::Yes) return false;
    }
    PictureMeta meta;
    meta.dpi = m_dpi;
    const WriteResult r = savePicture(m_framed, path, tag, meta, quality);
    if (!r.ok()) {
        Prompt p;
        p.text = r.message;
        p.icon = Icon::Exclamation;
        m_prompter.ask(p);
        return false;
    }
    return true;
}

void PasseDemo::Menu_SaveImage(int quality)
{
    guarded(QStringLiteral("Menu_SaveImage"), [&] {
        QFileDialog dialog(this, tr("Bild speichern"));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        dialog.setNameFilters(
            {QStringLiteral("JPG - JPEG - JFIF Compliant (*.jpg)"), tr("Alle Dateien (*)")});
        dialog.setDefaultSuffix(QStringLiteral("jpg"));
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
        QString path = dialog.selectedFiles().constFirst();
        if (!path.contains(QLatin1String(".jpg"), Qt::CaseInsensitive) &&
            !path.endsWith(QLatin1String(".jpeg"), Qt::CaseInsensitive))
            path += QLatin1String(".jpg");
        saveTo(path, QStringLiteral("JPG"), quality);
    });
}

void PasseDemo::Menu_SaveBMP()
{
    guarded(QStringLiteral("Menu_SaveBMP"), [&] {
        QFileDialog dialog(this, tr("Bild speichern"));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setOption(QFileDialog::DontConfirmOverwrite);
        const QString png = QStringLiteral("PNG (*.png)"), bmp = QStringLiteral("BMP (*.bmp)");
        dialog.setNameFilters({png, bmp});
        dialog.setDefaultSuffix(QStringLiteral("png"));
        connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString &f) {
            dialog.setDefaultSuffix(f == bmp ? QStringLiteral("bmp") : QStringLiteral("png"));
        });
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
        QString path = dialog.selectedFiles().constFirst();
        QString tag = saveTypeOfSuffix(path);
        if (tag != QLatin1String("PNG") && tag != QLatin1String("BMP")) {
            tag =
                dialog.selectedNameFilter() == bmp ? QStringLiteral("BMP") : QStringLiteral("PNG");
            path += tag == QLatin1String("BMP") ? QStringLiteral(".bmp") : QStringLiteral(".png");
        }
        saveTo(path, tag);
    });
}

void PasseDemo::mn_Drucken()
{
    if (m_framed.isNull()) return;
    PrintJob job;
    job.picture = m_framed;
    job.dpi = m_dpi;
    job.title = tr("Passepartout");
    printWithPreview(this, m_prompter, job);
}

} // namespace tf::ui
