#include "ui/featdialogdock.h"

#include "paint/controls.h"
#include "paint/grafdialogpanel.h"
#include "paint/session.h"
#include "generators/plasmapaint.h"
#include "paint/typepanels.h"
#include "ui/controlpanelwidget.h"
#include "ui/plasmapanel.h"

#include <QEvent>
#include <QLabel>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tf::ui {

FeatDialogDock::FeatDialogDock(Session &session, QWidget *parent)
    : QDockWidget(parent), m_session(session)
{
    setObjectName(QStringLiteral("frmFeatDialog1"));
    setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    m_stack = new QStackedWidget(this);
    m_none = new QLabel(m_stack);
    m_none->setWordWrap(true);
    m_none->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_none->setMargin(8);
    m_stack->addWidget(m_none);
    for (const ControlPanel *panel : controlPanels()) {
        if (panel->name == QLatin1String(GrafDialogPanelName))
            continue; // the general options stand in the paint dialog
        auto *scroll = new QScrollArea(m_stack);
        auto *widget = new ControlPanelWidget(*panel, session.controls(), scroll);
        widget->setRunState(&session.runState());
        if (panel->name == QLatin1String(PlasmaPanelName)) {
            // The plasma panel shows its palette and the tunnel's buttons below its controls.
            auto *page = new QWidget(scroll);
            auto *column = new QVBoxLayout(page);
            column->setContentsMargins(0, 0, 0, 0);
            widget->setParent(page);
            column->addWidget(widget);
            m_plasmaExtras = new PlasmaPanelExtras(session, page);
            column->addWidget(m_plasmaExtras);
            column->addStretch(1);
            scroll->setWidget(page);
        } else {
            scroll->setWidget(widget);
        }
        scroll->setWidgetResizable(true);
        m_stack->addWidget(scroll);
        m_panels[panel->name] = widget;
        m_pages[panel->name] = scroll;
    }
    setWidget(m_stack);
    retranslate();
    Handle_Formobjects();
}

void FeatDialogDock::Handle_Formobjects()
{
    const QString name = optionPanelOf(m_session.paint().GrafKey);
    auto it = m_panels.find(name);
    if (it == m_panels.end()) {
        m_stack->setCurrentWidget(m_none);
        return;
    }
    m_stack->setCurrentWidget(m_pages.at(name));
}

QString FeatDialogDock::currentPanel() const
{
    for (const auto &[name, page] : m_pages)
        if (m_stack->currentWidget() == page)
            return name;
    return QString();
}

void FeatDialogDock::controlChanged(const ControlKey &key)
{
    for (auto &[name, widget] : m_panels)
        widget->refresh(key);
}

void FeatDialogDock::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDockWidget::changeEvent(event);
}

void FeatDialogDock::retranslate()
{
    setWindowTitle(tr("Optionen"));
    m_none->setText(tr("Dieser Grafiktyp liest nur die allgemeinen Optionen des Maldialogs."));
}

} // namespace tf::ui
