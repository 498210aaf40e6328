// `tarvelle-forge gallery -o DIR [--size WxH] [--seed N] [--group G]`: the contact sheet of
// every type that paints. Each type is painted on a session of its own, as `paint` would paint
// it, saved as DIR/<key>.png, and shown on DIR/index.html with its two captions and the
// command line that paints it again.
#include "app/cli_common.h"
#include "app/cli_paint.h"

#include "files/picturefile.h"
#include "files/picturemeta.h"
#include "files/reduce.h"
#include "files/safefile.h"
#include "generators/painters.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/paintdriver.h"
#include "paint/paintrecord.h"
#include "paint/session.h"
#include "paint/superformat.h"
#include "paint/typepanels.h"

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <optional>

namespace tf::cli {

namespace {

struct GalleryOptions {
    QString dir;
    QSize size{256, 256};
    uint32_t seed = 1;
    std::optional<int> group;
    QString source; // the photos of the types that read photos; without it they are left out
};

int number(const QString &option, const QString &text, long long min, long long max)
{
    bool ok = false;
    const long long n = text.toLongLong(&ok);
    if (!ok || n < min || n > max)
        throw UsageError(
            QCoreApplication::translate("Cli", "Ungültiger Wert für %1: %2").arg(option, text));
    return int(n);
}

GalleryOptions parseGalleryOptions(const QStringList &words)
{
    GalleryOptions o;
    Arguments a(words);
    while (!a.atEnd()) {
        const QString w = a.next();
        if (w == QLatin1String("-o") || w == QLatin1String("--output")) {
            o.dir = a.valueOf(w);
        } else if (w == QLatin1String("--size")) {
            static const QRegularExpression re(QStringLiteral(R"(^(\d{1,4})[xX](\d{1,4})$)"));
            const QString v = a.valueOf(w);
            const auto m = re.match(v);
            const int width = m.hasMatch() ? m.captured(1).toInt() : 0;
            const int height = m.hasMatch() ? m.captured(2).toInt() : 0;
            if (width < 1 || height < 1)
                throw UsageError(QCoreApplication::translate(
                                     "Cli", "Ungültige Größe: %1 (BREITExHÖHE, 1 bis 14000)")
                                     .arg(v));
            o.size = QSize(width, height);
        } else if (w == QLatin1String("--seed")) {
            o.seed = uint32_t(number(w, a.valueOf(w), 0, 0x7FFFFFFF));
        } else if (w == QLatin1String("--group")) {
            o.group = number(w, a.valueOf(w), 1, GroupCount);
        } else if (w == QLatin1String("--source")) {
            o.source = a.valueOf(w);
        } else {
            throw UsageError(QCoreApplication::translate("Cli", "Unbekannte Option: %1").arg(w));
        }
    }
    if (o.dir.isEmpty())
        throw UsageError(QCoreApplication::translate("Cli", "Es fehlt der Ordner (-o ORDNER)."));
    return o;
}

// "Neon vertical" -> "Neon_vertical.png", as `paint` names its picture.
QString pictureFileName(const QString &key)
{
    QString name = key;
    name.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9_-]")), QStringLiteral("_"));
    return name + QStringLiteral(".png");
}

struct Sheet {
    QString key, english, german, file, command;
};

// Types that rework the picture that stands are shown over this one.
const QString GalleryBase = QStringLiteral("Boxes-Randomized");

// Paints one type as `tarvelle-forge paint KEY --size WxH --seed N` does; answers the
// picture, empty when the paint failed, and the record it left. A type that reworks the
// picture that stands is painted over `GalleryBase`, whose record goes to `base`. A
// Superformat type paints its surface at the gallery's size; the picture is the surface.
QImage paintOne(const QString &key, const GalleryOptions &o, QTemporaryDir &temp,
                std::optional<PaintRecord> &record, std::optional<PaintRecord> &base)
{
    CliPrompter prompter;
    RecordingStatus status;
    Session s;
    s.setPainters(painterTable());
    s.setPrompter(&prompter);
    s.setStatus(&status);
    if (temp.isValid()) s.workspace().setTempDir(temp.path());
    const bool super = isSuperformatType(key);
    if (super) {
        s.controls().setRaw(ControlKey{QStringLiteral("txtSuperSize"), 0},
                            QString::number(o.size.width()));
        s.controls().setRaw(ControlKey{QStringLiteral("txtSuperSize"), 1},
                            QString::number(o.size.height()));
        s.superformat().setKeepUndo(false);
    }
    s.workspace().New_BildSize(o.size.width(), o.size.height());
    const auto paintType = [&](const QString &k) {
        const TypeLocation where = *findType(k);
        mn_Grafmodes(s, where.group);
        ListBoxType_Click(s, where.listIndex);
        s.paint().nextSeed = o.seed;
        return BtnPaint_Click(s) == PaintOutcome::Painted && !prompter.faultSeen();
    };
    const PainterEntry *entry = findPainter(s.painters(), key);
    if (entry && entry->overPicture) {
        if (!paintType(GalleryBase)) return QImage();
        base = s.paint().lastPaint;
    }
    if (!o.source.isEmpty() && readsPhotoSource(key)) {
        // A gallery shows what a folder of photos gives, its sub-folders included.
        s.controls().set(controlKey("XPicMosaikSubDirs"), QStringLiteral("1"));
        PaintOptions paint;
        paint.type = key;
        paint.source = o.source;
        if (applyPicSource(s, paint) != ExitOk) return QImage();
    }
    if (!paintType(key)) return QImage();
    record = s.paint().lastPaint;
    if (super)
        return s.superformat().hasPicture() ? imageOfDib(s.superformat().SuperDIB) : QImage();
    return s.workspace().Bild.Image();
}

QString indexPage(const std::vector<std::pair<int, std::vector<Sheet>>> &groups,
                  const GalleryOptions &o)
{
    QString html;
    html += QStringLiteral(
        "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
        "<title>Tarvelle-Forge gallery</title>\n<style>\n"
        "body{font-family:sans-serif;background:#f4f4f2;color:#222;margin:24px}\n"
        "h1{font-size:22px}h2{font-size:18px;margin-top:28px;border-bottom:1px solid #ccc}\n"
        ".sheet{display:flex;flex-wrap:wrap;gap:18px}\n"
        "figure{margin:0;width:%1px;background:#fff;padding:8px;box-shadow:0 1px 3px #0003}\n"
        "figure img{display:block;width:%1px;height:auto}\n"
        "figcaption{font-size:13px;margin-top:6px}\n.de{color:#555}\n"
        "code{display:block;font-size:10px;color:#336;word-break:break-all;margin-top:4px}\n"
        "</style>\n</head>\n<body>\n<h1>Tarvelle-Forge gallery</h1>\n"
        "<p>Every type that paints, at %2 &times; %3 pixels, seed %4.</p>\n")
                .arg(std::min(o.size.width(), 256))
                .arg(o.size.width())
                .arg(o.size.height())
                .arg(o.seed);
    for (const auto &[group, sheets] : groups) {
        html += QStringLiteral("<h2>%1. %2 / %3</h2>\n<div class=\"sheet\">\n")
                    .arg(group)
                    .arg(groupCaption(group, Language::English)
                             .replace(QLatin1String("&&"), QLatin1String("&"))
                             .toHtmlEscaped(),
                         groupCaption(group, Language::German)
                             .replace(QLatin1String("&&"), QLatin1String("&"))
                             .toHtmlEscaped());
        for (const Sheet &sheet : sheets)
            html += QStringLiteral("<figure><img src=\"%1\" alt=\"%2\"><figcaption>"
                                   "<b>%3</b><br><span class=\"de\">%4</span>"
                                   "<code>%5</code></figcaption></figure>\n")
                        .arg(sheet.file.toHtmlEscaped(), sheet.key.toHtmlEscaped(),
                             sheet.english.simplified().toHtmlEscaped(),
                             sheet.german.simplified().toHtmlEscaped(),
                             sheet.command.toHtmlEscaped());
        html += QStringLiteral("</div>\n");
    }
    html += QStringLiteral("</body>\n</html>\n");
    return html;
}

bool writeFile(const QString &path, const QByteArray &bytes, QString &message)
{
    const WriteResult r = writeFileSafely(path, [&](QIODevice &out, QString &) {
        return out.write(bytes) == bytes.size();
    });
    message = r.message;
    return r.ok();
}

} // namespace

