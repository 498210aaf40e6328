#include "paint/controls.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

namespace tf {

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

namespace {
// Links are static tables; a chain longer than this is a cycle in them, read as enabled.
constexpr int MaxLinkDepth = 8;
const std::vector<const ControlLink *> NoLinks;
} // namespace

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
    if (std::find(m_linked.begin(), m_linked.end(), &panel) != m_linked.end())
        return;
    m_linked.push_back(&panel);
    for (const ControlLink &link : panel.links) {
        if (link.kind == LinkKind::EnabledOnlyWith)
            for (const ControlKey &target : link.targets)
                m_enabling[target].push_back(&link);
        for (const LinkClause &clause : link.when)
            for (const ValueTest &test : clause.anyOf) {
                auto &reading = m_reading[test.key];
                if (std::find(reading.begin(), reading.end(), &link) == reading.end())
                    reading.push_back(&link);
            }
    }
}

const std::vector<const ControlLink *> &Controls::linksEnabling(const ControlKey &key) const
{
    auto it = m_enabling.find(key);
    return it == m_enabling.end() ? NoLinks : it->second;
}

const std::vector<const ControlLink *> &Controls::linksReading(const ControlKey &key) const
{
    auto it = m_reading.find(key);
    return it == m_reading.end() ? NoLinks : it->second;
}

bool Controls::set(const ControlKey &key, const QString &value) { return setAt(key, value, 0); }

bool Controls::setAt(const ControlKey &key, const QString &value, int depth)
{
    const ControlSpec *def = findControlSpec(key);
    if (!def)
        return false;
    const auto v = normaliseValue(*def, value);
    if (!v)
        return false;
    const bool changes = stored(key) != *v;
    setRaw(key, *v);
    if (changes)
        applyLinks(key, depth);
    return true;
}

void Controls::applyLinks(const ControlKey &changed, int depth)
{
    if (depth >= MaxLinkDepth)
        return;
    for (const ControlLink *link : linksReading(changed)) {
        if (link->kind != LinkKind::SetsWhen)
            continue;
        if (!link->holds([&](const ControlKey &k) { return int(Val(readAt(k, depth + 1))); }))
            continue;
        for (const ControlKey &target : link->targets)
            setAt(target, link->value, depth + 1);
    }
}

void Controls::setRaw(const ControlKey &key, const QString &value)
{
    QString &slot = m_values[key];
    if (slot == value)
        return;
    slot = value;
    if (m_view) m_view->controlChanged(key);
}

QString Controls::stored(const ControlKey &key) const
{
    auto it = m_values.find(key);
    return it == m_values.end() ? QString() : it->second;
}

bool Controls::enabled(const ControlKey &key) const { return enabledAt(key, 0); }

bool Controls::enabledAt(const ControlKey &key, int depth) const
{
    if (depth >= MaxLinkDepth)
        return true;
    for (const ControlLink *link : linksEnabling(key))
        if (!link->holds([&](const ControlKey &k) { return int(Val(readAt(k, depth + 1))); }))
            return false;
    return true;
}

QString Controls::readAt(const ControlKey &key, int depth) const
{
    if (enabledAt(key, depth))
        return stored(key);
    const ControlSpec *def = findControlSpec(key);
    if (!def)
        return stored(key);
    return def->kind == ControlKind::Checked ? QStringLiteral("0") : def->defaultValue;
}

QString Controls::text(const ControlKey &key) const { return readAt(key, 0); }

double Controls::number(const ControlKey &key) const { return Val(text(key)); }

int Controls::value(const ControlKey &key) const
{
    const double v = number(key);
    return int(std::clamp(std::nearbyint(v), -2147483648.0, 2147483647.0));
}

std::vector<std::pair<ControlKey, QString>> Controls::changed() const
{
    std::vector<std::pair<ControlKey, QString>> sources, others;
    for (const auto &[key, value] : m_values) {
        const ControlSpec *def = findControlSpec(key);
        if (!def || def->defaultValue == value)
            continue;
        const auto &reading = linksReading(key);
        const bool sets = std::any_of(reading.begin(), reading.end(), [](const ControlLink *l) {
            return l->kind == LinkKind::SetsWhen;
        });
        (sets ? sources : others).emplace_back(key, value);
    }
    // A control that a listed change sets by a link comes last, at the value it holds.
    std::vector<ControlKey> setLast;
    const auto read = [this](const ControlKey &k) { return int(Val(text(k))); };
    for (const auto &[key, value] : sources)
        for (const ControlLink *link : linksReading(key))
            if (link->kind == LinkKind::SetsWhen && link->holds(read))
                for (const ControlKey &target : link->targets)
                    if (std::find(setLast.begin(), setLast.end(), target) == setLast.end())
                        setLast.push_back(target);
    std::vector<std::pair<ControlKey, QString>> out = std::move(sources);
    for (auto &entry : others)
        if (std::find(setLast.begin(), setLast.end(), entry.first) == setLast.end())
            out.push_back(std::move(entry));
    for (const ControlKey &target : setLast) {
        auto listed = std::find_if(out.begin(), out.end(),
                                   [&](const auto &e) { return e.first == target; });
        if (listed != out.end())
            out.erase(listed);
        if (m_values.count(target))
            out.emplace_back(target, stored(target));
    }
    return out;
}

} // namespace tf
