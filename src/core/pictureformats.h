#pragma once
// The formats of a new picture ("Neu"): index 0 asks for a free size; 1 to 6 are squares up to
// the standard 712 and beyond; 7 to 12 are portrait and landscape formats with the standard
// 712 pixels on the longer side.

#include <array>

namespace tf {

struct NewPictureFormat {
    const char *caption; // German source text of the "PictureFormats" context
    int width;           // 0 for the free format
    int height;
};

constexpr int NewPictureFormatCount = 13;
const std::array<NewPictureFormat, NewPictureFormatCount> &newPictureFormats();

} // namespace tf
