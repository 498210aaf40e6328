// Saves that fail leave the old file as it was and say why.
#include "support/files.h"
#include "files/picturefile.h"
#include "files/safefile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cerrno>

using namespace tf;

TEST(SafeFile, AFailedWriteKeepsTheOldFileAndLeavesNoTemporaryBehind)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("bild.png"));
    writeBytes(path, "the old picture");
    const WriteResult r = writeFileSafely(path, [](QIODevice &out, QString &why) {
        out.write("half a new pic");
        why = QStringLiteral("encoder gave up");
        return false;
    });
    EXPECT_FALSE(r.ok());
    EXPECT_EQ(r.message, writeFailureMessage(WriteFailure::Other, path, QStringLiteral("encoder gave up")));
    EXPECT_EQ(bytesOf(path), QByteArray("the old picture"));
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{QStringLiteral("bild.png")});

    EXPECT_TRUE(writeFileSafely(path, [](QIODevice &out, QString &) {
                    return out.write("new") == 3;
                }).ok());
    EXPECT_EQ(bytesOf(path), QByteArray("new"));
}

TEST(SafeFile, MissingFolderAndReadOnlyFileAreNamed)
{
    QTemporaryDir dir;
    const QString missing = dir.filePath(QStringLiteral("nicht/da/bild.png"));
    const WriteResult m = savePicture(QImage(4, 4, QImage::Format_RGB32), missing, QStringLiteral("PNG"));
    EXPECT_EQ(m.failure, WriteFailure::MissingFolder);
    EXPECT_EQ(m.message, QStringLiteral("Die Datei %1 kann nicht gespeichert werden: den Ordner %2 gibt es nicht.")
                             .arg(QDir::toNativeSeparators(missing),
                                  QDir::toNativeSeparators(dir.filePath(QStringLiteral("nicht/da")))));

    const QString locked = dir.filePath(QStringLiteral("fest.bmp"));
    writeBytes(locked, "kept");
    QFile::setPermissions(locked, QFileDevice::ReadOwner);
    const WriteResult ro = savePicture(QImage(4, 4, QImage::Format_RGB32), locked, QStringLiteral("BMP"));
    if (QFileInfo(locked).isWritable())
        GTEST_SKIP() << "the file system lets this user write a read-only file";
    EXPECT_EQ(ro.failure, WriteFailure::ReadOnlyFile);
    EXPECT_EQ(bytesOf(locked), QByteArray("kept"));
}

TEST(SafeFile, SystemErrorsAreClassed)
{
    EXPECT_EQ(writeFailureOfErrno(ENOSPC), WriteFailure::DiskFull);
    EXPECT_EQ(writeFailureOfErrno(EDQUOT), WriteFailure::DiskFull);
    EXPECT_EQ(writeFailureOfErrno(ENOENT), WriteFailure::MissingFolder);
    EXPECT_EQ(writeFailureOfErrno(EACCES), WriteFailure::ReadOnlyFolder);
    EXPECT_EQ(writeFailureOfErrno(EROFS), WriteFailure::ReadOnlyFolder);
    EXPECT_EQ(writeFailureOfErrno(EIO), WriteFailure::Other);
    EXPECT_EQ(writeFailureMessage(WriteFailure::DiskFull, QStringLiteral("/x/a.png"), QString()),
              QStringLiteral("Die Datei /x/a.png kann nicht gespeichert werden: der Datenträger ist voll. "
                             "Eine vorhandene Datei bleibt, wie sie war."));
}
