#include "files/animationfile.h"

#include "paint/animation.h"

#include <QFileInfo>
#include <QIODevice>
#include <QtEndian>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <stdexcept>
#include <unordered_map>

namespace tf {

namespace {

void put32(QByteArray &out, uint32_t v)
{
    const char b[4] = {char(v >> 24), char(v >> 16), char(v >> 8), char(v)};
    out.append(b, 4);
}
void put16(QByteArray &out, uint16_t v)
{
    const char b[2] = {char(v >> 8), char(v)};
    out.append(b, 2);
}
void putLE16(QByteArray &out, uint16_t v)
{
    out.append(char(v & 255));
    out.append(char(v >> 8));
}

void checkFrame(const QImage &frame, QSize size)
{
    if (frame.size() != size ||
        (frame.format() != QImage::Format_RGB32 && frame.format() != QImage::Format_ARGB32))
        throw std::invalid_argument("animation frame");
}

// ---- APNG -----------------------------------------------------------------------------

void chunk(QByteArray &out, const char type[4], const QByteArray &data)
{
    put32(out, uint32_t(data.size()));
    const qsizetype start = out.size();
    out.append(type, 4);
    out.append(data);
    const uLong crc = crc32(0, reinterpret_cast<const Bytef *>(out.constData() + start),
                            uInt(out.size() - start));
    put32(out, uint32_t(crc));
}

uint8_t paeth(int a, int b, int c)
{
    const int p = a + b - c;
    const int pa = std::abs(p - a), pb = std::abs(p - b), pc = std::abs(p - c);
    if (pa <= pb && pa <= pc) return uint8_t(a);
    return uint8_t(pb <= pc ? b : c);
}

class ApngEncoder final : public AnimationEncoder {
public:
    ApngEncoder(QSize size, int frames, int fps, int loops)
        : m_size(size), m_frames(frames), m_fps(fps)
    {
        if (size.isEmpty() || frames < 1 || fps < 1) throw std::invalid_argument("animation");
        static const char signature[8] = {char(137), 'P', 'N', 'G', '\r', '\n', char(26), '\n'};
        m_out.append(signature, 8);
        QByteArray ihdr;
        put32(ihdr, uint32_t(size.width()));
        put32(ihdr, uint32_t(size.height()));
        ihdr.append(char(8)); // bit depth
        ihdr.append(char(2)); // RGB
        ihdr.append(3, char(0));
        chunk(m_out, "IHDR", ihdr);
        QByteArray actl;
        put32(actl, uint32_t(frames));
        put32(actl, uint32_t(std::max(0, loops)));
        chunk(m_out, "acTL", actl);
        const size_t row = size_t(size.width()) * 3;
        m_prev.assign(row, 0);
        m_cur.assign(row, 0);
        m_filtered.assign(row + 1, 0);
        m_trial.assign(row + 1, 0);
    }

    void addFrame(const QImage &frame) override
    {
        checkFrame(frame, m_size);
        if (m_added >= m_frames) throw std::invalid_argument("animation frame count");
        QByteArray fctl;
        put32(fctl, m_sequence++);
        put32(fctl, uint32_t(m_size.width()));
        put32(fctl, uint32_t(m_size.height()));
        put32(fctl, 0);
        put32(fctl, 0);
        put16(fctl, 1);                // delay: 1 / fps second
        put16(fctl, uint16_t(m_fps));
        fctl.append(char(0));          // dispose: none
        fctl.append(char(0));          // blend: source
        chunk(m_out, "fcTL", fctl);
        const QByteArray data = compress(frame);
        if (m_added == 0) {
            chunk(m_out, "IDAT", data);
        } else {
            QByteArray fdat;
            put32(fdat, m_sequence++);
            fdat.append(data);
            chunk(m_out, "fdAT", fdat);
        }
        ++m_added;
    }

