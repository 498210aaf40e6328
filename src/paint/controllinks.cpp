#include "paint/controllinks.h"

#include <QCoreApplication>
#include <QStringList>
#include <algorithm>

namespace tf {

bool ControlLink::tests(const ControlKey &key) const
{
    return std::any_of(when.begin(), when.end(), [&](const LinkClause &clause) {
        return std::any_of(clause.anyOf.begin(), clause.anyOf.end(),
                           [&](const ValueTest &t) { return t.key == key; });
    });
}

bool ControlLink::holds(const std::function<int(const ControlKey &)> &read) const
{
    return std::all_of(when.begin(), when.end(), [&](const LinkClause &clause) {
        return std::any_of(clause.anyOf.begin(), clause.anyOf.end(), [&](const ValueTest &t) {
            const int v = read(t.key);
            return std::find(t.values.begin(), t.values.end(), v) != t.values.end();
        });
    });
}

namespace {

QString describeTest(const ValueTest &t)
{
    QStringList values;
    for (int v : t.values)
        values << QString::number(v);
    return t.values.size() == 1
               ? QStringLiteral("%1 = %2").arg(t.key.toString(), values.first())
               : QStringLiteral("%1 in %2").arg(t.key.toString(), values.join(QLatin1Char(',')));
}

QString describeCondition(const std::vector<LinkClause> &when)
{
    QStringList clauses;
    for (const LinkClause &clause : when) {
        QStringList tests;
        for (const ValueTest &t : clause.anyOf)
            tests << describeTest(t);
        const QString any = tests.join(
            QStringLiteral(" %1 ").arg(QCoreApplication::translate("ControlLinks", "oder")));
        clauses << (tests.size() > 1 && when.size() > 1 ? QStringLiteral("(%1)").arg(any) : any);
    }
    return clauses.join(
        QStringLiteral(" %1 ").arg(QCoreApplication::translate("ControlLinks", "und")));
}

} // namespace

QString ControlLink::describe() const
{
    if (kind == LinkKind::EnabledOnlyWith)
        return QCoreApplication::translate("ControlLinks", "nur mit %1").arg(describeCondition(when));
    QStringList names;
    for (const ControlKey &k : targets)
        names << k.toString();
    return QCoreApplication::translate("ControlLinks", "setzt %1 auf %2 bei %3")
        .arg(names.join(QLatin1String(", ")), value, describeCondition(when));
}

ValueTest valueIn(const char *name, int index, std::vector<int> values)
{
    return ValueTest{controlKey(name, index), std::move(values)};
}

ValueTest isOn(const char *name, int index) { return valueIn(name, index, {1}); }
ValueTest isOff(const char *name, int index) { return valueIn(name, index, {0}); }
LinkClause anyOf(std::vector<ValueTest> tests) { return LinkClause(std::move(tests)); }

ControlLink enabledOnlyWith(std::vector<ControlKey> targets, std::vector<LinkClause> when)
{
    return ControlLink{LinkKind::EnabledOnlyWith, std::move(targets), std::move(when), QString()};
}

ControlLink setsWhen(ValueTest trigger, std::vector<ControlKey> targets, const char *value)
{
    return ControlLink{LinkKind::SetsWhen, std::move(targets), {LinkClause(std::move(trigger))},
                       QString::fromLatin1(value)};
}

} // namespace tf
