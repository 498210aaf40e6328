#pragma once
// Where the photo cube takes its photos: the session's photo source (PicSourceList), chosen
// with the "..." of the panel as for the photo mosaic.
//
// "Dateiverzeichnis": three different photos of the directory's list drawn at random (the
// list is scanned once per change of the source, with "Unterverzeichnisse"); a directory of
// fewer than three photos repeats them. A photo that cannot be read is named in the status
// bar and another is drawn in its place.
// "Datei": the one photo; its middle square on all three faces, or with "Bild-Mix" three
// square cuts from random places, each between half and four fifths of its shorter side.
//
// Every photo is decoded as small as its format allows while its cut still covers the face
// (JPEG at the DCT scale 1/2, 1/4 or 1/8), the three on all cores. The draws come first, in
// face order, so the same seed gives the same cube on any number of cores.
//
// Messages, as the photo mosaic has them: no file chosen, no directory chosen, no valid
// picture in the directory.
#include "generators/photocubepaint.h"

namespace tf {

class PanelCubePhotos : public CubePhotoSource {
public:
    bool facesFor(PaintContext &ctx, int faceSide, std::array<QImage, 3> &faces) override;
};

} // namespace tf
