#pragma once
// The three ways a menu entry runs a filter, on the filter target.
//
// The target is chosen by what is visible: the rectangular selection PicSelect, else the
// cut-out selection picSelectC, each with the work picture PicWork; otherwise Bild with
// BildWork. A filter on a selection works on the selection's own picture.
//
// - Direct: undo of the target, the target copied into its work picture, the filter on the
//   work picture, the result copied back over the whole target.
// - Target routine: the same inside the transparency bracket of the filter target
//   (Start_TransparentWork / Ende_TransparentWork): at a transparency of 2 to 98 per cent the
//   filtered work picture is laid over the target with the paint's blend, else it covers it.
// - Dialog: FilterDialogRun below; the widgets of frmGamma drive it.
//
// Every way takes the undo image first, so Undo gives the picture back.

#include "filters/filterargs.h"
#include "filters/filtertable.h"

#include <QImage>
#include <functional>

namespace tf {

class PictureBox;
class Session;

struct FilterTarget {
    enum Kind { Picture, Rectangle, CutOut };
    PictureBox *picture = nullptr;
    PictureBox *work = nullptr;
    Kind kind = Picture;
};

// The target by visible state.
FilterTarget chooseFilterTarget(Session &s);

// The argument a menu entry passes, by its rule (a random colour in the random colour mode,
// else the current colour; or the entry's fixed number).
int32_t entryArgument(Session &s, const FilterMenuEntry &e);
// The values a dialog filter starts with: slider defaults, colour defaults, argument =
// slider 0.
FilterArgs defaultArguments(const FilterRow &row);

// Menu_handle_Filter: the direct run of `number` with `args`.
bool Menu_handle_Filter(Session &s, int number, const FilterArgs &args);
// The target routine: the run inside the filter target's transparency bracket.
bool runTargetRoutine(Session &s, int number, const FilterArgs &args);
// The target routine around another picture operation: `work` changes the work picture's
// image in place and answers false when it failed.
bool runTargetRoutine(Session &s, const std::function<bool(QImage &)> &work);
// The direct run around another picture operation (mirrors, turns, the picture size): after
// patch_lastactionpaint, the undo image of `t`, then `work` on a copy of its picture; the
// result goes on the target. When `work` changes the size, Bild lays the workspace out anew
// and `sizeWord` ("BILDRESIZED" or "$TURN90") joins lastaction so that Undo gives the former
// size back; a selection keeps its place. A fault is reported under `tag` and leaves the
// picture as it was.
bool runOnTarget(Session &s, const FilterTarget &t, const QString &tag,
                 const std::function<void(QImage &)> &work, const char *sizeWord = "BILDRESIZED");
// Runs a menu entry that needs no dialog (direct or target routine) with its argument.
bool runMenuEntry(Session &s, const FilterRow &row, const FilterMenuEntry &e);

// The steps of Menu_handle_frmGamma around the dialog: construction takes the undo image of
// the target and keeps the picture as it was; preview() shows the full result of the values
// on the target; finish() restores the picture (cancelled) or keeps the result.
class FilterDialogRun {
public:
    FilterDialogRun(Session &s, const FilterRow &row);
    ~FilterDialogRun();
    FilterDialogRun(const FilterDialogRun &) = delete;
    FilterDialogRun &operator=(const FilterDialogRun &) = delete;

    const FilterRow &row() const { return m_row; }
    // The target as it was when the dialog opened.
    const QImage &original() const { return m_original; }
    // cmdPreview: the work picture is filled anew from the target as it was, filtered with
    // `args`, and shown on the target. Faults are reported under "Gamma_cmdPreview".
    bool preview(const FilterArgs &args);
    // The small preview: `args` applied to a reduced copy (positions and sizes scaled by
    // `scale`, the reduced size over the full size) of the picture, or of the part of it
    // whose top left corner is `origin` (picture pixels).
    QImage previewOf(const QImage &reduced, FilterArgs args, double scale, QPoint origin = {});
    // Closes the run: cancelled gives the picture back exactly; otherwise, when the values
    // were previewed, the result stays on the target; when not, "Please contact Vorun!
    // Err-Code: 17" is reported. Answers true when the result stays.
    bool finish(bool cancelled, bool previewed);

private:
    Session &m_s;
    const FilterRow &m_row;
    FilterTarget m_target;
    QImage m_original;
    float m_left = 0, m_top = 0;
    bool m_finished = false;
};

} // namespace tf
