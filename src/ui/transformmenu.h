#pragma once
// The menu "Bild" of the main window: the mirrors ("Vertikal spiegeln", "Horizontal
// spiegeln"), the half mirrors ("Halbspiegel"), the quarter turns, the picture size, the canvas
// size, cropping to the selection, and the 3-D Blurize family on the picture now and the
// picture before the last change. Each command acts on the filter target (a shown
// selection, else Bild) or on Bild, with undo; handlers go through the window's guard.

#include <QMenu>
#include <array>
#include <vector>

namespace tf {
class Session;
}

namespace tf::ui {

class TransformMenu : public QMenu {
    Q_OBJECT
public:
    TransformMenu(Session &session, QWidget *parent);

    // The entries by their control names (mn_MirrorV, mn_MirrorH, mn_KlappH0 .. mn_KlappH5,
    // mn_Turn90R, mn_Turn90L, mn_Turn180, mn_BildGroesse, mn_Arbeitsflaeche,
    // mn_Freistellen, and mn_GBlur ... of the 3-D Blurize family), for tests; null when none.
    QAction *entry(const QString &name) const;

signals:
    // A command changed the picture (its size may have changed too).
    void pictureChanged();

protected:
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void pictureSize();
    void canvasSize();
    void blurize(int selector);

    Session &m_session;
    QMenu *m_klapp = nullptr;
    QAction *m_mirrorV = nullptr, *m_mirrorH = nullptr;
    std::array<QAction *, 5> m_klappH{};
    QAction *m_turnRight = nullptr, *m_turnLeft = nullptr, *m_turn180 = nullptr;
    QAction *m_size = nullptr, *m_canvas = nullptr, *m_crop = nullptr;
    QMenu *m_blurize = nullptr;
    std::vector<QAction *> m_blurizeActions; // in the order of the family's table
};

} // namespace tf::ui
