#include "files/surfacesave.h"

#include "core/bmpstream.h"
#include "core/dibsection.h"
#include "core/encoderows.h"
#include "files/picturefile.h"

namespace tf {

bool writeSurfaceBmp(const cDIBSection &dib, QIODevice &out, int dpi)
{
    return writeBmp24(EncodeRows::of(dib), out, dotsPerMetre(dpi));
}

WriteResult saveSurface(const cDIBSection &dib, const QString &path, const QString &SaveTypeTag,
                        const PictureMeta &meta, int jpegQuality)
{
    return saveRows(EncodeRows::of(dib), path, SaveTypeTag, meta, jpegQuality);
}

bool writeSurfaceForCommand(const cDIBSection &dib, const QString &path, const PictureMeta &meta,
                            QString &message)
{
    return writeRowsForCommand(EncodeRows::of(dib), path, meta, message);
}

} // namespace tf
