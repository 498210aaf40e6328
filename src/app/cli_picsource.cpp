// `paint ... --source DIR|FILE`: the photos of the mosaic types on the command line.
#include "app/cli_common.h"
#include "app/cli_paint.h"

#include "generators/painters.h"
#include "generators/picmosaik.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/typepanels.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace tf::cli {

int applyPicSource(Session &s, const PaintOptions &o)
{
    if (!readsPhotoSource(o.type)) {
        if (!o.source.isEmpty())
            throw UsageError(QCoreApplication::translate(
                                 "Cli", "Die Option --source gilt nur für Typen mit Fotos, "
                                        "nicht für %1.")
                                 .arg(o.type));
        return ExitOk;
    }
    // A type whose painter is not built in says so when it is painted.
    const PainterEntry *entry = findPainter(painterTable(), o.type);
    if (!entry || !entry->paint)
        return ExitOk;
    if (!o.source.isEmpty()) {
        const QFileInfo fi(o.source);
        // A path that is not there keeps the panel's kind of source, for the message.
        const bool fromFile =
            fi.exists() ? fi.isFile()
                        : s.controls().listIndex(ControlKey{QStringLiteral("optPicMosaikSource")}) == 0;
        setPicSource(s, fi.exists() ? fi.absoluteFilePath() : o.source, fromFile,
                     s.controls().checked(QStringLiteral("XPicMosaikSubDirs")));
    }
    return picSourceReady(s) ? ExitOk : ExitUsage;
}

} // namespace tf::cli