    QByteArray finish() override
    {
        if (m_added != m_frames) throw std::invalid_argument("animation frame count");
        chunk(m_out, "IEND", QByteArray());
        return std::move(m_out);
    }

private:
    QByteArray compress(const QImage &frame)
    {
        z_stream z{};
        if (deflateInit2(&z, 3, Z_DEFLATED, 15, 8, Z_DEFAULT_STRATEGY) != Z_OK)
            throw std::bad_alloc();
        QByteArray out;
        std::vector<Bytef> buffer(1 << 16);
        auto drain = [&](int flush) {
            do {
                z.next_out = buffer.data();
                z.avail_out = uInt(buffer.size());
                const int r = deflate(&z, flush);
                if (r == Z_STREAM_ERROR) {
                    deflateEnd(&z);
                    throw std::runtime_error("deflate");
                }
                out.append(reinterpret_cast<const char *>(buffer.data()),
                           qsizetype(buffer.size() - z.avail_out));
            } while (z.avail_out == 0);
        };
        std::fill(m_prev.begin(), m_prev.end(), 0);
        for (int y = 0; y < m_size.height(); ++y) {
            const auto *px = reinterpret_cast<const uint32_t *>(frame.constScanLine(y));
            for (int x = 0; x < m_size.width(); ++x) {
                m_cur[size_t(x) * 3] = uint8_t(px[x] >> 16);
                m_cur[size_t(x) * 3 + 1] = uint8_t(px[x] >> 8);
                m_cur[size_t(x) * 3 + 2] = uint8_t(px[x]);
            }
            filterRow();
            z.next_in = m_filtered.data();
            z.avail_in = uInt(m_filtered.size());
            drain(Z_NO_FLUSH);
            std::swap(m_prev, m_cur);
        }
        z.next_in = nullptr;
        z.avail_in = 0;
        drain(Z_FINISH);
        deflateEnd(&z);
        return out;
    }

    // The row through the filter (none, sub, up, average, paeth) whose bytes, read as
    // signed, sum to the least.
    void filterRow()
    {
        const size_t n = m_cur.size();
        long best = -1;
        for (uint8_t type = 0; type < 5; ++type) {
            m_trial[0] = type;
            long sum = 0;
            for (size_t i = 0; i < n; ++i) {
                const int a = i >= 3 ? m_cur[i - 3] : 0, b = m_prev[i], c = i >= 3 ? m_prev[i - 3] : 0;
                int predictor = 0;
                switch (type) {
                case 1: predictor = a; break;
                case 2: predictor = b; break;
                case 3: predictor = (a + b) / 2; break;
                case 4: predictor = paeth(a, b, c); break;
                default: break;
                }
                const auto v = uint8_t(m_cur[i] - predictor);
                m_trial[i + 1] = v;
                sum += v < 128 ? v : 256 - v;
            }
            if (best < 0 || sum < best) {
                best = sum;
                std::swap(m_filtered, m_trial);
            }
        }
    }

