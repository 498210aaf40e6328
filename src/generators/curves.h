#pragma once
// The curve family: Lissajous figures and their band, rose curves, nested squares, thread
// rosettes, the filled triangles and the stars and polygons of "Poly-Area". Their points are
// made in one array of the family's helper, a `CurvePoints` that lives for one paint.

#include "core/colour.h"
#include "core/gdi.h"

#include <functional>
#include <vector>

namespace tf {

struct PaintContext;

// The shared array of points, reused from figure to figure.
class CurvePoints {
public:
    void clear()
    {
        m_points.clear();
        m_x.clear();
        m_y.clear();
    }
    void add(double x, double y);
    const std::vector<POINTAPI> &points() const { return m_points; }
    // The polyline through the points, segment i in colour(i / segments), through AA_Line
    // when anti-aliasing is on.
    void polyline(PaintContext &ctx, int pen, bool closed,
                  const std::function<ColorLong(double)> &colourAt) const;

private:
    std::vector<POINTAPI> m_points;
    std::vector<double> m_x, m_y;
};

// "Lissajou": x = sin(a t + phase), y = sin(b t) through n * 8 + 64 points with the ratios
// Rnd*2048 (with RandomValues) drawn as they are, so large ratios weave a lattice of threads;
// the panel's frequencies draw the smooth figure. "LissaBand": the figure and its twin a
// quarter turn on, joined point by point into a ribbon.
void DrawLissa(PaintContext &ctx, bool band);
void paintLissajou(PaintContext &ctx);
void paintLissaBand(PaintContext &ctx);

// "Rose": r = cos(p/q theta) for the reduced fraction p/q, theta over q full turns, in a
// ramp of two colours. "Rose-Crazy": three roses of their own fractions and turns, filled by
// the even-odd rule, the largest first.
void Circle_Rose(PaintContext &ctx, bool crazy);
void paintRose(PaintContext &ctx);
void paintRoseCrazy(PaintContext &ctx);

// "Squares-In-Square": squares nested n deep, each with its corners a fraction f along the
// sides of the one outside it, in cells whose turn alternates like a chessboard.
void Draw_SQINSQ(PaintContext &ctx);

// "Thread-Rosette": threads from pin i to pin i * m (mod N) of N pins round a circle.
void Circle_Rosette(PaintContext &ctx);

// "Filled-Triangles": a jittered grid cut into triangles, coloured along a diagonal ramp of
// two colours (random or the dialog's) or by the table.
void paintFilledTriangles(PaintContext &ctx);

// "Poly-Area": n stars or polygons (cmbPolyType) in the colour mode of cmbCMStar.
void paintPolyArea(PaintContext &ctx);

// The greatest common divisor, for the rose's fraction.
int gcdOf(int a, int b);

} // namespace tf
