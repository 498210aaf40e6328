// PicMosaikRun: the source, the layout, the plan of each frame, the pieces prepared on all
// cores, and the pasting in frame order.
#include "generators/picmosaik.h"

#include "core/dibsection.h"
#include "core/fault.h"
#include "core/parallel.h"
#include "core/picturebox.h"
#include "files/cdstdpicture.h"
#include "files/jpegcodec.h"
#include "files/reduce.h"
#include "generators/framecanvas.h"
#include "generators/mondrian.h"
#include "generators/mondrianlayout.h"
#include "generators/picmosaik_p.h"
#include "generators/picmosaik_texts.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <QFileInfo>
#include <algorithm>
#include <deque>
#include <map>

namespace tf {

namespace {

const QLatin1String MixWithoutDuplicates("MIXOHNEDUP");
const QLatin1String TooSmall("ZUKLEIN");
constexpr int DefaultLookahead = 48;

// A frame as it stands after its piece was prepared, waiting to be pasted.
struct ReadyFrame {
    FramePlan plan;
    PreparedPiece piece;
};

// What the pick of the pictures has reached; kept per frame, so that a frame whose picture
// turns out to be unreadable is planned again from where it started.
struct PickState {
    uint32_t random = 0;
    int32_t Seq = 0;
    int32_t Tries = 0;
    QString Reason;
    std::vector<uint8_t> used;
    std::vector<uint8_t> small; // pictures found too small (or unreadable) since the last hit
    int32_t smallCount = 0;
    bool lastRetry = false;
    int hitsSinceRetry = 0;
};

class SessionYield : public YieldHook {
public:
    explicit SessionYield(Session &s) : m_s(s) {}
    bool yield() override
    {
        m_s.DoEvents();
        return m_s.paint().StopPaint;
    }

private:
    Session &m_s;
};

int32_t rounded(double x)
{
    return CLng(x);
}

// Makes sure the list holds the directory of `o` (scanned once per change) and says why not.
bool scanDirectory(Session &s, const PicMosaikOptions &o)
{
    PicSourceList &l = s.picSources();
    l.FromFile = false;
    const QString dir = o.source;
    if (dir.isEmpty() || !QFileInfo(dir).isDir()) {
        s.ask(mosaiktext::chooseADirectoryFirst(), Buttons::Ok, Icon::Exclamation);
        return false;
    }
    if (!l.holds(dir, o.subDirs)) {
        s.status().setPanelText(sbrState, mosaiktext::scanning(dir));
        SessionYield yield(s);
        if (!l.scan(dir, o.subDirs, &yield))
            return false;
    }
    if (l.PicCount <= 0) {
        l.clear();
        s.ask(mosaiktext::noValidPictures(dir), Buttons::Ok, Icon::Exclamation);
        return false;
    }
    s.status().setPanelText(sbrState, mosaiktext::pictureCount(l.PicCount));
    l.resetUsed();
    return true;
}

} // namespace

struct PicMosaikRun::Impl {
    PaintContext &ctx;
    Session &s;
    PicMosaikCall call;
    PicMosaikOptions o;
    int threads = 0;
    int lookahead = DefaultLookahead;

    // The layout on the target.
    std::vector<MondrianFrame> frames;
    int32_t offX = 0, offY = 0;
    int16_t penW = 1;
    bool allFrames = false;
    ColorLong lineColour = 0;
    int32_t format = 0;
    int picW = 0, picH = 0;
    double averageCell = 0;

    // A file source: the picture (for "Ausschnitt-Mix" as it is, else laid over the layout).
    QImage whole;
    QSize wholeStored;
    QPoint wholeOrigin;
    bool wholeFits = true;

    PickState pick;
    std::map<QString, QSize> sizes; // header sizes; an invalid one: the file cannot be read

    int next = 0;    // the next frame to plan
    int visited = 0; // frames taken from the queue
    std::deque<ReadyFrame> ready;
    bool started = false;
    bool ended = false;
    QString lastFile;
    QSize maxSplit, maxHit;
    cDIBSection tile; // the one surface every piece goes through on its way to the target

