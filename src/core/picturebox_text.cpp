// PictureBox: Print, TextWidth and TextHeight.
#include "core/gdi.h"
#include "core/picturebox.h"
#include "core/picturebox_p.h"

#include <QFontMetrics>
#include <QRegularExpression>
#include <algorithm>

namespace tf {

namespace {

QStringList linesOf(const QString &text)
{
    static const QRegularExpression breaks(QStringLiteral("\r\n|\r|\n"));
    return text.split(breaks);
}

// The height of one printed line: the cell plus the font's external leading.
int lineHeight(const QFontMetrics &m) { return m.ascent() + m.descent() + std::max(0, m.leading()); }

} // namespace

Single PictureBox::TextWidth(const QString &text) const
{
    const QFontMetrics m(toQFont(propertyFont()));
    int widest = 0;
    for (const QString &line : linesOf(text))
        widest = std::max(widest, m.horizontalAdvance(line));
    return Single(widest);
}

Single PictureBox::TextHeight(const QString &text) const
{
    const QFontMetrics m(toQFont(propertyFont()));
    return Single(lineHeight(m) * linesOf(text).size());
}

void PictureBox::Print(const QString &text, bool newline)
{
    DeviceContext &dc = beginDrawing();
    detail::DrawScope scope(dc, m_drawMode);
    dc.font = propertyFont();
    dc.textColor = m_foreColor;
    dc.bkColor = m_backColor;
    dc.bkMode = m_fontTransparent ? TRANSPARENT : OPAQUE;
    const QFontMetrics m(toQFont(dc.font));
    const int step = lineHeight(m);

    if (text.isEmpty())
        markChanged();
    const QStringList lines = linesOf(text);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        const QString &line = lines[i];
        const int x = detail::pixelOf(m_currentX), y = detail::pixelOf(m_currentY);
        if (!line.isEmpty()) {
            TextOutA(dc, x, y, line);
            drawn(QRect(x, y, m.horizontalAdvance(line), step));
        }
        if (i + 1 < lines.size() || newline) {
            m_currentX = 0;
            m_currentY = CSng(double(m_currentY) + step);
        } else {
            m_currentX = CSng(double(m_currentX) + m.horizontalAdvance(line));
        }
    }
}

} // namespace tf
