#pragma once
// Block copies between device contexts: BitBlt and StretchBlt with ternary raster operations.
//
// Source and destination may be the same context and may overlap: the source is read as it
// stood before the call. Parts outside either picture are skipped; the destination clip holds.
// The pattern of the raster operations is the destination's selected brush.

#include "core/devicecontext.h"

#include <cstdint>

namespace tf {

constexpr uint32_t SRCCOPY = 0x00CC0020;
constexpr uint32_t SRCPAINT = 0x00EE0086;
constexpr uint32_t SRCAND = 0x008800C6;
constexpr uint32_t SRCINVERT = 0x00660046;
constexpr uint32_t SRCERASE = 0x00440328;
constexpr uint32_t NOTSRCCOPY = 0x00330008;
constexpr uint32_t NOTSRCERASE = 0x001100A6;
constexpr uint32_t MERGECOPY = 0x00C000CA;
constexpr uint32_t MERGEPAINT = 0x00BB0226;
constexpr uint32_t PATCOPY = 0x00F00021;
constexpr uint32_t PATPAINT = 0x00FB0A09;
constexpr uint32_t PATINVERT = 0x005A0049;
constexpr uint32_t DSTINVERT = 0x00550009;
constexpr uint32_t BLACKNESS = 0x00000042;
constexpr uint32_t WHITENESS = 0x00FF0062;

// Combines pattern, source and destination bitwise by the ternary operation of `rop`.
uint32_t applyRop3(uint32_t rop, uint32_t p, uint32_t s, uint32_t d);

// Copies w x h pixels from (sx, sy) of `src` to (x, y) of `dst`. `src` may be null for
// operations that do not read a source (PATCOPY, BLACKNESS ...). Answers false when a context
// is not valid.
bool BitBlt(DeviceContext &dst, int x, int y, int w, int h, const DeviceContext *src, int sx,
            int sy, uint32_t rop);
inline bool BitBlt(DeviceContext &dst, int x, int y, int w, int h, const DeviceContext &src,
                   int sx, int sy, uint32_t rop)
{
    return BitBlt(dst, x, y, w, h, &src, sx, sy, rop);
}

// Scaled copy of the sw x sh source rectangle to the w x h destination rectangle by the
// destination's stretch mode: HALFTONE averages the source pixels that fall on a destination
// pixel, the other modes take the nearest source pixel. A negative width or height mirrors.
bool StretchBlt(DeviceContext &dst, int x, int y, int w, int h, const DeviceContext &src, int sx,
                int sy, int sw, int sh, uint32_t rop);

// Fills a rectangle with the selected brush by a pattern operation (PATCOPY, PATINVERT ...).
bool PatBlt(DeviceContext &dst, int x, int y, int w, int h, uint32_t rop);

} // namespace tf
