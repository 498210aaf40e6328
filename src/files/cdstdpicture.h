#pragma once
// The photos of the photo mosaic, the photo cube and the slide show: a source picture read
// from its file into a surface, whole or reduced to what a frame needs.
//
// A photo's size is read from its header alone (photoFileSize), so a layout can choose its
// photos and their cuts before any is decoded. loadPhoto decodes one: whole, or with `need`
// given, a JPEG at the smallest DCT scale 1/2, 1/4 or 1/8 whose picture still covers `need`
// (other kinds whole); the caller brings it to its final size. Both read the file mapped and
// hold no shared state, so several threads may load at once.

#include "files/picturefile.h"

#include <QSize>
#include <QString>
#include <cstdint>

namespace tf {

class StatusSink;
class cDIBSection;

// The upright size of the picture in `path`, from its header; invalid when the file is missing
// or holds no picture of a known kind.
QSize photoFileSize(const QString &path);

// Decodes `path`: whole, or with a valid `need` as small as the format allows while covering
// it. `stored` in the result is the picture's own upright size.
LoadResult loadPhoto(const QString &path, QSize need = QSize());

// "Ungültiges Bild <path>" / "No valid picture <path>", the status text of a file that cannot
// be read.
QString invalidPictureText(const QString &path);

// Loads `Path` into `Dib` and answers true when it is usable. W and H are the picture's own
// upright size. `Need` is the size the caller will cut or scale the picture to: with
// `NeedVariant` the surface may hold the picture reduced as far as it still covers `Need`
// (loadPhoto), else it holds it whole. Unless `AllowSmall`, a picture smaller than `Need` in
// a side is not usable (false, no message). A file that cannot be read puts
// invalidPictureText into the status bar and answers false; `Dib` is then empty.
bool Load_CDStdPicture(const QString &Path, cDIBSection &Dib, int32_t &W, int32_t &H, QSize Need,
                       bool NeedVariant, bool AllowSmall, StatusSink &status);

} // namespace tf
