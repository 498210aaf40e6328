#pragma once
// Picture presentations: the session's photo mosaic layout, its options and its source folder
// stored in a .tvp file (files/presentationfile.h) and loaded again, so that a show can be
// repeated on another day.
//
// Saving reads the options from the controls (the mosaic panel "feat_15PicMosaik", cmbPen and
// XBorders of the paint dialog), the three colours of the colour state and the layout from the
// session's Mondrian tables; the file is written whole or not at all. Loading tests the header
// first and changes nothing when it fails; then the source, the options, the colours and the
// tables are taken over, and the session stands as if the layout had just been painted:
// "Repaint letztes Set" paints it with the loaded source.
//
// The source folder of line 2 is taken only when it looks like a full path: a Windows path
// (it holds ":\") or an absolute path of this system (it begins with "/"); anything else (a
// network share, an empty text for a file source) leaves the present source as it stands.
// A path taken that is not there on this computer is named in a message and not taken.

#include "files/presentationfile.h"

#include <QSize>
#include <QString>

namespace tf {

class Session;

// The size of the screen in pixels (0 x 0 without a display).
QSize presentScreenSize();

// The presentation the session holds now, for a screen of `screen`.
PicPresentation presentationOfSession(const Session &s, QSize screen);

// The session holds a layout that can be saved: H x V above 0 and its tables.
bool presentationLayoutReady(const Session &s);

// Writes the session's presentation to `Path` (safely). False after a message on failure.
bool picPresentation_Save(Session &s, const QString &Path, QSize screen = presentScreenSize());

// Reads `Path` into the session. False after a message ("Falsches Dateiformat!", or a fault
// under "picPresentation_Load") and the session unchanged; the messages on the source folder
// and the screen size do not stop it.
bool picPresentation_Load(Session &s, const QString &Path, QSize screen = presentScreenSize());

// What follows a successful load before the next repaint: the scanned list no longer fits the
// source, and the frames are to be counted anew.
void afterPresentationLoaded(Session &s);

// The file dialogs of Menu_OpenPicPresentation. Each answers the chosen path, or an empty
// text when cancelled.
class PresentationChooser {
public:
    virtual ~PresentationChooser() = default;
    virtual QString chooseToLoad(const QString &dir, const QString &title,
                                 const QString &filter) = 0;
    virtual QString chooseToSave(const QString &dir, const QString &title,
                                 const QString &filter) = 0;
};

// mn_PicPres: Mode 0 loads a presentation, any other saves one. The dialogs start in
// `PresentationDir` (else in `pictureDir`), which takes the folder of the chosen file.
// Saving without a layout only says so. Faults are reported under "Menu_OpenPicPresentation".
// Answers true when a file was loaded or written.
bool Menu_OpenPicPresentation(Session &s, int Mode, PresentationChooser &chooser,
                              QString &PresentationDir, const QString &pictureDir);

} // namespace tf
