#include "paint/paintrecord.h"

#include "paint/textstate.h"

#include <QRegularExpression>

namespace tf {

QString colourArgument(ColorLong c)
{
    return QStringLiteral("#%1%2%3")
        .arg(RedOf(c), 2, 16, QLatin1Char('0'))
        .arg(GreenOf(c), 2, 16, QLatin1Char('0'))
        .arg(BlueOf(c), 2, 16, QLatin1Char('0'))
        .toUpper();
}

QStringList paintCommandArguments(const PaintRecord &r)
{
    const auto onOff = [](bool on) { return on ? QStringLiteral("on") : QStringLiteral("off"); };
    QStringList args{QStringLiteral("paint"), r.GrafKey, QStringLiteral("--size"),
                     QStringLiteral("%1x%2").arg(r.width).arg(r.height), QStringLiteral("--fore"),
                     colourArgument(r.ColorFore), QStringLiteral("--back"),
                     colourArgument(r.ColorBack), QStringLiteral("--border"),
                     colourArgument(r.ColorBorder),
                     // Colours given on the command line turn random colours off unless said
                     // otherwise, so the switch is always stated.
                     QStringLiteral("--random-colors"), onOff(r.RandomColors)};
    if (!r.RandomValues) args << QStringLiteral("--random-values") << onOff(false);
    if (!r.paletteFile.isEmpty())
        args << QStringLiteral("--palette") << r.paletteFile;
    else if (r.systemPalette > 0)
        args << QStringLiteral("--system-palette") << QString::number(r.systemPalette);
    if (!r.photoSource.isEmpty()) args << QStringLiteral("--source") << r.photoSource;
    if (r.duotones >= 0) args << QStringLiteral("--duotones") << QString::number(r.duotones);
    // The text dialog's colours only where they differ from the start's black on white.
    if (r.TextFore != 0x000000) args << QStringLiteral("--text-fore") << colourArgument(r.TextFore);
    if (r.TextBack != 0xFFFFFF) args << QStringLiteral("--text-back") << colourArgument(r.TextBack);
    for (const auto &[key, value] : r.controls) {
        // The text goes as --text, its line breaks written "\n", so a command stays one line.
        if (key.name == QLatin1String("txtOrthoIn"))
            args << QStringLiteral("--text") << escapeTextArgument(value);
        else
            args << QStringLiteral("--set") << key.toString() + QLatin1Char('=') + value;
    }
    if (r.TranspPercent != 0)
        args << QStringLiteral("--transparency") << QString::number(r.TranspPercent);
    args << QStringLiteral("--seed") << QString::number(r.seed);
    return args;
}

QString shellQuote(const QString &argument)
{
    static const QRegularExpression safe(QStringLiteral(R"(^[A-Za-z0-9_@%+=:,./-]+$)"));
    if (safe.match(argument).hasMatch()) return argument;
    QString quoted = argument;
    quoted.replace(QLatin1String("'"), QLatin1String(R"('\'')"));
    return QLatin1Char('\'') + quoted + QLatin1Char('\'');
}

QString paintCommandLine(const PaintRecord &r)
{
    QStringList parts{QStringLiteral("tarvelle-forge")};
    for (const QString &a : paintCommandArguments(r))
        parts << shellQuote(a);
    return parts.join(QLatin1Char(' '));
}

} // namespace tf
