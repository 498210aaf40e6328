#pragma once
// A surface's picture kept aside, compactly: the former Superformat picture that Undo brings
// back.
//
// A Superformat surface may hold 14000 x 14000 pixels (588 MB). Keeping the former picture as
// a second surface would double that, so it is kept run-length coded instead: the rows are
// taken in bands of `BandRows` memory rows, each band's pixels (row after row, without the
// padding) as packets of one header byte and pixels of three bytes:
//   header 0..127    n+1 pixels follow as they are (a literal run),
//   header 128..254  one pixel follows that stands n-126 times (a run of 2..128),
//   header 255       a count c of two bytes (low byte first) and one pixel that stands c
//                    times (a run of 129..65535).
// The pictures that are painted into a Superformat (flat fields, lines, squares) shrink to a
// few bytes a row; a photo grows by at most one byte in 128 pixels.
//
// The coded bands stay in memory while they fit into the memory budget (by default a
// sixteenth of the surface's bytes); the bands beyond it go to the spill file, so a picture
// that does not shrink (a photo mosaic) costs disk space in the work folder, never a second
// copy in memory. Without a spill file every band stays in memory.
//
// Failures: a spill file that cannot be written or read is a fault (PathFileAccessError);
// `keep` answers false and keeps nothing, `restoreInto` answers false and leaves the target's
// rows that were not yet restored as they were.

#include "core/dibsection.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

class QFile;

namespace tf {

class KeptSurface {
public:
    static constexpr int BandRows = 64;

    KeptSurface() = default;
    ~KeptSurface();
    KeptSurface(const KeptSurface &) = delete;
    KeptSurface &operator=(const KeptSurface &) = delete;

    // The file that takes the bands beyond the memory budget (empty: none, all in memory).
    void setSpillFile(const QString &path) { m_spillPath = path; }
    QString spillFile() const { return m_spillPath; }
    // Bytes of coded bands kept in memory before the rest goes to the spill file; 0 for the
    // default, a sixteenth of the surface's pixel bytes.
    void setMemoryBudget(std::size_t bytes) { m_budget = bytes; }

    // Keeps the picture of `source`, replacing what was kept. False (nothing kept) for an
    // empty source or when the spill file cannot be written.
    bool keep(const cDIBSection &source);
    // Writes the kept picture into `target`, which must be a surface of the kept size. False
    // when nothing is kept, the size differs or the spill file cannot be read.
    bool restoreInto(cDIBSection &target) const;
    // Forgets the kept picture and removes the spill file.
    void clear();

    bool empty() const { return m_size.isEmpty(); }
    QSize size() const { return m_size; }
    // Coded bytes in memory, and in the spill file.
    std::size_t bytesInMemory() const { return m_memoryBytes; }
    std::size_t bytesInFile() const { return m_fileBytes; }

    // Exchanges the contents of two stores (their spill files go with them).
    void swap(KeptSurface &other) noexcept;

    // The coding of one run of `pixels` pixels (3 bytes each) appended to `out`, and its
    // inverse, which answers false when the code does not hold exactly `pixels` pixels.
    static void encodePixels(const uint8_t *pixels, std::size_t count, QByteArray &out);
    static bool decodePixels(const char *code, std::size_t codeBytes, uint8_t *pixels,
                             std::size_t count);

private:
    struct Band {
        QByteArray code;        // in memory, or empty when in the file
        qint64 fileOffset = -1; // where the band lies in the spill file
        qint64 fileBytes = 0;
    };

    std::vector<Band> m_bands;
    QSize m_size;
    QString m_spillPath;
    std::size_t m_budget = 0;
    std::size_t m_memoryBytes = 0;
    std::size_t m_fileBytes = 0;
};

} // namespace tf
