#pragma once
// What the plasma panel `feat_22Plasma` shows beside its controls: the palette strip `picPal`
// (the plasma's palette on show) and the buttons "Start Tunnel" and "Stop"
// (`BtnPlasmaRepaint` 0 and 1). The buttons only signal; the window runs the tunnel.

#include <QWidget>

class QPushButton;

namespace tf {
class Session;
}

namespace tf::ui {

// The 512 colours of ColourState::PlasmaPalette across the widget's width.
class PlasmaPaletteStrip : public QWidget {
    Q_OBJECT
public:
    explicit PlasmaPaletteStrip(const Session &session, QWidget *parent = nullptr);
    QSize sizeHint() const override { return {256, 14}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Session &m_session;
};

class PlasmaPanelExtras : public QWidget {
    Q_OBJECT
public:
    explicit PlasmaPanelExtras(const Session &session, QWidget *parent = nullptr);

    // Shows the palette and which button is live (Stop while the tunnel runs).
    void refresh();
    QPushButton *startButton() const { return m_start; }
    QPushButton *stopButton() const { return m_stop; }

signals:
    void startTunnel();
    void stopTunnel();

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void retranslate();

    const Session &m_session;
    PlasmaPaletteStrip *m_strip;
    QPushButton *m_start;
    QPushButton *m_stop;
};

} // namespace tf::ui
