#include "paint/paletteload.h"

#include "core/fault.h"
#include "core/picturebox.h"
#include "paint/duocolortable.h"
#include "paint/jascpalette.h"
#include "paint/palette.h"
#include "paint/session.h"
#include "paint/systempalettes.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

namespace tf {

namespace {

// Both palettes dimensioned anew, black, as every load begins.
void dimensionPal512(ColourState &c) { c.Pal512.assign(512, 0); }
void dimensionPal256(ColourState &c) { c.Pal256.assign(256, 0); }

// What a palette that came in does to the dialog: the strip shows it, random colours give way
// to a table from the palette, and the palette is locked.
void takePalette(Session &s, PictureBox *picPal256)
{
    ColourState &c = s.colours();
    if (picPal256)
        drawPal256(*picPal256, c.Pal256, picPal256->Width() + 1);
    c.RandomColors = false;
    c.XDuotones[0] = false;
    c.XDuotones[1] = true;
    Set_Duo_Colortable(s, 0, true, QStringLiteral("DuoMyPicPalette"), 5, 5);
    c.DuoActive = true;
    c.XLockPalette = true;
    c.PalFromFile = true;
    c.PalFixed = true;
}

void showPaletteError(Session &s)
{
    s.ask(QCoreApplication::translate("Palette", "Palette file error or not there"), Buttons::Ok,
          Icon::Exclamation);
}

} // namespace

void smoothPal512(std::vector<ColorLong> &pal)
{
    pal.resize(512, 0);
    for (int i = 255; i >= 1; --i)
        pal[size_t(2 * i - 1)] = pal[size_t(i)];
    pal[510] = pal[509];
    pal[511] = pal[510];
    for (size_t i = 2; i <= 510; i += 2) {
        const ColorLong a = pal[i - 1], b = pal[i + 1];
        ColorLong mean = 0;
        for (int shift = 0; shift <= 16; shift += 8)
            mean |= ColorLong((((uint32_t(a) >> shift) & 255) + ((uint32_t(b) >> shift) & 255)) / 2)
                    << shift;
        pal[i] = mean;
    }
    pal[511] = pal[510];
}

PaletteLoadOutcome Read_PAL(Session &s, const QString &path, PictureBox *picPal256)
{
    ColourState &c = s.colours();
    const JascPalette file = readJascPaletteFile(path);
    if (file.outcome == JascPalette::Outcome::NotJasc)
        return PaletteLoadOutcome::NotJasc;
    for (size_t i = 0; i < file.entries.size(); ++i) {
        const ColorLong e = file.entries[i];
        if (i < c.Pal256.size())
            c.Pal256[i] = e;
        if (i < c.Pal512.size())
            c.Pal512[i] = RGB(BlueOf(e), GreenOf(e), RedOf(e));
    }
    if (file.outcome == JascPalette::Outcome::Failed) {
        showPaletteError(s);
        return PaletteLoadOutcome::Failed;
    }
    smoothPal512(c.Pal512);
    if (picPal256) {
        drawPal512(*picPal256, c.Pal512);
        picPal256->Refresh();
    }
    c.PalFromFile = true;
    c.PalFixed = true;
    const ControlKey loadedPalette{QStringLiteral("XPlasmas"), 2};
    if (s.controls().has(loadedPalette))
        s.controls().set(loadedPalette, QStringLiteral("1"));
    return PaletteLoadOutcome::Loaded;
}

PaletteLoadResult Menu_LoadPalette(Session &s, const QString &path, PictureBox *picPal256)
{
    PaletteLoadResult result;
    const bool ran = guarded(QStringLiteral("Menu_LoadPalette"), [&] {
        dimensionPal512(s.colours());
        if (path.isEmpty())
            return;
        result.folder = QDir::cleanPath(QFileInfo(path).absolutePath());
        dimensionPal256(s.colours());
        result.outcome = Read_PAL(s, path, picPal256);
        if (result.outcome == PaletteLoadOutcome::Loaded) {
            takePalette(s, picPal256);
            s.colours().paletteFile = QFileInfo(path).absoluteFilePath();
            s.colours().systemPalette = 0;
        }
    });
    if (!ran)
        result.outcome = PaletteLoadOutcome::Failed;
    return result;
}

bool Lade_RESPalette(Session &s, int index, PictureBox *picPal256)
{
    bool loaded = false;
    guarded(QStringLiteral("Lade_RESPalette"), [&] {
        dimensionPal512(s.colours());
        dimensionPal256(s.colours());
        const QByteArray bytes = LoadPalette(index);
        QTemporaryFile file(QDir::tempPath() + QStringLiteral("/~RESXXXXXX.tmp"));
        if (!file.open() || file.write(bytes) != bytes.size() || !file.flush())
            throw Fault(Fault::PathFileAccessError);
        file.close();
        loaded = Read_PAL(s, file.fileName(), picPal256) == PaletteLoadOutcome::Loaded;
        if (loaded) {
            takePalette(s, picPal256);
            s.colours().paletteFile.clear();
            s.colours().systemPalette = index;
        }
    });
    return loaded;
}

bool mn_SystemPalette(Session &s, int chosen, PictureBox *picPal256)
{
    return chosen > 0 && Lade_RESPalette(s, chosen, picPal256);
}

} // namespace tf
