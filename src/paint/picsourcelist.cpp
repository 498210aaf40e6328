#include "paint/picsourcelist.h"

#include "core/yield.h"

#include <QDir>
#include <QFileInfo>

namespace tf {

void PicSourceList::clear()
{
    ListPicDir.clear();
    PicCount = 0;
    ListValid = false;
    resetUsed();
}

bool PicSourceList::scan(const QString &dir, bool recurse, YieldHook *yield)
{
    clear();
    int32_t count = 0;
    if (!xLib_DirRekurs(ListPicDir, dir, QStringLiteral("*.*"), recurse, true, count, yield)) {
        clear();
        return false;
    }
    PicCount = count;
    LastSource = dir;
    LastRecurse = recurse;
    ListValid = count > 0;
    resetUsed();
    return true;
}

void PicSourceList::resetUsed()
{
    UsedMap.assign(size_t(std::max<int32_t>(PicCount, 0)) + 1, 0);
}

int32_t PicSourceList::usedCount() const
{
    int32_t n = 0;
    for (int32_t i = 0; i < PicCount && size_t(i) < UsedMap.size(); ++i)
        n += UsedMap[size_t(i)] != 0;
    return n;
}

bool isListedPictureName(const QString &name)
{
    const QString upper = name.toUpper();
    return upper.endsWith(QLatin1String(".BMP")) || upper.endsWith(QLatin1String(".GIF")) ||
           upper.endsWith(QLatin1String(".JPG")) || upper.endsWith(QLatin1String(".JPEG")) ||
           upper.endsWith(QLatin1String(".PNG"));
}

namespace {

bool walk(QStringList &target, const QString &path, const QStringList &filters, bool recurse,
          bool onlyPictures, int32_t &count, YieldHook *yield, int32_t limit)
{
    if (yield && yield->yield())
        return false;
    QDir dir(path);
    // Directories are listed whatever the mask, so that a recursive walk reaches them.
    const QFileInfoList entries =
        dir.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden |
                              QDir::System,
                          QDir::Name | QDir::IgnoreCase);
    for (const QFileInfo &e : entries) {
        if (count >= limit)
            return true; // the list is full: nothing more is taken from anywhere
        if (e.isDir()) {
            if (recurse && !e.isSymLink()) {
                if (!walk(target, e.filePath(), filters, recurse, onlyPictures, count, yield,
                          limit))
                    return false;
            }
            continue;
        }
        if (!filters.isEmpty() && !QDir::match(filters, e.fileName()))
            continue;
        if (onlyPictures && !isListedPictureName(e.fileName()))
            continue;
        target << e.filePath();
        ++count;
    }
    return true;
}

} // namespace

bool xLib_DirRekurs(QStringList &Target, const QString &Path, const QString &Mask, bool Recurse,
                    bool OnlyPictures, int32_t &Count, YieldHook *yield, int32_t limit)
{
    QStringList filters;
    if (!Mask.isEmpty() && Mask != QLatin1String("*.*") && Mask != QLatin1String("*"))
        filters << Mask;
    return walk(Target, QDir::cleanPath(Path), filters, Recurse, OnlyPictures, Count, yield,
                limit);
}

} // namespace tf
