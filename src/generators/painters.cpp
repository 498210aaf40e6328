#include "generators/painters.h"

#include "generators/gradientpanels.h"
#include "generators/gradients.h"
#include "generators/polygraphics.h"
#include "paint/grafdialogpanel.h"

#include <array>

namespace tf {

namespace {
constexpr bool Prepare = true;
constexpr bool NoUndo = false; // paints into another window, or needs no undo image
} // namespace

std::span<const PainterEntry> painterTable()
{
    // Every key of the catalogue once, in the catalogue's order; null: not built in yet.
    static constexpr PainterEntry table[] = {
        // Group 1
        {"Backgroundcolor", paintBackgroundcolor, Prepare},
        {"Boxes-Kreisradius", nullptr, Prepare},
        {"Boxes-Randomized", nullptr, Prepare},
        {"Squares-Randomized", nullptr, Prepare},
        {"Kacheln", nullptr, Prepare},
        {"Tunnel", nullptr, Prepare},
        {"Lines-Quarterarea", nullptr, Prepare},
        {"Lines-Polygonal", nullptr, Prepare},
        {"Lines-Mikado", nullptr, Prepare},
        {"Bitblt-Kacheln", nullptr, NoUndo},
        {"Bitblt-Schmieren", nullptr, NoUndo},
        // Group 2
        {"Filled-Triangles", nullptr, Prepare},
        {"ART-Mondrian", nullptr, Prepare},
        {"ART-MondrianSuper", nullptr, Prepare},
        {"PIC-Mosaik", nullptr, Prepare},
        {"PIC-MosaikSuper", nullptr, Prepare},
        {"PIC-DiaShow", nullptr, NoUndo},
        {"ART-Mondrian-LeadGlass", nullptr, Prepare},
        {"ART-Cathedral-LeadGlass", nullptr, Prepare},
        {"Photo-CUBE", nullptr, Prepare},
        {"Photo-CUBESuper", nullptr, Prepare},
        {"Interne Kacheln", nullptr, Prepare},
        // Group 3
        {"Poly-Elliptic", nullptr, Prepare},
        {"Poly-Area", nullptr, Prepare},
        {"Circles", nullptr, Prepare},
        {"Circle-Ellipses", nullptr, Prepare},
        {"Circle-Kegel", nullptr, Prepare},
        {"Circle-Waves", nullptr, Prepare},
        {"Spiral", nullptr, Prepare},
        {"Twister", nullptr, Prepare},
        {"Soap-Bubbles", nullptr, Prepare},
        {"Black Rain", nullptr, Prepare},
        {"Snow", nullptr, Prepare},
        {"Confetti", nullptr, Prepare},
        // Group 4
        {"Plasma", nullptr, Prepare},
        {"Lissajou", nullptr, Prepare},
        {"LissaBand", nullptr, Prepare},
        {"70th-Rotating", nullptr, Prepare},
        {"70th-Rotating-Crazy", nullptr, Prepare},
        {"Rosetta", nullptr, Prepare},
        {"Rosetta-Pixelized", nullptr, Prepare},
        {"Rosetta-Crazy", nullptr, Prepare},
        {"Rosetta-Pixelized-Crazy", nullptr, Prepare},
        {"Thread-Rosette", nullptr, Prepare},
        {"Spirograph", nullptr, Prepare},
        {"Squares-In-Square", nullptr, Prepare},
        {"Rose", nullptr, Prepare},
        {"Rose-Crazy", nullptr, Prepare},
        // Group 5
        {"H-Gradient", paintHGradient, Prepare},
        {"V-Gradient", paintVGradient, Prepare},
        {"Chromo-Steps", Create_GradientChromo, Prepare},
        {"Framegradient-Transp", Create_GradientFrames, Prepare},
        {"Frequenzgradient-Transp", Create_GradientFrequences, Prepare},
        {"Radial", nullptr, Prepare},
        {"Sunburst", nullptr, Prepare},
        {"Radial-4spirals", nullptr, Prepare},
        {"Neonbars vertical", paintNeonbarsVertical, Prepare},
        {"Neon vertical", paintNeonVertical, Prepare},
        {"Horizon", paintHorizon, Prepare},
        {"Lense", paintLense, Prepare},
        {"Sky gradient", paintSkyGradient, Prepare},
        {"Mountains-Gradient", nullptr, Prepare},
        {"Fixed 4 squares", paintFixed4Squares, Prepare},
        {"Randomized 4 squares", paintRandomized4Squares, Prepare},
        {"Randomized bars", paintRandomizedBars, Prepare},
        {"Random Lines", paintRandomLines, Prepare},
        {"Random Noise", paintRandomNoise, Prepare},
        {"Jalousie", nullptr, Prepare},
        {"H-GradientCrazy", paintHGradientCrazy, Prepare},
        {"V-GradientCrazy", paintVGradientCrazy, Prepare},
        // Group 6
        {"Exchange Rates", nullptr, Prepare},
        {"Mountains-Pen", nullptr, Prepare},
        {"Mountains", nullptr, Prepare},
        {"Soundwaves", nullptr, Prepare},
        {"Sinus", nullptr, Prepare},
        {"Pulse", nullptr, Prepare},
        {"Pulse-Sky", nullptr, Prepare},
        {"Pulse-Ground", nullptr, Prepare},
        {"Equalizer", nullptr, Prepare},
        {"Horiz-Bars", nullptr, Prepare},
        {"Vertic-Bars", nullptr, Prepare},
        // Group 7
        {"TEXT-Dialog", nullptr, Prepare},
        {"TEXT-Textblock", nullptr, Prepare},
        {"TEXT-Mondrian-Raster", nullptr, Prepare},
        {"TEXT-Simple-Raster", nullptr, Prepare},
        {"TEXT-Spiral-Raster", nullptr, Prepare},
        {"TEXT-StarRotated", nullptr, Prepare},
        {"TEXT-Circular", nullptr, Prepare},
        {"TEXT-Spiral", nullptr, Prepare},
        {"The Matrix", nullptr, NoUndo},
        // Group 8
        {"A-Rahmen-Standard", nullptr, Prepare},
        {"I-Rahmen-Standard", nullptr, Prepare},
        {"I-Rahmen-Random", nullptr, Prepare},
        {"Border-Cut out Squares", nullptr, Prepare},
        {"Border-Cut out Triangles", nullptr, Prepare},
        {"Border-Cut out Mix", nullptr, Prepare},
        {"Border-Cut out Circles", nullptr, Prepare},
        {"Border-V-Dia positive", nullptr, Prepare},
        {"Border-Tiffany-Rect", nullptr, Prepare},
        // Group 9
        {"LP-black", nullptr, Prepare},
        {"LP-cut out", nullptr, Prepare},
        {"LP-RING-cut out", nullptr, Prepare},
        {"CD-standard", nullptr, Prepare},
        {"CD-colored", nullptr, Prepare},
        {"CD-cut out", nullptr, Prepare},
        {"Forms-Cut out Squares", nullptr, Prepare},
        {"Forms-Cut out Areas", nullptr, Prepare},
        {"Forms-Cut out Rects", nullptr, Prepare},
        // Group 10
        {"PAP-Lines", nullptr, Prepare},
        {"PAP-Notes", nullptr, Prepare},
        {"PAP-Karo", nullptr, Prepare},
        {"Wave-Grid", nullptr, Prepare},
    };
    return table;
}

void registerAllPanels()
{
    static const bool once = [] {
        registerPaintPanels();
        registerGradientPanels();
        return true;
    }();
    (void)once;
}

} // namespace tf
