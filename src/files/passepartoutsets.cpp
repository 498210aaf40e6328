#include "files/passepartoutsets.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>

namespace tf {

PPReadResult PassepartoutSets::load()
{
    PPReadResult r = Read_PPData(m_path);
    m_refused = r.refused();
    m_table = r.table;
    return r;
}

QStringList PassepartoutSets::rows() const
{
    QStringList list{QCoreApplication::translate("frmPassepGen", "<-- Neuer Eintrag -->"),
                     QStringLiteral("+ Standard")};
    for (const PPRecord &r : m_table)
        if (r.valid) list << r.name;
    return list;
}

int PassepartoutSets::recordIndexOfRow(int row) const
{
    int shown = StandardRow;
    for (size_t i = 0; i < m_table.size(); ++i)
        if (m_table[i].valid && ++shown == row) return int(i);
    return -1;
}

PPRecord PassepartoutSets::recordOfRow(int row) const
{
    if (row == StandardRow) return standardPassepartout();
    const int i = recordIndexOfRow(row);
    if (i < 0) {
        PPRecord fresh;
        fresh.name.clear();
        return fresh;
    }
    return m_table[size_t(i)];
}

int PassepartoutSets::rowOfName(const QString &name) const
{
    const QStringList list = rows();
    for (qsizetype r = StandardRow + 1; r < list.size(); ++r)
        if (list[r] == name) return int(r);
    return -1;
}

PassepartoutSets::Applied PassepartoutSets::apply(int row, const PPRecord &fields)
{
    Applied result;
    const QString name = fields.name.trimmed();
    const int index = recordIndexOfRow(row);
    const bool isNew = index < 0;
    if (isNew && name.isEmpty()) {
        result.error = QCoreApplication::translate(
            "frmPassepGen", "Geben Sie bitte einen Namen für das neue Set ein.");
        return result;
    }
    if (!isNew && name.isEmpty()) {
        result.error = QCoreApplication::translate("frmPassepGen",
                                                   "Geben Sie bitte einen Namen für das Set ein.");
        return result;
    }
    const int existing = findPassepartout(m_table, name);
    if (existing >= 0 && existing != index) {
        result.error = QCoreApplication::translate("frmPassepGen", "Name existiert schon!");
        return result;
    }
    if (!storableName(name) || name.size() > 32767) {
        result.error = QCoreApplication::translate(
            "frmPassepGen", "Der Name kann so nicht gespeichert werden: erlaubt sind Buchstaben, "
                            "Ziffern und Zeichen westeuropäischer Sprachen.");
        return result;
    }
    if (std::none_of(fields.width.begin(), fields.width.end(), [](int16_t w) { return w >= 1; })) {
        result.error =
            QCoreApplication::translate("frmPassepGen", "Sie haben keine Werte eingegeben!");
        return result;
    }
    if (isNew) m_table.emplace_back();
    PPRecord &r = isNew ? m_table.back() : m_table[size_t(index)];
    r.name = name;
    r.sortName = name;
    r.valid = true;
    r.useGradient = fields.useGradient;
    r.width = fields.width;
    r.colour = fields.colour;
    Sort_PPData(m_table);
    result.row = rowOfName(name);
    return result;
}

bool PassepartoutSets::remove(int row)
{
    const int i = recordIndexOfRow(row);
    if (i < 0) return false;
    m_table[size_t(i)].valid = false;
    return true;
}

PassepartoutSets::Saved PassepartoutSets::save(bool overwriteRefused)
{
    Saved s;
    if (m_refused && !overwriteRefused) {
        s.status = SaveStatus::NeedsConsent;
        s.message = QCoreApplication::translate(
                        "frmPassepGen",
                        "Die Datei %1 enthält keine lesbaren Passepartouts. Soll sie durch die "
                        "Sets dieses Fensters ersetzt werden?")
                        .arg(QDir::toNativeSeparators(m_path));
        return s;
    }
    const WriteResult w = Write_PPData(m_path, m_table);
    if (!w.ok()) {
        s.status = SaveStatus::Failed;
        s.message = w.message;
        return s;
    }
    m_refused = false;
    return s;
}

} // namespace tf