    Impl(PaintContext &c, const PicMosaikCall &cl) : ctx(c), s(c.session), call(cl) {}

    PicSourceList &list() { return s.picSources(); }

    // --- the source ---------------------------------------------------------------------

    bool prepareSource()
    {
        PicSourceList &l = list();
        l.FromFile = o.fromFile;
        if (o.fromFile) {
            const QString path = o.source;
            if (path.isEmpty() || !QFileInfo(path).isFile()) {
                s.ask(mosaiktext::chooseAPictureFirst(), Buttons::Ok, Icon::Exclamation);
                return false;
            }
            LoadResult r = loadPhoto(path);
            if (!r.loaded()) {
                s.status().setPanelText(sbrState, invalidPictureText(path));
                s.ask(mosaiktext::chooseAPictureFirst(), Buttons::Ok, Icon::Exclamation);
                return false;
            }
            whole = std::move(r.image);
            wholeStored = r.stored;
            return true;
        }
        if (!scanDirectory(s, o))
            return false;
        sizes.clear();
        return true;
    }

    QSize sizeOf(const QString &path)
    {
        auto it = sizes.find(path);
        if (it != sizes.end())
            return it->second;
        const QSize size = photoFileSize(path);
        sizes.emplace(path, size);
        return size;
    }

    // --- the layout (as the Mondrian lays it out) -----------------------------------------

    bool sizeFromSurface(const FrameCanvas &canvas, int32_t m2)
    {
        // The show keeps the whole window its layout was given.
        return !call.Show && mondrianSizeFromSurface(ctx, canvas, format, m2);
    }

    void layout(FrameCanvas &canvas)
    {
        MondrianTables &t = s.mondrian();
        picW = canvas.width();
        picH = canvas.height();
        if (call.Super || call.Side <= 0)
            call.Side = std::max(picW, picH);
        format = call.Format;
        penW = call.PenWidth < 1 ? int16_t(1) : call.PenWidth;
        allFrames = call.AllFrames != 0;
        if (!o.drawBorders) {
            penW = 0;
            allFrames = false;
        }
        lineColour = s.colours().ColorBorder;
        t.MondrianMargin = o.margin;
        const int32_t m2 = checkedMul<int32_t>(2, t.MondrianMargin);

        const bool repaint = call.Repaint && t.holdsLayout() && t.MondrianHSplits >= 2 &&
                             t.MondrianHSplits * t.MondrianVSplits > 0 &&
                             call.Type == t.MondrianLastType &&
                             (o.randomValues ||
                              (o.panelH == t.MondrianLastH && o.panelV == t.MondrianLastV));
        if (call.Super || call.Show) {
            format = 0;
            t.MondrianW = picW - m2;
            t.MondrianH = picH - m2;
        } else if (repaint && t.MondrianW > 0 && t.MondrianH > 0) {
            // the sizes of the last set
        } else if (!sizeFromSurface(canvas, m2)) {
            mondrianSizeByFormat(s, format, call.Side, m2);
        }

        if (!repaint) {
            MondrianSetRequest r;
            r.h = o.panelH;
            r.v = o.panelV;
            r.symH = call.SymH;
            r.symV = call.SymV;
            r.doSub = o.doSub;
            r.harmonic = o.harmonic;
            r.randomValues = o.randomValues;
            r.minRatio = std::max<int16_t>(1, call.MinRatio);
            r.type = call.Type;
            r.pen = penW;
            penW = makeMondrianSet(s, r).pen;
        }

        if (!call.Super) {
            canvas.clear();
            sizeFromSurface(canvas, m2);
        }
        offX = offY = t.MondrianMargin;
        if (o.centreLayout && format == 1)
            offX = rounded((call.Side - t.MondrianW - m2) / 2.0) + t.MondrianMargin;
        else if (o.centreLayout && format == 2)
            offY = rounded((call.Side - t.MondrianH - m2) / 2.0) + t.MondrianMargin;

        frames = mondrianFrames(t);
        const int cells = std::max(1, t.MondrianHSplits * t.MondrianVSplits);
        averageCell = double(t.MondrianW) * double(t.MondrianH) / cells;
    }

