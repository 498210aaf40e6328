#include "paint/transparency.h"

#include "core/blit.h"
#include "core/numeric.h"
#include "core/picturebox.h"
#include "paint/session.h"

#include <algorithm>
#include <array>
#include <memory>

namespace tf {

void TransparencyState::setPercent(int percent)
{
    TranspPercent = std::clamp(percent, 0, 100);
    TranspFactor = TranspPercent / 100.0;
}

int blendChannel(int newValue, int oldValue, double factor)
{
    return int(roundHalfEven(newValue - factor * (newValue - oldValue)));
}

namespace {

// The blend of every pair of channel values, index (new << 8) | old: one table per call
// instead of a multiplication and a rounding per channel of every pixel.
using BlendTable = std::array<uint8_t, 256 * 256>;

void fillTable(BlendTable &table, double factor)
{
    for (int n = 0; n < 256; ++n)
        for (int o = 0; o < 256; ++o)
            table[size_t(n << 8 | o)] = uint8_t(std::clamp(blendChannel(n, o, factor), 0, 255));
}

} // namespace

void blendOver(QImage &old, const QImage &paint, double factor)
{
    auto table = std::make_unique<BlendTable>();
    fillTable(*table, factor);
    const int w = std::min(old.width(), paint.width());
    const int h = std::min(old.height(), paint.height());
    for (int y = 0; y < h; ++y) {
        uchar *o = old.scanLine(y);
        const uchar *n = paint.constScanLine(y);
        for (int x = 0; x < w * 4; x += 4) {
            for (int c = 0; c < 3; ++c)
                o[x + c] = (*table)[size_t(n[x + c] << 8 | o[x + c])];
            o[x + 3] = 0xFF;
        }
    }
}

void blendColourOver(QImage &picture, ColorLong colour, double factor)
{
    // Bytes of a pixel are blue, green, red.
    const std::array<int, 3> channel = {BlueOf(colour), GreenOf(colour), RedOf(colour)};
    std::array<std::array<uint8_t, 256>, 3> table{};
    for (size_t c = 0; c < 3; ++c)
        for (int o = 0; o < 256; ++o)
            table[c][size_t(o)] = uint8_t(std::clamp(blendChannel(channel[c], o, factor), 0, 255));
    for (int y = 0; y < picture.height(); ++y) {
        uchar *p = picture.scanLine(y);
        for (int x = 0; x < picture.width() * 4; x += 4) {
            for (size_t c = 0; c < 3; ++c)
                p[size_t(x) + c] = table[c][p[size_t(x) + c]];
            p[x + 3] = 0xFF;
        }
    }
}

void Set_BILD(Session &s)
{
    Workspace &ws = s.workspace();
    TransparencyState &t = s.transparency();
    if (ws.PicSelect.Visible() || ws.picSelectC.Visible()) {
        t.XBild = ws.PicSelect.Visible() ? &ws.PicSelect : &ws.picSelectC;
        t.XUndo = &ws.PicUndo;
        t.XWork = &ws.PicWork;
    } else {
        t.XBild = &ws.Bild;
        t.XUndo = &ws.BildUndo;
        t.XWork = &ws.BildWork;
    }
}

bool targetIsSelection(const Session &s)
{
    return s.transparency().XBild != &s.workspace().Bild;
}

void Start_Transparent(Session &s)
{
    TransparencyState &t = s.transparency();
    if (!t.active()) return;
    Workspace &ws = s.workspace();
    ws.UndoBlt_auf_Bild(*t.XWork, 0, 0, 0, 0, 0, 0, targetIsSelection(s), false);
    ws.BildChanged = true;
}

void Ende_Transparent(Session &s)
{
    TransparencyState &t = s.transparency();
    if (!t.active()) return;
    PictureBox &target = *t.XBild;
    PictureBox &work = *t.XWork;
    blendOver(work.mutableImage(), target.Image(), t.TranspFactor);
    work.markChanged();
    BitBlt(target.hDC(), 0, 0, target.Width(), target.Height(), &work.hDC(), 0, 0, SRCCOPY);
    target.markChanged();
    target.Refresh();
}

} // namespace tf
