#pragma once
// What every fuzz target shares: a core application for Qt's image plugins, and the decode
// of one input with the load box and without.
#include "files/decode.h"

#include <QCoreApplication>
#include <QByteArrayView>
#include <cstddef>
#include <cstdint>

namespace tf::fuzz {

inline void startQt()
{
    static int argc = 1;
    static char name[] = "fuzz";
    static char *argv[] = {name, nullptr};
    static QCoreApplication app(argc, argv);
}

template <typename Decode> void decodeBoth(const uint8_t *data, size_t size, Decode decode)
{
    const QByteArrayView bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    for (bool reduce : {true, false}) {
        DecodeRequest r;
        r.reduce = reduce;
        const Decoded d = decode(bytes, r);
        if (d.ok() && (d.image.width() > 14000 || d.image.height() > 14000))
            __builtin_trap();
    }
}

} // namespace tf::fuzz
