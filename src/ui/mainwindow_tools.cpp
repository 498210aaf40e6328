// The main window's side of the hand tools: the tool bar that arms them, the mouse over the
// picture handed to the tool engine, the edit menu's selection and clipboard entries.
#include "ui/mainwindow.h"

#include "tools/toolpanels.h"
#include "ui/colourdialogdock.h"
#include "ui/controlpanelwidget.h"
#include "ui/featdialogdock.h"
#include "ui/idleguard.h"
#include "ui/pictureview.h"
#include "ui/statusbar.h"
#include "ui/toolicons.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QTimer>
#include <QMenu>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolBar>

namespace tf::ui {

namespace {

// The handlers' button and key numbers of a Qt event.
int buttonCode(Qt::MouseButton b)
{
    switch (b) {
    case Qt::LeftButton: return vbLeftButton;
    case Qt::RightButton: return vbRightButton;
    case Qt::MiddleButton: return vbMiddleButton;
    default: return 0;
    }
}

int buttonsCode(Qt::MouseButtons b)
{
    return (b & Qt::LeftButton ? vbLeftButton : 0) | (b & Qt::RightButton ? vbRightButton : 0) |
           (b & Qt::MiddleButton ? vbMiddleButton : 0);
}

int shiftCode(Qt::KeyboardModifiers m)
{
    return (m & Qt::ShiftModifier ? vbShiftMask : 0) | (m & Qt::ControlModifier ? vbCtrlMask : 0) |
           (m & Qt::AltModifier ? vbAltMask : 0);
}

} // namespace

void MainWindow::createToolActions()
{
    m_toolsBar = new QToolBar(this);
    m_toolsBar->setObjectName(QStringLiteral("ToolbarTools"));
    m_toolsBar->setToolButtonStyle(Qt::ToolButtonIconOnly);
    m_toolsBar->setIconSize(QSize(24, 24));
    addToolBar(Qt::TopToolBarArea, m_toolsBar);
    for (const ToolInfo &info : toolTable()) {
        if (!toolAvailable(m_session, info.tool)) continue;
        auto *a = new QAction(toolIcon(info.tool), QString(), this);
        a->setCheckable(true);
        a->setObjectName(QStringLiteral("tb") + QString::fromLatin1(info.key));
        const Tool tool = info.tool;
        // A pressed key arms its tool; pressed again, it releases it.
        connect(a, &QAction::triggered, this,
                whenIdle(
                    m_session,
                    [this, tool](bool on) {
                        if (on)
                            m_tools->arm(tool);
                        else if (m_tools->armed() == tool)
                            m_tools->disarm();
                    },
                    [this] { toolChanged(m_tools->armed()); }));
        m_toolsBar->addAction(a);
        m_toolActions.emplace_back(tool, a);
    }
}

void MainWindow::addEditEntries()
{
    QAction *before = m_editMenu->actions().value(1); // after Undo
    for (const EditEntry &e : editEntries()) {
        QAction *a = e.index == EditSaveSelection ? mn_AuswahlSpeichern : new QAction(this);
        if (QLatin1String(e.shortcut).size() > 0)
            a->setShortcut(QKeySequence(QString::fromLatin1(e.shortcut)));
        a->setObjectName(QStringLiteral("mn_Edit(%1)").arg(e.index));
        if (e.index != EditSaveSelection) {
            const int index = e.index;
            connect(a, &QAction::triggered, this, whenIdle(m_session, [this, index] {
                Menu_Edit(m_session, index, m_clipboard, visibleTopLeft());
                selectionChanged();
                m_view->update();
                afterPaint();
            }));
        }
        if (e.index == EditSelectAll) m_editMenu->insertSeparator(before);
        m_editMenu->insertAction(before, a);
        mn_Edit.emplace_back(e.index, a);
    }
    mn_PicAusrichtenMenu = new QMenu(this);
    for (size_t i = 0; i < alignCaptions().size(); ++i) {
        auto *a = new QAction(this);
        const int place = int(i) + 1;
        connect(a, &QAction::triggered, this, whenIdle(m_session, [this, place] {
            tf::mn_PicAusrichten(m_session, place);
            m_view->update();
        }));
        mn_PicAusrichtenMenu->addAction(a);
        mn_PicAusrichten.push_back(a);
    }
    m_editMenu->insertMenu(before, mn_PicAusrichtenMenu);
    mn_ClearClip = new QAction(this);
    mn_ClearClip->setObjectName(QStringLiteral("mn_ClearClip"));
    connect(mn_ClearClip, &QAction::triggered, this,
            whenIdle(m_session, [this] { tf::mn_ClearClip(m_clipboard); }));
    m_editMenu->insertAction(before, mn_ClearClip);
    m_editMenu->insertSeparator(before);
}

void MainWindow::retranslateTools()
{
    // After the panels have taken their own captions in the new language.
    QTimer::singleShot(0, this, &MainWindow::syncToolPanels);
    m_toolsBar->setWindowTitle(tr("Werkzeuge"));
    for (auto &[tool, a] : m_toolActions) {
        const ToolInfo &info = toolInfo(tool);
        a->setText(QCoreApplication::translate("Tools", info.caption));
        a->setToolTip(QCoreApplication::translate("Tools", info.caption) + QStringLiteral(": ") +
                      QCoreApplication::translate("Tools", info.tip));
    }
    for (auto &[index, a] : mn_Edit)
        for (const EditEntry &e : editEntries())
            if (e.index == index) a->setText(QCoreApplication::translate("Tools", e.caption));
    mn_PicAusrichtenMenu->setTitle(tr("Auswahl aus&richten"));
    for (size_t i = 0; i < mn_PicAusrichten.size(); ++i)
        mn_PicAusrichten[i]->setText(QCoreApplication::translate("Tools", alignCaptions()[i]));
    mn_ClearClip->setText(tr("Zwischenablage leeren"));
}

void MainWindow::updateToolCommands()
{
    const Workspace &ws = m_session.workspace();
    const bool shown = ws.PicSelect.Visible() || ws.picSelectC.Visible();
    for (auto &[index, a] : mn_Edit)
        if (index == EditCut || index == EditDelete || index == EditDeselect) a->setEnabled(shown);
    mn_PicAusrichtenMenu->setEnabled(shown);
}

void MainWindow::connectMouse()
{
    connect(m_view, &PictureView::mousePressed, this,
            whenIdle(m_session, [this](Qt::MouseButton b, Qt::KeyboardModifiers m, QPoint at) {
                if (pictureClicked(b, at)) return;
                m_tools->MouseDown(buttonCode(b), shiftCode(m), at.x(), at.y());
            }));
    connect(m_view, &PictureView::mouseMoved, this,
            whenIdle(m_session, [this](Qt::MouseButtons b, Qt::KeyboardModifiers m, QPoint at) {
                m_tools->MouseMove(buttonsCode(b), shiftCode(m), at.x(), at.y());
                m_status->setPanelText(sbrMouse, m_tools->pointerText(at.x(), at.y()));
                const ToolCursor c = m_tools->cursorAt(at.x(), at.y());
                if (int(c) != m_cursorShown) {
                    m_cursorShown = int(c);
                    m_view->setCursor(toolCursor(c));
                }
            }));
    connect(m_view, &PictureView::mouseReleased, this,
            whenIdle(m_session, [this](Qt::MouseButton b, Qt::KeyboardModifiers m, QPoint at) {
                m_tools->MouseUp(buttonCode(b), shiftCode(m), at.x(), at.y());
                updateCommands();
                Set_MDI_Caption();
            }));
    connect(m_view, &PictureView::mouseLeft, this, [this] {
        m_status->setPanelText(sbrMouse, QString());
        if (m_tools->armed() == Tool::Spray) m_tools->MouseMove(0, 0, -10000, -10000);
    });
}

void MainWindow::syncToolPanels()
{
    // The pen's kinds show their tips.
    if (ControlPanelWidget *pen = m_featDialog->panelWidget(QString::fromLatin1(FreeHandPanelName)))
        if (auto *kinds = qobject_cast<QComboBox *>(pen->widgetFor(ControlKey{QStringLiteral("optPenStyle")})))
            for (int i = 0; i < kinds->count(); ++i) kinds->setItemIcon(i, penTipIcon(i));

    ControlPanelWidget *panel = m_featDialog->panelWidget(QString::fromLatin1(SprayPanelName));
    if (!panel) return;
    const int type = m_session.controls().listIndex(ControlKey{QStringLiteral("cmbSprayType")});
    // The saturation brush's pressure is the saturation it gives.
    if (QLabel *label = panel->labelFor(ControlKey{QStringLiteral("scrollSpray"), 1}))
        label->setText(type == 2 ? tr("Sättigung ") : QCoreApplication::translate("Controls", "Druck "));
}

QPoint MainWindow::visibleTopLeft() const
{
    return QPoint(m_picContainer->horizontalScrollBar()->value(),
                  m_picContainer->verticalScrollBar()->value());
}

void MainWindow::reset_imgButtons()
{
    if (m_tools) m_tools->disarm();
}

void MainWindow::Refresh_BrushImage()
{
    if (m_tools) m_tools->Refresh_BrushImage();
}

void MainWindow::toolChanged(Tool tool)
{
    for (auto &[t, a] : m_toolActions) a->setChecked(t == tool);
    m_cursorShown = -1;
    m_view->setCursor(toolCursor(tool == Tool::None ? ToolCursor::Arrow : ToolCursor::Cross));
    // A tool with options shows its panel; without one, the type's panel comes back.
    const QString panel = QString::fromLatin1(toolInfo(tool).panel);
    if (!panel.isEmpty())
        m_featDialog->showPanel(panel);
    else
        m_featDialog->Handle_Formobjects();
}

void MainWindow::areaChanged(const QRect &area) { m_view->update(area.adjusted(-1, -1, 1, 1)); }

void MainWindow::coloursChanged() { m_colourDialog->refreshFromState(); }

void MainWindow::selectionChanged()
{
    updateCommands();
    Set_MDI_Caption();
}

} // namespace tf::ui
