// `tarvelle-forge filters` lists the filter table; `tarvelle-forge filter NUMBER|NAME in -o
// out ...` runs one filter, or a chain of them (`--then`), on a picture with the same code as
// the desktop program's menus, and writes the result in one piece.
#include "app/cli_common.h"

#include "core/colour.h"
#include "filters/colourcommand.h"
#include "filters/dografic.h"
#include "filters/filtercommand.h"
#include "files/picturefile.h"
#include "filters/filtertable.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>
#include <optional>
#include <vector>

namespace tf::cli {

namespace {

// ---- Reading and writing pictures: the one place the command's files go through. ---------
// A filter works on the picture at its own size (up to the surface's limit), as batch work
// expects; the desktop program's 1600 box is for the screen.
QImage readPicture(const QString &path, QString &message)
{
    return readPictureForCommand(path, LoadLimit::KeepSize, message);
}

bool writePicture(const QImage &image, const QString &path, QString &message)
{
    return writePictureForCommand(image, path, PictureMeta{}, message);
}

// ---- One step of the chain ------------------------------------------------------------------
constexpr const char *SepiaName = "sepia";

struct Step {
    const FilterRow *row = nullptr; // null: sepia
    FilterArgs args;
    bool argumentGiven = false;
    bool colourGiven = false; // --colour0
};

int parseInt(const QString &option, const QString &text)
{
    bool ok = false;
    const int v = text.toInt(&ok);
    if (!ok) throw UsageError(QCoreApplication::translate("Cli", "Ungültiger Wert für %1: %2").arg(option, text));
    return v;
}

Step startStep(const QString &name)
{
    Step st;
    if (name.compare(QLatin1String(SepiaName), Qt::CaseInsensitive) == 0) return st;
    st.row = findFilter(name);
    if (!st.row) throw UsageError(QCoreApplication::translate("Cli", "Unbekannter Filter: %1 (siehe `filters`)").arg(name));
    if (!st.row->available())
        throw UsageError(QCoreApplication::translate("Cli", "Der Filter %1 ist noch nicht eingebaut.").arg(name));
    if (st.row->entries.empty() && st.row->sliders.empty())
        throw UsageError(QCoreApplication::translate("Cli", "Unbekannter Filter: %1 (siehe `filters`)").arg(name));
    st.args = defaultArguments(*st.row);
    if (st.row->sliders.empty() && !st.row->entries.empty()) {
        const FilterMenuEntry &e = st.row->entries[0];
        // Without a colour given, the colour filters take a middle grey.
        st.args.argument = e.rule == ArgumentRule::Fixed ? e.argument : RGB(128, 128, 128);
    }
    return st;
}

// The channel mixer's settings: red=g, green=-b (inverted), blue=off (cleared).
bool setMixer(Step &st, const QString &key, const QString &value)
{
    static const QStringList outputs = {QStringLiteral("red"), QStringLiteral("green"),
                                        QStringLiteral("blue")};
    const qsizetype o = outputs.indexOf(key.toLower());
    if (o < 0) return false;
    QString v = value.toLower();
    const size_t i = size_t(o);
    st.args.kill[i] = v == QLatin1String("off");
    st.args.invert[i] = v.startsWith(QLatin1Char('-'));
    if (st.args.invert[i]) v = v.mid(1);
    if (!st.args.kill[i]) {
        const qsizetype src = QStringList{QStringLiteral("r"), QStringLiteral("g"), QStringLiteral("b")}.indexOf(v);
        if (src < 0) throw UsageError(QCoreApplication::translate("Cli", "Ungültiger Wert für %1: %2").arg(key, value));
        st.args.mixSource[i] = int(src);
    }
    return true;
}

void setSlider(Step &st, const QString &assignment)
{
    const qsizetype eq = assignment.indexOf(QLatin1Char('='));
    if (eq < 1 || !st.row)
        throw UsageError(QCoreApplication::translate("Cli", "Ungültige Einstellung: %1 (REGLER=WERT)").arg(assignment));
    const QString key = assignment.left(eq), value = assignment.mid(eq + 1);
    if (st.row->mixer && setMixer(st, key, value)) return;
    // The check boxes of stretching and rotation: "Größe anpassen" and "Hintergrund löschen".
    if (st.row->resizeOptions) {
        bool *box = key.compare(QLatin1String("resize"), Qt::CaseInsensitive) == 0 ? &st.args.resizeToFit
                    : key.compare(QLatin1String("clean-back"), Qt::CaseInsensitive) == 0 ? &st.args.cleanBack
                                                                                         : nullptr;
        if (box) {
            if (value != QLatin1String("0") && value != QLatin1String("1"))
                throw UsageError(QCoreApplication::translate("Cli", "Ungültiger Wert für %1: %2").arg(key, value));
            *box = value == QLatin1String("1");
            return;
        }
    }
    for (size_t i = 0; i < st.row->sliders.size(); ++i) {
        const FilterSlider &sl = st.row->sliders[i];
        if (key != QString::number(i) &&
            key.compare(sl.label(Language::German), Qt::CaseInsensitive) != 0 &&
            key.compare(sl.label(Language::English), Qt::CaseInsensitive) != 0)
            continue;
        int v = 0;
        if (sl.asGamma && value.contains(QLatin1Char('.'))) {
            bool ok = false;
            const double d = value.toDouble(&ok);
            if (!ok) throw UsageError(QCoreApplication::translate("Cli", "Ungültiger Wert für %1: %2").arg(key, value));
            v = int(roundHalfEven(d * 100.0));
        } else {
            v = parseInt(key, value);
        }
        if (v < sl.min || v > sl.max)
            throw UsageError(QCoreApplication::translate("Cli", "%1 liegt außerhalb von %2 bis %3.")
                                 .arg(assignment, sl.display(sl.min), sl.display(sl.max)));
        st.args.sliders[i] = v;
        if (i == 0) st.args.argument = v;
        return;
    }
    throw UsageError(QCoreApplication::translate("Cli", "Der Filter %1 hat keinen Regler %2.")
                         .arg(QString::fromUtf8(st.row->name), key));
}

struct FilterOptions {
    std::vector<Step> steps;
    QString input, output;
    std::optional<uint32_t> seed;
    int threads = 0;
};

FilterOptions parseFilterOptions(const QStringList &words)
{
    FilterOptions o;
    Arguments a(words);
    while (!a.atEnd()) {
        const QString w = a.next();
        Step *st = o.steps.empty() ? nullptr : &o.steps.back();
        const auto need = [&]() -> Step & {
            if (!st) throw UsageError(QCoreApplication::translate("Cli", "Es fehlt der Filter."));
            return *st;
        };
        if (w == QLatin1String("-o") || w == QLatin1String("--output")) {
            o.output = a.valueOf(w);
        } else if (w == QLatin1String("--then")) {
            need();
            o.steps.push_back(startStep(a.valueOf(w)));
        } else if (w == QLatin1String("--arg")) {
            Step &s = need();
            const QString v = a.valueOf(w);
            s.args.argument = v.startsWith(QLatin1Char('#')) ? parseColour(v) : parseInt(w, v);
            if (s.row && !s.row->sliders.empty()) s.args.sliders[0] = s.args.argument;
        } else if (w == QLatin1String("--set")) {
            setSlider(need(), a.valueOf(w));
        } else if (w == QLatin1String("--colour0") || w == QLatin1String("--colour1")) {
            Step &s = need();
            const ColorLong c = parseColour(a.valueOf(w));
            const size_t i = w.endsWith(QLatin1Char('1')) ? 1 : 0;
            s.args.colours[i] = c;
            if (i == 0) s.colourGiven = true;
            // A filter whose argument is a colour takes the first colour as its argument.
            if (i == 0 && s.row && s.row->sliders.empty() && !s.row->entries.empty() &&
                s.row->entries[0].rule != ArgumentRule::Fixed)
                s.args.argument = c;
        } else if (w == QLatin1String("--back")) {
            need().args.background = parseColour(a.valueOf(w));
        } else if (w == QLatin1String("--at")) {
            Step &s = need();
            const QString v = a.valueOf(w);
            static const QRegularExpression re(QStringLiteral(R"(^(\d+),(\d+)$)"));
            const auto m = re.match(v);
            if (!m.hasMatch()) throw UsageError(QCoreApplication::translate("Cli", "Ungültige Position: %1 (X,Y)").arg(v));
            s.args.position = QPoint(m.captured(1).toInt(), m.captured(2).toInt());
        } else if (w == QLatin1String("--seed")) {
            o.seed = uint32_t(parseInt(w, a.valueOf(w)));
        } else if (w == QLatin1String("--threads")) {
            o.threads = parseInt(w, a.valueOf(w));
        } else if (w.startsWith(QLatin1Char('-')) && w != QLatin1String("-")) {
            throw UsageError(QCoreApplication::translate("Cli", "Unbekannte Option: %1").arg(w));
        } else if (o.steps.empty()) {
            o.steps.push_back(startStep(w));
        } else if (o.input.isEmpty()) {
            o.input = w;
        } else {
            throw UsageError(QCoreApplication::translate("Cli", "Überzähliges Argument: %1").arg(w));
        }
    }
    if (o.steps.empty()) throw UsageError(QCoreApplication::translate("Cli", "Es fehlt der Filter."));
    if (o.input.isEmpty()) throw UsageError(QCoreApplication::translate("Cli", "Es fehlt das Bild, das gefiltert wird."));
    if (o.output.isEmpty()) throw UsageError(QCoreApplication::translate("Cli", "Es fehlt die Ausgabe (-o DATEI)."));
    return o;
}

QString argumentsOf(const FilterRow &row)
{
    QStringList parts;
    for (size_t i = 0; i < row.sliders.size(); ++i) {
        const FilterSlider &sl = row.sliders[i];
        parts << QStringLiteral("--set %1=%2..%3 (%4)")
                     .arg(sl.label(Language::English).replace(QLatin1Char(' '), QLatin1Char('_')),
                          sl.display(sl.min), sl.display(sl.max), sl.display(sl.def));
    }
    if (row.colourFields >= 1) parts << QStringLiteral("--colour0 #RRGGBB");
    if (row.colourFields >= 2) parts << QStringLiteral("--colour1 #RRGGBB");
    if (row.mixer) parts << QStringLiteral("--set red|green|blue=r|g|b|-r|-g|-b|off");
    if (row.previewed == StartsPreviewed::Position) parts << QStringLiteral("--at X,Y");
    if (row.resizeOptions) parts << QStringLiteral("--set resize=0|1 (0) --set clean-back=0|1 (1)");
    if (row.number >= 51 && row.number <= 53) parts << QStringLiteral("--back #RRGGBB (#FFFFFF)");
    if (row.sliders.empty() && !row.entries.empty()) {
        const FilterMenuEntry &e = row.entries[0];
        if (e.rule != ArgumentRule::Fixed) {
            parts << QStringLiteral("--colour0 #RRGGBB (#808080)");
        } else {
            QStringList values;
            for (const FilterMenuEntry &x : row.entries)
                values << QString::number(x.argument);
            values.removeDuplicates();
            if (values != QStringList{QStringLiteral("0")})
                parts << QStringLiteral("--arg %1").arg(values.join(QLatin1Char('|')));
        }
    }
    return parts.join(QLatin1Char(' '));
}

} // namespace

int runFilters(const QStringList &args)
{
    if (!args.isEmpty()) throw UsageError(QCoreApplication::translate("Cli", "Überzähliges Argument: %1").arg(args.first()));
    QString out;
    for (const FilterRow &row : filterTable()) {
        out += QStringLiteral("%1  %2  %3 / %4")
                   .arg(row.number, 4)
                   .arg(QString::fromUtf8(row.name), -20)
                   .arg(row.caption(Language::German), row.caption(Language::English));
        if (!row.available())
            out += QStringLiteral("  (not built in yet)");
        else if (const QString a = argumentsOf(row); !a.isEmpty())
            out += QStringLiteral("\n        ") + a;
        out += QLatin1Char('\n');
    }
    out += QStringLiteral("      %1  Sepia / Sepia\n").arg(QLatin1String(SepiaName), -20);
    print(stdout, out);
    return ExitOk;
}

int runFilter(const QStringList &args)
{
    const FilterOptions o = parseFilterOptions(args);
    QString message;
    QImage picture = readPicture(o.input, message);
    if (picture.isNull()) {
        printError(message);
        return ExitFailed;
    }
    CliPrompter prompter;
    TerminalStatus status;
    Session s;
    s.setPrompter(&prompter);
    s.setStatus(&status);
    s.filters().threads = o.threads;
    if (o.seed) s.seed(*o.seed);
    for (Step st : o.steps) {
        // The colour mix takes the session's background colour, as "Backgroundcolor" does,
        // unless a colour is given.
        if (st.row && st.row->number == 45 && !st.colourGiven) st.args.colours[0] = s.colours().ColorBack;
        // Nothing is written after a fault: the picture may serve as the filter's array.
        const bool ok = st.row ? DoGraficFilters(s, st.row->runsAs(), picture, st.args,
                                                 OnFault::PictureSpent)
                               : (colourisePicture(s, picture, SepiaValues), true);
        if (!ok || prompter.faultSeen()) {
            printError(QCoreApplication::translate("Cli", "Das Filtern ist fehlgeschlagen."));
            return ExitFailed;
        }
    }
    if (!writePicture(picture, o.output, message)) {
        printError(message);
        return ExitFailed;
    }
    return ExitOk;
}

} // namespace tf::cli
