#include "ui/diashowwindow.h"

#include "core/status.h"
#include "generators/diashow.h"
#include "paint/session.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QScreen>

namespace tf::ui {

namespace {
// How often the window looks for the paint's Stop between steps.
constexpr int StopWatchMs = 100;
} // namespace

DiaShowWindow::DiaShowWindow(Session &session, QWidget *parent)
    : QWidget(parent, Qt::Window), m_session(session)
{
    setObjectName(QStringLiteral("frmDiaShow"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setWindowTitle(tr("Dia-Show"));
    setCursor(Qt::BlankCursor);

    m_caption = new QLabel(this);
    m_caption->setObjectName(QStringLiteral("lblDiaFile"));
    m_caption->setToolTip(tr("Bei Klick auf einen Dateinamen wird er gesichert"));
    m_caption->setStyleSheet(
        QStringLiteral("QLabel { color: white; background: rgba(0,0,0,150); padding: 4px 8px; }"));
    m_caption->setCursor(Qt::PointingHandCursor);
    m_caption->installEventFilter(this);
    m_caption->hide();

    m_pauseLabel = new QLabel(tr("Pause"), this);
    m_pauseLabel->setObjectName(QStringLiteral("lblDiaPause"));
    m_pauseLabel->setStyleSheet(m_caption->styleSheet());
    m_pauseLabel->hide();

    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { tick(); });
    m_stopWatch.setInterval(StopWatchMs);
    connect(&m_stopWatch, &QTimer::timeout, this, [this] { watchStop(); });
}

DiaShowWindow::~DiaShowWindow() = default;

void DiaShowWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_stopWatch.start();
    if (!m_show && !m_timer.isActive() && !m_paused)
        m_timer.start(0); // the first frame at once, once the window has its size
}

void DiaShowWindow::closeEvent(QCloseEvent *event)
{
    m_timer.stop();
    m_stopWatch.stop();
    QWidget::closeEvent(event);
    emit closed();
}

void DiaShowWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeLabels();
}

void DiaShowWindow::tick()
{
    if (m_stepping) return;
    // A show of another size (the window was resized) starts anew at the window's size.
    if (!m_show || m_show->size() != size()) m_show = std::make_unique<DiaShow>(m_session, size());
    m_stepping = true;
    const bool moved = m_show->step();
    m_stepping = false;
    if (!moved) {
        close();
        return;
    }
    afterStep();
    restartTimer();
}

void DiaShowWindow::watchStop()
{
    if (m_session.paint().StopPaint) close();
}

void DiaShowWindow::restartTimer()
{
    m_timer.stop();
    if (!m_paused && m_show && !m_show->ended()) m_timer.start(m_show->delayMs());
}

void DiaShowWindow::afterStep()
{
    const bool showName = m_session.controls().checked(QStringLiteral("XPicMosaik_ShowDiaFile"));
    const QString file = m_show ? m_show->file() : QString();
    if (showName && !file.isEmpty()) {
        m_caption->setText(QFileInfo(file).fileName());
        m_caption->setProperty("path", file);
        m_caption->adjustSize();
        m_caption->show();
    } else if (!file.isEmpty() || !showName) {
        m_caption->hide();
    }
    placeLabels();
    update();
}

void DiaShowWindow::placeLabels()
{
    const int gap = 12;
    m_caption->move(gap, height() - m_caption->height() - gap);
    m_pauseLabel->adjustSize();
    m_pauseLabel->move(width() - m_pauseLabel->width() - gap, gap);
}

void DiaShowWindow::next()
{
    m_timer.stop();
    tick();
}

void DiaShowWindow::previous()
{
    if (m_show && m_show->back()) {
        afterStep();
        restartTimer();
    }
}

void DiaShowWindow::setPaused(bool paused)
{
    m_paused = paused;
    m_pauseLabel->setVisible(paused);
    placeLabels();
    if (paused)
        m_timer.stop();
    else
        restartTimer();
}

