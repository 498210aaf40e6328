#include "generators/borders.h"

#include "paint/controls.h"

#include <QtGlobal>

namespace tf {

namespace {

ControlSpec control(const char *name, int index, ControlKind kind, const char *caption,
                    const char *defaultValue, int min, int max)
{
    ControlSpec s;
    s.key = ControlKey{QString::fromLatin1(name), index};
    s.kind = kind;
    s.caption = caption;
    s.defaultValue = QString::fromLatin1(defaultValue);
    s.min = min;
    s.max = max;
    return s;
}

const ControlPanel &framePanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(FramePanelName),
        QT_TRANSLATE_NOOP("Controls", "Rahmen"),
        {
            control("txtRahmendicke", -1, ControlKind::Text,
                    QT_TRANSLATE_NOOP("Controls", "Rahmendicke A."), "10", 1, 2000),
            control("txtRahmendickeI", 0, ControlKind::Text,
                    QT_TRANSLATE_NOOP("Controls", "Rahmenbreite I."), "0", 0, 20000),
            control("txtRahmendickeI", 1, ControlKind::Text,
                    QT_TRANSLATE_NOOP("Controls", "Rahmenhöhe I."), "400", 0, 20000),
            control("XRahmendickeITrapez", -1, ControlKind::Checked,
                    QT_TRANSLATE_NOOP("Controls", "Trapeze"), "0", 0, 1),
            control("txtCutOut", -1, ControlKind::Text,
                    QT_TRANSLATE_NOOP("Controls", "Ausschnitt"), "40", 1, 100),
        }};
    return panel;
}

} // namespace

void registerFramePanels() { registerControlPanel(&framePanel()); }

} // namespace tf
