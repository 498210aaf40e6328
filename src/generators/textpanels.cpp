#include "generators/textpanels.h"

#include "core/projectfont.h"
#include "paint/textstate.h"

#include <QtGlobal>

namespace tf {

namespace {

using K = ControlKind;

// The text dialog: the text and its font, for every text type.
const ControlPanel &textDialogPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(TextDialogPanelName),
        QT_TRANSLATE_NOOP("Controls", "Textdialog"),
        {
            controlSpec("txtOrthoIn", -1, K::Text, QT_TRANSLATE_NOOP("Controls", "Text"), ""),
            controlSpec("cmbFontName", -1, K::Text, QT_TRANSLATE_NOOP("Controls", "Schrift"),
                        ProjectFontFamily),
            controlSpec("txtFontSize", -1, K::Text, QT_TRANSLATE_NOOP("Controls", "Größe"), "36",
                        4, 999),
            controlSpec("XFontWidthActiv", -1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Z.-Breite"), "0", 0, 1),
            controlSpec("txtFontWidth", -1, K::Text,
                        QT_TRANSLATE_NOOP("Controls", "Zeichenbreite (%)"), "100", 10, 400),
            controlSpec("cmbShadeThickness", -1, K::Text,
                        QT_TRANSLATE_NOOP("Controls", "Schatten"), "2", 0, 50,
                        {"0", "1", "2", "3", "4", "6", "8"}),
            controlSpec("icb1Color3D", -1, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "3D-Farbe"), "0", 0, 4,
                        {QT_TRANSLATE_NOOP("Controls", "Schattenfarbe"),
                         QT_TRANSLATE_NOOP("Controls", "Schwarz"),
                         QT_TRANSLATE_NOOP("Controls", "Grau"),
                         QT_TRANSLATE_NOOP("Controls", "Weiß"),
                         QT_TRANSLATE_NOOP("Controls", "Textfarbe abgedunkelt")}),
            controlSpec("XFntAntiAlias", -1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Anti-Aliasing"), "1", 0, 1),
            controlSpec("imgBold", -1, K::Checked, QT_TRANSLATE_NOOP("Controls", "Bold"), "0", 0,
                        1),
            controlSpec("XText_Mixfonts", -1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Schriften mischen"), "0", 0, 1),
        },
        {},
        {enabledOnlyWith({controlKey("txtFontWidth")}, {isOn("XFontWidthActiv")})}};
    return panel;
}

const ControlPanel &textDialogTypePanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(TextDialogTypePanelName),
        QT_TRANSLATE_NOOP("Controls", "Text"),
        {
            controlSpec("txtDialogXYPos", 0, K::Text,
                        QT_TRANSLATE_NOOP("Controls", "Position links"), "40", -14000, 14000),
            controlSpec("txtDialogXYPos", 1, K::Text,
                        QT_TRANSLATE_NOOP("Controls", "Position oben"), "40", -14000, 14000),
            controlSpec("TDW1", 0, K::Value, QT_TRANSLATE_NOOP("Controls", "Rotationswinkel"),
                        "0", 0, 360, {}, " °"),
            controlSpec("XTextDialog_Center", -1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Position ist die Textmitte"), "0", 0, 1),
            controlSpec("XTextDialog_BigLetters", -1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Nur Großbuchstaben"), "0", 0, 1),
        }};
    return panel;
}

// The block's left edge and top start at the program's text-block step (StartValues).
const ControlPanel &textBlockPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(TextBlockPanelName),
        QT_TRANSLATE_NOOP("Controls", "Textblock"),
        {
            controlSpec("optTextBlockAlign", -1, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", " Ausrichtung "), "0", 0, 4,
                        {QT_TRANSLATE_NOOP("Controls", "Links"),
                         QT_TRANSLATE_NOOP("Controls", "Zentriert"),
                         QT_TRANSLATE_NOOP("Controls", "Rechts"),
                         QT_TRANSLATE_NOOP("Controls", "Kinoabspann"),
                         QT_TRANSLATE_NOOP("Controls", "Links && rechts")}),
            controlSpec("scrollTextBlock", 0, K::Value,
                        QT_TRANSLATE_NOOP("Controls", "Abstand links"), "80", 0, 2000, {}, " px"),
            controlSpec("scrollTextBlock", 1, K::Value,
                        QT_TRANSLATE_NOOP("Controls", "Abstand oben"), "80", 0, 2000, {}, " px"),
            controlSpec("txtCinemaGap", -1, K::Text,
                        QT_TRANSLATE_NOOP("Controls", "Lücke (Pixel)"), "24", 0, 2000),
            controlSpec("XTextBlock_BigLetters", -1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Nur Großbuchstaben"), "0", 0, 1),
        }};
    return panel;
}

const ControlPanel &textCircularPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(TextCircularPanelName),
        QT_TRANSLATE_NOOP("Controls", "Text auf Kreis und Spirale"),
        {
            controlSpec("XTextCircular", 0, K::Checked, QT_TRANSLATE_NOOP("Controls", "Kreismodus"),
                        "1", 0, 1),
            controlSpec("XTextCircular", 1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Nur Großbuchstaben"), "0", 0, 1),
            controlSpec("TCW1", 0, K::Text, QT_TRANSLATE_NOOP("Controls", "Rotationswinkel"), "360",
                        1, 360),
            controlSpec("TCW1", 1, K::Text, QT_TRANSLATE_NOOP("Controls", "Textwinkel"), "90", 0,
                        360),
            controlSpec("TCW1", 2, K::Text, QT_TRANSLATE_NOOP("Controls", "Startwinkel"), "90", 0,
                        360),
            controlSpec("scrollQFL1", -1, K::Value, QT_TRANSLATE_NOOP("Controls", "Radius"), "70", 4,
                        100, {}, " %"),
        }};
    return panel;
}

const ControlPanel &textRotationPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(TextRotationPanelName),
        QT_TRANSLATE_NOOP("Controls", "Stern"),
        {
            controlSpec("TRW1", 0, K::Text, QT_TRANSLATE_NOOP("Controls", "Anzahl"), "18", 1, 360),
            controlSpec("TRW1", 1, K::Text, QT_TRANSLATE_NOOP("Controls", "Teilungswinkel"), "20",
                        0, 360),
            controlSpec("TRW1", 2, K::Text, QT_TRANSLATE_NOOP("Controls", "Startwinkel"), "0", 0,
                        360),
            controlSpec("XTextrotation_BigLetters", -1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Nur Großbuchstaben"), "0", 0, 1),
        }};
    return panel;
}

} // namespace

void registerTextPanels()
{
    registerControlPanel(&textDialogPanel());
    registerControlPanel(&textDialogTypePanel());
    registerControlPanel(&textBlockPanel());
    registerControlPanel(&textCircularPanel());
    registerControlPanel(&textRotationPanel());
}

} // namespace tf
