#include "generators/photocubesource.h"
#include "generators/picmosaik_texts.h"

#include "core/numeric.h"
#include "core/parallel.h"
#include "core/status.h"
#include "core/yield.h"
#include "files/cdstdpicture.h"
#include "paint/controls.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>
#include <cmath>

namespace tf {

namespace {

ControlKey key(const char *name, int index = -1) { return {QString::fromLatin1(name), index}; }

// A random cut of the one photo takes this share of its shorter side, and up to this more.
constexpr double CutShare = 0.5, CutRange = 0.3;

// One face's photo: its file and the square it shows: the top left corner in shares of the
// photo's width and height, the side in shares of its shorter side (a null cut: the middle
// square).
struct FacePick {
    QString path;
    QRectF cut;
    QImage picture;
};

// The size to decode a photo of `stored` at so that a square of `share` of its shorter side
// still covers `faceSide` pixels; invalid (whole) when the photo has no more than that.
QSize needFor(QSize stored, double share, int faceSide)
{
    const int shorter = std::min(stored.width(), stored.height());
    if (shorter < 1) return QSize();
    const double k = double(faceSide) / (share * shorter);
    if (k >= 1.0) return QSize();
    return QSize(std::max(1, int(std::ceil(stored.width() * k))),
                 std::max(1, int(std::ceil(stored.height() * k))));
}

// The square of the picture that `cut` names (the middle one for a null cut).
QImage squareOf(const QImage &picture, const QRectF &cut)
{
    const int w = picture.width(), h = picture.height();
    if (cut.isNull()) {
        const int side = std::min(w, h);
        return picture.copy((w - side) / 2, (h - side) / 2, side, side);
    }
    const int side = std::clamp(int(std::lround(cut.width() * std::min(w, h))), 1, std::min(w, h));
    const int x = std::clamp(int(std::lround(cut.x() * w)), 0, w - side);
    const int y = std::clamp(int(std::lround(cut.y() * h)), 0, h - side);
    return picture.copy(x, y, side, side);
}

// Decodes the picks that have no picture yet, on all cores: each file at the size its cut
// needs. A pick that cannot be read keeps a null picture.
void decode(std::vector<FacePick> &picks, int faceSide)
{
    parallelChunks(int(picks.size()), 1, threadsFor(int(picks.size()), 1, 1, 0),
                   [&](int first, int last) {
                       for (int i = first; i < last; ++i) {
                           FacePick &p = picks[size_t(i)];
                           if (!p.picture.isNull()) continue;
                           const QSize stored = photoFileSize(p.path);
                           const double share = p.cut.isNull() ? 1.0 : p.cut.width();
                           LoadResult r = loadPhoto(p.path, needFor(stored, share, faceSide));
                           if (r.loaded()) p.picture = std::move(r.image);
                       }
                   },
                   [](int) {});
}

// Gives way once per directory of a scan; a Stop ends the scan.
class ScanYield : public YieldHook {
public:
    explicit ScanYield(PaintContext &ctx) : m_ctx(ctx) {}
    bool yield() override
    {
        m_ctx.DoEvents();
        return m_ctx.stopRequested();
    }

private:
    PaintContext &m_ctx;
};

// The directory's list of photos, scanned when it does not hold this source. False when it
// holds none, or the scan was stopped (then the list is left invalid).
bool listOf(PaintContext &ctx, const QString &dir, bool recurse)
{
    Session &s = ctx.session;
    PicSourceList &src = s.picSources();
    if (src.holds(dir, recurse)) return src.PicCount > 0;
    s.status().setPanelText(sbrState, mosaiktext::scanning(dir));
    ScanYield yield(ctx);
    if (!src.scan(dir, recurse, &yield)) {
        s.status().setPanelText(sbrState, QString());
        return false;
    }
    s.status().setPanelText(sbrState, mosaiktext::pictureCount(src.PicCount));
    return src.PicCount > 0;
}

bool fromDirectory(PaintContext &ctx, const QString &dir, bool recurse, int faceSide,
                   std::array<QImage, 3> &faces)
{
    Session &s = ctx.session;
    if (!listOf(ctx, dir, recurse)) {
        if (ctx.stopRequested()) return false;
        s.ask(mosaiktext::noValidPictures(dir), Buttons::Ok, Icon::Exclamation);
        return false;
    }
    PicSourceList &src = s.picSources();
    const int32_t n = src.PicCount;
    std::vector<uint8_t> tried(size_t(n), 0);
    int32_t untried = n;
    // Draws a photo not tried yet (any, once all are tried), as the mosaic's mix draws.
    auto draw = [&]() -> int32_t {
        int32_t k = std::clamp<int32_t>(CLng(double(ctx.Rnd()) * (n - 1)), 0, n - 1);
        for (int guard = 0; untried > 0 && tried[size_t(k)] && guard < 64; ++guard)
            k = std::clamp<int32_t>(CLng(double(ctx.Rnd()) * (n - 1)), 0, n - 1);
        // Past the guard the next untried one in list order: the draw still ends.
        for (int32_t step = 0; untried > 0 && tried[size_t(k)] && step < n; ++step) k = (k + 1) % n;
        if (!tried[size_t(k)]) {
            tried[size_t(k)] = 1;
            --untried;
        }
        return k;
    };
    std::vector<FacePick> picks(3);
    for (FacePick &p : picks) p.path = src.ListPicDir.value(draw());
    while (true) {
        decode(picks, faceSide);
        const auto read = std::find_if(picks.begin(), picks.end(),
                                       [](const FacePick &p) { return !p.picture.isNull(); });
        bool missing = false;
        for (FacePick &p : picks) {
            if (!p.picture.isNull()) continue;
            s.status().setPanelText(sbrState, invalidPictureText(p.path));
            missing = true;
            // Another photo in its place; with none left untried, one that was read.
            if (untried > 0) {
                p.path = src.ListPicDir.value(draw());
            } else if (read != picks.end()) {
                p = *read;
            } else {
                s.ask(mosaiktext::noValidPictures(dir), Buttons::Ok, Icon::Exclamation);
                return false;
            }
        }
        if (!missing) break;
    }
    for (size_t i = 0; i < 3; ++i) faces[i] = squareOf(picks[i].picture, picks[i].cut);
    return true;
}

bool fromFile(PaintContext &ctx, const QString &file, bool mix, int faceSide,
              std::array<QImage, 3> &faces)
{
    Session &s = ctx.session;
    const QSize stored = photoFileSize(file);
    std::array<QRectF, 3> cuts{};
    if (mix && stored.isValid()) {
        // Three squares from random places ("Ausschnitt-Mix"), drawn before the decode.
        const double shorter = std::min(stored.width(), stored.height());
        for (QRectF &c : cuts) {
            const double share = CutShare + CutRange * double(ctx.Rnd());
            const double sw = share * shorter / stored.width(), sh = share * shorter / stored.height();
            const double x = double(ctx.Rnd()) * (1.0 - sw), y = double(ctx.Rnd()) * (1.0 - sh);
            c = QRectF(x, y, share, share);
        }
    }
    std::vector<FacePick> pick(1);
    pick[0].path = file;
    pick[0].cut = mix ? QRectF(0, 0, CutShare, CutShare) : QRectF();
    decode(pick, faceSide);
    if (pick[0].picture.isNull()) {
        s.status().setPanelText(sbrState, invalidPictureText(file));
        s.ask(mosaiktext::noValidPictures(file), Buttons::Ok, Icon::Exclamation);
        return false;
    }
    for (size_t i = 0; i < 3; ++i) faces[i] = squareOf(pick[0].picture, cuts[i]);
    return true;
}

} // namespace

bool PanelCubePhotos::facesFor(PaintContext &ctx, int faceSide, std::array<QImage, 3> &faces)
{
    Session &s = ctx.session;
    const Controls &k = s.controls();
    const bool file = k.listIndex(key("optPicMosaikSource")) == 0;
    const QString source = s.picSources().PicSource;
    if (source.isEmpty()) {
        s.ask(file ? mosaiktext::chooseAPictureFirst() : mosaiktext::chooseADirectoryFirst(),
              Buttons::Ok, Icon::Exclamation);
        return false;
    }
    if (file) return fromFile(ctx, source, k.checked(key("XPicMosaik_MixSlots")), faceSide, faces);
    return fromDirectory(ctx, source, k.checked(key("XPicMosaikSubDirs")), faceSide, faces);
}

} // namespace tf
