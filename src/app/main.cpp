#include "app/cli.h"
#include "ui/mainwindow.h"

#include "app/version.h"

#include <QApplication>

int main(int argc, char **argv)
{
    if (tf::cli::wantsCommandLine(argc, argv))
        return tf::cli::run(argc, argv);

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarvelle-forge"));
    QApplication::setApplicationVersion(QStringLiteral(TF_VERSION));
    tf::ui::MainWindow window;
    window.show();
    return app.exec();
}
