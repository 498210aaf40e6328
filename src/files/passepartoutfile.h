#pragma once
// The passepartout sets and their data file tvlpassp.dat.
//
// A set (`PPRecord`) is a named mat of up to seven nested frames: frame 1 lies next to the
// picture, frame 7 (the closing colour, "Abschlußfarbe") outermost; a width below 1 leaves a
// frame out. `PPTable` is the table `PPData`, in memory in the order of the file.
//
// The file, little-endian, field after field without padding:
//   2 bytes   length of the magic, 12
//   12 bytes  "PPData-Tvl25"
//   4 bytes   number of records N
//   N records, each: 2 bytes name length L (> 0), L bytes name (one byte a character,
//             Latin-1), 2 bytes use gradient (-1 on, 0 off), 2 bytes extra 1, 2 bytes extra 2,
//             4 bytes extra 3, 4 bytes extra 4, then seven pairs of 2 bytes width and 4 bytes
//             colour long (0x00BBGGRR), pair 1 first.
// The sort name, index and valid are not stored. A record that is no longer valid or has an
// empty name is left out of the next file, and N counts only what is written.
//
// The file lies in the per-user data folder (the work folder of temp files). Reading refuses a
// foreign file (another magic) and a damaged one (cut short, impossible counts) with a message
// and leaves it untouched; writing goes through writeFileSafely, so a failed write keeps the
// old file.

#include "core/colour.h"
#include "files/safefile.h"

#include <QByteArray>
#include <QString>
#include <array>
#include <cstdint>
#include <vector>

namespace tf {

constexpr int PPFrames = 7;
inline constexpr char PPMagic[] = "PPData-Tvl25";

struct PPRecord {
    QString name;
    QString sortName;        // a copy of name, kept for the sort
    int32_t index = 0;       // the record's number at read time (1 ...), 0 for a new set
    bool valid = true;       // false: deleted, left out of the next file
    int16_t useGradient = 0; // XUseGradient: -1 on, 0 off
    int16_t extra1 = 0, extra2 = 0;
    int32_t extra3 = 0, extra4 = 0;
    std::array<int16_t, PPFrames> width{};    // frame widths in pixels, frame 1 first
    std::array<ColorLong, PPFrames> colour{}; // frame colours; colour[6] closes the mat

    bool gradient() const { return useGradient != 0; }
    // The sum of the widths of the frames that are drawn: the mat's width on each side.
    int border() const;
    bool operator==(const PPRecord &) const = default;
};

using PPTable = std::vector<PPRecord>;

// The set behind "+ Standard": a thin dark line at the picture, a wide light mat and a dark
// closing edge.
PPRecord standardPassepartout();

enum class PPReadStatus { Read, Missing, WrongFormat, Damaged, Unreadable };

struct PPReadResult {
    PPReadStatus status = PPReadStatus::Missing;
    PPTable table;   // the records when Read, else empty
    QString message; // in the user's language, for WrongFormat, Damaged and Unreadable
    bool read() const { return status == PPReadStatus::Read; }
    // A file is there that must not be overwritten without asking.
    bool refused() const { return status != PPReadStatus::Read && status != PPReadStatus::Missing; }
};

// The bytes of a data file: the records, or why they cannot be taken.
PPReadResult parsePPData(const QByteArray &bytes);
// The bytes of the file for `table`: only valid records with a name.
QByteArray serializePPData(const PPTable &table);

// tvlpassp.dat in `folder`.
QString ppDataPath(const QString &folder);
// tvlpassp.dat in the per-user data folder.
QString defaultPPDataPath();

// Reads the file at `path`; a file that is not there answers Missing with an empty table.
PPReadResult Read_PPData(const QString &path);
// Writes `table` to `path` (making its folder when needed), whole or not at all.
WriteResult Write_PPData(const QString &path, const PPTable &table);
// Sorts the records by name, without regard to case first, then with it (tag "Sort PPData").
void Sort_PPData(PPTable &table);

// The index of the valid set called `name` (compared without regard to case), or -1.
int findPassepartout(const PPTable &table, const QString &name);

// True when every character of `name` can be stored (one byte each, Latin-1).
bool storableName(const QString &name);

} // namespace tf