void DiaShowWindow::toggleFullScreen()
{
    if (isFullScreen())
        showNormal();
    else {
        if (const QScreen *screen = this->screen()) setGeometry(screen->geometry());
        showFullScreen();
    }
}

bool DiaShowWindow::saveShownName()
{
    const QString path = m_caption->property("path").toString();
    if (path.isEmpty() || !m_caption->isVisible()) return false;
    QApplication::clipboard()->setText(path);
    if (!m_savedList.isEmpty()) {
        QDir().mkpath(QFileInfo(m_savedList).absolutePath());
        QFile list(m_savedList);
        if (!list.open(QIODevice::Append | QIODevice::Text)) {
            m_caption->setText(
                tr("%1 – nicht gesichert: %2").arg(QFileInfo(path).fileName(), list.errorString()));
            m_caption->adjustSize();
            return false;
        }
        list.write(path.toUtf8() + '\n');
    }
    m_caption->setText(tr("%1 – gesichert").arg(QFileInfo(path).fileName()));
    m_caption->adjustSize();
    placeLabels();
    return true;
}

bool DiaShowWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_caption && event->type() == QEvent::MouseButtonPress) {
        saveShownName();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void DiaShowWindow::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.fillRect(rect(), Qt::black);
    if (!m_show) return;
    const QImage &image = m_show->image();
    if (image.size() == size()) {
        p.drawImage(0, 0, image);
        return;
    }
    // A picture of the size before a resize, until the next layout: fitted, centred.
    const QSize fitted = image.size().scaled(size(), Qt::KeepAspectRatio);
    const QRect target(QPoint((width() - fitted.width()) / 2, (height() - fitted.height()) / 2),
                       fitted);
    p.setRenderHint(QPainter::SmoothPixmapTransform);
    p.drawImage(target, image);
}

void DiaShowWindow::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        close();
        break;
    case Qt::Key_Space:
    case Qt::Key_P:
        setPaused(!m_paused);
        break;
    case Qt::Key_Right:
    case Qt::Key_PageDown:
    case Qt::Key_N:
        next();
        break;
    case Qt::Key_Left:
    case Qt::Key_PageUp:
    case Qt::Key_Backspace:
    case Qt::Key_B:
        previous();
        break;
    case Qt::Key_F:
    case Qt::Key_F11:
        toggleFullScreen();
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}

void DiaShowWindow::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    menu.addAction(m_paused ? tr("Weiter") : tr("Pause"), this, [this] { setPaused(!m_paused); });
    menu.addAction(tr("Nächstes Bild"), this, [this] { next(); });
    menu.addAction(tr("Vorheriges Bild"), this, [this] { previous(); });
    menu.addAction(isFullScreen() ? tr("Vollbild beenden") : tr("Vollbild"), this,
                   [this] { toggleFullScreen(); });
    menu.addSeparator();
    menu.addAction(tr("Schließen"), this, [this] { close(); });
    setCursor(Qt::ArrowCursor);
    menu.exec(event->globalPos());
    setCursor(Qt::BlankCursor);
}

void runDiaShowWindow(Session &session, const QString &savedList)
{
    QPointer<DiaShowWindow> window = new DiaShowWindow(session);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setSavedListPath(savedList);
    QEventLoop loop;
    QObject::connect(window, &DiaShowWindow::closed, &loop, &QEventLoop::quit);
    QString status;
    QObject::connect(window, &DiaShowWindow::closed, window, [&status, w = window.data()] {
        if (w->diaShow()) status = w->diaShow()->statusText();
    });
    // The whole screen, also where no window manager makes a full-screen window so.
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        window->setGeometry(screen->geometry());
    window->showFullScreen();
    window->raise();
    window->activateWindow();
    loop.exec();
    // The paint ends by naming its seed in the same panel: the sizes follow once it has.
    if (!status.isEmpty())
        QTimer::singleShot(0,
                           [&session, status] { session.status().setPanelText(sbrState, status); });
}

} // namespace tf::ui
