#include "files/picturemeta.h"

#include "app/version.h"
#include "core/numeric.h"

namespace tf {

QString softwareText()
{
    return QStringLiteral("tarvelle-forge " TF_VERSION);
}

int dotsPerMetre(int dpi)
{
    return dpi > 0 ? int(CLng(dpi / 0.0254)) : 0;
}

int dpiOfDotsPerMetre(int dotsPerMetre)
{
    return dotsPerMetre > 0 ? int(CLng(dotsPerMetre * 0.0254)) : 0;
}

QString metaCommentText(const PictureMeta &meta)
{
    QStringList lines{meta.software.isEmpty() ? softwareText() : meta.software};
    lines += meta.recipe;
    return lines.join(QLatin1Char('\n'));
}

QStringList recipeLinesOf(const QString &text)
{
    QStringList out;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        const QString l = line.trimmed();
        if (l.startsWith(QLatin1String("tarvelle-forge paint ")))
            out << l;
    }
    return out;
}

} // namespace tf
