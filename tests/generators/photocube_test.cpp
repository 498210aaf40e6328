// The photo cube's picture: faces where the geometry puts them, the light rule, clean edges,
// the ground left alone outside the silhouette and its shadow, and the same pixels in a
// picture and a surface.
#include "core/dibsection.h"
#include "core/random.h"
#include "generators/cubetexture.h"
#include "generators/photocube.h"

#include <QImage>
#include <QPolygonF>
#include <gtest/gtest.h>

#include <cmath>

using namespace tf;

namespace {

QImage flat(int w, int h, QRgb c)
{
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(c);
    return img;
}

struct Painted {
    QImage image;
    std::unique_ptr<CubeScene> scene;
};

Painted paint(QSize size, const CubeLook &look, const std::array<QImage, 3> &photos)
{
    Painted p;
    p.scene = std::make_unique<CubeScene>(size, look);
    const CubeTexture t0(photos[0]), t1(photos[1]), t2(photos[2]);
    p.image = QImage(size, QImage::Format_RGB32);
    p.image.fill(Qt::magenta);
    p.scene->paintRows({&t0, &t1, &t2}, PixelRows::of(p.image), 0, size.height());
    return p;
}

QRgb at(const QImage &img, QPointF p) { return img.pixel(int(p.x()), int(p.y())); }

// The distance of a point outside the cube's silhouette (the hull of its faces' corners);
// negative inside.
double outsideSilhouette(const CubeScene &scene, QPointF p)
{
    QPolygonF pts;
    for (CubeFace f : {CubeFace::Top, CubeFace::Left, CubeFace::Right})
        for (const QPointF &c : scene.corners(f)) pts << c;
    bool inside = false;
    for (CubeFace f : {CubeFace::Top, CubeFace::Left, CubeFace::Right}) {
        QPolygonF q;
        for (const QPointF &c : scene.corners(f)) q << c;
        inside = inside || q.containsPoint(p, Qt::OddEvenFill);
    }
    double d = 1e9;
    for (qsizetype i = 0; i < pts.size(); ++i)
        for (qsizetype j = 0; j < pts.size(); ++j) {
            const QPointF a = pts[i], b = pts[j];
            const double dx = b.x() - a.x(), dy = b.y() - a.y(), l2 = dx * dx + dy * dy;
            double t = l2 > 0 ? ((p.x() - a.x()) * dx + (p.y() - a.y()) * dy) / l2 : 0;
            t = std::clamp(t, 0.0, 1.0);
            d = std::min(d, std::hypot(p.x() - a.x() - t * dx, p.y() - a.y() - t * dy));
        }
    return inside ? -d : d;
}

} // namespace

TEST(PhotoCube, FacesLandWhereTheGeometrySaysAndTheGroundOutsideStaysTheBackColour)
{
    CubeLook look;
    look.shadow = false;
    look.back = RGB(250, 240, 220);
    const QSize size(360, 300);
    const Painted p = paint(size, look,
                            {flat(40, 30, qRgb(230, 30, 30)), flat(50, 50, qRgb(30, 230, 30)),
                             flat(20, 60, qRgb(30, 30, 230))});
    const CubeScene &scene = *p.scene;
    // The middle of each face shows its photo's colour, and only that colour.
    const QRgb top = at(p.image, scene.pointOf(CubeFace::Top, 0.5, 0.5));
    const QRgb left = at(p.image, scene.pointOf(CubeFace::Left, 0.5, 0.5));
    const QRgb right = at(p.image, scene.pointOf(CubeFace::Right, 0.5, 0.5));
    EXPECT_GT(qRed(top), 200);
    EXPECT_LT(qGreen(top), 40);
    EXPECT_GT(qGreen(left), 2 * qRed(left));
    EXPECT_GT(qBlue(right), 2 * qRed(right));
    // The three faces meet: the top's foot is the right side's head, the left side's right
    // edge the right side's left edge.
    EXPECT_NEAR(scene.pointOf(CubeFace::Top, 0, 1).x(), scene.pointOf(CubeFace::Right, 0, 0).x(), 1e-9);
    EXPECT_NEAR(scene.pointOf(CubeFace::Left, 1, 1).y(), scene.pointOf(CubeFace::Right, 0, 1).y(), 1e-9);
    // The cube fills its share of the picture and stands inside it.
    double x0 = 1e9, x1 = -1e9, y0 = 1e9, y1 = -1e9;
    for (CubeFace f : {CubeFace::Top, CubeFace::Left, CubeFace::Right})
        for (const QPointF &c : scene.corners(f)) {
            x0 = std::min(x0, c.x()), x1 = std::max(x1, c.x());
            y0 = std::min(y0, c.y()), y1 = std::max(y1, c.y());
        }
    EXPECT_NEAR(std::max((x1 - x0) / size.width(), (y1 - y0) / size.height()), look.size, 1e-6);
    EXPECT_GE(x0, 0);
    EXPECT_LE(x1, size.width());
    // Every pixel whose centre lies a pixel or more outside the silhouette is the back colour;
    // every pixel a pixel inside is covered; the edge in between is blended.
    int blended = 0;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x) {
            const double d = outsideSilhouette(scene, {x + 0.5, y + 0.5});
            const QRgb c = p.image.pixel(x, y);
            if (d >= 1.0)
                ASSERT_EQ(c, toQRgb(look.back)) << x << "," << y;
            else if (d <= -1.0)
                ASSERT_NE(c, toQRgb(look.back)) << x << "," << y;
            else if (c != toQRgb(look.back) && qRed(c) > 240 && qGreen(c) > 100 && qGreen(c) < 235)
                ++blended; // red top over the light ground: a mixed pixel
        }
    EXPECT_GT(blended, 5);
}

