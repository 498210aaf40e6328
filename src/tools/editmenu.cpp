#include "tools/editmenu.h"

#include "core/fault.h"
#include "paint/session.h"
#include "tools/toolengine.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QtGlobal>

namespace tf {

QImage SystemClipboard::image() const { return QGuiApplication::clipboard()->image(); }

void SystemClipboard::setImage(const QImage &image) { QGuiApplication::clipboard()->setImage(image); }

void SystemClipboard::clear() { QGuiApplication::clipboard()->clear(); }

std::span<const EditEntry> editEntries()
{
    static constexpr EditEntry table[] = {
        {EditCut, QT_TRANSLATE_NOOP("Tools", "&Ausschneiden"), "Ctrl+X"},
        {EditCopy, QT_TRANSLATE_NOOP("Tools", "&Kopieren"), "Ctrl+C"},
        {EditPaste, QT_TRANSLATE_NOOP("Tools", "&Einfügen..."), "Ctrl+V"},
        {EditDelete, QT_TRANSLATE_NOOP("Tools", "&Löschen"), "Del"},
        {EditSelectAll, QT_TRANSLATE_NOOP("Tools", "Alles aus&wählen"), "Ctrl+Shift+A"},
        {EditDeselect, QT_TRANSLATE_NOOP("Tools", "Auswahl auf&heben"), "Ctrl+Shift+D"},
        {EditSaveSelection, QT_TRANSLATE_NOOP("Tools", "Auswahl in Datei &speichern..."), "Ctrl+Alt+S"},
    };
    return table;
}

std::span<const char *const> alignCaptions()
{
    static constexpr const char *table[] = {
        QT_TRANSLATE_NOOP("Tools", "&1 Links oben"), QT_TRANSLATE_NOOP("Tools", "&2 Rechts oben"),
        QT_TRANSLATE_NOOP("Tools", "&3 Zentrieren"), QT_TRANSLATE_NOOP("Tools", "&4 Links unten"),
        QT_TRANSLATE_NOOP("Tools", "&5 Rechts unten")};
    return table;
}

void CopyEntirePicture(const PictureBox &picture, PictureClipboard &clipboard)
{
    guarded(QStringLiteral("CopyEntirePicture"), [&] { clipboard.setImage(picture.Image()); });
}

void Menu_Edit(Session &s, int Index, PictureClipboard &clipboard, QPoint visible)
{
    if (s.runState().busy()) return;
    Selections &sel = ToolEngine::of(s).selections();
    guarded(QStringLiteral("Menu_Edit"), [&] {
        switch (Index) {
        case EditCut:
            if (!sel.shown()) return;
            clipboard.setImage(sel.shownImage());
            sel.drop();
            return;
        case EditCopy:
            if (sel.shown())
                clipboard.setImage(sel.shownImage());
            else
                CopyEntirePicture(s.workspace().Bild, clipboard);
            return;
        case EditPaste: {
            const QImage image = clipboard.image();
            if (image.isNull()) {
                s.status().setPanelText(
                    sbrState, QCoreApplication::translate("Tools", "Die Zwischenablage enthält kein Bild."));
                return;
            }
            sel.paste(image, visible);
            return;
        }
        case EditDelete:
            sel.drop();
            return;
        case EditSelectAll:
            sel.selectAll();
            return;
        case EditDeselect:
            sel.commitShown();
            return;
        default:
            return;
        }
    });
}

void mn_PicAusrichten(Session &s, int place)
{
    if (s.runState().busy()) return;
    ToolEngine::of(s).selections().align(place);
}

void mn_ClearClip(PictureClipboard &clipboard) { clipboard.clear(); }

} // namespace tf
