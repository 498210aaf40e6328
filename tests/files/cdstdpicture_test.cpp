// The photos of the mosaic: sizes from the headers alone (turned upright by a JPEG's EXIF
// orientation), a JPEG decoded at the DCT scale that still covers a frame, and
// Load_CDStdPicture's answers for a good, a small and a broken file.
#include "files/cdstdpicture.h"

#include "core/dibsection.h"
#include "core/status.h"
#include "files/decode.h"
#include "support/testdata.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace tf;

TEST(CdStdPicture, HeaderSizesAreTheSizesTheDecodersGiveUpright)
{
    TF_REQUIRE_TESTDATA();
    for (const char *name :
         {"images/jpeg/good/pillow-hopper_orientation_6.jpg",
          "images/jpeg/good/pillow-hopper_orientation_3.jpg", "images/jpeg/good/jd-blank_800x280.jpg",
          "photos/kodak/landscape/kodim05.png", "photos/science/skimage/ihc.png"}) {
        const QString path = testdataPath(QString::fromLatin1(name));
        const LoadResult whole = loadPhoto(path);
        ASSERT_TRUE(whole.loaded()) << name;
        EXPECT_EQ(photoFileSize(path), whole.image.size()) << name;
        EXPECT_EQ(whole.stored, whole.image.size()) << name;
    }
    EXPECT_FALSE(photoFileSize(testdataPath(QStringLiteral("photos/nothing.jpg"))).isValid());
}

TEST(CdStdPicture, AJpegIsDecodedAtTheSmallestScaleThatCoversTheFrame)
{
    TF_REQUIRE_TESTDATA();
    // 768 x 512: an eighth (96 x 64) does not cover 100 x 60, a quarter (192 x 128) does.
    const QString path = testdataPath(QStringLiteral("photos/kodak/landscape/kodim01.jpg"));
    const LoadResult r = loadPhoto(path, QSize(100, 60));
    ASSERT_TRUE(r.loaded());
    EXPECT_EQ(r.image.size(), QSize(192, 128));
    EXPECT_EQ(r.stored, QSize(768, 512));
    // Turned upright by its orientation, the need is the upright size too.
    const QString turned =
        testdataPath(QStringLiteral("images/jpeg/good/pillow-hopper_orientation_6.jpg"));
    const QSize upright = photoFileSize(turned);
    const LoadResult t = loadPhoto(turned, QSize(upright.width() / 4, upright.height() / 4));
    ASSERT_TRUE(t.loaded());
    EXPECT_GE(t.image.width(), upright.width() / 4);
    EXPECT_GE(t.image.height(), upright.height() / 4);
    EXPECT_LT(t.image.width(), upright.width());
    EXPECT_EQ((t.image.width() > t.image.height()), (upright.width() > upright.height()));
}

TEST(CdStdPicture, LoadCdStdPictureAnswersForGoodSmallAndBrokenFiles)
{
    TF_REQUIRE_TESTDATA();
    RecordingStatus status;
    cDIBSection dib;
    int32_t w = 0, h = 0;
    const QString path = testdataPath(QStringLiteral("photos/kodak/landscape/kodim01.jpg"));
    EXPECT_TRUE(Load_CDStdPicture(path, dib, w, h, QSize(300, 200), true, false, status));
    EXPECT_EQ(QSize(w, h), QSize(768, 512));
    EXPECT_EQ(dib.dib_width(), 384) << "a half still covers 300 x 200";
    EXPECT_FALSE(Load_CDStdPicture(path, dib, w, h, QSize(800, 200), false, false, status))
        << "smaller than the need";
    EXPECT_TRUE(Load_CDStdPicture(path, dib, w, h, QSize(800, 200), false, true, status));
    EXPECT_EQ(dib.dib_width(), 768);
    EXPECT_TRUE(status.panelText(sbrState).isEmpty());

    QTemporaryDir dir;
    const QString broken = dir.filePath(QStringLiteral("broken.jpg"));
    QFile f(broken);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("\xFF\xD8\xFF not really");
    f.close();
    EXPECT_FALSE(Load_CDStdPicture(broken, dib, w, h, QSize(), false, true, status));
    EXPECT_EQ(status.panelText(sbrState), QStringLiteral("Ungültiges Bild ") + broken);
    EXPECT_EQ(dib.hDIB(), 0);
}