int runGallery(const QStringList &args)
{
    const GalleryOptions o = parseGalleryOptions(args);
    registerAllPanels();
    if (!QDir().mkpath(o.dir)) {
        printError(QCoreApplication::translate("Cli", "Der Ordner %1 kann nicht angelegt werden.")
                       .arg(o.dir));
        return ExitFailed;
    }
    const QDir dir(o.dir);
    QTemporaryDir temp;
    std::vector<std::pair<int, std::vector<Sheet>>> groups;
    bool failed = false;
    for (int g = 1; g <= GroupCount; ++g) {
        if (o.group && *o.group != g) continue;
        std::vector<Sheet> sheets;
        for (const CatalogueRow &row : groupRows(g)) {
            if (row.isSeparator()) continue;
            const QString key = QString::fromUtf8(row.key);
            const PainterEntry *entry = findPainter(painterTable(), key);
            if (!entry || !entry->paint) continue;
            // The types that paint photos need a source to paint from.
            if (o.source.isEmpty() && readsPhotoSource(key)) continue;
            std::optional<PaintRecord> record, base;
            const QImage picture = paintOne(key, o, temp, record, base);
            const QString file = pictureFileName(key);
            if (picture.isNull() || !record) {
                printError(
                    QCoreApplication::translate("Cli", "„%1“ konnte nicht gemalt werden.").arg(key));
                failed = true;
                continue;
            }
            // Each picture carries its recipe, as every picture the program writes after a paint.
            PictureMeta meta;
            meta.software = softwareText();
            meta.recipe = QStringList{paintCommandLine(*record)};
            QString message;
            if (!writePictureForCommand(picture, dir.filePath(file), meta, message)) {
                printError(message);
                return ExitFailed;
            }
            QString command;
            if (base) {
                const QString under = QStringLiteral("under-") + file;
                command = paintCommandLine(*base) + QStringLiteral(" -o ") + shellQuote(under) +
                          QStringLiteral(" && ") + paintCommandLine(*record) +
                          QStringLiteral(" --over ") + shellQuote(under);
            } else {
                command = paintCommandLine(*record);
            }
            sheets.push_back({key, QString::fromUtf8(row.english), QString::fromUtf8(row.german),
                              file, command + QStringLiteral(" -o ") + shellQuote(file)});
        }
        if (!sheets.empty()) groups.emplace_back(g, std::move(sheets));
    }
    QString message;
    if (!writeFile(dir.filePath(QStringLiteral("index.html")), indexPage(groups, o).toUtf8(),
                   message)) {
        printError(message);
        return ExitFailed;
    }
    return failed ? ExitFailed : ExitOk;
}

} // namespace tf::cli
