// PictureBox: state, size, persistence (Picture, Image, screen layer), Cls and Refresh.
#include "core/picturebox.h"

#include <QPainter>
#include <algorithm>

namespace tf {

namespace {

constexpr int InvalidPropertyValue = 380;

[[noreturn]] void invalidProperty()
{
    throw Fault(InvalidPropertyValue, QStringLiteral("Invalid property value"));
}

QImage blankImage(int w, int h, ColorLong back)
{
    QImage img(std::max(1, w), std::max(1, h), QImage::Format_RGB32);
    img.fill(toQRgb(back));
    return img;
}

} // namespace

PictureBox::PictureBox(const QString &name, int width, int height)
    : m_name(name), m_blankSize(std::max(1, width), std::max(1, height))
{
    m_dc.attach(&m_image, false);
    syncPen();
    syncBrush();
    syncFont();
    syncBackground();
    m_dc.rop2 = m_drawMode;
}

// ---- Persistence ---------------------------------------------------------------------------

void PictureBox::realize() const
{
    if (!m_blank)
        return;
    m_image = blankImage(m_blankSize.width(), m_blankSize.height(), m_backColor);
    m_blank = false;
}

bool PictureBox::replaceImage(const QImage &picture)
{
    if (m_screenActive || picture.size() != QSize(Width(), Height()) ||
        picture.format() != QImage::Format_RGB32)
        return false;
    m_image = picture;
    m_blank = false;
    markChanged();
    return true;
}

DeviceContext &PictureBox::beginDrawing()
{
    if (!m_autoRedraw && !m_screenActive) {
        m_screen = Image().copy();
        m_screenActive = true;
    }
    m_dc.attach(&target(), false);
    return m_dc;
}

DeviceContext &PictureBox::hDC() { return beginDrawing(); }

void PictureBox::dropScreenLayer()
{
    m_screenActive = false;
    m_screen = QImage();
    m_dc.attach(&m_image, false);
}

void PictureBox::setAutoRedraw(bool on)
{
    if (on == m_autoRedraw)
        return;
    m_autoRedraw = on;
    // Drawing that only reached the screen is not persistent; the next repaint loses it.
    if (on && m_screenActive)
        dropScreenLayer();
    else
        m_dc.attach(drawingSlot(), false);
}

void PictureBox::clearImage()
{
    if (m_picture.isNull() && m_blank)
        return;
    // A picture that covers the whole control becomes the image as it is: the two share their
    // pixels until the next drawing, so keeping a large paint as the picture copies nothing.
    if (m_picture.size() == QSize(Width(), Height())) {
        m_image = m_picture;
        m_blank = false;
        return;
    }
    realize();
    m_image.fill(toQRgb(m_backColor));
    if (!m_picture.isNull()) {
        QPainter p(&m_image);
        p.setCompositionMode(QPainter::CompositionMode_Source);
        p.drawImage(0, 0, m_picture);
    }
}

void PictureBox::setPicture(const QImage &picture)
{
    m_picture = picture.isNull() ? QImage() : picture.convertToFormat(QImage::Format_RGB32);
    dropScreenLayer();
    clearImage();
    markChanged();
}

void PictureBox::Cls()
{
    if (m_autoRedraw)
        clearImage();
    dropScreenLayer();
    m_currentX = 0;
    m_currentY = 0;
    markChanged();
}

void PictureBox::Refresh()
{
    if (m_screenActive)
        dropScreenLayer();
    markChanged();
}

void PictureBox::markChanged(const QRect &r)
{
    if (!m_hook)
        return;
    const QRect whole(0, 0, Width(), Height());
    m_hook(r.isEmpty() ? whole : r.intersected(whole));
}

void PictureBox::drawn(const QRect &r)
{
    const QRect visible = r.intersected(QRect(0, 0, Width(), Height()));
    if (!visible.isEmpty())
        markChanged(visible);
}

// ---- Drawing state -------------------------------------------------------------------------

void PictureBox::syncPen() { m_dc.pen = Pen{m_drawStyle, m_drawWidth, m_foreColor}; }

void PictureBox::syncBrush() { m_dc.brush = Brush{m_fillStyle != 0, m_fillColor}; }

void PictureBox::syncBackground()
{
    m_dc.bkColor = m_backColor;
    m_dc.bkMode = m_fontTransparent ? TRANSPARENT : OPAQUE;
    m_dc.textColor = m_foreColor;
}

void PictureBox::syncFont() { m_dc.font = propertyFont(); }

Font PictureBox::propertyFont() const
{
    Font f;
    f.faceName = m_fontName;
    // A point size as the em height in pixels, at 96 pixels per inch.
    f.height = -int(roundHalfEven(double(m_fontSize) * 96.0 / 72.0));
    f.weight = m_fontBold ? 700 : 400;
    f.italic = m_fontItalic;
    f.underline = m_fontUnderline;
    f.strikeOut = m_fontStrikethru;
    return f;
}

void PictureBox::setForeColor(ColorLong c)
{
    if (c < 0)
        invalidProperty();
    m_foreColor = c;
    syncPen();
    syncBackground();
}

void PictureBox::setBackColor(ColorLong c)
{
    if (c < 0)
        invalidProperty();
    m_backColor = c;
    syncBackground();
    // A new background erases all drawing, persistent or not.
    clearImage();
    dropScreenLayer();
    m_currentX = 0;
    m_currentY = 0;
    markChanged();
}

void PictureBox::setFillColor(ColorLong c)
{
    if (c < 0)
        invalidProperty();
    m_fillColor = c;
    syncBrush();
}

void PictureBox::setFillStyle(int style)
{
    if (style < 0 || style > 7)
        invalidProperty();
    m_fillStyle = style;
    syncBrush();
}

void PictureBox::setDrawWidth(int width)
{
    if (width < 1 || width > 32767)
        invalidProperty();
    m_drawWidth = width;
    syncPen();
}

void PictureBox::setDrawStyle(int style)
{
    if (style < 0 || style > 6)
        invalidProperty();
    m_drawStyle = style;
    syncPen();
}

void PictureBox::setDrawMode(int mode)
{
    if (mode < 1 || mode > 16)
        invalidProperty();
    m_drawMode = mode;
    m_dc.rop2 = mode;
}

void PictureBox::setFontName(const QString &name)
{
    m_fontName = name;
    syncFont();
}

void PictureBox::setFontSize(double points)
{
    if (!(points > 0) || points > 2160)
        invalidProperty();
    m_fontSize = CSng(points);
    syncFont();
}

void PictureBox::setFontBold(bool on)
{
    m_fontBold = on;
    syncFont();
}

void PictureBox::setFontItalic(bool on)
{
    m_fontItalic = on;
    syncFont();
}

void PictureBox::setFontUnderline(bool on)
{
    m_fontUnderline = on;
    syncFont();
}

void PictureBox::setFontStrikethru(bool on)
{
    m_fontStrikethru = on;
    syncFont();
}

void PictureBox::setFontTransparent(bool on)
{
    m_fontTransparent = on;
    syncBackground();
}

// ---- Place and size ------------------------------------------------------------------------

void PictureBox::resize(int width, int height)
{
    width = std::max(1, width);
    height = std::max(1, height);
    if (width == Width() && height == Height())
        return;
    if (m_blank) {
        m_blankSize = QSize(width, height);
        markChanged();
        return;
    }
    QImage img = blankImage(width, height, m_backColor);
    {
        QPainter p(&img);
        p.setCompositionMode(QPainter::CompositionMode_Source);
        p.drawImage(0, 0, m_image);
    }
    m_image = std::move(img);
    if (m_screenActive) {
        QImage screen = blankImage(width, height, m_backColor);
        QPainter p(&screen);
        p.setCompositionMode(QPainter::CompositionMode_Source);
        p.drawImage(0, 0, m_screen);
        p.end();
        m_screen = std::move(screen);
    }
    m_dc.attach(drawingSlot(), false);
    markChanged();
}

void PictureBox::setWidth(double width)
{
    if (width < 0)
        invalidProperty();
    resize(CLng(width), Height());
}

void PictureBox::setHeight(double height)
{
    if (height < 0)
        invalidProperty();
    resize(Width(), CLng(height));
}

void PictureBox::Move(double left, std::optional<double> top, std::optional<double> width,
                      std::optional<double> height)
{
    if ((width && *width < 0) || (height && *height < 0))
        invalidProperty();
    setLeft(left);
    if (top)
        setTop(*top);
    resize(width ? CLng(*width) : Width(), height ? CLng(*height) : Height());
}

void PictureBox::setVisible(bool on)
{
    if (on == m_visible)
        return;
    m_visible = on;
    markChanged();
}

// ---- Scale modes ---------------------------------------------------------------------------

namespace {

// Twips per unit of a scale mode along one axis; 0 for an unknown mode.
double twipsPer(int mode, bool vertical)
{
    switch (mode) {
    case vbTwips: return 1.0;
    case vbPoints: return 20.0;
    case vbPixels: return 15.0;
    case vbCharacters: return vertical ? 240.0 : 120.0;
    case vbInches: return 1440.0;
    case vbMillimeters: return 1440.0 / 25.4;
    case vbCentimeters: return 1440.0 / 2.54;
    case vbHimetric: return 1440.0 / 2540.0;
    default: return 0.0;
    }
}

double convert(double value, int from, int to, bool vertical)
{
    const double a = twipsPer(from, vertical), b = twipsPer(to, vertical);
    if (a == 0.0 || b == 0.0)
        throw Fault(Fault::InvalidCall);
    return value * a / b;
}

} // namespace

void PictureBox::setScaleMode(int mode)
{
    if (mode < vbTwips || mode > vbHimetric)
        invalidProperty();
    m_scaleMode = mode;
}

Single PictureBox::ScaleWidth() const
{
    return CSng(convert(Width(), vbPixels, m_scaleMode, false));
}

Single PictureBox::ScaleHeight() const
{
    return CSng(convert(Height(), vbPixels, m_scaleMode, true));
}

double PictureBox::ScaleX(double width, int fromScale, int toScale) const
{
    return convert(width, fromScale, toScale < 0 ? m_scaleMode : toScale, false);
}

double PictureBox::ScaleY(double height, int fromScale, int toScale) const
{
    return convert(height, fromScale, toScale < 0 ? m_scaleMode : toScale, true);
}

} // namespace tf