    int paintableFrames() const
    {
        return int(std::count_if(frames.begin(), frames.end(), [](const MondrianFrame &f) {
            return f.right > f.left && f.bottom > f.top;
        }));
    }

    // --- fitting and placing --------------------------------------------------------------

    // Brings a picture of `stored` size to the frame: false when it is too small to be used.
    bool fit(PiecePlan &p, QSize stored, QSize frame)
    {
        const int fw = frame.width(), fh = frame.height();
        p.stored = stored;
        p.frame = frame;
        p.scaled = stored;
        p.tile = false;
        p.resample = o.antiAlias;
        bool asItIs = false;
        if (o.shrink) {
            const double rx = double(fw) / stored.width();
            const double ry = double(fh) / stored.height();
            const bool tooSmall = rx > 1 && ry > 1;
            if (tooSmall && !o.allowSmall)
                return false;
            if (tooSmall || (o.allowSmall && fw <= 20 && fh <= 20)) {
                asItIs = true;
            } else {
                const double r = std::max(rx, ry);
                p.scaled = QSize(std::max(fw, rounded(r * stored.width())),
                                 std::max(fh, rounded(r * stored.height())));
            }
        } else {
            const bool smaller = stored.width() < fw || stored.height() < fh;
            if (smaller && !o.allowSmall)
                return false;
            asItIs = true;
        }
        if (asItIs && o.allowSmall && o.tileSmall &&
            (p.scaled.width() < fw || p.scaled.height() < fh))
            p.tile = true;
        return true;
    }

    void place(PiecePlan &p)
    {
        const int dw = p.scaled.width() - p.frame.width();
        const int dh = p.scaled.height() - p.frame.height();
        if (p.tile) {
            // The tiles are laid from the frame's top left, or with one in the frame's middle.
            p.origin = o.center ? QPoint(-rounded(dw / 2.0), -rounded(dh / 2.0)) : QPoint(0, 0);
        } else if (o.center) {
            p.origin = QPoint(-rounded(dw / 2.0), -rounded(dh / 2.0));
        } else {
            const int x = rounded(double(s.Rnd()) * dw);
            const int y = rounded(double(s.Rnd()) * dh);
            p.origin = QPoint(-x, -y);
        }
    }

    // --- picking ----------------------------------------------------------------------------

    // The Retry-Cancel box of a layout that has run out of pictures. True: Retry, the used
    // pictures are free again. A Retry that brought no picture at all is not asked again:
    // the same pictures would fail the same way.
    bool askRetry()
    {
        if (pick.lastRetry && pick.hitsSinceRetry == 0) {
            ended = true;
            return false;
        }
        QString text;
        if (o.fromFile)
            text = mosaiktext::loadedPictureTooSmall();
        else if (pick.Reason == MixWithoutDuplicates)
            text = mosaiktext::tooFewPictures(o.source);
        else
            text = mosaiktext::picturesTooSmall(o.source);
        Prompt prompt;
        prompt.text = text;
        prompt.buttons = Buttons::RetryCancel;
        prompt.icon = Icon::Exclamation;
        prompt.defaultButton = 1; // nobody to ask: Cancel, the frames painted stay
        if (s.prompter().ask(prompt) != Answer::Retry) {
            ended = true;
            return false;
        }
        std::fill(pick.used.begin(), pick.used.end(), 0);
        std::fill(pick.small.begin(), pick.small.end(), 0);
        pick.smallCount = 0;
        pick.Seq = 0;
        pick.Reason.clear();
        pick.lastRetry = true;
        pick.hitsSinceRetry = 0;
        return true;
    }