    QSize m_size;
    int m_frames;
    int m_fps;
    int m_added = 0;
    uint32_t m_sequence = 0;
    QByteArray m_out;
    std::vector<uint8_t> m_prev, m_cur, m_filtered, m_trial;
};

// ---- GIF ------------------------------------------------------------------------------

// Median cut over a histogram of 5 bits a channel.
struct Box {
    std::array<int, 3> lo{}, hi{};
    std::vector<uint16_t> bins;
    long count = 0;
};

int channelOf(uint16_t bin, int c) { return (bin >> (10 - 5 * c)) & 31; }

void shrink(Box &b, const std::vector<uint32_t> &hist)
{
    b.lo = {31, 31, 31};
    b.hi = {0, 0, 0};
    b.count = 0;
    for (uint16_t bin : b.bins) {
        for (int c = 0; c < 3; ++c) {
            b.lo[size_t(c)] = std::min(b.lo[size_t(c)], channelOf(bin, c));
            b.hi[size_t(c)] = std::max(b.hi[size_t(c)], channelOf(bin, c));
        }
        b.count += hist[bin];
    }
}

std::vector<uint32_t> medianCut(const std::vector<uint32_t> &hist)
{
    std::vector<Box> boxes(1);
    for (uint16_t bin = 0; bin < 32768; ++bin)
        if (hist[bin]) boxes[0].bins.push_back(bin);
    shrink(boxes[0], hist);
    while (boxes.size() < 256) {
        // The box with the longest side, weighted by its pixels, is split at its median.
        size_t pick = boxes.size();
        double score = 0;
        int axis = 0;
        for (size_t i = 0; i < boxes.size(); ++i) {
            if (boxes[i].bins.size() < 2) continue;
            for (int c = 0; c < 3; ++c) {
                const int side = boxes[i].hi[size_t(c)] - boxes[i].lo[size_t(c)];
                const double s = double(side) * std::sqrt(double(boxes[i].count));
                if (side > 0 && s > score) {
                    score = s;
                    pick = i;
                    axis = c;
                }
            }
        }
        if (pick == boxes.size()) break;
        Box &b = boxes[pick];
        std::sort(b.bins.begin(), b.bins.end(), [axis](uint16_t p, uint16_t q) {
            return channelOf(p, axis) < channelOf(q, axis);
        });
        long half = 0;
        size_t cut = 0;
        while (cut < b.bins.size() - 1 && half + long(hist[b.bins[cut]]) <= b.count / 2)
            half += hist[b.bins[cut++]];
        cut = std::clamp<size_t>(cut, 1, b.bins.size() - 1);
        Box other;
        other.bins.assign(b.bins.begin() + long(cut), b.bins.end());
        b.bins.resize(cut);
        shrink(b, hist);
        shrink(other, hist);
        boxes.push_back(std::move(other));
    }
    std::vector<uint32_t> palette;
    for (const Box &b : boxes) {
        double sum[3] = {0, 0, 0};
        for (uint16_t bin : b.bins)
            for (int c = 0; c < 3; ++c)
                sum[c] += double(hist[bin]) * (channelOf(bin, c) * 8 + 4);
        uint32_t colour = 0;
        for (int c = 0; c < 3; ++c)
            colour = colour << 8 | uint32_t(std::clamp(std::lround(sum[c] / double(std::max(1L, b.count))), 0L, 255L));
        palette.push_back(colour);
    }
    return palette;
}

class LzwWriter {
public:
    explicit LzwWriter(QByteArray &out) : m_out(out) {}

    void encode(const std::vector<uint8_t> &pixels)
    {
        constexpr int MinSize = 8, Clear = 1 << MinSize, End = Clear + 1;
        m_out.append(char(MinSize));
        reset();
        write(Clear);
        if (pixels.empty()) {
            write(End);
            flush();
            return;
        }
        int current = pixels[0];
        for (size_t i = 1; i < pixels.size(); ++i) {
            const int c = pixels[i];
            const uint32_t key = uint32_t(current) << 8 | uint32_t(c);
            size_t slot = hashOf(key);
            while (m_keys[slot] != 0 && m_keys[slot] != key + 1)
                slot = (slot + 1) & (TableSize - 1);
            if (m_keys[slot] == key + 1) {
                current = m_codes[slot];
                continue;
            }
            write(current);
            m_keys[slot] = key + 1;
            m_codes[slot] = uint16_t(++m_maxCode);
            if (m_maxCode >= (1 << m_codeSize)) ++m_codeSize;
            if (m_maxCode == 4095) {
                write(Clear);
                reset();
            }
            current = c;
        }
        write(current);
        write(End);
        flush();
    }

private:
    static constexpr size_t TableSize = 8192;
    static size_t hashOf(uint32_t key) { return (key * 2654435761u >> 19) & (TableSize - 1); }

