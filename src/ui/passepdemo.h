#pragma once
// frmPasseDemo: a picture in a passepartout on a window of its own, scrolled when larger than
// the window ("Zoom" fits it to the window instead), saved as JPEG at 100, 90 or 80 %, as BMP
// or PNG, and printed with a preview.
//
// The set and the picture are given through the setters before show(); the window paints the
// mat when it is shown. The work picture is not touched.

#include "core/prompter.h"
#include "files/passepartoutfile.h"

#include <QDialog>
#include <QImage>

class QAction;
class QLabel;
class QScrollArea;

namespace tf::ui {

class PasseDemo : public QDialog {
    Q_OBJECT
public:
    PasseDemo(Prompter &prompter, int dpi, QWidget *parent = nullptr);

    // The set: its widths (new_Border), colours (new_Color) and gradient (use_Gradient).
    void setPassepartout(const PPRecord &set) { m_set = set; }
    void new_PicHeight(int h) { m_maxHeight = h; }
    void new_PicWidth(int w) { m_maxWidth = w; }
    // The picture to show: the work picture (use_ABILD) or a loaded file.
    void use_ABILD(const QImage &picture) { m_picture = picture; }

    // Paints the mat round the picture fitted into the limits; false (after a message) when
    // the mat would be too large.
    bool paintMat();
    const QImage &framed() const { return m_framed; }

    // Saves the framed picture as `tag` ("JPG", "PNG", "BMP") with the JPEG quality; asks
    // before overwriting. False when not saved.
    bool saveTo(const QString &path, const QString &tag, int quality = 100);

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void Menu_SaveImage(int quality);
    void Menu_SaveBMP();
    void mn_Drucken();
    void mn_Preview(bool fit);
    void showPicture();

    Prompter &m_prompter;
    int m_dpi;
    PPRecord m_set;
    QImage m_picture;
    QImage m_framed;
    int m_maxWidth = 0, m_maxHeight = 0;
    bool m_fit = false;
    QScrollArea *picWS = nullptr;
    QLabel *Picture1 = nullptr;
};

} // namespace tf::ui
