#pragma once
// Which option panel a graphics type reads: the data by which the paint dialog brings the
// type's panel to the top (`Handle_Formobjects`), and by which `controls TYPE` lists what a
// type reads.

#include <QString>
#include <QStringList>
#include <span>

namespace tf {

struct TypePanel {
    const char *key;   // a key of the catalogue
    const char *panel; // the name of its option panel ("feat_01Mondrian")
    // A dialog whose fields the type reads besides ("frmTextDialog"), null for none.
    const char *dialog = nullptr;
};

// One row per type that has an option panel of its own; the other types read the general
// options only.
std::span<const TypePanel> typePanels();
// The panel of a type, "" when it has none.
QString optionPanelOf(const QString &key);
// The panels a type reads: the paint dialog's general options, its dialog and its own panel.
QStringList panelsReadBy(const QString &key);
// Whether a type paints photos of the photo source: one of its panels holds the source's
// control "optPicMosaikSource" (the photo mosaic's types and the photo cube).
bool readsPhotoSource(const QString &key);

} // namespace tf
