#pragma once
// The main window `frmMain`: menu, toolbar, status bar and the picture frame `picContainer`
// that shows `Bild` pixel for pixel, scrolled when it is larger than the frame. It owns the
// session, and through it the workspace of named pictures and the fixings; it is the session's
// view (what the engine tells the window, and the window's routines the engine calls).
//
// Every handler of the window and its docks runs through the one guard of ui/idleguard.h, so
// that nothing but Stop acts while a paint gives way to the event loop.

#include "core/appsettings.h"
#include "core/fixings.h"
#include "core/mrufilelist.h"
#include "files/loadplace.h"
#include "files/recipe.h"
#include "paint/session.h"
#include "tools/editmenu.h"
#include "tools/toolengine.h"
#include "ui/animationdialog.h"
#include "ui/guiprompter.h"
#include "ui/guiyield.h"

#include <QMainWindow>
#include <array>
#include <memory>

class QAction;
class QActionGroup;
class QMenu;
class QScrollArea;
class QToolBar;

namespace tf::ui {

class ColourDialogDock;
class FeatDialogDock;
class GrafDialogDock;
class PictureView;
class PreviewCache;
struct SystemOptions;
class StatusBarSink;
class TextDialog;
class TileViewer;
class MosaikShow;
class TunnelDriver;

class MainWindow : public QMainWindow, private SessionView, private ToolView {
    Q_OBJECT
public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    Session &session() { return m_session; }
    Fixings &fixings() { return m_session.fixings(); }
    const cMRUFileList &recentFiles() const { return m_mru; }

    // The start of the program after the window is made: settings, window place, fixings,
    // last files, the last picture format, and the offer to rescue undo images left by a
    // crash. Reads the settings from `store`.
    void startUp(SettingsStore &store);
    // Opens a picture file into Bild; answers false (after a message) when it cannot be read.
    bool openPicture(const QString &path);
    // Saves Bild (or the shown selection) to `path`, its format classed by the name; answers
    // false after a message on failure.
    bool savePicture(const QString &path, bool selection = false);
    // Loads a picture file for a load command (1 open, 2 import, 3 tile); false after a message
    // (or silently for a file that is not there).
    bool loadPictureFile(const QString &path, int command);
    // The load commands: the chooser, then the picture (1 open, 2 import, 3 tile).
    void Menu_LoadImage(int Index);
    // The save commands: 0 save (without a dialog once the picture has a file), 1 save as;
    // `selection` saves the shown selection ("Save selection").
    void Menu_SaveImage(int Index, bool selection = false);
    // What frmPicImport answered last (its start values the next time).
    const ImportChoice &importChoice() const { return m_importChoice; }

    // The title: the product name, " - " and the file name, with " *" when changed.
    void Set_MDI_Caption();
    // Lays the workspace out for a picture of w x h and shows it.
    void New_BildSize(int w, int h);
    // Renews the status panels of the picture (size).
    void refreshStatus();

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    // The session's view.
    void commandsChanged() override;
    void layoutChanged() override;
    void grafDialogChanged(GrafDialogState::Change change) override;
    void controlChanged(const ControlKey &key) override;
    void Handle_Formobjects() override;
    bool openMatrixWindow(int glyph, int speed) override;
    bool choosePicSource() override;
    // The slide show in its window (mainwindow_presentation.cpp).
    bool runDiaShow() override;
    // After a Superformat paint: the viewer shows the new picture (mainwindow_superformat.cpp).
    void showSuperformat() override;
    void reset_imgButtons() override;
    void Refresh_BrushImage() override;

    // The tools' view (mainwindow_tools.cpp).
    void toolChanged(Tool tool) override;
    void areaChanged(const QRect &area) override;
    void coloursChanged() override;
    void selectionChanged() override;
    // The toolbar of the hand tools, the edit menu's selection entries, the mouse.
    void createToolActions();
    void addEditEntries();
    void retranslateTools();
    void updateToolCommands();
    void connectMouse();
    // What the tool panels show beyond their tables: the pen tips, and the connected brush
    // offered for the two brushes only.
    void syncToolPanels();
    // The top left of the part of the picture the frame shows.
    QPoint visibleTopLeft() const;

    void createActions();
    void createMenus();
    void createToolBar();
    void retranslate();
    void updateCommands();

    void newPicture(int formatIndex);
    // mn_ClrPaint: the drawing on a shown selection is cleared; without one the brushes take
    // the picture anew and an unfixed picture shows so.
    void mn_ClrPaint();
    // mn_ClrPic: clears Bild, after asking when it holds unsaved changes.
    void mn_ClrPic();
    void undoRedo();
    void chooseGroup(int group);
    void resetDefaults();
    void printPicture();
    // mn_Passepartouts: the passepartout generator over tvlpassp.dat in TempDir.
    void showPassepartouts();
    // The tile viewer over the work picture (one window, raised again when open).
    void showTileViewer();
    // The text dialog (made with the window, kept for its life), raised.
    void showTextDialog();
    // A press on the picture: the text placing mode takes it before the hand tools (a left
    // click places, another button ends the mode); true when it did.
    bool pictureClicked(Qt::MouseButton button, QPoint at);
    void paint();
    void roll(int index);
    // A button of an option panel ("Repaint letztes Set").
    void runPanelAction(const PanelAction &action);
    void copyPictureToClipboard();
    void copyCommandLine();
    void afterPaint();
    void loadPalette();
    void systemPalette();
    void paintRunning(bool running);
    // The plasma tunnel and the animation export (mainwindow_animation.cpp).
    void createAnimationActions();
    void tunnelRunning(bool running);
    void exportAnimation();
    void showOptions();
    void openDialog();
    void saveAsDialog();
    void updateRecentMenu();
    void applyOptions(const SystemOptions &options);
    // The unload steps: settings, temp files, clipboard, last files.
    void shutDown();
    // Connects an action's trigger to a handler through the guard.
    template <typename Handler> void onTriggered(QAction *action, Handler handler);

