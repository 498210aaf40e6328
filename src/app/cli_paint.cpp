// `tarvelle-forge paint TYPE ...`: one paint on a cleared picture (or over a given one), saved
// to a file. It runs the Paint command of the desktop program on a session of its own.
#include "app/cli_common.h"
#include "app/cli_paint.h"

#include "core/language.h"
#include "files/picturefile.h"
#include "files/presentation.h"
#include "files/recipe.h"
#include "files/surfacesave.h"
#include "files/textfile.h"
#include "generators/painters.h"
#include "generators/picmosaik.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/colourdialog.h"
#include "paint/paintdriver.h"
#include "paint/palette.h"
#include "paint/paletteload.h"
#include "paint/systempalettes.h"
#include "paint/session.h"
#include "paint/superformat.h"
#include "paint/textstate.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <optional>
#include <vector>

namespace tf::cli {

namespace {

// The largest side of a picture: the largest Superformat.
constexpr int MaxSide = 14000;

bool parseOnOff(const QString &option, const QString &text)
{
    if (text == QLatin1String("on")) return true;
    if (text == QLatin1String("off")) return false;
    throw UsageError(
        QCoreApplication::translate("Cli", "Ungültiger Wert für %1: %2").arg(option, text));
}

// "Neon vertical" -> "Neon_vertical.png".
QString defaultOutput(const QString &key)
{
    QString name = key;
    name.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9_-]")), QStringLiteral("_"));
    return name + QStringLiteral(".png");
}

} // namespace

QSize parseSize(const QString &text)
{
    static const QRegularExpression re(QStringLiteral(R"(^(\d{1,5})[xX](\d{1,5})$)"));
    const auto m = re.match(text);
    const int w = m.hasMatch() ? m.captured(1).toInt() : 0;
    const int h = m.hasMatch() ? m.captured(2).toInt() : 0;
    if (w < 1 || h < 1 || w > MaxSide || h > MaxSide)
        throw UsageError(
            QCoreApplication::translate("Cli", "Ungültige Größe: %1 (BREITExHÖHE, 1 bis 14000)")
                .arg(text));
    return {w, h};
}

