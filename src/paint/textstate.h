#pragma once
// The text dialog `frmTextDialog` without its widgets, and what the text types keep between
// two paints.
//
// The dialog's fields are option controls of the panel "frmTextDialog" (the text
// `txtOrthoIn`, the font `cmbFontName`, `txtFontSize`, `txtFontWidth` with `XFontWidthActiv`,
// the shadow `cmbShadeThickness`, the shadow colour `icb1Color3D`, `XFntAntiAlias`, `imgBold`,
// `XText_Mixfonts`), so the command line sets them with --set and a paint's record repeats
// them. Its two colour fields show the colour state's `TextFore` and `TextBack`. The panel's
// table lives with the text painters (generators/textpanels.cpp); its name is here, where the
// window and the paint record read it.
//
// `TextState` is owned by the session: the record of "TEXT-Dialog" between paints, the font
// list of the system, `UseMixFonts` and the placing mode of the picture's next click.

#include "core/colour.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <cstdint>

namespace tf {

class Session;

constexpr const char *TextDialogPanelName = "frmTextDialog";

// The record of "TEXT-Dialog" between two paints.
struct TextPaintRecord {
    int32_t paint_count = 0;       // 0 after a reset; counts the calls
    ColorLong text_color = 0;      // the last random text colour
    ColorLong shadow_color = 0;    // and shadow colour
    ColorLong duo_fore = 0;        // the colour pair chosen for a table
    ColorLong duo_back = 0;
    int32_t keep_b = 0;            // the picture size remembered by the first call
    int32_t keep_h = 0;
};

// Where the next click on the picture puts the text of "TEXT-Dialog".
enum class TextPlacing {
    Off,
    Corner, // BtnSet_TextDialogPosition: the click is the top left corner of the text
    Centre, // BtnSet_TextPosC: the click is the middle of the text
};

struct TextState {
    TextPaintRecord record;
    // The system's font names, 1..FontCount in the classic numbering (index 0 here holds the
    // first); filled by Load_SystemFonts.
    QStringList FontList;
    int FontCount() const { return int(FontList.size()); }
    // The paint in progress draws a font from FontList for each line, copy or letter.
    bool UseMixFonts = false;
    TextPlacing placing = TextPlacing::Off;
};

// Fills FontList with the families of the system's fonts that write Latin text, sorted,
// without the private families of the platform.
void Load_SystemFonts(TextState &text);

// Arms the placing mode of the next click (Off disarms it). The status bar says what to do.
void armTextPlacing(Session &s, TextPlacing how);
// The window's picture click, before any mouse tool: with the placing mode armed and
// "TEXT-Dialog" the chosen type, the click's position goes into txtDialogXYPos(0), (1) (and
// do_textcenter follows the mode), the mode ends, and the answer is true: the caller then
// paints, as the Paint button does. Otherwise nothing happens and the answer is false.
bool placeTextAt(Session &s, int x, int y);

// The text of a .txt file in any common encoding: a byte-order mark (UTF-8, UTF-16) decides
// first, then bytes that are valid UTF-8 are read as UTF-8, anything else as the usual 8-bit
// Western encoding (Windows-1252, whose 0x80..0x9F hold the typographic signs).
QString decodeTextFile(const QByteArray &bytes);

// The text dialog's text on the command line: a line break is written as the two characters
// "\n", a tab as "\t", a backslash as "\\"; and back.
QString escapeTextArgument(const QString &text);
QString unescapeTextArgument(const QString &argument);

} // namespace tf
