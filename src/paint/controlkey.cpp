#include "paint/controlkey.h"

#include <QRegularExpression>

namespace tf {

QString ControlKey::toString() const
{
    return index < 0 ? name : QStringLiteral("%1(%2)").arg(name).arg(index);
}

std::optional<ControlKey> ControlKey::parse(const QString &text)
{
    static const QRegularExpression re(QStringLiteral(R"(^\s*([A-Za-z_][A-Za-z0-9_]*)\s*(?:\(\s*(\d+)\s*\))?\s*$)"));
    const auto m = re.match(text);
    if (!m.hasMatch())
        return std::nullopt;
    ControlKey key{m.captured(1), -1};
    if (m.capturedLength(2) > 0)
        key.index = m.captured(2).toInt();
    return key;
}

ControlKey controlKey(const char *name, int index) { return ControlKey{QString::fromLatin1(name), index}; }

} // namespace tf
