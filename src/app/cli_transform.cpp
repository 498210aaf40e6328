// `tarvelle-forge transform OPERATION in -o out ...`: the picture commands (quarter turns,
// mirrors, half mirrors, picture size, canvas size, cropping) on a picture, with the same code
// as the desktop program's menus: the picture becomes Bild of a session of its own.
#include "app/cli_common.h"

#include "core/colour.h"
#include "core/language.h"
#include "files/picturefile.h"
#include "filters/blurize.h"
#include "filters/geometry.h"
#include "filters/mirrors.h"
#include "paint/colourstate.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <functional>

namespace tf::cli {

namespace {

struct TransformOptions {
    QString operation, input, output;
    QString value;        // WxH, X,Y,W,H or the half mirror's name
    bool nearest = false; // size: Resize instead of Resample
    int anchor = 4;       // canvas: where the picture stands
    ColorLong back = 0xFFFFFF;
    QString with;     // the 3-D Blurize family: the picture before
    QStringList sets; // their sliders, LABEL=VALUE
};

// The operations that take a value, with the form of the value.
bool takesValue(const QString &op)
{
    return op == QLatin1String("size") || op == QLatin1String("canvas") ||
           op == QLatin1String("crop") || op == QLatin1String("half-mirror");
}

QSize parseSize(const QString &text)
{
    static const QRegularExpression re(QStringLiteral(R"(^(\d{1,6})x(\d{1,6})$)"));
    const auto m = re.match(text);
    if (!m.hasMatch())
        throw UsageError(QCoreApplication::translate("Cli", "Ungültige Größe: %1 (BxH)").arg(text));
    return {m.captured(1).toInt(), m.captured(2).toInt()};
}

QRect parseRect(const QString &text)
{
    static const QRegularExpression re(
        QStringLiteral(R"(^(\d{1,6}),(\d{1,6}),(\d{1,6}),(\d{1,6})$)"));
    const auto m = re.match(text);
    if (!m.hasMatch())
        throw UsageError(
            QCoreApplication::translate("Cli", "Ungültiger Ausschnitt: %1 (X,Y,B,H)").arg(text));
    return {m.captured(1).toInt(), m.captured(2).toInt(), m.captured(3).toInt(),
            m.captured(4).toInt()};
}

int parseAnchor(const QString &text)
{
    static const QStringList names = {
        QStringLiteral("top-left"),    QStringLiteral("top"),    QStringLiteral("top-right"),
        QStringLiteral("left"),        QStringLiteral("middle"), QStringLiteral("right"),
        QStringLiteral("bottom-left"), QStringLiteral("bottom"), QStringLiteral("bottom-right")};
    const qsizetype i = names.indexOf(text.toLower());
    if (i < 0)
        throw UsageError(
            QCoreApplication::translate(
                "Cli", "Ungültige Lage: %1 (top-left, top, ..., middle, ..., bottom-right)")
                .arg(text));
    return int(i);
}

HalfMirror parseHalfMirror(const QString &text)
{
    static const std::pair<const char *, HalfMirror> names[] = {
        {"left-to-right", HalfMirror::LeftToRight},
        {"right-to-left", HalfMirror::RightToLeft},
        {"top-to-bottom", HalfMirror::TopToBottom},
        {"bottom-to-top", HalfMirror::BottomToTop},
        {"prismatic", HalfMirror::Prismatic}};
    for (const auto &[name, which] : names)
        if (text.compare(QLatin1String(name), Qt::CaseInsensitive) == 0) return which;
    throw UsageError(QCoreApplication::translate(
                         "Cli",
                         "Ungültiger Halbspiegel: %1 (left-to-right, right-to-left, top-to-bottom, "
                         "bottom-to-top, prismatic)")
                         .arg(text));
}

TransformOptions parseTransformOptions(const QStringList &words)
{
    TransformOptions o;
    Arguments a(words);
    while (!a.atEnd()) {
        const QString w = a.next();
        if (w == QLatin1String("-o") || w == QLatin1String("--output")) {
            o.output = a.valueOf(w);
        } else if (w == QLatin1String("--nearest")) {
            o.nearest = true;
        } else if (w == QLatin1String("--anchor")) {
            o.anchor = parseAnchor(a.valueOf(w));
        } else if (w == QLatin1String("--back")) {
            o.back = parseColour(a.valueOf(w));
        } else if (w == QLatin1String("--with")) {
            o.with = a.valueOf(w);
        } else if (w == QLatin1String("--set")) {
            o.sets << a.valueOf(w);
        } else if (w.startsWith(QLatin1Char('-')) && w != QLatin1String("-")) {
            throw UsageError(QCoreApplication::translate("Cli", "Unbekannte Option: %1").arg(w));
        } else if (o.operation.isEmpty()) {
            o.operation = w;
        } else if (takesValue(o.operation) && o.value.isEmpty()) {
            o.value = w;
        } else if (o.input.isEmpty()) {
            o.input = w;
        } else {
            throw UsageError(
                QCoreApplication::translate("Cli", "Überzähliges Argument: %1").arg(w));
        }
    }
    if (o.operation.isEmpty())
        throw UsageError(QCoreApplication::translate("Cli", "Es fehlt die Umformung."));
    if (takesValue(o.operation) && o.value.isEmpty())
        throw UsageError(QCoreApplication::translate("Cli", "Es fehlt der Wert der Umformung %1.")
                             .arg(o.operation));
    if (o.input.isEmpty())
        throw UsageError(
            QCoreApplication::translate("Cli", "Es fehlt das Bild, das umgeformt wird."));
    if (o.output.isEmpty())
        throw UsageError(QCoreApplication::translate("Cli", "Es fehlt die Ausgabe (-o DATEI)."));
    if (findBlurize(o.operation) && o.with.isEmpty())
        throw UsageError(QCoreApplication::translate(
                             "Cli", "Die Umformung %1 braucht ein zweites Bild (--with DATEI).")
                             .arg(o.operation));
    return o;
}

// The slider values of a routine of the 3-D Blurize family from LABEL=VALUE settings.
FilterArgs blurizeArguments(const BlurizeRow &row, const QStringList &sets)
{
    FilterArgs args = blurizeDefaults(row);
    for (const QString &set : sets) {
        const qsizetype eq = set.indexOf(QLatin1Char('='));
        bool found = false;
        for (size_t i = 0; i < row.sliders.size() && eq > 0; ++i) {
            const FilterSlider &sl = row.sliders[i];
            const QString key = set.left(eq);
            if (key.compare(sl.label(Language::German), Qt::CaseInsensitive) != 0 &&
                key.compare(sl.label(Language::English), Qt::CaseInsensitive) != 0)
                continue;
            bool ok = false;
            const int v = set.mid(eq + 1).toInt(&ok);
            if (!ok || v < sl.min || v > sl.max)
                throw UsageError(
                    QCoreApplication::translate("Cli", "%1 liegt außerhalb von %2 bis %3.")
                        .arg(set)
                        .arg(sl.min)
                        .arg(sl.max));
            args.sliders[i] = v;
            found = true;
        }
        if (!found)
            throw UsageError(
                QCoreApplication::translate("Cli", "Ungültige Einstellung: %1 (REGLER=WERT)")
                    .arg(set));
    }
    args.argument = args.sliders[0];
    return args;
}

// The command of an operation on the session.
std::function<bool(Session &)> commandOf(const TransformOptions &o)
{
    const QString &op = o.operation;
    if (const BlurizeRow *row = findBlurize(op)) {
        const FilterArgs args = blurizeArguments(*row, o.sets);
        const int selector = row->selector;
        return [selector, args](Session &s) { return Menu_Blurize(s, selector, args); };
    }
    if (op == QLatin1String("turn-right")) return [](Session &s) { return Menu_Turn(s, 1); };
    if (op == QLatin1String("turn-180")) return [](Session &s) { return Menu_Turn(s, 2); };
    if (op == QLatin1String("turn-left")) return [](Session &s) { return Menu_Turn(s, 3); };
    if (op == QLatin1String("mirror-v")) return mn_MirrorV;
    if (op == QLatin1String("mirror-h")) return mn_MirrorH;
    if (op == QLatin1String("half-mirror")) {
        const int index = int(parseHalfMirror(o.value));
        return [index](Session &s) { return mn_KlappH(s, index); };
    }
    if (op == QLatin1String("size")) {
        const QSize size = parseSize(o.value);
        const bool smooth = !o.nearest;
        return [size, smooth](Session &s) {
            return Menu_PictureSize(s, size.width(), size.height(), smooth);
        };
    }
    if (op == QLatin1String("canvas")) {
        const QSize size = parseSize(o.value);
        const int anchor = o.anchor;
        return [size, anchor](Session &s) {
            return Menu_CanvasSize(s, size.width(), size.height(), anchor);
        };
    }
    if (op == QLatin1String("crop")) {
        const QRect r = parseRect(o.value);
        return [r](Session &s) {
            // The part becomes a shown rectangular selection, as the selection tool leaves it.
            Workspace &ws = s.workspace();
            const QRect part = r.intersected(ws.Bild.Image().rect());
            if (part.isEmpty()) return false;
            ws.PicSelect.resize(part.width(), part.height());
            ws.PicSelect.setPicture(ws.Bild.Image().copy(part));
            ws.PicSelect.Move(part.x(), part.y());
            ws.PicSelect.setVisible(true);
            return Menu_CropToSelection(s);
        };
    }
    throw UsageError(
        QCoreApplication::translate("Cli", "Unbekannte Umformung: %1 (siehe --help)").arg(op));
}

} // namespace

int runTransform(const QStringList &args)
{
    const TransformOptions o = parseTransformOptions(args);
    const auto command = commandOf(o);
    // The picture at its own size, as batch work expects.
    QString message;
    const QImage picture = readPictureForCommand(o.input, LoadLimit::KeepSize, message);
    if (picture.isNull()) {
        printError(message);
        return ExitFailed;
    }
    CliPrompter prompter;
    TerminalStatus status;
    Session s;
    s.setPrompter(&prompter);
    s.setStatus(&status);
    QTemporaryDir temp;
    if (temp.isValid()) s.workspace().setTempDir(temp.path());
    s.colours().ColorBack = o.back;
    Workspace &ws = s.workspace();
    ws.New_BildSize(picture.width(), picture.height());
    if (!o.with.isEmpty()) {
        // The second picture is the picture before: it goes into the undo slot, as after a
        // change in the program.
        const QImage before = readPictureForCommand(o.with, LoadLimit::KeepSize, message);
        if (before.isNull()) {
            printError(message);
            return ExitFailed;
        }
        ws.Bild.setPicture(
            before.scaled(picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        ws.Bild_nachUndo();
    }
    ws.Bild.setPicture(picture);
    if (!command(s) || prompter.faultSeen()) {
        printError(QCoreApplication::translate("Cli", "Das Umformen ist fehlgeschlagen."));
        return ExitFailed;
    }
    if (!writePictureForCommand(ws.Bild.Image(), o.output, PictureMeta{}, message)) {
        printError(message);
        return ExitFailed;
    }
    return ExitOk;
}

} // namespace tf::cli
