#include "generators/photocube.h"

#include "core/random.h"

#include <algorithm>
#include <cmath>

namespace tf {

namespace {

constexpr double PiValue = 3.14159265358979323846;
constexpr double EyeDistance = 9.0;   // half edges from the cube's centre
constexpr double LightDistance = 18.0; // half edges from the cube's centre
constexpr double Ambient = 0.42;      // the share of light a face gets from the sky alone
constexpr double MaxShade = 1.1;      // the top's corner nearest the light may be a little brighter
constexpr double ShadowReach = 0.135; // the widest penumbra, in face sides
constexpr double ContactReach = 0.2;  // the contact shadow's reach, in face sides (below 0.5/255 beyond)

double rad(double degrees) { return degrees * PiValue / 180.0; }

double dot3(double ax, double ay, double az, double bx, double by, double bz)
{
    return ax * bx + ay * by + az * bz;
}

uchar toByte(float v) { return uchar(std::clamp(int(std::lround(v)), 0, 255)); }

} // namespace

CubeLook randomCubeLook(Random &rnd, ColorLong back, bool shadow)
{
    CubeLook look;
    look.size = 0.5 + 0.3 * double(rnd.Rnd());
    look.turn = 25.0 + 40.0 * double(rnd.Rnd());
    look.tilt = 20.0 + 16.0 * double(rnd.Rnd());
    look.lightFromLeft = rnd.Rnd() < 0.5f;
    look.lightHeight = 50.0 + 14.0 * double(rnd.Rnd());
    look.lightSpread = 0.15 + 0.17 * double(rnd.Rnd());
    look.shadow = shadow;
    look.back = back;
    return look;
}

// ---- geometry -------------------------------------------------------------------------------

namespace {

struct V {
    double x, y, z;
};
V operator-(V a, V b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
V operator+(V a, V b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
V operator*(V a, double k) { return {a.x * k, a.y * k, a.z * k}; }
double dot(V a, V b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
V cross(V a, V b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }

// The faces in the cube's own coordinates: origin (the photo's top left), the photo's
// right and down directions, the outward normal.
struct FaceFrame {
    V O, E1, E2, n;
};
constexpr FaceFrame Frames[3] = {
    {{-1, 1, -1}, {2, 0, 0}, {0, 0, 2}, {0, 1, 0}},  // top: the photo's foot at the front
    {{-1, 1, -1}, {0, 0, 2}, {0, -2, 0}, {-1, 0, 0}}, // left side, upright
    {{-1, 1, 1}, {2, 0, 0}, {0, -2, 0}, {0, 0, 1}},   // right side, upright
};

// The line through a and b as a x + b y + c, scaled to pixels and signed positive on the
// side of `inside`.
std::array<double, 3> edgeLine(QPointF a, QPointF b, QPointF inside)
{
    double ea = -(b.y() - a.y()), eb = b.x() - a.x();
    const double len = std::hypot(ea, eb);
    if (len < 1e-12) return {0, 0, 1e9}; // a corner seen edge-on limits nothing
    ea /= len;
    eb /= len;
    double ec = -(ea * a.x() + eb * a.y());
    if (ea * inside.x() + eb * inside.y() + ec < 0) {
        ea = -ea;
        eb = -eb;
        ec = -ec;
    }
    return {ea, eb, ec};
}

double segmentDistance(QPointF p, QPointF a, QPointF b)
{
    const double dx = b.x() - a.x(), dy = b.y() - a.y();
    const double len2 = dx * dx + dy * dy;
    double t = len2 > 0 ? ((p.x() - a.x()) * dx + (p.y() - a.y()) * dy) / len2 : 0.0;
    t = std::clamp(t, 0.0, 1.0);
    return std::hypot(p.x() - (a.x() + t * dx), p.y() - (a.y() + t * dy));
}

} // namespace

void CubeScene::Polygon::build(std::vector<QPointF> points)
{
    // Andrew's monotone chain.
    std::sort(points.begin(), points.end(), [](QPointF a, QPointF b) {
        return a.x() < b.x() || (a.x() == b.x() && a.y() < b.y());
    });
    auto turn = [](QPointF o, QPointF a, QPointF b) {
        return (a.x() - o.x()) * (b.y() - o.y()) - (a.y() - o.y()) * (b.x() - o.x());
    };
    std::vector<QPointF> hull;
    for (int pass = 0; pass < 2; ++pass) {
        const size_t start = hull.size();
        for (const QPointF &p : points) {
            while (hull.size() >= start + 2 && turn(hull[hull.size() - 2], hull.back(), p) <= 0)
                hull.pop_back();
            hull.push_back(p);
        }
        hull.pop_back();
        std::reverse(points.begin(), points.end());
    }
    pts = hull;
    edge.clear();
    QPointF centre;
    for (const QPointF &p : pts) centre += p;
    if (!pts.empty()) centre /= double(pts.size());
    for (size_t i = 0; i < pts.size(); ++i)
        edge.push_back(edgeLine(pts[i], pts[(i + 1) % pts.size()], centre));
}

double CubeScene::Polygon::distanceAtLeast(double x, double y) const
{
    if (pts.size() < 3) return 1e9;
    double inside = 1e18;
    for (const auto &e : edge)
        inside = std::min(inside, e[0] * x + e[1] * y + e[2]);
    return -inside;
}

double CubeScene::Polygon::signedDistance(double x, double y) const
{
    if (pts.size() < 3) return 1e9;
    double inside = 1e18;
    for (const auto &e : edge)
        inside = std::min(inside, e[0] * x + e[1] * y + e[2]);
    if (inside >= 0) return -inside;
    double d = 1e18;
    for (size_t i = 0; i < pts.size(); ++i)
        d = std::min(d, segmentDistance({x, y}, pts[i], pts[(i + 1) % pts.size()]));
    return d;
}

CubeScene::Vec CubeScene::world(const Vec &p) const
{
    const double c = std::cos(m_turn), s = std::sin(m_turn);
    return {c * p.x + s * p.z, p.y, -s * p.x + c * p.z};
}

QPointF CubeScene::project(const Vec &p) const
{
    const double qx = p.x - m_eye.x, qy = p.y - m_eye.y, qz = p.z - m_eye.z;
    const double z = dot3(qx, qy, qz, m_forward.x, m_forward.y, m_forward.z);
    const double x = dot3(qx, qy, qz, m_right.x, m_right.y, m_right.z) / z;
    const double y = dot3(qx, qy, qz, m_up.x, m_up.y, m_up.z) / z;
    return {m_ox + m_scale * x, m_oy - m_scale * y};
}

CubeScene::CubeScene(QSize picture, const CubeLook &look)
    : m_picture(picture.expandedTo(QSize(1, 1))), m_look(look)
{
    m_look.size = std::clamp(look.size, 0.2, 0.9);
    m_turn = rad(std::clamp(look.turn, 20.0, 70.0));
    m_tilt = rad(std::clamp(look.tilt, 12.0, 40.0));
    const double lightHeight = rad(std::clamp(look.lightHeight, 50.0, 70.0));
    const double spread = std::clamp(look.lightSpread, 0.0, 0.45);

    const double st = std::sin(m_tilt), ct = std::cos(m_tilt);
    m_eye = {0, EyeDistance * st, EyeDistance * ct};
    m_right = {1, 0, 0};
    m_up = {0, ct, -st};
    m_forward = {0, -st, -ct};

    // The light's direction in the ground plane, between the two sides' normals.
    const double leftAz = -(PiValue / 2 - m_turn), rightAz = m_turn;
    const double az = look.lightFromLeft ? leftAz + spread * (rightAz - leftAz)
                                         : rightAz + spread * (leftAz - rightAz);
    m_light = {LightDistance * std::cos(lightHeight) * std::sin(az),
               LightDistance * std::sin(lightHeight),
               LightDistance * std::cos(lightHeight) * std::cos(az)};

    // Fit: first in the eye's own units (scale 1 about 0), then scaled and placed.
    m_scale = 1;
    m_ox = m_oy = 0;
    std::vector<QPointF> cubePts, groundPts, basePts;
    for (int i = 0; i < 8; ++i) {
        const Vec c{(i & 1) ? 1.0 : -1.0, (i & 2) ? 1.0 : -1.0, (i & 4) ? 1.0 : -1.0};
        const Vec w = world(c);
        cubePts.push_back(project(w));
        if (c.y < 0) {
            groundPts.push_back(project(w));
            basePts.push_back(project(w));
        } else {
            // Where the light's ray through a top corner meets the ground (y = -1).
            const double t = (m_light.y + 1.0) / (m_light.y - w.y);
            const Vec g{m_light.x + (w.x - m_light.x) * t, -1.0,
                        m_light.z + (w.z - m_light.z) * t};
            groundPts.push_back(project(g));
        }
    }
    auto box = [](const std::vector<QPointF> &pts) {
        double x0 = 1e18, y0 = 1e18, x1 = -1e18, y1 = -1e18;
        for (const QPointF &p : pts) {
            x0 = std::min(x0, p.x());
            y0 = std::min(y0, p.y());
            x1 = std::max(x1, p.x());
            y1 = std::max(y1, p.y());
        }
        return std::array<double, 4>{x0, y0, x1, y1};
    };
    const auto cube = box(cubePts);
    std::vector<QPointF> all = cubePts;
    if (look.shadow) all.insert(all.end(), groundPts.begin(), groundPts.end());
    const auto uni = box(all);
    const double W = m_picture.width(), H = m_picture.height();
    const double cw = cube[2] - cube[0], ch = cube[3] - cube[1];
    const double uw = uni[2] - uni[0], uh = uni[3] - uni[1];
    m_scale = m_look.size * std::min(W / cw, H / ch);
    m_scale = std::min(m_scale, 0.96 * std::min(W / uw, H / uh));
    m_ox = W / 2 - m_scale * (cube[0] + cube[2]) / 2;
    m_oy = H / 2 - m_scale * (cube[1] + cube[3]) / 2;
    // Move (never more than needed) so that the shadow stays in the picture.
    const double mx = 0.02 * W, my = 0.02 * H;
    const double ux0 = m_ox + m_scale * uni[0], ux1 = m_ox + m_scale * uni[2];
    const double uy0 = m_oy + m_scale * uni[1], uy1 = m_oy + m_scale * uni[3];
    if (ux0 < mx) m_ox += mx - ux0;
    else if (ux1 > W - mx) m_ox -= ux1 - (W - mx);
    if (uy0 < my) m_oy += my - uy0;
    else if (uy1 > H - my) m_oy -= uy1 - (H - my);
    auto place = [&](QPointF p) { return QPointF(m_ox + m_scale * p.x(), m_oy + m_scale * p.y()); };
    for (QPointF &p : groundPts) p = place(p);
    for (QPointF &p : basePts) p = place(p);
    m_shadow.build(groundPts);
    m_base.build(basePts);
    m_baseCentre = QPointF();
    for (const QPointF &p : basePts) m_baseCentre += p / 4.0;
    m_shadowReach = 1.0;
    for (const QPointF &p : m_shadow.pts)
        m_shadowReach = std::max(m_shadowReach, std::hypot(p.x() - m_baseCentre.x(),
                                                           p.y() - m_baseCentre.y()));

    // The faces: the ray through picture point (x, y) is d0 + x dx + y dy.
    const V C{m_eye.x, m_eye.y, m_eye.z};
    const V r{m_right.x, m_right.y, m_right.z}, up{m_up.x, m_up.y, m_up.z};
    const V f{m_forward.x, m_forward.y, m_forward.z};
    const V dx = r * (1.0 / m_scale), dy = up * (-1.0 / m_scale);
    const V d0 = f + r * (-m_ox / m_scale) + up * (m_oy / m_scale);
    double longest = 1.0;
    for (int i = 0; i < 3; ++i) {
        Face &face = m_faces[size_t(i)];
        const FaceFrame &fr = Frames[i];
        const Vec O = world({fr.O.x, fr.O.y, fr.O.z});
        const Vec E1 = world({fr.E1.x, fr.E1.y, fr.E1.z});
        const Vec E2 = world({fr.E2.x, fr.E2.y, fr.E2.z});
        face.O = O;
        face.E1 = E1;
        face.E2 = E2;
        face.n = world({fr.n.x, fr.n.y, fr.n.z});
        const V o{O.x, O.y, O.z}, e1{E1.x, E1.y, E1.z}, e2{E2.x, E2.y, E2.z};
        // u = d.((C-O) x E2) / d.(E1 x E2), v = d.(E1 x (C-O)) / d.(E1 x E2)
        const V nu = cross(C - o, e2), nv = cross(e1, C - o), nw = cross(e1, e2);
        const V rowsOf[3] = {nu, nv, nw};
        double *out[3] = {face.U, face.V, face.W};
        for (int k = 0; k < 3; ++k) {
            out[k][0] = dot(rowsOf[k], dx);
            out[k][1] = dot(rowsOf[k], dy);
            out[k][2] = dot(rowsOf[k], d0);
        }
        const double uv[4][2] = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
        QPointF centre;
        for (int k = 0; k < 4; ++k) {
            const Vec p{O.x + uv[k][0] * E1.x + uv[k][1] * E2.x,
                        O.y + uv[k][0] * E1.y + uv[k][1] * E2.y,
                        O.z + uv[k][0] * E1.z + uv[k][1] * E2.z};
            face.px[size_t(k)] = project(p);
            centre += face.px[size_t(k)] / 4.0;
        }
        for (int k = 0; k < 4; ++k) {
            const auto e = edgeLine(face.px[size_t(k)], face.px[size_t((k + 1) % 4)], centre);
            std::copy(e.begin(), e.end(), face.edge[k]);
            const QPointF a = face.px[size_t(k)], b = face.px[size_t((k + 1) % 4)];
            longest = std::max(longest, std::hypot(b.x() - a.x(), b.y() - a.y()));
        }
    }
    m_faceSide = int(std::ceil(longest));
    m_topShade = 1.0;
    const double rawTop = shade(CubeFace::Top, 0.5, 0.5);
    m_topShade = rawTop > 0 ? rawTop : 1.0;
}

std::array<QPointF, 4> CubeScene::corners(CubeFace face) const
{
    return m_faces[size_t(face)].px;
}

QPointF CubeScene::pointOf(CubeFace face, double u, double v) const
{
    const Face &f = m_faces[size_t(face)];
    return project({f.O.x + u * f.E1.x + v * f.E2.x, f.O.y + u * f.E1.y + v * f.E2.y,
                    f.O.z + u * f.E1.z + v * f.E2.z});
}

double CubeScene::shade(CubeFace face, double u, double v) const
{
    const Face &f = m_faces[size_t(face)];
    const double px = f.O.x + u * f.E1.x + v * f.E2.x;
    const double py = f.O.y + u * f.E1.y + v * f.E2.y;
    const double pz = f.O.z + u * f.E1.z + v * f.E2.z;
    const double lx = m_light.x - px, ly = m_light.y - py, lz = m_light.z - pz;
    const double dist = std::sqrt(lx * lx + ly * ly + lz * lz);
    const double lambert = std::max(0.0, dot3(lx, ly, lz, f.n.x, f.n.y, f.n.z) / dist);
    // Nearer the light is brighter: the falloff of a light not infinitely far.
    const double falloff = LightDistance / dist;
    const double raw = Ambient + (1.0 - Ambient) * lambert * falloff;
    return std::min(MaxShade, raw / m_topShade);
}

double CubeScene::groundLight(double x, double y) const
{
    if (!m_look.shadow) return 1.0;
    // Beyond the widest penumbra and where the contact shadow stays below half a level, the
    // ground is plain: the farthest edge the point lies beyond bounds its distance from below.
    if (m_shadow.distanceAtLeast(x, y) > ShadowReach * m_faceSide &&
        m_base.distanceAtLeast(x, y) > ContactReach * m_faceSide)
        return 1.0;
    const double far = std::clamp(std::hypot(x - m_baseCentre.x(), y - m_baseCentre.y()) /
                                      m_shadowReach, 0.0, 1.0);
    // The shadow's edge softens and its darkness fades with the distance from the cube.
    const double penumbra = m_faceSide * (0.015 + (ShadowReach - 0.015) * far);
    const double sd = m_shadow.signedDistance(x, y);
    double a = std::clamp(0.5 - sd / (2.0 * penumbra), 0.0, 1.0);
    a = a * a * (3.0 - 2.0 * a);
    const double cast = 0.45 * (1.0 - 0.6 * far) * a;
    // Where the cube stands on the ground, the ground gets less of the sky.
    const double nearBase = std::max(0.0, m_base.signedDistance(x, y));
    const double contact =
        nearBase > ContactReach * m_faceSide ? 0.0 : 0.3 * std::exp(-nearBase / (0.035 * m_faceSide));
    return (1.0 - cast) * (1.0 - contact);
}

void CubeScene::uvAt(const Face &f, double x, double y, double &u, double &v, double &footprint,
                     int texW, int texH) const
{
    const double w = f.W[0] * x + f.W[1] * y + f.W[2];
    u = (f.U[0] * x + f.U[1] * y + f.U[2]) / w;
    v = (f.V[0] * x + f.V[1] * y + f.V[2]) / w;
    const double dudx = (f.U[0] - u * f.W[0]) / w, dudy = (f.U[1] - u * f.W[1]) / w;
    const double dvdx = (f.V[0] - v * f.W[0]) / w, dvdy = (f.V[1] - v * f.W[1]) / w;
    const double ax = dudx * texW, bx = dvdx * texH, ay = dudy * texW, by = dvdy * texH;
    footprint = std::sqrt(std::max(ax * ax + bx * bx, ay * ay + by * by));
}

double CubeScene::coverage(const Face &f, double x, double y)
{
    double m = 1e18;
    for (const auto &e : f.edge)
        m = std::min(m, e[0] * x + e[1] * y + e[2]);
    return std::clamp(m + 0.5, 0.0, 1.0);
}

void CubeScene::paintRows(const std::array<const CubeTexture *, 3> &faces, const PixelRows &rows,
                          int y0, int y1) const
{
    const int W = std::min(rows.width, m_picture.width());
    y0 = std::max(0, y0);
    y1 = std::min({y1, rows.height, m_picture.height()});
    const float back[3] = {float(BlueOf(m_look.back)), float(GreenOf(m_look.back)),
                           float(RedOf(m_look.back))};
    // The band round the shadow and the base where the ground is not plain.
    double gx0 = 1e18, gy0 = 1e18, gx1 = -1e18, gy1 = -1e18;
    if (m_look.shadow) {
        const double reach = m_faceSide * std::max(ShadowReach, ContactReach);
        for (const Polygon *p : {&m_shadow, &m_base})
            for (const QPointF &q : p->pts) {
                gx0 = std::min(gx0, q.x() - reach);
                gx1 = std::max(gx1, q.x() + reach);
                gy0 = std::min(gy0, q.y() - reach);
                gy1 = std::max(gy1, q.y() + reach);
            }
    }
    for (int y = y0; y < y1; ++y) {
        const double yc = y + 0.5;
        uchar *row = rows.row(y);
        // Each face's pixels on this row: where every edge leaves it some coverage.
        int from[3], to[3];
        for (int i = 0; i < 3; ++i) {
            double lo = -1e18, hi = 1e18;
            for (const auto &e : m_faces[size_t(i)].edge) {
                const double rest = -0.5 - e[1] * yc - e[2]; // e0 x >= rest
                if (std::abs(e[0]) < 1e-12) {
                    if (rest > 0) lo = 1e18;
                } else if (e[0] > 0) {
                    lo = std::max(lo, rest / e[0]);
                } else {
                    hi = std::min(hi, rest / e[0]);
                }
            }
            from[i] = lo > hi ? 1 : int(std::max(-1.0, std::floor(lo - 0.5)));
            to[i] = lo > hi ? 0 : int(std::min(double(W), std::ceil(hi - 0.5)));
        }
        const bool groundRow = yc >= gy0 && yc <= gy1;
        for (int x = 0; x < W; ++x) {
            const double xc = x + 0.5;
            float ground[3] = {back[0], back[1], back[2]};
            if (groundRow && xc >= gx0 && xc <= gx1) {
                const float g = float(groundLight(xc, yc));
                for (float &c : ground) c *= g;
            }
            float acc[3] = {0, 0, 0};
            double covered = 0;
            for (int i = 0; i < 3; ++i) {
                if (x < from[i] || x > to[i]) continue;
                const Face &f = m_faces[size_t(i)];
                const double cov = coverage(f, xc, yc);
                if (cov <= 0) continue;
                const CubeTexture *tex = faces[size_t(i)];
                float c[3] = {0, 0, 0};
                double u = 0, v = 0, foot = 0;
                if (tex && !tex->isNull()) {
                    uvAt(f, xc, yc, u, v, foot, tex->width(), tex->height());
                    tex->sample(u, v, foot, c);
                } else {
                    uvAt(f, xc, yc, u, v, foot, 1, 1);
                }
                const float k = float(cov * shade(CubeFace(i), std::clamp(u, 0.0, 1.0),
                                                  std::clamp(v, 0.0, 1.0)));
                for (int ch = 0; ch < 3; ++ch) acc[ch] += c[ch] * k;
                covered += cov;
            }
            if (covered > 1.0) {
                for (float &a : acc) a = float(a / covered);
                covered = 1.0;
            }
            const float rest = float(1.0 - covered);
            rows.put(row, x, toByte(acc[0] + rest * ground[0]), toByte(acc[1] + rest * ground[1]),
                     toByte(acc[2] + rest * ground[2]));
        }
    }
}

} // namespace tf
