// The option panel of the Mondrian family, "feat_01Mondrian".
#include "generators/mondrian.h"

#include "generators/cathedral.h"
#include "generators/leadglass.h"
#include "generators/picmosaik.h"
#include "paint/controls.h"

#include <QtGlobal>

namespace tf {

namespace {

using K = ControlKind;

const ControlPanel &mondrianPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(MondrianPanelName),
        QT_TRANSLATE_NOOP("Controls", "Mondrian"),
        {
            controlSpec("cmbMondrian_Format", 0, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Format"), "0", 0, 2,
                        {QT_TRANSLATE_NOOP("Controls", "Quadratisch"),
                         QT_TRANSLATE_NOOP("Controls", "Vertikal"),
                         QT_TRANSLATE_NOOP("Controls", "Horizontal")}),
            controlSpec("cmbMondrian_Format", 1, K::ListIndex, QT_TRANSLATE_NOOP("Controls", "Typ"),
                        "0", 0, 5,
                        {QT_TRANSLATE_NOOP("Controls", "Standard"),
                         QT_TRANSLATE_NOOP("Controls", "Be-Pop"),
                         QT_TRANSLATE_NOOP("Controls", "Boogie-Woogie"),
                         QT_TRANSLATE_NOOP("Controls", "Boogie-Rocks"),
                         QT_TRANSLATE_NOOP("Controls", "Boogie-Blocks"),
                         QT_TRANSLATE_NOOP("Controls", "Boogie-Soft-Ice")}),
            controlSpec("cmbMondrian_Format", 2, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Hintergrundfarbe"), "0", 0, 13,
                        {QT_TRANSLATE_NOOP("Controls", "Standard"),
                         QT_TRANSLATE_NOOP("Controls", "Zufall"),
                         QT_TRANSLATE_NOOP("Controls", "Vordergrundfarbe"),
                         QT_TRANSLATE_NOOP("Controls", "Hintergrundfarbe"),
                         QT_TRANSLATE_NOOP("Controls", "Rahmenfarbe"),
                         QT_TRANSLATE_NOOP("Controls", "Schwarz"),
                         QT_TRANSLATE_NOOP("Controls", "Weiss"),
                         QT_TRANSLATE_NOOP("Controls", "Grau"),
                         QT_TRANSLATE_NOOP("Controls", "Rot"),
                         QT_TRANSLATE_NOOP("Controls", "Grün"),
                         QT_TRANSLATE_NOOP("Controls", "Blau"),
                         QT_TRANSLATE_NOOP("Controls", "Gelb"),
                         QT_TRANSLATE_NOOP("Controls", "Orange"),
                         QT_TRANSLATE_NOOP("Controls", "Violett")}),
            controlSpec("cmbMondrian_Format", 3, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Haupt-Knotenfarben"), "0", 0, 11,
                        {QT_TRANSLATE_NOOP("Controls", "Standard"),
                         QT_TRANSLATE_NOOP("Controls", "Zufall"),
                         QT_TRANSLATE_NOOP("Controls", "Mondrian"),
                         QT_TRANSLATE_NOOP("Controls", "Schwarz"),
                         QT_TRANSLATE_NOOP("Controls", "Weiss"),
                         QT_TRANSLATE_NOOP("Controls", "Grau"),
                         QT_TRANSLATE_NOOP("Controls", "Rot"),
                         QT_TRANSLATE_NOOP("Controls", "Grün"),
                         QT_TRANSLATE_NOOP("Controls", "Blau"),
                         QT_TRANSLATE_NOOP("Controls", "Gelb"),
                         QT_TRANSLATE_NOOP("Controls", "Orange"),
                         QT_TRANSLATE_NOOP("Controls", "Violett")}),
            controlSpec("txtMondrian", 0, K::Text, QT_TRANSLATE_NOOP("Controls", "H-Splits"), "2",
                        2, 50),
            controlSpec("txtMondrian", 1, K::Text, QT_TRANSLATE_NOOP("Controls", "V-Splits"), "2",
                        2, 50),
            controlSpec("txtMondrian", 2, K::Text, QT_TRANSLATE_NOOP("Controls", "Randabstand"),
                        "0", -128, 256),
            controlSpec("XMondrian", 0, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Horizontal symmetrisch"), "0", 0, 1),
            controlSpec("XMondrian", 1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Vertikal symmetrisch"), "0", 0, 1),
            controlSpec("XMondrian", 2, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Unterteilung verwenden"), "1", 0, 1),
            controlSpec("cmbMondrian_subfak", 0, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Unterteilung H x"), "0", 0, 3,
                        {"1", "2", "3", "4"}),
            controlSpec("cmbMondrian_subfak", 1, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Unterteilung V x"), "0", 0, 3,
                        {"1", "2", "3", "4"}),
            controlSpec("XMondrian", 5, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Unterteilung harmonisch"), "0", 0, 1),
            controlSpec("XMondrian", 3, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Alle Rahmen zeichnen"), "1", 0, 1),
            controlSpec("XMondrian", 4, K::Checked, QT_TRANSLATE_NOOP("Controls", "Kaleidoskop"),
                        "0", 0, 1),
            controlSpec("XMondrian", 6, K::Checked, QT_TRANSLATE_NOOP("Controls", " 4 Farben "),
                        "0", 0, 1),
            controlSpec("XMondrian", 7, K::Checked, QT_TRANSLATE_NOOP("Controls", "Boogies?"), "1",
                        0, 1),
            controlSpec("XMondrian", 8, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Farbtiefe reduzieren"), "0", 0, 1),
            controlSpec("XMondrian", 9, K::Checked, QT_TRANSLATE_NOOP("Controls", "Chaos"), "0", 0,
                        1),
            controlSpec("pic4C", 0, K::Colour, QT_TRANSLATE_NOOP("Controls", "Farbe 1"), "255"),
            controlSpec("pic4C", 1, K::Colour, QT_TRANSLATE_NOOP("Controls", "Farbe 2"), "65535"),
            controlSpec("pic4C", 2, K::Colour, QT_TRANSLATE_NOOP("Controls", "Farbe 3"),
                        "16711680"),
            controlSpec("pic4C", 3, K::Colour, QT_TRANSLATE_NOOP("Controls", "Farbe 4"),
                        "13158600"),
            controlSpec("pic4C", 4, K::Colour,
                        QT_TRANSLATE_NOOP("Controls", "Grund im Superformat"), "16777215"),
        },
        {
            {"BtnMondrian_Repaint", QT_TRANSLATE_NOOP("Controls", "Repaint letztes Set"),
             BtnMondrian_Repaint},
        }};
    return panel;
}

} // namespace

void registerMondrianPanels()
{
    registerControlPanel(&mondrianPanel());
    // The lead-glass windows paint from the same tables and register with the family.
    registerLeadGlassPanels();
    registerCathedralPanels();
    // The photo mosaic lays its photos into the same layout.
    registerPicMosaikPanels();
}

} // namespace tf
