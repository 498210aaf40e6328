#pragma once
// A PNG taken apart into its chunks, and an animated PNG's frames rebuilt as still PNGs that
// Qt's reader decodes, so tests check what the encoders wrote without trusting them.
#include <QByteArray>
#include <QImage>
#include <QtEndian>
#include <gtest/gtest.h>

#include <utility>
#include <vector>

namespace pngtest {

inline quint32 crc32Of(const QByteArray &bytes)
{
    quint32 crc = 0xFFFFFFFFu;
    for (char ch : bytes) {
        crc ^= quint8(ch);
        for (int k = 0; k < 8; ++k) crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

struct Chunk {
    QByteArray type;
    QByteArray data;
};

// The chunks after the signature; each chunk's CRC must hold and the last must end the file.
inline std::vector<Chunk> chunksOf(const QByteArray &png)
{
    std::vector<Chunk> out;
    qsizetype pos = 8;
    while (pos + 12 <= png.size()) {
        const quint32 length = qFromBigEndian<quint32>(png.constData() + pos);
        const QByteArray typed = png.mid(pos + 4, 4 + qsizetype(length));
        EXPECT_EQ(qFromBigEndian<quint32>(png.constData() + pos + 8 + length), crc32Of(typed));
        out.push_back({typed.left(4), typed.mid(4)});
        pos += 12 + qsizetype(length);
    }
    EXPECT_EQ(pos, png.size());
    return out;
}

inline void appendChunk(QByteArray &png, const QByteArray &type, const QByteArray &data)
{
    char word[4];
    qToBigEndian<quint32>(quint32(data.size()), word);
    png.append(word, 4);
    png.append(type + data);
    qToBigEndian<quint32>(crc32Of(type + data), word);
    png.append(word, 4);
}

// Each frame of an APNG as a still PNG of its own (its IHDR and its image data), decoded by
// Qt's reader; the frames' timing from the fcTL chunks.
struct ApngRead {
    std::vector<QImage> frames;
    quint32 declaredFrames = 0, loops = 0;
    std::vector<std::pair<int, int>> delays;
};

inline ApngRead readApng(const QByteArray &file)
{
    ApngRead r;
    QByteArray ihdr, data;
    auto flush = [&] {
        if (data.isEmpty()) return;
        QByteArray png = file.left(8);
        appendChunk(png, "IHDR", ihdr);
        appendChunk(png, "IDAT", data);
        appendChunk(png, "IEND", {});
        r.frames.push_back(QImage::fromData(png, "PNG").convertToFormat(QImage::Format_RGB32));
        data.clear();
    };
    for (const Chunk &c : chunksOf(file)) {
        if (c.type == "IHDR") ihdr = c.data;
        if (c.type == "acTL") {
            r.declaredFrames = qFromBigEndian<quint32>(c.data.constData());
            r.loops = qFromBigEndian<quint32>(c.data.constData() + 4);
        }
        if (c.type == "fcTL") {
            flush();
            r.delays.emplace_back(qFromBigEndian<quint16>(c.data.constData() + 20),
                                  qFromBigEndian<quint16>(c.data.constData() + 22));
        }
        if (c.type == "IDAT") data += c.data;
        if (c.type == "fdAT") data += c.data.mid(4);
        if (c.type == "IEND") flush();
    }
    return r;
}

} // namespace pngtest
