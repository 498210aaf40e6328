#include "app/cli.h"

#include "app/version.h"

#include <QGuiApplication>
#include <QString>
#include <QStringList>
#include <cstdio>
#include <cstdlib>

namespace tf::cli {

namespace {

const char *const usage =
    "Usage: tarvelle-forge [COMMAND] [OPTIONS]\n"
    "\n"
    "Without a command the desktop program starts.\n"
    "\n"
    "Options:\n"
    "  -h, --help       show this help and exit\n"
    "  -v, --version    show the version and exit\n";

void print(FILE *to, const QString &text) { std::fputs(text.toLocal8Bit().constData(), to); }

} // namespace

bool wantsCommandLine(int argc, char **argv) { return argc > 1 && argv[1][0] != '\0'; }

int run(int argc, char **argv)
{
    // The engine draws text and pictures through Qt's painter, which needs a GUI application;
    // the command line needs no screen.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("tarvelle-forge"));
    QGuiApplication::setApplicationVersion(QStringLiteral(TF_VERSION));

    const QStringList args = app.arguments().mid(1);
    const QString command = args.value(0);
    if (command == QLatin1String("-h") || command == QLatin1String("--help") ||
        command == QLatin1String("help")) {
        print(stdout, QString::fromLatin1(usage));
        return 0;
    }
    if (command == QLatin1String("-v") || command == QLatin1String("--version")) {
        print(stdout, QStringLiteral("tarvelle-forge %1\n").arg(QStringLiteral(TF_VERSION)));
        return 0;
    }
    print(stderr, QStringLiteral("tarvelle-forge: unknown command \"%1\"\n\n").arg(command));
    print(stderr, QString::fromLatin1(usage));
    return 2;
}

} // namespace tf::cli