    Session m_session;
    MessageBoxPrompter m_prompter{this};
    EventLoopYield m_yield;
    std::unique_ptr<StatusBarSink> m_status;

    std::unique_ptr<PreviewCache> m_previews;
    GrafDialogDock *m_grafDialog = nullptr;
    FeatDialogDock *m_featDialog = nullptr;
    ColourDialogDock *m_colourDialog = nullptr;
    TextDialog *m_textDialog = nullptr;
    QScrollArea *m_picContainer = nullptr;
    PictureView *m_view = nullptr;
    QString m_fileName;
    cMRUFileList m_mru;
    AppSettings m_settings;
    SettingsStore *m_store = nullptr;
    int m_formatIndex = 4; // the "Neu" entry of the picture (712 x 712)
    bool m_shutDown = false;
    bool m_closeAfterPaint = false; // the window was closed during a paint: close at its end
    QString SavePathFile;                   // the last saved picture; "Speichern" uses it
    std::array<QString, 4> LoadLastDir;     // per load command (1..3)
    ImportChoice m_importChoice;
    PaintHistory m_paintHistory;            // the paints that made Bild, for its recipe

    QMenu *m_fileMenu = nullptr;
    QMenu *m_newMenu = nullptr;
    QMenu *m_editMenu = nullptr;
    QMenu *m_grafModesMenu = nullptr;
    QToolBar *m_toolBar = nullptr;
    std::vector<QAction *> mn_New_Picformat;
    std::array<QAction *, 4> mn_File{};
    QAction *mn_Oeffnen = nullptr;
    QAction *mn_Speichern = nullptr;
    QAction *mn_Importieren = nullptr;
    QAction *mn_KachelLaden = nullptr;
    QAction *mn_SpeichernUnter = nullptr;
    QAction *mn_AuswahlSpeichern = nullptr;
    QAction *mn_Fixieren = nullptr;
    QAction *mn_Restaurieren = nullptr;
    QAction *mn_Optionen = nullptr;
    QAction *mn_Undo = nullptr;
    QAction *mn_ClrPaintAction = nullptr;
    QAction *mn_ClrPicAction = nullptr;
    QAction *mn_Paint = nullptr;
    QAction *mn_CopyCommand = nullptr;
    QMenu *m_viewMenu = nullptr;
    QMenu *m_colourMenu = nullptr;
    QAction *mn_LadePalette = nullptr;
    QAction *mn_SystemPalette = nullptr;
    QAction *mn_Ende = nullptr;
    std::array<QAction *, 10> mn_Grafmodes{};
    QActionGroup *m_groupActions = nullptr;
    QAction *tbDefault = nullptr;
    QAction *tbDrucken = nullptr;
    QAction *mn_Passepartouts = nullptr;
    ToolEngine *m_tools = nullptr;
    SystemClipboard m_clipboard;
    QToolBar *m_toolsBar = nullptr;
    std::vector<std::pair<Tool, QAction *>> m_toolActions;
    std::vector<std::pair<int, QAction *>> mn_Edit;
    QMenu *mn_PicAusrichtenMenu = nullptr;
    std::vector<QAction *> mn_PicAusrichten;
    QAction *mn_ClearClip = nullptr;
    int m_cursorShown = -1;
    QAction *mn_Kachelansicht = nullptr;
    QAction *mn_TextDialog = nullptr;
    TileViewer *m_tileViewer = nullptr;
    // "Superformat anzeigen": the Superformat viewer over the session's last Superformat picture.
    QAction *mn_SuperShow = nullptr;
    MosaikShow *m_mosaikShow = nullptr;
    MosaikShow &mosaikShow();
    TunnelDriver *m_tunnel = nullptr;
    QAction *mn_AnimationSpeichern = nullptr;
    AnimationChoice m_animationChoice;
    // mn_PicPres: load (0) and save (1) a picture presentation (mainwindow_presentation.cpp).
    std::array<QAction *, 2> mn_PicPres{};
    QMenu *m_picPresMenu = nullptr;
    void createPresentationActions();
    void addPresentationMenu(QMenu *fileMenu);
    void retranslatePresentation();
    void openPicPresentation(int mode);
    // The program's picture folder: the last folder opened, else the user's pictures.
    QString pictureDir() const;
    // The mosaic panel's timer starts at the program's display time.
    void applyDisplayTime();
};

} // namespace tf::ui
