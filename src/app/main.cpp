#include "app/cli.h"
#include "core/language.h"
#include "core/settings.h"
#include "core/singleinstance.h"
#include "generators/painters.h"
#include "ui/guiprompter.h"
#include "ui/mainwindow.h"

#include "app/version.h"

#include <QApplication>

int main(int argc, char **argv)
{
    if (tf::cli::wantsCommandLine(argc, argv))
        return tf::cli::run(argc, argv);

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tarvelle-forge"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tarvelle-Forge"));
    QApplication::setApplicationVersion(QStringLiteral(TF_VERSION));

    tf::ui::MessageBoxPrompter startPrompter(nullptr);
    tf::PrompterScope scope(startPrompter);

    // One program per user: a second start says so and ends.
    tf::SingleInstance instance;
    if (!instance.tryLock()) {
        tf::SingleInstance::showAlreadyRunning();
        return 0;
    }
    if (!tf::setLanguage(tf::systemLanguage())) {
        tf::Prompt p;
        p.text = QStringLiteral("Probleme beim Programmstart!\nProblems on starting the program!");
        p.icon = tf::Icon::Critical;
        startPrompter.ask(p);
        return 1;
    }

    tf::registerAllPanels();
    tf::ui::MainWindow window;
    window.startUp(tf::programSettings());
    window.show();
    return app.exec();
}
