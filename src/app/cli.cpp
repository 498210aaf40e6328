#include "app/cli.h"

#include "app/cli_common.h"
#include "app/version.h"
#include "core/language.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QString>
#include <QStringList>
#include <cstdio>
#include <cstring>
#include <memory>

namespace tf::cli {

namespace {

const char *const usage =
    "Usage: tarvelle-forge [COMMAND] [OPTIONS]\n"
    "\n"
    "Without a command the desktop program starts.\n"
    "\n"
    "Commands:\n"
    "  paint TYPE [OPTIONS]   paint one graphics type and save the picture\n"
    "  animate TYPE [--frames N] [--fps F] [--loop N] [OPTIONS]\n"
    "                         write the animation of a type (Plasma: the tunnel) as an\n"
    "                         animated PNG (.png) or GIF (.gif): N frames (default 60) at\n"
    "                         F frames a second (default 30), played N times (0: forever);\n"
    "                         the options of paint set size, seed, controls and colours\n"
    "  types                  the groups and types: key, English and German caption\n"
    "  controls [TYPE]        the option controls (of a type): name, kind, default, range,\n"
    "                         caption\n"
    "  filters                the filters: number, name, captions and arguments\n"
    "  filter NUMBER|NAME IN -o OUT [OPTIONS] [--then NAME [OPTIONS] ...]\n"
    "                         run filters on a picture, one after the other\n"
    "  recipe FILE            the paint commands that made a picture file (PNG or JPEG)\n"
    "  gallery -o DIR [--size WxH] [--seed N] [--group G] [--source PHOTOS]\n"
    "                         paint every type that paints into DIR (KEY.png each) and\n"
    "                         write DIR/index.html with the captions and command lines\n"
    "                         (default size 256x256, seed 1, all groups; the types that\n"
    "                         paint photos only with --source, a folder of photos)\n"
    "  transform OPERATION [VALUE] IN -o OUT [OPTIONS]\n"
    "                         turn, mirror, resize, crop or extend a picture:\n"
    "                         turn-right, turn-left, turn-180, mirror-v (left to right),\n"
    "                         mirror-h (top to bottom), half-mirror left-to-right|\n"
    "                         right-to-left|top-to-bottom|bottom-to-top|prismatic,\n"
    "                         size WxH, canvas WxH, crop X,Y,W,H\n"
    "                         and on two pictures (IN now, --with the one before):\n"
    "                         depth-blur, depth-between, soft-blend, brightness-blend\n"
    "  passepartouts [--data FILE]\n"
    "                         the stored passepartout sets: name, solid or gradient, and\n"
    "                         width:#RRGGBB of frames 1 (at the picture) to 7 (closing)\n"
    "  passepartout --set NAME IN -o OUT [--max-width N] [--max-height N]\n"
    "               [--gradient on|off] [--data FILE]\n"
    "                         paint the picture IN in the stored mat NAME (\"Standard\" is\n"
    "                         built in), scaled down into the limits first (0: none); the\n"
    "                         sets lie in tvlpassp.dat of the desktop program's work folder\n"
    "\n"
    "Options of paint:\n"
    "  -o, --output FILE      the picture to write; .png, .jpg or .bmp by its extension\n"
    "                         (default: the type's key with .png)\n"
    "  --size WxH             the picture's size (default: that of --over, else 712x712)\n"
    "  --over FILE            paint over this picture instead of a cleared one; a picture\n"
    "                         of more than 1600 x 1600 pixels is brought into that box\n"
    "  --keep-size            keep a large --over picture at its own size (up to 14000)\n"
    "  --recipe FILE          paint again what made this picture file (see `recipe`);\n"
    "                         with --size at another size\n"
    "  --presentation FILE.tvp\n"
    "                         PIC-Mosaik, PIC-MosaikSuper: paint the stored layout of a\n"
    "                         picture presentation with its options and source folder\n"
    "  --seed N               the seed of the random numbers: the same seed, options and size\n"
    "                         give the same picture (default: one from the clock)\n"
    "  --set CONTROL[(i)]=VALUE\n"
    "                         set an option control (repeatable; see `controls TYPE`)\n"
    "  --fore, --back, --border #RRGGBB\n"
    "                         the colours; giving one turns random colours off\n"
    "  --text TEXT            the text of the text types (a line break written \\n, a tab \\t)\n"
    "  --text-file FILE       the text from a .txt file (UTF-8, else Windows-1252)\n"
    "  --font NAME, --font-size N\n"
    "                         the text's font and its size in points (the other fields of\n"
    "                         the text dialog: `controls TEXT-Dialog`)\n"
    "  --text-fore, --text-back #RRGGBB\n"
    "                         the text and its shadow colour (random colours off)\n"
    "  --random-colors on|off, --random-values on|off\n"
    "                         random colours, random counts and sizes (default: on)\n"
    "  --palette FILE.pal     load a JASC palette (as the colour dialog's palette load)\n"
    "  --system-palette N     load system palette N (1..34, see the desktop program)\n"
    "  --duotones 0|1         take the colours from a table: 0 a random scheme, 1 the two\n"
    "                         colours or the palette\n"
    "  --transparency P       lay the paint over the picture at P percent (0..100)\n"
    "  --source DIR|FILE      the photos of PIC-Mosaik and PIC-MosaikSuper: every picture of\n"
    "                         a directory (--set XPicMosaikSubDirs=1 with its subdirectories)\n"
    "                         or one picture cut into the frames\n"
    "\n"
    "Options of filter (each after the filter it sets):\n"
    "  --arg N|#RRGGBB        the argument of a filter without a dialog\n"
    "  --set SLIDER=VALUE     a slider of the filter dialog by its label or index\n"
    "  --colour0, --colour1 #RRGGBB\n"
    "                         the dialog's two colour fields\n"
    "  --at X,Y               the position picked on the picture\n"
    "  --seed N               the seed of the random numbers (noise, diffuse)\n"
    "  --back #RRGGBB         the background colour (rotation corners, bending)\n"
    "\n"
    "Options of transform:\n"
    "  --nearest              size: take the nearest pixel instead of smooth resampling\n"
    "  --anchor PLACE         canvas: where the picture stands: top-left, top, top-right,\n"
    "                         left, middle (default), right, bottom-left, bottom, bottom-right\n"
    "  --back #RRGGBB         canvas: the colour of the new room (default white)\n"
    "  --with FILE            the picture before, for the two-picture operations\n"
    "  --set SLIDER=VALUE     their sliders: depth-blur Radius 1..40, Focus 0..255;\n"
    "                         depth-between Radius, Depth 0..100; soft-blend Position,\n"
    "                         Width 0..100, Angle 0..360; brightness-blend Threshold 0..255,\n"
    "                         Softness 1..255\n"
    "\n"
    "Options of every command:\n"
    "  --lang de|en           the language of messages and captions\n"
    "  -h, --help             show this help and exit\n"
    "  -v, --version          show the version and exit\n"
    "\n"
    "Exit codes: 0 success, 1 the work failed, 2 bad usage.\n";

// Takes "--lang de|en" out of the arguments and installs that language (the system's when
// none is given).
QStringList takeLanguage(QStringList args)
{
    Language lang = systemLanguage();
    for (qsizetype i = 0; i < args.size(); ++i) {
        if (args[i] != QLatin1String("--lang")) continue;
        const QString value = args.value(i + 1);
        if (value == QLatin1String("de"))
            lang = Language::German;
        else if (value == QLatin1String("en"))
            lang = Language::English;
        else
            throw UsageError(
                QCoreApplication::translate("Cli", "Unbekannte Sprache: %1 (de oder en)")
                    .arg(value));
        args.remove(i, 2);
        --i;
    }
    setLanguage(lang);
    return args;
}

} // namespace

bool wantsCommandLine(int argc, char **argv)
{
    return argc > 1 && argv[1][0] != '\0';
}

int run(int argc, char **argv)
{
    // The commands and the application each needs. Only what lays out text (the text types
    // of paint, and so animate and gallery) needs Qt's GUI application with its platform and
    // fonts; the others start a core application, which spares every filter and transform
    // the platform plugin and the font configuration that the GUI application reads even to
    // close it.
    struct Command {
        const char *name;
        int (*run)(const QStringList &);
        bool needsFonts;
    };
    static constexpr Command commands[] = {
        {"paint", runPaint, true},
        {"animate", runAnimate, true},
        {"gallery", runGallery, true},
        {"types", runTypes, false},
        {"controls", runControls, false},
        {"filters", runFilters, false},
        {"filter", runFilter, false},
        {"recipe", runRecipe, false},
        {"transform", runTransform, false},
        {"passepartouts", runPassepartouts, false},
        {"passepartout", runPassepartout, false},
    };
    const Command *chosen = nullptr;
    for (const Command &c : commands)
        if (argc > 1 && std::strcmp(argv[1], c.name) == 0) chosen = &c;

    // Stderr carries the command's own messages; Qt's notes about the desktop it runs without
    // (no runtime folder, no screen) are no news to a script.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &msg) {
        if (type == QtCriticalMsg || type == QtFatalMsg)
            std::fprintf(stderr, "%s\n", msg.toLocal8Bit().constData());
    });
    std::unique_ptr<QCoreApplication> app;
    if (chosen && chosen->needsFonts) {
        // Text is drawn through Qt's painter and font database, which need a GUI application;
        // the command line needs no screen.
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("tarvelle-forge"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TF_VERSION));

    const QStringList all = QCoreApplication::arguments().mid(1);
    const QString command = all.value(0);
    if (command == QLatin1String("-h") || command == QLatin1String("--help") ||
        command == QLatin1String("help")) {
        print(stdout, QString::fromLatin1(usage));
        return ExitOk;
    }
    if (command == QLatin1String("-v") || command == QLatin1String("--version")) {
        print(stdout, QStringLiteral("tarvelle-forge %1\n").arg(QStringLiteral(TF_VERSION)));
        return ExitOk;
    }
    if (!chosen) {
        print(stderr, QStringLiteral("tarvelle-forge: unknown command \"%1\"\n\n").arg(command));
        print(stderr, QString::fromLatin1(usage));
        return ExitUsage;
    }
    try {
        return chosen->run(takeLanguage(all.mid(1)));
    } catch (const UsageError &e) {
        printError(e.message);
        return ExitUsage;
    }
}

} // namespace tf::cli
