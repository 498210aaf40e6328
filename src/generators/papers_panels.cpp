#include "generators/papers.h"

#include "paint/controls.h"

#include <QtGlobal>

namespace tf {

namespace {

const ControlPanel &papersPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(PapersPanelName),
        QT_TRANSLATE_NOOP("Controls", "Papiere"),
        {
            controlSpec("scrollPaperAngle", -1, ControlKind::Value,
                    QT_TRANSLATE_NOOP("Controls", "Winkel"), "0", -80, 80),
        }};
    return panel;
}

const ControlPanel &jalousiePanel()
{
    // txtStep takes any text: the painter reads a step below 1 or a word as 1.
    static const ControlPanel panel{
        QString::fromLatin1(JalousiePanelName),
        QT_TRANSLATE_NOOP("Controls", "Jalousie"),
        {
            controlSpec("XJalousieG", 0, ControlKind::Checked,
                    QT_TRANSLATE_NOOP("Controls", "4 Farben"), "0", 0, 1),
            controlSpec("XJalousieG", 1, ControlKind::Checked,
                    QT_TRANSLATE_NOOP("Controls", "Diagonal"), "0", 0, 1),
            controlSpec("txtStep", -1, ControlKind::Text,
                    QT_TRANSLATE_NOOP("Controls", "Jalousie step 1-255"), "1"),
        }};
    return panel;
}

} // namespace

void registerPaperPanels()
{
    registerControlPanel(&papersPanel());
    registerControlPanel(&jalousiePanel());
}

} // namespace tf
