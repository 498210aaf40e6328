#pragma once
// The program's settings as typed values, with their defaults, read from and written to a
// SettingsStore, and the checks that a restored window and picture format need.
//
// Where each value lives (sub-key "Common", "Settings" or "Grafic") is fixed here; names are
// the stored names. load() gives the default of every value that is missing or unreadable, so
// an empty or broken store gives exactly the defaults below.

#include "core/language.h"

#include <QRect>
#include <QSize>
#include <QString>
#include <array>
#include <optional>

namespace tf {

class SettingsStore;

struct AppSettings {
    // Groups of the paint dialog, numbered 1..10 as the stored names are.
    static constexpr int GroupCount = 10;
    // Fixings are numbered with two digits.
    static constexpr int FixNumbMax = 99;

    // ---- Common ---------------------------------------------------------------------------
    // Stored as 1 German, 2 English; the system's language when nothing is stored.
    Language language = Language::German;
    QString PDirRead, PDirWrite, PDirImport, PDirPalet; // last folders of open, save, import, palettes
    QString PDirLPath, PDirLName;                       // folder and name of the last-used file
    QString PDirTVP;                                    // last folder of presentation files
    int SaveJPQ = 100;                                  // JPEG quality of the viewers, 1..100

    // ---- Settings -------------------------------------------------------------------------
    QString PDirTemp;     // the work folder of temp files; empty: the per-user data folder
    int MainWState = 0;   // 0 normal, 2 maximized (a stored minimized state reads as 0)
    // The window's rectangle in the normal state.
    int MainLeft = 40, MainTop = 40, MainWidth = 1024, MainHeight = 768;
    int FixNumb = 10;     // fixings kept, 0..FixNumbMax; below 2 a single file
    int FixDelete = 0;    // non-zero: fixings are deleted at the end
    int ClipDelete = 1;   // non-zero: the clipboard is emptied at the end
    bool DoSinglePic = true;
    bool DoSubDirs = true;
    int Openpreview = 1;
    // The picture format of the last session: index of the "Neu" menu, width and height.
    int initFormat = 4, initFormatW = 712, initFormatH = 712;
    // The free size of "Neu": the proportion chosen in the size dialog (0 free) and the size.
    int imgFormat = 0, imgFormatW = 712, imgFormatH = 712;

    // ---- Grafic ---------------------------------------------------------------------------
    // "GrafMenu" n "bk": per group the state of its option panel (the panel's page); index 0
    // is unused.
    std::array<int, GroupCount + 1> GrafMenu{};

    QRect mainRect() const { return QRect(MainLeft, MainTop, MainWidth, MainHeight); }
    void setMainRect(const QRect &r);

    bool operator==(const AppSettings &) const = default;

    // Reads every value; missing or unreadable ones take the defaults above.
    void load(const SettingsStore &store);
    // Writes every value (Booleans as -1 / 0). Does not sync the store.
    void save(SettingsStore &store) const;
};

// `window` moved and shrunk so that it lies inside `screen`: its size at most the screen's
// (at least 1 x 1), its left and top at least the screen's and its right and bottom edges at
// most the screen's.
QRect keepOnScreen(const QRect &window, const QRect &screen);
// The same for a screen of `screen` size at (0,0).
QRect keepOnScreen(const QRect &window, const QSize &screen);

// A picture format as the "Neu" menu sets it.
struct PicFormat {
    int index = 0;   // entry of the menu, 0..12
    int width = 0;
    int height = 0;
    int max() const { return width > height ? width : height; }
};

// The number of entries of the "Neu" menu; a stored index at or above it is ignored.
inline constexpr int PicFormatEntries = 13;
// The largest side a restored format may have: the largest surface the program makes.
inline constexpr int PicFormatMaxSide = 14000;
// The format of the last session when it can be restored: an index 0..12 and a width and
// height of 1..PicFormatMaxSide; nothing otherwise.
std::optional<PicFormat> restoredPicFormat(int initFormat, int initFormatW, int initFormatH);

} // namespace tf
