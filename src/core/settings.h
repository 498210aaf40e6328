#pragma once
// The per-user settings store: named values under three sub-keys, "Common", "Settings" and
// "Grafic", kept in one INI file (by default <config>/Vorun/Tvl-2.5.ini).
//
// Reading never fails. A value that is missing, that cannot be read as the type asked for,
// or that stands in a store whose file cannot be read or parsed, gives the caller's default.
// Booleans are stored as -1 (true) and 0 (false); on reading, any other number is true unless
// 0, and the texts "true" / "false" are taken too. A sub-key may be written with its leading
// backslash ("\Common"). Writes are seen by later reads at once and reach the file at sync()
// or when the store is destroyed.

#include <QString>
#include <memory>

class QSettings;

namespace tf {

// The sub-keys of the store.
namespace SubKey {
inline constexpr char Common[] = "Common";
inline constexpr char Settings[] = "Settings";
inline constexpr char Grafic[] = "Grafic";
} // namespace SubKey

class SettingsStore {
public:
    // The program's own store, at defaultPath().
    SettingsStore();
    // A store in another file (tests, another profile). The file need not exist.
    explicit SettingsStore(const QString &path);
    ~SettingsStore();
    SettingsStore(const SettingsStore &) = delete;
    SettingsStore &operator=(const SettingsStore &) = delete;

    // <GenericConfigLocation>/Vorun/Tvl-2.5.ini
    static QString defaultPath();
    QString path() const { return m_path; }
    // False when the file exists but could not be read or parsed: every read gives its default.
    bool readable() const { return m_readable; }

    QString Get_Setting(const QString &subKey, const QString &name, const QString &def) const;
    QString Get_Setting(const QString &subKey, const QString &name, const char *def) const;
    int Get_Setting(const QString &subKey, const QString &name, int def) const;
    bool Get_Setting(const QString &subKey, const QString &name, bool def) const;
    // True when a value of that name is stored (and the store is readable).
    bool contains(const QString &subKey, const QString &name) const;

    void Put_Setting(const QString &subKey, const QString &name, const QString &value);
    void Put_Setting(const QString &subKey, const QString &name, const char *value);
    void Put_Setting(const QString &subKey, const QString &name, int value);
    void Put_Setting(const QString &subKey, const QString &name, bool value); // -1 / 0
    void removeSetting(const QString &subKey, const QString &name);

    // Writes pending changes to the file; false when they could not be written.
    bool sync();

private:
    // The stored text of a value; null when missing or the store is unreadable.
    QString raw(const QString &subKey, const QString &name) const;

    QString m_path;
    std::unique_ptr<QSettings> m_settings;
    bool m_readable = true;
};

// The program's store (opened at defaultPath() on first use). The shell syncs it at the end.
SettingsStore &programSettings();

// The same reads and writes on the program's store.
QString Get_Setting(const QString &subKey, const QString &name, const QString &def);
QString Get_Setting(const QString &subKey, const QString &name, const char *def);
int Get_Setting(const QString &subKey, const QString &name, int def);
bool Get_Setting(const QString &subKey, const QString &name, bool def);
void Put_Setting(const QString &subKey, const QString &name, const QString &value);
void Put_Setting(const QString &subKey, const QString &name, const char *value);
void Put_Setting(const QString &subKey, const QString &name, int value);
void Put_Setting(const QString &subKey, const QString &name, bool value);

} // namespace tf
