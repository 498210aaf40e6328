#pragma once
// cDIBSection: the off-screen 24-bit picture.
//
// Pixel layout, which every raw-pixel routine relies on (see dibview.h for the byte view):
// - 3 bytes a pixel, blue, green, red;
// - rows padded to a multiple of 4: BytesPerScanLine() = (dib_width()*3 + 3) & ~3;
// - rows stored bottom-up: memory row 0 is the bottom row of the picture as shown.
//
// The object owns its pixel memory (zeroed when made, so a fresh surface is black) and a
// device context over it, `dib_hdc()`, through which BitBlt, StretchBlt, QPainter and the
// DIB calls of dibits.h reach the pixels in picture coordinates ((0,0) the top left pixel as
// shown). The context wraps the memory in a QImage that must never be copied: a copy that
// is written to would detach from the surface's memory.
//
// An object is empty (hDIB() == 0, no context, no memory) or holds one surface of fixed size.
// Create replaces what it held; ClearUp empties it and runs on destruction.
//
// Failures: the routines tagged "CreateDIB", "CreateFromPicture", "LoadPictureBlt",
// "PaintPictureBlt", "Resample", "ResampleDIB", "Resize" and "ResizeDIB" catch faults,
// report "<tag> [<description>]" through the installed prompter and return their default
// (false, nullptr). A size that cannot be made (0 or negative, or memory that cannot be had)
// is not a fault: CreateDIB and Create answer false and leave the object empty.
// LineDIB, PrintDIB, Save_BMP and GetBestFitInfo have no handler of their own.

#include "core/blit.h"
#include "core/devicecontext.h"
#include "core/dibits.h"
#include "core/dibview.h"
#include "core/numeric.h"

#include <QImage>
#include <QString>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace tf {

class cDIBSection {
public:
    cDIBSection() = default;
    ~cDIBSection();
    cDIBSection(const cDIBSection &) = delete;
    cDIBSection &operator=(const cDIBSection &) = delete;

    // Makes a new, all-zero surface of lWidth x lHeight: fills the header and the pixel
    // memory and attaches the context. What the object held before is released first.
    // False (object empty) for a width or height below 1 or when the memory is not to be had.
    bool CreateDIB(int lWidth, int lHeight);
    // CreateDIB, then, when BackColor (a colour long) is not 0, fills the whole surface with
    // it. BackColor 0 gives black without a fill.
    bool Create(int lWidth, int lHeight, ColorLong BackColor = 0);
    // A surface of the picture's size holding its pixels. Any QImage format is taken (a
    // picture control's is RGB32). False for a null picture.
    bool CreateFromPicture(const QImage &picThis);

    // The row stride in bytes; 0 when empty.
    int BytesPerScanLine() const { return m_stride; }

    // BitBlt from `src` at (lSrcLeft, lSrcTop) to (0,0) of the surface; a negative width or
    // height means the surface's own.
    bool LoadPictureBlt(const DeviceContext &src, int lSrcLeft, int lSrcTop, int lSrcWidth = -1,
                        int lSrcHeight = -1, uint32_t eRop = SRCCOPY);
    // BitBlt from (lSrcLeft, lSrcTop) of the surface to (lDestLeft, lDestTop) of `dst`; a
    // negative width or height means the surface's own.
    bool PaintPicture(DeviceContext &dst, int lDestLeft, int lDestTop, int lDestWidth = -1,
                      int lDestHeight = -1, int lSrcLeft = 0, int lSrcTop = 0,
                      uint32_t eRop = SRCCOPY);
    // StretchBlt (SRCCOPY) from the surface to `dst` in StretchColorMode; the target's own
    // mode is restored afterwards. Does nothing on an empty object.
    void Stretch(DeviceContext &dst, int X, int Y, int nWidth, int nHeight, int xSrc, int ySrc,
                 int nSrcWidth, int nSrcHeight, int StretchColorMode = COLORONCOLOR);

