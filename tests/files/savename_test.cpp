// How a chosen name decides the format of a saved picture.
#include "files/savename.h"

#include <gtest/gtest.h>

using namespace tf;

TEST(SaveName, ClassedByUpperCasedSubstringTests)
{
    struct Case {
        const char *name, *tag, *path;
    };
    const Case cases[] = {
        {"bild", "BMP", "bild.bmp"},              // no extension: falls through to BMP
        {"bild.png", "PNG", "bild.png"},
        {"Bild.PNG", "PNG", "Bild.PNG"},          // the extension is there in any case
        {"bild.jpg", "JPG", "bild.jpg"},
        {"bild.jpg.bmp", "JPG", "bild.jpg.bmp"},  // ".JPG" is tried first
        {"bild.bmp.png", "PNG", "bild.bmp.png"},
        {"bild.jpeg", "BMP", "bild.jpeg.bmp"},    // ".jpeg" does not contain ".JPG"
        {"a.pngx", "PNG", "a.pngx"},              // a substring, not an ending
        {"ordner.png/bild", "PNG", "ordner.png/bild"},
        {"bild.gif", "BMP", "bild.gif.bmp"},
    };
    for (const Case &c : cases) {
        const SaveName s = classSaveName(QString::fromUtf8(c.name));
        EXPECT_EQ(s.SaveTypeTag, QString::fromLatin1(c.tag)) << c.name;
        EXPECT_EQ(s.path, QString::fromUtf8(c.path)) << c.name;
    }
}

TEST(SaveName, DialogPresetAndCommandLineSuffix)
{
    EXPECT_EQ(presetSaveType(QString()), QStringLiteral(".PNG"));
    EXPECT_EQ(presetSaveType(QStringLiteral("x.jpg")), QStringLiteral(".JPG"));
    EXPECT_EQ(presetSaveType(QStringLiteral("x.Bmp")), QStringLiteral(".BMP"));
    EXPECT_EQ(presetSaveType(QStringLiteral("x.gif")), QStringLiteral(".PNG"));
    EXPECT_EQ(presetSaveType(QStringLiteral("x.jpg.bmp")), QStringLiteral(".JPG"));

    EXPECT_EQ(saveTypeOfSuffix(QStringLiteral("a.JPEG")), QStringLiteral("JPG"));
    EXPECT_EQ(saveTypeOfSuffix(QStringLiteral("a.png")), QStringLiteral("PNG"));
    EXPECT_EQ(saveTypeOfSuffix(QStringLiteral("a.bmp")), QStringLiteral("BMP"));
    EXPECT_TRUE(saveTypeOfSuffix(QStringLiteral("a.gif")).isEmpty());
    EXPECT_TRUE(saveTypeOfSuffix(QStringLiteral("a")).isEmpty());
}
