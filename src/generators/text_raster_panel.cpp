// The panel of the raster texts, "feat_02OrthoText1".
#include "generators/textraster.h"

#include "paint/controls.h"

namespace tf {

namespace {

using K = ControlKind;

const ControlPanel &orthoTextPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(OrthoTextPanelName),
        QT_TRANSLATE_NOOP("Controls", "Textraster"),
        {
            controlSpec("txtOrthoT1", 0, K::Text, QT_TRANSLATE_NOOP("Controls", "H-Splits"), "4",
                        2, 64),
            controlSpec("txtOrthoT1", 1, K::Text, QT_TRANSLATE_NOOP("Controls", "V-Splits"), "4",
                        2, 64),
            controlSpec("txtOrthoT1", 2, K::Text, QT_TRANSLATE_NOOP("Controls", "Randabstand"),
                        "0", 0, 256),
            controlSpec("cmbOrthoT1_Split", -1, K::ListIndex,
                        QT_TRANSLATE_NOOP("Controls", "Teilung"), "0", 0, 2,
                        {QT_TRANSLATE_NOOP("Controls", "Mix"),
                         QT_TRANSLATE_NOOP("Controls", "Buchstaben"),
                         QT_TRANSLATE_NOOP("Controls", "Wörter")}),
            controlSpec("XOrthoT1", 0, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Horizontal symmetrisch"), "0", 0, 1),
            controlSpec("XOrthoT1", 1, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Vertikal symmetrisch"), "0", 0, 1),
            controlSpec("XOrthoT1", 2, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Unterteilung verwenden"), "1", 0, 1),
            controlSpec("XOrthoT1", 3, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Rahmen zeichnen"), "1", 0, 1),
            controlSpec("XOrthoT1", 4, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Nur Großbuchstaben"), "0", 0, 1),
            controlSpec("XOrthoT1", 7, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Mindestschrift +8"), "0", 0, 1),
        },
        {
            {"BtnOrthoText_Repaint", QT_TRANSLATE_NOOP("Controls", "Repaint letztes Set"),
             BtnOrthoText_Repaint},
        }};
    return panel;
}

} // namespace

void registerOrthoTextPanel() { registerControlPanel(&orthoTextPanel()); }

} // namespace tf
