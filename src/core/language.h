#pragma once
// The two languages of the interface: German, the program's own, and English beside it.
//
// Every text the user reads is written in German in the code, inside Qt's translation
// functions (tr(), QCoreApplication::translate, QT_TRANSLATE_NOOP), and translated from two
// catalogues compiled into the program: the German one (identity) and the English one.
// Switching the language installs the other catalogue at once; widgets retranslate on the
// LanguageChange event, engine messages are translated when they are shown.

#include <QString>

namespace tf {

enum class Language { German, English };

// The language in use.
Language currentLanguage();
// Installs the catalogue of `lang`. Answers false when it could not be loaded.
bool setLanguage(Language lang);
// The language of the system's locale: German for a German locale, else English.
Language systemLanguage();

// The message when the catalogues cannot be loaded at start, in the user's language only. It is
// written out here, since no catalogue is there to translate it.
QString startFailureText(Language lang);

// The value stored in the settings for a language, and back (1 German, 2 English).
int languageSettingValue(Language lang);
Language languageFromSettingValue(int value);

} // namespace tf