PaintOptions parsePaintOptions(const QStringList &words)
{
    PaintOptions o;
    Arguments a(words);
    while (!a.atEnd()) {
        const QString w = a.next();
        if (w == QLatin1String("-o") || w == QLatin1String("--output")) {
            o.output = a.valueOf(w);
        } else if (w == QLatin1String("--size")) {
            o.size = parseSize(a.valueOf(w));
        } else if (w == QLatin1String("--seed")) {
            const QString v = a.valueOf(w);
            bool ok = false;
            const qulonglong n = v.toULongLong(&ok);
            if (!ok || n > 0xFFFFFFFFull)
                throw UsageError(
                    QCoreApplication::translate("Cli", "Ungültiger Startwert: %1").arg(v));
            o.seed = uint32_t(n);
        } else if (w == QLatin1String("--set")) {
            const QString v = a.valueOf(w);
            const qsizetype eq = v.indexOf(QLatin1Char('='));
            if (eq < 1)
                throw UsageError(QCoreApplication::translate(
                                     "Cli", "Ungültige Einstellung: %1 (STEUERELEMENT=WERT)")
                                     .arg(v));
            o.sets.emplace_back(v.left(eq), v.mid(eq + 1));
        } else if (w == QLatin1String("--fore")) {
            o.fore = parseColour(a.valueOf(w));
        } else if (w == QLatin1String("--back")) {
            o.back = parseColour(a.valueOf(w));
        } else if (w == QLatin1String("--border")) {
            o.border = parseColour(a.valueOf(w));
        } else if (w == QLatin1String("--text")) {
            o.sets.emplace_back(QStringLiteral("txtOrthoIn"), unescapeTextArgument(a.valueOf(w)));
        } else if (w == QLatin1String("--text-file")) {
            o.textFile = a.valueOf(w);
        } else if (w == QLatin1String("--font")) {
            o.sets.emplace_back(QStringLiteral("cmbFontName"), a.valueOf(w));
        } else if (w == QLatin1String("--font-size")) {
            o.sets.emplace_back(QStringLiteral("txtFontSize"), a.valueOf(w));
        } else if (w == QLatin1String("--text-fore")) {
            o.textFore = parseColour(a.valueOf(w));
        } else if (w == QLatin1String("--text-back")) {
            o.textBack = parseColour(a.valueOf(w));
        } else if (w == QLatin1String("--random-colors")) {
            o.randomColors = parseOnOff(w, a.valueOf(w));
        } else if (w == QLatin1String("--random-values")) {
            o.randomValues = parseOnOff(w, a.valueOf(w));
        } else if (w == QLatin1String("--transparency")) {
            const QString v = a.valueOf(w);
            bool ok = false;
            const int p = v.toInt(&ok);
            if (!ok || p < 0 || p > 100)
                throw UsageError(
                    QCoreApplication::translate("Cli", "Ungültige Transparenz: %1 (0 bis 100)")
                        .arg(v));
            o.transparency = p;
        } else if (w == QLatin1String("--duotones")) {
            const QString v = a.valueOf(w);
            if (v != QLatin1String("0") && v != QLatin1String("1"))
                throw UsageError(
                    QCoreApplication::translate("Cli", "Ungültiger Wert für %1: %2").arg(w, v));
            o.duotones = v.toInt();
        } else if (w == QLatin1String("--palette")) {
            o.palette = a.valueOf(w);
        } else if (w == QLatin1String("--system-palette")) {
            const QString v = a.valueOf(w);
            bool ok = false;
            const int n = v.toInt(&ok);
            const int count = int(systemPalettes().size());
            if (!ok || n < 1 || n > count)
                throw UsageError(QCoreApplication::translate(
                                     "Cli", "Unbekannte Systempalette: %1 (1 bis %2)")
                                     .arg(v)
                                     .arg(count));
            o.systemPalette = n;
        } else if (w == QLatin1String("--over")) {
            o.over = a.valueOf(w);
        } else if (w == QLatin1String("--keep-size")) {
            o.keepSize = true;
        } else if (w == QLatin1String("--recipe")) {
            o.recipe = a.valueOf(w);
        } else if (w == QLatin1String("--source")) {
            o.source = a.valueOf(w);
        } else if (w == QLatin1String("--presentation")) {
            o.presentation = a.valueOf(w);
        } else if (w.startsWith(QLatin1Char('-')) && w != QLatin1String("-")) {
            throw UsageError(QCoreApplication::translate("Cli", "Unbekannte Option: %1").arg(w));
        } else if (o.type.isEmpty()) {
            o.type = w;
        } else {
            throw UsageError(
                QCoreApplication::translate("Cli", "Überzähliges Argument: %1").arg(w));
        }
    }
    if (!o.recipe.isEmpty()) {
        if (!o.type.isEmpty())
            throw UsageError(
                QCoreApplication::translate("Cli", "Überzähliges Argument: %1").arg(o.type));
        return o;
    }
    if (o.type.isEmpty())
        throw UsageError(QCoreApplication::translate("Cli", "Es fehlt der Grafiktyp."));
    if (!findType(o.type))
        throw UsageError(
            QCoreApplication::translate("Cli", "Unbekannter Grafiktyp: %1").arg(o.type));
    if (!o.presentation.isEmpty() && o.type != QLatin1String("PIC-Mosaik") &&
        o.type != QLatin1String("PIC-MosaikSuper"))
        throw UsageError(QCoreApplication::translate(
            "Cli", "Eine Präsentation (--presentation) malt nur PIC-Mosaik oder PIC-MosaikSuper."));
    return o;
}

void applyControls(Session &s, const PaintOptions &o)
{
    auto sets = o.sets;
    if (!o.textFile.isEmpty()) {
        QString message;
        const auto text = readTextFile(o.textFile, message);
        if (!text) throw UsageError(message);
        sets.emplace_back(QStringLiteral("txtOrthoIn"), *text);
    }
    for (const auto &[name, value] : sets) {
        const auto key = ControlKey::parse(name);
        const ControlSpec *def = key ? findControlSpec(*key) : nullptr;
        if (!def)
            throw UsageError(
                QCoreApplication::translate("Cli", "Unbekanntes Steuerelement: %1").arg(name));
        if (!s.controls().set(*key, value))
            throw UsageError(
                QCoreApplication::translate("Cli", "Ungültiger Wert für %1: %2").arg(name, value));
    }
    if (o.transparency)
        s.controls().set(ControlKey{QStringLiteral("ScrollTransparence")},
                         QString::number(*o.transparency));
}

