#pragma once
// The selections: floating pictures over `Bild`. Cutting lifts the pixels of a rectangle (or
// an ellipse) out of the picture into `PicSelect` (or `picSelectC`) and leaves a hole of the
// background colour; the selection can then be moved, stretched, painted and filtered as the
// paint target, and is finally stamped back. `PicSSelect` / `PicSSelectC` keep the selection
// as it stood before a move, a stretch or a paste, so that Undo can put it back.
//
// Places are pixels of `Bild`: a selection lies at its Left, Top with its own size. The
// elliptic selection shows and stamps only the pixels of the ellipse inscribed in its
// rectangle (`CreateEllipticRgn(0, 0, w, h)`), which `PicMask` holds as a picture (black
// inside, white outside).
//
// The action string follows every step: "RECTINIT" after a cut, "RECTMOVED" and
// "RECTRESIZED" after the first move or stretch, "RECTCOPIED" after a stamp, "RECTHIDDEN"
// while Undo (or Delete) hides the selection, and the "CIRC" twins. Undo of these states is
// `undoSelection`, which the workspace calls for an action string beginning "RECT" or "CIRC".

#include "core/gdi.h"
#include "core/workspace.h"

#include <QImage>
#include <QRect>

namespace tf {

class Session;
class PictureBox;

enum class SelectionKind { Rect, Circ };

class Selections : public SelectionUndo {
public:
    explicit Selections(Session &s);
    ~Selections() override;

    // The selection's picture and its saved copy.
    PictureBox &picture(SelectionKind kind);
    PictureBox &saved(SelectionKind kind);
    // The selection shown (PicSelect before picSelectC); null when none.
    PictureBox *shown();
    SelectionKind shownKind();
    // Its rectangle on Bild.
    static QRect placeOf(const PictureBox &p);
    // Whether (x, y) of Bild lies on the shown selection of `kind` (the ellipse for "CIRC").
    bool hits(SelectionKind kind, int x, int y);
    // The ellipse of a selection of w x h, in its own pixels.
    static Region ellipseOf(int w, int h);

    // Cuts `area` (clipped to the picture) out of Bild into the selection of `kind`: the
    // selection shows and becomes the paint target, the hole takes ColorBack, the action
    // string is "RECTINIT" / "CIRCINIT". An area of nothing changes nothing.
    void cut(SelectionKind kind, const QRect &area);
    // Stamps the rectangular selection back (Commit_Selection): what of it lies on the picture
    // replaces the picture's pixels, the selection hides, the action string is "RECTCOPIED".
    void Commit_Selection();
    // The same for the elliptic selection, with its mask; `action` becomes the action string.
    // Between 2 and 98 percent of transparency the stamped pixels blend with the picture.
    void Copy_SelectionC_to_Bild(bool flag, const QString &action);
    // Stamps whichever selection is shown.
    void commitShown();
    // Builds the elliptic mask on PicMask.
    void Copy_SelectionC_Create_Mask();

    // A move or stretch of the shown selection starts: its state is kept for Undo when the
    // action string says the selection is fresh ("...INIT" or the bare kind).
    void beginChange(SelectionKind kind);
    void moveTo(SelectionKind kind, int left, int top);
    // Stretches the kept state to w x h (nearest pixel), at least 1 x 1.
    void stretchTo(SelectionKind kind, int w, int h);
    // The move (or stretch) ends; `changed` says whether the place (or size) differs.
    void endMove(SelectionKind kind, bool changed);
    void endStretch(SelectionKind kind, bool changed);

    // ---- The edit menu -----------------------------------------------------------------
    // The shown selection's picture as the clipboard takes it (the elliptic one with the
    // background colour outside its ellipse); null when none is shown.
    QImage shownImage();
    // Drops the shown selection; the hole stays, Undo shows it again ("...HIDDEN").
    void drop();
    // A picture from the clipboard: into the shown elliptic selection through its mask
    // ("CIRCMOVED"), else as a new rectangular selection at `at` ("RECTMOVED"), a shown one
    // stamped first. A picture larger than Bild is brought into it with its proportions.
    void paste(const QImage &image, QPoint at);
    // A selection of the whole picture.
    void selectAll();
    // Moves the shown selection: 1 top left, 2 top right, 3 centre, 4 bottom left,
    // 5 bottom right.
    void align(int place);

    bool undoSelection(Workspace &ws) override;

private:
    QString word(SelectionKind kind) const;
    void showAsTarget(SelectionKind kind, bool on);
    // Swaps the selection's picture with its undo image (sizes and all).
    void swapWithUndo(PictureBox &p);
    // Swaps place, size, picture and visibility of the selection and its saved copy.
    void swapWithSaved(SelectionKind kind);

    Session &m_s;
    // The selections' pictures as they were cut: a change since (a filter that leaves the
    // action string alone) is what Undo takes back first.
    qint64 m_cutKey[2] = {0, 0};
};

} // namespace tf