    void reset()
    {
        m_keys.assign(TableSize, 0);
        m_codes.assign(TableSize, 0);
        m_codeSize = 9;
        m_maxCode = 257;
    }
    void write(int code)
    {
        m_bits |= uint32_t(code) << m_bitCount;
        m_bitCount += m_codeSize;
        while (m_bitCount >= 8) {
            byte(uint8_t(m_bits & 255));
            m_bits >>= 8;
            m_bitCount -= 8;
        }
    }
    void byte(uint8_t b)
    {
        m_block[m_blockSize++] = char(b);
        if (m_blockSize == 255) emitBlock();
    }
    void emitBlock()
    {
        if (m_blockSize == 0) return;
        m_out.append(char(m_blockSize));
        m_out.append(m_block.data(), m_blockSize);
        m_blockSize = 0;
    }
    void flush()
    {
        if (m_bitCount > 0) byte(uint8_t(m_bits & 255));
        m_bits = 0;
        m_bitCount = 0;
        emitBlock();
        m_out.append(char(0));
    }

    QByteArray &m_out;
    std::vector<uint32_t> m_keys;
    std::vector<uint16_t> m_codes;
    int m_codeSize = 9;
    int m_maxCode = 257;
    uint32_t m_bits = 0;
    int m_bitCount = 0;
    std::array<char, 255> m_block{};
    int m_blockSize = 0;
};

class GifEncoder final : public AnimationEncoder {
public:
    GifEncoder(QSize size, int fps, int loops) : m_size(size)
    {
        if (size.isEmpty() || size.width() > 65535 || size.height() > 65535 || fps < 1)
            throw std::invalid_argument("animation");
        m_delay = uint16_t(std::clamp<long>(std::lround(100.0 / fps), 1, 65535));
        m_out.append("GIF89a", 6);
        putLE16(m_out, uint16_t(size.width()));
        putLE16(m_out, uint16_t(size.height()));
        m_out.append(char(0)); // no global colour table
        m_out.append(char(0));
        m_out.append(char(0));
        // Loop block: NETSCAPE2.0, sub-block 1, the count (0: forever).
        m_out.append(char(0x21));
        m_out.append(char(0xFF));
        m_out.append(char(11));
        m_out.append("NETSCAPE2.0", 11);
        m_out.append(char(3));
        m_out.append(char(1));
        putLE16(m_out, uint16_t(std::clamp(loops, 0, 65535)));
        m_out.append(char(0));
    }

    void addFrame(const QImage &frame) override
    {
        checkFrame(frame, m_size);
        const IndexedFrame indexed = indexFrame(frame);
        // Graphic control: no disposal, the delay, no transparent colour.
        m_out.append(char(0x21));
        m_out.append(char(0xF9));
        m_out.append(char(4));
        m_out.append(char(0x04)); // disposal 1: leave the frame in place
        putLE16(m_out, m_delay);
        m_out.append(char(0));
        m_out.append(char(0));
        // The image with its local colour table of 256 entries.
        m_out.append(char(0x2C));
        putLE16(m_out, 0);
        putLE16(m_out, 0);
        putLE16(m_out, uint16_t(m_size.width()));
        putLE16(m_out, uint16_t(m_size.height()));
        m_out.append(char(0x80 | 7));
        for (size_t i = 0; i < 256; ++i) {
            const uint32_t c = i < indexed.palette.size() ? indexed.palette[i] : 0;
            m_out.append(char(c >> 16));
            m_out.append(char(c >> 8));
            m_out.append(char(c));
        }
        LzwWriter(m_out).encode(indexed.pixels);
    }

