#include "tools/selections.h"

#include "core/fault.h"
#include "paint/session.h"
#include "paint/transparency.h"

#include <algorithm>

namespace tf {

namespace {

const QString RectWord = QStringLiteral("RECT");
const QString CircWord = QStringLiteral("CIRC");

bool has(const QString &s, const char *word) { return s.contains(QLatin1String(word)); }

// A picture of exactly `image`'s size and pixels.
void takeImage(PictureBox &p, const QImage &image)
{
    p.setAutoRedraw(true);
    p.resize(image.width(), image.height());
    p.setPicture(image);
    p.markChanged();
}

} // namespace

Selections::Selections(Session &s) : m_s(s)
{
    Workspace &ws = s.workspace();
    ws.setSelectionUndo(this);
    // The hand tools draw into the persistent pictures.
    for (PictureBox *p : {&ws.Bild, &ws.PicWork, &ws.PicTemp, &ws.PicMask})
        p->setAutoRedraw(true);
}

Selections::~Selections() { m_s.workspace().setSelectionUndo(nullptr); }

PictureBox &Selections::picture(SelectionKind kind)
{
    Workspace &ws = m_s.workspace();
    return kind == SelectionKind::Rect ? ws.PicSelect : ws.picSelectC;
}

PictureBox &Selections::saved(SelectionKind kind)
{
    Workspace &ws = m_s.workspace();
    return kind == SelectionKind::Rect ? ws.PicSSelect : ws.PicSSelectC;
}

PictureBox *Selections::shown()
{
    Workspace &ws = m_s.workspace();
    return ws.PicSelect.Visible() ? &ws.PicSelect : ws.picSelectC.Visible() ? &ws.picSelectC : nullptr;
}

SelectionKind Selections::shownKind()
{
    return m_s.workspace().PicSelect.Visible() ? SelectionKind::Rect : SelectionKind::Circ;
}

QRect Selections::placeOf(const PictureBox &p)
{
    return QRect(int(p.Left()), int(p.Top()), p.Width(), p.Height());
}

Region Selections::ellipseOf(int w, int h) { return CreateEllipticRgn(0, 0, w, h); }

bool Selections::hits(SelectionKind kind, int x, int y)
{
    const PictureBox &p = picture(kind);
    if (!p.Visible()) return false;
    const QRect r = placeOf(p);
    if (!r.contains(x, y)) return false;
    return kind == SelectionKind::Rect ||
           PtInRegion(ellipseOf(p.Width(), p.Height()), x - r.left(), y - r.top());
}

QString Selections::word(SelectionKind kind) const { return kind == SelectionKind::Rect ? RectWord : CircWord; }

void Selections::showAsTarget(SelectionKind kind, bool on)
{
    picture(kind).setVisible(on);
    Set_BILD(m_s);
    m_s.workspace().setCommands(m_s.workspace().commands); // the menu follows the selection
}

void Selections::cut(SelectionKind kind, const QRect &area)
{
    guarded(QStringLiteral("Cut_Selection"), [&] {
        Workspace &ws = m_s.workspace();
        const QRect r = area.normalized().intersected(QRect(0, 0, ws.BildW, ws.BildH));
        if (r.isEmpty()) return;
        PictureBox &p = picture(kind);
        p.Move(r.left(), r.top());
        ws.PicTemp.resize(r.width(), r.height());
        ws.PicTemp.setBackColor(m_s.colours().ColorBack);

        ws.Bild.Refresh();
        ws.Bild_nachUndo();
        takeImage(p, ws.Bild.Image().copy(r));
        // The hole: the background colour, over the rectangle or only the ellipse.
        DeviceContext &dc = ws.Bild.hDC();
        if (kind == SelectionKind::Rect) {
            BitBlt(dc, r.left(), r.top(), r.width(), r.height(), ws.PicTemp.hDC(), 0, 0, SRCCOPY);
        } else {
            Region hole = ellipseOf(r.width(), r.height());
            OffsetRgn(hole, r.left(), r.top());
            FillRgn(dc, hole, CreateSolidBrush(m_s.colours().ColorBack));
            Copy_SelectionC_Create_Mask();
        }
        ws.Bild.markChanged(r);
        ws.Bildimage_auf_Undo(p, true, false);
        ws.PicWork.resize(r.width(), r.height());
        ws.PicWork.setPicture(p.Image());
        saved(kind).setVisible(false);
        ws.SelOrgLeft = r.left();
        ws.SelOrgTop = r.top();
        ws.lastaction = word(kind) + QStringLiteral("INIT");
        m_cutKey[int(kind)] = p.Image().cacheKey();
        showAsTarget(kind, true);
    });
}

void Selections::Copy_SelectionC_Create_Mask()
{
    Workspace &ws = m_s.workspace();
    const int w = ws.picSelectC.Width(), h = ws.picSelectC.Height();
    ws.PicMask.setAutoRedraw(true);
    ws.PicMask.resize(w, h);
    ws.PicMask.setBackColor(0xFFFFFF);
    FillRgn(ws.PicMask.hDC(), ellipseOf(w, h), CreateSolidBrush(0));
    ws.PicMask.markChanged();
}

void Selections::Commit_Selection()
{
    guarded(QStringLiteral("Commit_Selection"), [&] {
        Workspace &ws = m_s.workspace();
        PictureBox &p = ws.PicSelect;
        if (!p.Visible()) return;
        ws.Bildimage_auf_Undo(ws.Bild, false, false);
        ws.BildWork.setPicture(ws.Bild.Image());
        ws.Bildimage_auf_Undo(p, true, false);
        const QRect place = placeOf(p);
        const QRect common = place.intersected(QRect(0, 0, ws.BildW, ws.BildH));
        // A selection lying wholly beside the picture stamps nothing and is dropped all the same.
        if (!common.isEmpty()) {
            ws.PicWork.resize(common.width(), common.height());
            BitBlt(ws.PicWork.hDC(), 0, 0, common.width(), common.height(), ws.Bild.hDC(),
                   common.left(), common.top(), SRCCOPY);
            BitBlt(ws.Bild.hDC(), common.left(), common.top(), common.width(), common.height(),
                   p.hDC(), common.left() - place.left(), common.top() - place.top(), SRCCOPY);
            ws.Bild.markChanged(common);
        }
        ws.BildChanged = true;
        ws.SelFlagRect = true;
        ws.lastaction = QStringLiteral("RECTCOPIED");
        showAsTarget(SelectionKind::Rect, false);
    });
}

void Selections::Copy_SelectionC_to_Bild(bool flag, const QString &action)
{
    (void)flag; // the system's flag of the undo step that follows; every stamp takes its own
    guarded(QStringLiteral("Copy_SelectionC_to_Bild"), [&] {
        Workspace &ws = m_s.workspace();
        PictureBox &p = ws.picSelectC;
        if (!p.Visible()) return;
        ws.Bildimage_auf_Undo(ws.Bild, false, false);
        ws.BildWork.setPicture(ws.Bild.Image());
        ws.Bildimage_auf_Undo(p, true, false);
        Copy_SelectionC_Create_Mask();
        const QRect place = placeOf(p);
        const QRect common = place.intersected(QRect(0, 0, ws.BildW, ws.BildH));
        if (!common.isEmpty()) {
            const TransparencyState &t = m_s.transparency();
            const bool blend = t.TranspPercent >= 2 && t.TranspPercent <= 98;
            const Region inside = ellipseOf(p.Width(), p.Height());
            QImage &bild = ws.Bild.mutableImage();
            const QImage &sel = p.Image();
            for (int y = common.top(); y <= common.bottom(); ++y) {
                auto *out = reinterpret_cast<QRgb *>(bild.scanLine(y));
                const auto *in = reinterpret_cast<const QRgb *>(sel.constScanLine(y - place.top()));
                for (int x = common.left(); x <= common.right(); ++x) {
                    const int sx = x - place.left();
                    if (!PtInRegion(inside, sx, y - place.top())) continue;
                    const QRgb n = in[sx];
                    if (!blend) {
                        out[x] = n;
                        continue;
                    }
                    const QRgb o = out[x];
                    out[x] = qRgb(blendChannel(qRed(n), qRed(o), t.TranspFactor),
                                  blendChannel(qGreen(n), qGreen(o), t.TranspFactor),
                                  blendChannel(qBlue(n), qBlue(o), t.TranspFactor));
                }
            }
            ws.Bild.markChanged(common);
        }
        ws.BildChanged = true;
        ws.SelFlagCirc = true;
        ws.lastaction = action;
        showAsTarget(SelectionKind::Circ, false);
    });
}

void Selections::commitShown()
{
    Workspace &ws = m_s.workspace();
    if (ws.PicSelect.Visible())
        Commit_Selection();
    if (ws.picSelectC.Visible())
        Copy_SelectionC_to_Bild(true, QStringLiteral("CIRCCOPIED"));
}

void Selections::beginChange(SelectionKind kind)
{
    Workspace &ws = m_s.workspace();
    const QString &la = ws.lastaction;
    // The state before the first move since the cut (or the last Undo) is what Undo goes
    // back to; further moves keep it.
    if (la != word(kind) && la != word(kind) + QStringLiteral("INIT")) return;
    PictureBox &p = picture(kind);
    PictureBox &s = saved(kind);
    s.setAutoRedraw(true);
    s.Move(p.Left(), p.Top());
    takeImage(s, p.Image());
    s.setVisible(true);
}

void Selections::moveTo(SelectionKind kind, int left, int top)
{
    PictureBox &p = picture(kind);
    p.Move(left, top);
}

void Selections::stretchTo(SelectionKind kind, int w, int h)
{
    PictureBox &p = picture(kind);
    const PictureBox &s = saved(kind);
    w = std::max(w, 1);
    h = std::max(h, 1);
    // Stretching always starts from the picture as it was when the stretch began.
    const QImage &from = s.Visible() ? s.Image() : p.Image();
    takeImage(p, from.scaled(w, h, Qt::IgnoreAspectRatio, Qt::FastTransformation));
}

void Selections::endMove(SelectionKind kind, bool changed)
{
    Workspace &ws = m_s.workspace();
    if (!changed) return;
    if (ws.lastaction == word(kind) || ws.lastaction == word(kind) + QStringLiteral("INIT"))
        ws.lastaction = word(kind) + QStringLiteral("MOVED");
    (kind == SelectionKind::Rect ? ws.SelFlagRect : ws.SelFlagCirc) = true;
}

void Selections::endStretch(SelectionKind kind, bool changed)
{
    Workspace &ws = m_s.workspace();
    if (!changed) return;
    ws.lastaction = word(kind) + QStringLiteral("RESIZED");
    if (kind == SelectionKind::Circ) Copy_SelectionC_Create_Mask();
    ws.BildChanged = true;
}

QImage Selections::shownImage()
{
    PictureBox *p = shown();
    if (!p) return QImage();
    QImage image = p->Image();
    if (p == &m_s.workspace().picSelectC) {
        const Region inside = ellipseOf(image.width(), image.height());
        const QRgb back = toQRgb(m_s.colours().ColorBack);
        for (int y = 0; y < image.height(); ++y) {
            auto *row = reinterpret_cast<QRgb *>(image.scanLine(y));
            for (int x = 0; x < image.width(); ++x)
                if (!PtInRegion(inside, x, y)) row[x] = back;
        }
    }
    return image;
}

void Selections::drop()
{
    PictureBox *p = shown();
    if (!p) return;
    const SelectionKind kind = shownKind();
    m_s.workspace().lastaction = word(kind) + QStringLiteral("HIDDEN");
    showAsTarget(kind, false);
}

void Selections::paste(const QImage &image, QPoint at)
{
    guarded(QStringLiteral("ClipPaste"), [&] {
        if (image.isNull()) return;
        Workspace &ws = m_s.workspace();
        const QImage rgb = image.convertToFormat(QImage::Format_RGB32);
        if (ws.picSelectC.Visible()) {
            // The ellipse takes the picture stretched into its rectangle; only the ellipse
            // shows and stamps.
            ws.lastaction = CircWord;
            beginChange(SelectionKind::Circ);
            PictureBox &p = ws.picSelectC;
            takeImage(p, rgb.scaled(p.Width(), p.Height(), Qt::IgnoreAspectRatio,
                                    Qt::SmoothTransformation));
            ws.lastaction = QStringLiteral("CIRCMOVED");
            ws.BildChanged = true;
            return;
        }
        commitShown();
        QImage picture = rgb;
        if (picture.width() > ws.BildW || picture.height() > ws.BildH)
            picture = picture.scaled(ws.BildW, ws.BildH, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        PictureBox &p = ws.PicSelect;
        takeImage(p, picture);
        const int left = std::clamp(at.x(), 0, std::max(0, ws.BildW - picture.width()));
        const int top = std::clamp(at.y(), 0, std::max(0, ws.BildH - picture.height()));
        p.Move(left, top);
        // There was no selection before: Undo takes the pasted one away again.
        ws.PicSSelect.setVisible(false);
        ws.PicWork.resize(picture.width(), picture.height());
        ws.PicWork.setPicture(picture);
        ws.Bildimage_auf_Undo(p, true, false);
        ws.SelOrgLeft = left;
        ws.SelOrgTop = top;
        ws.lastaction = QStringLiteral("RECTMOVED");
        ws.BildChanged = true;
        showAsTarget(SelectionKind::Rect, true);
    });
}

void Selections::selectAll()
{
    commitShown();
    const Workspace &ws = m_s.workspace();
    cut(SelectionKind::Rect, QRect(0, 0, ws.BildW, ws.BildH));
}

void Selections::align(int place)
{
    PictureBox *p = shown();
    if (!p || place < 1 || place > 5) return;
    const SelectionKind kind = shownKind();
    const Workspace &ws = m_s.workspace();
    const int right = ws.BildW - p->Width(), bottom = ws.BildH - p->Height();
    const QPoint to[] = {{0, 0}, {right, 0}, {right / 2, bottom / 2}, {0, bottom}, {right, bottom}};
    const QPoint t = to[place - 1];
    const bool changed = t != placeOf(*p).topLeft();
    beginChange(kind);
    moveTo(kind, t.x(), t.y());
    endMove(kind, changed);
}

void Selections::swapWithUndo(PictureBox &p)
{
    Workspace &ws = m_s.workspace();
    const QImage undo = ws.undoImage(true, ws.undoLiesInFile(true, false));
    if (undo.isNull()) return;
    const QImage current = p.Image();
    ws.PicTemp.setAutoRedraw(true);
    ws.PicTemp.resize(current.width(), current.height());
    ws.PicTemp.setPicture(current);
    ws.Bildimage_auf_Undo(ws.PicTemp, true, false);
    takeImage(p, undo);
    if (&p == &ws.picSelectC) Copy_SelectionC_Create_Mask();
}

void Selections::swapWithSaved(SelectionKind kind)
{
    PictureBox &p = picture(kind);
    PictureBox &s = saved(kind);
    const QImage pImage = p.Image(), sImage = s.Image();
    const QRect pPlace = placeOf(p), sPlace = placeOf(s);
    const bool pShown = p.Visible(), sShown = s.Visible();
    takeImage(p, sImage);
    p.Move(sPlace.left(), sPlace.top());
    takeImage(s, pImage);
    s.Move(pPlace.left(), pPlace.top());
    s.setVisible(pShown);
    showAsTarget(kind, sShown);
    if (kind == SelectionKind::Circ) Copy_SelectionC_Create_Mask();
}

bool Selections::undoSelection(Workspace &ws)
{
    const QString kindWord = ws.lastaction.left(4);
    const SelectionKind kind = kindWord == RectWord ? SelectionKind::Rect : SelectionKind::Circ;
    PictureBox &p = picture(kind);
    const QString la = ws.lastaction;
    if (la == kindWord + QStringLiteral("INIT") && p.Visible() &&
        p.Image().cacheKey() != m_cutKey[int(kind)]) {
        // Changed since the cut by a command that left the action string as it was.
        swapWithUndo(p);
        ws.lastaction = kindWord;
        ws.BildChanged = true;
        return true;
    }
    if (la == kindWord + QStringLiteral("INIT")) {
        ws.lastaction = kindWord + QStringLiteral("HIDDEN");
        showAsTarget(kind, false);
        return true;
    }
    if (la == kindWord + QStringLiteral("HIDDEN")) {
        ws.lastaction = kindWord + QStringLiteral("INIT");
        showAsTarget(kind, true);
        return true;
    }
    if (has(la, "MOVED") || has(la, "RESIZED")) {
        // Back to the place (and size) before: with a pasted selection, that is none.
        swapWithSaved(kind);
        if (!p.Visible())
            ws.lastaction = kindWord + QStringLiteral("HIDDEN");
        else if (!has(la, "$TURN90"))
            ws.lastaction = kindWord;
        return true;
    }
    if (has(la, "COPIED")) {
        if (p.Visible()) {
            // A picture stretched into the shown selection: the selection's own undo image.
            swapWithUndo(p);
        } else {
            ws.Undoimage_auf_Bild(ws.Bild, false, false);
            ws.Bild.markChanged();
            (kind == SelectionKind::Rect ? ws.SelFlagRect : ws.SelFlagCirc) = true;
            showAsTarget(kind, true);
        }
        ws.lastaction = kindWord;
        ws.BildChanged = true;
        return true;
    }
    if (!p.Visible()) return false; // nothing of the selection is left: the picture's Undo
    // A paint, a filter or a stroke on the selection, or a quarter turn of it: the selection
    // and its undo image change places (a turn's undo image has the other size). Pressed
    // again it is the Redo.
    swapWithUndo(p);
    if (!has(la, "$TURN90")) ws.lastaction = kindWord;
    ws.BildChanged = true;
    return true;
}

} // namespace tf
