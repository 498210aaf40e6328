// `tarvelle-forge recipe FILE`: the command lines that painted a picture file.
#include "app/cli_common.h"

#include "files/picturefile.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tf::cli {

int runRecipe(const QStringList &args)
{
    if (args.size() != 1 || args[0].startsWith(QLatin1Char('-')))
        throw UsageError(QCoreApplication::translate("Cli", "Aufruf: tarvelle-forge recipe DATEI"));
    const QString &file = args[0];
    if (!QFileInfo(file).isFile()) {
        printError(QCoreApplication::translate("LoadImage", "Die Datei %1 gibt es nicht.").arg(file));
        return ExitFailed;
    }
    const QStringList lines = readPictureMeta(file).recipe;
    if (lines.isEmpty()) {
        printError(QCoreApplication::translate("Cli", "Die Datei %1 enthält kein Rezept.").arg(file));
        return ExitFailed;
    }
    print(stdout, lines.join(QLatin1Char('\n')) + QLatin1Char('\n'));
    return ExitOk;
}

} // namespace tf::cli
