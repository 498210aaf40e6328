#include "core/settings.h"

#include <QSettings>
#include <QStandardPaths>

namespace tf {

namespace {

QString keyOf(const QString &subKey, const QString &name)
{
    QString group = subKey;
    while (group.startsWith(QLatin1Char('\\')))
        group.remove(0, 1);
    return group + QLatin1Char('/') + name;
}

} // namespace

SettingsStore::SettingsStore() : SettingsStore(defaultPath()) {}

SettingsStore::SettingsStore(const QString &path)
    : m_path(path), m_settings(std::make_unique<QSettings>(path, QSettings::IniFormat))
{
    // A file that is there but unreadable or half parsed is not trusted for any value.
    m_readable = m_settings->status() == QSettings::NoError;
}

SettingsStore::~SettingsStore() = default;

QString SettingsStore::defaultPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
           QStringLiteral("/Vorun/Tvl-2.5.ini");
}

QString SettingsStore::raw(const QString &subKey, const QString &name) const
{
    if (!m_readable)
        return QString();
    const QVariant v = m_settings->value(keyOf(subKey, name));
    if (!v.isValid())
        return QString();
    // A text with commas that was written by hand comes back as a list.
    QString text = v.typeId() == QMetaType::QStringList ? v.toStringList().join(QLatin1Char(','))
                                                        : v.toString();
    if (text.isNull())
        text = QLatin1String(""); // present but empty stays distinct from missing
    return text;
}

bool SettingsStore::contains(const QString &subKey, const QString &name) const
{
    return m_readable && m_settings->contains(keyOf(subKey, name));
}

QString SettingsStore::Get_Setting(const QString &subKey, const QString &name,
                                   const QString &def) const
{
    const QString v = raw(subKey, name);
    return v.isNull() ? def : v;
}

QString SettingsStore::Get_Setting(const QString &subKey, const QString &name,
                                   const char *def) const
{
    return Get_Setting(subKey, name, QString::fromUtf8(def));
}

int SettingsStore::Get_Setting(const QString &subKey, const QString &name, int def) const
{
    bool ok = false;
    const int v = raw(subKey, name).trimmed().toInt(&ok);
    return ok ? v : def;
}

bool SettingsStore::Get_Setting(const QString &subKey, const QString &name, bool def) const
{
    const QString v = raw(subKey, name).trimmed();
    if (v.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0)
        return true;
    if (v.compare(QLatin1String("false"), Qt::CaseInsensitive) == 0)
        return false;
    bool ok = false;
    const int n = v.toInt(&ok);
    return ok ? n != 0 : def;
}

void SettingsStore::Put_Setting(const QString &subKey, const QString &name, const QString &value)
{
    m_settings->setValue(keyOf(subKey, name), value);
}

void SettingsStore::Put_Setting(const QString &subKey, const QString &name, const char *value)
{
    Put_Setting(subKey, name, QString::fromUtf8(value));
}

void SettingsStore::Put_Setting(const QString &subKey, const QString &name, int value)
{
    m_settings->setValue(keyOf(subKey, name), value);
}

void SettingsStore::Put_Setting(const QString &subKey, const QString &name, bool value)
{
    Put_Setting(subKey, name, value ? -1 : 0);
}

void SettingsStore::removeSetting(const QString &subKey, const QString &name)
{
    m_settings->remove(keyOf(subKey, name));
}

bool SettingsStore::sync()
{
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}

SettingsStore &programSettings()
{
    static SettingsStore store;
    return store;
}

QString Get_Setting(const QString &subKey, const QString &name, const QString &def)
{
    return programSettings().Get_Setting(subKey, name, def);
}
QString Get_Setting(const QString &subKey, const QString &name, const char *def)
{
    return programSettings().Get_Setting(subKey, name, def);
}
int Get_Setting(const QString &subKey, const QString &name, int def)
{
    return programSettings().Get_Setting(subKey, name, def);
}
bool Get_Setting(const QString &subKey, const QString &name, bool def)
{
    return programSettings().Get_Setting(subKey, name, def);
}
void Put_Setting(const QString &subKey, const QString &name, const QString &value)
{
    programSettings().Put_Setting(subKey, name, value);
}
void Put_Setting(const QString &subKey, const QString &name, const char *value)
{
    programSettings().Put_Setting(subKey, name, value);
}
void Put_Setting(const QString &subKey, const QString &name, int value)
{
    programSettings().Put_Setting(subKey, name, value);
}
void Put_Setting(const QString &subKey, const QString &name, bool value)
{
    programSettings().Put_Setting(subKey, name, value);
}

} // namespace tf
