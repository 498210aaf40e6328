#pragma once
// A picture control: a raster surface of whole pixels with a drawing state, the surface that
// every painter, filter and tool draws on.
//
// Pixels: the persistent image is a QImage of Format_RGB32, top-down (bytes blue, green, red,
// unused). Coordinates of every operation are pixels, (0,0) the top left pixel; ScaleMode only
// affects ScaleWidth, ScaleHeight and the ScaleX/ScaleY defaults. Floating coordinates become
// pixels by rounding half to even; a coordinate outside the 32-bit range is an Overflow fault.
//
// Persistence: with AutoRedraw true every drawing operation writes into the persistent image
// (`Image()`). With AutoRedraw false drawing goes to a screen layer instead: a copy of the
// persistent image taken when the first drawing starts, shown by the view and thrown away by
// Refresh, Cls or a repaint; `Image()` does not change.
//
// Drawing state and device context: `hDC()` is the context of the current drawing target. The
// control keeps the context's pen (ForeColor, DrawWidth, DrawStyle), brush (FillColor,
// FillStyle), raster mode (DrawMode), font (Font* properties), text colour (ForeColor) and
// background (BackColor; FontTransparent as the background mode) in step whenever a property
// is set. Graphics-device calls may select their own objects into it; the control's own
// operations use the properties, not what is selected.
//
// Faults: operations throw tf::Fault (Overflow for coordinates, 380 "Invalid property value"
// for a property out of range); the calling routine's handler reports them.

#include "core/blit.h"
#include "core/colour.h"
#include "core/devicecontext.h"
#include "core/numeric.h"

#include <QImage>
#include <QRect>
#include <QString>
#include <functional>
#include <optional>

namespace tf {

// Flags of Line: a plain line, a box outline (B) or a filled box (BF).
enum class LineFlags { None, B, BF };

// Scale modes of ScaleX/ScaleY and ScaleMode.
enum ScaleModeUnit {
    vbUser = 0, vbTwips = 1, vbPoints = 2, vbPixels = 3, vbCharacters = 4, vbInches = 5,
    vbMillimeters = 6, vbCentimeters = 7, vbHimetric = 8
};

class PictureBox {
public:
    // A control of w x h pixels (at least 1 x 1), cleared to BackColor (white).
    explicit PictureBox(const QString &name = QString(), int width = 1, int height = 1);
    PictureBox(const PictureBox &) = delete;
    PictureBox &operator=(const PictureBox &) = delete;

    QString name() const { return m_name; }
    void setName(const QString &name) { m_name = name; }

    // ---- Persistent pictures -------------------------------------------------------------
    bool AutoRedraw() const { return m_autoRedraw; }
    void setAutoRedraw(bool on);
    // The persistent background; a null image is "no picture".
    const QImage &Picture() const { return m_picture; }
    // Sets the background (converted to RGB32) and erases all drawing: the image becomes
    // BackColor with the picture at (0,0). The control's size does not change.
    void setPicture(const QImage &picture);
    // The persistent image, including all that was drawn with AutoRedraw on.
    const QImage &Image() const
    {
        realize();
        return m_image;
    }
    // The persistent image's pixels, for routines that work on them in place; the caller
    // keeps the size and calls markChanged() afterwards.
    QImage &mutableImage()
    {
        realize();
        return m_image;
    }
    // Copies a picture of the control's own size over the whole persistent image by sharing
    // its pixels (a later drawing detaches them): a full-size copy without a second buffer.
    // Answers false, changing nothing, for another size or while a screen layer is shown.
    bool replaceImage(const QImage &picture);
    // False while the control is blank in BackColor and has not yet needed its pixels: a new
    // or resized blank control takes no memory until it is drawn on or read, so the work
    // pictures that follow a 14000 x 14000 picture cost nothing until a routine uses them.
    bool holdsPixels() const { return !m_blank; }
    // The context of the current drawing target (the screen layer with AutoRedraw off, which
    // this call starts; else the persistent image). Its address is stable for the control's
    // lifetime.
    DeviceContext &hDC();

    // ---- Drawing state --------------------------------------------------------------------
    ColorLong ForeColor() const { return m_foreColor; }
    void setForeColor(ColorLong c);
    ColorLong BackColor() const { return m_backColor; }
    // Setting BackColor erases all drawing, as Cls does.
    void setBackColor(ColorLong c);
    ColorLong FillColor() const { return m_fillColor; }
    void setFillColor(ColorLong c);
    // 0 solid, 1 transparent; 2..7 (hatches) are accepted and fill like 1.
    int FillStyle() const { return m_fillStyle; }
    void setFillStyle(int style);
    int DrawWidth() const { return m_drawWidth; }
    void setDrawWidth(int width); // >= 1
    // 0 solid, 1 dash, 2 dot, 3 dash-dot, 4 dash-dot-dot, 5 transparent, 6 inside solid.
    int DrawStyle() const { return m_drawStyle; }
    void setDrawStyle(int style);
    // Binary raster operation 1..16 of pen and fill; 13 copy-pen.
    int DrawMode() const { return m_drawMode; }
    void setDrawMode(int mode);
    Single CurrentX() const { return m_currentX; }
    void setCurrentX(double x) { m_currentX = CSng(x); }
    Single CurrentY() const { return m_currentY; }
    void setCurrentY(double y) { m_currentY = CSng(y); }

