#pragma once
// The plasma tunnel: a plasma field seen through a polar map that flies past.
//
// The map (`TunnelU`, `TunnelV`) is made once per start: for each pixel of the picture, at
// distance R and angle A from the centre, V = rounded(k R - Hole) is the field's row
// (k = W / H of the field when it is wider than high, else H / W) and
// U = rounded((A + Pi + Turn (R / k - Hole)) W / 2 Pi) its column, Turn = 2.56 / W, so the
// rows turn slowly into a spiral. A column past the field's width and a row past its height
// wrap round; a row below the first (inside the hole) shows black. A frame then costs two map
// reads, one field read and one palette read a pixel, and allocates nothing: frame n shows
// the field moved by the offsets OffV (and, with spin, OffU), each advancing by the speed a
// frame and wrapping at the field's size.

#include "generators/plasma.h"
#include "paint/animation.h"

#include <cstdint>
#include <vector>

namespace tf {

class Session;

// The angle of (x, y) from -Pi to Pi, built on Atn as the picture's routines have it:
// 0 at the origin, Pi/2 and -Pi/2 on the y axis. Pi is the literal 3.1415926535898.
double Plasma_Atan2(double y, double x);

struct TunnelSettings {
    int speed = 4;      // TunnelSpeed: field rows (and columns with spin) a frame
    bool spin = false;  // TunnelSpin, "Rotieren"
    double hole = 0;    // TunnelHole, "Loch": the hole's size in field rows
    double cx = 0;      // the centre in the picture, from its top left pixel
    double cy = 0;
};

class Tunnel final : public Animation {
public:
    // The map for a picture of `width` x `height` over `field` shown through `palette`.
    Tunnel(PlasmaField field, const Palette512 &palette, int width, int height,
           const TunnelSettings &settings);

    QSize frameSize() const override { return {m_width, m_height}; }
    void render(QImage &frame) override;
    void advance(double frames) override;
    std::unique_ptr<Animation> clone() const override;

    // The frame into rows of 32-bit pixels `stride` pixels apart.
    void renderInto(uint32_t *out, std::size_t stride) const;
    const PlasmaField &field() const { return m_field; }
    const Palette512 &palette() const { return m_palette; }
    int offU() const { return int(m_offU); }
    int offV() const { return int(m_offV); }
    // The map of pixel (x, y): field column and row; the row is -1 inside the hole.
    int mapU(int x, int y) const { return m_u[size_t(y) * size_t(m_width) + size_t(x)]; }
    int mapV(int x, int y) const;

private:
    static constexpr uint16_t Hole = 0xFFFF;

    PlasmaField m_field;
    Palette512 m_palette;
    int m_width;
    int m_height;
    TunnelSettings m_settings;
    std::vector<uint16_t> m_u; // TunnelU
    std::vector<uint16_t> m_v; // TunnelV; Hole inside the hole
    double m_offU = 0;
    double m_offV = 0;
};

// "Start Tunnel" without the window: reads the plasma panel and the colour state of `s`,
// fills the plasma and makes the tunnel for a picture of `width` x `height`. With random
// values the field is larger than the picture (its diagonal, cut to a multiple of 8) and,
// unless XCenter is checked, the centre moves at random within the middle half of the
// picture. The palette is the one a Paint of "Plasma" takes; it stays on show in the colour
// state. The field is filled wrapped both ways, whatever the panel's wraps, so the texture
// shows no seam round the tunnel or along it.
std::unique_ptr<Tunnel> makeTunnel(Session &s, int width, int height);

} // namespace tf
