#pragma once
// Printing a picture with a preview: the main window's picture, the passepartout demo (and any
// window that shows one picture).
//
// The picture is placed centred on the printable area of the page at the size its resolution
// gives (pixels / picture dpi inches), or, on request ("An Seite anpassen"), as large as the
// page allows with its aspect. A picture larger than the page at its resolution is brought
// onto the page the same way, since a cut print is of no use. Qt's preview dialog holds the
// page set-up, the zoom and the print dialog; with no printer installed its print dialog
// offers printing into a PDF file.

#include "core/prompter.h"

#include <QImage>
#include <QPrintPreviewDialog>
#include <QRectF>
#include <QString>

class QAction;
class QPagedPaintDevice;
class QPainter;
class QPrinter;

namespace tf::ui {

struct PrintJob {
    QImage picture;
    int dpi = 300; // the picture's resolution; below 1 counts as 300
    bool fitToPage = false;
    QString title; // the document's name in the print queue
};

// Where the picture lands on a page whose printable area is `page`, in device pixels of a
// device with `deviceDpiX` x `deviceDpiY` dots per inch.
QRectF pictureRectOnPage(const QRectF &page, double deviceDpiX, double deviceDpiY, QSize pixels,
                         int pictureDpi, bool fitToPage);

// Paints the job on one page of `device` (a printer, a PDF writer). False when the device
// cannot be painted on.
bool paintPrintJob(QPagedPaintDevice &device, const PrintJob &job);

// Writes the job as a one-page PDF file at `path` (the page size of `printer`'s set-up,
// A4 portrait by default).
bool printJobToPdf(const PrintJob &job, const QString &path);

// Qt's preview dialog over the job, with the switch "An Seite anpassen" on its tool bar.
class PicturePrintPreview : public QPrintPreviewDialog {
    Q_OBJECT
public:
    PicturePrintPreview(QPrinter *printer, PrintJob job, Prompter &prompter,
                        QWidget *parent = nullptr);
    const PrintJob &job() const { return m_job; }
    QAction *fitAction() const { return m_fit; }

private:
    void paintPages(QPrinter *printer);

    PrintJob m_job;
    Prompter &m_prompter;
    QAction *m_fit = nullptr;
    bool m_reported = false;
};

// Shows the preview of `job`; printing from it reports "Keine Druckausgabe möglich!" through
// `prompter` when the printer cannot be used.
void printWithPreview(QWidget *parent, Prompter &prompter, const PrintJob &job);

} // namespace tf::ui
