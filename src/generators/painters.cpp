#include "generators/painters.h"

#include "generators/gradientpanels.h"
#include "generators/gradients.h"
#include "generators/borders.h"
#include "generators/centrepanels.h"
#include "generators/circlegradients.h"
#include "generators/curves.h"
#include "generators/diashow.h"
#include "generators/matrixrain.h"
#include "generators/mountains.h"
#include "generators/cathedral.h"
#include "generators/leadglass.h"
#include "generators/mondrian.h"
#include "generators/papers.h"
#include "generators/picmosaik.h"
#include "generators/photocubepaint.h"
#include "generators/photocubepanel.h"
#include "generators/plasmapaint.h"
#include "generators/polygraphics.h"
#include "generators/polypanels.h"
#include "generators/rosettes.h"
#include "generators/wavegrid.h"
#include "generators/textpanels.h"
#include "generators/textraster.h"
#include "generators/texts.h"
#include "generators/webtiles.h"
#include "paint/grafdialogpanel.h"

#include <array>

namespace tf {

namespace {
constexpr bool Prepare = true;
constexpr bool NoUndo = false; // paints into another window, or needs no undo image
constexpr bool OverPicture = true; // reworks the picture that stands
} // namespace

std::span<const PainterEntry> painterTable()
{
    // Every key of the catalogue once, in the catalogue's order; null: not built in yet.
    static constexpr PainterEntry table[] = {
        // Group 1
        {"Backgroundcolor", paintBackgroundcolor, Prepare},
        {"Boxes-Kreisradius", paintBoxesKreisradius, Prepare},
        {"Boxes-Randomized", paintBoxesRandomized, Prepare},
        {"Squares-Randomized", paintSquaresRandomized, Prepare},
        {"Kacheln", paintKacheln, Prepare},
        {"Tunnel", paintTunnel, Prepare},
        {"Lines-Quarterarea", paintLinesQuarterarea, Prepare},
        {"Lines-Polygonal", paintLinesPolygonal, Prepare},
        {"Lines-Mikado", paintLinesMikado, Prepare},
        {"Bitblt-Kacheln", paintBitbltKacheln, NoUndo, OverPicture},
        {"Bitblt-Schmieren", paintBitbltSchmieren, NoUndo, OverPicture},
        // Group 2
        {"Filled-Triangles", paintFilledTriangles, Prepare},
        {"ART-Mondrian", paintMondrian, Prepare},
        {"ART-MondrianSuper", paintMondrianSuper, NoUndo},
        {"PIC-Mosaik", paintPicMosaik, Prepare},
        {"PIC-MosaikSuper", paintPicMosaikSuper, NoUndo},
        {"PIC-DiaShow", paintPicDiaShow, NoUndo},
        {"ART-Mondrian-LeadGlass", paintLeadGlass, Prepare},
        {"ART-Cathedral-LeadGlass", paintCathedralWindow, Prepare},
        {"Photo-CUBE", paintPhotoCube, Prepare},
        {"Photo-CUBESuper", paintPhotoCubeSuper, NoUndo},
        {"Interne Kacheln", Create_Interne_Webtiles, Prepare},
        // Group 3
        {"Poly-Elliptic", paintPolyElliptic, Prepare},
        {"Poly-Area", paintPolyArea, Prepare},
        {"Circles", paintCircles, Prepare},
        {"Circle-Ellipses", paintCircleEllipses, Prepare},
        {"Circle-Kegel", paintCircleKegel, Prepare},
        {"Circle-Waves", paintCircleWaves, Prepare},
        {"Spiral", paintSpiral, Prepare},
        {"Twister", paintTwister, Prepare},
        {"Soap-Bubbles", paintSoapBubbles, Prepare},
        {"Black Rain", paintBlackRain, Prepare},
        {"Snow", paintSnow, Prepare},
        {"Confetti", paintConfetti, Prepare},
        // Group 4
        {"Plasma", Create_Plasma, Prepare},
        {"Lissajou", paintLissajou, Prepare},
        {"LissaBand", paintLissaBand, Prepare},
        {"70th-Rotating", paintRotating70th, Prepare},
        {"70th-Rotating-Crazy", paintRotating70thCrazy, Prepare},
        {"Rosetta", paintRosetta, Prepare},
        {"Rosetta-Pixelized", paintRosettaPixelized, Prepare},
        {"Rosetta-Crazy", paintRosettaCrazy, Prepare},
        {"Rosetta-Pixelized-Crazy", paintRosettaPixelizedCrazy, Prepare},
        {"Thread-Rosette", Circle_Rosette, Prepare},
        {"Spirograph", Do_Spirograph, Prepare},
        {"Squares-In-Square", Draw_SQINSQ, Prepare},
        {"Rose", paintRose, Prepare},
        {"Rose-Crazy", paintRoseCrazy, Prepare},
        // Group 5
        {"H-Gradient", paintHGradient, Prepare},
        {"V-Gradient", paintVGradient, Prepare},
        {"Chromo-Steps", Create_GradientChromo, Prepare},
        {"Framegradient-Transp", Create_GradientFrames, Prepare},
        {"Frequenzgradient-Transp", Create_GradientFrequences, Prepare},
        {"Radial", paintRadial, Prepare},
        {"Sunburst", paintSunburst, Prepare},
        {"Radial-4spirals", paintRadial4Spirals, Prepare},
        {"Neonbars vertical", paintNeonbarsVertical, Prepare},
        {"Neon vertical", paintNeonVertical, Prepare},
        {"Horizon", paintHorizon, Prepare},
        {"Lense", paintLense, Prepare},
        {"Sky gradient", paintSkyGradient, Prepare},
        {"Mountains-Gradient", paintMountainsGradient, Prepare},
        {"Fixed 4 squares", paintFixed4Squares, Prepare},
        {"Randomized 4 squares", paintRandomized4Squares, Prepare},
        {"Randomized bars", paintRandomizedBars, Prepare},
        {"Random Lines", paintRandomLines, Prepare},
        {"Random Noise", paintRandomNoise, Prepare},
        {"Jalousie", Create_Jalousie, Prepare},
        {"H-GradientCrazy", paintHGradientCrazy, Prepare},
        {"V-GradientCrazy", paintVGradientCrazy, Prepare},
        // Group 6
        {"Exchange Rates", paintExchangeRates, Prepare},
        {"Mountains-Pen", paintMountainsPen, Prepare},
        {"Mountains", paintMountains, Prepare},
        {"Soundwaves", paintSoundwaves, Prepare},
        {"Sinus", paintSinus, Prepare},
        {"Pulse", paintPulse, Prepare},
        {"Pulse-Sky", paintPulseSky, Prepare},
        {"Pulse-Ground", paintPulseGround, Prepare},
        {"Equalizer", paintEqualizer, Prepare},
        {"Horiz-Bars", paintHorizBars, Prepare},
        {"Vertic-Bars", paintVerticBars, Prepare},
        // Group 7
        {"TEXT-Dialog", paintTextDialog, Prepare},
        {"TEXT-Textblock", paintTextblock, Prepare},
        {"TEXT-Mondrian-Raster", paintTextMondrianRaster, Prepare},
        {"TEXT-Simple-Raster", paintTextSimpleRaster, Prepare},
        {"TEXT-Spiral-Raster", paintTextSpiralRaster, Prepare},
        {"TEXT-StarRotated", paintTextStar, Prepare},
        {"TEXT-Circular", paintTextCircular, Prepare},
        {"TEXT-Spiral", paintTextSpiral, Prepare},
        {"The Matrix", paintTheMatrix, NoUndo},
        // Group 8
        {"A-Rahmen-Standard", Create_Borders, Prepare},
        {"I-Rahmen-Standard", Create_Borders, Prepare},
        {"I-Rahmen-Random", Create_Borders, Prepare},
        {"Border-Cut out Squares", Create_Borders, Prepare},
        {"Border-Cut out Triangles", Create_Borders, Prepare},
        {"Border-Cut out Mix", Create_Borders, Prepare},
        {"Border-Cut out Circles", Create_Borders, Prepare},
        {"Border-V-Dia positive", Create_Borders, Prepare},
        {"Border-Tiffany-Rect", Create_Borders, Prepare},
        // Group 9
        {"LP-black", paintLPBlack, Prepare},
        {"LP-cut out", paintLPCutOut, Prepare},
        {"LP-RING-cut out", paintLPRingCutOut, Prepare},
        {"CD-standard", paintCDStandard, Prepare},
        {"CD-colored", paintCDColored, Prepare},
        {"CD-cut out", paintCDCutOut, Prepare},
        {"Forms-Cut out Squares", Create_Borders, Prepare},
        {"Forms-Cut out Areas", Create_Borders, Prepare},
        {"Forms-Cut out Rects", Create_Borders, Prepare},
        // Group 10
        {"PAP-Lines", Create_Papers, Prepare},
        {"PAP-Notes", Create_Papers, Prepare},
        {"PAP-Karo", Create_Papers, Prepare},
        {"Wave-Grid", paintWaveGrid, Prepare},
    };
    return table;
}

void registerAllPanels()
{
    static const bool once = [] {
        registerPaintPanels();
        registerGradientPanels();
        registerPolyPanels();
        registerPaperPanels();
        registerFramePanels();
        registerCentrePanels();
        registerTextPanels();
        registerOrthoTextPanel();
        registerMondrianPanels();
        registerPlasmaPanels();
        registerPhotoCubePanel();
        return true;
    }();
    (void)once;
}

} // namespace tf
