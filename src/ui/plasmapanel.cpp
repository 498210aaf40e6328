#include "ui/plasmapanel.h"

#include "paint/session.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace tf::ui {

PlasmaPaletteStrip::PlasmaPaletteStrip(const Session &session, QWidget *parent)
    : QWidget(parent), m_session(session)
{
    setObjectName(QStringLiteral("picPal"));
    setMinimumHeight(14);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void PlasmaPaletteStrip::paintEvent(QPaintEvent *)
{
    const Palette512 &p = m_session.colours().PlasmaPalette;
    QImage strip(int(p.size()), 1, QImage::Format_RGB32);
    for (int i = 0; i < int(p.size()); ++i)
        strip.setPixel(i, 0, 0xFF000000u | p[size_t(i)]);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), strip);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

PlasmaPanelExtras::PlasmaPanelExtras(const Session &session, QWidget *parent)
    : QWidget(parent), m_session(session)
{
    setObjectName(QStringLiteral("plasmaExtras"));
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(4, 0, 4, 4);
    m_strip = new PlasmaPaletteStrip(session, this);
    column->addWidget(m_strip);
    auto *row = new QHBoxLayout;
    m_start = new QPushButton(this);
    m_start->setObjectName(QStringLiteral("BtnPlasmaRepaint(0)"));
    m_stop = new QPushButton(this);
    m_stop->setObjectName(QStringLiteral("BtnPlasmaRepaint(1)"));
    row->addWidget(m_start);
    row->addWidget(m_stop);
    column->addLayout(row);
    connect(m_start, &QPushButton::clicked, this, &PlasmaPanelExtras::startTunnel);
    connect(m_stop, &QPushButton::clicked, this, &PlasmaPanelExtras::stopTunnel);
    // The palette follows the colour dialog's changes without being told of each: a look
    // twice a second while the panel is shown costs nothing.
    auto *look = new QTimer(this);
    look->setInterval(500);
    connect(look, &QTimer::timeout, this, [this] {
        if (isVisible()) refresh();
    });
    look->start();
    retranslate();
    refresh();
}

void PlasmaPanelExtras::refresh()
{
    const bool running = m_session.runState().animating();
    m_start->setEnabled(!m_session.runState().busy());
    m_stop->setEnabled(running);
    m_strip->update();
}

void PlasmaPanelExtras::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QWidget::changeEvent(event);
}

void PlasmaPanelExtras::showEvent(QShowEvent *event)
{
    refresh();
    QWidget::showEvent(event);
}

void PlasmaPanelExtras::retranslate()
{
    m_start->setText(tr("Start Tunnel"));
    m_stop->setText(tr("Stop"));
}

} // namespace tf::ui