    int32_t usedCount() const
    {
        const int32_t n = list_().PicCount;
        int32_t c = 0;
        for (int32_t i = 0; i < n; ++i)
            c += pick.used[size_t(i)] != 0;
        return c;
    }
    const PicSourceList &list_() const { return s.picSources(); }

    // A picture that could not be used; true while others are left to try.
    bool markSmall(int32_t k)
    {
        if (!pick.small[size_t(k)]) {
            pick.small[size_t(k)] = 1;
            ++pick.smallCount;
        }
        // With duplicates the pick never runs out by itself: when every picture has failed
        // since the last hit, the layout has run out all the same.
        if (o.duplicates && pick.smallCount >= list_().PicCount)
            return askRetry();
        return true;
    }

    void hit()
    {
        ++pick.Tries;
        ++pick.hitsSinceRetry;
        if (pick.smallCount > 0) {
            std::fill(pick.small.begin(), pick.small.end(), 0);
            pick.smallCount = 0;
        }
    }

    // Picks a picture of the directory for the frame; false when the run has ended.
    bool pickFromDirectory(FramePlan &f)
    {
        const PicSourceList &l = list_();
        const int32_t count = l.PicCount;
        for (;;) {
            if (s.paint().StopPaint) {
                ended = true;
                return false;
            }
            int32_t k = 0;
            if (o.mix) {
                if (!o.duplicates) {
                    if (usedCount() >= count) {
                        pick.Reason = MixWithoutDuplicates;
                        if (!askRetry())
                            return false;
                        continue;
                    }
                    do {
                        k = rounded(double(s.Rnd()) * (count - 1));
                    } while (pick.used[size_t(k)]);
                } else {
                    k = rounded(double(s.Rnd()) * (count - 1));
                }
                ++pick.Seq;
            } else {
                ++pick.Seq;
                if (!o.duplicates && pick.Seq > count) {
                    if (!askRetry())
                        return false;
                    continue;
                }
                k = pick.Seq < count ? std::max(pick.Seq, 1) - 1 : (pick.Seq - 1) % count;
            }
            pick.used[size_t(k)] = 1;
            const QString path = k < l.ListPicDir.size() ? l.ListPicDir.at(k) : QString();
            if (path.isEmpty()) {
                s.ask(mosaiktext::noFileName(k, count), Buttons::Ok, Icon::Exclamation);
                if (!markSmall(k))
                    return false;
                continue;
            }
            s.status().setPanelText(sbrState, path);
            const QSize size = sizeOf(path);
            if (!size.isValid() || size.isEmpty()) {
                s.status().setPanelText(sbrState, invalidPictureText(path));
                if (!markSmall(k))
                    return false;
                continue;
            }
            PiecePlan p;
            p.path = path;
            if (!fit(p, size, f.rect.size())) {
                pick.Reason = TooSmall;
                if (!markSmall(k))
                    return false;
                continue;
            }
            place(p);
            f.piece = p;
            hit();
            return true;
        }
    }

    // The frame's part of the one picture; false when the frame stays empty or the run ended.
    bool pickFromFile(FramePlan &f)
    {
        PiecePlan p;
        if (o.mix) {
            // "Ausschnitt-Mix": a cut of the frame's size from anywhere in the picture. A
            // picture too small for the frame leaves it empty (Retry) or ends the run.
            if (!fit(p, wholeStored, f.rect.size())) {
                pick.Reason = TooSmall;
                askRetry();
                return false;
            }
            place(p);
        } else {
            if (!wholeFits) {
                pick.Reason = TooSmall;
                askRetry();
                return false;
            }
            // The picture lies over the whole layout; the frame shows its own part of it.
            p.stored = wholeStored;
            p.scaled = whole.size();
            p.frame = f.rect.size();
            p.origin = wholeOrigin - QPoint(f.rect.left() - offX, f.rect.top() - offY);
            p.tile = tileWhole;
        }
        f.piece = p;
        hit();
        return true;
    }
    bool tileWhole = false;

