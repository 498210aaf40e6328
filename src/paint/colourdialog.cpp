#include "paint/colourdialog.h"

#include "core/blit.h"
#include "paint/duocolortable.h"
#include "paint/palette.h"
#include "paint/session.h"

#include <utility>

namespace tf {

namespace {

void leadGlassTable(Session &s)
{
    if (!s.colours().XDuotones[1])
        return;
    Set_Duo_Colortable(s, 0, true, QStringLiteral("DuoMLeadGlass"), 5, 5);
    s.colours().DuoActive = true;
}

} // namespace

void pickChartColour(Session &s, PaletteChart chart, ColorLong colour, PickButtons buttons,
                     PictureBox *picPal256)
{
    ColourState &c = s.colours();
    if (buttons.right) {
        c.ColorBack = colour;
    } else if (buttons.ctrl) {
        c.ColorBorder = colour;
    } else {
        c.ColorFore = colour;
        if (buttons.shift)
            c.ColorBorder = colour;
    }
    if (chart != PaletteChart::picPal256 && !c.XLockPalette)
        Create2ColorPAL(s, picPal256);
}

void releaseChart(Session &s, PaletteChart chart)
{
    if (!s.colours().XDuotones[1])
        return;
    const QString scheme = chart == PaletteChart::picPal256 ? QStringLiteral("DuoMyPicPalette")
                                                            : QStringLiteral("DuoMLeadGlass");
    Set_Duo_Colortable(s, 0, true, scheme, 5, 5);
    s.colours().DuoActive = true;
}

void takeTextFore(Session &s) { s.colours().TextFore = s.colours().ColorFore; }
void takeTextBack(Session &s) { s.colours().TextBack = s.colours().ColorBack; }

void chooseForeColor(Session &s, ColorLong colour, PictureBox *picPal256)
{
    s.colours().ColorFore = colour;
    Create2ColorPAL(s, picPal256);
    leadGlassTable(s);
}

void chooseBackColor(Session &s, ColorLong colour, PictureBox *picPal256)
{
    s.colours().ColorBack = colour;
    Create2ColorPAL(s, picPal256);
    leadGlassTable(s);
}

void chooseBorderColor(Session &s, ColorLong colour) { s.colours().ColorBorder = colour; }

void switchColours(Session &s)
{
    ColourState &c = s.colours();
    std::swap(c.ColorFore, c.ColorBack);
    leadGlassTable(s);
}

void identColours(Session &s) { s.colours().ColorBack = s.colours().ColorFore; }

void clickDuotones(Session &s, int index, bool on)
{
    ColourState &c = s.colours();
    c.XDuotones[size_t(index & 1)] = on;
    if (c.XDuotones[0] && c.XDuotones[1])
        c.XDuotones[size_t(1 - (index & 1))] = false;
    if (c.RandomColors && (c.XDuotones[0] || c.XDuotones[1]))
        clickRandomColors(s, false);
    c.DuoActive = false;
    const QString scheme = c.XDuotones[0]   ? QStringLiteral("RandomMLeadGlass")
                           : c.XDuotones[1] ? QStringLiteral("DuoMLeadGlass")
                                            : QString();
    if (scheme.isEmpty())
        return;
    // A table longer than the standard 25 keeps its length, as one column.
    const int last = int(c.DuoColors.size()) - 1;
    int16_t cols = 5, rows = 5;
    if (last > 25) {
        cols = 1;
        rows = int16_t(last);
    }
    Set_Duo_Colortable(s, 0, true, scheme, cols, rows);
    c.DuoActive = true;
    c.RandomColors = false;
}

void clickRandomColors(Session &s, bool on)
{
    ColourState &c = s.colours();
    c.RandomColors = on;
    if (on) {
        c.XDuotones = {false, false};
        c.DuoActive = false;
    } else {
        c.DuoActive = c.XDuotones[0] || c.XDuotones[1];
    }
    if (s.paint().GrafKey == QLatin1String("Plasma") && !(c.PalFromFile && c.PalFixed))
        rebuildPlasmaPalette(s);
}

void clickRandomValues(Session &s, bool on) { s.colours().RandomValues = on; }

void clickLockPalette(Session &s, bool on, PictureBox *picPal256)
{
    ColourState &c = s.colours();
    c.XLockPalette = on;
    if (on) {
        c.PalFromFile = true;
        c.PalFixed = true;
        return;
    }
    Create2ColorPAL(s, picPal256);
    Set_Duo_Colortable(s, 0, true, QStringLiteral("DuoMyPicPalette"), 5, 5);
}

void backgroundUnderSelection(Session &s)
{
    Workspace &ws = s.workspace();
    if (!ws.PicSelect.Visible())
        return;
    PictureBox &temp = ws.PicTemp;
    temp.resize(ws.PicSelect.Width(), ws.PicSelect.Height());
    temp.setPicture(QImage());
    temp.setBackColor(s.colours().ColorBack);
    BitBlt(ws.Bild.hDC(), int(ws.PicSelect.Left()), int(ws.PicSelect.Top()), temp.Width(),
           temp.Height(), temp.hDC(), 0, 0, SRCCOPY);
    ws.Bild.setPicture(ws.Bild.Image());
    ws.Bild.markChanged();
}

} // namespace tf
