#pragma once
// The recipe of a picture: the paints that made it, as the command lines that make it again.
//
// PaintHistory follows the paints of one picture. A paint without transparency replaces the
// picture, so the recipe starts again with it; a paint with transparency is laid over the
// picture before it, so it joins the recipe only when that picture was the recipe's own
// result. The picture is recognised by its image's cache key, which changes with every write
// to its pixels: a filter, a tool or a loaded file in between leaves a picture no recipe makes,
// and then none is written.

#include "paint/paintrecord.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace tf {

class PaintHistory {
public:
    // A paint ran: `keyBefore` and `keyAfter` are the picture's cache keys before and after,
    // `wholePicture` false when it painted into a selection.
    void notePaint(const PaintRecord &record, qint64 keyBefore, qint64 keyAfter,
                   bool wholePicture = true);
    void clear();
    // The command lines that make the picture of cache key `key`; empty when they do not.
    QStringList recipeFor(qint64 key) const;

private:
    std::vector<PaintRecord> m_paints;
    qint64 m_key = 0;
};

// The words of one command line as a POSIX shell splits them: blanks separate words, single
// quotes keep everything, a backslash outside quotes keeps the next character, double quotes
// keep all but a backslash before ", \ or $. Empty when the quotes do not close.
std::optional<QStringList> splitCommandLine(const QString &line);

// The arguments after the program's name of a recipe line: "paint", the type and its
// options. A line that is not "tarvelle-forge paint ...", or names a file to read or write
// other than a palette (-o, --output, --over, --recipe), is refused with the reason in `why`.
std::optional<QStringList> recipePaintArguments(const QString &line, QString &why);

// The arguments with every "--size" replaced by `size` ("WxH").
QStringList withSize(QStringList arguments, const QString &size);

} // namespace tf

namespace tf {

class Session;
struct PictureMeta;

// What a picture saved from `s` carries: the paint dialog's resolution (cmbDPI), the program,
// and `recipe`.
PictureMeta pictureMetaOf(const Session &s, const QStringList &recipe);

} // namespace tf
