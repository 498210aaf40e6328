#pragma once
// The Superformat: a picture in a size of its own, up to 14000 x 14000 pixels, painted
// straight into an off-screen surface and never through a picture control.
//
// The session owns one `SuperformatSurfaces`:
// - `SuperDIB`, the surface that receives the picture. It stays after a paint, for the viewer
//   and for the next paint of the same size, which paints over it;
// - `SuperUndoDIB`, the former picture, kept run-length coded (core/keptsurface.h) so that
//   a paint of 14000 x 14000 does not need a second 588 MB surface: Undo exchanges it with
//   the surface's picture;
// - `SuperKeepDIB`, set by `prepare` when a new surface is needed (none yet, or another size).
//
// Surfaces are made through a `SurfaceAllocator`, the session's small interface to memory, so
// that a test can refuse an allocation as a machine out of memory would.
//
// The route of a Superformat painter is `SuperformatPaint` (superformatpaint.h).

#include "core/colour.h"
#include "core/dibsection.h"
#include "core/keptsurface.h"

#include <QSize>
#include <QString>
#include <cstdint>
#include <optional>

namespace tf {

class Controls;
class Session;
class Workspace;

// Makes the pixel memory of a surface. The default takes it from the heap.
class SurfaceAllocator {
public:
    virtual ~SurfaceAllocator() = default;
    // Makes `dib` a surface of w x h filled with `back` (a colour long); false when the memory
    // is not to be had (the surface is then empty).
    virtual bool create(cDIBSection &dib, int w, int h, ColorLong back)
    {
        return dib.Create(w, h, back);
    }
};

// The smallest and largest side of a Superformat picture.
constexpr int SuperMinSide = 128;
constexpr int SuperMaxSide = 14000; // 0x36B0

// The Superformat size asked for in the paint dialog (`txtSuperSize`(0) and (1)): each side
// clamped to 128..14000. Nothing when a side is below 1.
std::optional<QSize> superformatSize(const Controls &controls);
// The bytes of a 24-bit surface of that size (rows padded to 4 bytes).
qint64 surfaceBytes(QSize size);
// The label under the Superformat fields: the size in pixels, in centimetres at `dpi` and
// the memory it takes, e.g. "14000 x 14000 px · 118,53 x 118,53 cm bei 300 DPI · 588 MB".
QString superformatPlanLabel(const Controls &controls);

// The keys whose painters paint into the Superformat surface (the photo mosaic and the cube
// will follow the Mondrian on the same route).
bool isSuperformatType(const QString &key);

class SuperformatSurfaces {
public:
    explicit SuperformatSurfaces(const Workspace &workspace);

    cDIBSection SuperDIB;
    KeptSurface SuperUndoDIB;
    bool SuperKeepDIB = false; // the last prepare made a new surface
    bool XsupDibNeu = false;   // the surface is new and unpainted

    enum class Prepared {
        Kept,   // the surface of that size is kept; the former picture is in SuperUndoDIB
        New,    // a new surface of that size, filled with the back colour
        Failed, // no memory: both surfaces dropped, the former picture is in SuperUndoDIB
    };
    // Step 1 of a Superformat paint: keeps the former picture for Undo, then makes a new
    // surface when there is none or its size differs (filled with `back`), else keeps it.
    Prepared prepare(QSize size, ColorLong back);
    // Undo / Redo: exchanges the surface's picture with the kept one; a kept picture of
    // another size gets a surface of its own size. False when nothing is kept or the memory
    // for the surface is not to be had (the picture stays as it was).
    bool undo();
    bool canUndo() const { return !SuperUndoDIB.empty(); }
    // Drops the surface and the kept picture.
    void drop();
    bool hasPicture() const { return SuperDIB.hDIB() != 0; }
    // Counts the changes of the picture (a paint, an Undo), so that a viewer knows when to
    // take it anew.
    uint64_t generation() const { return m_generation; }
    void touch() { ++m_generation; }

    void setAllocator(SurfaceAllocator *a) { m_allocator = a ? a : &m_heap; }
    // Keep the former picture for Undo (the desktop program); the command line needs none.
    void setKeepUndo(bool on) { m_keepUndo = on; }

private:
    // The spill files of the kept picture in the work folder: two, since Undo writes the one
    // while it reads the other.
    QString spillPath(int which) const;
    bool keepFormer(KeptSurface &into, int which);

    const Workspace &m_workspace;
    SurfaceAllocator m_heap;
    SurfaceAllocator *m_allocator = &m_heap;
    bool m_keepUndo = true;
    int m_spill = 0; // the spill file SuperUndoDIB uses
    uint64_t m_generation = 0;
};

} // namespace tf
