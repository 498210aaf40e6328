// `tarvelle-forge types` and `tarvelle-forge controls [TYPE]`.
#include "app/cli_common.h"

#include "generators/painters.h"
#include "paint/catalogue.h"
#include "paint/controls.h"
#include "paint/typepanels.h"

#include <QCoreApplication>

#include <algorithm>

namespace tf::cli {

namespace {

QString shown(const char *title)
{
    return QString::fromUtf8(title).replace(QLatin1String("&&"), QLatin1String("&"));
}

const char *kindName(ControlKind kind)
{
    // Stable words for scripts, the same in both languages.
    static const std::map<ControlKind, const char *> names = {
        {ControlKind::Text, "text"},       {ControlKind::Value, "value"},
        {ControlKind::Checked, "checked"}, {ControlKind::ListIndex, "list"},
        {ControlKind::Colour, "colour"},
    };
    return names.at(kind);
}

void printPanel(const ControlPanel &panel)
{
    print(stdout, QStringLiteral("%1\t%2\n")
                      .arg(panel.name, QCoreApplication::translate("Controls", panel.caption)));
    for (const ControlSpec &def : panel.controls) {
        const QString range = def.hasRange() ? QStringLiteral("%1..%2").arg(def.min).arg(def.max)
                                              : QStringLiteral("-");
        print(stdout, QStringLiteral("\t%1\t%2\t%3\t%4\t%5\n")
                          .arg(def.key.toString(), QLatin1String(kindName(def.kind)),
                               def.defaultValue, range, def.translatedCaption()));
        // A list's value is the index of an item; an editable combo takes any text, its
        // items are suggestions.
        const QStringList items = def.translatedItems();
        if (def.kind != ControlKind::ListIndex && !items.isEmpty())
            print(stdout, QStringLiteral("\t\t%1\n").arg(items.join(QLatin1String(", "))));
        else
            for (qsizetype i = 0; i < items.size(); ++i)
                print(stdout, QStringLiteral("\t\t%1\t%2\n").arg(i).arg(items[i]));
        // The panel's links under the control they enable or the control whose change sets.
        for (const ControlLink &link : panel.links) {
            const bool names = link.kind == LinkKind::EnabledOnlyWith
                                   ? std::find(link.targets.begin(), link.targets.end(), def.key) !=
                                         link.targets.end()
                                   : link.tests(def.key);
            if (names)
                print(stdout, QStringLiteral("\t\t%1\n").arg(link.describe()));
        }
    }
}

} // namespace

int runTypes(const QStringList &args)
{
    if (!args.isEmpty())
        throw UsageError(
            QCoreApplication::translate("Cli", "Unbekannte Option: %1").arg(args.first()));
    for (int g = 1; g <= GroupCount; ++g) {
        const CatalogueGroup &group = *catalogueGroup(g);
        print(stdout,
              QStringLiteral("%1\t%2\t%3\n").arg(g).arg(shown(group.english), shown(group.german)));
        for (const CatalogueRow &row : groupRows(g))
            print(stdout, row.isSeparator()
                              ? QStringLiteral("\t-\n")
                              : QStringLiteral("\t%1\t%2\t%3\n")
                                    .arg(QString::fromUtf8(row.key), QString::fromUtf8(row.english),
                                         QString::fromUtf8(row.german)));
    }
    return ExitOk;
}

int runControls(const QStringList &args)
{
    if (args.size() > 1)
        throw UsageError(QCoreApplication::translate("Cli", "Unbekannte Option: %1").arg(args[1]));
    registerAllPanels();
    if (args.isEmpty()) {
        for (const ControlPanel *panel : controlPanels())
            printPanel(*panel);
        return ExitOk;
    }
    const QString key = args.first();
    if (!findType(key))
        throw UsageError(QCoreApplication::translate("Cli", "Unbekannter Grafiktyp: %1").arg(key));
    for (const QString &name : panelsReadBy(key))
        for (const ControlPanel *panel : controlPanels())
            if (panel->name == name) printPanel(*panel);
    return ExitOk;
}

} // namespace tf::cli
