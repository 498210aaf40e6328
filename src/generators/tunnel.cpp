#include "generators/tunnel.h"

#include "core/numeric.h"
#include "generators/plasmapaint.h"
#include "paint/session.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace tf {

namespace {

constexpr double PiLiteral = 3.1415926535898;
constexpr double TwoPi = 6.2831853071796;

int wrapInto(long v, int extent)
{
    const long m = v % extent;
    return int(m < 0 ? m + extent : m);
}

} // namespace

double Plasma_Atan2(double y, double x)
{
    if (x != 0) {
        double a = std::atan(y / x);
        if (x < 0) a += y < 0 ? -PiLiteral : PiLiteral;
        return a;
    }
    if (y > 0) return PiLiteral / 2;
    if (y < 0) return -PiLiteral / 2;
    return 0;
}

Tunnel::Tunnel(PlasmaField field, const Palette512 &palette, int width, int height,
               const TunnelSettings &settings)
    : m_field(std::move(field)), m_palette(palette), m_width(width), m_height(height),
      m_settings(settings)
{
    if (width < 1 || height < 1 || m_field.width < 1 || m_field.height < 1 ||
        m_field.width >= Hole || m_field.height >= Hole)
        throw std::invalid_argument("tunnel size");
    const int W = m_field.width, H = m_field.height;
    const double k = W > H ? double(W) / H : double(H) / W;
    const double turn = 2.56 / W;
    m_u.assign(size_t(width) * size_t(height), 0);
    m_v.assign(size_t(width) * size_t(height), 0);
    for (int y = 0; y < height; ++y) {
        const double dy = y - settings.cy;
        for (int x = 0; x < width; ++x) {
            const double dx = x - settings.cx;
            const double r = std::sqrt(dx * dx + dy * dy);
            const double v = roundHalfEven(k * r - settings.hole);
            const size_t p = size_t(y) * size_t(width) + size_t(x);
            if (v < 0) {
                m_v[p] = Hole;
                continue;
            }
            const double twist = turn * (r / k - settings.hole);
            const double angle = Plasma_Atan2(dy, dx) + PiLiteral + twist;
            const auto u = long(roundHalfEven(angle * W / TwoPi));
            m_u[p] = uint16_t(wrapInto(u, W));
            m_v[p] = uint16_t(wrapInto(long(v), H));
        }
    }
}

int Tunnel::mapV(int x, int y) const
{
    const uint16_t v = m_v[size_t(y) * size_t(m_width) + size_t(x)];
    return v == Hole ? -1 : int(v);
}

void Tunnel::renderInto(uint32_t *out, std::size_t stride) const
{
    const int W = m_field.width, H = m_field.height;
    const int offU = int(m_offU), offV = int(m_offV);
    const uint16_t *index = m_field.index.data();
    for (int y = 0; y < m_height; ++y) {
        const uint16_t *us = m_u.data() + size_t(y) * size_t(m_width);
        const uint16_t *vs = m_v.data() + size_t(y) * size_t(m_width);
        uint32_t *row = out + size_t(y) * stride;
        for (int x = 0; x < m_width; ++x) {
            const int v0 = vs[x];
            if (v0 == Hole) {
                row[x] = 0xFF000000u;
                continue;
            }
            int u = us[x] - offU;
            if (u < 0) u += W;
            int v = v0 - offV;
            if (v < 0) v += H;
            row[x] = 0xFF000000u | m_palette[index[size_t(v) * size_t(W) + size_t(u)]];
        }
    }
}

void Tunnel::render(QImage &frame)
{
    if (frame.format() != QImage::Format_RGB32 || frame.width() < m_width ||
        frame.height() < m_height)
        throw std::invalid_argument("tunnel frame");
    renderInto(reinterpret_cast<uint32_t *>(frame.bits()), size_t(frame.bytesPerLine()) / 4);
}

void Tunnel::advance(double frames)
{
    const double step = m_settings.speed * frames;
    m_offV = std::fmod(m_offV + step, double(m_field.height));
    if (m_offV < 0) m_offV += m_field.height;
    if (m_settings.spin) {
        m_offU = std::fmod(m_offU + step, double(m_field.width));
        if (m_offU < 0) m_offU += m_field.width;
    }
}

std::unique_ptr<Animation> Tunnel::clone() const { return std::make_unique<Tunnel>(*this); }

std::unique_ptr<Tunnel> makeTunnel(Session &s, int width, int height)
{
    const Controls &c = s.controls();
    const bool randomValues = s.colours().RandomValues;
    const bool centred = c.checked(QStringLiteral("XCenter"));
    // The field: the picture's size, or with random values its diagonal, so the texture
    // repeats less often round the tunnel.
    int W = width, H = height;
    if (randomValues && !centred) {
        const double diagonal = std::sqrt(double(width) * width + double(height) * height);
        if (width > height) {
            H = height + 32;
            W = int(roundHalfEven(diagonal + 32));
        } else if (height > width) {
            W = width + 32;
            H = int(roundHalfEven(diagonal + 32));
        } else {
            W = H = int(roundHalfEven(width * std::sqrt(2.0))) + 64;
        }
        W = std::max(8, W / 8 * 8);
        H = std::max(8, H / 8 * 8);
    }
    // The field is a texture that repeats round the tunnel and along it: it is filled wrapped
    // both ways, so neither the turn nor the flight shows a seam.
    PlasmaSettings plasma = plasmaSettingsOfPaint(s);
    plasma.wrapH = plasma.wrapV = true;
    TunnelSettings t = tunnelSettingsOf(s, std::min(W, H));
    t.cx = width / 2.0;
    t.cy = height / 2.0;
    if (randomValues && !centred) {
        t.cx = std::clamp(t.cx + roundHalfEven((double(s.Rnd()) - 0.5) * width / 2), 4.0,
                          std::max(4.0, width - 4.0));
        t.cy = std::clamp(t.cy + roundHalfEven((double(s.Rnd()) - 0.5) * height / 2), 4.0,
                          std::max(4.0, height - 4.0));
    }
    const Palette512 palette = plasmaPaletteOfPaint(s, false);
    PlasmaField field = Plasma_Fill(W, H, plasma, s.random());
    return std::make_unique<Tunnel>(std::move(field), palette, width, height, t);
}

} // namespace tf
