#pragma once
// Every file the program writes goes through here: it is written to a temporary file in the
// target's folder and renamed over the target only when complete, so that a failure leaves
// the old file as it was.
//
// A failure answers a message in the user's language that names the cause the user can act
// on: a folder that does not exist, a file or folder that may not be written, a full disk;
// anything else with the system's own reason.

#include <QString>
#include <functional>

class QIODevice;

namespace tf {

enum class WriteFailure { None, MissingFolder, ReadOnlyFile, ReadOnlyFolder, DiskFull, Other };

struct WriteResult {
    WriteFailure failure = WriteFailure::None;
    QString message; // empty on success
    bool ok() const { return failure == WriteFailure::None; }
};

// Writes `path` through `write`, which answers false (with a reason in `detail`) when it
// cannot complete. Nothing is renamed unless `write` and every byte of it succeeded.
WriteResult writeFileSafely(const QString &path,
                            const std::function<bool(QIODevice &out, QString &detail)> &write);

// The message for a failure to write `path`; `detail` is the system's reason for Other.
QString writeFailureMessage(WriteFailure failure, const QString &path, const QString &detail);

// The failure that a system error number stands for (ENOSPC a full disk, EACCES/EROFS/EPERM a
// folder that may not be written ...).
WriteFailure writeFailureOfErrno(int error);

} // namespace tf
