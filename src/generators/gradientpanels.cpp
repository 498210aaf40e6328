#include "generators/gradientpanels.h"

#include <QtGlobal>

namespace tf {

const ControlPanel &chromoPanel()
{
    using K = ControlKind;
    static const ControlPanel panel{
        QString::fromLatin1(ChromoPanelName),
        QT_TRANSLATE_NOOP("Controls", "Chromofilter"),
        {
            controlSpec("scrollProzChromo", -1, K::Value, QT_TRANSLATE_NOOP("Controls", "Bandbreite"),
                    "50", 0, 100, {}, " %"),
            controlSpec("cmbOrientation", -1, K::ListIndex,
                    QT_TRANSLATE_NOOP("Controls", "Ausrichtung"), "0", 0, 3,
                    {QT_TRANSLATE_NOOP("Controls", "Oben"), QT_TRANSLATE_NOOP("Controls", "Unten"),
                     QT_TRANSLATE_NOOP("Controls", "Links"),
                     QT_TRANSLATE_NOOP("Controls", "Rechts")}),
        }};
    return panel;
}

const ControlPanel &frameGradientPanel()
{
    using K = ControlKind;
    static const ControlPanel panel{
        QString::fromLatin1(FrameGradientPanelName),
        QT_TRANSLATE_NOOP("Controls", "Rahmenverlauf"),
        {
            controlSpec("scrollGColorProz", -1, K::Value, QT_TRANSLATE_NOOP("Controls", "Farbanteil"),
                    "70", 0, 100, {}, " %"),
            controlSpec("optGColorTyp", -1, K::ListIndex,
                    QT_TRANSLATE_NOOP("Controls", "Verlaufsart"), "1", 0, 3,
                    {QT_TRANSLATE_NOOP("Controls", "Linear"),
                     QT_TRANSLATE_NOOP("Controls", "Rahmen"),
                     QT_TRANSLATE_NOOP("Controls", "Rechteck"),
                     QT_TRANSLATE_NOOP("Controls", "Ellipse")}),
            controlSpec("optGColorVer", -1, K::ListIndex, QT_TRANSLATE_NOOP("Controls", "Richtung"),
                    "0", 0, 1,
                    {QT_TRANSLATE_NOOP("Controls", "Horizontal"),
                     QT_TRANSLATE_NOOP("Controls", "Vertikal")}),
            controlSpec("chkGColorHV", 0, K::Checked,
                    QT_TRANSLATE_NOOP("Controls", "Farben tauschen"), "0", 0, 1),
            controlSpec("chkGColorHV", 1, K::Checked,
                    QT_TRANSLATE_NOOP("Controls", "Weicher Verlauf"), "1", 0, 1),
            controlSpec("txtGColorBorder", 0, K::Text,
                    QT_TRANSLATE_NOOP("Controls", "Rand links und rechts"), "80", 0, 14000),
            controlSpec("txtGColorBorder", 1, K::Text,
                    QT_TRANSLATE_NOOP("Controls", "Rand oben und unten"), "80", 0, 14000),
            controlSpec("chkGPassepartout", -1, K::Checked,
                    QT_TRANSLATE_NOOP("Controls", "Passepartout"), "0", 0, 1),
            controlSpec("txtGColorBorder", 2, K::Text,
                    QT_TRANSLATE_NOOP("Controls", "Passepartout-Breite"), "16", 0, 14000),
        }};
    return panel;
}

const ControlPanel &frequencyPanel()
{
    using K = ControlKind;
    static const ControlPanel panel{
        QString::fromLatin1(FrequencyPanelName),
        QT_TRANSLATE_NOOP("Controls", "Frequenzen"),
        {
            controlSpec("cmb26Frequenz", -1, K::ListIndex,
                    QT_TRANSLATE_NOOP("Controls", "Wellenform"), "0", 0, 1,
                    {QT_TRANSLATE_NOOP("Controls", "Kreiswellen"),
                     QT_TRANSLATE_NOOP("Controls", "Parallele Wellen")}),
            controlSpec("scroll26FRQ", 0, K::Value, QT_TRANSLATE_NOOP("Controls", "Deckkraft"), "60",
                    10, 100, {}, " %"),
            controlSpec("scroll26FRQ", 1, K::Value, QT_TRANSLATE_NOOP("Controls", "Wellenzüge"), "1",
                    1, 7),
        }};
    return panel;
}

void registerGradientPanels()
{
    registerControlPanel(&chromoPanel());
    registerControlPanel(&frameGradientPanel());
    registerControlPanel(&frequencyPanel());
}

} // namespace tf
