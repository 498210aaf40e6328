#pragma once
// What the passepartout generator (`frmPassepGen`) does to the sets, without widgets.
//
// The list `cmbSelection` shows row 0 "<-- Neuer Eintrag -->", row 1 "+ Standard" (the
// built-in set, a template: applying on it stores a new set like the new-entry row), then the
// names of the valid records in the table's order. Deleting only clears a record's valid flag;
// the record drops out of the list at once and out of the file at the next save. Changes reach
// the file only through save(), which the generator calls when it closes with OK.
//
// A data file that was refused at load (foreign or damaged) is never overwritten silently:
// save() answers NeedsConsent until the caller confirms with `overwriteRefused`.

#include "files/passepartoutfile.h"

#include <QString>
#include <QStringList>

namespace tf {

class PassepartoutSets {
public:
    static constexpr int NewEntryRow = 0;
    static constexpr int StandardRow = 1;

    explicit PassepartoutSets(QString path) : m_path(std::move(path)) {}

    QString path() const { return m_path; }
    // Read_PPData; a refused file leaves the table empty and is remembered.
    PPReadResult load();
    bool fileRefused() const { return m_refused; }

    const PPTable &table() const { return m_table; }
    QStringList rows() const;
    // The set a row shows: a fresh set for the new-entry row, the standard set, a record.
    PPRecord recordOfRow(int row) const;
    // The row of the valid set called `name`, or -1.
    int rowOfName(const QString &name) const;

    struct Applied {
        QString error; // the message for the user; empty when stored
        int row = -1;  // the row of the stored set in the refilled list
        bool ok() const { return error.isEmpty(); }
    };
    // "Übernehmen": stores `fields` (name, widths, colours, gradient) as a new set (rows 0 and
    // 1) or into the set of `row`, then sorts. The name is trimmed; the extras of an existing
    // set are kept.
    Applied apply(int row, const PPRecord &fields);
    // "Löschen": the set of `row` is flagged deleted. False for rows 0 and 1.
    bool remove(int row);

    enum class SaveStatus { Saved, NeedsConsent, Failed };
    struct Saved {
        SaveStatus status = SaveStatus::Saved;
        QString message; // the question (NeedsConsent) or the reason (Failed)
    };
    Saved save(bool overwriteRefused = false);

private:
    int recordIndexOfRow(int row) const;

    QString m_path;
    PPTable m_table;
    bool m_refused = false;
};

} // namespace tf
