// The command line's Superformat route: a Superformat type painted with --size straight into
// its surface and written from it. It runs once the type's painter is in the table.
#include "forgeprocess.h"
#include "files/picturefile.h"
#include "generators/painters.h"
#include "paint/painter.h"

#include <QImage>

using forgetest::forge;

namespace {

bool superformatPaints()
{
    const tf::PainterEntry *e =
        tf::findPainter(tf::painterTable(), QStringLiteral("ART-MondrianSuper"));
    return e && e->paint;
}

} // namespace

TEST(CliSuperformat, PaintsAtTheGivenSizeIntoItsOwnPictureAndRepeatsFromItsRecipe)
{
    if (!superformatPaints()) GTEST_SKIP() << "the Superformat painter is not in the table yet";
    QTemporaryDir dir;
    const QString png = dir.filePath(QStringLiteral("super.png"));
    const auto painted = forge({QStringLiteral("paint"), QStringLiteral("ART-MondrianSuper"),
                                QStringLiteral("--size"), QStringLiteral("700x300"),
                                QStringLiteral("--seed"), QStringLiteral("5"), QStringLiteral("-o"),
                                png});
    ASSERT_EQ(painted.code, 0) << painted.err.toStdString();
    const QImage first(png);
    EXPECT_EQ(first.size(), QSize(700, 300));
    // The recipe names the Superformat's size and paints the same bytes again.
    const QString again = dir.filePath(QStringLiteral("again.png"));
    const auto repainted = forge({QStringLiteral("paint"), QStringLiteral("--recipe"), png,
                                  QStringLiteral("-o"), again});
    ASSERT_EQ(repainted.code, 0) << repainted.err.toStdString();
    EXPECT_EQ(QImage(again), first);

    // A Superformat is not painted over another picture.
    const auto over = forge({QStringLiteral("paint"), QStringLiteral("ART-MondrianSuper"),
                             QStringLiteral("--over"), png, QStringLiteral("-o"), again});
    EXPECT_EQ(over.code, 2);
    EXPECT_TRUE(over.err.contains(QStringLiteral("Superformat"))) << over.err.toStdString();
}
