#pragma once
// Taking a loaded picture over: the three load commands, the placing of the picture on the
// work picture (`Bild_Handle_Laden`) and the tidying after it (`Bild_Handle_Ladenachlauf`).
//
// Open (1) asks "Bild automatisch einpassen?" when the picture's size differs from the work
// picture: Yes stretches it into the work picture, No gives the work picture the loaded size
// (held at BildMaxSide on its longer side). Import (2) is placed as the fitting dialog
// (`frmPicImport`) chose. The tile command (3, "Web-Background") asks the same question from
// its own branch: Yes covers the work picture with copies of the tile at its own size, from the
// top left; No gives the work picture the tile's size.
//
// Every route takes the undo image first, as a paint does; the work picture stays as it was
// when the user declines or the picture is empty.

#include <QImage>
#include <QString>

namespace tf {

class Session;

enum class LoadCommand { Open = 1, Import = 2, Tile = 3 };

// The dialog title of a command: "Load picture", "Import picture", "Web-Background picture"
// (English in the code; the dialogs show the translation).
QString loadDialogTitle(LoadCommand command);
// True for the tile command's title: its first 14 characters are "Web-Background".
bool isTileTitle(const QString &title);
// The command whose dialog has `title`; a title of the tile command is recognised by its word.
LoadCommand loadCommandOfTitle(const QString &title);

// What frmPicImport hands back.
struct ImportChoice {
    enum Fit { Percent = 0, Stretch = 1, KeepAspect = 2 };
    int Opt_Wert = Stretch;  // optPicFormat
    int Prozent_Wert = 100;  // the percentage of the size for Percent, 1..1000
    bool antiAlias = false;  // XAAliasing
    bool Cancelled = false;
};

// The picture scaled to `size`: the nearest source pixel, or with `antiAlias` the surface's
// bilinear Resample.
QImage Stretch_Paint(const QImage &picture, QSize size, bool antiAlias);

// The picture placed on a `target`-sized picture with the `background` image beneath, as an
// import choice says (Percent: scaled and centred; Stretch: to the whole size; KeepAspect:
// the largest size with the picture's aspect, centred).
QImage placeImport(const QImage &picture, const QImage &background, const ImportChoice &choice);

// The work picture covered with copies of `tile` from the top left.
QImage tiledPicture(const QImage &tile, QSize size);

// Places `picture` (already decoded, at most MaxDecodeSide a side) on the work picture for the
// command. `import` is the fitting dialog's answer for Import. Answers true when Bild changed.
bool Bild_Handle_Laden(Session &s, const QImage &picture, const QString &title,
                       const ImportChoice *import = nullptr);

// The tidying after a placed picture: the action string says whether the size changed,
// the save command is enabled, and an opened file at its own size counts as unchanged.
void Bild_Handle_Ladenachlauf(Session &s, LoadCommand command, bool sizeChanged, bool asStored);

// A picture pasted while a selection is shown: it is stretched into the selection, whose
// action string turns to "RECTCOPIED" (rectangle) or "CIRCCOPIED" (ellipse). False when no
// selection is shown.
bool pasteIntoSelection(Session &s, const QImage &picture);

} // namespace tf
