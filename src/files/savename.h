#pragma once
// How a name chosen for a picture decides its format.
//
// The tests are upper-cased substring tests, in this order: a name that contains ".JPG" is
// JPEG, one that contains ".PNG" is PNG, every other name is BMP. So "a.jpg.bmp" is JPEG, and
// a name without an extension ends as ".bmp".

#include <QString>

namespace tf {

struct SaveName {
    QString SaveTypeTag; // "JPG", "PNG" or "BMP"
    QString path;        // the name with the type's extension appended when it lacked it
};

// The type the save dialog is preset to for the present name: ".JPG" for a name containing
// ".JPG", ".BMP" for one containing ".BMP", else (also for an empty name) ".PNG".
QString presetSaveType(const QString &name);

// The class of a chosen name and the name with its extension.
SaveName classSaveName(const QString &name);

// The type by the extension alone (".png", ".jpg"/".jpeg", ".bmp", any case), as the command
// line takes it; empty for any other.
QString saveTypeOfSuffix(const QString &path);

} // namespace tf