TEST(PhotoCube, TopIsBrightestThenTheLitSideThenTheOtherForEveryRandomLook)
{
    Random rnd;
    for (int i = 0; i < 40; ++i) {
        const CubeLook look = randomCubeLook(rnd, RGB(0, 0, 0), true);
        const Painted p = paint({200, 160}, look,
                                {flat(8, 8, qRgb(200, 200, 200)), flat(8, 8, qRgb(200, 200, 200)),
                                 flat(8, 8, qRgb(200, 200, 200))});
        const int top = qGreen(at(p.image, p.scene->pointOf(CubeFace::Top, 0.5, 0.5)));
        const int left = qGreen(at(p.image, p.scene->pointOf(CubeFace::Left, 0.5, 0.5)));
        const int right = qGreen(at(p.image, p.scene->pointOf(CubeFace::Right, 0.5, 0.5)));
        const int lit = look.lightFromLeft ? left : right, dark = look.lightFromLeft ? right : left;
        EXPECT_NEAR(top, 200, 2) << i; // the top's middle shows its photo as it is
        EXPECT_GT(top, lit + 12) << i;
        EXPECT_GT(lit, dark + 12) << i;
        EXPECT_GT(dark, 60) << i; // the dark side is still a photo, not a hole
        // A soft falloff: the lit side is not one flat value.
        const CubeFace litFace = look.lightFromLeft ? CubeFace::Left : CubeFace::Right;
        EXPECT_GT(std::abs(p.scene->shade(litFace, 0.5, 0.05) - p.scene->shade(litFace, 0.5, 0.95)),
                  0.01) << i;
    }
}

TEST(PhotoCube, ShadowFallsAwayFromTheLightAndFadesIntoTheGround)
{
    CubeLook look;
    look.back = RGB(240, 240, 240);
    look.lightFromLeft = true;
    const Painted p = paint({400, 300}, look,
                            {flat(10, 10, qRgb(128, 128, 128)), flat(10, 10, qRgb(128, 128, 128)),
                             flat(10, 10, qRgb(128, 128, 128))});
    const CubeScene &s = *p.scene;
    // Lit from the left, the shadow lies to the right of the right side's far edge.
    const QPointF farFoot = s.pointOf(CubeFace::Right, 1, 1);
    const QRgb shadowed = p.image.pixel(int(farFoot.x() + 6), int(farFoot.y() - 4));
    EXPECT_LT(qGreen(shadowed), 225);
    EXPECT_LT(s.groundLight(farFoot.x() + 6, farFoot.y() - 4), 0.95);
    // The side away from the shadow and the corners of the picture are plain ground.
    const QPointF nearFoot = s.pointOf(CubeFace::Left, 0, 1);
    EXPECT_EQ(p.image.pixel(int(nearFoot.x() - 30), int(nearFoot.y() - 30)), qRgb(240, 240, 240));
    EXPECT_EQ(p.image.pixel(0, 0), qRgb(240, 240, 240));
    EXPECT_EQ(p.image.pixel(399, 299), qRgb(240, 240, 240));
    // Without a shadow the same place is plain ground.
    look.shadow = false;
    const Painted q = paint({400, 300}, look,
                            {flat(10, 10, qRgb(128, 128, 128)), flat(10, 10, qRgb(128, 128, 128)),
                             flat(10, 10, qRgb(128, 128, 128))});
    EXPECT_EQ(q.image.pixel(int(farFoot.x() + 6), int(farFoot.y() - 4)), qRgb(240, 240, 240));
}

