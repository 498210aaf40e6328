// Every text of the interface must stand in both catalogues with a finished translation. The
// test runs the extractor over the sources into copies of the committed catalogues: a text in
// the code that the catalogues lack comes out unfinished and fails the test.
#include "core/language.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

struct Message {
    QString context, source, translation;
    bool unfinished = false;
};

std::vector<Message> readCatalogue(const QString &path)
{
    std::vector<Message> out;
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return out;
    QXmlStreamReader xml(&f);
    QString context;
    Message m;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("message"))
            m = Message{context, {}, {}, false};
        else if (xml.name() == QLatin1String("source"))
            m.source = xml.readElementText();
        else if (xml.name() == QLatin1String("translation")) {
            m.unfinished = xml.attributes().value(QLatin1String("type")) == QLatin1String("unfinished");
            m.translation = xml.readElementText();
            out.push_back(m);
        }
    }
    return out;
}

} // namespace

TEST(Translations, EveryTextOfTheCodeIsTranslatedInBothCatalogues)
{
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    QStringList catalogues;
    for (const char *lang : {"de", "en"}) {
        const QString name = QStringLiteral("tarvelle-forge_%1.ts").arg(QLatin1String(lang));
        const QString copy = dir.filePath(name);
        ASSERT_TRUE(QFile::copy(QStringLiteral(TF_SOURCE_DIR "/i18n/") + name, copy));
        QFile::setPermissions(copy, QFile::ReadOwner | QFile::WriteOwner);
        catalogues << copy;
    }
    QProcess lupdate;
    lupdate.start(QStringLiteral(TF_LUPDATE),
                  QStringList{QStringLiteral("-silent"), QStringLiteral("-no-obsolete"),
                              QStringLiteral("-locations"), QStringLiteral("none"),
                              QStringLiteral("-source-language"), QStringLiteral("de"),
                              QStringLiteral(TF_SOURCE_DIR "/src"), QStringLiteral("-ts")} +
                      catalogues);
    ASSERT_TRUE(lupdate.waitForFinished(120000));
    ASSERT_EQ(lupdate.exitCode(), 0) << lupdate.readAllStandardError().toStdString();

    for (const QString &path : catalogues) {
        for (const Message &m : readCatalogue(path)) {
            EXPECT_FALSE(m.unfinished || m.translation.isEmpty())
                << path.section(QLatin1Char('/'), -1).toStdString() << ": [" << m.context.toStdString()
                << "] \"" << m.source.toStdString() << "\" has no translation";
        }
    }
}

// Qt's own dialogs (file, colour, message box buttons) follow the program's language.
TEST(Translations, BothCataloguesLoadAndQtsOwnTextsFollow)
{
    const auto lookIn = [] { return QCoreApplication::translate("QFileDialog", "Look in:"); };
    EXPECT_TRUE(tf::setLanguage(tf::Language::English));
    EXPECT_EQ(tf::currentLanguage(), tf::Language::English);
    EXPECT_EQ(lookIn(), QStringLiteral("Look in:"));
    EXPECT_TRUE(tf::setLanguage(tf::Language::German));
    EXPECT_EQ(tf::currentLanguage(), tf::Language::German);
    EXPECT_EQ(lookIn(), QStringLiteral("Suchen in:"));
}
