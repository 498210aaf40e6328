#include "paint/catalogue.h"

#include <QFileInfo>
#include <QtGlobal>
#include <array>
#include <cstring>

namespace tf {

namespace {

constexpr CatalogueRow Separator{"-", "-", "-"};

constexpr CatalogueRow group1[] = {
    {"Backgroundcolor", "Backgroundcolor", "Hintergrundfarbe"},
    {"Boxes-Kreisradius", "Boxes / Circumcircle", "Rechtecke / Viertelkreis"},
    {"Boxes-Randomized", "Boxes / Overlap", "Rechtecke / Überlappend"},
    {"Squares-Randomized", "Squares / Overlap", "Quadrate / Überlappend"},
    {"Kacheln", "Colored Tiles", "Farbkachel"},
    {"Tunnel", "Tunnel", "Tunnel"},
    Separator,
    {"Lines-Quarterarea", "Lines / Quarterarea", "Linien / Viertelkreis"},
    {"Lines-Polygonal", "Lines / Polygonal", "Linien / Polygonal"},
    {"Lines-Mikado", "Lines / Mikado", "Linien / Mikado"},
    Separator,
    {"Bitblt-Kacheln", "Picture blocks", "Bild kacheln"},
    {"Bitblt-Schmieren", "Picture smear", "Bild schmieren"},
};

constexpr CatalogueRow group2[] = {
    {"Filled-Triangles", "Triangles / Filled", "Gefüllte Dreiecke"},
    Separator,
    {"ART-Mondrian", "Mondrian", "Mondrian"},
    {"ART-MondrianSuper", "Mondrian - Supersize", "Mondrian - Superformat"},
    {"PIC-Mosaik", "Photo mosaic", "Fotomosaik"},
    {"PIC-MosaikSuper", "Photo mosaic - Supersize", "Fotomosaik - Superformat"},
    {"PIC-DiaShow", "Picture presentation", "Bildpräsentation"},
    Separator,
    {"ART-Mondrian-LeadGlass", "Lead glass windows", "Bleiglas-Fenster"},
    Separator,
    {"ART-Cathedral-LeadGlass", "Cathedral rosette", "Kathedralen-Rosette"},
    Separator,
    {"Photo-CUBE", "Photo cube", "Foto-Würfel"},
    {"Photo-CUBESuper", "Photocube Supersize", "Fotowürfel -Superformat"},
    // The larger dimensioning only:
    Separator,
    {"Interne Kacheln", "Internal tiles", "Interne Kacheln"},
};

constexpr CatalogueRow group3[] = {
    {"Poly-Elliptic", "Ellipses", "Ellipsen"},
    {"Poly-Area", "Polygons", "Polygon"},
    Separator,
    {"Circles", "Circles", "Kreise    (konzentrisch)"},
    {"Circle-Ellipses", "Ellipses", "Ellipsen  (konzentrisch)"},
    {"Circle-Kegel", "Cones", "Konen    (konzentrisch)"},
    {"Circle-Waves", "Waves", "Wellen   (konzentrisch)"},
    Separator,
    {"Spiral", "Spiral", "Spirale"},
    {"Twister", "Twister", "Twister"},
    Separator,
    {"Soap-Bubbles", "Soap-Bubbles", "Seifenblasen"},
    {"Black Rain", "Black Rain", "Black Rain"},
    {"Snow", "Snow", "Schnee"},
    {"Confetti", "Confetti", "Konfetti"},
};

constexpr CatalogueRow group4[] = {
    {"Plasma", "Plasma", "Plasma"},
    Separator,
    {"Lissajou", "Lissa", "Lissa"},
    {"LissaBand", "Lissa animated", "Lissa Animationen"},
    {"70th-Rotating", "70-th", "70-th"},
    {"70th-Rotating-Crazy", "70-th   (Crazy)", "70-th   (Crazy)"},
    Separator,
    {"Rosetta", "Rosetta", "Rosetta"},
    {"Rosetta-Pixelized", "Rosetta  (Pixelized)", "Rosetta  (Pixelized)"},
    {"Rosetta-Crazy", "Rosetta  (Crazy)", "Rosetta  (Crazy)"},
    {"Rosetta-Pixelized-Crazy", "Rosetta  (Pixelized-Crazy)", "Rosetta  (Pixelized-Crazy)"},
    Separator,
    {"Thread-Rosette", "Thread-Rosette", "Faden-Rosette"},
    {"Spirograph", "Spirograph", "Spirograph"},
    {"Squares-In-Square", "Squares in Square", "Quadrate im Quadrat"},
    {"Rose", "Rose", "Rosen"},
    {"Rose-Crazy", "Rose   (Crazy)", "Rosen   (Crazy)"},
};

constexpr CatalogueRow group5[] = {
    {"H-Gradient", "H. Linear    (Pen)", "H. Linear    (Pen)"},
    {"V-Gradient", "V. Linear     (Pen)", "V. Linear     (Pen)"},
    {"Chromo-Steps", "Chromofilter (Steps)", "Chromofilter (Steps)"},
    {"Framegradient-Transp", "Framegradient (transp.)", "Rahmengradient (Transp.)"},
    {"Frequenzgradient-Transp", "Frequences (transp.)", "Frequenzen  (Transp.)"},
    Separator,
    {"Radial", "Radial", "Radial"},
    {"Sunburst", "Sunburst", "Sunburst"},
    {"Radial-4spirals", "Radial 4 spirals", "Radial 4 Spiralen"},
    Separator,
    {"Neonbars vertical", "Neonbars vertical", "Neonbalken vertikal"},
    {"Neon vertical", "Neon vertical", "Neon vertikal"},
    {"Horizon", "Horizon", "Horizont"},
    {"Lense", "Lense", "Linse"},
    {"Sky gradient", "Sky", "Himmel"},
    Separator,
    {"Mountains-Gradient", "Mountains", "Berge"},
    {"Fixed 4 squares", "Fixed 4 squares", "4 Rechtecke    (Fixiert)"},
    {"Randomized 4 squares", "Randomized 4 squares", "4 Rechtecke    (Zufall)"},
    {"Randomized bars", "Randomized bars", "Rechteckbalken (Zufall)"},
    {"Random Lines", "Randomized lines", "Linienbalken   (Zufall)"},
    {"Random Noise", "Noise", "Rauschen       (Zufall)"},
    Separator,
    {"Jalousie", "Jalousie", "Jalousie"},
    Separator,
    {"H-GradientCrazy", "Horiz. bands", "H. Bänder"},
    {"V-GradientCrazy", "Vert. bands", "V. Bänder"},
};

constexpr CatalogueRow group6[] = {
    {"Exchange Rates", "Exchange Rates", "Kurskurven"},
    {"Mountains-Pen", "Mountains (Pen)", "Berglinien  (Pen)"},
    {"Mountains", "Mountains", "Berge"},
    {"Soundwaves", "Sound waves", "Sound waves"},
    {"Sinus", "Sinus", "Sinuskurven"},
    {"Pulse", "Pulse", "Pulswellen"},
    {"Pulse-Sky", "Pulse filled sky", "Pulswellen  (Oben gefüllt)"},
    {"Pulse-Ground", "Pulse filled ground", "Pulswellen  (Unten gefüllt)"},
    {"Equalizer", "Equalizer", "Equalizer"},
    Separator,
    {"Horiz-Bars", "Horizontal stripes", "Horizontale Streifen"},
    {"Vertic-Bars", "Vertical stripes", "Vertikale Streifen"},
};

constexpr CatalogueRow group7[] = {
    {"TEXT-Dialog", "Text", "Text"},
    {"TEXT-Textblock", "Textblock", "Textblock"},
    Separator,
    {"TEXT-Mondrian-Raster", "Orthogonal Mondrian grid", "Orthogonales Mondriangitter"},
    {"TEXT-Simple-Raster", "Simple grid (fitting text)", "Einfaches Raster (Passung)"},
    {"TEXT-Spiral-Raster", "Spiral grid (fitting text)", "Spiralen Raster   (Passung)"},
    Separator,
    {"TEXT-StarRotated", "Rotated star", "Sternförmig gedreht"},
    {"TEXT-Circular", "Circular text", "Text auf Kreisumfang"},
    {"TEXT-Spiral", "Spiral text", "Textspirale"},
    Separator,
    {"The Matrix", "The Matrix", "The Matrix"},
};

constexpr CatalogueRow group8[] = {
    {"A-Rahmen-Standard", "Border outside", "Aussenrahmen"},
    {"I-Rahmen-Standard", "Border inside", "Innenrahmen / Trapez"},
    {"I-Rahmen-Random", "Border inside (irregular)", "Innenrahmen / Unregelmässig"},
    Separator,
    {"Border-Cut out Squares", "Cut out boxes", "Rechteck-Ausschnitte"},
    {"Border-Cut out Triangles", "Cut out triangles", "Dreieck-Ausschnitte"},
    {"Border-Cut out Mix", "Cut out mix", "Ausschnitt-Mix"},
    {"Border-Cut out Circles", "Cut out circles", "Kreis-Ausschnitte"},
    {"Border-V-Dia positive", "Film 24x36", "Film 24x36"},
    Separator,
    {"Border-Tiffany-Rect", "Tiffany frame (rect.)", "Tiffany Rahmen (Rechteck)"},
};

constexpr CatalogueRow group9[] = {
    {"LP-black", "LP    (Black)", "LP    (Schwarz)"},
    {"LP-cut out", "LP    (Cut out)", "LP    (Ausschnitt)"},
    {"LP-RING-cut out", "Ring  (Cut out)", "Ring  (Ausschnitt)"},
    Separator,
    {"CD-standard", "CD   (Standard)", "CD    (Standard)"},
    {"CD-colored", "CD   (Colored)", "CD    (Farbig)"},
    {"CD-cut out", "CD   (Cut out)", "CD    (Ausschnitt)"},
    Separator,
    {"Forms-Cut out Squares", "Squares       (Cut out)", "Quadratraster  (Ausschnitt)"},
    {"Forms-Cut out Areas", "Circlegrid     (Cut out)", "Kreisraster       (Ausschnitt)"},
    {"Forms-Cut out Rects", "Rectangles  (Cut out)", "Rechtecke      (Ausschnitt)"},
};

constexpr CatalogueRow group10[] = {
    {"PAP-Lines", "Lines", "Linien"},
    {"PAP-Notes", "Musical notation", "Notenlinien"},
    Separator,
    {"PAP-Karo", "Diamonds", "Karogitter"},
    Separator,
    {"Wave-Grid", "Wave grid", "Wellenmuster"},
};

const std::array<CatalogueGroup, GroupCount> &groups()
{
    static const std::array<CatalogueGroup, GroupCount> table = {{
        {"Boxes, Lines", QT_TRANSLATE_NOOP("Groups", "Rechtecke, Linien"), group1,
         std::size(group1)},
        {"Photo && Arts", QT_TRANSLATE_NOOP("Groups", "Foto && Künstler"), group2,
         std::size(group2) - 2},
        {"Round graphs", QT_TRANSLATE_NOOP("Groups", "Runde Graphen"), group3, std::size(group3)},
        {"pOp - Art ", QT_TRANSLATE_NOOP("Groups", "pOp - Art "), group4, std::size(group4)},
        {"Gradients", QT_TRANSLATE_NOOP("Groups", "Gradienten"), group5, std::size(group5)},
        {"Bars && Waves", QT_TRANSLATE_NOOP("Groups", "Balken && Kurven"), group6,
         std::size(group6)},
        {"Text", QT_TRANSLATE_NOOP("Groups", "Text"), group7, std::size(group7)},
        {"Borders", QT_TRANSLATE_NOOP("Groups", "Ränder"), group8, std::size(group8)},
        {"Forms", QT_TRANSLATE_NOOP("Groups", "Formen"), group9, std::size(group9)},
        {"Papers", QT_TRANSLATE_NOOP("Groups", "Papiermuster"), group10, std::size(group10)},
    }};
    return table;
}

std::optional<bool> g_tilesOverride;

} // namespace

bool CatalogueRow::isSeparator() const
{
    return std::strcmp(key, SeparatorKey) == 0;
}

QString CatalogueRow::caption(Language lang) const
{
    return QString::fromUtf8(lang == Language::English ? english : german);
}

const CatalogueGroup *catalogueGroup(int group)
{
    return group >= 1 && group <= GroupCount ? &groups()[size_t(group - 1)] : nullptr;
}

std::span<const CatalogueRow> groupRows(int group)
{
    const CatalogueGroup *g = catalogueGroup(group);
    if (!g) return {};
    return internalTilesAvailable() ? g->allRows : g->allRows.first(g->smallRowCount);
}

const CatalogueRow *groupRow(int group, int listIndex)
{
    const auto rows = groupRows(group);
    return listIndex >= 0 && size_t(listIndex) < rows.size() ? &rows[size_t(listIndex)] : nullptr;
}

QStringList typeCaptions(int group)
{
    QStringList out;
    for (const CatalogueRow &row : groupRows(group))
        out << row.caption();
    return out;
}

const char *groupTitle(int group)
{
    const CatalogueGroup *g = catalogueGroup(group);
    return g ? g->german : "";
}

QString groupCaption(int group, Language lang)
{
    const CatalogueGroup *g = catalogueGroup(group);
    return g ? QString::fromUtf8(lang == Language::English ? g->english : g->german) : QString();
}

QString groupLabel(int group)
{
    return groupCaption(group, currentLanguage()).replace(QStringLiteral("&&"), QStringLiteral("&"));
}

std::optional<TypeLocation> findType(const QString &key)
{
    if (key == QLatin1String(SeparatorKey)) return std::nullopt;
    for (int group = 1; group <= GroupCount; ++group) {
        const auto rows = groupRows(group);
        for (size_t i = 0; i < rows.size(); ++i)
            if (key == QString::fromUtf8(rows[i].key)) return TypeLocation{group, int(i)};
    }
    return std::nullopt;
}

bool internalTilesAvailable()
{
    if (g_tilesOverride) return *g_tilesOverride;
    return QFileInfo(QStringLiteral(":/tiles")).isDir();
}

void setInternalTilesAvailable(std::optional<bool> available)
{
    g_tilesOverride = available;
}

} // namespace tf