    DeviceContext &dib_hdc() { return m_dc; }
    const DeviceContext &dib_hdc() const { return m_dc; }
    // An opaque id, not 0 while the object holds a surface.
    quintptr hDIB() const { return reinterpret_cast<quintptr>(m_bits.get()); }
    // The first byte of the pixel memory (memory row 0, the bottom row); null when empty.
    uint8_t *DIBSectionBitsPtr() { return m_bits.get(); }
    const uint8_t *DIBSectionBitsPtr() const { return m_bits.get(); }
    // The byte view over the pixel memory (see dibview.h).
    DibView view() { return {m_bits.get(), int(m_tBI.biWidth), int(m_tBI.biHeight), m_stride}; }
    ConstDibView view() const
    {
        return {m_bits.get(), int(m_tBI.biWidth), int(m_tBI.biHeight), m_stride};
    }
    // The header of the surface: 40, width, height (positive: bottom-up), 1 plane, 24 bits,
    // BI_RGB, biSizeImage = BytesPerScanLine * height. All zero sizes when empty.
    const BITMAPINFOHEADER &header() const { return m_tBI; }

    // Releases the surface; the object is empty afterwards.
    void ClearUp();

    // A new surface of the given size, bilinear: equal size is an exact copy. The caller owns
    // it; null after a fault. Raw memory rows on both sides (see dibsection_resample.cpp).
    std::unique_ptr<cDIBSection> Resample(int lNewWidth, int lNewHeight) const;
    // As Resample, but each target pixel is the nearest source pixel below its position.
    std::unique_ptr<cDIBSection> Resize(int lNewWidth, int lNewHeight) const;

    // Draws into cDibTo, in raw memory coordinates (y the memory row, 0 the bottom row as
    // shown): "BF" fills the closed box, "B" draws its four edges, any other Boxtype draws
    // nothing. Coordinates are clamped to the target and ordered; Color is a colour long.
    // Opacity is accepted and has no effect: every pixel is written opaque.
    static void LineDIB(cDIBSection &cDibTo, int xStart, int yStart, int xEnd, int yEnd,
                        ColorLong Color, const QString &Boxtype, int Opacity = 100);

    // Draws one line of text into toDIB (picture coordinates): the text is drawn without
    // anti-aliasing in Fontcolor on a white helper picture of the text's (rotated) bounding
    // box, which is then copied (SRCCOPY) to the place that txtpos chooses: 0 at (X, Y),
    // 1 top left, 2 top right, 3 bottom right, 4 bottom left, 5 centred. txtangle is in
    // degrees, counter-clockwise. FontGroesse 0 chooses the size from toDIB's width.
    // FontGroesse and FontWeite are a logical font's height and width in pixels.
    static void PrintDIB(cDIBSection &toDIB, int X, int Y, const QString &txt, int txtpos,
                         Single txtangle, const QString &Fontname, ColorLong Fontcolor,
                         int FontGroesse, int FontWeite);

    // Writes DIB as a 24-bit BMP file with the system's own header (bfSize leaves out the
    // 14 bytes of the file header). The file is written beside the target and renamed over it,
    // so nothing is written half. An empty surface writes nothing. True when written.
    static bool Save_BMP(const QString &sfileName, const cDIBSection &DIB);

    int dib_width() const { return m_tBI.biWidth; }
    int dib_height() const { return m_tBI.biHeight; }
    int dib_channels() const { return m_tBI.biBitCount / 8; }

    // The centred fit of the surface in a dstW x dstH box: a surface that fits is not enlarged
    // unless StretchFit; otherwise it is scaled to the box keeping its aspect (rounded half to
    // even); the offsets are the halves of the leftover, truncated. An empty surface gives 0s.
    void GetBestFitInfo(int dstW, int dstH, int &bfx, int &bfy, int &bfW, int &bfH,
                        bool StretchFit) const;

private:
    struct FreeDeleter {
        void operator()(uint8_t *p) const { std::free(p); }
    };

    // Writes one colour into the closed box x0..x1, y0..y1 (memory rows) of `v`;
    // the box lies inside the view.
    static void fillBox(DibView v, int x0, int y0, int x1, int y1, ColorLong c);

    std::unique_ptr<uint8_t, FreeDeleter> m_bits; // the pixel memory
    QImage m_image;                               // wraps m_bits, never copied
    DeviceContext m_dc;                           // over m_image, bottom-up
    BITMAPINFOHEADER m_tBI{40, 0, 0, 1, 24, BI_RGB, 0, 0, 0, 0, 0};
    int m_stride = 0;
};

} // namespace tf
