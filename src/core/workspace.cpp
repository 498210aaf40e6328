#include "core/workspace.h"

#include "core/blit.h"
#include "core/fault.h"
#include "core/tempfiles.h"

#include <QDir>
#include <QStandardPaths>
#include <algorithm>

namespace tf {

Workspace::Workspace()
{
    setTempDir(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
    for (PictureBox *p : {&Bild, &BildUndo, &PicUndo, &BildWork, &PicWork, &Bild_Buff, &Bild_CD,
                          &Pic_CD, &PicTemp, &PicMask, &PicSelect, &PicSSelect, &picSelectC,
                          &PicSSelectC})
        p->setAutoRedraw(true);
    New_BildSize(712, 712);
}

void Workspace::setTempDir(const QString &dir)
{
    m_tempDir = QDir::cleanPath(dir);
    QDir().mkpath(m_tempDir);
}

QString Workspace::tempPath(const QString &fileName) const
{
    return m_tempDir + QLatin1Char('/') + fileName;
}

QString Workspace::undoFile(bool usemasks) const
{
    return tempPath(QString::fromLatin1(usemasks ? TempFiles::UndoMask : TempFiles::UndoBild));
}

void Workspace::setCommands(const CommandState &c)
{
    const bool differs = c.undo != commands.undo || c.save != commands.save || c.print != commands.print;
    commands = c;
    if (differs) m_view->commandsChanged();
}

void Workspace::enableUndo()
{
    CommandState c = commands;
    c.undo = true;
    setCommands(c);
}

QImage Workspace::undoImage(bool usemasks, bool usefile)
{
    if (!usefile)
        return usemasks ? PicUndo.Picture() : BildUndo.Picture();
    return readPictureFile(undoFile(usemasks));
}

void Workspace::New_BildSize(int w, int h)
{
    guarded(QStringLiteral("New_BildSize"), [&] {
        w = std::max(1, w);
        h = std::max(1, h);
        BildW = w;
        BildH = h;
        BildMax = std::max(w, h);
        for (PictureBox *p : {&Bild, &BildUndo, &PicUndo, &BildWork, &PicWork, &Bild_Buff,
                              &Bild_CD, &Pic_CD, &PicTemp, &PicMask, &PicSelect, &PicSSelect,
                              &picSelectC, &PicSSelectC})
            p->setScaleMode(vbPixels);
        Bild.Move(0, 0, w, h);
        for (PictureBox *p : {&PicWork, &Bild_Buff, &Pic_CD, &BildWork, &BildUndo, &Bild_CD})
            p->resize(w, h);
        for (PictureBox *p : {&PicSelect, &picSelectC}) {
            p->setVisible(false);
            p->Move(10, 10);
        }
        m_view->layoutChanged();
    });
}

void Workspace::Bildimage_auf_Undo(PictureBox &picsrc, bool usemasks, bool usefile)
{
    if (!m_undoKept)
        return;
    guarded(QStringLiteral("Bildimage_auf_Undo"), [&] {
        const bool toFile = undoGoesToFile(BildMax, usefile);
        if (toFile) {
            writeBmpFile(picsrc.Image(), undoFile(usemasks));
        } else {
            PictureBox &slot = usemasks ? PicUndo : BildUndo;
            if (usemasks)
                slot.resize(picsrc.Width(), picsrc.Height());
            else
                slot.resize(BildW, BildH);
            slot.setPicture(picsrc.Image());
        }
        (usemasks ? m_maskUndoInFile : m_bildUndoInFile) = toFile;
        enableUndo();
    });
}

void Workspace::Undoimage_auf_Bild(PictureBox &picdst, bool usemasks, bool usefile)
{
    guarded(QStringLiteral("Undoimage_auf_Bild"), [&] {
        if (undoLiesInFile(usemasks, usefile)) {
            // On disk a selection's image is only taken while a selection is shown.
            const bool mask = usemasks && (PicSelect.Visible() || picSelectC.Visible());
            picdst.setPicture(undoImage(mask, true));
        } else {
            picdst.setPicture(undoImage(usemasks, false));
        }
        picdst.markChanged();
    });
}

void Workspace::UndoBlt_auf_Bild(PictureBox &picdst, int xDst, int yDst, int wdst, int hdst,
                                 int xSrc, int ySrc, bool usemasks, bool usefile)
{
    guarded(QStringLiteral("UndoBlt_auf_Bild"), [&] {
        const bool fromFile = undoLiesInFile(usemasks, usefile);
        QImage undo = undoImage(usemasks, fromFile);
        if (fromFile) {
            // The file passes through the scratch buffer, which shrinks back afterwards.
            Bild_Buff.resize(undo.width(), undo.height());
            Bild_Buff.setPicture(undo);
        }
        if (wdst < 1)
            wdst = undo.width();
        if (hdst < 1)
            hdst = undo.height();
        undo = undo.convertToFormat(QImage::Format_RGB32);
        // The usual call copies the whole undo image onto a picture of its size: the picture
        // then shares the undo image's pixels, and a large picture needs no third copy.
        const bool whole = xDst == 0 && yDst == 0 && xSrc == 0 && ySrc == 0 &&
                           wdst == undo.width() && hdst == undo.height();
        if (!whole || !picdst.replaceImage(undo)) {
            DeviceContext src(&undo, false);
            BitBlt(picdst.hDC(), xDst, yDst, wdst, hdst, &src, xSrc, ySrc, SRCCOPY);
            picdst.markChanged(QRect(xDst, yDst, wdst, hdst));
        }
        if (fromFile) {
            // Shrunk first: cleared at full size, the buffer would copy the undo image that
            // its pixels still share before it fills them.
            Bild_Buff.resize(10, 10);
            Bild_Buff.setPicture(QImage());
        }
    });
}

void Workspace::UndoStretch_auf_Bild(PictureBox &picdst, int xDst, int yDst, int wdst, int hdst,
                                     int xSrc, int ySrc, int wSrc, int hSrc, bool usemasks)
{
    guarded(QStringLiteral("UndoStretch_auf_Bild"), [&] {
        const bool fromFile = undoLiesInFile(usemasks, false);
        QImage undo = undoImage(usemasks, fromFile).convertToFormat(QImage::Format_RGB32);
        DeviceContext src(&undo, false);
        StretchBlt(picdst.hDC(), xDst, yDst, wdst, hdst, src, xSrc, ySrc, wSrc, hSrc, SRCCOPY);
        picdst.markChanged(QRect(xDst, yDst, wdst, hdst));
    });
}

void Workspace::Bild_nachUndo()
{
    guarded(QStringLiteral("Bild_nachUndo"), [&] {
        BildChanged = true;
        if (!undoGoesToFile(BildMax, false)) {
            BildUndo.resize(BildW, BildH);
            BildUndo.setPicture(Bild.Image());
            m_bildUndoInFile = false;
        } else {
            writeBmpFile(Bild.Image(), undoFile(false));
            if (picSelectC.Visible())
                writeBmpFile(picSelectC.Image(), undoFile(true));
            m_bildUndoInFile = true;
        }
        CommandState c = commands;
        c.undo = true;
        c.save = true;
        setCommands(c);
    });
}

namespace {
// The common body of the two selection undo takers.
void selectionToUndo(Workspace &ws, PictureBox &selection, bool &inFile)
{
    ws.PicWork.resize(selection.Width(), selection.Height());
    ws.PicWork.setPicture(selection.Image());
    ws.BildChanged = true;
    if (!Workspace::undoGoesToFile(ws.BildMax, false)) {
        ws.PicUndo.resize(selection.Width(), selection.Height());
        ws.PicUndo.setPicture(selection.Image());
        inFile = false;
    } else {
        writeBmpFile(selection.Image(), ws.tempPath(QString::fromLatin1(TempFiles::UndoMask)));
        // The slot is not needed while the image lies on disk.
        ws.PicUndo.setPicture(QImage());
        ws.PicUndo.resize(12, 12);
        inFile = true;
    }
}
} // namespace

void Workspace::PicSelect_nachUndo()
{
    guarded(QStringLiteral("PicSelect_nachUndo"), [&] {
        selectionToUndo(*this, PicSelect, m_maskUndoInFile);
        enableUndo();
    });
}

void Workspace::PicSelectC_nachUndo()
{
    guarded(QStringLiteral("PicSelectC_nachUndo"), [&] {
        selectionToUndo(*this, picSelectC, m_maskUndoInFile);
        enableUndo();
    });
}

void Workspace::Bild_CLEAR()
{
    guarded(QStringLiteral("Bild_CLEAR"), [&] { Bild.Cls(); });
}

void Workspace::Menu_UndoRedo()
{
    guarded(QStringLiteral("Menu_UndoRedo"), [&] {
        const QString kind = lastaction.left(4);
        if ((kind == QLatin1String("RECT") || kind == QLatin1String("CIRC")) && m_selectionUndo &&
            m_selectionUndo->undoSelection(*this))
            return;

        const QImage undo = undoImage(false, undoLiesInFile(false, false));
        if (undo.isNull())
            return;
        const QImage current = Bild.Image();

        // The former picture becomes the undo image, in memory or on disk by its own size; it
        // is put away first, so a failing write leaves the picture as it was.
        const bool currentToFile = undoGoesToFile(BildMax, false);
        if (currentToFile)
            writeBmpFile(current, undoFile(false));

        // After a resize or a quarter turn the undo image has the other size: the workspace
        // takes it, which for a turn exchanges width and height.
        if ((lastaction.contains(QLatin1String("BILDRESIZED")) ||
             lastaction.contains(QLatin1String("$TURN90"))) &&
            (undo.width() != BildW || undo.height() != BildH))
            New_BildSize(undo.width(), undo.height());

        Bild.setPicture(undo);
        Bild.markChanged();
        if (currentToFile) {
            BildUndo.setPicture(QImage());
        } else {
            BildUndo.resize(current.width(), current.height());
            BildUndo.setPicture(current);
        }
        m_bildUndoInFile = currentToFile;
        BildChanged = true;
    });
}

} // namespace tf
