#include "app/cli.h"
#include "core/appsettings.h"
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
    // The user's language, as the settings keep it (the system's on a first start).
    tf::SettingsStore &store = tf::programSettings();
    tf::AppSettings settings;
    settings.load(store);
    if (!tf::setLanguage(settings.language)) {
        tf::Prompt p;
        p.text = tf::startFailureText(settings.language);
        p.icon = tf::Icon::Critical;
        startPrompter.ask(p);
        return 1;
    }

    tf::registerAllPanels();
    tf::ui::MainWindow window;
    window.startUp(store);
    window.show();
    return app.exec();
}
