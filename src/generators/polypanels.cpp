#include "generators/polypanels.h"

#include "generators/webtiles.h"

#include <QtGlobal>

namespace tf {

namespace {

using K = ControlKind;

const ControlPanel &tilesPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(TilesPanelName),
        QT_TRANSLATE_NOOP("Controls", "Kacheln"),
        {
            controlSpec("cmbKachelSize", -1, K::Value,
                    QT_TRANSLATE_NOOP("Controls", "Kacheln je Bildbreite"), "8", 1, 128),
        }};
    return panel;
}

const ControlPanel &ellipticPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(EllipticPanelName),
        QT_TRANSLATE_NOOP("Controls", "Ellipsen"),
        {
            controlSpec("optPEL_Style", -1, K::ListIndex, QT_TRANSLATE_NOOP("Controls", "Form"), "0",
                    0, 2,
                    {QT_TRANSLATE_NOOP("Controls", "Ellipsen"),
                     QT_TRANSLATE_NOOP("Controls", "Kreise"),
                     QT_TRANSLATE_NOOP("Controls", "Gemischt")}),
        }};
    return panel;
}

const ControlPanel &polyAreaPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(PolyAreaPanelName),
        QT_TRANSLATE_NOOP("Controls", "Vielecke und Sterne"),
        {
            controlSpec("cmbPolyType", -1, K::ListIndex, QT_TRANSLATE_NOOP("Controls", "Figur"), "1",
                    0, 2,
                    {QT_TRANSLATE_NOOP("Controls", "Vieleck"),
                     QT_TRANSLATE_NOOP("Controls", "Stern"),
                     QT_TRANSLATE_NOOP("Controls", "Gemischt")}),
            controlSpec("txtPolyCorners", -1, K::Text, QT_TRANSLATE_NOOP("Controls", "Ecken"), "5",
                    3, 24),
            controlSpec("cmbCMStar", -1, K::ListIndex, QT_TRANSLATE_NOOP("Controls", "Farbmodus"),
                    "0", 0, 2,
                    {QT_TRANSLATE_NOOP("Controls", "Einfache Farben"),
                     QT_TRANSLATE_NOOP("Controls", "Farbtabelle zufällig"),
                     QT_TRANSLATE_NOOP("Controls", "Farbtabelle aus zwei Farben")}),
        }};
    return panel;
}

const ControlPanel &lissajouPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(LissajouPanelName),
        QT_TRANSLATE_NOOP("Controls", "Lissajous-Figur"),
        {
            controlSpec("txtLissa", 0, K::Text, QT_TRANSLATE_NOOP("Controls", "Frequenz waagrecht"),
                    "3", 1, 2048),
            controlSpec("txtLissa", 1, K::Text, QT_TRANSLATE_NOOP("Controls", "Frequenz senkrecht"),
                    "4", 1, 2048),
        }};
    return panel;
}

const ControlPanel &rosePanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(RosePanelName),
        QT_TRANSLATE_NOOP("Controls", "Rose"),
        {
            controlSpec("txtRose", 0, K::Text, QT_TRANSLATE_NOOP("Controls", "Zähler"), "7", 1, 36),
            controlSpec("txtRose", 1, K::Text, QT_TRANSLATE_NOOP("Controls", "Nenner"), "4", 1, 35),
        }};
    return panel;
}

const ControlPanel &rosettePanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(RosettePanelName),
        QT_TRANSLATE_NOOP("Controls", "Fadenrosette"),
        {
            controlSpec("txtRosetteFactor", -1, K::Text, QT_TRANSLATE_NOOP("Controls", "Faktor"), "3",
                    2, 99),
        }};
    return panel;
}

std::vector<const char *> tileCaptions()
{
    std::vector<const char *> out;
    for (const Webtile &t : webtiles())
        out.push_back(t.caption);
    return out;
}

const ControlPanel &webtilesPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(WebtilesPanelName),
        QT_TRANSLATE_NOOP("Controls", "Interne Kacheln"),
        {
            controlSpec("cmbInterneKachel", -1, K::ListIndex,
                    QT_TRANSLATE_NOOP("Controls", "Kachel"), "0", 0,
                    int(webtiles().size()) - 1, tileCaptions()),
            controlSpec("XKachelFarben", -1, K::Checked,
                    QT_TRANSLATE_NOOP("Controls", "In den Malfarben"), "1", 0, 1),
        }};
    return panel;
}

const ControlPanel &matrixPanel()
{
    static const ControlPanel panel{
        QString::fromLatin1(MatrixPanelName),
        QT_TRANSLATE_NOOP("Controls", "Matrix"),
        {
            controlSpec("scrollMatrixGlyph", -1, K::Value,
                    QT_TRANSLATE_NOOP("Controls", "Zeichengröße"), "16", 8, 48, {}, " px"),
            controlSpec("scrollMatrixSpeed", -1, K::Value,
                    QT_TRANSLATE_NOOP("Controls", "Geschwindigkeit"), "5", 1, 10),
        }};
    return panel;
}

} // namespace

void registerPolyPanels()
{
    registerControlPanel(&tilesPanel());
    registerControlPanel(&ellipticPanel());
    registerControlPanel(&polyAreaPanel());
    registerControlPanel(&lissajouPanel());
    registerControlPanel(&rosePanel());
    registerControlPanel(&rosettePanel());
    registerControlPanel(&webtilesPanel());
    registerControlPanel(&matrixPanel());
}

} // namespace tf
