#include "generators/matrixrain.h"

#include "core/picturebox.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/sessionview.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tf {

MatrixRain::MatrixRain(int width, int height, int glyph, int speed, uint32_t seed)
    : m_width(std::max(1, width)), m_height(std::max(1, height)),
      m_glyph(std::clamp(glyph, 4, 200)), m_rows(m_height / m_glyph + 1),
      m_speedScale(std::clamp(speed, 1, 10) / 5.0), m_state(seed ? seed : 0x9E3779B9u),
      m_glyphs(glyphSet())
{
    const int cols = m_width / m_glyph + 1;
    m_columns.resize(size_t(cols));
    m_cells.resize(size_t(cols * m_rows));
    for (QChar &c : m_cells)
        c = randomGlyph();
    for (Column &c : m_columns)
        restart(c, true);
}

double MatrixRain::random()
{
    // xorshift32: the rain has its own numbers, so the animation does not use up the
    // session's sequence.
    m_state ^= m_state << 13;
    m_state ^= m_state >> 17;
    m_state ^= m_state << 5;
    return (m_state >> 8) / double(1 << 24);
}

QChar MatrixRain::randomGlyph()
{
    return m_glyphs.at(std::min(int(random() * m_glyphs.size()), int(m_glyphs.size()) - 1));
}

QString MatrixRain::glyphSet()
{
    static const QString set = [] {
        QString latin = QStringLiteral("0123456789ABCDEFHKMNRTXZ:=*+<>|");
        QFont font(QStringLiteral("Monospace"));
        const QFontMetrics metrics(font);
        QString kana;
        for (char16_t c = 0xFF66; c <= 0xFF9D; ++c)
            if (metrics.inFont(QChar(c))) kana += QChar(c);
        return kana.size() > 20 ? kana + QStringLiteral("0123456789Z") : latin;
    }();
    return set;
}

void MatrixRain::restart(Column &c, bool anywhere)
{
    c.speed = (0.35 + random() * 0.65) * m_speedScale;
    c.trail = 6 + int(random() * std::max(6, m_rows * 2 / 3));
    c.head = anywhere ? random() * (m_rows + c.trail) - c.trail : -random() * m_rows * 0.5;
}

void MatrixRain::step()
{
    for (Column &c : m_columns) {
        c.head += c.speed;
        if (c.head - c.trail > m_rows) restart(c, false);
    }
    // A few glyphs change at every step.
    const int changes = std::max(1, int(m_cells.size()) / 40);
    for (int i = 0; i < changes; ++i)
        m_cells[std::min(size_t(random() * m_cells.size()), m_cells.size() - 1)] = randomGlyph();
}

void MatrixRain::fill()
{
    for (int i = 0; i < m_rows; ++i)
        step();
}

void MatrixRain::render(QImage &image) const
{
    image.fill(Qt::black);
    QPainter p(&image);
    QFont font(QStringLiteral("Monospace"));
    font.setPixelSize(std::max(4, m_glyph - 2));
    font.setBold(true);
    p.setFont(font);
    const int cols = int(m_columns.size());
    for (int col = 0; col < cols; ++col) {
        const Column &c = m_columns[size_t(col)];
        const int head = int(std::floor(c.head));
        for (int k = 0; k <= c.trail; ++k) {
            const int row = head - k;
            if (row < 0 || row >= m_rows) continue;
            QColor colour;
            if (k == 0) {
                colour = QColor(210, 255, 210);
            } else {
                const double fade = 1.0 - double(k) / (c.trail + 1);
                colour = QColor(0, int(60 + 195 * fade * fade), int(40 * fade));
            }
            p.setPen(colour);
            const QRect cell(col * m_glyph, row * m_glyph, m_glyph, m_glyph);
            p.drawText(cell, Qt::AlignCenter, QString(m_cells[size_t(row * cols + col)]));
        }
    }
}

void paintTheMatrix(PaintContext &ctx)
{
    const Controls &controls = ctx.session.controls();
    const int glyph = controls.value(QStringLiteral("scrollMatrixGlyph"));
    const int speed = controls.value(QStringLiteral("scrollMatrixSpeed"));
    if (ctx.session.view().openMatrixWindow(glyph, speed)) return;
    const uint32_t seed = uint32_t(double(ctx.Rnd()) * 16777216.0) + 1;
    // The glyphs scale with the picture as they would on a screen of that size.
    const int scaled = std::max(4, int(std::lround(glyph * std::max(ctx.opt.W, ctx.opt.H) / 712.0)));
    MatrixRain rain(ctx.opt.W, ctx.opt.H, scaled, speed, seed);
    rain.fill();
    rain.render(ctx.XBild.mutableImage());
    ctx.XBild.markChanged();
}

} // namespace tf
