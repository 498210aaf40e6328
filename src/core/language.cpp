#include "core/language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <memory>

namespace tf {

namespace {
Language g_language = Language::German;
std::unique_ptr<QTranslator> g_translator;
// Qt's own texts (the buttons and labels of its file and colour dialogs, its message box
// buttons) in German; English needs none.
std::unique_ptr<QTranslator> g_qtTranslator;

void setQtLanguage(Language lang)
{
    if (g_qtTranslator) {
        QCoreApplication::removeTranslator(g_qtTranslator.get());
        g_qtTranslator.reset();
    }
    if (lang != Language::German) return;
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(QStringLiteral("qtbase_de"),
                          QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        return; // without the catalogue Qt's dialogs speak English; nothing else changes
    g_qtTranslator = std::move(translator);
    QCoreApplication::installTranslator(g_qtTranslator.get());
}
} // namespace

Language currentLanguage() { return g_language; }

bool setLanguage(Language lang)
{
    auto translator = std::make_unique<QTranslator>();
    const QString file = lang == Language::German ? QStringLiteral(":/i18n/tarvelle-forge_de.qm")
                                                  : QStringLiteral(":/i18n/tarvelle-forge_en.qm");
    if (!translator->load(file))
        return false;
    if (g_translator)
        QCoreApplication::removeTranslator(g_translator.get());
    g_translator = std::move(translator);
    QCoreApplication::installTranslator(g_translator.get());
    setQtLanguage(lang);
    g_language = lang;
    return true;
}

Language systemLanguage()
{
    return QLocale::system().language() == QLocale::German ? Language::German : Language::English;
}

int languageSettingValue(Language lang) { return lang == Language::German ? 1 : 2; }

Language languageFromSettingValue(int value)
{
    return value == 2 ? Language::English : Language::German;
}

QString startFailureText(Language lang)
{
    return lang == Language::German ? QStringLiteral("Probleme beim Programmstart!")
                                    : QStringLiteral("Problems on starting the program!");
}

} // namespace tf
