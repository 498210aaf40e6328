#pragma once
// The one table of the filters: every filter number 1 to 54 and the dialog-level numbers
// 1000 to 1010, one row each. The menus, the filter dialog, the command line and the tests
// all read it.
//
// A row holds the filter's names, its pixel routine and what it reads, its menu entries (a
// number may have several, each with its own way to run and fixed argument), and the set-up
// of the filter dialog: sliders, colour fields, the channel mixer, whether it opens as
// previewed, whether it offers the pictures before and after, and a position prompt.
//
// A row without a routine has its menu entries shown disabled, and the command line refuses
// it.

#include "core/colour.h"
#include "core/language.h"

#include <QString>
#include <array>
#include <span>

namespace tf {

class FilterRun;
using FilterKernel = void (*)(FilterRun &);

// How a menu entry runs its filter.
enum class RunMode {
    Direct,        // at once with a fixed argument, undo taken first
    TargetRoutine, // at once, inside the transparency bracket of the filter target
    Dialog,        // through the filter dialog frmGamma
    Internal,      // no menu entry: other routines call it
};

// Which array a routine reads: D as it is being written, the unchanged copy S, or (a
// composite filter) S as a copy of its own that each step refreshes from D.
enum class Reads { Dst, Src, Steps };

// Where the argument of a menu entry comes from.
enum class ArgumentRule {
    Fixed,           // the entry's own number
    ReliefColour,    // random colour mode: a random colour; else the current colour
    ThresholdColour, // random colour mode: a random grey of 54..254; else the current colour
    CurrentColour,   // the current colour
};

// Whether the dialog opens with the picture counting as previewed.
enum class StartsPreviewed { No, Yes, Position };

// The menus the entries go into: the "Filter" menu itself and its sub-menus, in menu order.
enum class FilterMenu { Main, Edges, Brightness, Contrast, Colours, Channels, Reduce, Distortion };

struct FilterMenuTitle {
    FilterMenu menu;
    const char *german;
    const char *english;
};
// The "Filter" menu and its sub-menus with their titles, in the order they are shown.
std::span<const FilterMenuTitle> filterMenus();

struct FilterMenuEntry {
    const char *control; // the entry's control name
    int index;           // its index in a control array, -1 for none
    const char *german;
    const char *english;
    RunMode run;
    int32_t argument;
    ArgumentRule rule;
    FilterMenu menu;
    int order;            // place in its menu
    bool separatorBefore; // a line above the entry
};

struct FilterSlider {
    const char *german;
    const char *english;
    int min, max, def, change;
    bool asGamma = false; // shown as value/100 with two decimals ("0.00")

    QString label(Language lang) const;
    QString label() const { return label(currentLanguage()); }
    // The value as the dialog shows it.
    QString display(int value) const;
};

struct FilterRow {
    int number;
    const char *name; // the command line's name
    const char *german;
    const char *english;
    FilterKernel kernel; // null: not built in yet
    Reads reads;
    std::span<const FilterMenuEntry> entries;
    // The dialog.
    std::span<const FilterSlider> sliders;
    int colourFields = 0;
    std::array<ColorLong, 2> colourDefaults{0x000000, 0xFFFFFF};
    bool mixer = false;
    StartsPreviewed previewed = StartsPreviewed::No;
    bool beforeAfter = true; // the pictures before and after are offered
    const char *promptGerman = nullptr;
    const char *promptEnglish = nullptr;
    bool resizeOptions = false; // "Größe anpassen" and "Hintergrund löschen"

    bool available() const { return kernel != nullptr; }
    bool isDistortion() const { return (number >= 46 && number <= 53) || number >= 1000; }
    // The filter number that runs for this row: 46 for the shapes 1000 to 1010.
    int runsAs() const { return number >= 1000 ? 46 : number; }
    QString caption(Language lang) const;
    QString caption() const { return caption(currentLanguage()); }
    // The dialog's title: the name without its accelerator and dots, with the distortions'
    // prefix.
    QString dialogTitle(Language lang) const;
    QString dialogTitle() const { return dialogTitle(currentLanguage()); }
    QString prompt(Language lang) const;
};

// Every row, in the order of the numbers.
std::span<const FilterRow> filterTable();
// The row of a number; null for a number that is not in the table.
const FilterRow *findFilter(int number);
// The row of a number ("31") or a name ("gamma", case-insensitive); null when none.
const FilterRow *findFilter(const QString &numberOrName);

// A menu text without its accelerator ampersands (a doubled one stays as one).
QString withoutAccelerator(const QString &text);
QString entryCaption(const FilterMenuEntry &e, Language lang);
inline QString entryCaption(const FilterMenuEntry &e) { return entryCaption(e, currentLanguage()); }

} // namespace tf
