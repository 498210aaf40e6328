// The filter commands of the command line, run as the built program: the list, the messages
// and exit codes of wrong input, a chain against the filters run one after the other, and
// the colour mix's defaults.
#include "filters/filtertable.h"
#include "forgeprocess.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QRegularExpression>

using namespace tf;
using forgetest::forge;
using forgetest::Outcome;

namespace {

struct CliFilter : ::testing::Test {
    QTemporaryDir dir;
    QString input;

    void SetUp() override
    {
        input = file("in.png");
        QImage img(37, 23, QImage::Format_RGB32);
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                img.setPixel(x, y, qRgb(x * 7 % 256, y * 11 % 256, (x * y) % 256));
        ASSERT_TRUE(img.save(input));
    }
    QString file(const char *name) const { return dir.filePath(QString::fromLatin1(name)); }
    // `filter` with the arguments, messages in English.
    Outcome filter(const QStringList &args) const
    {
        return forge(QStringList{QStringLiteral("filter")} + args +
                     QStringList{QStringLiteral("--lang"), QStringLiteral("en")});
    }
};

} // namespace

TEST_F(CliFilter, FiltersListsEveryNumberWithItsNameAndCaptions)
{
    const Outcome r = forge({QStringLiteral("filters")});
    ASSERT_EQ(r.code, 0) << r.err.toStdString();
    const QStringList lines = r.out.split(QLatin1Char('\n'));
    for (int n = 1; n <= 54; ++n) {
        const FilterRow *row = findFilter(n);
        ASSERT_NE(row, nullptr) << n;
        const QRegularExpression re(QStringLiteral("^ *%1  %2 +%3 / %4")
                                        .arg(n)
                                        .arg(QRegularExpression::escape(QString::fromUtf8(row->name)),
                                             QRegularExpression::escape(row->caption(Language::German)),
                                             QRegularExpression::escape(row->caption(Language::English))));
        EXPECT_EQ(lines.filter(re).size(), 1) << n;
    }
    // The colour mix offers its two sliders and its colour.
    EXPECT_TRUE(r.out.contains(QStringLiteral(
        "--set Transparency=0..100 (50) --set Border=0..1000 (0) --colour0 #RRGGBB")));
}

TEST_F(CliFilter, WrongInputGetsItsMessageAndExitCodeTwoAndWritesNothing)
{
    const QString out = file("out.png");
    const struct {
        QStringList args;
        const char *message;
    } cases[] = {
        {{QStringLiteral("99"), input, QStringLiteral("-o"), out}, "Unknown filter: 99 (see `filters`)"},
        {{QStringLiteral("sharpest"), input, QStringLiteral("-o"), out}, "Unknown filter: sharpest (see `filters`)"},
        {{QStringLiteral("gamma"), input, QStringLiteral("-o"), out, QStringLiteral("--set"), QStringLiteral("Shade=3")},
         "The filter gamma has no slider Shade."},
        {{QStringLiteral("gamma"), input, QStringLiteral("-o"), out, QStringLiteral("--set"), QStringLiteral("Factor=5.01")},
         "Factor=5.01 lies outside 0.01 to 5.00."},
        {{QStringLiteral("mosaic"), input, QStringLiteral("-o"), out, QStringLiteral("--set"), QStringLiteral("Factor=ten")},
         "Invalid value for Factor: ten"},
        {{QStringLiteral("contour"), input, QStringLiteral("-o"), out, QStringLiteral("--colour0"), QStringLiteral("#12345")},
         "Invalid colour: #12345 (#RRGGBB)"},
        {{QStringLiteral("negative"), input}, "The output is missing (-o FILE)."},
    };
    for (const auto &c : cases) {
        const Outcome r = filter(c.args);
        EXPECT_EQ(r.code, 2) << c.message;
        EXPECT_EQ(r.err.trimmed(), QStringLiteral("tarvelle-forge: ") + QString::fromUtf8(c.message));
        EXPECT_FALSE(QFileInfo::exists(out)) << c.message;
    }
    // The German message of the same fault.
    const Outcome de = forge({QStringLiteral("filter"), QStringLiteral("99"), input, QStringLiteral("-o"), out,
                          QStringLiteral("--lang"), QStringLiteral("de")});
    EXPECT_EQ(de.code, 2);
    EXPECT_EQ(de.err.trimmed(), QStringLiteral("tarvelle-forge: Unbekannter Filter: 99 (siehe `filters`)"));
}

