#pragma once
// The workspace: the named pictures of the main window, the size of the picture, and the
// single-level Undo / Redo between the picture and its undo slot.
//
// `Bild` is the picture the user sees and every painter draws on. Its undo image lies in
// memory (`BildUndo`'s Picture) while the picture's longer side is at most 712 pixels, the
// standard format; larger pictures keep their undo image on disk as "tmpundob.bmp" in
// `TempDir`, so that they never pass through a second in-memory copy. Selections and masks
// have their own slot (`PicUndo`, "tmpundom.bmp") under the same rule.
//
// Undo and Redo are one command: it swaps the picture and its undo image, so a second press
// brings back what the first took away.

#include "core/picturebox.h"

#include <QString>

namespace tf {

class Workspace;

// What the workspace tells the window that shows it.
class WorkspaceView {
public:
    virtual ~WorkspaceView() = default;
    // `commands` changed: the menu entries and toolbar keys follow.
    virtual void commandsChanged() {}
    // New_BildSize laid the workspace out: the frame follows the picture's size.
    virtual void layoutChanged() {}
};

// The Undo of a selection, which the selection tools provide.
class SelectionUndo {
public:
    virtual ~SelectionUndo() = default;
    // Handles Undo while lastaction begins with "RECT" or "CIRC"; answers true when it did.
    virtual bool undoSelection(Workspace &ws) = 0;
};

// The commands whose enabled state follows the workspace (menu entries and toolbar keys).
struct CommandState {
    bool undo = false;  // mn_Undo
    bool save = false;  // mn_Speichern and the toolbar's save key
    bool print = false; // the toolbar's "Drucken" key
};

class Workspace {
public:
    // Pictures up to this size on the longer side keep their undo image in memory.
    static constexpr int UndoInMemoryMax = 712;

    // A workspace of 712 x 712 pixels; TempDir is the per-user data folder.
    Workspace();

    // ---- The named pictures ---------------------------------------------------------------
    PictureBox Bild{QStringLiteral("Bild")};
    PictureBox BildUndo{QStringLiteral("BildUndo")};
    PictureBox PicUndo{QStringLiteral("PicUndo")};
    PictureBox BildWork{QStringLiteral("BildWork")};
    PictureBox PicWork{QStringLiteral("PicWork")};
    PictureBox Bild_Buff{QStringLiteral("Bild_Buff")};
    PictureBox Bild_CD{QStringLiteral("Bild_CD")};
    PictureBox Pic_CD{QStringLiteral("Pic_CD")};
    PictureBox PicTemp{QStringLiteral("PicTemp")};
    PictureBox PicMask{QStringLiteral("PicMask")};
    PictureBox PicSelect{QStringLiteral("PicSelect")};
    PictureBox PicSSelect{QStringLiteral("PicSSelect")};
    PictureBox picSelectC{QStringLiteral("picSelectC")};
    PictureBox PicSSelectC{QStringLiteral("PicSSelectC")};

    // ---- The picture's values -------------------------------------------------------------
    int BildW = 712;
    int BildH = 712;
    int BildMax = 712;
    int NewFormatW = 712;
    int NewFormatH = 712;
    int NewFormatMax = 712;
    bool BildChanged = false;
    // The action string: what the last user action did to the picture (see the paint driver).
    QString lastaction;
    // A selection was moved or stamped since it was cut (SelFlagRect, SelFlagCirc), and where
    // it lay when it was cut. The paint driver checks the flags against the selections' being
    // shown and clears them before a paint.
    bool SelFlagRect = false;
    bool SelFlagCirc = false;
    int SelOrgLeft = 0;
    int SelOrgTop = 0;

    QString TempDir() const { return m_tempDir; }
    // Sets the folder of the temp files (created when missing).
    void setTempDir(const QString &dir);
    // The full path of a temp file in TempDir.
    QString tempPath(const QString &fileName) const;

    // Read `commands`, change them through setCommands so the view sees the change.
    CommandState commands;
    void setCommands(const CommandState &c);
    // The window that shows the workspace (borrowed; null: none).
    void setView(WorkspaceView *view) { m_view = view ? view : &m_noView; }

    // ---- Operations -----------------------------------------------------------------------
    // Sets the size of the workspace: Bild and the pictures that follow it take w x h,
    // the selections are hidden; the frame is laid out by the layout hook.
    void New_BildSize(int w, int h);

    // Whether changes keep an undo image. A session without a window (the command line) has
    // no Undo to offer and keeps none: a 14000 x 14000 picture then needs no second copy.
    bool undoKept() const { return m_undoKept; }
    void setUndoKept(bool on) { m_undoKept = on; }

    // Saves `picsrc` as the undo image, in memory or (usefile, or a picture above 712) on disk.
    void Bildimage_auf_Undo(PictureBox &picsrc, bool usemasks, bool usefile);
    // Sets `picdst`'s Picture from the undo image.
    void Undoimage_auf_Bild(PictureBox &picdst, bool usemasks, bool usefile);
    // Copies a part of the undo image to `picdst`; wdst or hdst below 1 mean the undo image's
    // own width or height.
    void UndoBlt_auf_Bild(PictureBox &picdst, int xDst, int yDst, int wdst, int hdst, int xSrc,
                          int ySrc, bool usemasks, bool usefile);
    // The same, stretched from wSrc x hSrc.
    void UndoStretch_auf_Bild(PictureBox &picdst, int xDst, int yDst, int wdst, int hdst,
                              int xSrc, int ySrc, int wSrc, int hSrc, bool usemasks);

    // The usual call before a change to Bild: marks it changed and takes the undo image.
    void Bild_nachUndo();
    // The same for the rectangular and the elliptic selection.
    void PicSelect_nachUndo();
    void PicSelectC_nachUndo();
    // Clears Bild to its BackColor and Picture.
    void Bild_CLEAR();

    // Undo / Redo: swaps the picture and its undo image (the picture branches; the selection
    // branches belong to the selection tools, given through `setSelectionUndo`).
    void Menu_UndoRedo();
    void setSelectionUndo(SelectionUndo *undo) { m_selectionUndo = undo; }

    // The one rule of the undo's place. An undo image is taken to disk when asked (usefile) or
    // when the picture's longer side is above 712; every routine that reads it back looks where
    // it was put (so a picture resized since, or a slot taken by another routine, still finds
    // it), or on disk when asked.
    static bool undoGoesToFile(int maxSide, bool usefile) { return usefile || maxSide > UndoInMemoryMax; }
    bool undoLiesInFile(bool usemasks, bool usefile) const
    {
        return usefile || (usemasks ? m_maskUndoInFile : m_bildUndoInFile);
    }

    // The undo image of a slot as it stands (from memory or from its file); null when none.
    QImage undoImage(bool usemasks, bool usefile);

private:
    QString undoFile(bool usemasks) const;
    void enableUndo();

    QString m_tempDir;
    // Where the undo image of Bild was last put: true on disk.
    bool m_bildUndoInFile = false;
    bool m_maskUndoInFile = false;
    bool m_undoKept = true;
    WorkspaceView m_noView;
    WorkspaceView *m_view = &m_noView;
    SelectionUndo *m_selectionUndo = nullptr;
};

} // namespace tf
