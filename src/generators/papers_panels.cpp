#include "generators/papers.h"

#include "paint/controls.h"

#include <QtGlobal>

namespace tf {

namespace {

ControlSpec control(const char *name, int index, ControlKind kind, const char *caption,
                    const char *defaultValue, int min = 0, int max = -1)
{
    ControlSpec s;
    s.key = ControlKey{QString::fromLatin1(name), index};
    s.kind = kind;
    s.caption = caption;
    s.defaultValue = QString::fromLatin1(defaultValue);
    s.min = min;
    s.max = max;
    return s;
}

const ControlPanel &papersPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(PapersPanelName),
        QT_TRANSLATE_NOOP("Controls", "Papiere"),
        {
            control("scrollPaperAngle", -1, ControlKind::Value,
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
            control("XJalousieG", 0, ControlKind::Checked,
                    QT_TRANSLATE_NOOP("Controls", "4 Farben"), "0", 0, 1),
            control("XJalousieG", 1, ControlKind::Checked,
                    QT_TRANSLATE_NOOP("Controls", "Diagonal"), "0", 0, 1),
            control("txtStep", -1, ControlKind::Text,
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
