#include "tools/toolpanels.h"

#include "paint/controls.h"

#include <QtGlobal>

namespace tf {

namespace {

const ControlPanel &shapesPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(ShapesPanelName),
        QT_TRANSLATE_NOOP("Controls", "Formen"),
        {
            controlSpec("cmbFeatShapes", -1, ControlKind::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Form"), "0", 0, 4,
                        {QT_TRANSLATE_NOOP("Controls", "Rechteck"),
                         QT_TRANSLATE_NOOP("Controls", "Quadrat am Ankerpunkt"),
                         QT_TRANSLATE_NOOP("Controls", "Kreis"),
                         QT_TRANSLATE_NOOP("Controls", "Kreis um den Ankerpunkt"),
                         QT_TRANSLATE_NOOP("Controls", "Ellipse")}),
            controlSpec("XShapeOutlined", 0, ControlKind::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Umrandet"), "1", 0, 1),
            controlSpec("XShapeOutlined", 1, ControlKind::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Gefüllt"), "0", 0, 1),
        }};
    return panel;
}

const ControlPanel &freeHandPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(FreeHandPanelName),
        QT_TRANSLATE_NOOP("Controls", "Freihand"),
        {
            controlSpec("optPenStyle", -1, ControlKind::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", " Stiftart "), "0", 0, 4,
                        {QT_TRANSLATE_NOOP("Controls", "Runde Spitze"),
                         QT_TRANSLATE_NOOP("Controls", "Feder \\"),
                         QT_TRANSLATE_NOOP("Controls", "Feder /"),
                         QT_TRANSLATE_NOOP("Controls", "Feder waagerecht"),
                         QT_TRANSLATE_NOOP("Controls", "Feder senkrecht")}),
            controlSpec("scrollTipWidth", -1, ControlKind::Value,
                        QT_TRANSLATE_NOOP("Controls", "Spitzenbreite "), "4", 1, 40),
        }};
    return panel;
}

const ControlPanel &sprayPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(SprayPanelName),
        QT_TRANSLATE_NOOP("Controls", "Spray"),
        {
            controlSpec("cmbSprayType", -1, ControlKind::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Pinselart"), "1", 0, 4,
                        {QT_TRANSLATE_NOOP("Controls", "Airbrush"),
                         QT_TRANSLATE_NOOP("Controls", "Pinsel"),
                         QT_TRANSLATE_NOOP("Controls", "Pinsel (Sättigung)"),
                         QT_TRANSLATE_NOOP("Controls", "Weichzeichnen"),
                         QT_TRANSLATE_NOOP("Controls", "Schärfen")}),
            controlSpec("scrollSpray", 0, ControlKind::Value,
                        QT_TRANSLATE_NOOP("Controls", "Grösse "), "24", 1, 200),
            controlSpec("scrollSpray", 1, ControlKind::Value,
                        QT_TRANSLATE_NOOP("Controls", "Druck "), "50", 0, 100),
            controlSpec("XSprayBrush", 0, ControlKind::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Verbundener Pinsel"), "1", 0, 1),
            controlSpec("XSprayBrush", 1, ControlKind::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Weichz. + Überlagern"), "0", 0, 1),
        },
        {},
        {
            // Only the two brushes join their dabs by the rule of the connected brush.
            enabledOnlyWith({controlKey("XSprayBrush", 0)}, {valueIn("cmbSprayType", -1, {1, 2})}),
        }};
    return panel;
}

} // namespace

void registerToolPanels()
{
    registerControlPanel(&shapesPanel());
    registerControlPanel(&freeHandPanel());
    registerControlPanel(&sprayPanel());
}

} // namespace tf
