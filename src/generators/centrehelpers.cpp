#include "generators/centrehelpers.h"

#include "core/picturebox.h"
#include "tools/aaline.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace tf {

void putRow(PictureBox &pic, int y, const uint32_t *row, int n)
{
    DeviceContext &dc = pic.hDC();
    if (y < 0 || y >= dc.height()) return;
    n = std::min(n, dc.width());
    if (n > 0) std::memcpy(dc.scanLine(y), row, size_t(n) * 4);
}

double lumaOf(ColorLong c)
{
    return 0.299 * RedOf(c) + 0.587 * GreenOf(c) + 0.114 * BlueOf(c);
}

ColorLong apartFrom(ColorLong a, ColorLong b, double gap)
{
    const int apart = std::max({std::abs(RedOf(a) - RedOf(b)), std::abs(GreenOf(a) - GreenOf(b)),
                                std::abs(BlueOf(a) - BlueOf(b))});
    if (apart >= gap && std::abs(lumaOf(a) - lumaOf(b)) >= gap / 2) return b;
    const ColorLong towards = lumaOf(a) >= 128 ? 0x000000 : 0xFFFFFF;
    return Mix_Colors(towards, b, 0.5);
}

} // namespace tf
