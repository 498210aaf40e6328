#pragma once
// Text files for the text types: a .txt file read whole into the text dialog's text.

#include <QString>
#include <optional>

namespace tf {

// Texts longer than this are refused: the text dialog holds a text, not a book.
constexpr qint64 MaxTextFileBytes = 1 << 20;

// The text of `path` (any common encoding, see decodeTextFile in paint/textstate.h), its line
// breaks as they stand. A missing, unreadable or too large file gives nullopt and `message`
// says why in the user's language.
std::optional<QString> readTextFile(const QString &path, QString &message);

} // namespace tf
