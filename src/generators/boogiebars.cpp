#include "generators/boogiebars.h"

#include "core/blit.h"
#include "generators/framecanvas.h"
#include "generators/plasma.h"
#include "paint/plasmapalette.h"
#include "paint/session.h"

#include <algorithm>

namespace tf {

ColorLong liftToFull(ColorLong c)
{
    int ch[3] = {RedOf(c), GreenOf(c), BlueOf(c)};
    const int top = std::max({ch[0], ch[1], ch[2]});
    if (top == 0)
        return c;
    for (int &v : ch)
        if (v == top)
            v = 255;
    return RGB(ch[0], ch[1], ch[2]);
}

BoogieBars::BoogieBars(Session &s, int type, int unit, int squares, ColorLong first,
                       ColorLong second)
    : m_s(s), m_type(type), m_unit(std::max(1, unit))
{
    m_len = std::max(1, squares) * m_unit;
    m_thick = m_unit + 8;
    if (type == 4)
        m_thick *= 2;
    PlasmaSettings settings;
    settings.grain = CLng(double(s.Rnd()) * 128);
    settings.step = CLng(double(s.Rnd()) * 123) + 4;
    const ColorLong white = RGB(255, 255, 255);
    for (int set = 0; set < 2; ++set) {
        const ColorLong a = set == 0 ? first : second;
        const ColorLong b = type == 5 ? white : (set == 0 ? second : first);
        const Palette512 palette = Plasma_Palette(a, b, set == 0 ? 1 : 2);
        for (int dir = 0; dir < 2; ++dir) {
            const int w = dir == 0 ? m_len : m_thick, h = dir == 0 ? m_thick : m_len;
            cDIBSection &bar = m_bars[size_t(set)][size_t(dir)];
            if (!bar.Create(w, h))
                return;
            const std::vector<uint32_t> table = Plasma_Table(w, h, settings, palette, s.random());
            DeviceContext &dc = bar.dib_hdc();
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    dc.setPixel(x, y, plasmaToColorLong(table[size_t(y) * size_t(w) + size_t(x)]));
        }
    }
    m_ready = true;
}

void BoogieBars::Draw_BoogieStrip(FrameCanvas &canvas, int x, int y, const QString &code,
                                  int count)
{
    if (!m_ready)
        return;
    const bool vertical = code == QLatin1String("3");
    const int set = CLng(double(m_s.Rnd()));
    const int along = CLng(Int(double(m_s.Rnd()) * std::max(0, count - 1))) * m_unit;
    int across = (m_thick - m_unit) / 2;
    if (m_type == 4)
        across = CLng(Int(double(m_s.Rnd()) * (m_thick / m_unit))) * m_unit;
    across = std::clamp(across, 0, std::max(0, m_thick - m_unit));
    const cDIBSection &bar = m_bars[size_t(std::clamp(set, 0, 1))][vertical ? 1 : 0];
    const int sx = vertical ? across : std::min(along, m_len - m_unit);
    const int sy = vertical ? std::min(along, m_len - m_unit) : across;
    BitBlt(canvas.dc(), x, y, m_unit, m_unit, bar.dib_hdc(), sx, sy, SRCCOPY);
}

} // namespace tf
