#include "files/safefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>

namespace tf {

WriteFailure writeFailureOfErrno(int error)
{
    switch (error) {
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return WriteFailure::DiskFull;
    case ENOENT:
    case ENOTDIR:
        return WriteFailure::MissingFolder;
    case EACCES:
    case EPERM:
    case EROFS:
        return WriteFailure::ReadOnlyFolder;
    default:
        return WriteFailure::Other;
    }
}

QString writeFailureMessage(WriteFailure failure, const QString &path, const QString &detail)
{
    const QString file = QDir::toNativeSeparators(path);
    const QString folder = QDir::toNativeSeparators(QFileInfo(path).absolutePath());
    switch (failure) {
    case WriteFailure::None:
        return {};
    case WriteFailure::MissingFolder:
        return QCoreApplication::translate("SafeFile",
                                           "Die Datei %1 kann nicht gespeichert werden: den Ordner "
                                           "%2 gibt es nicht.")
            .arg(file, folder);
    case WriteFailure::ReadOnlyFile:
        return QCoreApplication::translate("SafeFile",
                                           "Die Datei %1 ist schreibgeschützt und bleibt, wie sie "
                                           "war.")
            .arg(file);
    case WriteFailure::ReadOnlyFolder:
        return QCoreApplication::translate("SafeFile",
                                           "Die Datei %1 kann nicht gespeichert werden: in den "
                                           "Ordner %2 darf nicht geschrieben werden.")
            .arg(file, folder);
    case WriteFailure::DiskFull:
        return QCoreApplication::translate("SafeFile",
                                           "Die Datei %1 kann nicht gespeichert werden: der "
                                           "Datenträger ist voll. Eine vorhandene Datei bleibt, "
                                           "wie sie war.")
            .arg(file);
    case WriteFailure::Other:
        break;
    }
    return QCoreApplication::translate("SafeFile",
                                       "Die Datei %1 kann nicht gespeichert werden (%2). Eine "
                                       "vorhandene Datei bleibt, wie sie war.")
        .arg(file, detail);
}

namespace {

WriteResult failed(WriteFailure f, const QString &path, const QString &detail = QString())
{
    return {f, writeFailureMessage(f, path, detail)};
}

} // namespace

namespace {

// Passes the writes on to the file and, after every few megabytes, asks the system to start
// putting them on disk, so that the sync before the rename waits for the last stretch alone
// rather than for the whole file (a 4096 x 4096 bitmap is 48 MB).
class WriteBehind : public QIODevice {
public:
    explicit WriteBehind(QFileDevice &file) : m_file(file) { open(QIODevice::WriteOnly | QIODevice::Unbuffered); }

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *data, qint64 length) override
    {
        const qint64 written = m_file.write(data, length);
        if (written > 0) {
            m_pending += written;
            if (m_pending >= Stretch) startWriteBack();
        }
        return written;
    }

private:
    static constexpr qint64 Stretch = qint64(4) << 20;

    void startWriteBack()
    {
        m_pending = 0;
        if (!m_file.flush() || m_file.handle() < 0) return;
        // Only a hint: where the system cannot, the sync does it all as before.
        const int kept = errno;
        ::sync_file_range(m_file.handle(), 0, 0, SYNC_FILE_RANGE_WRITE);
        errno = kept;
    }

    QFileDevice &m_file;
    qint64 m_pending = 0;
};

} // namespace

WriteResult writeFileSafely(const QString &path,
                            const std::function<bool(QIODevice &, QString &)> &write)
{
    const QFileInfo target(path);
    const QFileInfo folder(target.absolutePath());
    if (!folder.isDir())
        return failed(WriteFailure::MissingFolder, path);
    if (target.exists() && !target.isWritable())
        return failed(WriteFailure::ReadOnlyFile, path);

    QSaveFile file(path);
    errno = 0;
    if (!file.open(QIODevice::WriteOnly)) {
        const WriteFailure f = writeFailureOfErrno(errno);
        return failed(f == WriteFailure::Other && !folder.isWritable() ? WriteFailure::ReadOnlyFolder
                                                                        : f,
                      path, file.errorString());
    }
    QString detail;
    errno = 0;
    WriteBehind behind(file);
    if (!write(behind, detail)) {
        const int error = errno;
        file.cancelWriting();
        const WriteFailure f = writeFailureOfErrno(error);
        return failed(f == WriteFailure::DiskFull ? f : WriteFailure::Other, path,
                      detail.isEmpty() ? file.errorString() : detail);
    }
    errno = 0;
    if (!file.commit()) {
        const WriteFailure f = writeFailureOfErrno(errno);
        return failed(f == WriteFailure::DiskFull ? f : WriteFailure::Other, path,
                      file.errorString());
    }
    return {};
}

} // namespace tf
