#include "ui/printpreview.h"

#include <QAction>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolBar>

namespace tf::ui {

QRectF pictureRectOnPage(const QRectF &page, double deviceDpiX, double deviceDpiY, QSize pixels,
                         int pictureDpi, bool fitToPage)
{
    if (pixels.isEmpty() || page.isEmpty()) return {};
    const double dpi = pictureDpi >= 1 ? pictureDpi : 300;
    QSizeF size(pixels.width() / dpi * deviceDpiX, pixels.height() / dpi * deviceDpiY);
    if (fitToPage || size.width() > page.width() || size.height() > page.height())
        size.scale(page.size(), Qt::KeepAspectRatio);
    return QRectF(page.center().x() - size.width() / 2, page.center().y() - size.height() / 2,
                  size.width(), size.height());
}

bool paintPrintJob(QPagedPaintDevice &device, const PrintJob &job)
{
    QPainter p;
    if (!p.begin(&device)) return false;
    // The painter's window is the printable area (the page less its margins), from (0,0).
    const QRectF page(0, 0, device.width(), device.height());
    const QRectF target = pictureRectOnPage(page, device.logicalDpiX(), device.logicalDpiY(),
                                            job.picture.size(), job.dpi, job.fitToPage);
    p.setRenderHint(QPainter::SmoothPixmapTransform, true);
    p.drawImage(target, job.picture);
    return p.end();
}

bool printJobToPdf(const PrintJob &job, const QString &path)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setDocName(job.title);
    return paintPrintJob(printer, job);
}

PicturePrintPreview::PicturePrintPreview(QPrinter *printer, PrintJob job, Prompter &prompter,
                                         QWidget *parent)
    : QPrintPreviewDialog(printer, parent), m_job(std::move(job)), m_prompter(prompter)
{
    setWindowTitle(tr("Druckvorschau"));
    printer->setDocName(m_job.title);
    m_fit = new QAction(tr("An Seite anpassen"), this);
    m_fit->setCheckable(true);
    m_fit->setChecked(m_job.fitToPage);
    m_fit->setToolTip(tr("Das Bild so groß drucken, wie die Seite erlaubt, statt in seiner "
                         "Größe bei %1 dpi")
                          .arg(m_job.dpi));
    if (auto *bar = findChild<QToolBar *>()) {
        bar->addSeparator();
        bar->addAction(m_fit);
    }
    connect(m_fit, &QAction::toggled, this, [this](bool on) {
        m_job.fitToPage = on;
        if (auto *preview = findChild<QPrintPreviewWidget *>()) preview->updatePreview();
    });
    connect(this, &QPrintPreviewDialog::paintRequested, this, &PicturePrintPreview::paintPages);
}

void PicturePrintPreview::paintPages(QPrinter *printer)
{
    if (paintPrintJob(*printer, m_job) || m_reported) return;
    m_reported = true;
    Prompt prompt;
    prompt.text = tr("Keine Druckausgabe möglich!");
    prompt.icon = Icon::Exclamation;
    m_prompter.ask(prompt);
}

void printWithPreview(QWidget *parent, Prompter &prompter, const PrintJob &job)
{
    QPrinter printer(QPrinter::HighResolution);
    PicturePrintPreview preview(&printer, job, prompter, parent);
    preview.resize(900, 800);
    preview.exec();
}

} // namespace tf::ui