    // ---- Font -----------------------------------------------------------------------------
    QString FontName() const { return m_fontName; }
    void setFontName(const QString &name);
    // Points; one point is 96/72 pixels.
    Single FontSize() const { return m_fontSize; }
    void setFontSize(double points);
    bool FontBold() const { return m_fontBold; }
    void setFontBold(bool on);
    bool FontItalic() const { return m_fontItalic; }
    void setFontItalic(bool on);
    bool FontUnderline() const { return m_fontUnderline; }
    void setFontUnderline(bool on);
    bool FontStrikethru() const { return m_fontStrikethru; }
    void setFontStrikethru(bool on);
    // True: Print leaves the background untouched; false: it fills the text cell with BackColor.
    bool FontTransparent() const { return m_fontTransparent; }
    void setFontTransparent(bool on);

    // ---- Place and size (pixels of the parent) -------------------------------------------
    Single Left() const { return m_left; }
    void setLeft(double left) { m_left = CSng(left); }
    Single Top() const { return m_top; }
    void setTop(double top) { m_top = CSng(top); }
    int Width() const { return m_blank ? m_blankSize.width() : m_image.width(); }
    int Height() const { return m_blank ? m_blankSize.height() : m_image.height(); }
    // Resizing keeps the content at the top left and fills new area with BackColor.
    // A size below 1 is clamped to 1; a negative size is an invalid property value.
    void setWidth(double width);
    void setHeight(double height);
    void resize(int width, int height);
    // Left, top and, where given, width and height in one call.
    void Move(double left, std::optional<double> top = {}, std::optional<double> width = {},
              std::optional<double> height = {});
    bool Visible() const { return m_visible; }
    void setVisible(bool on);
    bool Enabled() const { return m_enabled; }
    void setEnabled(bool on) { m_enabled = on; }

    int ScaleMode() const { return m_scaleMode; }
    void setScaleMode(int mode); // 1..8
    // The inner size in ScaleMode units.
    Single ScaleWidth() const;
    Single ScaleHeight() const;
    // Converts a horizontal / vertical length between scale modes (1 twips .. 8 himetric;
    // a pixel is 15 twips, a character 120 twips wide and 240 twips high). `toScale` -1 means
    // this control's ScaleMode.
    double ScaleX(double width, int fromScale = vbHimetric, int toScale = -1) const;
    double ScaleY(double height, int fromScale = vbHimetric, int toScale = -1) const;

    // ---- Drawing operations ---------------------------------------------------------------
    // A line from (x1,y1) to (x2,y2) in `colour` (-1: ForeColor) with DrawWidth, DrawStyle and
    // DrawMode. A width-1 line does not draw its end point, except that a line of length zero
    // draws its single point. B draws the box with corners (x1,y1) and (x2,y2), both inside,
    // filled by FillColor when FillStyle is 0; BF fills it with the line colour.
    // CurrentX/Y become (x2,y2).
    void Line(double x1, double y1, double x2, double y2, ColorLong colour = -1,
              LineFlags flags = LineFlags::None);
    // "Line -(x2,y2)": from CurrentX/Y.
    void LineTo(double x2, double y2, ColorLong colour = -1, LineFlags flags = LineFlags::None);
    // The Step forms: a stepped point is relative to CurrentX/Y (the second to the first).
    void LineStep(bool step1, double x1, double y1, bool step2, double x2, double y2,
                  ColorLong colour = -1, LineFlags flags = LineFlags::None);

    // A circle, ellipse or arc around (x,y). `aspect` is height to width, the radius being
    // the longer half-axis. `start`/`end` in radians (-2pi..2pi), counter-clockwise from
    // the positive x-axis; a negative value also draws the radius to that end; both negative
    // make a closed pie. Full figures and pies are filled by FillColor/FillStyle.
    // CurrentX/Y become (x,y).
    void Circle(double x, double y, double radius, ColorLong colour = -1,
                std::optional<double> start = {}, std::optional<double> end = {},
                std::optional<double> aspect = {});

