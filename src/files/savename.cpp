#include "files/savename.h"

#include <QFileInfo>

namespace tf {

QString presetSaveType(const QString &name)
{
    const QString upper = name.toUpper();
    if (upper.contains(QLatin1String(".JPG")))
        return QStringLiteral(".JPG");
    if (upper.contains(QLatin1String(".BMP")))
        return QStringLiteral(".BMP");
    return QStringLiteral(".PNG");
}

SaveName classSaveName(const QString &name)
{
    const QString upper = name.toUpper();
    SaveName s;
    QString extension;
    if (upper.contains(QLatin1String(".JPG"))) {
        s.SaveTypeTag = QStringLiteral("JPG");
        extension = QStringLiteral(".jpg");
    } else if (upper.contains(QLatin1String(".PNG"))) {
        s.SaveTypeTag = QStringLiteral("PNG");
        extension = QStringLiteral(".png");
    } else {
        s.SaveTypeTag = QStringLiteral("BMP");
        extension = QStringLiteral(".bmp");
    }
    s.path = upper.contains(extension.toUpper()) ? name : name + extension;
    return s;
}

QString saveTypeOfSuffix(const QString &path)
{
    const QString suffix = QFileInfo(path).suffix().toLower();
    if (suffix == QLatin1String("png"))
        return QStringLiteral("PNG");
    if (suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg"))
        return QStringLiteral("JPG");
    if (suffix == QLatin1String("bmp"))
        return QStringLiteral("BMP");
    return {};
}

} // namespace tf
