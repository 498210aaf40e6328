// The spray tool: the brushes of the spray panel painted by hand into a pixel array of the
// target, one stroke per press. Each dab shows only the rectangle it changed.
#include "tools/toolengine.h"

#include "tools/strokecolour.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tf {

void ToolEngine::Refresh_BrushImage()
{
    if (m_tool != Tool::Spray) {
        m_pixels = BrushPixels();
        m_frozen = BrushPixels();
        m_mask = StrokeMask();
        return;
    }
    const PictureBox &p = m_target.picture ? *m_target.picture : m_s.workspace().Bild;
    m_pixels = BrushPixels::fromImage(p.Image());
    m_frozen = m_pixels;
    if (m_mask.width != m_pixels.width || m_mask.height != m_pixels.height)
        m_mask = StrokeMask(m_pixels.width, m_pixels.height);
    else
        m_mask.clear();
}

void ToolEngine::sprayOutline(bool on, QPoint at)
{
    const RubberBands before = m_bands;
    m_bands.sprayVisible = on;
    m_bands.sprayAt = at;
    m_bands.sprayDiameter = std::max(1, m_s.controls().value(ControlKey{QStringLiteral("scrollSpray"), 0}));
    bandsChanged(before);
}

void ToolEngine::sprayDown(int x, int y)
{
    const Controls &c = m_s.controls();
    SprayType = std::clamp(c.listIndex(ControlKey{QStringLiteral("cmbSprayType")}), 0, 4);
    SpraySize = std::max(1, c.value(ControlKey{QStringLiteral("scrollSpray"), 0}));
    SprayPressure = std::clamp(c.value(ControlKey{QStringLiteral("scrollSpray"), 1}), 0, 100);
    SprayConnected = c.checked(ControlKey{QStringLiteral("XSprayBrush"), 0});
    SprayOverlay = c.checked(ControlKey{QStringLiteral("XSprayBrush"), 1});
    takeUndo();
    Refresh_BrushImage();
    PenColor = strokeColour(m_s, RandomStroke::Spray);
    DragX = x;
    DragY = y;
    LastX = x;
    LastY = y;
    showBrushRect(dab(x, y));
}

QRect ToolEngine::dab(int x, int y)
{
    switch (SprayType) {
    case 0:
        return Airbrush_Dab(m_pixels, x, y, SpraySize, SprayPressure, PenColor, m_s.random());
    case 1:
        return Brush_Dab(m_pixels, m_mask, x, y, SpraySize, SprayPressure, PenColor);
    case 2:
        return Saturate_Dab(m_pixels, m_mask, x, y, SpraySize, SprayPressure, PenColor);
    case 3:
        return Soften_Dab(m_pixels, SprayOverlay ? m_pixels : m_frozen, x, y, SpraySize, SprayPressure);
    default:
        return Sharpen_Dab(m_pixels, m_frozen, x, y, SpraySize, SprayPressure);
    }
}

void ToolEngine::sprayTo(int x, int y)
{
    if (LastX < 0 || (x == LastX && y == LastY)) return;
    QRect r;
    if (SprayConnected) {
        r = SprayType == 1
                ? Brush_Stroke(m_pixels, m_mask, LastX, LastY, x, y, SpraySize, SprayPressure, PenColor)
                : Saturate_Stroke(m_pixels, m_mask, LastX, LastY, x, y, SpraySize, SprayPressure, PenColor);
    } else {
        // Dabs half a radius apart along the way from the last position, so a fast hand
        // leaves no gaps.
        const int step = std::max(1, dabRadius(SpraySize) / 2);
        const int dx = x - LastX, dy = y - LastY;
        const int n = std::max(1, std::max(std::abs(dx), std::abs(dy)) / step);
        for (int i = 1; i <= n; ++i)
            r |= dab(LastX + int(std::lround(double(dx) * i / n)), LastY + int(std::lround(double(dy) * i / n)));
    }
    LastX = x;
    LastY = y;
    showBrushRect(r);
}

void ToolEngine::showBrushRect(const QRect &changedRect)
{
    PictureBox &p = *m_target.picture;
    const QRect r = changedRect.intersected(QRect(0, 0, std::min(p.Width(), m_pixels.width),
                                                  std::min(p.Height(), m_pixels.height)));
    if (r.isEmpty()) return;
    QImage &image = p.mutableImage();
    for (int y = r.top(); y <= r.bottom(); ++y) {
        const uint8_t *in = m_pixels.at(r.left(), y);
        auto *out = reinterpret_cast<QRgb *>(image.scanLine(y)) + r.left();
        for (int x = 0; x < r.width(); ++x, in += 3)
            out[x] = qRgb(in[2], in[1], in[0]);
    }
    changed(r);
}

} // namespace tf
