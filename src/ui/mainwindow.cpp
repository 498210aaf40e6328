#include "ui/mainwindow.h"

#include "core/pictureformats.h"
#include "generators/painters.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/textstate.h"
#include "paint/typepanels.h"
#include "ui/colourdialogdock.h"
#include "ui/featdialogdock.h"
#include "ui/filtermenu.h"
#include "ui/grafdialogdock.h"
#include "ui/idleguard.h"
#include "ui/matrixwindow.h"
#include "ui/picsourcedialog.h"
#include "ui/pictureview.h"
#include "ui/previewcache.h"
#include "ui/statusbar.h"
#include "ui/textdialog.h"
#include "ui/transformmenu.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QCoreApplication>
#include <QDockWidget>
#include <QGuiApplication>
#include <QEvent>
#include <QMenuBar>
#include <QScrollArea>
#include <QStatusBar>
#include <QToolBar>

namespace tf::ui {

MainWindow::MainWindow(QWidget *parent) : QMainWindow(parent)
{
    setObjectName(QStringLiteral("frmMain"));
    m_status = std::make_unique<StatusBarSink>(statusBar());
    m_session.setPainters(painterTable());
    m_session.setPrompter(&m_prompter);
    m_session.setStatus(m_status.get());
    m_session.setYieldHook(&m_yield);

    // The tools come first: their option panels must stand before the docks are built.
    m_tools = &ToolEngine::of(m_session);
    m_tools->setView(this);

    m_picContainer = new QScrollArea(this);
    m_picContainer->setObjectName(QStringLiteral("picContainer"));
    m_picContainer->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_picContainer->setBackgroundRole(QPalette::Dark);
    m_view = new PictureView(m_session.workspace().Bild);
    m_view->showTools(m_session.workspace(), *m_tools);
    m_picContainer->setWidget(m_view);
    setCentralWidget(m_picContainer);

    m_previews = std::make_unique<PreviewCache>();
    m_grafDialog = new GrafDialogDock(m_session, *m_previews, this);
    m_featDialog = new FeatDialogDock(m_session, this);
    // Two columns beside the picture: the paint dialog at full height, so its type list shows
    // ten rows and more, and the options, tabbed with the colours, likewise without scrolling.
    addDockWidget(Qt::RightDockWidgetArea, m_featDialog);
    addDockWidget(Qt::RightDockWidgetArea, m_grafDialog);
    splitDockWidget(m_featDialog, m_grafDialog, Qt::Horizontal);
    m_colourDialog = new ColourDialogDock(m_session, this);
    addDockWidget(Qt::RightDockWidgetArea, m_colourDialog);
    tabifyDockWidget(m_featDialog, m_colourDialog);
    m_colourDialog->raise();
    m_textDialog = new TextDialog(m_session, this);
    connect(m_featDialog, &FeatDialogDock::textPlacingArmed, this,
            [this] { m_view->setCursor(Qt::CrossCursor); });
    // Paint and the roll buttons are Stop while a paint runs: they need no guard.
    connect(m_grafDialog, &GrafDialogDock::paintRequested, this, &MainWindow::paint);
    connect(m_grafDialog, &GrafDialogDock::rollRequested, this, &MainWindow::roll);
    connect(m_grafDialog, &GrafDialogDock::clipRequested, this,
            whenIdle(m_session, [this] { copyPictureToClipboard(); }));
    connect(m_grafDialog, &GrafDialogDock::groupChosen, this,
            whenIdle(
                m_session, [this](int group) { chooseGroup(group); },
                [this] { m_grafDialog->syncFromEngine(); }));
    connect(m_grafDialog, &GrafDialogDock::paintRunningChanged, this, &MainWindow::paintRunning);
    connect(m_featDialog, &FeatDialogDock::actionRequested, this,
            whenIdle(m_session, [this](const PanelAction *action) { runPanelAction(*action); }));
    m_session.setView(this);

    createActions();
    createAnimationActions();
    createMenus();
    createToolBar();
    createToolActions();
    addEditEntries();
    connectMouse();
    syncToolPanels();
    connect(m_grafDialog, &GrafDialogDock::fixRequested, mn_Fixieren, &QAction::trigger);
    connect(m_grafDialog, &GrafDialogDock::restoreRequested, mn_Restaurieren, &QAction::trigger);

    Workspace &ws = m_session.workspace();
    ws.Bild.setAutoRedraw(true);
    ws.Bild.Cls();

    retranslate();
    updateCommands();
    refreshStatus();
    resize(1000, 800);
}

MainWindow::~MainWindow()
{
    // The window's widgets go before the session they show: the picture view and the docks
    // hold on to its pictures and state.
    m_session.setView(nullptr);
    m_tools->setView(nullptr);
    delete takeCentralWidget();
    delete m_textDialog;
    delete m_colourDialog;
    delete m_featDialog;
    delete m_grafDialog;
}

void MainWindow::commandsChanged()
{
    updateCommands();
}

void MainWindow::layoutChanged()
{
    m_view->syncSize();
    refreshStatus();
}

void MainWindow::grafDialogChanged(GrafDialogState::Change change)
{
    m_grafDialog->engineChanged(change);
}

void MainWindow::controlChanged(const ControlKey &key)
{
    m_grafDialog->controlChanged(key);
    m_featDialog->controlChanged(key);
    if (m_textDialog) m_textDialog->controlChanged(key);
    if (key.name == QLatin1String("cmbSprayType")) syncToolPanels();
}

void MainWindow::Handle_Formobjects()
{
    m_featDialog->Handle_Formobjects();
    // A type that paints the text dialog's text brings the dialog up beside its panel.
    if (panelsReadBy(m_session.paint().GrafKey).contains(QLatin1String(TextDialogPanelName)) &&
        m_textDialog && isVisible() && !m_textDialog->isVisible())
        showTextDialog();
}

void MainWindow::showTextDialog()
{
    m_textDialog->show();
    m_textDialog->raise();
}

bool MainWindow::pictureClicked(Qt::MouseButton button, QPoint at)
{
    if (m_session.text().placing == TextPlacing::Off) return false;
    if (button != Qt::LeftButton) {
        armTextPlacing(m_session, TextPlacing::Off);
        m_view->unsetCursor();
        return true;
    }
    m_view->unsetCursor();
    if (placeTextAt(m_session, at.x(), at.y())) paint();
    return true;
}

bool MainWindow::openMatrixWindow(int glyph, int speed)
{
    auto *window = new MatrixWindow(glyph, speed, uint32_t(m_session.Rnd() * 16777216.0f) + 1);
    window->showFullScreen();
    return true;
}

bool MainWindow::choosePicSource()
{
    PicSourceDialog dialog(m_session, this);
    return dialog.exec() == QDialog::Accepted;
}

template <typename Handler> void MainWindow::onTriggered(QAction *action, Handler handler)
{
    connect(action, &QAction::triggered, this, whenIdle(m_session, std::move(handler)));
}

void MainWindow::createActions()
{
    for (int i = 0; i < NewPictureFormatCount; ++i) {
        auto *a = new QAction(this);
        onTriggered(a, [this, i] { newPicture(i); });
        mn_New_Picformat.push_back(a);
    }
    for (size_t i = 0; i < mn_File.size(); ++i) {
        auto *a = new QAction(this);
        onTriggered(a, [this, i] {
            const QString path = m_mru.file(int(i) + 1);
            if (!path.isEmpty())
                openPicture(path);
        });
        mn_File[i] = a;
    }
    mn_Oeffnen = new QAction(this);
    mn_Oeffnen->setShortcut(QKeySequence::Open);
    onTriggered(mn_Oeffnen, [this] { openDialog(); });
    mn_Importieren = new QAction(this);
    onTriggered(mn_Importieren, [this] { Menu_LoadImage(2); });
    mn_KachelLaden = new QAction(this);
    onTriggered(mn_KachelLaden, [this] { Menu_LoadImage(3); });
    mn_Speichern = new QAction(this);
    mn_Speichern->setShortcut(QKeySequence::Save);
    onTriggered(mn_Speichern, [this] { Menu_SaveImage(0); });
    mn_SpeichernUnter = new QAction(this);
    mn_SpeichernUnter->setShortcut(QKeySequence::SaveAs);
    onTriggered(mn_SpeichernUnter, [this] { saveAsDialog(); });
    mn_AuswahlSpeichern = new QAction(this);
    onTriggered(mn_AuswahlSpeichern, [this] { Menu_SaveImage(1, true); });
    // The caption "Fixieren  <F4>" names its key itself: the key is bound beside the entry, so
    // that the menu does not show it a second time.
    mn_Fixieren = new QAction(this);
    onTriggered(mn_Fixieren, [this] { fixings().BtnFix_Click(); });
    auto *fixKey = new QAction(this);
    fixKey->setShortcut(QKeySequence(Qt::Key_F4));
    connect(fixKey, &QAction::triggered, mn_Fixieren, &QAction::trigger);
    addAction(fixKey);
    mn_Restaurieren = new QAction(this);
    onTriggered(mn_Restaurieren, [this] {
        fixings().BtnRestore_Click();
        refreshStatus();
        Set_MDI_Caption();
    });
    mn_Optionen = new QAction(this);
    onTriggered(mn_Optionen, [this] { showOptions(); });
    // F5 is Paint at rest and Stop while a paint runs, like the button.
    mn_Paint = new QAction(this);
    mn_Paint->setShortcut(QKeySequence(Qt::Key_F5));
    mn_Paint->setShortcutContext(Qt::ApplicationShortcut);
    connect(mn_Paint, &QAction::triggered, this, &MainWindow::paint);
    addAction(mn_Paint);
    mn_LadePalette = new QAction(this);
    onTriggered(mn_LadePalette, [this] { loadPalette(); });
    mn_SystemPalette = new QAction(this);
    onTriggered(mn_SystemPalette, [this] { systemPalette(); });
    mn_CopyCommand = new QAction(this);
    onTriggered(mn_CopyCommand, [this] { copyCommandLine(); });
    mn_Undo = new QAction(this);
    mn_Undo->setShortcut(QKeySequence::Undo);
    onTriggered(mn_Undo, [this] { undoRedo(); });
    mn_ClrPaintAction = new QAction(this);
    onTriggered(mn_ClrPaintAction, [this] { mn_ClrPaint(); });
    mn_ClrPicAction = new QAction(this);
    onTriggered(mn_ClrPicAction, [this] { mn_ClrPic(); });
    for (auto [action, name] : {std::pair{mn_Oeffnen, "mn_Oeffnen"},
                                {mn_Speichern, "mn_Speichern"},
                                {mn_Fixieren, "mn_Fixieren"},
                                {mn_Restaurieren, "mn_Restaurieren"},
                                {mn_Paint, "mn_Paint"},
                                {mn_Undo, "mn_Undo"},
                                {mn_ClrPaintAction, "mn_ClrPaint"},
                                {mn_ClrPicAction, "mn_ClrPic"}})
        action->setObjectName(QLatin1String(name));
    for (size_t i = 0; i < mn_New_Picformat.size(); ++i)
        mn_New_Picformat[i]->setObjectName(QStringLiteral("mn_New_Picformat(%1)").arg(i));
    mn_Ende = new QAction(this);
    mn_Ende->setObjectName(QStringLiteral("mn_Ende"));
    mn_Ende->setShortcut(QKeySequence::Quit);
    connect(mn_Ende, &QAction::triggered, this, &QWidget::close);

    m_groupActions = new QActionGroup(this);
    for (int g = 1; g <= GroupCount; ++g) {
        auto *a = new QAction(this);
        a->setCheckable(true);
        // The ten groups answer to the keys 1 to 9 and A with the control key.
        a->setShortcut(QKeySequence(Qt::CTRL | (g < 10 ? Qt::Key(Qt::Key_0 + g) : Qt::Key_A)));
        m_groupActions->addAction(a);
        connect(a, &QAction::triggered, this,
                whenIdle(
                    m_session, [this, g] { chooseGroup(g); },
                    [this] {
                        // The check mark stays with the group of the running paint.
                        mn_Grafmodes[size_t(m_session.paint().GrafGroup - 1)]->setChecked(true);
                    }));
        mn_Grafmodes[size_t(g - 1)] = a;
    }
    mn_Grafmodes[0]->setChecked(true);

    tbDefault = new QAction(this);
    onTriggered(tbDefault, [this] { resetDefaults(); });
    tbDrucken = new QAction(this);
    tbDrucken->setShortcut(QKeySequence::Print);
    onTriggered(tbDrucken, [this] { printPicture(); });
    mn_Passepartouts = new QAction(this);
    onTriggered(mn_Passepartouts, [this] { showPassepartouts(); });
    mn_Kachelansicht = new QAction(this);
    onTriggered(mn_Kachelansicht, [this] { showTileViewer(); });
    mn_SuperShow = new QAction(this);
    mn_SuperShow->setObjectName(QStringLiteral("mn_SuperShow"));
    onTriggered(mn_SuperShow, [this] { showSuperformat(); });
    mn_TextDialog = new QAction(this);
    onTriggered(mn_TextDialog, [this] { showTextDialog(); });
    createPresentationActions();
}

void MainWindow::createMenus()
{
    m_fileMenu = menuBar()->addMenu(QString());
    m_newMenu = m_fileMenu->addMenu(QString());
    for (QAction *a : mn_New_Picformat)
        m_newMenu->addAction(a);
    m_newMenu->insertSeparator(mn_New_Picformat[1]);
    m_newMenu->insertSeparator(mn_New_Picformat[7]);
    m_fileMenu->addAction(mn_Oeffnen);
    m_fileMenu->addAction(mn_Importieren);
    m_fileMenu->addAction(mn_KachelLaden);
    m_fileMenu->addAction(mn_Speichern);
    m_fileMenu->addAction(mn_SpeichernUnter);
    m_fileMenu->addAction(mn_AuswahlSpeichern);
    m_fileMenu->addAction(mn_AnimationSpeichern);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(mn_Fixieren);
    m_fileMenu->addAction(mn_Restaurieren);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(tbDrucken);
    m_fileMenu->addAction(mn_Passepartouts);
    m_fileMenu->addAction(mn_Kachelansicht);
    addPresentationMenu(m_fileMenu);
    m_fileMenu->addSeparator();
    for (QAction *a : mn_File)
        m_fileMenu->addAction(a);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(mn_Optionen);
    m_fileMenu->addSeparator();
    m_fileMenu->addAction(mn_Ende);

    m_editMenu = menuBar()->addMenu(QString());
    m_editMenu->addAction(mn_Undo);
    m_editMenu->addSeparator();
    m_editMenu->addAction(mn_ClrPaintAction);
    m_editMenu->addAction(mn_ClrPicAction);
    m_editMenu->addSeparator();
    m_editMenu->addAction(mn_CopyCommand);
    m_editMenu->addSeparator();
    m_editMenu->addAction(tbDefault);

    m_grafModesMenu = menuBar()->addMenu(QString());
    for (QAction *a : mn_Grafmodes)
        m_grafModesMenu->addAction(a);

    auto *filterMenu = new FilterMenu(m_session, this);
    menuBar()->addMenu(filterMenu);
    connect(filterMenu, &FilterMenu::pictureChanged, this, &MainWindow::afterPaint);
    auto *transformMenu = new TransformMenu(m_session, this);
    menuBar()->insertMenu(filterMenu->menuAction(), transformMenu);
    connect(transformMenu, &TransformMenu::pictureChanged, this, &MainWindow::afterPaint);
    m_colourMenu = menuBar()->addMenu(QString());
    m_colourMenu->addAction(mn_LadePalette);
    m_colourMenu->addAction(mn_SystemPalette);

    m_viewMenu = menuBar()->addMenu(QString());
    m_viewMenu->addAction(m_colourDialog->toggleViewAction());
    m_viewMenu->addAction(m_grafDialog->toggleViewAction());
    m_viewMenu->addAction(m_featDialog->toggleViewAction());
    m_viewMenu->addSeparator();
    m_viewMenu->addAction(mn_SuperShow);
    m_viewMenu->addAction(mn_TextDialog);
}

void MainWindow::createToolBar()
{
    m_toolBar = addToolBar(QString());
    m_toolBar->setObjectName(QStringLiteral("Toolbar1"));
    m_toolBar->setMovable(false);
    m_toolBar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    // The save key is the menu's entry itself: whatever enables the one enables the other.
    m_toolBar->addAction(mn_Speichern);
    m_toolBar->addSeparator();
    m_toolBar->addAction(mn_Fixieren);
    m_toolBar->addAction(mn_Restaurieren);
    m_toolBar->addSeparator();
    m_toolBar->addAction(tbDefault);
    m_toolBar->addAction(tbDrucken);
}

void MainWindow::retranslate()
{
    m_fileMenu->setTitle(tr("&Datei"));
    m_newMenu->setTitle(tr("&Neu"));
    for (int i = 0; i < NewPictureFormatCount; ++i)
        mn_New_Picformat[size_t(i)]->setText(
            QCoreApplication::translate("PictureFormats", newPictureFormats()[size_t(i)].caption));
    mn_Oeffnen->setText(tr("Ö&ffnen..."));
    mn_Importieren->setText(tr("&Importieren..."));
    mn_KachelLaden->setText(tr("&Kachel laden..."));
    mn_Speichern->setText(tr("&Speichern"));
    mn_Speichern->setIconText(tr("Speichern"));
    mn_SpeichernUnter->setText(tr("Speichern &unter..."));
    mn_AuswahlSpeichern->setText(tr("Auswahl in Datei &speichern..."));
    mn_AnimationSpeichern->setText(tr("Animation speichern..."));
    mn_Fixieren->setText(tr("Fixieren  <F4>"));
    mn_Fixieren->setIconText(tr("Fixieren"));
    mn_Restaurieren->setText(tr("Restaurieren"));
    mn_Optionen->setText(tr("&Optionen ..."));
    updateRecentMenu();
    fixings().Set_Fixstatus(fixings().pictureFixed());
    mn_Undo->setText(tr("&Undo / Redo"));
    mn_ClrPaintAction->setText(tr("&Gemaltes löschen"));
    mn_ClrPaintAction->setToolTip(tr("Was auf der gezeigten Auswahl gemalt wurde, wieder löschen"));
    mn_ClrPicAction->setText(tr("Bild &leeren"));
    mn_Paint->setText(tr("Malen"));
    mn_CopyCommand->setText(tr("Als Befehlszeile kopieren"));
    mn_CopyCommand->setToolTip(tr("Den Befehl, der das letzte Bild wieder malt, in die Zwischenablage kopieren"));
    m_viewMenu->setTitle(tr("&Ansicht"));
    mn_SuperShow->setText(tr("Superformat anzeigen"));
    m_colourMenu->setTitle(tr("&Farben"));
    mn_LadePalette->setText(tr("&Palette laden..."));
    mn_SystemPalette->setText(tr("Syste&mpaletten..."));
    mn_Ende->setText(tr("&Beenden"));
    m_editMenu->setTitle(tr("&Bearbeiten"));
    m_grafModesMenu->setTitle(tr("&Grafikmodus"));
    for (int g = 1; g <= GroupCount; ++g) {
        const QString key = g < 10 ? QString::number(g) : QStringLiteral("A");
        mn_Grafmodes[size_t(g - 1)]->setText(QStringLiteral("&%1 ").arg(key) +
                                             QCoreApplication::translate("Groups", groupTitle(g)));
    }
    m_toolBar->setWindowTitle(tr("Werkzeugleiste"));
    tbDefault->setText(tr("Default"));
    tbDefault->setToolTip(tr("Alle Optionen auf ihre Vorgaben setzen"));
    tbDrucken->setText(tr("Drucken"));
    mn_Passepartouts->setText(tr("&Passepartouts..."));
    mn_Kachelansicht->setText(tr("Kachel&ansicht..."));
    mn_TextDialog->setText(tr("&Text und Schrift..."));
    retranslatePresentation();
    const int group = m_session.paint().GrafGroup;
    m_toolBar->setToolTip(groupLabel(group));
    retranslateTools();
    Set_MDI_Caption();
    refreshStatus();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void MainWindow::Set_MDI_Caption()
{
    QString title = QStringLiteral("Tarvelle-Forge");
    if (!m_fileName.isEmpty())
        title += QStringLiteral(" - ") + m_fileName;
    if (m_session.workspace().BildChanged)
        title += QStringLiteral(" *");
    setWindowTitle(title);
}

void MainWindow::refreshStatus()
{
    const Workspace &ws = m_session.workspace();
    m_status->setPanelText(sbrSize, QStringLiteral("%1 x %2").arg(ws.BildW).arg(ws.BildH));
}

void MainWindow::updateCommands()
{
    const CommandState &c = m_session.workspace().commands;
    mn_Undo->setEnabled(c.undo);
    mn_Speichern->setEnabled(c.save);
    mn_SpeichernUnter->setEnabled(c.save);
    mn_AuswahlSpeichern->setEnabled(m_session.workspace().PicSelect.Visible() ||
                                    m_session.workspace().picSelectC.Visible());
    tbDrucken->setEnabled(c.print);
    if (mn_PicAusrichtenMenu) updateToolCommands();
    Set_MDI_Caption();
}

void MainWindow::New_BildSize(int w, int h) { m_session.workspace().New_BildSize(w, h); }

void MainWindow::closeEvent(QCloseEvent *event)
{
    if (isBusy(m_session)) {
        // The running paint is stopped first; the window closes when it has given up.
        m_session.paint().StopPaint = true;
        m_closeAfterPaint = true;
        event->ignore();
        return;
    }
    if (m_session.workspace().BildChanged &&
        m_session.ask(tr("Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. "
                         "Wollen Sie trotzdem beenden?"),
                      Buttons::YesNo, Icon::Question) != Answer::Yes) {
        event->ignore();
        return;
    }
    shutDown();
    event->accept();
}

} // namespace tf::ui
