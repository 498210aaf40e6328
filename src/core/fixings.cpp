#include "core/fixings.h"

#include "core/fault.h"
#include "core/tempfiles.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <algorithm>

namespace tf {

Fixings::Fixings(Workspace &workspace, StatusSink &status, const RunState &run)
    : m_ws(workspace), m_status(status), m_run(run)
{
}

int Fixings::ringSize() const { return std::min(FixNumb, TempFiles::FixNumberMax); }

QString Fixings::fixingPath(int number) const { return m_ws.tempPath(fixingFileName(number)); }

QString Fixings::singleFixingPath() const
{
    return m_ws.tempPath(QString::fromLatin1(TempFiles::FixSingle));
}

QString Fixings::selectionFixingPath() const
{
    // The selection's fixing would lie beside the program, but that folder is read-only here.
    return m_ws.tempPath(QString::fromLatin1(TempFiles::FixSelection));
}

PictureBox *Fixings::visibleSelection() const
{
    if (m_ws.PicSelect.Visible())
        return &m_ws.PicSelect;
    if (m_ws.picSelectC.Visible())
        return &m_ws.picSelectC;
    return nullptr;
}

void Fixings::initFromDisk()
{
    FixLast = Get_Max_TempPicNR();
    FixCount = FixLast;
    FixWalk = 0;
}

void Fixings::Set_Fixstatus(bool fixed)
{
    const QString text = fixed ? tr("fixiert") : tr("nicht fixiert");
    if (visibleSelection()) {
        m_status.setPanelText(sbrSFixed, text);
    } else {
        m_status.setPanelText(sbrfixed, text);
        m_pictureFixed = fixed;
    }
}

bool Fixings::BtnFix_Click()
{
    if (m_run.busy()) return false;
    guarded(QStringLiteral("DoFixButton"), [&] {
        PictureBox *selection = visibleSelection();
        PictureBox &target = selection ? *selection : m_ws.Bild;
        // What was drawn becomes the persistent picture, the state a later restore brings back.
        target.setPicture(target.Image());

        if (selection) {
            m_ws.Bildimage_auf_Undo(*selection, true, false);
            writeBmpFile(selection->Image(), selectionFixingPath());
        } else if (FixNumb < 2) {
            writeBmpFile(m_ws.Bild.Image(), singleFixingPath());
        } else {
            int next = FixLast + 1;
            if (next > ringSize())
                next = 1;
            writeBmpFile(m_ws.Bild.Image(), fixingPath(next));
            FixLast = next;
            FixCount = std::max(FixCount, FixLast);
            FixWalk = 0;
        }
        Set_Fixstatus(true);
    });
    return true;
}

void Fixings::BtnRestore_Click()
{
    if (m_run.busy()) return;
    guarded(QStringLiteral("DoRestoreButton"), [&] {
        PictureBox *selection = visibleSelection();
        if (selection && QFileInfo::exists(selectionFixingPath())) {
            restoreSelection(*selection, selectionFixingPath());
            return;
        }
        if (FixNumb < 2) {
            if (QFileInfo::exists(singleFixingPath()))
                restorePicture(singleFixingPath());
            return;
        }
        if (FixLast <= 0)
            return;
        if (FixWalk == 0) {
            FixWalk = FixLast;
        } else {
            --FixWalk;
            if (FixWalk < 1)
                FixWalk = FixCount;
        }
        if (QFileInfo::exists(fixingPath(FixWalk)))
            restorePicture(fixingPath(FixWalk));
    });
}

void Fixings::restoreSelection(PictureBox &selection, const QString &path)
{
    const QImage image = readPictureFile(path);
    if (&selection == &m_ws.PicSelect)
        m_ws.PicSelect_nachUndo();
    else
        m_ws.PicSelectC_nachUndo();
    selection.resize(image.width(), image.height());
    selection.setPicture(image);
    selection.setVisible(true);
    selection.markChanged();
}

void Fixings::restorePicture(const QString &path)
{
    const QImage image = readPictureFile(path);
    m_ws.Bild_nachUndo();
    if (image.width() != m_ws.BildW || image.height() != m_ws.BildH) {
        m_ws.New_BildSize(image.width(), image.height());
        // Undo then gives the former size back with the former picture.
        m_ws.lastaction = QStringLiteral("BILDRESIZED");
    } else {
        // Whatever the last action left pending, Undo now swaps the restore.
        m_ws.lastaction.clear();
    }
    m_ws.Bild.setPicture(image);
    m_ws.Bild.markChanged();
}

int Fixings::Get_Max_TempPicNR()
{
    if (FixNumb < 2)
        return 0;
    if (m_ws.TempDir().isEmpty())
        m_ws.setTempDir(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
    const int ring = ringSize();
    // The ring's order depends on consecutive numbers, so gaps left by deleted files close
    // downwards: 1, 2, 5 become 1, 2, 3.
    guarded(QStringLiteral("Get_Max_TempPicNR"), [&] {
        for (int n = 1; n <= ring; ++n) {
            if (QFileInfo::exists(fixingPath(n)))
                continue;
            for (int m = n + 1; m <= ring; ++m) {
                if (!QFileInfo::exists(fixingPath(m)))
                    continue;
                if (!QFile::rename(fixingPath(m), fixingPath(n)))
                    throw Fault(Fault::PathFileAccessError);
                break;
            }
        }
    });
    for (int n = ring; n >= 1; --n)
        if (QFileInfo::exists(fixingPath(n)))
            return n;
    return 0;
}

void Fixings::removeFilesAtEnd() const { removeTempFilesAtEnd(m_ws.TempDir(), FixDelete != 0); }

} // namespace tf
