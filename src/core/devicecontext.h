#pragma once
// A device context: the pixels of a picture control or an off-screen surface, plus the
// objects selected into it (pen, brush, font, text colours, raster modes).
//
// Pixel layouts, said once:
// - a picture control's image is QImage::Format_RGB32, top-down: bytes blue, green, red,
//   unused; picture row 0 is memory row 0.
// - a cDIBSection is 24-bit, bottom-up, rows padded to 4 bytes: bytes blue, green, red;
//   picture row 0 is the last memory row. The context wraps that memory in a QImage of
//   Format_BGR888 whose row 0 is memory row 0, and says `bottomUp`.
// Every coordinate given to a context is a picture coordinate: (0,0) the top left pixel as
// shown. `scanLine(y)` and `painter()` translate for bottom-up memory.
//
// The context does not own the image: its owner (PictureBox, cDIBSection) does and keeps it
// at a fixed address for the context's lifetime.

#include "core/colour.h"

#include <QFont>
#include <QImage>
#include <QPainter>
#include <QRect>
#include <QString>
#include <memory>

namespace tf {

// Pen styles, as the drawing styles 0..6 of a picture control.
enum PenStyle { PS_SOLID = 0, PS_DASH, PS_DOT, PS_DASHDOT, PS_DASHDOTDOT, PS_NULL, PS_INSIDEFRAME };

struct Pen {
    int style = PS_SOLID;
    int width = 1;
    ColorLong color = 0;
};

struct Brush {
    bool hollow = false; // a null brush: closed figures are not filled
    ColorLong color = 0xFFFFFF;
};

// A logical font: height in pixels (0 the default), escapement in tenths of a degree,
// counter-clockwise; weight 400 normal, 700 bold; quality as the font's output quality
// (ANTIALIASED_QUALITY and CLEARTYPE_QUALITY draw soft edges, everything else hard ones).
struct Font {
    QString faceName = QStringLiteral("Arial");
    int height = 0;
    int width = 0;
    int escapement = 0;
    int orientation = 0;
    int weight = 400;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    int quality = 0;
};

// Binary raster operations of the pen (the drawing modes 1..16).
enum Rop2 {
    R2_BLACK = 1, R2_NOTMERGEPEN, R2_MASKNOTPEN, R2_NOTCOPYPEN, R2_MASKPENNOT, R2_NOT,
    R2_XORPEN, R2_NOTMASKPEN, R2_MASKPEN, R2_NOTXORPEN, R2_NOP, R2_MERGENOTPEN, R2_COPYPEN,
    R2_MERGEPENNOT, R2_MERGEPEN, R2_WHITE
};

// Combines pen P and destination D bitwise by the binary raster operation `rop2` (1..16).
inline uint32_t applyRop2(int rop2, uint32_t p, uint32_t d)
{
    if (rop2 == R2_COPYPEN)
        return p;
    const unsigned t = unsigned(rop2 - 1) & 15u;
    uint32_t r = 0;
    if (t & 1u) r |= ~p & ~d;
    if (t & 2u) r |= ~p & d;
    if (t & 4u) r |= p & ~d;
    if (t & 8u) r |= p & d;
    return r;
}

enum BkMode { TRANSPARENT = 1, OPAQUE = 2 };
enum StretchMode { BLACKONWHITE = 1, WHITEONBLACK = 2, COLORONCOLOR = 3, HALFTONE = 4 };

class DeviceContext {
public:
    DeviceContext() = default;
    DeviceContext(QImage *image, bool bottomUp) : m_image(image), m_bottomUp(bottomUp) {}
    DeviceContext(const DeviceContext &) = delete;
    DeviceContext &operator=(const DeviceContext &) = delete;

    void attach(QImage *image, bool bottomUp);
    bool valid() const { return m_image && !m_image->isNull(); }
    int width() const { return m_image ? m_image->width() : 0; }
    int height() const { return m_image ? m_image->height() : 0; }
    QRect rect() const { return QRect(0, 0, width(), height()); }
    bool bottomUp() const { return m_bottomUp; }
    int bytesPerPixel() const { return m_image ? m_image->depth() / 8 : 0; }
    QImage *image() { return m_image; }
    const QImage *image() const { return m_image; }

    // The bytes of picture row y (0 the top row as shown).
    uchar *scanLine(int y) { return m_image->scanLine(m_bottomUp ? height() - 1 - y : y); }
    const uchar *scanLine(int y) const
    {
        return m_image->constScanLine(m_bottomUp ? height() - 1 - y : y);
    }

    bool contains(int x, int y) const { return x >= 0 && y >= 0 && x < width() && y < height(); }
    // The colour long of a pixel, -1 outside.
    ColorLong pixel(int x, int y) const;
    // Writes one pixel as it stands (no raster mode); outside is ignored.
    void setPixel(int x, int y, ColorLong c);
    // Writes one pixel of the pen through the raster mode `rop2`; outside and clipped are ignored.
    void plot(int x, int y, ColorLong c)
    {
        if (!contains(x, y) || (m_hasClip && !m_clip.contains(x, y)))
            return;
        if (rop2 == R2_COPYPEN)
            setPixel(x, y, c);
        else
            setPixel(x, y, ColorLong(applyRop2(rop2, uint32_t(c), uint32_t(pixel(x, y))) &
                                     0xFFFFFF));
    }

    // A painter over the pixels in picture coordinates, with the context's clip.
    // The caller ends it before the image changes size.
    std::unique_ptr<QPainter> painter();

    // Clip rectangle in picture coordinates; the whole picture unless set.
    QRect clip() const { return m_hasClip ? m_clip.intersected(rect()) : rect(); }
    bool hasClip() const { return m_hasClip; }
    void setClip(const QRect &r)
    {
        m_clip = r;
        m_hasClip = true;
    }
    void resetClip()
    {
        m_clip = QRect();
        m_hasClip = false;
    }

    // Selected objects and modes.
    Pen pen;
    Brush brush;
    Font font;
    ColorLong textColor = 0;
    ColorLong bkColor = 0xFFFFFF;
    int bkMode = OPAQUE;
    int rop2 = R2_COPYPEN;
    int stretchMode = BLACKONWHITE;

private:
    QImage *m_image = nullptr;
    bool m_bottomUp = false;
    QRect m_clip;
    bool m_hasClip = false;
};

// Selecting objects: each returns the object that was selected before.
Pen SelectObject(DeviceContext &dc, const Pen &pen);
Brush SelectObject(DeviceContext &dc, const Brush &brush);
Font SelectObject(DeviceContext &dc, const Font &font);

Pen CreatePen(int style, int width, ColorLong color);
Brush CreateSolidBrush(ColorLong color);
Brush GetStockHollowBrush();

int SetROP2(DeviceContext &dc, int rop2);
int SetBkMode(DeviceContext &dc, int mode);
ColorLong SetBkColor(DeviceContext &dc, ColorLong c);
ColorLong SetTextColor(DeviceContext &dc, ColorLong c);
int SetStretchBltMode(DeviceContext &dc, int mode);
int GetStretchBltMode(const DeviceContext &dc);

} // namespace tf
