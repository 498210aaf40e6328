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

const ControlPanel &circleGradientsPanel()
{
    using K = ControlKind;
    static const ControlPanel panel{
        QString::fromLatin1(CircleGradientsPanelName),
        QT_TRANSLATE_NOOP("Controls", "Kreisverläufe"),
        {
            controlSpec("CMW1", 0, K::Value, QT_TRANSLATE_NOOP("Controls", "Teilungen"), "1", 1, 64),
            controlSpec("CMW1", 1, K::Value, QT_TRANSLATE_NOOP("Controls", "Endwinkel"), "360", 0,
                        360, {}, "°"),
            controlSpec("CMW1", 2, K::Value, QT_TRANSLATE_NOOP("Controls", "Startwinkel"), "0", 0,
                        360, {}, "°"),
            controlSpec("XCMUsePen", -1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Stift verwenden"), "0", 0, 1),
        }};
    return panel;
}

void registerCentrePanels()
{
    registerControlPanel(&mountainsPanel());
    registerControlPanel(&circleGradientsPanel());
}

} // namespace tf
