#include "files/recipe.h"

#include <QCoreApplication>

namespace tf {

void PaintHistory::notePaint(const PaintRecord &record, qint64 keyBefore, qint64 keyAfter,
                             bool wholePicture)
{
    if (!wholePicture) {
        clear();
        return;
    }
    if (record.TranspPercent == 0) {
        m_paints.assign(1, record);
    } else if (!m_paints.empty() && keyBefore == m_key) {
        m_paints.push_back(record);
    } else {
        m_paints.clear();
    }
    m_key = keyAfter;
}

void PaintHistory::clear()
{
    m_paints.clear();
    m_key = 0;
}

QStringList PaintHistory::recipeFor(qint64 key) const
{
    QStringList lines;
    if (m_paints.empty() || key != m_key)
        return lines;
    for (const PaintRecord &r : m_paints)
        lines << paintCommandLine(r);
    return lines;
}

std::optional<QStringList> splitCommandLine(const QString &line)
{
    QStringList words;
    QString word;
    bool inWord = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line[i];
        if (c == QLatin1Char('\'')) {
            const qsizetype end = line.indexOf(QLatin1Char('\''), i + 1);
            if (end < 0)
                return std::nullopt;
            word += line.mid(i + 1, end - i - 1);
            i = end;
            inWord = true;
        } else if (c == QLatin1Char('"')) {
            qsizetype j = i + 1;
            for (; j < line.size() && line[j] != QLatin1Char('"'); ++j) {
                if (line[j] == QLatin1Char('\\') && j + 1 < line.size() &&
                    QStringLiteral("\"\\$").contains(line[j + 1]))
                    ++j;
                word += line[j];
            }
            if (j >= line.size())
                return std::nullopt;
            i = j;
            inWord = true;
        } else if (c == QLatin1Char('\\')) {
            if (i + 1 < line.size())
                word += line[++i];
            inWord = true;
        } else if (c.isSpace()) {
            if (inWord)
                words << word;
            word.clear();
            inWord = false;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (inWord)
        words << word;
    return words;
}

std::optional<QStringList> recipePaintArguments(const QString &line, QString &why)
{
    const auto words = splitCommandLine(line);
    if (!words || words->size() < 3 || words->at(0) != QLatin1String("tarvelle-forge") ||
        words->at(1) != QLatin1String("paint")) {
        why = QCoreApplication::translate("Recipe", "Keine Malanweisung: %1").arg(line);
        return std::nullopt;
    }
    for (const QString &w : *words) {
        if (w == QLatin1String("-o") || w == QLatin1String("--output") ||
            w == QLatin1String("--over") || w == QLatin1String("--recipe")) {
            why = QCoreApplication::translate("Recipe", "Die Malanweisung darf %1 nicht enthalten: %2")
                      .arg(w, line);
            return std::nullopt;
        }
    }
    return words->mid(1);
}

QStringList withSize(QStringList arguments, const QString &size)
{
    for (qsizetype i = 0; i + 1 < arguments.size(); ++i)
        if (arguments[i] == QLatin1String("--size"))
            arguments[i + 1] = size;
    if (!arguments.contains(QLatin1String("--size")))
        arguments << QStringLiteral("--size") << size;
    return arguments;
}

} // namespace tf

#include "files/picturemeta.h"
#include "paint/session.h"

namespace tf {

PictureMeta pictureMetaOf(const Session &s, const QStringList &recipe)
{
    PictureMeta meta;
    const double dpi = Val(s.controls().text(QStringLiteral("cmbDPI")));
    meta.dpi = dpi >= 1 && dpi <= 65535 ? int(dpi) : 0;
    meta.software = softwareText();
    meta.recipe = recipe;
    return meta;
}

} // namespace tf
