#pragma once
// The list of last-used files shown in the File menu.
//
// Entries are numbered from 1, newest first, as the menu shows them ("&1 " is the newest).
// Every index outside 1..FileCount() gives an empty name, false and an empty caption. The list
// is kept in the settings store under "Common": "RecMaxCount", "RecCount" and "RecFile1" ...

#include <QString>
#include <QStringList>

namespace tf {

class SettingsStore;

class cMRUFileList {
public:
    // A caption's path part is shortened beyond this many characters (the file name is kept
    // whole even when it alone is longer).
    static constexpr int CaptionMaxPath = 40;

    // Default maximum 4: what the main window shows.
    cMRUFileList() = default;

    int MaxFileCount() const { return m_max; }
    // At least 1; a smaller maximum drops the oldest entries.
    void setMaxFileCount(int count);
    int FileCount() const { return int(m_files.size()); }

    // The full name of entry iIndex (1-based).
    QString file(int iIndex) const;
    // True when entry iIndex names an existing file.
    bool FileExists(int iIndex) const;
    // "&" iIndex " " and the entry's name, its folders shortened with "..." beyond
    // CaptionMaxPath characters; a "&" of the name is doubled so the menu shows it.
    QString MenuCaption(int iIndex) const;

    // Puts sfileName (cleaned, e.g. "a//b" as "a/b") at the top; a name already listed moves
    // up, and the oldest entry falls off past MaxFileCount. An empty name is ignored.
    void AddFile(const QString &sfileName);

    // Writes the list (and removes stored entries beyond it); does not sync the store.
    void Save(SettingsStore &store) const;
    // Replaces the list with the stored one, keeping this list's MaxFileCount; empty and
    // repeated stored names are skipped.
    void Load(const SettingsStore &store);

private:
    QStringList m_files;
    int m_max = 4;
};

// `path` shortened to at most `maxLength` characters by putting "..." for folders in its
// middle: the first folder stays, then as many of the last folders as fit, and the file name
// always stays whole (".../name" when nothing else fits).
QString shortenPath(const QString &path, int maxLength);

} // namespace tf
