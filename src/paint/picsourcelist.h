#pragma once
// The photo sources of the photo mosaic, the photo cube and the slide show: the chosen file or
// directory (PicSource), and the list of picture paths scanned from a directory (ListPicDir)
// with the map of pictures already used in the present layout (UsedMap). The session owns one
// PicSourceList, so the scan of a directory is kept from one paint to the next while the
// source stays the same (ListValid), and the panel's "..." dialog, the painters, the command
// line and the presentation file all see the same source.
//
// The list holds at most MaxPicCount (32767) paths: a larger directory stops growing there,
// without a message. Only files whose upper-cased name ends in ".BMP", ".GIF", ".JPG",
// ".JPEG" or ".PNG" are taken when pictures alone are asked for.

#include <QString>
#include <QStringList>
#include <cstdint>
#include <vector>

namespace tf {

class YieldHook;

// The option panel that chooses the photo source; the types that show it read the photos.
constexpr const char *PicSourcePanelName = "feat_15PicMosaik";

struct PicSourceList {
    static constexpr int32_t MaxPicCount = 32767;

    // The chosen directory or file, as frmDiaSetBildquelle handed it over (empty: none).
    QString PicSource;
    // The source the list below was scanned from, with the recursion it was scanned with.
    QString LastSource;
    bool LastRecurse = false;
    // The panel's "Datei" (true) or "Dateiverzeichnis" (false); mirrors optPicMosaikSource.
    bool FromFile = false;

    // The scanned picture paths, in the order of the scan.
    QStringList ListPicDir;
    int32_t PicCount = 0;
    // 0..PicCount: 1 marks a picture used in the present layout.
    std::vector<uint8_t> UsedMap;
    // The list fits the source (LastSource == PicSource with the same recursion).
    bool ListValid = false;

    // The list was scanned from `source` with `recurse` and still stands.
    bool holds(const QString &source, bool recurse) const
    {
        return ListValid && LastSource == source && LastRecurse == recurse;
    }
    // Empties the list (PicCount 0, UsedMap 0..0) and marks it invalid.
    void clear();
    // Scans the pictures of `dir` into the list (xLib_DirRekurs, `yield` once per directory),
    // all unused; the list stands for that source while it holds any. False when the walk was
    // stopped: the list is then empty.
    bool scan(const QString &dir, bool recurse, YieldHook *yield);
    // Clears UsedMap to 0..PicCount, all unused.
    void resetUsed();
    // The number of pictures marked used.
    int32_t usedCount() const;
};

// Whether a file name ends in one of the picture extensions the list takes (upper-cased last
// four characters ".BMP", ".GIF", ".JPG", ".PNG", or last five ".JPEG").
bool isListedPictureName(const QString &name);

// Walks `Path` and adds to `Target` the full path of every file whose name matches `Mask`
// ("*.*" for all) while `Count` is below `limit`; with `OnlyPictures` only the names
// isListedPictureName takes. `Count` is raised for each path added. With `Recurse`, every
// directory but "." and ".." is entered where it stands among the entries: the entries of a
// directory are taken in name order (case ignored, as the file system's search lists them),
// so the same tree always gives the same list. The hook, when given, is called once per
// directory (the DoEvents of each level); it answering true (a Stop) ends the walk.
// Unreadable directories are passed over. Answers false when the walk was stopped.
bool xLib_DirRekurs(QStringList &Target, const QString &Path, const QString &Mask, bool Recurse,
                    bool OnlyPictures, int32_t &Count, YieldHook *yield = nullptr,
                    int32_t limit = PicSourceList::MaxPicCount);

} // namespace tf
