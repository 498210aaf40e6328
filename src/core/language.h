#pragma once
// The two languages of the interface. German is the program's own, English beside it.

#include <QString>

namespace tf {

enum class Language { German, English };

// Picks the German or the English text.
inline const QString &tr2(Language lang, const QString &de, const QString &en)
{
    return lang == Language::German ? de : en;
}

} // namespace tf