    // Lays the one picture of a file source over the layout (without "Ausschnitt-Mix").
    void layWhole()
    {
        const MondrianTables &t = s.mondrian();
        PiecePlan p;
        const QSize area(std::max(1, t.MondrianW), std::max(1, t.MondrianH));
        wholeFits = fit(p, wholeStored, area);
        if (!wholeFits)
            return;
        place(p);
        wholeOrigin = p.origin;
        tileWhole = p.tile;
        if (p.scaled != whole.size()) {
            cDIBSection dib;
            if (dib.CreateFromPicture(whole)) {
                const std::unique_ptr<cDIBSection> scaled =
                    p.resample ? dib.Resample(p.scaled.width(), p.scaled.height())
                               : dib.Resize(p.scaled.width(), p.scaled.height());
                if (scaled)
                    whole = imageOfDib(*scaled);
            }
        }
    }

    // --- effects --------------------------------------------------------------------------

    EffectPlan effects(const FramePlan &f)
    {
        EffectPlan e;
        const int fw = f.rect.width(), fh = f.rect.height();
        const bool small = double(fw) * fh < averageCell;
        // One pass of the soft blur per 200 pixels of the frame's shorter side, at least one;
        // strong: three times as many of the stronger blur.
        const int passes = 1 + std::min(fw, fh) / 200;
        bool blur = false;
        switch (o.opt) {
        case OptBlurSmall: blur = small; break;
        case OptBlurBig: blur = !small; break;
        case OptBlurBigStrong:
            blur = !small;
            e.strongBlur = true;
            break;
        case OptBlurRandom: blur = s.Rnd() < 0.5f; break;
        case OptBlurAll: blur = true; break;
        case OptColouriseRandom:
            if (s.Rnd() < 0.5f) {
                e.colourise = true;
                e.hue = Single(double(s.Rnd()) * 6 - 1);
                e.saturation = saturation();
                e.monochrome = o.monochrome;
            }
            break;
        case OptGreyRandom: e.grey = s.Rnd() < 0.5f; break;
        default: break;
        }
        if (blur)
            e.blurPasses = e.strongBlur ? passes * 3 : passes;
        if (o.onlyGrey)
            e.grey = true;
        if (o.colorize) {
            e.colourise = true;
            double h = o.hueDegrees / 60.0;
            if (h >= 5)
                h -= 6;
            e.hue = Single(h);
            e.saturation = saturation();
            e.monochrome = o.monochrome;
        }
        return e;
    }

    Single saturation()
    {
        const double v = (o.satStart + double(s.Rnd()) * o.satRange) / 100.0;
        return Single(std::clamp(v, 0.0, 1.0));
    }

    // --- planning -------------------------------------------------------------------------

    bool touchesEdge(const MondrianFrame &f) const
    {
        const MondrianTables &t = s.mondrian();
        return f.left <= 0 || f.top <= 0 || f.right >= t.MondrianW || f.bottom >= t.MondrianH;
    }

    // Plans frame i; false when the run ended before it.
    bool planFrame(int i, FramePlan &p)
    {
        const MondrianFrame &f = frames[size_t(i)];
        p = FramePlan();
        p.index = i;
        p.rect = QRect(f.left + offX, f.top + offY, f.right - f.left, f.bottom - f.top);
        if (f.right <= f.left || f.bottom <= f.top)
            return true; // a frame of no width: nothing to fill
        if (!o.fillAll) {
            // The layout's colours decide: with "Nur freie Rahmen füllen" the frames left
            // without colour take the pictures, else the coloured ones do.
            const ColorLong c = mondrianFrameColour(s, f, picW, picH);
            if (o.fillOnlyEmpty && c != NoColour) {
                p.kind = FramePlan::Fill;
                p.fill = c;
                return true;
            }
            if (!o.fillOnlyEmpty && c == NoColour)
                return true;
        }
        if ((o.opt == OptOnlyEdge && !touchesEdge(f)) || (o.opt == OptOnlyInner && touchesEdge(f)))
            return true;
        const bool picked = o.fromFile ? pickFromFile(p) : pickFromDirectory(p);
        if (!picked)
            return !ended;
        p.kind = FramePlan::Picture;
        p.effects = effects(p);
        return true;
    }

