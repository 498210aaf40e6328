#include "files/textfile.h"

#include "paint/textstate.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace tf {

std::optional<QString> readTextFile(const QString &path, QString &message)
{
    const QFileInfo info(path);
    if (!info.exists() || !info.isFile()) {
        message = QCoreApplication::translate("TextFile", "Die Textdatei %1 gibt es nicht.")
                      .arg(path);
        return std::nullopt;
    }
    if (info.size() > MaxTextFileBytes) {
        message = QCoreApplication::translate("TextFile",
                                              "Die Textdatei %1 ist zu groß (höchstens 1 MB).")
                      .arg(path);
        return std::nullopt;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        message = QCoreApplication::translate("TextFile",
                                              "Die Textdatei %1 kann nicht gelesen werden: %2")
                      .arg(path, file.errorString());
        return std::nullopt;
    }
    return decodeTextFile(file.readAll());
}

} // namespace tf
