#include "ui/statusbar.h"

#include <QLabel>
#include <QProgressBar>
#include <QStatusBar>

namespace tf::ui {

StatusBarSink::StatusBarSink(QStatusBar *bar)
{
    for (int panel : {sbrState, sbrMouse, sbrSize, sbrfixed, sbrSFixed, sbrFont}) {
        auto *label = new QLabel(bar);
        label->setFrameShape(QFrame::StyledPanel);
        label->setFrameShadow(QFrame::Sunken);
        label->setMinimumWidth(panel == sbrState ? 260 : panel == sbrMouse ? 170 : 90);
        bar->addWidget(label, panel == sbrState ? 1 : 0);
        m_panels[panel] = label;
    }
    m_progress = new QProgressBar(bar);
    m_progress->setMaximumHeight(16);
    m_progress->hide();
    bar->insertWidget(0, m_progress, 1);
}

void StatusBarSink::setPanelText(int panel, const QString &text)
{
    auto it = m_panels.find(panel);
    if (it != m_panels.end())
        it->second->setText(text);
}

QString StatusBarSink::panelText(int panel) const
{
    auto it = m_panels.find(panel);
    return it == m_panels.end() ? QString() : it->second->text();
}

void StatusBarSink::setProgress(int value, int max)
{
    if (max <= 0) {
        m_progress->hide();
        m_panels[sbrState]->show();
        return;
    }
    m_panels[sbrState]->hide();
    m_progress->setRange(0, max);
    m_progress->setValue(value);
    m_progress->show();
}

} // namespace tf::ui