    PickState snapshot() const
    {
        PickState st = pick;
        st.random = s.random().state();
        return st;
    }
    void restore(const PickState &st)
    {
        pick = st;
        s.random().setState(st.random);
    }

    // Decoded photos kept from one stretch to the next, by file and JPEG scale: a picture
    // decoded at a scale is the same whichever frame asked for it, so a photo used in many
    // frames is decoded once. The store is emptied whole when it grows past its limit.
    using DecodeKey = std::pair<QString, int>;
    std::map<DecodeKey, QImage> decoded;
    qint64 decodedBytes = 0;
    static constexpr qint64 DecodedLimit = qint64(256) << 20;

    static DecodeKey decodeKey(const PiecePlan &p)
    {
        const bool down = p.scaled.width() < p.stored.width() &&
                          p.scaled.height() < p.stored.height();
        return {p.path, down ? jpegScaleFor(p.stored, p.scaled) : 1};
    }

    // Decodes, on all cores, the photos the planned frames need that are not kept yet.
    void decodeFor(const std::vector<FramePlan> &plans)
    {
        if (o.fromFile)
            return;
        if (decodedBytes > DecodedLimit) {
            decoded.clear();
            decodedBytes = 0;
        }
        std::vector<DecodeKey> keys;
        std::vector<QSize> needs;
        for (const FramePlan &p : plans) {
            if (p.kind != FramePlan::Picture)
                continue;
            const DecodeKey k = decodeKey(p.piece);
            if (decoded.count(k) || std::find(keys.begin(), keys.end(), k) != keys.end())
                continue;
            keys.push_back(k);
            needs.push_back(k.second > 1 ? p.piece.scaled : QSize());
        }
        const int n = int(keys.size());
        std::vector<LoadResult> results(keys.size());
        parallelChunks(n, 1, threadsFor(n, 1, 1, threads), [&](int first, int last) {
            for (int i = first; i < last; ++i)
                results[size_t(i)] = loadPhoto(keys[size_t(i)].first, needs[size_t(i)]);
        }, [](int) {});
        for (int i = 0; i < n; ++i) {
            if (!results[size_t(i)].loaded())
                continue;
            decodedBytes += results[size_t(i)].image.sizeInBytes();
            decoded.emplace(keys[size_t(i)], std::move(results[size_t(i)].image));
        }
    }

    // Plans the next frames, prepares their pieces on all cores and queues them in order.
    // False when nothing is left to queue.
    bool fill()
    {
        while (ready.empty() && !ended && next < int(frames.size())) {
            std::vector<FramePlan> plans;
            std::vector<PickState> states;
            while (int(plans.size()) < lookahead && next < int(frames.size()) && !ended) {
                states.push_back(snapshot());
                FramePlan p;
                if (!planFrame(next, p))
                    break;
                plans.push_back(std::move(p));
                ++next;
            }
            const int n = int(plans.size());
            decodeFor(plans);
            std::vector<PreparedPiece> pieces(plans.size());
            parallelChunks(n, 1, threadsFor(n, 1, 1, threads), [&](int first, int last) {
                for (int j = first; j < last; ++j) {
                    const FramePlan &p = plans[size_t(j)];
                    if (p.kind != FramePlan::Picture)
                        continue;
                    if (o.fromFile) {
                        pieces[size_t(j)] = preparePiece(p.piece, &whole);
                        continue;
                    }
                    const auto it = decoded.find(decodeKey(p.piece));
                    if (it == decoded.end())
                        pieces[size_t(j)].failed = true;
                    else
                        pieces[size_t(j)] = preparePiece(p.piece, &it->second);
                }
            }, [](int) {});
            for (int j = 0; j < n; ++j) {
                if (pieces[size_t(j)].failed) {
                    // The header promised a picture the file does not hold: that file counts
                    // as unreadable, and the frames from here are planned again.
                    sizes[plans[size_t(j)].piece.path] = QSize();
                    s.status().setPanelText(sbrState,
                                            invalidPictureText(plans[size_t(j)].piece.path));
                    restore(states[size_t(j)]);
                    next = plans[size_t(j)].index;
                    ended = false;
                    break;
                }
                ready.push_back({std::move(plans[size_t(j)]), std::move(pieces[size_t(j)])});
            }
        }
        return !ready.empty();
    }

