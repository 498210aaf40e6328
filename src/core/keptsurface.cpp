#include "core/keptsurface.h"

#include "core/fault.h"

#include <QFile>
#include <algorithm>
#include <cstring>

namespace tf {

namespace {

constexpr int MaxLiteral = 128;     // header 0..127
constexpr int MaxShortRun = 128;    // header 128..254 stands for 2..128
constexpr int LongRun = 255;        // header 255: a count of two bytes follows
constexpr int MaxLongRun = 0xFFFF;

inline bool samePixel(const uint8_t *a, const uint8_t *b)
{
    return a[0] == b[0] && a[1] == b[1] && a[2] == b[2];
}

// Decodes `count` pixels from the code at `p` (not beyond `end`) into `dst`; `p` moves past
// what was read. False when the code ends early or a packet overshoots the row.
bool decodeRun(const char *&p, const char *end, uint8_t *dst, std::size_t count)
{
    std::size_t done = 0;
    while (done < count) {
        if (p >= end) return false;
        const int header = uint8_t(*p++);
        if (header < 128) {
            const std::size_t n = std::size_t(header) + 1;
            if (n > count - done || std::size_t(end - p) < n * 3) return false;
            std::memcpy(dst + done * 3, p, n * 3);
            p += n * 3;
            done += n;
        } else {
            std::size_t n = std::size_t(header) - 126;
            if (header == LongRun) {
                if (end - p < 2) return false;
                n = std::size_t(uint8_t(p[0])) | std::size_t(uint8_t(p[1])) << 8;
                p += 2;
            }
            if (n < 2 || n > count - done || end - p < 3) return false;
            const uint8_t b = uint8_t(p[0]), g = uint8_t(p[1]), r = uint8_t(p[2]);
            p += 3;
            uint8_t *d = dst + done * 3;
            for (std::size_t i = 0; i < n; ++i, d += 3) {
                d[0] = b;
                d[1] = g;
                d[2] = r;
            }
            done += n;
        }
    }
    return true;
}

} // namespace

KeptSurface::~KeptSurface() { clear(); }

void KeptSurface::encodePixels(const uint8_t *px, std::size_t count, QByteArray &out)
{
    std::size_t i = 0;
    while (i < count) {
        std::size_t run = 1;
        while (i + run < count && run < std::size_t(MaxLongRun) &&
               samePixel(px + i * 3, px + (i + run) * 3))
            ++run;
        if (run > std::size_t(MaxShortRun)) {
            const char packet[6] = {char(uint8_t(LongRun)),  char(uint8_t(run & 0xFF)),
                                    char(uint8_t(run >> 8)), char(px[i * 3]),
                                    char(px[i * 3 + 1]),     char(px[i * 3 + 2])};
            out.append(packet, 6);
            i += run;
            continue;
        }
        if (run >= 2) {
            const char packet[4] = {char(uint8_t(126 + run)), char(px[i * 3]),
                                    char(px[i * 3 + 1]), char(px[i * 3 + 2])};
            out.append(packet, 4);
            i += run;
            continue;
        }
        // A literal run up to the next pair of equal pixels.
        const std::size_t start = i;
        std::size_t n = 0;
        while (i < count && n < std::size_t(MaxLiteral)) {
            if (i + 1 < count && samePixel(px + i * 3, px + (i + 1) * 3)) break;
            ++i;
            ++n;
        }
        out.append(char(uint8_t(n - 1)));
        out.append(reinterpret_cast<const char *>(px + start * 3), qsizetype(n * 3));
    }
}

bool KeptSurface::decodePixels(const char *code, std::size_t codeBytes, uint8_t *pixels,
                               std::size_t count)
{
    const char *p = code;
    const char *end = code + codeBytes;
    return decodeRun(p, end, pixels, count) && p == end;
}

bool KeptSurface::keep(const cDIBSection &source)
{
    clear();
    if (!source.hDIB()) return false;
    const ConstDibView v = source.view();
    const std::size_t budget = m_budget ? m_budget : v.byteCount() / 16;
    std::unique_ptr<QFile> spill;
    const bool ok = guarded(QStringLiteral("SuperUndoDIB"), [&] {
        const int bands = (v.height + BandRows - 1) / BandRows;
        m_bands.resize(std::size_t(bands));
        QByteArray code;
        for (int b = 0; b < bands; ++b) {
            code.clear();
            code.reserve(qsizetype(v.width) * 3 / 8 + 64);
            const int y0 = b * BandRows, y1 = std::min(v.height, y0 + BandRows);
            for (int y = y0; y < y1; ++y)
                encodePixels(v.row(y), std::size_t(v.width), code);
            Band &band = m_bands[std::size_t(b)];
            if (m_spillPath.isEmpty() || m_memoryBytes + std::size_t(code.size()) <= budget) {
                code.squeeze();
                m_memoryBytes += std::size_t(code.size());
                band.code = code;
                continue;
            }
            if (!spill) {
                spill = std::make_unique<QFile>(m_spillPath);
                if (!spill->open(QIODevice::WriteOnly | QIODevice::Truncate))
                    throw Fault(Fault::PathFileAccessError);
            }
            band.fileOffset = qint64(m_fileBytes);
            band.fileBytes = code.size();
            if (spill->write(code) != code.size()) throw Fault(Fault::PathFileAccessError);
            m_fileBytes += std::size_t(code.size());
        }
        if (spill && !spill->flush()) throw Fault(Fault::PathFileAccessError);
        m_size = QSize(v.width, v.height);
    });
    if (!ok) clear();
    return ok;
}

bool KeptSurface::restoreInto(cDIBSection &target) const
{
    if (empty() || !target.hDIB() || target.dib_width() != m_size.width() ||
        target.dib_height() != m_size.height())
        return false;
    const DibView v = target.view();
    std::unique_ptr<QFile> spill;
    return guarded(QStringLiteral("SuperUndoDIB"), [&] {
        QByteArray fromFile;
        for (std::size_t b = 0; b < m_bands.size(); ++b) {
            const Band &band = m_bands[b];
            const QByteArray *code = &band.code;
            if (band.fileOffset >= 0) {
                if (!spill) {
                    spill = std::make_unique<QFile>(m_spillPath);
                    if (!spill->open(QIODevice::ReadOnly)) throw Fault(Fault::PathFileAccessError);
                }
                if (!spill->seek(band.fileOffset)) throw Fault(Fault::PathFileAccessError);
                fromFile = spill->read(band.fileBytes);
                if (fromFile.size() != band.fileBytes) throw Fault(Fault::PathFileAccessError);
                code = &fromFile;
            }
            const char *p = code->constData();
            const char *end = p + code->size();
            const int y0 = int(b) * BandRows, y1 = std::min(v.height, y0 + BandRows);
            for (int y = y0; y < y1; ++y)
                if (!decodeRun(p, end, v.row(y), std::size_t(v.width)))
                    throw Fault(Fault::InvalidPicture);
        }
    });
}

void KeptSurface::clear()
{
    m_bands.clear();
    m_bands.shrink_to_fit();
    m_size = QSize();
    m_memoryBytes = 0;
    if (m_fileBytes > 0 && !m_spillPath.isEmpty()) QFile::remove(m_spillPath);
    m_fileBytes = 0;
}

void KeptSurface::swap(KeptSurface &other) noexcept
{
    std::swap(m_bands, other.m_bands);
    std::swap(m_size, other.m_size);
    std::swap(m_spillPath, other.m_spillPath);
    std::swap(m_budget, other.m_budget);
    std::swap(m_memoryBytes, other.m_memoryBytes);
    std::swap(m_fileBytes, other.m_fileBytes);
}

} // namespace tf
