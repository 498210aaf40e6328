#include "paint/controls.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

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

QString ControlSpec::translatedCaption() const
{
    return QCoreApplication::translate("Controls", caption);
}

QStringList ControlSpec::translatedItems() const
{
    QStringList out;
    for (const char *item : items)
        out << QCoreApplication::translate("Controls", item);
    return out;
}

namespace {
std::vector<const ControlPanel *> &panelList()
{
    static std::vector<const ControlPanel *> panels;
    return panels;
}

std::optional<long long> asInteger(const QString &value)
{
    bool ok = false;
    const double d = value.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(d))
        return std::nullopt;
    return (long long)std::nearbyint(d);
}
} // namespace

ControlSpec controlSpec(const char *name, int index, ControlKind kind, const char *caption,
                        const char *defaultValue, int min, int max,
                        std::vector<const char *> items, const char *unit)
{
    ControlSpec s;
    s.key = ControlKey{QString::fromLatin1(name), index};
    s.kind = kind;
    s.caption = caption;
    s.defaultValue = QString::fromLatin1(defaultValue);
    s.min = min;
    s.max = max;
    s.items = std::move(items);
    s.unit = unit;
    return s;
}

const std::vector<const ControlPanel *> &controlPanels() { return panelList(); }

void registerControlPanel(const ControlPanel *panel)
{
    auto &list = panelList();
    if (std::find(list.begin(), list.end(), panel) == list.end())
        list.push_back(panel);
}

const ControlSpec *findControlSpec(const ControlKey &key)
{
    for (const ControlPanel *panel : panelList())
        for (const ControlSpec &def : panel->controls)
            if (def.key == key)
                return &def;
    return nullptr;
}

double Val(const QString &text)
{
    // Leading blanks are skipped; the number ends at the first character that cannot continue it.
    static const QRegularExpression re(QStringLiteral(R"(^\s*([+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?))"));
    const auto m = re.match(text);
    return m.hasMatch() ? m.captured(1).toDouble() : 0.0;
}

std::optional<QString> normaliseValue(const ControlSpec &def, const QString &value)
{
    if (def.normalise)
        return def.normalise(value);
    switch (def.kind) {
    case ControlKind::Text: {
        if (!def.hasRange())
            return value;
        const double v = Val(value);
        if (v < def.min)
            return QString::number(def.min);
        if (v > def.max)
            return QString::number(def.max);
        return value;
    }
    case ControlKind::Checked: {
        const QString v = value.trimmed().toLower();
        if (v == QLatin1String("1") || v == QLatin1String("on") || v == QLatin1String("true") || v == QLatin1String("-1"))
            return QStringLiteral("1");
        if (v == QLatin1String("0") || v == QLatin1String("off") || v == QLatin1String("false"))
            return QStringLiteral("0");
        return std::nullopt;
    }
    case ControlKind::ListIndex: {
        // An index, or the caption of an item in German or in the current language.
        auto n = asInteger(value);
        if (!n) {
            const QStringList shown = def.translatedItems();
            for (size_t i = 0; i < def.items.size() && !n; ++i)
                if (value == QString::fromUtf8(def.items[i]) || value == shown[qsizetype(i)])
                    n = (long long)i;
            if (!n)
                return std::nullopt;
        }
        const long long count = (long long)def.items.size();
        if (*n < -1 || (count > 0 && *n >= count))
            return std::nullopt;
        return QString::number(*n);
    }
    case ControlKind::Value: {
        auto n = asInteger(value);
        if (!n)
            return std::nullopt;
        if (def.hasRange())
            n = std::clamp<long long>(*n, def.min, def.max);
        return QString::number(*n);
    }
    case ControlKind::Colour: {
        QString v = value.trimmed();
        if (v.startsWith(QLatin1Char('#')) && v.size() == 7) {
            bool ok = false;
            const uint rgb = v.mid(1).toUInt(&ok, 16);
            if (!ok)
                return std::nullopt;
            // #RRGGBB to the colour long 0x00BBGGRR.
            const uint c = ((rgb >> 16) & 255) | (rgb & 0xFF00) | ((rgb & 255) << 16);
            return QString::number(c);
        }
        auto n = asInteger(v);
        if (!n || *n < 0 || *n > 0xFFFFFF)
            return std::nullopt;
        return QString::number(*n);
    }
    }
    return std::nullopt;
}

Controls::Controls() { resetToDefaults(); }

void Controls::resetToDefaults()
{
    m_values.clear();
    for (const ControlPanel *panel : panelList())
        addDefaults(*panel);
}

void Controls::addDefaults(const ControlPanel &panel)
{
    for (const ControlSpec &def : panel.controls)
        m_values.try_emplace(def.key, def.defaultValue);
}

bool Controls::set(const ControlKey &key, const QString &value)
{
    const ControlSpec *def = findControlSpec(key);
    if (!def)
        return false;
    const auto v = normaliseValue(*def, value);
    if (!v)
        return false;
    setRaw(key, *v);
    return true;
}

void Controls::setRaw(const ControlKey &key, const QString &value)
{
    QString &slot = m_values[key];
    if (slot == value)
        return;
    slot = value;
    if (m_view) m_view->controlChanged(key);
}

QString Controls::text(const ControlKey &key) const
{
    auto it = m_values.find(key);
    return it == m_values.end() ? QString() : it->second;
}

double Controls::number(const ControlKey &key) const { return Val(text(key)); }

int Controls::value(const ControlKey &key) const
{
    const double v = number(key);
    return int(std::clamp(std::nearbyint(v), -2147483648.0, 2147483647.0));
}

std::vector<std::pair<ControlKey, QString>> Controls::changed() const
{
    std::vector<std::pair<ControlKey, QString>> out;
    for (const auto &[key, value] : m_values) {
        const ControlSpec *def = findControlSpec(key);
        if (def && def->defaultValue != value)
            out.emplace_back(key, value);
    }
    return out;
}

} // namespace tf
