#pragma once
// The photo cube's picture: a cube standing on the ground, seen from above at an angle in
// perspective, its three faces in view (top, left, right) each showing a photo, lit by one
// light above and to one side of the eye, with a soft shadow on the ground.
//
// World: the cube is [-1, 1]^3 with y up, turned `turn` degrees about its upright axis; the
// eye looks at its centre from `tilt` degrees above the ground at a distance of 9 half edges
// (a gentle perspective, as a normal lens gives). The picture fits the cube's silhouette to
// `size` of the picture and moves it (never more than needed) so that its shadow stays in.
//
// The photos lie upright on the sides; on the top the photo's lower edge meets the right
// side's upper edge, as a box's wrapping would.
//
// Light: a point light far above the ground (`lightHeight` degrees), its direction in the
// ground plane `lightSpread` of the way from the lit side's normal to the other side's. The
// top is then the brightest face, the lit side mid and the other side darker, each with a
// soft falloff across it. A face's brightness is scaled so that the top's centre shows its
// photo as it is.
//
// Pixels: each face covers a pixel by the distance of the pixel's centre from the face's
// edges (an analytic coverage of half a pixel on either side), so the silhouette and the
// edges between faces are anti-aliased and the three faces' coverages of a pixel sum to 1.
// The rest of a pixel shows the ground: the back colour, darkened by the shadow (its edge
// the softer the further from the cube) and by a narrow contact shadow along the base.
//
// Rendering is a pure function of the scene, the textures and the row: rows can be painted
// in any order and on any thread, and a picture and a Superformat surface of the same size
// get the same pixels.
#include "core/colour.h"
#include "generators/cubetexture.h"
#include "generators/pixelrows.h"

#include <QPointF>
#include <QSize>
#include <array>

namespace tf {

class Random;

enum class CubeFace { Top = 0, Left = 1, Right = 2 };

struct CubeLook {
    double size = 0.62;        // the silhouette's share of the picture (0.2 .. 0.9)
    double turn = 38.0;        // degrees about the upright axis, 20 .. 70 (45 shows both sides alike)
    double tilt = 28.0;        // degrees the eye looks down, 12 .. 40
    bool lightFromLeft = true; // which side is lit
    double lightHeight = 58.0; // degrees above the ground, 50 .. 70
    double lightSpread = 0.3;  // 0.15 .. 0.4 (0: straight at the lit side)
    bool shadow = true;
    ColorLong back = 0xFFFFFF; // the ground
};

// A look drawn at random for "random values": size 0.5..0.8, turn 25..65, tilt 20..36,
// either side lit, light height 50..64, spread 0.15..0.32. Draws six values of `rnd`.
CubeLook randomCubeLook(Random &rnd, ColorLong back, bool shadow);

class CubeScene {
public:
    CubeScene(QSize picture, const CubeLook &look);

    QSize pictureSize() const { return m_picture; }
    // The longest edge of a face on screen, in pixels (at least 1): the size a face's photo is
    // worth decoding at.
    int faceSide() const { return m_faceSide; }
    // A face's corners in picture coordinates (a pixel's centre at +0.5): the photo's top left,
    // top right, bottom right and bottom left.
    std::array<QPointF, 4> corners(CubeFace face) const;
    // Where the point (u, v) of a face's photo lands in the picture.
    QPointF pointOf(CubeFace face, double u, double v) const;
    // The brightness factor at (u, v) of a face (1 at the top's centre).
    double shade(CubeFace face, double u, double v) const;
    // The share of the ground colour kept at a picture point (1: no shadow).
    double groundLight(double x, double y) const;

    // Paints rows y0 .. y1-1 of `rows` (which must be the scene's picture size) with the faces
    // in the order top, left, right. A null texture paints its face black.
    void paintRows(const std::array<const CubeTexture *, 3> &faces, const PixelRows &rows,
                   int y0, int y1) const;

private:
    struct Vec {
        double x = 0, y = 0, z = 0;
    };
    struct Face {
        Vec O, E1, E2, n;         // world: P = O + u E1 + v E2, outward normal n
        double U[3], V[3], W[3];  // u = U.q / W.q, v = V.q / W.q, q = (x, y, 1) in the picture
        double edge[4][3];        // inward distance to each edge: a x + b y + c, in pixels
        std::array<QPointF, 4> px;
    };
    struct Polygon {
        std::vector<QPointF> pts; // convex, counter-clockwise as seen (y down)
        std::vector<std::array<double, 3>> edge;
        double signedDistance(double x, double y) const; // positive outside
        double distanceAtLeast(double x, double y) const; // a bound from below, cheaper
        void build(std::vector<QPointF> points);         // the convex hull
    };

    Vec world(const Vec &cubePoint) const;
    QPointF project(const Vec &worldPoint) const;
    void uvAt(const Face &f, double x, double y, double &u, double &v, double &footprint,
              int texW, int texH) const;
    static double coverage(const Face &f, double x, double y);

    QSize m_picture;
    CubeLook m_look;
    double m_turn = 0, m_tilt = 0;
    Vec m_eye, m_right, m_up, m_forward;
    double m_scale = 1, m_ox = 0, m_oy = 0;
    Vec m_light;          // the light's place
    double m_topShade = 1; // the raw brightness of the top's centre
    std::array<Face, 3> m_faces;
    int m_faceSide = 1;
    Polygon m_shadow, m_base;
    QPointF m_baseCentre;
    double m_shadowReach = 1; // from the base's centre to the shadow's furthest point
};

} // namespace tf
