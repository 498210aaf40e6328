#pragma once
// The edit menu's commands on selections and the clipboard (`Menu_Edit`), the placing of a
// selection (`mn_PicAusrichten`) and the emptying of the clipboard (`mn_ClearClip`).
//
// The clipboard is the desktop's: pictures go to it and come from it as images, so other
// programs take them and give them. It is reached through `PictureClipboard`, which tests
// replace.

#include <QImage>
#include <QPoint>
#include <span>

namespace tf {

class PictureBox;
class Session;

class PictureClipboard {
public:
    virtual ~PictureClipboard() = default;
    // The picture on the clipboard; null when it holds none.
    virtual QImage image() const = 0;
    virtual void setImage(const QImage &image) = 0;
    virtual void clear() = 0;
};

// The desktop's clipboard (QGuiApplication's).
class SystemClipboard : public PictureClipboard {
public:
    QImage image() const override;
    void setImage(const QImage &image) override;
    void clear() override;
};

// The entries of the edit menu, by the system's index.
enum EditIndex {
    EditCut = 0,
    EditCopy = 1,
    EditPaste = 2,
    EditDelete = 3,
    EditSelectAll = 5,
    EditDeselect = 6,
    EditSaveSelection = 7,
};

struct EditEntry {
    int index;
    const char *caption;  // German source text (context "Tools")
    const char *shortcut; // a key sequence in portable text ("Ctrl+X"), "" none
};
// The entries in the menu's order.
std::span<const EditEntry> editEntries();
// The five places of mn_PicAusrichten, 1..5.
std::span<const char *const> alignCaptions();

// Runs an entry (all but EditSaveSelection, which the window's save dialog runs). `visible`
// is the top left of the part of the picture the window shows: a pasted picture goes there.
// Faults are reported under "Menu_Edit".
void Menu_Edit(Session &s, int Index, PictureClipboard &clipboard, QPoint visible = QPoint());
// The whole picture to the clipboard.
void CopyEntirePicture(const PictureBox &picture, PictureClipboard &clipboard);
// Moves the shown selection to a corner or the centre (1..5).
void mn_PicAusrichten(Session &s, int place);
void mn_ClearClip(PictureClipboard &clipboard);

} // namespace tf
