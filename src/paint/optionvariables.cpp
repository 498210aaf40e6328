#include "paint/optionvariables.h"

#include "paint/controls.h"

#include <algorithm>

namespace tf {

OptionVariables readOptionVariables(const Controls &c, int w, int h)
{
    OptionVariables o;
    const auto key = [](const char *name) { return ControlKey{QString::fromLatin1(name)}; };
    o.NumberValue = CLng(c.number(key("cmbNumbArr")));
    o.PenWidth = std::max<int16_t>(1, CInt(c.number(key("cmbPen"))));
    o.StepValue = CInt(c.value(key("Scrollstep")));
    const int tiles = std::clamp(c.value(key("cmbKachelSize")), 1, 128);
    o.TileSize = tiles > 1 ? CLng(double(w) / tiles) : CLng(w / 2.0);
    o.UseBorders = c.checked(key("XBorders"));
    o.UseCenter = c.checked(key("XCenter"));
    o.UseFill = c.checked(key("XFill"));
    o.UseFillWhite = c.checked(key("XFill_White"));
    // Whether the figures take the colour table depends on the colour state, which the
    // dispatcher sets after reading the controls.
    o.UseDuoTable = false;
    o.UseAntiAlias = c.checked(key("XAAlias"));
    o.TranspPercent = CInt(std::clamp(c.value(key("ScrollTransparence")), 0, 100));
    o.TranspLevel = o.TranspPercent / 100.0;
    o.W = w;
    o.H = h;
    return o;
}

} // namespace tf
