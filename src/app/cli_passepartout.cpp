// `tarvelle-forge passepartouts` lists the stored mats; `tarvelle-forge passepartout --set NAME
// IN -o OUT` paints a picture in one of them.
//
// The sets are those of the desktop program: tvlpassp.dat in its work folder ("PDirTemp" of
// the settings, else the per-user data folder), or the file that `--data FILE` names.
#include "app/cli_common.h"

#include "core/appsettings.h"
#include "core/settings.h"
#include "files/passepartout.h"
#include "files/passepartoutfile.h"
#include "files/picturefile.h"

#include <QCoreApplication>
#include <QStandardPaths>
#include <optional>

namespace tf::cli {

namespace {

QString defaultDataFile()
{
    SettingsStore store;
    AppSettings settings;
    settings.load(store);
    if (!settings.PDirTemp.isEmpty()) return ppDataPath(settings.PDirTemp);
    return defaultPPDataPath();
}

// The sets of `path`; a refused file ends the command with its message.
bool readSets(const QString &path, PPTable &table)
{
    PPReadResult r = Read_PPData(path);
    if (r.refused()) {
        printError(r.message);
        return false;
    }
    table = std::move(r.table);
    return true;
}

QString colourText(ColorLong c)
{
    return QStringLiteral("#%1%2%3")
        .arg(RedOf(c), 2, 16, QLatin1Char('0'))
        .arg(GreenOf(c), 2, 16, QLatin1Char('0'))
        .arg(BlueOf(c), 2, 16, QLatin1Char('0'))
        .toUpper();
}

// "NAME<TAB>gradient on|off<TAB>w1:#RRGGBB ... w7:#RRGGBB", frame 1 (at the picture) first.
QString setLine(const PPRecord &r)
{
    QStringList frames;
    for (int k = 0; k < PPFrames; ++k)
        frames
            << QStringLiteral("%1:%2").arg(r.width[size_t(k)]).arg(colourText(r.colour[size_t(k)]));
    return QStringLiteral("%1\t%2\t%3\n")
        .arg(r.name, r.gradient() ? QStringLiteral("gradient") : QStringLiteral("solid"),
             frames.join(QLatin1Char(' ')));
}

int limitOf(const QString &option, const QString &value)
{
    bool ok = false;
    const int v = value.toInt(&ok);
    if (!ok || v < 0 || v > 14000)
        throw UsageError(QCoreApplication::translate(
                             "Cli", "%1 erwartet eine Zahl von 0 bis 14000, nicht \"%2\"")
                             .arg(option, value));
    return v;
}

} // namespace

int runPassepartouts(const QStringList &args)
{
    QString dataFile;
    Arguments a(args);
    while (!a.atEnd()) {
        const QString arg = a.next();
        if (arg == QLatin1String("--data"))
            dataFile = a.valueOf(arg);
        else
            throw UsageError(QCoreApplication::translate(
                "Cli", "Aufruf: tarvelle-forge passepartouts [--data DATEI]"));
    }
    if (dataFile.isEmpty()) dataFile = defaultDataFile();
    PPTable table;
    if (!readSets(dataFile, table)) return ExitFailed;
    // The built-in set comes first, as in the generator's list.
    PPRecord standard = standardPassepartout();
    standard.name = QStringLiteral("+ Standard");
    print(stdout, setLine(standard));
    for (const PPRecord &r : table)
        print(stdout, setLine(r));
    return ExitOk;
}

int runPassepartout(const QStringList &args)
{
    QString dataFile, name, input, output;
    int maxW = 0, maxH = 0;
    std::optional<bool> gradient;
    Arguments a(args);
    while (!a.atEnd()) {
        const QString arg = a.next();
        if (arg == QLatin1String("--data"))
            dataFile = a.valueOf(arg);
        else if (arg == QLatin1String("--set"))
            name = a.valueOf(arg);
        else if (arg == QLatin1String("-o") || arg == QLatin1String("--output"))
            output = a.valueOf(arg);
        else if (arg == QLatin1String("--max-width"))
            maxW = limitOf(arg, a.valueOf(arg));
        else if (arg == QLatin1String("--max-height"))
            maxH = limitOf(arg, a.valueOf(arg));
        else if (arg == QLatin1String("--gradient")) {
            const QString v = a.valueOf(arg);
            if (v != QLatin1String("on") && v != QLatin1String("off"))
                throw UsageError(QCoreApplication::translate(
                                     "Cli", "--gradient erwartet on oder off, nicht \"%1\"")
                                     .arg(v));
            gradient = v == QLatin1String("on");
        } else if (!arg.startsWith(QLatin1Char('-')) && input.isEmpty())
            input = arg;
        else
            throw UsageError(QCoreApplication::translate("Cli", "Unbekannte Angabe: %1").arg(arg));
    }
    if (name.isEmpty() || input.isEmpty() || output.isEmpty())
        throw UsageError(QCoreApplication::translate(
            "Cli", "Aufruf: tarvelle-forge passepartout --set NAME BILD -o AUSGABE"));
    if (dataFile.isEmpty()) dataFile = defaultDataFile();

    PPTable table;
    if (!readSets(dataFile, table)) return ExitFailed;
    PPRecord set;
    if (const int i = findPassepartout(table, name); i >= 0)
        set = table[size_t(i)];
    else if (name == QLatin1String("Standard") || name == QLatin1String("+ Standard"))
        set = standardPassepartout();
    else {
        printError(
            QCoreApplication::translate(
                "Cli", "Es gibt kein Passepartout \"%1\" (siehe tarvelle-forge passepartouts).")
                .arg(name));
        return ExitFailed;
    }
    if (gradient) set.useGradient = *gradient ? -1 : 0;

    QString message;
    const QImage picture = readPictureForCommand(input, LoadLimit::KeepSize, message);
    if (picture.isNull()) {
        printError(message);
        return ExitFailed;
    }
    const QImage framed = Draw_Passepartout(fitIntoLimits(picture, maxW, maxH), set);
    if (framed.isNull()) {
        printError(QCoreApplication::translate(
            "Cli", "Das Bild im Passepartout wäre größer als 14000 Pixel."));
        return ExitFailed;
    }
    if (!writePictureForCommand(framed, output, PictureMeta{}, message)) {
        printError(message);
        return ExitFailed;
    }
    return ExitOk;
}

} // namespace tf::cli
