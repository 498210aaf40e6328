#pragma once
// The catalogue of graphics types: ten groups, each a list of types in the order the paint
// dialog's type list shows them.
//
// Every row ties three things together: the key the dispatcher tests (spelled exactly,
// blanks included: "Neon vertical"), the English caption and the German caption. The
// catalogue keeps both captions as data, since it is the program's own table of types; only
// the group titles also go through the translation catalogues, for the menu of the groups.
// A row with "-" in all three columns is a separator: it shows as a line and cannot be painted.
//
// Group 2 exists in two dimensionings: the larger one adds a separator and "Interne Kacheln"
// at its end and is used while the program's internal tile set is available (see
// internalTilesAvailable).

#include "core/language.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <span>

namespace tf {

constexpr int GroupCount = 10;
constexpr const char *SeparatorKey = "-";

struct CatalogueRow {
    const char *key;
    const char *english;
    const char *german;

    bool isSeparator() const;
    QString caption(Language lang) const;
    // The caption in the current language.
    QString caption() const { return caption(currentLanguage()); }
};

struct CatalogueGroup {
    const char *english; // title; a doubled "&&" shows as one "&" on a widget
    const char *german;  // title; also the source text of the "Groups" translation context
    // Every row of the larger dimensioning, in list order (row 1 of the dialog is rows[0]).
    std::span<const CatalogueRow> allRows;
    // How many of them the smaller dimensioning shows (allRows.size() for all groups but 2).
    size_t smallRowCount;
};

// Group 1..10; null outside.
const CatalogueGroup *catalogueGroup(int group);
// The rows the dialog lists for a group now (group 2 by the dimensioning in force); empty
// outside 1..10.
std::span<const CatalogueRow> groupRows(int group);
// The row of list index `listIndex` (0-based) of a group; null outside the list.
const CatalogueRow *groupRow(int group, int listIndex);
// The captions of a group's list in the current language (separators as "-").
QStringList typeCaptions(int group);

// The group's title as a German source text of the "Groups" context ("&&" shows as one "&");
// "" outside 1..10. The menu of the groups translates it.
const char *groupTitle(int group);
// The group's title in a language, "&&" kept.
QString groupCaption(int group, Language lang);
// The group's title in the current language as a label or tool tip shows it ("&&" as "&").
QString groupLabel(int group);

// Where a key stands: group 1..10 and 0-based list index in the dimensioning in force.
struct TypeLocation {
    int group = 0;
    int listIndex = -1;
};
// The first place of a type key; nullopt for an unknown key and for the separator "-".
std::optional<TypeLocation> findType(const QString &key);

// Whether group 2 takes its larger dimensioning: true when the program's resources hold the
// internal tile set (":/tiles"), unless a test or the command line decided otherwise.
bool internalTilesAvailable();
// Overrides the decision; nullopt returns to the resources' answer.
void setInternalTilesAvailable(std::optional<bool> available);

} // namespace tf
