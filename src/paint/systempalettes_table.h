#pragma once
// The table of the system palettes: the resource file of each and its German name (a text of
// the "SystemPalettes" translation context). Generated with the palettes themselves by
// scripts/make-palettes.py.

#include <span>

namespace tf {

struct SystemPaletteFile {
    const char *file; // under the resource folder ":/palettes/"
    const char *name; // German source text
};

std::span<const SystemPaletteFile> systemPaletteFiles();

} // namespace tf
