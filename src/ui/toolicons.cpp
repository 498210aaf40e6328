#include "ui/toolicons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <algorithm>

namespace tf::ui {

namespace {

constexpr int Side = 24;

QPixmap canvas()
{
    QPixmap pm(Side, Side);
    pm.fill(Qt::transparent);
    return pm;
}

// Each drawing on a 24 x 24 canvas, dark strokes with one colour accent.
void drawTool(QPainter &p, Tool tool)
{
    const QColor ink(40, 40, 48);
    const QColor accent(210, 60, 40);
    p.setRenderHint(QPainter::Antialiasing);
    QPen pen(ink, 1.6);
    p.setPen(pen);
    p.setBrush(Qt::NoBrush);
    switch (tool) {
    case Tool::Select: {
        QPen dash(ink, 1.6, Qt::DashLine);
        p.setPen(dash);
        p.drawRect(QRectF(3.5, 5.5, 17, 13));
        break;
    }
    case Tool::CSelect: {
        QPen dash(ink, 1.6, Qt::DashLine);
        p.setPen(dash);
        p.drawEllipse(QRectF(3.5, 5.5, 17, 13));
        break;
    }
    case Tool::Fill: {
        // A tipped bucket pouring a drop.
        QPainterPath bucket;
        bucket.moveTo(5, 9);
        bucket.lineTo(12, 3);
        bucket.lineTo(19, 10);
        bucket.lineTo(12, 17);
        bucket.closeSubpath();
        p.setBrush(QColor(235, 235, 240));
        p.drawPath(bucket);
        p.setBrush(accent);
        p.setPen(Qt::NoPen);
        p.drawEllipse(QRectF(17, 14, 5, 7));
        break;
    }
    case Tool::Pipette: {
        p.setPen(QPen(ink, 3.0, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(14, 10), QPointF(5, 19));
        p.setPen(Qt::NoPen);
        p.setBrush(ink);
        p.drawEllipse(QRectF(14, 3, 7, 7));
        p.setBrush(accent);
        p.drawEllipse(QRectF(3, 18, 4, 4));
        break;
    }
    case Tool::Line:
        p.setPen(QPen(ink, 2.2, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(4, 20), QPointF(20, 4));
        p.setPen(Qt::NoPen);
        p.setBrush(accent);
        p.drawEllipse(QPointF(4, 20), 2.2, 2.2);
        p.drawEllipse(QPointF(20, 4), 2.2, 2.2);
        break;
    case Tool::Box:
        p.setBrush(QColor(240, 200, 190));
        p.drawRect(QRectF(3.5, 8.5, 11, 11));
        p.setBrush(QColor(accent.red(), accent.green(), accent.blue(), 160));
        p.drawEllipse(QRectF(10.5, 3.5, 10, 10));
        break;
    case Tool::Freehand: {
        QPainterPath curve;
        curve.moveTo(3, 18);
        curve.cubicTo(7, 8, 11, 22, 15, 12);
        p.setPen(QPen(accent, 1.8, Qt::SolidLine, Qt::RoundCap));
        p.drawPath(curve);
        p.setPen(QPen(ink, 3.2, Qt::SolidLine, Qt::RoundCap));
        p.drawLine(QPointF(15, 12), QPointF(21, 4));
        break;
    }
    case Tool::Spray: {
        QRadialGradient g(QPointF(12, 12), 10);
        g.setColorAt(0, QColor(accent.red(), accent.green(), accent.blue(), 230));
        g.setColorAt(1, QColor(accent.red(), accent.green(), accent.blue(), 0));
        p.setPen(Qt::NoPen);
        p.setBrush(g);
        p.drawEllipse(QPointF(12, 12), 10, 10);
        p.setBrush(ink);
        for (const QPointF &dot : {QPointF(5, 6), QPointF(19, 7), QPointF(18, 19), QPointF(6, 18), QPointF(12, 3)})
            p.drawEllipse(dot, 0.9, 0.9);
        break;
    }
    case Tool::TextPos: {
        QFont f;
        f.setPixelSize(17);
        f.setBold(true);
        p.setFont(f);
        p.drawText(QRectF(0, 0, Side - 4, Side), Qt::AlignCenter, QStringLiteral("T"));
        p.setPen(QPen(accent, 1.6));
        p.drawLine(QPointF(18, 16), QPointF(22, 16));
        p.drawLine(QPointF(20, 14), QPointF(20, 18));
        break;
    }
    case Tool::None:
        break;
    }
}

} // namespace

QIcon bundledToolIcon(Tool tool)
{
    QPixmap pm = canvas();
    QPainter p(&pm);
    drawTool(p, tool);
    p.end();
    return QIcon(pm);
}

QIcon penTipIcon(int kind)
{
    QPixmap pm(16, 16);
    pm.fill(Qt::transparent);
    QPainter p(&pm);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QColor(40, 40, 48), 2.5, Qt::SolidLine, Qt::RoundCap));
    p.setBrush(QColor(40, 40, 48));
    static constexpr QPointF ends[5][2] = {{{8, 8}, {8, 8}},  {{3, 3}, {13, 13}}, {{3, 13}, {13, 3}},
                                           {{2, 8}, {14, 8}}, {{8, 2}, {8, 14}}};
    if (kind <= 0)
        p.drawEllipse(QPointF(8, 8), 3, 3);
    else
        p.drawLine(ends[std::min(kind, 4)][0], ends[std::min(kind, 4)][1]);
    p.end();
    return QIcon(pm);
}

QIcon toolIcon(Tool tool)
{
    const QString name = QString::fromLatin1(toolInfo(tool).themeIcon);
    if (!name.isEmpty() && QIcon::hasThemeIcon(name)) return QIcon::fromTheme(name);
    return bundledToolIcon(tool);
}

QCursor toolCursor(ToolCursor cursor)
{
    auto drawn = [](Tool tool, QPoint hot) {
        QPixmap pm = canvas();
        QPainter p(&pm);
        // A light halo keeps the pointer visible on dark pictures.
        QPixmap shape = canvas();
        {
            QPainter s(&shape);
            drawTool(s, tool);
        }
        p.setOpacity(0.7);
        for (const QPoint &d : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)}) {
            QImage halo = shape.toImage();
            QPainter h(&halo);
            h.setCompositionMode(QPainter::CompositionMode_SourceIn);
            h.fillRect(halo.rect(), Qt::white);
            h.end();
            p.drawImage(d, halo);
        }
        p.setOpacity(1.0);
        p.drawPixmap(0, 0, shape);
        p.end();
        return QCursor(pm, hot.x(), hot.y());
    };
    switch (cursor) {
    case ToolCursor::Arrow: return QCursor(Qt::ArrowCursor);
    case ToolCursor::Cross: return QCursor(Qt::CrossCursor);
    case ToolCursor::Fill: return drawn(Tool::Fill, QPoint(19, 20));
    case ToolCursor::Pipette: return drawn(Tool::Pipette, QPoint(4, 20));
    case ToolCursor::Spray: return QCursor(Qt::CrossCursor); // the outline shows the brush
    case ToolCursor::Pen: return drawn(Tool::Freehand, QPoint(3, 18));
    case ToolCursor::Text: return QCursor(Qt::IBeamCursor);
    case ToolCursor::Move: return QCursor(Qt::SizeAllCursor);
    case ToolCursor::SizeHor: return QCursor(Qt::SizeHorCursor);
    case ToolCursor::SizeVer: return QCursor(Qt::SizeVerCursor);
    case ToolCursor::SizeFDiag: return QCursor(Qt::SizeFDiagCursor);
    case ToolCursor::SizeBDiag: return QCursor(Qt::SizeBDiagCursor);
    }
    return QCursor(Qt::ArrowCursor);
}

} // namespace tf::ui
