#include "paint/typepanels.h"

#include "paint/controls.h"
#include "paint/grafdialogpanel.h"
#include "paint/textstate.h"

#include <array>

namespace tf {

std::span<const TypePanel> typePanels()
{
    // Each family adds its types here as its panel lands.
    static constexpr TypePanel table[] = {
        {"Chromo-Steps", "feat_24Chromo"},
        {"Framegradient-Transp", "feat_25FrameGradient"},
        {"Frequenzgradient-Transp", "feat_26Frequenz"},
        {"Kacheln", "feat_02Kacheln"},
        {"Bitblt-Kacheln", "feat_02Kacheln"},
        {"Poly-Elliptic", "feat_03PolyElliptic"},
        {"Poly-Area", "feat_04PolyArea"},
        {"Lissajou", "feat_05Lissajou"},
        {"LissaBand", "feat_05Lissajou"},
        {"Rose", "feat_06Rose"},
        {"Rose-Crazy", "feat_06Rose"},
        {"Thread-Rosette", "feat_07Rosette"},
        {"Interne Kacheln", "feat_08InterneKacheln"},
        {"The Matrix", "feat_09Matrix"},
        {"Jalousie", "feat_06Jalousie"},
        {"PAP-Lines", "feat_08Papers"},
        {"PAP-Notes", "feat_08Papers"},
        {"PAP-Karo", "feat_08Papers"},
        {"A-Rahmen-Standard", "feat_10Rahmen"},
        {"I-Rahmen-Standard", "feat_10Rahmen"},
        {"I-Rahmen-Random", "feat_10Rahmen"},
        {"Border-Cut out Squares", "feat_10Rahmen"},
        {"Border-Cut out Triangles", "feat_10Rahmen"},
        {"Border-Cut out Mix", "feat_10Rahmen"},
        {"Border-Cut out Circles", "feat_10Rahmen"},
        {"Border-V-Dia positive", "feat_10Rahmen"},
        {"Border-Tiffany-Rect", "feat_10Rahmen"},
        {"Forms-Cut out Squares", "feat_10Rahmen"},
        {"Forms-Cut out Areas", "feat_10Rahmen"},
        {"Forms-Cut out Rects", "feat_10Rahmen"},
        {"Mountains", "feat_07Mountains"},
        {"Mountains-Pen", "feat_07Mountains"},
        {"Mountains-Gradient", "feat_07Mountains"},
        {"Radial", "feat_04CircleGradients"},
        {"Sunburst", "feat_04CircleGradients"},
        {"Radial-4spirals", "feat_04CircleGradients"},
        {"TEXT-Dialog", "feat_14Textdialog", TextDialogPanelName},
        {"TEXT-Textblock", "feat_13TextBlock", TextDialogPanelName},
        {"TEXT-Mondrian-Raster", "feat_02OrthoText1", TextDialogPanelName},
        {"TEXT-Simple-Raster", "feat_02OrthoText1", TextDialogPanelName},
        {"TEXT-Spiral-Raster", "feat_02OrthoText1", TextDialogPanelName},
        {"TEXT-StarRotated", "feat_11TextRotation", TextDialogPanelName},
        {"TEXT-Circular", "feat_12TextCircular", TextDialogPanelName},
        {"TEXT-Spiral", "feat_12TextCircular", TextDialogPanelName},
        {"ART-Mondrian", "feat_01Mondrian"},
        {"ART-MondrianSuper", "feat_01Mondrian"},
        {"ART-Mondrian-LeadGlass", "feat_20MLeadGlass"},
        {"ART-Cathedral-LeadGlass", "feat_21CathedralWindow"},
        {"Plasma", "feat_22Plasma"},
        {"PIC-Mosaik", "feat_15PicMosaik"},
        {"PIC-MosaikSuper", "feat_15PicMosaik"},
        {"PIC-DiaShow", "feat_15PicMosaik"},
        {"Photo-CUBE", "feat_16PhotoCube"},
        {"Photo-CUBESuper", "feat_16PhotoCube"},
    };
    return table;
}

QString optionPanelOf(const QString &key)
{
    for (const TypePanel &t : typePanels())
        if (key == QString::fromUtf8(t.key)) return QString::fromLatin1(t.panel);
    return QString();
}

QStringList panelsReadBy(const QString &key)
{
    QStringList out{QString::fromLatin1(GrafDialogPanelName)};
    for (const TypePanel &t : typePanels())
        if (t.dialog && key == QString::fromUtf8(t.key)) out << QString::fromLatin1(t.dialog);
    const QString own = optionPanelOf(key);
    if (!own.isEmpty()) out << own;
    return out;
}

bool readsPhotoSource(const QString &key)
{
    const QStringList names = panelsReadBy(key);
    for (const ControlPanel *panel : controlPanels()) {
        if (!names.contains(panel->name)) continue;
        for (const ControlSpec &def : panel->controls)
            if (def.key.name == QLatin1String("optPicMosaikSource")) return true;
    }
    return false;
}

} // namespace tf
