#pragma once
// The files the program keeps in its work folder (`TempDir`): the undo images, the
// anti-aliasing buffer, the fixings and the pictures rescued after a crash. They outlive the
// program on purpose, so that a crash leaves the undo images behind to be rescued.

#include <QImage>
#include <QString>

namespace tf {

namespace TempFiles {
inline constexpr char UndoBild[] = "tmpundob.bmp";     // undo image of the picture
inline constexpr char UndoMask[] = "tmpundom.bmp";     // undo image of a selection or mask
inline constexpr char Alias[] = "tmpalias.bmp";        // anti-aliasing buffer of a paint
inline constexpr char SuperUndo0[] = "tmpsuper0.dat";  // the kept former Superformat picture
inline constexpr char SuperUndo1[] = "tmpsuper1.dat";  // ... and its second while Undo runs
inline constexpr char FixSingle[] = "tmpfixm.bmp";     // the one fixing when fewer than 2 are kept
inline constexpr char FixSelection[] = "tmpfixs.bmp";  // the fixing of a selection
inline constexpr int FixNumberMax = 99;                // fixings have two-digit numbers
} // namespace TempFiles

// "tmpfixm" and the number with two digits, ".bmp": the file of fixing `number` (1..99).
QString fixingFileName(int number);

// Writes `image` as a 24-bit BMP, whole or not at all. Throws Fault PathFileAccessError.
void writeBmpFile(const QImage &image, const QString &path);
// Reads a picture file. Throws Fault FileNotFound or InvalidPicture.
QImage readPictureFile(const QString &path);

// The end of the program: deletes the undo images and the anti-aliasing buffer in `tempDir`,
// and with `fixDelete` every fixing (numbers 1..99, the single and the selection fixing).
// Files that are not there are no fault.
void removeTempFilesAtEnd(const QString &tempDir, bool fixDelete);

// Makes sure the folder `path` exists. A folder it had to create is reported with the note
// "Das neue Verzeichnis <path> wurde erstellt."; one it cannot create is a fault reported under
// "Check_CreateDir". Answers whether the folder exists afterwards.
bool Check_CreateDir(const QString &path);

} // namespace tf