TEST_F(CliFilter, AnUnreadablePictureEndsWithExitCodeOneAndNoOutput)
{
    const QString out = file("out.png");
    const QString broken = file("broken.png");
    writeBytes(broken, "\x89PNG\r\n\x1a\n not a picture");
    const struct {
        QString in, message;
    } cases[] = {
        {broken, QStringLiteral("tarvelle-forge: Corrupt image: %1 (The file is not a BMP, GIF, "
                                "JPEG or PNG picture.)")
                     .arg(broken)},
        {file("missing.png"),
         QStringLiteral("tarvelle-forge: The file %1 does not exist.").arg(file("missing.png"))},
    };
    for (const auto &c : cases) {
        const Outcome r = filter({QStringLiteral("negative"), c.in, QStringLiteral("-o"), out});
        EXPECT_EQ(r.code, 1);
        EXPECT_EQ(r.err.trimmed(), c.message);
        EXPECT_FALSE(QFileInfo::exists(out));
    }
}

TEST_F(CliFilter, AChainGivesWhatTheFiltersGiveOneAfterTheOther)
{
    const QString chained = file("chained.bmp"), first = file("first.bmp"), second = file("second.bmp");
    const Outcome c = filter({QStringLiteral("gamma"), input, QStringLiteral("-o"), chained,
                          QStringLiteral("--set"), QStringLiteral("Factor=1.50"),
                          QStringLiteral("--then"), QStringLiteral("emboss"), QStringLiteral("--colour0"), QStringLiteral("#808080"),
                          QStringLiteral("--then"), QStringLiteral("22")});
    ASSERT_EQ(c.code, 0) << c.err.toStdString();
    ASSERT_EQ(filter({QStringLiteral("gamma"), input, QStringLiteral("-o"), first, QStringLiteral("--set"),
                      QStringLiteral("Factor=1.50")}).code, 0);
    ASSERT_EQ(filter({QStringLiteral("emboss"), first, QStringLiteral("-o"), second, QStringLiteral("--colour0"),
                      QStringLiteral("#808080")}).code, 0);
    ASSERT_EQ(filter({QStringLiteral("burke"), second, QStringLiteral("-o"), first}).code, 0);
    EXPECT_EQ(bytesOf(chained), bytesOf(first));
    EXPECT_FALSE(bytesOf(chained).isEmpty());
}

TEST_F(CliFilter, TheColourMixTakesTheBackgroundColourAtHalfTransparency)
{
    // Black under the mix: white laid over it at 50 % gives 255 - 0.5 * 255 = 127.5, rounded
    // half to even to 128.
    QImage black(4, 3, QImage::Format_RGB32);
    black.fill(Qt::black);
    const QString in = file("black.png"), out = file("mixed.png");
    ASSERT_TRUE(black.save(in));
    ASSERT_EQ(filter({QStringLiteral("colour-mix"), in, QStringLiteral("-o"), out}).code, 0);
    EXPECT_EQ(QImage(out).pixel(2, 1), qRgb(128, 128, 128));
    ASSERT_EQ(filter({QStringLiteral("45"), in, QStringLiteral("-o"), out, QStringLiteral("--colour0"),
                      QStringLiteral("#FF8000"), QStringLiteral("--set"), QStringLiteral("Transparency=0")}).code, 0);
    EXPECT_EQ(QImage(out).pixel(0, 0), qRgb(255, 128, 0));
    // A frame of one pixel: the edge takes the colour whole, the inside keeps the picture.
    ASSERT_EQ(filter({QStringLiteral("45"), in, QStringLiteral("-o"), out, QStringLiteral("--set"),
                      QStringLiteral("Transparency=0"), QStringLiteral("--set"), QStringLiteral("Border=1")}).code, 0);
    EXPECT_EQ(QImage(out).pixel(0, 1), qRgb(255, 255, 255));
    EXPECT_EQ(QImage(out).pixel(1, 1), qRgb(0, 0, 0));
}