bool applyColours(Session &s, const PaintOptions &o)
{
    ColourState &c = s.colours();
    if (o.fore) c.ColorFore = *o.fore;
    if (o.back) c.ColorBack = *o.back;
    if (o.border) c.ColorBorder = *o.border;
    if (o.textFore) c.TextFore = *o.textFore;
    if (o.textBack) c.TextBack = *o.textBack;
    // A colour given by hand is meant to be used.
    c.RandomColors = !(o.fore || o.back || o.border || o.textFore || o.textBack);
    c.RandomValues = o.randomValues.value_or(true);
    if (o.fore || o.back)
        Create2ColorPAL(s);
    if (!o.palette.isEmpty()) {
        const PaletteLoadResult r = Menu_LoadPalette(s, o.palette);
        // A file without the palette's signature is passed over silently on the desktop; here
        // the user asked for it by name and is told.
        if (r.outcome == PaletteLoadOutcome::NotJasc)
            printError(QCoreApplication::translate("Palette", "Palette file error or not there"));
        if (r.outcome != PaletteLoadOutcome::Loaded)
            return false;
    } else if (o.systemPalette && !Lade_RESPalette(s, *o.systemPalette)) {
        return false;
    }
    if (o.duotones)
        clickDuotones(s, *o.duotones, true);
    if (o.randomColors)
        c.RandomColors = *o.randomColors;
    return true;
}

namespace {

// One paint as the desktop program makes it, on a session of its own: over `over` when it is
// not null, else on a cleared picture. Answers the exit code; `result` and `record` are set on
// success.
//
// A Superformat type paints straight into the session's Superformat surface at `--size` (else
// at the size of its --set txtSuperSize fields), which is written to `superOutput` from the
// surface itself, without a copy and without an undo image; `result` stays null.
int paintOnce(const PaintOptions &o, const QImage &over, QImage &result, PaintRecord &record,
              PictureMeta &meta, const QString &superOutput = {})
{
    const bool super = isSuperformatType(o.type);
    if (super && !over.isNull()) {
        printError(QCoreApplication::translate(
            "Cli", "Ein Superformat wird in ein eigenes Bild gemalt, nicht über ein anderes."));
        return ExitUsage;
    }
    CliPrompter prompter;
    TerminalStatus status;
    Session s;
    s.setPainters(painterTable());
    s.setPrompter(&prompter);
    s.setStatus(&status);
    applyControls(s, o);

    // Undo images of large pictures go to files: a folder of this run's own keeps them away
    // from those of a running desktop program.
    QTemporaryDir temp;
    if (temp.isValid()) s.workspace().setTempDir(temp.path());
    InterruptYield interrupt;
    s.setYieldHook(&interrupt);

    QSize size = o.size.value_or(over.isNull() ? QSize(712, 712) : over.size());
    if (super) {
        if (o.size) {
            s.controls().setRaw(ControlKey{QStringLiteral("txtSuperSize"), 0},
                                QString::number(o.size->width()));
            s.controls().setRaw(ControlKey{QStringLiteral("txtSuperSize"), 1},
                                QString::number(o.size->height()));
        }
        // The picture control only stands by: the paint goes into the surface.
        size = QSize(712, 712);
        s.superformat().setKeepUndo(false);
    }
    Workspace &ws = s.workspace();
    // Nobody can press Undo here: the undo image is only wanted as the picture that a
    // transparent paint is laid over.
    ws.setUndoKept(s.controls().value(ControlKey{QStringLiteral("ScrollTransparence")}) != 0);
    ws.New_BildSize(size.width(), size.height());
    if (!over.isNull()) ws.Bild.setPicture(over);
    if (!applyColours(s, o))
        return ExitFailed;
    if (!o.presentation.isEmpty()) {
        // The stored layout, options and source, then what the command line says over them
        // (--source too); "Repaint letztes Set" paints it. No screen is compared here.
        if (!picPresentation_Load(s, o.presentation, QSize()))
            return ExitFailed;
        afterPresentationLoaded(s);
        applyControls(s, o);
        if (o.randomValues)
            s.colours().RandomValues = *o.randomValues;
    }
    if (const int code = applyPicSource(s, o); code != ExitOk)
        return code;

    const TypeLocation where = *findType(o.type);
    mn_Grafmodes(s, where.group);
    ListBoxType_Click(s, where.listIndex);
    s.paint().nextSeed = o.seed;

    PaintOutcome outcome = PaintOutcome::Failed;
    if (o.presentation.isEmpty()) {
        outcome = BtnPaint_Click(s);
    } else {
        outcome = BtnPicMosaik_Repaint(s);
    }
    s.setYieldHook(nullptr);
    if (outcome == PaintOutcome::NotPaintable) {
        printError(status.panelText(sbrState));
        return ExitFailed;
    }
    if (interrupt.interrupted()) {
        printError(QCoreApplication::translate("Cli", "Das Malen wurde abgebrochen."));
        return ExitFailed;
    }
    if (outcome != PaintOutcome::Painted || prompter.faultSeen() || !s.paint().lastPaint ||
        (super && !s.superformat().hasPicture())) {
        printError(QCoreApplication::translate("Cli", "Das Malen ist fehlgeschlagen."));
        return ExitFailed;
    }
    // Without a seed of its own the paint took one from the clock: the user may want it back.
    if (!o.seed) print(stderr, status.panelText(sbrState) + QLatin1Char('\n'));
    record = *s.paint().lastPaint;
    if (super) {
        meta = pictureMetaOf(s, QStringList{paintCommandLine(record)});
        QString message;
        if (!writeSurfaceForCommand(s.superformat().SuperDIB, superOutput, meta, message)) {
            printError(message);
            return ExitFailed;
        }
        return ExitOk;
    }
    result = ws.Bild.Image();
    meta = pictureMetaOf(s, {});
    return ExitOk;
}

// The paints of a picture file's recipe, one over the other, at their size or `size`.
int paintRecipe(const PaintOptions &o, const QString &output, QImage &result, PictureMeta &meta)
{
    const QStringList lines = readPictureMeta(o.recipe).recipe;
    if (lines.isEmpty()) {
        printError(QCoreApplication::translate("Cli", "Die Datei %1 enthält kein Rezept.")
                       .arg(o.recipe));
        return ExitFailed;
    }
    QStringList recipe;
    for (const QString &line : lines) {
        QString why;
        auto args = recipePaintArguments(line, why);
        if (!args) {
            printError(why);
            return ExitFailed;
        }
        if (o.size) *args = withSize(*args, QStringLiteral("%1x%2").arg(o.size->width()).arg(o.size->height()));
        const PaintOptions step = parsePaintOptions(args->mid(1));
        PaintRecord record;
        QImage painted;
        if (isSuperformatType(step.type) && lines.size() > 1) {
            printError(QCoreApplication::translate(
                "Cli", "Ein Superformat wird in ein eigenes Bild gemalt, nicht über ein anderes."));
            return ExitUsage;
        }
        if (const int code = paintOnce(step, result, painted, record, meta, output);
            code != ExitOk)
            return code;
        // A Superformat recipe is its one paint, written by paintOnce.
        if (isSuperformatType(step.type)) return ExitOk;
        result = painted;
        recipe << paintCommandLine(record);
    }
    meta.recipe = recipe;
    return ExitOk;
}

} // namespace

