// Saving a surface as it stands: the BMP is byte for byte the file the main window writes of
// the same picture, PNG and JPEG decode to the surface's picture, and a failed save leaves
// the old file.
#include "core/dibsection.h"
#include "files/bmpwriter.h"
#include "files/picturefile.h"
#include "files/surfacesave.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

namespace {

// A surface of an odd width (rows padded) with a different colour in every corner.
void corners(cDIBSection &d)
{
    ASSERT_TRUE(d.Create(37, 21, RGB(10, 20, 30)));
    const int w = d.dib_width(), h = d.dib_height();
    // Memory row h-1 is the top row as shown.
    cDIBSection::LineDIB(d, 0, h - 1, 0, h - 1, RGB(255, 0, 0), QStringLiteral("BF"));
    cDIBSection::LineDIB(d, w - 1, h - 1, w - 1, h - 1, RGB(0, 255, 0), QStringLiteral("BF"));
    cDIBSection::LineDIB(d, 0, 0, 0, 0, RGB(0, 0, 255), QStringLiteral("BF"));
    cDIBSection::LineDIB(d, w - 1, 0, w - 1, 0, RGB(255, 255, 255), QStringLiteral("BF"));
}

QImage pictureOf(const cDIBSection &d)
{
    QImage img(d.dib_width(), d.dib_height(), QImage::Format_RGB32);
    for (int y = 0; y < d.dib_height(); ++y)
        for (int x = 0; x < d.dib_width(); ++x) {
            const uint8_t *p = d.view().row(d.dib_height() - 1 - y) + x * 3;
            img.setPixel(x, y, qRgb(p[2], p[1], p[0]));
        }
    return img;
}

} // namespace

TEST(SurfaceSave, WritesTheSameFilesAsThePicturesEncoders)
{
    cDIBSection d;
    corners(d);
    const QImage picture = pictureOf(d);
    EXPECT_EQ(picture.pixel(0, 0), qRgb(255, 0, 0));
    EXPECT_EQ(picture.pixel(36, 20), qRgb(255, 255, 255));

    QBuffer fromSurface, fromPicture;
    fromSurface.open(QIODevice::WriteOnly);
    fromPicture.open(QIODevice::WriteOnly);
    ASSERT_TRUE(writeSurfaceBmp(d, fromSurface, 300));
    ASSERT_TRUE(writeBmp(picture, fromPicture, 300));
    EXPECT_EQ(fromSurface.data(), fromPicture.data());

    QTemporaryDir dir;
    for (const char *name : {"a.png", "a.bmp", "a.jpg"}) {
        const QString path = dir.filePath(QString::fromLatin1(name));
        QString message;
        ASSERT_TRUE(writeSurfaceForCommand(d, path, {}, message)) << name;
        const LoadResult r = LoadImage(path, LoadLimit::KeepSize);
        ASSERT_TRUE(r.loaded()) << name;
        EXPECT_EQ(r.image.size(), QSize(37, 21));
        if (QByteArray(name) != "a.jpg") {
            EXPECT_EQ(r.image, picture) << name;
        }
    }
    // An unknown extension is named; an empty surface is refused and leaves the old file.
    QString message;
    EXPECT_FALSE(writeSurfaceForCommand(d, dir.filePath(QStringLiteral("a.tif")), {}, message));
    EXPECT_TRUE(message.contains(QStringLiteral(".png")));
    cDIBSection empty;
    const QString png = dir.filePath(QStringLiteral("a.png"));
    const qint64 before = QFileInfo(png).size();
    EXPECT_FALSE(saveSurface(empty, png, QStringLiteral("PNG")).ok());
    EXPECT_EQ(QFileInfo(png).size(), before);
}
