// Fonts, text metrics and rotated text.
#include "core/gdi.h"
#include "core/gdi_raster.h"
#include "core/numeric.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace tf {

namespace {

// The cell height of a logical font whose height is 0.
constexpr int DefaultCellHeight = 16;

// Pixel size (em height) of a font whose cell (ascent + descent) is `cell` pixels.
int emForCell(QFont f, int cell)
{
    f.setPixelSize(std::max(1, cell));
    const QFontMetrics m(f);
    const int actual = m.ascent() + m.descent();
    if (actual <= 0)
        return std::max(1, cell);
    return std::max(1, int(std::lround(double(cell) * cell / actual)));
}

bool softEdges(const Font &font)
{
    return font.quality == ANTIALIASED_QUALITY || font.quality == CLEARTYPE_QUALITY;
}

} // namespace

QFont toQFont(const Font &font)
{
    QFont f(font.faceName.isEmpty() ? QStringLiteral("Arial") : font.faceName);
    f.setStyleStrategy(softEdges(font) ? QFont::PreferAntialias : QFont::NoAntialias);
    f.setWeight(QFont::Weight(font.weight <= 0 ? 400 : std::clamp(font.weight, 1, 1000)));
    f.setItalic(font.italic);
    f.setUnderline(font.underline);
    f.setStrikeOut(font.strikeOut);
    if (font.height < 0)
        f.setPixelSize(std::max(1, -font.height));
    else
        f.setPixelSize(emForCell(f, font.height > 0 ? font.height : DefaultCellHeight));
    if (font.width > 0) {
        const int natural = QFontMetrics(f).averageCharWidth();
        if (natural > 0)
            f.setStretch(std::clamp(int(std::lround(100.0 * font.width / natural)), 1, 4000));
    }
    return f;
}

Font CreateFontA(int height, int width, int escapement, int orientation, int weight,
                 unsigned italic, unsigned underline, unsigned strikeOut, unsigned charSet,
                 unsigned outPrecision, unsigned clipPrecision, unsigned quality,
                 unsigned pitchAndFamily, const QString &faceName)
{
    LOGFONT lf;
    lf.lfHeight = height;
    lf.lfWidth = width;
    lf.lfEscapement = escapement;
    lf.lfOrientation = orientation;
    lf.lfWeight = weight;
    lf.lfItalic = uint8_t(italic != 0);
    lf.lfUnderline = uint8_t(underline != 0);
    lf.lfStrikeOut = uint8_t(strikeOut != 0);
    lf.lfCharSet = uint8_t(charSet);
    lf.lfOutPrecision = uint8_t(outPrecision);
    lf.lfClipPrecision = uint8_t(clipPrecision);
    lf.lfQuality = uint8_t(quality);
    lf.lfPitchAndFamily = uint8_t(pitchAndFamily);
    lf.lfFaceName = faceName;
    return CreateFontIndirectA(lf);
}

Font CreateFontIndirectA(const LOGFONT &lf)
{
    Font f;
    // The classic face name field holds at most 31 characters.
    f.faceName = lf.lfFaceName.left(LF_FACESIZE - 1);
    if (f.faceName.isEmpty())
        f.faceName = QStringLiteral("Arial");
    f.height = lf.lfHeight;
    f.width = std::abs(lf.lfWidth);
    f.escapement = lf.lfEscapement;
    f.orientation = lf.lfOrientation;
    f.weight = lf.lfWeight;
    f.italic = lf.lfItalic != 0;
    f.underline = lf.lfUnderline != 0;
    f.strikeOut = lf.lfStrikeOut != 0;
    f.quality = lf.lfQuality;
    return f;
}

bool GetTextMetricsA(const DeviceContext &dc, TEXTMETRIC &tm)
{
    const QFont f = toQFont(dc.font);
    const QFontMetrics m(f);
    tm = TEXTMETRIC{};
    tm.tmAscent = m.ascent();
    tm.tmDescent = m.descent();
    tm.tmHeight = tm.tmAscent + tm.tmDescent;
    tm.tmInternalLeading = std::max(0, tm.tmHeight - f.pixelSize());
    tm.tmExternalLeading = std::max(0, m.leading());
    tm.tmAveCharWidth = m.averageCharWidth();
    tm.tmMaxCharWidth = m.maxWidth();
    tm.tmWeight = dc.font.weight <= 0 ? 400 : dc.font.weight;
    tm.tmItalic = uint8_t(dc.font.italic);
    tm.tmUnderlined = uint8_t(dc.font.underline);
    tm.tmStruckOut = uint8_t(dc.font.strikeOut);
    return true;
}

