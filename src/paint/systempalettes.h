#pragma once
// The system palettes: a library of JASC palettes compiled into the program, offered by a
// chooser of the GUI and loaded with Lade_RESPalette (paletteload.h).
//
// Palettes are numbered from 1 in the library's order; 0 or less is "none chosen".

#include <QByteArray>
#include <QString>
#include <vector>

namespace tf {

struct SystemPalette {
    int index;    // from 1
    QString name; // in the current language
};

// Every palette of the library, in its order.
std::vector<SystemPalette> systemPalettes();

// The palette `index` as the bytes of a JASC palette file. An index outside the library is a
// SubscriptOutOfRange fault.
QByteArray LoadPalette(int index);

} // namespace tf
