#include "generators/centrepanels.h"

#include <QtGlobal>

namespace tf {

const ControlPanel &mountainsPanel()
{
    using K = ControlKind;
    static const ControlPanel panel{
        QString::fromLatin1(MountainsPanelName),
        QT_TRANSLATE_NOOP("Controls", "Berge"),
        {
            controlSpec("radMountHorizon", -1, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Ausrichtung"), "1", 0, 1,
                        {QT_TRANSLATE_NOOP("Controls", "Oben"),
                         QT_TRANSLATE_NOOP("Controls", "Unten")}),
            controlSpec("X3DMountain", -1, K::Checked, QT_TRANSLATE_NOOP("Controls", "3D"), "0", 0,
                        1),
            controlSpec("scrollMountain", 0, K::Value, QT_TRANSLATE_NOOP("Controls", "Amplitude"),
                        "15", 1, 100),
            controlSpec("scrollMountain", 1, K::Value, QT_TRANSLATE_NOOP("Controls", "Top"), "0", 0,
                        90, {}, " %"),
        }};
    return panel;
}

void registerCentrePanels()
{
    registerControlPanel(&mountainsPanel());
}

} // namespace tf
