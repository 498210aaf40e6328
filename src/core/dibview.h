#pragma once
// A borrowed two-dimensional byte view over the pixel memory of a 24-bit surface.
//
// Layout, said once (the layout of cDIBSection, see dibsection.h):
// - 3 bytes a pixel in the order blue, green, red: byte x*3 of a row is the blue of pixel x,
//   x*3+1 its green, x*3+2 its red;
// - rows are `stride` bytes apart, the pixel bytes padded to a multiple of 4;
// - rows are memory rows: row 0 is the first row in memory, which for a bottom-up surface is
//   the bottom row of the picture as shown.
//
// view(b, row) is the byte b of memory row `row`: first index the byte in the row
// (0 .. stride-1), second index the memory row (0 .. height-1), as the system's raw-pixel
// routines index their array. operator() does not check its indices; at() does and faults
// with "Subscript out of range" as an array access would.
//
// The view owns nothing: it is valid while its surface holds the same memory (no Create or
// ClearUp in between) and is dropped before the routine that took it returns.

#include "core/fault.h"

#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace tf {

template <typename Byte> struct BasicDibView {
    Byte *data = nullptr; // first byte of memory row 0
    int width = 0;        // pixels a row
    int height = 0;       // rows
    int stride = 0;       // bytes a row, a multiple of 4

    BasicDibView() = default;
    BasicDibView(Byte *d, int w, int h, int s) : data(d), width(w), height(h), stride(s) {}
    // A writable view reads as a read-only one.
    template <typename B, typename = std::enable_if_t<std::is_same_v<const B, Byte> &&
                                                      !std::is_same_v<B, Byte>>>
    BasicDibView(const BasicDibView<B> &o) : data(o.data), width(o.width), height(o.height),
                                             stride(o.stride)
    {
    }

    bool empty() const { return data == nullptr || width <= 0 || height <= 0; }
    Byte *row(int memRow) const { return data + std::ptrdiff_t(memRow) * stride; }
    Byte &operator()(int byteInRow, int memRow) const { return row(memRow)[byteInRow]; }
    Byte &at(int byteInRow, int memRow) const
    {
        if (byteInRow < 0 || byteInRow >= stride || memRow < 0 || memRow >= height || !data)
            throw Fault(Fault::SubscriptOutOfRange);
        return (*this)(byteInRow, memRow);
    }
    // Bytes of the pixel memory, padding included.
    std::size_t byteCount() const { return std::size_t(stride) * std::size_t(height); }
};

using DibView = BasicDibView<uint8_t>;
using ConstDibView = BasicDibView<const uint8_t>;

} // namespace tf
