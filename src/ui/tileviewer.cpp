#include "ui/tileviewer.h"

#include "paint/session.h"
#include "ui/idleguard.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace tf::ui {

void TileArea::setTile(const QImage &tile)
{
    m_tile = tile;
    update();
}

void TileArea::setShowEdges(bool on)
{
    m_edges = on;
    update();
}

void TileArea::setHalfOffset(bool on)
{
    m_offset = on;
    update();
}

void TileArea::paintTiles(QPainter &p, const QRect &area) const
{
    if (m_tile.isNull()) {
        p.fillRect(area, palette().window());
        return;
    }
    const QPoint offset = m_offset ? QPoint(m_tile.width() / 2, m_tile.height() / 2) : QPoint();
    p.drawTiledPixmap(area, QPixmap::fromImage(m_tile), offset);
    if (!m_edges) return;
    // Black under white dashes: the edge shows on any picture.
    const int w = m_tile.width(), h = m_tile.height();
    for (const QPen &pen : {QPen(Qt::black, 1), QPen(Qt::white, 1, Qt::DashLine)}) {
        p.setPen(pen);
        for (int x = (w - offset.x()) % w; x < area.width(); x += w)
            p.drawLine(x, 0, x, area.height());
        for (int y = (h - offset.y()) % h; y < area.height(); y += h)
            p.drawLine(0, y, area.width(), y);
    }
}

QImage TileArea::render(QSize size) const
{
    QImage out(size, QImage::Format_RGB32);
    QPainter p(&out);
    paintTiles(p, QRect(QPoint(), size));
    return out;
}

void TileArea::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    paintTiles(p, rect());
}

TileViewer::TileViewer(Session &session, QWidget *parent) : QDialog(parent), m_session(session)
{
    setObjectName(QStringLiteral("frmTileViewer"));
    setWindowTitle(tr("Kachelansicht"));
    auto *layout = new QVBoxLayout(this);
    auto *bar = new QHBoxLayout;
    auto *load = new QPushButton(tr("Kachel laden..."));
    auto *again = new QPushButton(tr("Arbeitsbild neu holen"));
    auto *edges = new QCheckBox(tr("Kachelgrenzen"));
    auto *offset = new QCheckBox(tr("Versatz um eine halbe Kachel"));
    m_size = new QLabel;
    bar->addWidget(load);
    bar->addWidget(again);
    bar->addWidget(edges);
    bar->addWidget(offset);
    bar->addStretch();
    bar->addWidget(m_size);
    layout->addLayout(bar);
    m_area = new TileArea;
    m_area->setMinimumSize(320, 240);
    layout->addWidget(m_area, 1);

    connect(load, &QPushButton::clicked, this,
            whenIdle(m_session, [this] { emit loadTileRequested(); }));
    connect(again, &QPushButton::clicked, this, whenIdle(m_session, [this] { refresh(); }));
    connect(edges, &QCheckBox::toggled, m_area, &TileArea::setShowEdges);
    connect(offset, &QCheckBox::toggled, m_area, &TileArea::setHalfOffset);
    resize(1000, 750);
    refresh();
}

void TileViewer::refresh()
{
    const QImage &tile = m_session.workspace().Bild.Image();
    m_area->setTile(tile);
    m_size->setText(tr("Kachel %1 x %2").arg(tile.width()).arg(tile.height()));
}

void TileViewer::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow() && !isBusy(m_session))
        refresh();
}

} // namespace tf::ui