int runPaint(const QStringList &args)
{
    const PaintOptions o = parsePaintOptions(args);
    registerAllPanels();
    const QString output = o.output.isEmpty()
                               ? defaultOutput(o.recipe.isEmpty() ? o.type : QStringLiteral("recipe"))
                               : o.output;

    QImage result;
    PictureMeta meta;
    if (!o.recipe.isEmpty()) {
        if (const int code = paintRecipe(o, output, result, meta); code != ExitOk)
            return code;
    } else {
        QImage over;
        if (!o.over.isEmpty()) {
            QString message;
            over = readPictureForCommand(o.over, o.keepSize ? LoadLimit::KeepSize : LoadLimit::Box,
                                         message);
            if (over.isNull()) {
                printError(message);
                return ExitFailed;
            }
        }
        PaintRecord record;
        if (const int code = paintOnce(o, over, result, record, meta, output); code != ExitOk)
            return code;
        // A paint without transparency makes the whole picture; one laid over a given picture
        // cannot be made again from its command alone.
        // A presentation's layout is in its file, not in the command.
        if (o.presentation.isEmpty() && (over.isNull() || record.TranspPercent == 0))
            meta.recipe = QStringList{paintCommandLine(record)};
    }
    // A Superformat paint has written its surface itself.
    if (result.isNull()) return ExitOk;
    QString message;
    if (!writePictureForCommand(result, output, meta, message)) {
        printError(message);
        return ExitFailed;
    }
    return ExitOk;
}

} // namespace tf::cli
