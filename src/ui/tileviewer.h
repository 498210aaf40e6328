#pragma once
// The tile viewer: the work picture repeated over a window as a web page lays a background
// tile, to judge whether the tile is seamless. "Kachelgrenzen" draws the tile's edges over
// the pattern, "Versatz" moves the pattern by half a tile so that the meeting edges lie in
// the middle of the view, "Kachel laden..." loads a tile through the main window's
// "Web-Background" command. The viewer takes the work picture again whenever it becomes the
// active window.

#include <QDialog>
#include <QImage>
#include <QWidget>

class QCheckBox;
class QLabel;

namespace tf {
class Session;
}

namespace tf::ui {

// The area the tiles fill.
class TileArea : public QWidget {
    Q_OBJECT
public:
    explicit TileArea(QWidget *parent = nullptr) : QWidget(parent) {}
    void setTile(const QImage &tile);
    void setShowEdges(bool on);
    void setHalfOffset(bool on);
    const QImage &tile() const { return m_tile; }
    // The tiled view rendered into an image of `size` (what paintEvent shows).
    QImage render(QSize size) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintTiles(QPainter &p, const QRect &area) const;

    QImage m_tile;
    bool m_edges = false;
    bool m_offset = false;
};

class TileViewer : public QDialog {
    Q_OBJECT
public:
    explicit TileViewer(Session &session, QWidget *parent = nullptr);
    TileArea *area() const { return m_area; }
    // Takes the work picture as the tile.
    void refresh();

signals:
    // "Kachel laden...": the main window runs its Web-Background command, then refresh().
    void loadTileRequested();

protected:
    void changeEvent(QEvent *event) override;

private:
    Session &m_session;
    TileArea *m_area = nullptr;
    QLabel *m_size = nullptr;
};

} // namespace tf::ui