    QByteArray finish() override
    {
        m_out.append(char(0x3B));
        return std::move(m_out);
    }

private:
    QSize m_size;
    uint16_t m_delay = 3;
    QByteArray m_out;
};

} // namespace

std::optional<AnimationKind> animationKindOf(const QString &path)
{
    const QString ext = QFileInfo(path).suffix().toLower();
    if (ext == QLatin1String("png") || ext == QLatin1String("apng")) return AnimationKind::Apng;
    if (ext == QLatin1String("gif")) return AnimationKind::Gif;
    return std::nullopt;
}

std::unique_ptr<AnimationEncoder> makeAnimationEncoder(AnimationKind kind, QSize size, int frames,
                                                       int fps, int loops)
{
    if (kind == AnimationKind::Apng) return std::make_unique<ApngEncoder>(size, frames, fps, loops);
    return std::make_unique<GifEncoder>(size, fps, loops);
}

IndexedFrame indexFrame(const QImage &frame)
{
    IndexedFrame out;
    const int w = frame.width(), h = frame.height();
    out.pixels.resize(size_t(w) * size_t(h));
    // Exact when the frame has at most 256 colours.
    std::unordered_map<uint32_t, uint8_t> exact;
    bool few = true;
    for (int y = 0; y < h && few; ++y) {
        const auto *px = reinterpret_cast<const uint32_t *>(frame.constScanLine(y));
        for (int x = 0; x < w; ++x) {
            const uint32_t c = px[x] & 0xFFFFFFu;
            auto it = exact.find(c);
            if (it == exact.end()) {
                if (exact.size() == 256) {
                    few = false;
                    break;
                }
                it = exact.emplace(c, uint8_t(exact.size())).first;
                out.palette.push_back(c);
            }
            out.pixels[size_t(y) * size_t(w) + size_t(x)] = it->second;
        }
    }
    if (few) return out;

    auto binOf = [](uint32_t c) {
        return uint16_t(((c >> 19) & 31) << 10 | ((c >> 11) & 31) << 5 | ((c >> 3) & 31));
    };
    std::vector<uint32_t> hist(32768, 0);
    for (int y = 0; y < h; ++y) {
        const auto *px = reinterpret_cast<const uint32_t *>(frame.constScanLine(y));
        for (int x = 0; x < w; ++x) ++hist[binOf(px[x])];
    }
    out.palette = medianCut(hist);
    // Each used bin maps to the palette colour nearest its middle.
    std::vector<uint8_t> nearest(32768, 0);
    for (uint16_t bin = 0; bin < 32768; ++bin) {
        if (!hist[bin]) continue;
        const int r = channelOf(bin, 0) * 8 + 4, g = channelOf(bin, 1) * 8 + 4,
                  b = channelOf(bin, 2) * 8 + 4;
        long best = -1;
        for (size_t i = 0; i < out.palette.size(); ++i) {
            const uint32_t c = out.palette[i];
            const long dr = long(c >> 16 & 255) - r, dg = long(c >> 8 & 255) - g,
                       db = long(c & 255) - b;
            const long d = dr * dr + dg * dg + db * db;
            if (best < 0 || d < best) {
                best = d;
                nearest[bin] = uint8_t(i);
            }
        }
    }
    for (int y = 0; y < h; ++y) {
        const auto *px = reinterpret_cast<const uint32_t *>(frame.constScanLine(y));
        uint8_t *row = out.pixels.data() + size_t(y) * size_t(w);
        for (int x = 0; x < w; ++x) row[x] = nearest[binOf(px[x])];
    }
    return out;
}

WriteResult writeAnimation(const QString &path, Animation &animation, int frames, int fps,
                           int loops, const AnimationProgress &progress)
{
    const std::optional<AnimationKind> kind = animationKindOf(path);
    if (!kind || frames < 1 || fps < 1) throw std::invalid_argument("animation file");
    const QSize size = animation.frameSize();
    auto encoder = makeAnimationEncoder(*kind, size, frames, fps, loops);
    QImage frame(size, QImage::Format_RGB32);
    const double step = double(animation.framesPerSecond()) / fps;
    for (int i = 0; i < frames; ++i) {
        if (i > 0) animation.advance(step);
        animation.render(frame);
        encoder->addFrame(frame);
        if (progress && !progress(i + 1, frames)) return {WriteFailure::Other, QString()};
    }
    const QByteArray bytes = encoder->finish();
    return writeFileSafely(path, [&](QIODevice &out, QString &detail) {
        if (out.write(bytes) == bytes.size()) return true;
        detail = out.errorString();
        return false;
    });
}

} // namespace tf
