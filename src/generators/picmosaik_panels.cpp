// The option panel of the photo mosaic, the photo cube and the slide show,
// "feat_15PicMosaik".
#include "generators/picmosaik.h"

#include "paint/controllinks.h"
#include "paint/controls.h"

#include <QtGlobal>

namespace tf {

namespace {

using K = ControlKind;

ControlSpec check(const char *name, int index, const char *caption, const char *def)
{
    return controlSpec(name, index, K::Checked, caption, def, 0, 1);
}

const ControlPanel &picMosaikPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(PicMosaikPanelName),
        QT_TRANSLATE_NOOP("Controls", "Fotomosaik"),
        {
            controlSpec("cmbPicMosaik_Format", 0, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Format"), "0", 0, 2,
                        {QT_TRANSLATE_NOOP("Controls", "Quadratisch"),
                         QT_TRANSLATE_NOOP("Controls", "Vertikal"),
                         QT_TRANSLATE_NOOP("Controls", "Horizontal")}),
            controlSpec("cmbPicMosaik_Format", 1, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Typ"), "0", 0, 1,
                        {QT_TRANSLATE_NOOP("Controls", "Standard"),
                         QT_TRANSLATE_NOOP("Controls", "Be-Pop")}),
            // The two boxes of "H./V. symmetrisch", one for each direction.
            check("XPicMosaik", 0, QT_TRANSLATE_NOOP("Controls", "H. symmetrisch"), "0"),
            check("XPicMosaik", 1, QT_TRANSLATE_NOOP("Controls", "V. symmetrisch"), "0"),
            check("XPicMosaik", 2, QT_TRANSLATE_NOOP("Controls", "Unterteilung verwenden"), "1"),
            check("XPicMosaik", 3, QT_TRANSLATE_NOOP("Controls", "Unterteilung harmonisch"), "0"),
            check("YPicMosaik_EachRahmen", -1,
                  QT_TRANSLATE_NOOP("Controls", "Alle Rahmen zeichnen"), "1"),
            controlSpec("txtPMKachel", 0, K::Text, QT_TRANSLATE_NOOP("Controls", "H-Splits"), "2",
                        2, 50),
            controlSpec("txtPMKachel", 1, K::Text, QT_TRANSLATE_NOOP("Controls", "V-Splits"), "2",
                        2, 50),
            controlSpec("txtPMKachel", 2, K::Text, QT_TRANSLATE_NOOP("Controls", "Randabstand"),
                        "0", -128, 256),
            controlSpec("optPicMosaikSource", -1, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", " Quelle "), "1", 0, 1,
                        {QT_TRANSLATE_NOOP("Controls", "Datei"),
                         QT_TRANSLATE_NOOP("Controls", "Dateiverzeichnis")}),
            check("XPicMosaik_Duplikate", -1, QT_TRANSLATE_NOOP("Controls", "Dupl."), "1"),
            check("XPicMosaikSubDirs", -1, QT_TRANSLATE_NOOP("Controls", "Unterverzeichnisse"),
                  "0"),
            check("XPicMosaik_MixSlots", -1, QT_TRANSLATE_NOOP("Controls", "Bild-Mix"), "1"),
            check("XPicMosaik_UseSmallPics", 0,
                  QT_TRANSLATE_NOOP("Controls", "Kleine Bilder zulassen"), "0"),
            check("XPicMosaik_UseSmallPics", 1,
                  QT_TRANSLATE_NOOP("Controls", "Kleine Bilder kacheln"), "0"),
            check("XPicMosaikStretchpics", -1,
                  QT_TRANSLATE_NOOP("Controls", "Bilder verkleinern"), "1"),
            check("XPicMosaikCenterPics", -1, QT_TRANSLATE_NOOP("Controls", "Bilder zentrieren"),
                  "1"),
            check("XPicMosaikAliasing", -1, QT_TRANSLATE_NOOP("Controls", "Anti-Aliasing"), "1"),
            check("XPicMosaik_Colorize", -1, QT_TRANSLATE_NOOP("Controls", "Kolorieren"), "0"),
            // The tint of "Kolorieren": the hue in degrees round the colour circle (0 red,
            // 120 green, 240 blue), and the saturation as start plus a random part of the
            // range, each in percent.
            controlSpec("picHue", -1, K::Value, QT_TRANSLATE_NOOP("Controls", "Farbton"), "30", 0,
                        360, {}, "°"),
            check("XMonochrome", -1, QT_TRANSLATE_NOOP("Controls", "Monochrome"), "1"),
            controlSpec("SliderSatur", 0, K::Value,
                        QT_TRANSLATE_NOOP("Controls", "Saturationstart"), "30", 0, 100, {},
                        " %"),
            controlSpec("SliderSatur", 1, K::Value,
                        QT_TRANSLATE_NOOP("Controls", "Saturationrange"), "40", 0, 100, {},
                        " %"),
            check("XPicMosaik_OnlyGrey", -1, QT_TRANSLATE_NOOP("Controls", "Graustufen"), "0"),
            check("XPicMosaik_FillAll", -1, QT_TRANSLATE_NOOP("Controls", "Alle Rahmen füllen"),
                  "1"),
            check("XPicMosaik_FillOnlyEmpty", -1,
                  QT_TRANSLATE_NOOP("Controls", "Nur freie Rahmen füllen"), "0"),
            check("XPicMosaik_ShowDiaFile", -1,
                  QT_TRANSLATE_NOOP("Controls", "Dateinamen anzeigen"), "0"),
            controlSpec("txtPicMosaik_Timer", -1, K::Text,
                        QT_TRANSLATE_NOOP("Controls", "Timer (s)"), "1", 0, 600),
            controlSpec("cmbPicMosaik_Options", -1, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Opt."), "0", 0, 9,
                        {"",
                         QT_TRANSLATE_NOOP("Controls", "Blur kleine"),
                         QT_TRANSLATE_NOOP("Controls", "Blur große"),
                         QT_TRANSLATE_NOOP("Controls", "Blur große (stark)"),
                         QT_TRANSLATE_NOOP("Controls", "Blur zufällig"),
                         QT_TRANSLATE_NOOP("Controls", "Blur alle"),
                         QT_TRANSLATE_NOOP("Controls", "Kolorieren zufällig"),
                         QT_TRANSLATE_NOOP("Controls", "Graustufen zufällig"),
                         QT_TRANSLATE_NOOP("Controls", "Nur Randbilder"),
                         QT_TRANSLATE_NOOP("Controls", "Nur Innenbilder")}),
        },
        {
            {"BtnPicMosaik_SetPics", "...", BtnPicMosaik_SetPics},
            {"BtnPicMosaik_Repaint", QT_TRANSLATE_NOOP("Controls", "Repaint letztes Set"),
             BtnPicMosaik_Repaint},
        },
        {
            enabledOnlyWith({controlKey("XPicMosaik", 3)}, {isOn("XPicMosaik", 2)}),
            enabledOnlyWith({controlKey("XPicMosaik_UseSmallPics", 1)},
                            {isOn("XPicMosaik_UseSmallPics", 0)}),
            enabledOnlyWith({controlKey("XPicMosaik_FillOnlyEmpty")}, {isOff("XPicMosaik_FillAll")}),
        }};
    return panel;
}

} // namespace

void registerPicMosaikPanels()
{
    registerControlPanel(&picMosaikPanel());
}

} // namespace tf
