#pragma once
// LineVR: the anti-aliased figures of integer coordinates — lines, circles and ellipses,
// arcs — drawn straight into a device context, one pixel at a time.
//
// Coverage rule: a pixel on the exact path gets the colour whole; the two pixels beside it
// across the path are blended with the colour by how near the path runs to them. The blend
// (`Blend_Pixel`) takes a level a of 0..255: above 252 the pixel is simply set (the picture is
// not read), otherwise each channel becomes (colour * a + old * (255 - a)) \ 256.
//
// Clip: only pixels inside `region` are painted (outside the picture nothing is ever
// painted). Without a region the whole picture is the clip.
//
// Integers only in the line walk; the circle walk computes the exact radius per step.

#include "core/colour.h"
#include "core/gdi.h"
#include "core/numeric.h"

#include <optional>

namespace tf {

class DeviceContext;

class LineVR {
public:
    int32_t red = 0, green = 0, blue = 0;
    ColorLong color = 0;
    DeviceContext *hdc = nullptr;
    std::optional<Region> region;

    // Sets the current colour and splits it into its channels.
    void setColor(ColorLong c);
    // Whether (x, y) may be painted: inside the picture and the clip region.
    bool inClip(int x, int y) const;

    // Blends the current colour into pixel (x, y) at level a (0..255).
    void Blend_Pixel(int x, int y, int a);

    // A line from (X1,Y1) to (X2,Y2), both ends included, with a blended cap beyond each end.
    // A line of length 0 draws nothing.
    void LineGP(DeviceContext &dc, int X1, int Y1, int X2, int Y2, ColorLong Color);
    // An ellipse of half-axes RadiusX, RadiusY around (X1,Y1); Thickness rings inside each
    // other (the outer edge and the inner edge blended, the rings between plain).
    void CircleGP(DeviceContext &dc, int X1, int Y1, int RadiusX, int RadiusY, ColorLong Color,
                  int Thickness);
    // The part of that ellipse between StartAngle and StopAngle, in radians counter-clockwise
    // from the positive x-axis as shown (y up); StopAngle below StartAngle wraps through 0.
    void ArcGP(DeviceContext &dc, int X1, int Y1, int RadiusX, int RadiusY, Single StartAngle,
               Single StopAngle, ColorLong Color, int Thickness);

private:
    void ellipse(int cx, int cy, int rx, int ry, int thickness, const Single *angles);
};

} // namespace tf
