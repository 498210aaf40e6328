#include "filters/filtertable.h"

#include "filters/distortions.h"
#include "filters/kernels.h"

#include <QRegularExpression>

namespace tf {

namespace {

using M = FilterMenu;
using R = RunMode;
using A = ArgumentRule;

constexpr FilterMenuTitle Menus[] = {
    {M::Main, "Fi&lter", "Fi&lters"},
    {M::Edges, "&Kanten und Relief", "&Edges and relief"},
    {M::Brightness, "&Helligkeit", "&Brightness"},
    {M::Contrast, "K&ontrast", "C&ontrast"},
    {M::Colours, "&Farben", "&Colours"},
    {M::Channels, "Farb&kanäle", "Colour c&hannels"},
    {M::Reduce, "Farben &reduzieren", "&Reduce colours"},
    {M::Distortion, "&Transformieren", "&Distortions"},
};

// ---- Menu entries, one array per number -------------------------------------------------------
constexpr FilterMenuEntry E1[] = {
    {"mn_Sharpen", -1, "Schar&fzeichnen", "S&harpen", R::Direct, 36, A::Fixed, M::Main, 10, false},
    {"mn_SharpenMore", -1, "Stark scharfzeichnen", "Sharpen more", R::Direct, 16, A::Fixed, M::Main, 11, false}};
constexpr FilterMenuEntry E2[] = {
    {"mn_Negative", -1, "Umkehren", "Negative", R::Direct, 0, A::Fixed, M::Colours, 10, false}};
constexpr FilterMenuEntry E3[] = {
    {"mn_BlurMore", -1, "Stark weichzeichnen", "Blur more", R::Direct, 0, A::Fixed, M::Main, 13, false}};
constexpr FilterMenuEntry E4[] = {
    {"mn_Diffuse", -1, "Zerstreuen...", "Diffuse...", R::Dialog, 0, A::Fixed, M::Main, 20, true}};
constexpr FilterMenuEntry E5[] = {
    {"mn_Blur", -1, "Weichzeichnen", "Blur", R::Direct, 0, A::Fixed, M::Main, 12, false}};
constexpr FilterMenuEntry E6[] = {
    {"mn_Edge", -1, "K&anten hervorheben", "Find &edges", R::TargetRoutine, 0, A::Fixed, M::Edges, 10, false}};
constexpr FilterMenuEntry E7[] = {
    {"mn_Contour", -1, "Konturen finden", "Find contours", R::TargetRoutine, 0, A::ReliefColour, M::Edges, 11, false}};
constexpr FilterMenuEntry E8[] = {
    {"mn_Emboss", -1, "Prägen", "Emboss", R::TargetRoutine, 0, A::ReliefColour, M::Edges, 20, true}};
constexpr FilterMenuEntry E9[] = {
    {"mn_EmbossMore", -1, "Stärker Präge&n", "Emboss &more", R::TargetRoutine, 0, A::ReliefColour, M::Edges, 21, false}};
constexpr FilterMenuEntry E10[] = {
    {"mn_Engrave", -1, "Erheben", "Engrave", R::TargetRoutine, 0, A::ReliefColour, M::Edges, 22, false}};
constexpr FilterMenuEntry E11[] = {
    {"mn_EngraveMore", -1, "Stärker er&heben", "Engrave m&ore", R::TargetRoutine, 0, A::ReliefColour, M::Edges, 23, false}};
constexpr FilterMenuEntry E12[] = {
    {"mn_GreyScale", -1, "Graustufen", "Greyscale", R::TargetRoutine, 0, A::Fixed, M::Colours, 11, false}};
constexpr FilterMenuEntry E13[] = {
    {"mn_Relief", -1, "Relief", "Relief", R::TargetRoutine, 0, A::Fixed, M::Edges, 24, false}};
constexpr FilterMenuEntry E14[] = {
    {"mn_Brighter", -1, "Er&höhen", "&Increase", R::Direct, 5, A::Fixed, M::Brightness, 10, false},
    {"mn_Darker", -1, "Reduzieren", "Decrease", R::Direct, -5, A::Fixed, M::Brightness, 11, false},
    {"mn_HelligkeitDialog", -1, "Dialog...", "Dialog...", R::Dialog, 0, A::Fixed, M::Brightness, 12, true}};
constexpr FilterMenuEntry E15[] = {
    {"mn_Pixelize", -1, "Mosaik...", "Mosaic...", R::Dialog, 0, A::Fixed, M::Main, 21, false}};
constexpr FilterMenuEntry E16[] = {
    {"mn_SwapBank", 1, "1 RGB --> BRG", "1 RGB --> BRG", R::TargetRoutine, 1, A::Fixed, M::Channels, 11, true},
    {"mn_SwapBank", 2, "2 RGB --> GBR", "2 RGB --> GBR", R::TargetRoutine, 2, A::Fixed, M::Channels, 12, false},
    {"mn_SwapBank", 3, "3 RGB --> RBG", "3 RGB --> RBG", R::TargetRoutine, 3, A::Fixed, M::Channels, 13, false},
    {"mn_SwapBank", 4, "4 RGB --> BGR", "4 RGB --> BGR", R::TargetRoutine, 4, A::Fixed, M::Channels, 14, false},
    {"mn_SwapBank", 5, "5 RGB --> GRB", "5 RGB --> GRB", R::TargetRoutine, 5, A::Fixed, M::Channels, 15, false}};
constexpr FilterMenuEntry E17[] = {
    {"mnuContrast1", -1, "Er&höhen", "&Increase", R::Direct, 10, A::Fixed, M::Contrast, 10, false},
    {"mn_Contrast2", -1, "Reduzieren", "Decrease", R::Direct, -10, A::Fixed, M::Contrast, 11, false},
    {"mn_KontrastDialog", -1, "Dialog...", "Dialog...", R::Dialog, 0, A::Fixed, M::Contrast, 12, true}};
constexpr FilterMenuEntry E18[] = {
    {"mn_BW1", -1, "Farbwert", "By colour value", R::TargetRoutine, 0, A::ThresholdColour, M::Reduce, 20, true}};
constexpr FilterMenuEntry E19[] = {
    {"mn_BW2", -1, "Diffusion", "Diffusion", R::TargetRoutine, 0, A::Fixed, M::Reduce, 21, false}};
constexpr FilterMenuEntry E20[] = {
    {"mn_BW3", -1, "Raster", "Ordered raster", R::TargetRoutine, 0, A::Fixed, M::Reduce, 22, false}};
constexpr FilterMenuEntry E21[] = {
    {"mn_BW4", -1, "Fl&oyd-Steinberg", "Fl&oyd-Steinberg", R::TargetRoutine, 0, A::Fixed, M::Reduce, 23, false}};
constexpr FilterMenuEntry E22[] = {
    {"mn_BW5", -1, "Burke", "Burke", R::TargetRoutine, 0, A::Fixed, M::Reduce, 24, false}};
constexpr FilterMenuEntry E23[] = {
    {"mn_BW6", -1, "Stucki", "Stucki", R::TargetRoutine, 0, A::Fixed, M::Reduce, 25, false}};
constexpr FilterMenuEntry E24[] = {
    {"mn_Aqua", -1, "Pastellfarben", "Pastel colours", R::Direct, 0, A::Fixed, M::Main, 26, false}};
constexpr FilterMenuEntry E25[] = {
    {"mn_Dilate", -1, "Dunkle Bereiche verkleinern", "Dark areas smaller", R::TargetRoutine, 0, A::Fixed, M::Edges, 30, true}};
constexpr FilterMenuEntry E26[] = {
    {"mn_Erode", -1, "Dunkle Bereiche vergrößern", "Dark areas larger", R::TargetRoutine, 0, A::Fixed, M::Edges, 31, false}};
constexpr FilterMenuEntry E27[] = {
    {"mn_Connection", -1, "Verbundene Konturen", "Connected contours", R::TargetRoutine, 0, A::Fixed, M::Edges, 12, false}};
constexpr FilterMenuEntry E28[] = {
    {"mn_Stretch", -1, "Ausweiten", "Stretch", R::Direct, 0, A::Fixed, M::Colours, 16, false}};
constexpr FilterMenuEntry E29[] = {
    {"mn_AddNoise", -1, "Rauschen hinzufügen...", "Add noise...", R::Dialog, 0, A::Fixed, M::Main, 22, false}};
constexpr FilterMenuEntry E30[] = {
    {"mn_Sättigung", -1, "Sättigung...", "Saturation...", R::Dialog, 0, A::Fixed, M::Colours, 12, false}};
constexpr FilterMenuEntry E31[] = {
    {"mn_Gamma", -1, "Ga&mmakorrektur...", "&Gamma correction...", R::Dialog, 0, A::Fixed, M::Colours, 13, false}};
constexpr FilterMenuEntry E32[] = {
    {"mn_FiltFarbDuotone", -1, "Duotone", "Duotone", R::Direct, 0, A::CurrentColour, M::Colours, 14, false}};
constexpr FilterMenuEntry E33[] = {
    {"mn_Despeckle", -1, "Störungen entfernen", "Despeckle", R::TargetRoutine, 0, A::Fixed, M::Main, 23, false}};
constexpr FilterMenuEntry E34[] = {
    {"mn_Equalize", -1, "To&nwertangleichung", "E&qualize", R::TargetRoutine, 0, A::Fixed, M::Colours, 15, false}};
constexpr FilterMenuEntry E35[] = {
    {"mn_Dissolve", -1, "Ö&lfarben [Sprenkeln]", "O&il colours [dissolve]", R::TargetRoutine, 0, A::Fixed, M::Main, 24, false}};
constexpr FilterMenuEntry E36[] = {
    {"mn_HalftoneGrid", -1, "Halbtonraster...", "Halftone grid...", R::Dialog, 0, A::Fixed, M::Main, 25, false}};
constexpr FilterMenuEntry E37[] = {
    {"mn_HueStretch", -1, "Farbtöne aus&weiten...", "Stretch &hues...", R::Dialog, 0, A::Fixed, M::Colours, 20, true}};
constexpr FilterMenuEntry E38[] = {
    {"mn_ShiftColor", -1, "Farbwerte an&heben...", "&Shift colour...", R::Dialog, 0, A::Fixed, M::Colours, 21, false}};
constexpr FilterMenuEntry E39[] = {
    {"mn_IsolateColor", -1, "Farbwert &isolieren...", "&Isolate colour...", R::Dialog, 0, A::Fixed, M::Colours, 22, false}};
constexpr FilterMenuEntry E40[] = {
    {"mn_ReplaceColor", -1, "Farbwert er&setzen...", "&Replace colour...", R::Dialog, 0, A::Fixed, M::Colours, 23, false}};
constexpr FilterMenuEntry E41[] = {
    {"mn_ReduceColor", -1, "Reduzieren...", "Reduce...", R::Dialog, 0, A::Fixed, M::Reduce, 10, false}};
constexpr FilterMenuEntry E42[] = {
    {"mn_AddLight", -1, "Lichtquelle...", "Light source...", R::Dialog, 0, A::Fixed, M::Main, 27, false}};
constexpr FilterMenuEntry E43[] = {
    {"mn_SwapBank", 0, "Dialog...", "Dialog...", R::Dialog, 0, A::Fixed, M::Channels, 10, false}};
constexpr FilterMenuEntry E44[] = {
    {"mn_shiftRGB", -1, "RG&B Stufen...", "RG&B steps...", R::Dialog, 0, A::Fixed, M::Colours, 24, false}};
constexpr FilterMenuEntry E47[] = {
    {"mn_Distortion", -1, "Li&nse...", "Le&ns...", R::Dialog, 0, A::Fixed, M::Distortion, 21, false}};
constexpr FilterMenuEntry E48[] = {
    {"mn_Distortion", -1, "Wellen...", "Waves...", R::Dialog, 0, A::Fixed, M::Distortion, 14, false}};
constexpr FilterMenuEntry E49[] = {
    {"mn_Distortion", -1, "Polarkoordinaten...", "Polar coordinates...", R::Dialog, 0, A::Fixed, M::Distortion, 22, false}};
constexpr FilterMenuEntry E50[] = {
    {"mn_Distortion", -1, "Str&udel...", "T&wirl...", R::Dialog, 0, A::Fixed, M::Distortion, 23, false}};
constexpr FilterMenuEntry E51[] = {
    {"mn_Distortion", -1, "Ver&biegen...", "&Bend...", R::Dialog, 0, A::Fixed, M::Distortion, 32, false}};
constexpr FilterMenuEntry E52[] = {
    {"mn_Distortion", -1, "&Stre&cken...", "Str&etch...", R::Dialog, 0, A::Fixed, M::Distortion, 40, true}};
constexpr FilterMenuEntry E53[] = {
    {"mn_Rotation", -1, "Drehen &Grad...", "Rotate by &degrees...", R::Dialog, 0, A::Fixed, M::Distortion, 50, true}};
constexpr FilterMenuEntry E54[] = {
    {"mn_CnvWebColors", -1, "Web-Sichere &Farben", "&Web-safe colours", R::Direct, 0, A::Fixed, M::Reduce, 30, true}};
constexpr FilterMenuEntry E1000[] = {
    {"mn_Distortion", -1, "&Stundenglas", "&Hourglass", R::Dialog, 0, A::Fixed, M::Distortion, 10, false}};
constexpr FilterMenuEntry E1001[] = {
    {"mn_Distortion", -1, "&Vase", "&Vase", R::Dialog, 0, A::Fixed, M::Distortion, 11, false}};
constexpr FilterMenuEntry E1002[] = {
    {"mn_Distortion", -1, "&Torso", "&Torso", R::Dialog, 0, A::Fixed, M::Distortion, 12, false}};
constexpr FilterMenuEntry E1003[] = {
    {"mn_Distortion", -1, "&Lampion", "&Lantern", R::Dialog, 0, A::Fixed, M::Distortion, 13, false}};
constexpr FilterMenuEntry E1005[] = {
    {"mn_Distortion", -1, "Tric&hter", "F&unnel", R::Dialog, 0, A::Fixed, M::Distortion, 30, true}};
constexpr FilterMenuEntry E1006[] = {
    {"mn_Distortion", -1, "&Dach", "&Roof", R::Dialog, 0, A::Fixed, M::Distortion, 31, false}};
constexpr FilterMenuEntry E1008[] = {
    {"mn_Distortion", -1, "&Fishauge", "&Fisheye", R::Dialog, 0, A::Fixed, M::Distortion, 20, true}};
constexpr FilterMenuEntry E1009[] = {
    {"mn_Distortion", -1, "P&arabel", "P&arabola", R::Dialog, 0, A::Fixed, M::Distortion, 24, false}};

// ---- Dialog sliders ---------------------------------------------------------------------------
constexpr FilterSlider S4[] = {{"Faktor", "Factor", 2, 262, 2, 20}};
constexpr FilterSlider S14[] = {{"Faktor", "Factor", -100, 300, 0, 20}};
constexpr FilterSlider S15[] = {{"Faktor", "Factor", 2, 66, 2, 4}};
constexpr FilterSlider S29[] = {{"Faktor", "Factor", 2, 502, 20, 25}};
constexpr FilterSlider S30[] = {{"Faktor", "Factor", -100, 2000, 10, 210}};
constexpr FilterSlider S31[] = {{"Faktor", "Factor", 1, 500, 100, 25, true}};
constexpr FilterSlider S36[] = {{"Radius", "Radius", 1, 25, 1, 1},
                                {"Definition", "Definition", 0, 100, 50, 10},
                                {"Intensität", "Intensity", 0, 100, 0, 10}};
constexpr FilterSlider S37[] = {{"Offset", "Offset", 0, 100, 0, 10},
                                {"Sättigung", "Saturation", 0, 100, 100, 10},
                                {"Aufhellen", "Lighten", 0, 100, 0, 10}};
constexpr FilterSlider S38[] = {{"Wert", "Shift", -255, 255, -50, 25},
                                {"Toleranz", "Tolerance", 0, 200, 100, 10}};
constexpr FilterSlider S39[] = {{"Toleranz", "Tolerance", 0, 200, 100, 10}};
constexpr FilterSlider S41[] = {{"Faktor", "Factor", 0, 255, 0, 25}};
constexpr FilterSlider S42[] = {{"Ausdehnung", "Extension", 1, 100, 50, 10},
                                {"Intensität", "Intensity", 0, 500, 250, 50}};
constexpr FilterSlider S44[] = {{"Rot", "Red", -255, 255, 0, 51},
                                {"Grün", "Green", -255, 255, 0, 51},
                                {"Blau", "Blue", -255, 255, 0, 51}};
constexpr FilterSlider S47[] = {{"Durchmesser", "Diameter", 1, 100, 50, 10},
                                {"Skalierung", "Scaling", 0, 100, 50, 10}};
constexpr FilterSlider S48[] = {{"Durchmesser", "Frequency", 0, 100, 25, 10},
                                {"Skalierung", "Amplitude", 1, 100, 25, 10},
                                {"Startwinkel", "Start angle", 0, 360, 0, 36}};
constexpr FilterSlider S49[] = {{"Faktor", "Factor", -200, 200, 0, 20}};
constexpr FilterSlider S50[] = {{"Faktor", "Factor", -100, 100, 0, 10},
                                {"Winkel", "Angle", -180, 180, 0, 20}};
constexpr FilterSlider S51[] = {{"H.-Faktor", "H.-Factor", -150, 150, 0, 30},
                                {"V.-Faktor", "V.-Factor", -150, 150, 0, 30}};
constexpr FilterSlider S52[] = {{"H.-Faktor", "H.-Factor", -200, 300, 0, 50},
                                {"V.-Faktor", "V.-Factor", -200, 300, 0, 50}};
constexpr FilterSlider S53[] = {{"Winkel", "Angle", -180, 180, 0, 36},
                                {"Anti-Aliasing", "Anti-aliasing", 0, 1, 0, 1}};
// The colour mix has no dialog; its two values are sliders so that the command line sets
// them as it sets any filter's: the transparency of the mix (the share of the picture kept,
// as a paint's transparency) and the width of a frame fading inwards (0: the whole picture).
constexpr FilterSlider S45[] = {{"Transparenz", "Transparency", 0, 100, 50, 10},
                                {"Rahmen", "Border", 0, 1000, 0, 10}};
constexpr FilterSlider SShape[] = {{"Faktor", "Factor", 1, 100, 10, 10}};

constexpr ColorLong Red = 0x0000FF, Blue = 0xFF0000, Black = 0x000000, White = 0xFFFFFF;
constexpr std::array<ColorLong, 2> BlackWhite{Black, White};

using P = StartsPreviewed;

// A row of a filter that runs at once (no dialog).
constexpr FilterRow row(int n, const char *name, const char *de, const char *en, FilterKernel k,
                        Reads reads, std::span<const FilterMenuEntry> entries)
{
    return FilterRow{n, name, de, en, k, reads, entries, {}};
}

// A row of a dialog filter.
constexpr FilterRow dialog(int n, const char *name, const char *de, const char *en,
                           FilterKernel k, Reads reads, std::span<const FilterMenuEntry> entries,
                           std::span<const FilterSlider> sliders, P previewed,
                           int colourFields = 0,
                           std::array<ColorLong, 2> colours = BlackWhite,
                           bool beforeAfter = true, const char *promptDe = nullptr,
                           const char *promptEn = nullptr)
{
    FilterRow r{n, name, de, en, k, reads, entries, sliders};
    r.previewed = previewed;
    r.colourFields = colourFields;
    r.colourDefaults = colours;
    r.beforeAfter = beforeAfter;
    r.promptGerman = promptDe;
    r.promptEnglish = promptEn;
    return r;
}

// A shape of the distortion "Transformieren": runs as filter 46 with number - 1000.
constexpr FilterRow shape(int n, const char *name, const char *de, const char *en,
                          std::span<const FilterMenuEntry> entries)
{
    return dialog(n, name, de, en, TransGMirrors, Reads::Dst, entries, SShape, P::No, 0, BlackWhite, false);
}

constexpr FilterRow withMixer(FilterRow r)
{
    r.mixer = true;
    return r;
}

constexpr FilterRow withResize(FilterRow r)
{
    r.resizeOptions = true;
    return r;
}

constexpr const char *LightPromptDe = "Setzen Sie eine Lichtquelle...";
constexpr const char *LightPromptEn = "Set a light position...";
constexpr const char *PositionPromptDe = "Setzen Sie eine Position...";
constexpr const char *PositionPromptEn = "Set a position...";

const FilterRow Table[] = {
    row(1, "sharpen", "Scharfzeichnen", "Sharpen", filterSharpen, Reads::Dst, E1),
    row(2, "negative", "Umkehren", "Negative", filterNegative, Reads::Dst, E2),
    row(3, "blur-more", "Stark weichzeichnen", "Blur more", filterBlurMore, Reads::Dst, E3),
    dialog(4, "diffuse", "Zerstreuen", "Diffuse", filterDiffuse, Reads::Dst, E4, S4, P::No),
    row(5, "blur", "Weichzeichnen", "Blur", filterBlur, Reads::Dst, E5),
    row(6, "edge", "Kanten hervorheben", "Find edges", filterEdge, Reads::Dst, E6),
    row(7, "contour", "Konturen finden", "Find contours", filterContour, Reads::Src, E7),
    // Emboss and engrave read ahead of their write; the copy gives the same values.
    row(8, "emboss", "Prägen", "Emboss", filterEmboss, Reads::Src, E8),
    row(9, "emboss-more", "Stärker prägen", "Emboss more", filterEmbossMore, Reads::Src, E9),
    row(10, "engrave", "Erheben", "Engrave", filterEngrave, Reads::Src, E10),
    row(11, "engrave-more", "Stärker erheben", "Engrave more", filterEngraveMore, Reads::Src, E11),
    row(12, "greyscale", "Graustufen", "Greyscale", filterGreyScale, Reads::Dst, E12),
    row(13, "relief", "Relief", "Relief", filterRelief, Reads::Src, E13),
    dialog(14, "brightness", "Helligkeit", "Brightness", filterBrightness, Reads::Src, E14, S14, P::Yes),
    dialog(15, "mosaic", "Mosaik", "Mosaic", filterMosaic, Reads::Src, E15, S15, P::No),
    row(16, "swap-channels", "Farbkanäle tauschen", "Swap channels", filterSwapBank, Reads::Src, E16),
    dialog(17, "contrast", "Kontrast", "Contrast", filterContrast, Reads::Src, E17, S14, P::Yes),
    row(18, "bw-value", "Schwarzweiß nach Farbwert", "Black and white by value", filterBWValue, Reads::Src, E18),
    row(19, "bw-diffusion", "Schwarzweiß Diffusion", "Black and white diffusion", filterBWDiffusion, Reads::Src, E19),
    row(20, "bw-raster", "Schwarzweiß Raster", "Black and white raster", filterBWRaster, Reads::Src, E20),
    row(21, "floyd-steinberg", "Floyd-Steinberg", "Floyd-Steinberg", filterFloydSteinberg, Reads::Src, E21),
    row(22, "burke", "Burke", "Burke", filterBurke, Reads::Src, E22),
    row(23, "stucki", "Stucki", "Stucki", filterStucki, Reads::Src, E23),
    row(24, "pastel", "Pastellfarben", "Pastel colours", filterPastel, Reads::Src, E24),
    row(25, "dilate", "Dunkle Bereiche verkleinern", "Dark areas smaller", filterDilate, Reads::Src, E25),
    row(26, "erode", "Dunkle Bereiche vergrößern", "Dark areas larger", filterErode, Reads::Src, E26),
    row(27, "connected-contours", "Verbundene Konturen", "Connected contours", filterConnection, Reads::Src, E27),
    row(28, "stretch", "Ausweiten", "Stretch", filterStretch, Reads::Src, E28),
    dialog(29, "noise", "Rauschen hinzufügen", "Add noise", filterAddNoise, Reads::Src, E29, S29, P::No),
    dialog(30, "saturation", "Sättigung", "Saturation", filterSaturation, Reads::Src, E30, S30, P::No),
    dialog(31, "gamma", "Gammakorrektur", "Gamma correction", filterGamma, Reads::Src, E31, S31, P::Yes),
    row(32, "duotone", "Duotone", "Duotone", filterDuotone, Reads::Src, E32),
    row(33, "despeckle", "Störungen entfernen", "Despeckle", filterDespeckle, Reads::Dst, E33),
    row(34, "equalize", "Tonwertangleichung", "Equalize", filterEqualize, Reads::Src, E34),
    row(35, "oil-colours", "Ölfarben [Sprenkeln]", "Oil colours [dissolve]", filterDissolve, Reads::Steps, E35),
    dialog(36, "halftone-grid", "Halbtonraster", "Halftone grid", filterHalftoneGrid, Reads::Src, E36, S36, P::Yes),
    dialog(37, "hue-stretch", "Farbtöne ausweiten", "Stretch hues", filterHueStretch, Reads::Src, E37, S37, P::Yes, 2, {Red, Blue}, false),
    dialog(38, "shift-colour", "Farbwerte anheben", "Shift colour", filterShiftColor, Reads::Src, E38, S38, P::Position, 1, BlackWhite, false),
    dialog(39, "isolate-colour", "Farbwert isolieren", "Isolate colour", filterIsolateColor, Reads::Src, E39, S39, P::Position, 2, BlackWhite, false),
    dialog(40, "replace-colour", "Farbwert ersetzen", "Replace colour", filterReplaceColor, Reads::Src, E40, S39, P::Position, 2, BlackWhite, false),
    dialog(41, "reduce-colours", "Farben reduzieren", "Reduce colours", filterReduceColor, Reads::Src, E41, S41, P::Yes),
    dialog(42, "light-source", "Lichtquelle", "Light source", filterAddLight, Reads::Src, E42, S42, P::Position, 0, BlackWhite, false, LightPromptDe, LightPromptEn),
    withMixer(dialog(43, "channel-mixer", "Farbkanäle mischen", "Channel mixer", filterChannelMixer, Reads::Src, E43, {}, P::Yes)),
    dialog(44, "rgb-steps", "RGB Stufen", "RGB steps", filterShiftRGB, Reads::Src, E44, S44, P::Yes),
    // "Color from" starts as the background colour a session starts with.
    dialog(45, "colour-mix", "Farbmischung", "Colour mix", filterColourMix, Reads::Src, {}, S45, P::No, 1, {White, White}, false),
    row(46, "deformation", "Transformieren", "Deformation", TransGMirrors, Reads::Dst, {}),
    dialog(47, "lens", "Linse", "Lens", filterLens, Reads::Src, E47, S47, P::Position, 0, BlackWhite, false, PositionPromptDe, PositionPromptEn),
    dialog(48, "waves", "Wellen", "Waves", filterWaves, Reads::Src, E48, S48, P::No, 0, BlackWhite, false),
    dialog(49, "polar", "Polarkoordinaten", "Polar coordinates", filterPolar, Reads::Src, E49, S49, P::Yes, 0, BlackWhite, false),
    dialog(50, "twirl", "Strudel", "Twirl", filterTwirl, Reads::Src, E50, S50, P::Yes, 0, BlackWhite, false),
    dialog(51, "bend", "Verbiegen", "Bend", filterBend, Reads::Src, E51, S51, P::Yes, 0, BlackWhite, false),
    withResize(dialog(52, "stretch-shape", "Strecken", "Stretch shape", filterStretchShape, Reads::Src, E52, S52, P::Yes, 0, BlackWhite, false)),
    withResize(dialog(53, "rotate", "Drehen Grad", "Rotate by degrees", filterRotate, Reads::Src, E53, S53, P::Yes, 0, BlackWhite, false)),
    row(54, "web-colours", "Web-sichere Farben", "Web-safe colours", filterWebColors, Reads::Src, E54),
    shape(1000, "hourglass", "Stundenglas", "Hourglass", E1000),
    shape(1001, "vase", "Vase", "Vase", E1001),
    shape(1002, "torso", "Torso", "Torso", E1002),
    shape(1003, "lantern", "Lampion", "Lantern", E1003),
    shape(1004, "shape-4", "Form 4", "Shape 4", {}),
    shape(1005, "funnel", "Trichter", "Funnel", E1005),
    shape(1006, "roof", "Dach", "Roof", E1006),
    shape(1007, "shape-7", "Form 7", "Shape 7", {}),
    shape(1008, "fisheye", "Fishauge", "Fisheye", E1008),
    shape(1009, "parabola", "Parabel", "Parabola", E1009),
    shape(1010, "shape-10", "Form 10", "Shape 10", {}),
};

QString pick(Language lang, const char *de, const char *en)
{
    return QString::fromUtf8(lang == Language::English ? en : de);
}

} // namespace

std::span<const FilterMenuTitle> filterMenus()
{
    return Menus;
}

QString FilterSlider::label(Language lang) const
{
    return pick(lang, german, english);
}

QString FilterSlider::display(int value) const
{
    return asGamma ? QString::number(value / 100.0, 'f', 2) : QString::number(value);
}

QString FilterRow::caption(Language lang) const
{
    return pick(lang, german, english);
}

QString FilterRow::dialogTitle(Language lang) const
{
    const QString name = caption(lang);
    if (!isDistortion()) return name;
    return (lang == Language::English ? QStringLiteral("Deformation ")
                                      : QStringLiteral("Transformieren ")) + name;
}

QString FilterRow::prompt(Language lang) const
{
    return promptGerman ? pick(lang, promptGerman, promptEnglish) : QString();
}

std::span<const FilterRow> filterTable()
{
    return Table;
}

const FilterRow *findFilter(int number)
{
    for (const FilterRow &r : Table)
        if (r.number == number) return &r;
    return nullptr;
}

const FilterRow *findFilter(const QString &numberOrName)
{
    bool isNumber = false;
    const int n = numberOrName.toInt(&isNumber);
    if (isNumber) return findFilter(n);
    for (const FilterRow &r : Table)
        if (numberOrName.compare(QLatin1String(r.name), Qt::CaseInsensitive) == 0) return &r;
    return nullptr;
}

QString withoutAccelerator(const QString &text)
{
    QString out;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&')) {
            if (i + 1 < text.size() && text[i + 1] == QLatin1Char('&')) out += text[++i];
            continue;
        }
        out += text[i];
    }
    return out;
}

QString entryCaption(const FilterMenuEntry &e, Language lang)
{
    return pick(lang, e.german, e.english);
}

} // namespace tf
