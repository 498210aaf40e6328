#include "generators/photocubepanel.h"

#include "generators/picmosaik.h"
#include "paint/controls.h"

#include <stdexcept>

#include <QCoreApplication>

namespace tf {

namespace {
ControlKey key(const char *name, int index = -1) { return ControlKey{QString::fromLatin1(name), index}; }

// The photo source's controls of the mosaic's panel, shown here too (the same values).
ControlSpec sharedControl(const char *name)
{
    const ControlSpec *def = findControlSpec(key(name));
    if (!def) throw std::logic_error("photo cube panel before the mosaic's");
    return *def;
}

} // namespace

const ControlPanel &photoCubePanel()
{
    using K = ControlKind;
    registerPicMosaikPanels();
    static const ControlPanel panel{
        QString::fromLatin1(PhotoCubePanelName),
        QT_TRANSLATE_NOOP("Controls", "Foto-Würfel"),
        {
            sharedControl("optPicMosaikSource"),
            sharedControl("XPicMosaikSubDirs"),
            sharedControl("XPicMosaik_MixSlots"),
            controlSpec("XPhotoCubeShadow", -1, K::Checked, QT_TRANSLATE_NOOP("Controls", "Schatten"), "1"),
            controlSpec("scrollPhotoCube", 0, K::Value, QT_TRANSLATE_NOOP("Controls", "Größe"), "62", 20,
                        90, {}, " %"),
            controlSpec("scrollPhotoCube", 1, K::Value, QT_TRANSLATE_NOOP("Controls", "Drehung"), "38", 20,
                        70, {}, "°"),
            controlSpec("scrollPhotoCube", 2, K::Value, QT_TRANSLATE_NOOP("Controls", "Blick von oben"),
                        "28", 12, 40, {}, "°"),
            controlSpec("optPhotoCubeLight", -1, K::ListIndex, QT_TRANSLATE_NOOP("Controls", "Licht"), "0",
                        0, 1,
                        {QT_TRANSLATE_NOOP("Controls", "von links"),
                         QT_TRANSLATE_NOOP("Controls", "von rechts")}),
        },
        {
            {"BtnPicMosaik_SetPics", "...", BtnPicMosaik_SetPics},
        }};
    return panel;
}

PhotoCubeOptions photoCubeOptions(const Controls &c)
{
    PhotoCubeOptions o;
    o.shadow = c.checked(key("XPhotoCubeShadow"));
    o.sizePercent = c.value(key("scrollPhotoCube", 0));
    o.turn = c.value(key("scrollPhotoCube", 1));
    o.tilt = c.value(key("scrollPhotoCube", 2));
    o.lightFromLeft = c.listIndex(key("optPhotoCubeLight")) != 1;
    return o;
}

void registerPhotoCubePanel() { registerControlPanel(&photoCubePanel()); }

} // namespace tf
