#pragma once
// Fixings: numbered snapshots of the picture on disk that the user takes on purpose (Fix) and
// walks back through (Restore).
//
// Files, all in the workspace's TempDir:
// - with FixNumb below 2, one file "tmpfixm.bmp", overwritten by every Fix;
// - else a ring of "tmpfixm01.bmp" .. "tmpfixmNN.bmp", NN = FixNumb (at most 99): FixLast is
//   the newest number, FixCount the highest in use, and past FixNumb the ring starts at 1
//   again, overwriting the oldest;
// - a visible selection (PicSelect, else picSelectC) is fixed on its own in "tmpfixs.bmp".
// Restore brings the newest fixing first and each further press an older one, round and
// round; a Fix starts the walk anew. A restore takes the undo image first, so one Undo takes
// it back. The files outlive the program unless FixDelete is set.

#include "core/runstate.h"
#include "core/status.h"
#include "core/workspace.h"

#include <QCoreApplication>

namespace tf {

class Fixings {
    Q_DECLARE_TR_FUNCTIONS(Fixings)

public:
    // Borrows all three for its lifetime. Fix and Restore do nothing while `run` is busy.
    Fixings(Workspace &workspace, StatusSink &status, const RunState &run);

    int FixNumb = 10;   // fixings to keep; below 2 the single file
    int FixDelete = 0;  // non-zero: all fixings are deleted at the end
    int FixLast = 0;    // number of the newest fixing, 0 when none
    int FixCount = 0;   // the highest number in use
    int FixWalk = 0;    // the number last restored, 0 after a Fix

    // The start of the program: FixLast and FixCount from the files on disk
    // (Get_Max_TempPicNR), FixWalk 0.
    void initFromDisk();

    // Fix: writes the visible selection, or the picture, as a fixing and shows "fixiert".
    // Faults are reported under "DoFixButton". Answers false when it did not go ahead (a paint
    // or filter runs).
    bool BtnFix_Click();
    // Restore: loads the selection's fixing into the visible selection, or the next fixing of
    // the walk into Bild (the workspace taking the file's size). Nothing happens when there is
    // nothing to restore; a ring file that is missing is passed over silently. Faults are
    // reported under "DoRestoreButton"; nothing happens either while a paint or filter runs.
    void BtnRestore_Click();
    // Shows "fixiert" / "nicht fixiert" in the panel sbrSFixed while a selection is visible,
    // else in sbrfixed.
    void Set_Fixstatus(bool fixed);
    // The last state given to Set_Fixstatus for the picture.
    bool pictureFixed() const { return m_pictureFixed; }

    // Closes the gaps of the ring on disk by renaming each missing number's next higher file
    // down to it, then answers the highest number present (0 when none, or FixNumb below 2).
    int Get_Max_TempPicNR();

    // The full path of fixing `number` in TempDir.
    QString fixingPath(int number) const;
    QString singleFixingPath() const;
    QString selectionFixingPath() const;

    // The end of the program: undo and alias files go, and with FixDelete all fixings.
    void removeFilesAtEnd() const;

private:
    // The ring's length: FixNumb within the two-digit numbers.
    int ringSize() const;
    // The visible selection (PicSelect before picSelectC), or null.
    PictureBox *visibleSelection() const;
    void restoreSelection(PictureBox &selection, const QString &path);
    void restorePicture(const QString &path);

    Workspace &m_ws;
    StatusSink &m_status;
    const RunState &m_run;
    bool m_pictureFixed = false;
};

} // namespace tf
