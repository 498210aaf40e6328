#pragma once
// frmMosaikShow: the Superformat viewer. It shows the session's Superformat picture (SuperDIB)
// scaled to fit or at a zoom with scroll bars ("+" / "-", the mouse wheel with Ctrl, "100 %",
// "Einpassen"), saves it as JPEG at 100 to 50 % quality, as BMP or PNG ("Speichern andere
// For&mate..."), prints it with a preview, and takes a paint back (Undo / Redo of the
// Superformat). The picture is read from the surface itself: nothing is copied at full size.
//
// refresh() takes the picture anew; the main window calls it after every Superformat paint.

#include "core/prompter.h"

#include <QMainWindow>

class QAction;
class QLabel;

namespace tf {
class Session;
}

namespace tf::ui {

class SuperCanvas;

class MosaikShow : public QMainWindow {
    Q_OBJECT
public:
    // `SaveJPQ` is the remembered JPEG quality of the viewers (borrowed). Questions and
    // messages go through the session's prompter.
    MosaikShow(Session &session, int &SaveJPQ, QWidget *parent = nullptr);

    // Shows the Superformat picture as it stands now (or that there is none).
    void refresh();
    SuperCanvas *canvas() const { return picMosaik; }

    // Saves the picture as `tag` ("JPG", "PNG", "BMP"), asking before it overwrites a file.
    // False when not saved (a message says why).
    bool saveTo(const QString &path, const QString &tag, int quality = 100);

signals:
    // The picture was changed here (Undo).
    void pictureChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void Menu_SaveImage(int quality);
    void Menu_SaveBMP();
    void mn_Drucken();
    void Menu_UndoRedo();
    void retranslate();
    void showZoom(double zoom);

    Session &m_session;
    int &m_SaveJPQ;
    SuperCanvas *picMosaik = nullptr;
    QLabel *lblSize = nullptr;
    QLabel *lblZoom = nullptr;
    QMenu *m_fileMenu = nullptr;
    QMenu *m_jpegMenu = nullptr;
    QMenu *m_editMenu = nullptr;
    QMenu *m_viewMenu = nullptr;
    QAction *mn_SaveOther = nullptr;
    QAction *mn_Print = nullptr;
    QAction *mn_Close = nullptr;
    QAction *mn_Undo = nullptr;
    QAction *mn_Fit = nullptr;
    QAction *mn_Zoom100 = nullptr;
    QAction *mn_ZoomIn = nullptr;
    QAction *mn_ZoomOut = nullptr;
};

// The JPEG qualities of the viewer's menu.
constexpr int MosaikShowQualities[] = {100, 90, 80, 70, 60, 50};

} // namespace tf::ui
