#include "paint/grafdialogpanel.h"

#include "paint/bildformate.h"

#include <QtGlobal>

namespace tf {

namespace {

ControlSpec control(ControlKey key, ControlKind kind, const char *caption, const char *defaultValue,
                    int min = 0, int max = -1, std::vector<const char *> items = {})
{
    ControlSpec s;
    s.key = std::move(key);
    s.kind = kind;
    s.caption = caption;
    s.defaultValue = QString::fromLatin1(defaultValue);
    s.min = min;
    s.max = max;
    s.items = std::move(items);
    return s;
}

ControlSpec withUnit(ControlSpec def, const char *unit)
{
    def.unit = unit;
    return def;
}

ControlKey named(const char *name, int index = -1)
{
    return {QString::fromLatin1(name), index};
}

std::vector<const char *> formatCaptions()
{
    std::vector<const char *> out;
    for (const Bildformat &f : bildformate())
        out.push_back(f.caption);
    return out;
}

} // namespace

const ControlPanel &grafDialogPanel()
{
    using K = ControlKind;
    static const ControlPanel panel{
        QString::fromLatin1(GrafDialogPanelName),
        QT_TRANSLATE_NOOP("Controls", "Allgemein"),
        {
            control(named("cmbNumbArr"), K::Text, QT_TRANSLATE_NOOP("Controls", "Anzahl"), "10", 0,
                    -1, {"1",  "2",  "3",  "4",  "5",  "6",   "8",   "10",  "12",  "15", "20",
                         "25", "30", "40", "50", "75", "100", "150", "200", "250", "500"}),
            control(named("cmbPen"), K::Text, QT_TRANSLATE_NOOP("Controls", "Stift"), "1", 0, -1,
                    {"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "12", "14", "16", "20",
                     "25", "30", "40", "50"}),
            control(named("Scrollstep"), K::Value, QT_TRANSLATE_NOOP("Controls", "Schrittweite"),
                    "32", 0, 255),
            withUnit(control(named("ScrollTransparence"), K::Value,
                             QT_TRANSLATE_NOOP("Controls", "Transparenz"), "0", 0, 100),
                     " %"),
            control(named("XBorders"), K::Checked, QT_TRANSLATE_NOOP("Controls", "Ränder"), "1", 0,
                    1),
            control(named("XCenter"), K::Checked, QT_TRANSLATE_NOOP("Controls", "Zentrieren"), "0",
                    0, 1),
            control(named("XFill"), K::Checked, QT_TRANSLATE_NOOP("Controls", "Füllen"), "1", 0, 1),
            control(named("XFill_White"), K::Checked, QT_TRANSLATE_NOOP("Controls", "Weiß füllen"),
                    "0", 0, 1),
            control(named("XAAlias"), K::Checked,
                    QT_TRANSLATE_NOOP("Controls", "Auto-Anti-Aliasing"), "0", 0, 1),
            control(named("cmbBildformate"), K::ListIndex,
                    QT_TRANSLATE_NOOP("Controls", "Bildformat"), "0", 0, BildformatCount - 1,
                    formatCaptions()),
            control(named("cmbDPI"), K::Text, QT_TRANSLATE_NOOP("Controls", "DPI"), "300", 0, -1,
                    {"72", "150", "200", "300"}),
            control(named("txtPaperSize", 0), K::Text, QT_TRANSLATE_NOOP("Controls", "Breite"),
                    "712"),
            control(named("txtPaperSize", 1), K::Text, QT_TRANSLATE_NOOP("Controls", "Höhe"),
                    "712"),
            // The Superformat's size is checked and clamped by the painters that use it, so
            // that a size below 1 can still be refused with their message.
            control(named("txtSuperSize", 0), K::Text,
                    QT_TRANSLATE_NOOP("Controls", "Superformat Breite"), "4096"),
            control(named("txtSuperSize", 1), K::Text,
                    QT_TRANSLATE_NOOP("Controls", "Superformat Höhe"), "4096"),
        }};
    return panel;
}

void registerPaintPanels()
{
    registerControlPanel(&grafDialogPanel());
}

} // namespace tf
