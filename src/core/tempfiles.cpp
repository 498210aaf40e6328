#include "core/tempfiles.h"

#include "core/bmpstream.h"
#include "core/fault.h"
#include "core/prompter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tf {

QString fixingFileName(int number)
{
    return QStringLiteral("tmpfixm%1.bmp").arg(number % 100, 2, 10, QLatin1Char('0'));
}

void writeBmpFile(const QImage &image, const QString &path)
{
    // Row by row: the undo image of a large picture must not cost a second copy in memory.
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || !writeBmp24(image, f) || !f.flush())
        throw Fault(Fault::PathFileAccessError);
}

QImage readPictureFile(const QString &path)
{
    if (!QFileInfo(path).isFile())
        throw Fault(Fault::FileNotFound);
    // Our own bitmaps are read by our own reader: Qt's refuses pictures past its allocation
    // limit, and an undo image of 4096 x 4096 is one of them.
    QFile f(path);
    QImage image;
    if (f.open(QIODevice::ReadOnly))
        image = readPlainBmp(f);
    if (image.isNull() && !image.load(path))
        throw Fault(Fault::InvalidPicture);
    return image;
}

void removeTempFilesAtEnd(const QString &tempDir, bool fixDelete)
{
    const QDir dir(tempDir);
    for (const char *name : {TempFiles::UndoBild, TempFiles::UndoMask, TempFiles::Alias,
                             TempFiles::SuperUndo0, TempFiles::SuperUndo1})
        QFile::remove(dir.filePath(QString::fromLatin1(name)));
    if (!fixDelete)
        return;
    QFile::remove(dir.filePath(QString::fromLatin1(TempFiles::FixSingle)));
    QFile::remove(dir.filePath(QString::fromLatin1(TempFiles::FixSelection)));
    for (int n = 1; n <= TempFiles::FixNumberMax; ++n)
        QFile::remove(dir.filePath(fixingFileName(n)));
}

bool Check_CreateDir(const QString &path)
{
    if (QFileInfo(path).isDir())
        return true;
    bool made = false;
    guarded(QStringLiteral("Check_CreateDir"), [&] {
        if (path.trimmed().isEmpty() || !QDir().mkpath(path))
            throw Fault(Fault::PathNotFound);
        made = true;
        Prompt p;
        p.text = QCoreApplication::translate("TempFiles", "Das neue Verzeichnis %1 wurde erstellt.")
                     .arg(QDir::toNativeSeparators(path));
        p.icon = Icon::Information;
        currentPrompter().ask(p);
    });
    return made;
}

} // namespace tf