bool GetTextExtentPoint32A(const DeviceContext &dc, const QString &text, SIZE &size)
{
    const QFontMetrics m(toQFont(dc.font));
    size.cx = m.horizontalAdvance(text);
    size.cy = m.ascent() + m.descent();
    return true;
}

namespace {

// Lays `colour` over the pixels of `box` by the coverage in `ink` (one byte a pixel, 255 whole),
// each channel rounded half to even.
void blendInk(DeviceContext &dc, const QImage &ink, const QRect &box, ColorLong colour)
{
    const int r = RedOf(colour), g = GreenOf(colour), b = BlueOf(colour);
    for (int j = 0; j < box.height(); ++j) {
        const uchar *row = ink.constScanLine(j);
        for (int i = 0; i < box.width(); ++i) {
            const int a = row[i];
            if (a == 0) continue;
            const int px = box.left() + i, py = box.top() + j;
            if (a == 255) {
                dc.setPixel(px, py, colour);
                continue;
            }
            const ColorLong under = dc.pixel(px, py);
            const auto mix = [a](int top, int bottom) {
                return int(roundHalfEven((top * a + bottom * (255 - a)) / 255.0));
            };
            dc.setPixel(px, py, RGB(mix(r, RedOf(under)), mix(g, GreenOf(under)), mix(b, BlueOf(under))));
        }
    }
}

} // namespace

bool TextOutA(DeviceContext &dc, int x, int y, const QString &text)
{
    if (!dc.valid())
        return false;
    if (text.isEmpty())
        return true;
    const QFont font = toQFont(dc.font);
    const QFontMetrics m(font);
    const int ascent = m.ascent();
    const QRectF cell(0, 0, m.horizontalAdvance(text), ascent + m.descent());

    // Text space: the cell's top left at the origin, turned counter-clockwise about (x, y).
    QTransform toPicture;
    toPicture.translate(x, y);
    toPicture.rotate(-dc.font.escapement / 10.0);
    // Glyphs may overhang their cell (italics, accents): render with a margin around it.
    const double margin = cell.height() / 2 + 2;
    const QRect box = toPicture.mapRect(cell.adjusted(-margin, -margin, margin, margin))
                          .toAlignedRect()
                          .intersected(dc.clip());
    if (box.isEmpty())
        return true;

    const bool soft = softEdges(dc.font);
    QImage glyphs(box.size(), QImage::Format_Alpha8);
    glyphs.fill(0);
    {
        QPainter p(&glyphs);
        p.setRenderHint(QPainter::Antialiasing, soft);
        p.setRenderHint(QPainter::TextAntialiasing, soft);
        p.setTransform(toPicture * QTransform::fromTranslate(-box.left(), -box.top()));
        p.setFont(font);
        p.setPen(QColor(255, 255, 255, 255));
        p.drawText(QPointF(0, ascent), text);
    }

    raster::Mask mask(box);
    const bool opaque = dc.bkMode == OPAQUE;
    const QTransform toText = toPicture.inverted();
    // With soft edges the mask holds the cell's background only; the ink is laid over after.
    const int inkFrom = soft ? 256 : 128;
    for (int j = 0; j < box.height(); ++j) {
        const uchar *row = glyphs.constScanLine(j);
        for (int i = 0; i < box.width(); ++i) {
            const int px = box.left() + i, py = box.top() + j;
            if (row[i] >= inkFrom) {
                mask.set(px, py, raster::PenLabel);
            } else if (opaque) {
                // A pixel belongs to the cell when its centre does.
                const QPointF c = toText.map(QPointF(px + 0.5, py + 0.5));
                if (c.x() >= 0 && c.x() < cell.width() && c.y() >= 0 && c.y() < cell.height())
                    mask.set(px, py, raster::BrushLabel);
            }
        }
    }
    // Text is copied, whatever the raster mode of the pen.
    const int rop2 = dc.rop2;
    dc.rop2 = R2_COPYPEN;
    const ColorLong colours[4] = {-1, dc.textColor & 0xFFFFFF, -1, dc.bkColor & 0xFFFFFF};
    mask.paint(dc, colours);
    dc.rop2 = rop2;
    if (soft)
        blendInk(dc, glyphs, box, dc.textColor & 0xFFFFFF);
    return true;
}

bool TextOutA(DeviceContext &dc, int x, int y, const QString &text, int count)
{
    return TextOutA(dc, x, y, text.left(std::max(0, count)));
}

} // namespace tf
