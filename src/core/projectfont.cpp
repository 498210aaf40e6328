#include "core/projectfont.h"

#include <QFile>
#include <QFontDatabase>

namespace tf {

bool loadProjectFont()
{
    static const bool loaded = [] {
        if (!QFile::exists(QString::fromLatin1(ProjectFontFile))) return false;
        return QFontDatabase::addApplicationFont(QString::fromLatin1(ProjectFontFile)) >= 0;
    }();
    return loaded;
}

} // namespace tf
