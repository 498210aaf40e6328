#include "generators/photocubepaint.h"

#include "core/fault.h"
#include "core/parallel.h"
#include "core/picturebox.h"
#include "generators/longrun.h"
#include "generators/photocubepanel.h"
#include "generators/photocubesource.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/superformatpaint.h"
#include "paint/transparency.h"

#include <QCoreApplication>
#include <algorithm>

namespace tf {

namespace {

constexpr int BandRows = 64; // rows painted between two looks at Stop

// A side above this asks first, as the photo mosaic does.
constexpr int LongPaintSide = 4600;

// Paints the rows of `rows` in bands; `between(done)` after each band answers false to stop.
template <typename Between>
void paintBands(const CubeScene &scene, const std::array<CubeTexture, 3> &textures,
                const PixelRows &rows, Between &&between)
{
    const std::array<const CubeTexture *, 3> faces{&textures[0], &textures[1], &textures[2]};
    const int threads = threadsFor(BandRows, rows.width, 1 << 15, 0);
    for (int y = 0; y < rows.height; y += BandRows) {
        const int end = std::min(rows.height, y + BandRows);
        parallelChunks(end - y, 4, threads,
                       [&](int a, int b) { scene.paintRows(faces, rows, y + a, y + b); },
                       [](int) {});
        if (!between(end)) return;
    }
}

std::array<CubeTexture, 3> texturesOf(const std::array<QImage, 3> &faces)
{
    return {CubeTexture(faces[0]), CubeTexture(faces[1]), CubeTexture(faces[2])};
}

} // namespace

std::optional<QSize> checkPhotoCubeSuperSize(Session &s)
{
    const auto size = superformatSize(s.controls());
    if (!size) {
        s.ask(QCoreApplication::translate("Superformat", "0 - sizes not allowed"), Buttons::Ok,
              Icon::Exclamation);
        return std::nullopt;
    }
    // The size as typed, before the clamp, decides whether to ask.
    const int typedW = int(s.controls().number(ControlKey{QStringLiteral("txtSuperSize"), 0}));
    const int typedH = int(s.controls().number(ControlKey{QStringLiteral("txtSuperSize"), 1}));
    if (typedW > LongPaintSide || typedH > LongPaintSide) {
        const Answer a = s.ask(
            QCoreApplication::translate(
                "PicMosaik",
                "Diese Bildgröße erfordert einige Berechnungszeit. Sorgen Sie bitte unbedingt "
                "dafür, daß die Quellbilder groß genug für dieses Mosaik sind, oder aktivieren "
                "Sie die Option [] Kleine Bilder zulassen!"),
            Buttons::OkCancel, Icon::Exclamation);
        if (a == Answer::Cancel) return std::nullopt;
    }
    return size;
}

CubeLook cubeLookOfPaint(PaintContext &ctx)
{
    Session &s = ctx.session;
    const ColorLong back = s.colours().ColorBack;
    const PhotoCubeOptions o = photoCubeOptions(s.controls());
    if (s.colours().RandomValues) return randomCubeLook(s.random(), back, o.shadow);
    CubeLook look;
    look.size = o.sizePercent / 100.0;
    look.turn = o.turn;
    look.tilt = o.tilt;
    look.lightFromLeft = o.lightFromLeft;
    look.shadow = o.shadow;
    look.back = back;
    return look;
}

void Draw_Photo_CUBE(PaintContext &ctx, CubePhotoSource &photos, bool super, QSize superSize)
{
    guarded(QStringLiteral("Draw_Photo_CUBE"), [&] {
        Session &s = ctx.session;
        const CubeLook look = cubeLookOfPaint(ctx);
        const QSize size = super ? superSize : QSize(ctx.XBild.Width(), ctx.XBild.Height());
        if (size.width() < 1 || size.height() < 1) return;
        const CubeScene scene(size, look);
        std::array<QImage, 3> faces;
        if (!photos.facesFor(ctx, scene.faceSide(), faces)) return;
        const std::array<CubeTexture, 3> textures = texturesOf(faces);
        faces = {};

        if (super) {
            SuperformatPaint route(ctx);
            if (!route.begin(size, look.back)) return;
            const PixelRows rows = PixelRows::of(route.surface());
            paintBands(scene, textures, rows, [&](int done) {
                route.progress(done, rows.height);
                return !route.stopRequested();
            });
            route.end();
            return;
        }
        StopRule stop(ctx);
        ctx.Bild_CLEAR();
        Start_Transparent(s);
        PictureBox &pic = ctx.XBild;
        const PixelRows rows = PixelRows::of(pic.mutableImage());
        if (rows.width == size.width() && rows.height == size.height())
            paintBands(scene, textures, rows, [&](int) {
                pic.markChanged();
                return stop.next();
            });
        pic.markChanged();
        Ende_Transparent(s);
    });
}

void Create_PhotoCube(PaintContext &ctx, bool super)
{
    guarded(QStringLiteral("Create_PhotoCube"), [&] {
        std::optional<QSize> size;
        if (super) {
            size = checkPhotoCubeSuperSize(ctx.session);
            if (!size) return;
        }
        PanelCubePhotos photos;
        Draw_Photo_CUBE(ctx, photos, super, size.value_or(QSize()));
    });
}

void paintPhotoCube(PaintContext &ctx) { Create_PhotoCube(ctx, false); }
void paintPhotoCubeSuper(PaintContext &ctx) { Create_PhotoCube(ctx, true); }

} // namespace tf
