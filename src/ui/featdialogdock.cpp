#include "ui/featdialogdock.h"

#include "paint/controls.h"
#include "paint/grafdialogpanel.h"
#include "paint/session.h"
#include "generators/plasmapaint.h"
#include "paint/typepanels.h"
#include "ui/controlpanelwidget.h"
#include "ui/idleguard.h"
#include "paint/textstate.h"
#include "ui/plasmapanel.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tf::ui {

namespace {
// The text type's panel, under which the placing buttons stand.
constexpr const char *TextDialogTypePanel = "feat_14Textdialog";
} // namespace

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
        if (panel->name == QLatin1String(GrafDialogPanelName) ||
            panel->name == QLatin1String(TextDialogPanelName))
            continue; // the general options stand in the paint dialog, the text's in its own
        auto *scroll = new QScrollArea(m_stack);
        auto *page = new QWidget(scroll);
        auto *column = new QVBoxLayout(page);
        column->setContentsMargins(0, 0, 0, 0);
        auto *widget = new ControlPanelWidget(*panel, session.controls(), page);
        widget->setRunState(&session.runState());
        connect(widget, &ControlPanelWidget::actionRequested, this,
                &FeatDialogDock::actionRequested);
        column->addWidget(widget);
        if (panel->name == QLatin1String(TextDialogTypePanel))
            column->addWidget(textPlacingButtons(page));
        // The plasma panel shows its palette and the tunnel's buttons below its controls.
        if (panel->name == QLatin1String(PlasmaPanelName)) {
            m_plasmaExtras = new PlasmaPanelExtras(session, page);
            column->addWidget(m_plasmaExtras);
        }
        column->addStretch(1);
        scroll->setWidget(page);
        scroll->setWidgetResizable(true);
        m_stack->addWidget(scroll);
        m_panels[panel->name] = widget;
        m_pages[panel->name] = scroll;
    }
    setWidget(m_stack);
    retranslate();
    Handle_Formobjects();
}

QWidget *FeatDialogDock::textPlacingButtons(QWidget *parent)
{
    auto *box = new QWidget(parent);
    auto *row = new QHBoxLayout(box);
    row->setContentsMargins(4, 0, 4, 4);
    BtnSet_TextDialogPosition = new QPushButton(box);
    BtnSet_TextDialogPosition->setObjectName(QStringLiteral("BtnSet_TextDialogPosition"));
    BtnSet_TextPosC = new QPushButton(box);
    BtnSet_TextPosC->setObjectName(QStringLiteral("BtnSet_TextPosC"));
    row->addWidget(BtnSet_TextDialogPosition);
    row->addWidget(BtnSet_TextPosC);
    connect(BtnSet_TextDialogPosition, &QPushButton::clicked, this, whenIdle(m_session, [this] {
                armTextPlacing(m_session, TextPlacing::Corner);
                emit textPlacingArmed();
            }));
    connect(BtnSet_TextPosC, &QPushButton::clicked, this, whenIdle(m_session, [this] {
                armTextPlacing(m_session, TextPlacing::Centre);
                emit textPlacingArmed();
            }));
    return box;
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

void FeatDialogDock::showPanel(const QString &name)
{
    auto it = m_pages.find(name);
    if (it == m_pages.end()) return;
    m_stack->setCurrentWidget(it->second);
    raise();
}

ControlPanelWidget *FeatDialogDock::panelWidget(const QString &name) const
{
    auto it = m_panels.find(name);
    return it == m_panels.end() ? nullptr : it->second;
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
    if (BtnSet_TextDialogPosition) {
        BtnSet_TextDialogPosition->setText(tr("Setze Position ..."));
        BtnSet_TextDialogPosition->setToolTip(
            tr("Der nächste Klick in das Bild setzt die linke obere Ecke des Textes."));
        BtnSet_TextPosC->setText(tr("Setze Mitte ..."));
        BtnSet_TextPosC->setToolTip(tr("Der nächste Klick in das Bild setzt die Mitte des Textes."));
    }
}

} // namespace tf::ui
