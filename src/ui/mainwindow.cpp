#include "ui/mainwindow.h"

namespace tf::ui {

MainWindow::MainWindow(QWidget *parent) : QMainWindow(parent)
{
    setWindowTitle(QStringLiteral("Tarvelle-Forge"));
    resize(1000, 760);
}

} // namespace tf::ui
