// The option panel of the lead-glass window, "feat_20MLeadGlass", and its two buttons.
#include "generators/leadglass.h"

#include "paint/controls.h"
#include "paint/paintdriver.h"
#include "paint/session.h"

#include <QtGlobal>

namespace tf {

namespace {

using K = ControlKind;

const QLatin1String LeadGlassKey("ART-Mondrian-LeadGlass");

PaintOutcome paintLeadGlassAgain(Session &s, bool keepFrames)
{
    if (s.runState().busy())
        return PaintOutcome::Busy;
    s.paint().GrafKey = LeadGlassKey;
    MondrianTables &t = s.mondrian();
    t.RepaintAsked = keepFrames;
    const PaintOutcome outcome = paintAgain(s);
    t.RepaintAsked = false;
    return outcome;
}

const ControlPanel &leadGlassPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(LeadGlassPanelName),
        QT_TRANSLATE_NOOP("Controls", "Bleiglas"),
        {
            controlSpec("cmbMLG_Format", 0, K::ListIndex, QT_TRANSLATE_NOOP("Controls", "Format"),
                        "0", 0, 2,
                        {QT_TRANSLATE_NOOP("Controls", "Quadratisch"),
                         QT_TRANSLATE_NOOP("Controls", "Vertikal"),
                         QT_TRANSLATE_NOOP("Controls", "Horizontal")}),
            controlSpec("cmbMLG_Format", 1, K::ListIndex, QT_TRANSLATE_NOOP("Controls", "Typ"),
                        "0", 0, 1,
                        {QT_TRANSLATE_NOOP("Controls", "Standard"),
                         QT_TRANSLATE_NOOP("Controls", "Be-Pop")}),
            controlSpec("XMLG", 0, K::Checked, QT_TRANSLATE_NOOP("Controls", "H.-/V.symmetrisch"),
                        "0", 0, 1),
            controlSpec("XMLG", 1, K::Checked, QT_TRANSLATE_NOOP("Controls", "H.-/V.symmetrisch"),
                        "0", 0, 1),
            controlSpec("XMLG", 2, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Alle Rahmen zeichnen"), "1", 0, 1),
            controlSpec("XMLG", 3, K::Checked, QT_TRANSLATE_NOOP("Controls", "Rauten"), "0", 0, 1),
            controlSpec("XMLG", 4, K::Checked, QT_TRANSLATE_NOOP("Controls", "Kaleidoskop"), "0",
                        0, 1),
            controlSpec("XMLG", 5, K::Checked, QT_TRANSLATE_NOOP("Controls", "Tiffany-Rahmen"),
                        "0", 0, 1),
            controlSpec("XMLG", 6, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Unterteilung verwenden"), "1", 0, 1),
            controlSpec("XMLG", 7, K::Checked,
                        QT_TRANSLATE_NOOP("Controls", "Unterteilung harmonisch"), "0", 0, 1),
            controlSpec("XMLG_Paint", 0, K::Checked, QT_TRANSLATE_NOOP("Controls", "Sonnenringe"),
                        "0", 0, 1),
            controlSpec("XMLG_Paint", 1, K::Checked, QT_TRANSLATE_NOOP("Controls", "Rosette"), "0",
                        0, 1),
            controlSpec("XMLG_Paint", 2, K::Checked, QT_TRANSLATE_NOOP("Controls", "Blume"), "0", 0,
                        1),
            controlSpec("XMLG_Paint", 3, K::Checked, QT_TRANSLATE_NOOP("Controls", "Pflanzen"), "0",
                        0, 1),
            controlSpec("XMLG_Paint", 4, K::Checked, QT_TRANSLATE_NOOP("Controls", "Berge"), "0", 0,
                        1),
            controlSpec("XMLG_Paint", 5, K::Checked, QT_TRANSLATE_NOOP("Controls", "Kristalle"),
                        "0", 0, 1),
            controlSpec("optXMLGForms", -1, K::ListIndex, QT_TRANSLATE_NOOP("Controls", " Formen "),
                        "0", 0, 2,
                        {QT_TRANSLATE_NOOP("Controls", "Ohne"), QT_TRANSLATE_NOOP("Controls", "Sonne"),
                         QT_TRANSLATE_NOOP("Controls", "Rechteck")}),
            controlSpec("txtMLGKachel", 0, K::Text, QT_TRANSLATE_NOOP("Controls", "H-Splits"), "2",
                        2, 50),
            controlSpec("txtMLGKachel", 1, K::Text, QT_TRANSLATE_NOOP("Controls", "V-Splits"), "2",
                        2, 50),
            controlSpec("txtMLGKachel", 2, K::Text, QT_TRANSLATE_NOOP("Controls", "Randabstand"),
                        "0", -128, 256),
            controlSpec("txtMLGKachel", 3, K::Text, QT_TRANSLATE_NOOP("Controls", "Rahmendicke"),
                        "20", 2, 1000),
            controlSpec("txtMLGKachel", 4, K::Text,
                        QT_TRANSLATE_NOOP("Controls", "Grössen-Korrektur %"), "0", -100, 500),
        },
        {
            {"BtnMLG_Repaint_0", QT_TRANSLATE_NOOP("Controls", "Repaint letztes Set"),
             BtnMLG_Repaint},
            {"BtnMLG_Repaint_1", QT_TRANSLATE_NOOP("Controls", "Neue Werte"), BtnMLG_NewValues},
        },
        {
            setsWhen(isOn("XMLG", 2), {controlKey("XBorders")}, "1"),
            enabledOnlyWith({controlKey("txtMLGKachel", 3)}, {isOn("XMLG", 5)}),
            enabledOnlyWith({controlKey("XMLG", 7)}, {isOn("XMLG", 6)}),
        }};
    return panel;
}

} // namespace

PaintOutcome BtnMLG_Repaint(Session &s) { return paintLeadGlassAgain(s, true); }
PaintOutcome BtnMLG_NewValues(Session &s) { return paintLeadGlassAgain(s, false); }

void registerLeadGlassPanels() { registerControlPanel(&leadGlassPanel()); }

} // namespace tf
