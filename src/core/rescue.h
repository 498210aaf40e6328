#pragma once
// Rescue of undo images that a crash left behind.
//
// A regular end deletes the undo files, so finding one at start means the program ended
// irregularly. The user is asked whether to keep it; kept files are renamed in the work
// folder to "<yyyyMMdd>_restp_<seconds since midnight>.bmp" (the picture) and
// "<yyyyMMdd>_restm_<seconds>.bmp" (the mask), and the new name is shown.

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace tf {

// The name a rescued picture (`mask` false) or mask gets at `now`, e.g.
// "20240305_restp_45296.bmp" at 12:34:56.
QString rescueFileName(bool mask, const QDateTime &now);

// The last step of the start: offers "tmpundob.bmp", then "tmpundom.bmp" of `tempDir` for
// rescue through the installed prompter (Yes/No); Yes renames and reports the new path, No
// leaves the file. Answers the paths of the rescued files. Faults are reported under
// "CheckRestore_lost_Undopics".
QStringList CheckRestore_lost_Undopics(const QString &tempDir,
                                       const QDateTime &now = QDateTime::currentDateTime());

} // namespace tf
