#include "generators/borders.h"

#include "paint/controls.h"

#include <QtGlobal>

namespace tf {

namespace {

const ControlPanel &framePanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(FramePanelName),
        QT_TRANSLATE_NOOP("Controls", "Rahmen"),
        {
            controlSpec("txtRahmendicke", -1, ControlKind::Text,
                    QT_TRANSLATE_NOOP("Controls", "Rahmendicke A."), "10", 1, 2000),
            controlSpec("txtRahmendickeI", 0, ControlKind::Text,
                    QT_TRANSLATE_NOOP("Controls", "Rahmenbreite I."), "0", 0, 20000),
            controlSpec("txtRahmendickeI", 1, ControlKind::Text,
                    QT_TRANSLATE_NOOP("Controls", "Rahmenhöhe I."), "400", 0, 20000),
            controlSpec("XRahmendickeITrapez", -1, ControlKind::Checked,
                    QT_TRANSLATE_NOOP("Controls", "Trapeze"), "0", 0, 1),
            controlSpec("txtCutOut", -1, ControlKind::Text,
                    QT_TRANSLATE_NOOP("Controls", "Ausschnitt"), "40", 1, 100),
        }};
    return panel;
}

} // namespace

void registerFramePanels() { registerControlPanel(&framePanel()); }

} // namespace tf
