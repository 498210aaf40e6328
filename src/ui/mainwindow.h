#pragma once
// The main window `frmMain`: menu, toolbar, status bar and the picture frame `picContainer`
// that shows `Bild` pixel for pixel, scrolled when it is larger than the frame. It owns the
// session, and through it the workspace of named pictures.

#include "paint/session.h"
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

class PictureView;
class StatusBarSink;

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit MainWindow(QWidget *parent = nullptr);
    ~MainWindow() override;

    Session &session() { return m_session; }

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
    void createActions();
    void createMenus();
    void createToolBar();
    void retranslate();
    void updateCommands();

    void newPicture(int formatIndex);
    void undoRedo();
    void chooseGroup(int group);
    void resetDefaults();
    void printPicture();

    Session m_session;
    MessageBoxPrompter m_prompter{this};
    EventLoopYield m_yield;
    std::unique_ptr<StatusBarSink> m_status;

    QScrollArea *m_picContainer = nullptr;
    PictureView *m_view = nullptr;
    QString m_fileName;

    QMenu *m_fileMenu = nullptr;
    QMenu *m_newMenu = nullptr;
    QMenu *m_editMenu = nullptr;
    QMenu *m_grafModesMenu = nullptr;
    QToolBar *m_toolBar = nullptr;
    std::vector<QAction *> mn_New_Picformat;
    QAction *mn_Undo = nullptr;
    QAction *mn_Ende = nullptr;
    std::array<QAction *, 10> mn_Grafmodes{};
    QActionGroup *m_groupActions = nullptr;
    QAction *tbDefault = nullptr;
    QAction *tbDrucken = nullptr;
};

} // namespace tf::ui