    // One pixel, or a round dot of DrawWidth; in DrawMode. CurrentX/Y become (x,y).
    void PSet(double x, double y, ColorLong colour = -1);
    // The colour long of a pixel of the drawing target, -1 outside the picture.
    ColorLong Point(double x, double y) const;
    // With AutoRedraw on: the image becomes BackColor with Picture at (0,0). With it off: the
    // screen layer is thrown away. CurrentX/Y become 0.
    void Cls();
    // Draws `text` at CurrentX/Y in ForeColor with the font (background by FontTransparent).
    // With `newline` the pen moves to x 0 and down by TextHeight, else right by TextWidth.
    // Line breaks in `text` start new lines at x 0. An empty text draws nothing but reports
    // the whole picture changed, so that what was drawn through hDC() reaches the view.
    void Print(const QString &text = QString(), bool newline = true);
    // Copies `source` (or its part from (x2,y2), w2 x h2) to (x1,y1) stretched to w1 x h1 by
    // the raster operation `rop`. Omitted sizes are the source's own.
    void PaintPicture(const QImage &source, double x1, double y1,
                      std::optional<double> w1 = {}, std::optional<double> h1 = {},
                      std::optional<double> x2 = {}, std::optional<double> y2 = {},
                      std::optional<double> w2 = {}, std::optional<double> h2 = {},
                      uint32_t rop = SRCCOPY);
    void PaintPicture(PictureBox &source, double x1, double y1,
                      std::optional<double> w1 = {}, std::optional<double> h1 = {},
                      std::optional<double> x2 = {}, std::optional<double> y2 = {},
                      std::optional<double> w2 = {}, std::optional<double> h2 = {},
                      uint32_t rop = SRCCOPY);
    // Shows the persistent image at once; with AutoRedraw off the screen layer is lost.
    void Refresh();
    // Size of `text` in the current font, in pixels; lines counted by their breaks.
    Single TextWidth(const QString &text) const;
    Single TextHeight(const QString &text) const;

    // ---- View -----------------------------------------------------------------------------
    // What the screen shows: the screen layer while one exists, else the persistent image.
    const QImage &screenImage() const { return target(); }
    // Called with the changed rectangle after each drawing operation and with the whole
    // picture by Refresh, resizing and clearing; the GUI hands it to QWidget::update, which
    // coalesces. Routines that draw through hDC() call markChanged or Refresh.
    void setChangedHook(std::function<void(const QRect &)> hook) { m_hook = std::move(hook); }
    // Reports a change; an empty rectangle means the whole picture.
    void markChanged(const QRect &r = QRect());

private:
    QImage &target()
    {
        realize();
        return m_screenActive ? m_screen : m_image;
    }
    const QImage &target() const
    {
        realize();
        return m_screenActive ? m_screen : m_image;
    }
    // Gives a blank control its pixels (BackColor).
    void realize() const;
    // The image that drawing goes to, as it stands (a blank control's is null until used).
    QImage *drawingSlot() { return m_screenActive ? &m_screen : &m_image; }
    // Prepares the drawing target (starts the screen layer with AutoRedraw off).
    DeviceContext &beginDrawing();
    void dropScreenLayer();
    void clearImage();
    void syncPen();
    void syncBrush();
    void syncFont();
    void syncBackground();
    // The font that the Font* properties describe.
    Font propertyFont() const;
    void drawLine(int x1, int y1, int x2, int y2, ColorLong colour, LineFlags flags);
    // Reports what a drawing operation changed; nothing when it changed no pixel.
    void drawn(const QRect &r);

    QString m_name;
    // While m_blank, m_image is null and the control is m_blankSize pixels of BackColor.
    mutable QImage m_image;
    mutable bool m_blank = true;
    QSize m_blankSize{1, 1};
    QImage m_picture;
    QImage m_screen;
    bool m_screenActive = false;
    DeviceContext m_dc;
    std::function<void(const QRect &)> m_hook;

    bool m_autoRedraw = false;
    ColorLong m_foreColor = 0;
    ColorLong m_backColor = 0xFFFFFF;
    ColorLong m_fillColor = 0;
    int m_fillStyle = 1;
    int m_drawWidth = 1;
    int m_drawStyle = 0;
    int m_drawMode = 13;
    Single m_currentX = 0;
    Single m_currentY = 0;

    QString m_fontName = QStringLiteral("Arial");
    Single m_fontSize = 8.25f;
    bool m_fontBold = false;
    bool m_fontItalic = false;
    bool m_fontUnderline = false;
    bool m_fontStrikethru = false;
    bool m_fontTransparent = true;

    Single m_left = 0;
    Single m_top = 0;
    bool m_visible = true;
    bool m_enabled = true;
    int m_scaleMode = vbPixels;
};

} // namespace tf
