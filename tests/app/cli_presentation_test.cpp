// The command line repeats a picture presentation: `paint PIC-Mosaik --presentation F.tvp`
// paints the stored layout with the stored source and options. It runs once the mosaic's
// painter is in the table.
#include "files/presentationfile.h"
#include "forgeprocess.h"
#include "generators/painters.h"
#include "paint/painter.h"
#include "support/testdata.h"

#include <QFile>
#include <QImage>

using forgetest::forge;
using namespace tf;
using PV = PresentationValue;

namespace {

bool mosaicPaints()
{
    const PainterEntry *e = findPainter(painterTable(), QStringLiteral("PIC-Mosaik"));
    return e && e->paint;
}

// Two columns split at x = 300 and two rows split at y = 500 over 712 x 712, framed in red.
QByteArray twoByTwo(const QString &source)
{
    PicPresentation p;
    p.source = source;
    p.screenW = 1600;
    p.screenH = 1200;
    const int32_t values[] = {0, 1, 1, 1, 0, 0xFFFFFF, 0x0000FF, 2, 2, 0, 0, 0, 0, 3, 1, 1, 1, 1};
    std::copy(std::begin(values), std::end(values), p.values.begin());
    for (Table3 *t : {&p.ArrCellH, &p.ArrSubH, &p.ArrSubVX})
        t->redim(3, 3, 3);
    for (Table3 *t : {&p.ArrCellV, &p.ArrSubHY, &p.ArrSubV})
        t->redim(2, 3, 3);
    const int xs[] = {0, 300, 712}, ys[] = {0, 500, 712};
    for (int c = 0; c < 2; ++c)
        for (int r = 0; r < 2; ++r) {
            p.ArrCellH(0, c, r) = xs[c];
            p.ArrCellH(1, c, r) = xs[c + 1];
            p.ArrCellH(2, c, r) = 1;
            p.ArrCellV(0, c, r) = ys[r];
            p.ArrCellV(1, c, r) = ys[r + 1];
            p.ArrCellV(2, c, r) = 1;
        }
    return presentationBytes(p);
}

// The share of the pixels of column x (or row y) that are pure red.
double redShare(const QImage &img, int x, int y)
{
    int red = 0, all = 0;
    for (int i = 0; i < (x >= 0 ? img.height() : img.width()); ++i, ++all)
        red += (x >= 0 ? img.pixel(x, i) : img.pixel(i, y)) == qRgb(255, 0, 0);
    return double(red) / all;
}

double bestRedShare(const QImage &img, int x, int y)
{
    double best = 0;
    for (int d = -2; d <= 2; ++d)
        best = std::max(best, redShare(img, x >= 0 ? x + d : -1, y >= 0 ? y + d : -1));
    return best;
}

} // namespace

TEST(CliPresentation, PaintsTheStoredLayoutFromTheStoredSource)
{
    if (!mosaicPaints()) GTEST_SKIP() << "the mosaic's painter is not in the table yet";
    TF_REQUIRE_TESTDATA();
    QTemporaryDir dir;
    const QString tvp = dir.filePath(QStringLiteral("show.tvp"));
    {
        QFile f(tvp);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(twoByTwo(testdataPath(QStringLiteral("photos/kodak/landscape"))));
    }
    const QString png = dir.filePath(QStringLiteral("mosaik.png"));
    const auto painted = forge({QStringLiteral("paint"), QStringLiteral("PIC-Mosaik"),
                                QStringLiteral("--presentation"), tvp, QStringLiteral("--seed"),
                                QStringLiteral("4"), QStringLiteral("-o"), png});
    ASSERT_EQ(painted.code, 0) << painted.err.toStdString();
    const QImage img(png);
    ASSERT_EQ(img.size(), QSize(712, 712));
    // The frame lines in the stored colour run where the stored layout splits, not elsewhere.
    EXPECT_GT(bestRedShare(img, 300, -1), 0.45);
    EXPECT_GT(bestRedShare(img, -1, 500), 0.45);
    EXPECT_LT(redShare(img, 150, -1), 0.05);
    EXPECT_LT(redShare(img, -1, 250), 0.05);
}

TEST(CliPresentation, RefusesAnotherTypeAndAFileOfAnotherKind)
{
    QTemporaryDir dir;
    const QString tvp = dir.filePath(QStringLiteral("bad.tvp"));
    {
        QFile f(tvp);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("Tarvelle-Forge-V1\r\n");
    }
    const auto other = forge({QStringLiteral("paint"), QStringLiteral("ART-Mondrian"),
                              QStringLiteral("--presentation"), tvp});
    EXPECT_EQ(other.code, 2);
    EXPECT_TRUE(other.err.contains(QStringLiteral("--presentation"))) << other.err.toStdString();
    if (!mosaicPaints()) GTEST_SKIP() << "the mosaic's painter is not in the table yet";
    const auto wrong =
        forge({QStringLiteral("paint"), QStringLiteral("PIC-Mosaik"), QStringLiteral("--lang"),
               QStringLiteral("de"), QStringLiteral("--presentation"), tvp, QStringLiteral("-o"),
               dir.filePath(QStringLiteral("x.png"))});
    EXPECT_EQ(wrong.code, 1);
    EXPECT_TRUE(wrong.err.contains(QStringLiteral("Falsches Dateiformat!")))
        << wrong.err.toStdString();
    EXPECT_FALSE(QFile::exists(dir.filePath(QStringLiteral("x.png"))));
}
