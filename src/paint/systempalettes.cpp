#include "paint/systempalettes.h"

#include "core/fault.h"
#include "paint/systempalettes_table.h"

#include <QCoreApplication>
#include <QFile>

namespace tf {

std::vector<SystemPalette> systemPalettes()
{
    std::vector<SystemPalette> out;
    int index = 0;
    for (const SystemPaletteFile &p : systemPaletteFiles())
        out.push_back({++index, QCoreApplication::translate("SystemPalettes", p.name)});
    return out;
}

QByteArray LoadPalette(int index)
{
    const auto files = systemPaletteFiles();
    if (index < 1 || size_t(index) > files.size())
        throw Fault(Fault::SubscriptOutOfRange);
    QFile file(QStringLiteral(":/palettes/") + QLatin1String(files[size_t(index) - 1].file));
    if (!file.open(QIODevice::ReadOnly))
        throw Fault(Fault::FileNotFound);
    return file.readAll();
}

} // namespace tf