TEST(PhotoCube, OnePixelPhotosAndMissingOnesPaintFlatFaces)
{
    CubeLook look;
    look.shadow = false;
    CubeScene scene({120, 100}, look);
    const CubeTexture one(flat(1, 1, qRgb(90, 160, 220)));
    EXPECT_EQ(one.levels(), 1);
    QImage img(120, 100, QImage::Format_RGB32);
    scene.paintRows({&one, nullptr, &one}, PixelRows::of(img), 0, 100);
    const QRgb top = at(img, scene.pointOf(CubeFace::Top, 0.5, 0.5));
    EXPECT_NEAR(qRed(top), 90, 1);
    EXPECT_NEAR(qGreen(top), 160, 1);
    EXPECT_NEAR(qBlue(top), 220, 1);
    // Across the top the photo is one colour: only the light changes it, smoothly.
    const QRgb corner = at(img, scene.pointOf(CubeFace::Top, 0.2, 0.8));
    EXPECT_NEAR(double(qRed(corner)) / qBlue(corner), 90.0 / 220.0, 0.02);
    EXPECT_EQ(at(img, scene.pointOf(CubeFace::Left, 0.5, 0.5)), qRgb(0, 0, 0));
}

TEST(CubeTexture, ReducedSamplingAveragesWhatALargeFootprintCovers)
{
    QImage checker(256, 256, QImage::Format_RGB32);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 256; ++x)
            checker.setPixel(x, y, ((x + y) & 1) ? qRgb(255, 255, 255) : qRgb(0, 0, 0));
    const CubeTexture t(checker);
    EXPECT_EQ(t.levels(), 9);
    float c[3];
    // At a texel's centre with no reduction: the texel itself.
    t.sample(0.5 / 256, 0.5 / 256, 1.0, c);
    EXPECT_FLOAT_EQ(c[1], 0.0f);
    t.sample(1.5 / 256, 0.5 / 256, 0.5, c);
    EXPECT_FLOAT_EQ(c[1], 255.0f);
    // Reduced eight times, and anywhere between: the mean grey, no moiré.
    for (double foot : {2.0, 3.0, 8.0, 40.0})
        for (double u : {0.1, 0.37, 0.5, 0.83}) {
            t.sample(u, 1 - u, foot, c);
            EXPECT_NEAR(c[1], 127.5, 1.0) << foot << " " << u;
        }
    // Outside the unit square the edge is held.
    t.sample(-3.0, 0.5 / 256, 1.0, c);
    EXPECT_FLOAT_EQ(c[1], 0.0f);
}

TEST(PhotoCube, PictureAndSurfaceGetTheSamePixelsInAnyBandsOfRows)
{
    Random rnd;
    const CubeLook look = randomCubeLook(rnd, RGB(20, 40, 60), true);
    const QSize size(203, 157);
    QImage photo(64, 48, QImage::Format_RGB32);
    for (int y = 0; y < 48; ++y)
        for (int x = 0; x < 64; ++x)
            photo.setPixel(x, y, qRgb(x * 4, y * 5, (x * y) & 255));
    const CubeTexture t(photo);
    const CubeScene scene(size, look);
    QImage picture(size, QImage::Format_RGB32);
    scene.paintRows({&t, &t, &t}, PixelRows::of(picture), 0, size.height());
    cDIBSection dib;
    ASSERT_TRUE(dib.Create(size.width(), size.height()));
    const PixelRows rows = PixelRows::of(dib);
    for (int y = size.height(); y > 0; y -= 13) // bands, bottom first
        scene.paintRows({&t, &t, &t}, rows, std::max(0, y - 13), y);
    for (int y = 0; y < size.height(); ++y) {
        const uchar *r = dib.view().row(size.height() - 1 - y);
        for (int x = 0; x < size.width(); ++x)
            ASSERT_EQ(picture.pixel(x, y), qRgb(r[x * 3 + 2], r[x * 3 + 1], r[x * 3])) << x << "," << y;
    }
}

TEST(PhotoCube, TinyAndThinPicturesArePaintedWhole)
{
    const CubeTexture t(flat(3, 3, qRgb(100, 150, 200)));
    for (QSize size : {QSize(1, 1), QSize(3, 2), QSize(500, 4), QSize(4, 300)}) {
        const CubeScene scene(size, CubeLook{});
        EXPECT_GE(scene.faceSide(), 1);
        QImage img(size, QImage::Format_RGB32);
        img.fill(Qt::magenta);
        scene.paintRows({&t, &t, &t}, PixelRows::of(img), 0, size.height());
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                ASSERT_NE(img.pixel(x, y), QColor(Qt::magenta).rgb()) << size.width() << "x" << size.height();
    }
}
