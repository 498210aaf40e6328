// Every input the fuzz runs found a fault with is replayed through its decoder: it must load or
// be refused with a reason, never crash.
#include "files/decode.h"
#include "paint/jascpalette.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <gtest/gtest.h>

using namespace tf;

TEST(FuzzRegressions, EveryKeptInputDecodesOrIsRefused)
{
    const QString root = QStringLiteral(TF_SOURCE_DIR "/tests/files/regressions");
    int replayed = 0;
    QDirIterator it(root, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::ReadOnly));
        const QByteArray bytes = f.readAll();
        const QString kind = QFileInfo(path).dir().dirName();
        ++replayed;
        if (kind == QLatin1String("jasc")) {
            EXPECT_LE(readJascPalette(bytes).entries.size(), 256u);
            continue;
        }
        Decoded (*decode)(QByteArrayView, const DecodeRequest &) =
            kind == QLatin1String("png")    ? decodePng
            : kind == QLatin1String("jpeg") ? decodeJpeg
            : kind == QLatin1String("bmp")  ? decodeBmp
                                            : decodeGif;
        for (bool reduce : {true, false}) {
            DecodeRequest r;
            r.reduce = reduce;
            const Decoded d = decode(bytes, r);
            EXPECT_TRUE(d.ok() || !d.detail.isEmpty()) << path.toStdString();
        }
    }
    EXPECT_GE(replayed, 1);
}