    // --- painting -------------------------------------------------------------------------

    void drawFrameLines(FrameCanvas &canvas, const QRect &r)
    {
        if (!allFrames || r.width() <= 0 || r.height() <= 0)
            return;
        const int l = r.left(), t = r.top(), rr = r.left() + r.width(), b = r.top() + r.height();
        for (int i = 1; i <= penW; ++i) {
            canvas.line(l, t + i - 1, rr, t + i - 1, lineColour);
            canvas.line(l + i - 1, t, l + i - 1, b, lineColour);
        }
    }

    void paste(FrameCanvas &canvas, ReadyFrame &f)
    {
        const FramePlan &p = f.plan;
        if (p.kind == FramePlan::Fill) {
            canvas.fillBox(p.rect.left(), p.rect.top(), p.rect.right(), p.rect.bottom(), p.fill);
        } else if (p.kind == FramePlan::Picture && !f.piece.image.isNull()) {
            applyEffects(s, f.piece.image, p.effects);
            if (tile.CreateFromPicture(f.piece.image)) {
                const QRect a = f.piece.area.translated(p.rect.topLeft());
                BitBlt(canvas.dc(), a.left(), a.top(), a.width(), a.height(), tile.dib_hdc(), 0,
                       0, SRCCOPY);
            }
            lastFile = p.piece.path.isEmpty() ? o.source : p.piece.path;
            maxHit = maxHit.expandedTo(p.piece.stored);
        }
        maxSplit = maxSplit.expandedTo(p.rect.size());
        drawFrameLines(canvas, p.rect);
    }
};

PicMosaikRun::PicMosaikRun(PaintContext &ctx, const PicMosaikCall &call)
    : d(std::make_unique<Impl>(ctx, call))
{
}

PicMosaikRun::~PicMosaikRun() = default;

void PicMosaikRun::setThreads(int threads)
{
    d->threads = std::max(0, threads);
}

void PicMosaikRun::setLookahead(int frames)
{
    d->lookahead = std::max(1, frames);
}

bool PicMosaikRun::start(FrameCanvas &target)
{
    Impl &m = *d;
    m.s.Randomize();
    m.o = readPicMosaikOptions(m.s, m.call.Super);
    m.frames.clear();
    m.ready.clear();
    m.next = m.visited = 0;
    m.ended = false;
    m.started = false;
    m.maxSplit = m.maxHit = QSize();
    m.lastFile.clear();
    m.whole = QImage();
    if (!m.prepareSource())
        return false;
    m.layout(target);
    const PicSourceList &l = m.list_();
    if (!m.o.fromFile && !m.o.duplicates && !m.o.mix && m.paintableFrames() > l.PicCount) {
        m.s.ask(mosaiktext::fewerPicturesThanFrames(l.PicCount, m.paintableFrames()), Buttons::Ok,
                Icon::Exclamation);
        return false;
    }
    if (!m.o.fillAll)
        chooseMondrianColours(m.s, false);
    const size_t n = size_t(std::max(l.PicCount, 1)) + 1;
    m.pick = PickState();
    m.pick.used.assign(n, 0);
    m.pick.small.assign(n, 0);
    if (m.o.fromFile && !m.o.mix)
        m.layWhole();
    m.started = true;
    return true;
}

bool PicMosaikRun::paintNext(FrameCanvas &target)
{
    Impl &m = *d;
    if (!m.started)
        return false;
    while (m.fill()) {
        ReadyFrame f = std::move(m.ready.front());
        m.ready.pop_front();
        ++m.visited;
        const bool picture = f.plan.kind == FramePlan::Picture;
        m.paste(target, f);
        if (picture) {
            target.changed();
            return true;
        }
    }
    target.changed();
    return false;
}

void PicMosaikRun::finish(FrameCanvas &canvas)
{
    Impl &m = *d;
    if (!m.started)
        return;
    const MondrianTables &t = m.s.mondrian();
    const int16_t h = t.MondrianHSplits, v = t.MondrianVSplits;
    if (m.o.drawBorders && !m.allFrames && h >= 1 && v >= 1) {
        // The lines of the columns and rows across the whole layout.
        const int from = m.penW > 1 ? rounded(-m.penW / 2.0) : 0;
        const int to = m.penW > 1 ? rounded(m.penW / 2.0) : 0;
        for (int c = 1; c <= h - 1; ++c) {
            const int x = t.ArrCellH(0, c, 0) + m.offX;
            for (int dd = from; dd <= to; ++dd)
                canvas.line(x + dd, m.offY, x + dd, m.offY + t.MondrianH, m.lineColour);
        }
        for (int r = 1; r <= v - 1; ++r) {
            const int y = t.ArrCellV(0, 0, r) + m.offY;
            for (int dd = from; dd <= to; ++dd)
                canvas.line(m.offX, y + dd, m.offX + t.MondrianW, y + dd, m.lineColour);
        }
    }
    if (m.o.drawBorders && m.allFrames && h >= 1 && v >= 1) {
        // The bottom and right lines close the picture.
        int right = 0, bottom = 0;
        if (m.format == 0) {
            right = m.picW - (m.offX + 1);
            bottom = m.picH - (m.offY + 1);
        } else {
            right = m.offX + t.ArrCellH(1, h - 1, 0) - 1;
            bottom = m.offY + t.ArrCellV(1, 0, v - 1) - 1;
        }
        const int shorten = m.call.Super ? m.penW - 1 : 0;
        for (int i = 1; i <= m.penW; ++i) {
            canvas.line(m.offX, bottom - (i - 1), right + 1 - shorten, bottom - (i - 1),
                        m.lineColour);
            canvas.line(right - (i - 1), m.offY, right - (i - 1), bottom + 1 - shorten,
                        m.lineColour);
        }
    }
    canvas.changed();
}

bool PicMosaikRun::full() const
{
    return d->started && d->ready.empty() && d->next >= int(d->frames.size());
}

bool PicMosaikRun::ended() const
{
    return d->ended;
}

int PicMosaikRun::framesDone() const
{
    return d->visited;
}

int PicMosaikRun::frameCount() const
{
    return int(d->frames.size());
}

QString PicMosaikRun::lastFile() const
{
    return d->lastFile;
}

QSize PicMosaikRun::maxSplitSize() const
{
    return d->maxSplit;
}

QSize PicMosaikRun::maxHitSize() const
{
    return d->maxHit;
}

QString PicMosaikRun::maxSizesText() const
{
    return mosaiktext::maxSizes(d->maxSplit, d->maxHit);
}

bool picSourceReady(Session &s)
{
    const PicMosaikOptions o = readPicMosaikOptions(s, false);
    if (!o.fromFile)
        return scanDirectory(s, o);
    s.picSources().FromFile = true;
    const QSize size = o.source.isEmpty() ? QSize() : photoFileSize(o.source);
    if (!size.isValid() || size.isEmpty()) {
        if (!o.source.isEmpty())
            s.status().setPanelText(sbrState, invalidPictureText(o.source));
        s.ask(mosaiktext::chooseAPictureFirst(), Buttons::Ok, Icon::Exclamation);
        return false;
    }
    return true;
}

} // namespace tf
