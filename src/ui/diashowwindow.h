#pragma once
// frmDiaShow: the window of the slide show "PIC-DiaShow". The photo mosaic is painted into it
// frame after frame on a timer (generators/diashow.h); its size is the show's working size.
//
// Keys: Escape closes; Space or P pauses and goes on; Right, Page Down or N shows the next
// step at once; Left, Page Up, Backspace or B the one before; F or F11 switches full screen.
// The right mouse button offers the same as a menu. With "Dateinamen anzeigen" on, the name
// of the picture just pasted stands at the bottom left; a click on it saves it: its full path
// is added as a line to the list file (savedListPath) and put on the clipboard.
//
// The paint's Stop (the Paint button while the show runs) closes it as Escape does.

#include <QString>
#include <QTimer>
#include <QWidget>
#include <memory>

class QLabel;

namespace tf {
class DiaShow;
class Session;
} // namespace tf

namespace tf::ui {

class DiaShowWindow : public QWidget {
    Q_OBJECT
public:
    explicit DiaShowWindow(Session &session, QWidget *parent = nullptr);
    ~DiaShowWindow() override;

    // The text file the clicked names are added to.
    void setSavedListPath(const QString &path) { m_savedList = path; }
    const QString &savedListPath() const { return m_savedList; }

    // One step of the show now, as the timer makes it (the timer starts anew).
    void next();
    void previous();
    void setPaused(bool paused);
    bool paused() const { return m_paused; }
    void toggleFullScreen();

    // The show (null before the first step) and the caption label, for a look from tests.
    DiaShow *diaShow() const { return m_show.get(); }
    QLabel *captionLabel() const { return m_caption; }
    bool timerRunning() const { return m_timer.isActive(); }
    // Saves the name on show, as a click on the caption does; false when there is none.
    bool saveShownName();

signals:
    void closed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void tick();
    void watchStop();
    void afterStep();
    void restartTimer();
    void placeLabels();

    Session &m_session;
    std::unique_ptr<DiaShow> m_show;
    QTimer m_timer;
    QTimer m_stopWatch;
    QLabel *m_caption = nullptr;
    QLabel *m_pauseLabel = nullptr;
    QString m_savedList;
    bool m_paused = false;
    bool m_stepping = false; // a step runs (it may give way to the event loop)
};

// Runs the show in a full-screen window until it is closed, ended or stopped, then puts the
// show's last status text into the status bar. `savedList`: see setSavedListPath.
void runDiaShowWindow(Session &session, const QString &savedList);

} // namespace tf::ui
