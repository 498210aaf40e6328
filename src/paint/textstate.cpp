#include "paint/textstate.h"

#include "paint/session.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QStringDecoder>
#include <array>

namespace tf {

void Load_SystemFonts(TextState &text)
{
    QStringList names;
    for (const QString &family : QFontDatabase::families(QFontDatabase::Latin))
        if (!QFontDatabase::isPrivateFamily(family)) names << family;
    names.sort(Qt::CaseInsensitive);
    names.removeDuplicates();
    text.FontList = names;
}

void armTextPlacing(Session &s, TextPlacing how)
{
    s.text().placing = how;
    s.status().setPanelText(
        sbrState, how == TextPlacing::Off
                      ? QString()
                      : QCoreApplication::translate(
                            "TextDialog", "Klicken Sie in das Bild: dort steht der Text."));
}

bool placeTextAt(Session &s, int x, int y)
{
    TextState &t = s.text();
    if (t.placing == TextPlacing::Off) return false;
    const TextPlacing how = t.placing;
    t.placing = TextPlacing::Off;
    s.status().setPanelText(sbrState, QString());
    // The mode belongs to "TEXT-Dialog": chosen another type since, the click is not for it.
    if (s.paint().GrafKey != QLatin1String("TEXT-Dialog")) return false;
    Controls &c = s.controls();
    c.set(ControlKey{QStringLiteral("txtDialogXYPos"), 0}, QString::number(x));
    c.set(ControlKey{QStringLiteral("txtDialogXYPos"), 1}, QString::number(y));
    c.set(ControlKey{QStringLiteral("XTextDialog_Center")},
          how == TextPlacing::Centre ? QStringLiteral("1") : QStringLiteral("0"));
    return true;
}

namespace {

// Windows-1252 at 0x80..0x9F; 0 where the code page leaves a byte undefined (read as Latin-1).
constexpr std::array<char16_t, 32> Cp1252High = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

QString decodeWestern(const QByteArray &bytes)
{
    QString out;
    out.reserve(bytes.size());
    for (const char ch : bytes) {
        const auto b = static_cast<unsigned char>(ch);
        const char16_t high = b >= 0x80 && b <= 0x9F ? Cp1252High[b - 0x80] : 0;
        out += QChar(high ? high : char16_t(b));
    }
    return out;
}

} // namespace

QString decodeTextFile(const QByteArray &bytes)
{
    if (bytes.startsWith("\xEF\xBB\xBF")) return QString::fromUtf8(bytes.mid(3));
    if (bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF")) {
        QStringDecoder utf16(bytes.startsWith("\xFF\xFE") ? QStringConverter::Utf16LE
                                                           : QStringConverter::Utf16BE);
        return utf16(bytes.mid(2));
    }
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    const QString text = utf8(bytes);
    if (!utf8.hasError()) return text;
    return decodeWestern(bytes);
}

QString escapeTextArgument(const QString &text)
{
    QString out = text;
    out.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    out.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    out.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    out.replace(QLatin1Char('\t'), QLatin1String("\\t"));
    return out;
}

QString unescapeTextArgument(const QString &argument)
{
    QString out;
    out.reserve(argument.size());
    for (qsizetype i = 0; i < argument.size(); ++i) {
        const QChar c = argument[i];
        if (c == QLatin1Char('\\') && i + 1 < argument.size()) {
            const QChar next = argument[i + 1];
            if (next == QLatin1Char('n') || next == QLatin1Char('t')) {
                out += next == QLatin1Char('n') ? QLatin1Char('\n') : QLatin1Char('\t');
                ++i;
                continue;
            }
            if (next == QLatin1Char('\\')) {
                out += QLatin1Char('\\');
                ++i;
                continue;
            }
        }
        out += c;
    }
    return out;
}

} // namespace tf
