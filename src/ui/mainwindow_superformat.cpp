// The main window's side of the Superformat: the viewer frmMosaikShow, one window, shown after
// every Superformat paint and by "Superformat anzeigen".
#include "ui/mainwindow.h"
#include "ui/mosaikshow.h"

namespace tf::ui {

MosaikShow &MainWindow::mosaikShow()
{
    if (!m_mosaikShow) m_mosaikShow = new MosaikShow(m_session, m_settings.SaveJPQ, this);
    return *m_mosaikShow;
}

void MainWindow::showSuperformat()
{
    MosaikShow &viewer = mosaikShow();
    viewer.refresh();
    viewer.show();
    viewer.raise();
    viewer.activateWindow();
}

} // namespace tf::ui
