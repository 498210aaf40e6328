#include "files/loadplace.h"

#include "core/fault.h"
#include "files/picturelimits.h"
#include "files/reduce.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <QPainter>

namespace tf {

QString loadDialogTitle(LoadCommand command)
{
    switch (command) {
    case LoadCommand::Import: return QStringLiteral("Import picture");
    case LoadCommand::Tile: return QStringLiteral("Web-Background picture");
    case LoadCommand::Open: break;
    }
    return QStringLiteral("Load picture");
}

bool isTileTitle(const QString &title)
{
    return title.left(14) == QLatin1String("Web-Background");
}

LoadCommand loadCommandOfTitle(const QString &title)
{
    if (isTileTitle(title))
        return LoadCommand::Tile;
    return title == loadDialogTitle(LoadCommand::Import) ? LoadCommand::Import : LoadCommand::Open;
}

QImage Stretch_Paint(const QImage &picture, QSize size, bool antiAlias)
{
    if (picture.size() == size)
        return picture.convertToFormat(QImage::Format_RGB32);
    if (antiAlias)
        return resampledImage(picture.convertToFormat(QImage::Format_RGB32), size);
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

QImage placeImport(const QImage &picture, const QImage &background, const ImportChoice &choice)
{
    const QSize target = background.size();
    QSize size = target;
    if (choice.Opt_Wert == ImportChoice::Percent) {
        const qint64 p = std::clamp(choice.Prozent_Wert, 1, 1000);
        size = QSize(int(std::clamp<qint64>(picture.width() * p / 100, 1, MaxDecodeSide)),
                     int(std::clamp<qint64>(picture.height() * p / 100, 1, MaxDecodeSide)));
    } else if (choice.Opt_Wert == ImportChoice::KeepAspect) {
        size = picture.size().scaled(target, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    }
    if (choice.Opt_Wert == ImportChoice::Stretch)
        return Stretch_Paint(picture, target, choice.antiAlias);
    QImage out = background.convertToFormat(QImage::Format_RGB32);
    QPainter p(&out);
    p.drawImage((target.width() - size.width()) / 2, (target.height() - size.height()) / 2,
                Stretch_Paint(picture, size, choice.antiAlias));
    return out;
}

QImage tiledPicture(const QImage &tile, QSize size)
{
    QImage out(size, QImage::Format_RGB32);
    QPainter p(&out);
    for (int y = 0; y < size.height(); y += tile.height())
        for (int x = 0; x < size.width(); x += tile.width())
            p.drawImage(x, y, tile);
    return out;
}

namespace {

// The work picture takes the picture's size (held at BildMaxSide on its longer side).
void takeOwnSize(Workspace &ws, const QImage &picture)
{
    const QSize size = fitIntoBox(picture.size(), QSize(BildMaxSide, BildMaxSide));
    const QImage image = resampledImage(picture.convertToFormat(QImage::Format_RGB32), size);
    ws.New_BildSize(size.width(), size.height());
    ws.Bild.setPicture(image);
    ws.Bild.markChanged();
}

void setPicture(Workspace &ws, const QImage &image)
{
    ws.Bild.setPicture(image);
    ws.Bild.markChanged();
}

} // namespace

bool Bild_Handle_Laden(Session &s, const QImage &picture, const QString &title,
                       const ImportChoice *import)
{
    if (picture.isNull())
        return false;
    bool changed = false;
    guarded(QStringLiteral("Bild_Handle_Laden"), [&] {
        Workspace &ws = s.workspace();
        const LoadCommand command = loadCommandOfTitle(title);
        const QSize work(ws.BildW, ws.BildH);
        const bool differs = picture.size() != work;
        if (command == LoadCommand::Import && import && import->Cancelled)
            return;
        bool fit = false;
        if (differs && !(command == LoadCommand::Import && import))
            fit = s.ask(QCoreApplication::translate("LoadImage", "Bild automatisch einpassen?"),
                        Buttons::YesNo, Icon::Question) == Answer::Yes;
        ws.Bild_nachUndo();
        bool sizeChanged = false;
        if (command == LoadCommand::Import && import) {
            setPicture(ws, placeImport(picture, ws.Bild.Image(), *import));
        } else if (!differs) {
            setPicture(ws, picture.convertToFormat(QImage::Format_RGB32));
        } else if (fit && command == LoadCommand::Tile) {
            setPicture(ws, tiledPicture(picture, work));
        } else if (fit) {
            setPicture(ws, Stretch_Paint(picture, work, false));
        } else {
            takeOwnSize(ws, picture);
            sizeChanged = true;
        }
        changed = true;
        Bild_Handle_Ladenachlauf(s, command, sizeChanged,
                                 command == LoadCommand::Open && (!differs || !fit));
    });
    return changed;
}

void Bild_Handle_Ladenachlauf(Session &s, LoadCommand command, bool sizeChanged, bool asStored)
{
    guarded(QStringLiteral("Bild_Handle_Ladenachlauf"), [&] {
        Workspace &ws = s.workspace();
        Q_UNUSED(command);
        ws.lastaction = sizeChanged ? QStringLiteral("BILDRESIZED") : QString();
        CommandState c = ws.commands;
        c.save = true;
        c.print = true;
        ws.setCommands(c);
        // A file opened as it is stored has nothing unsaved; a fitted, imported or tiled picture
        // is new work.
        ws.BildChanged = !asStored;
    });
}

bool pasteIntoSelection(Session &s, const QImage &picture)
{
    Workspace &ws = s.workspace();
    PictureBox *selection = ws.PicSelect.Visible()    ? &ws.PicSelect
                            : ws.picSelectC.Visible() ? &ws.picSelectC
                                                      : nullptr;
    if (!selection || picture.isNull())
        return false;
    const bool rect = selection == &ws.PicSelect;
    if (rect)
        ws.PicSelect_nachUndo();
    else
        ws.PicSelectC_nachUndo();
    selection->setPicture(
        Stretch_Paint(picture, QSize(selection->Width(), selection->Height()), false));
    selection->markChanged();
    ws.lastaction = rect ? QStringLiteral("RECTCOPIED") : QStringLiteral("CIRCCOPIED");
    return true;
}

} // namespace tf
