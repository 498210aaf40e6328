#pragma once
// The name of an option control as its panel writes it: "XFill", or "txtMondrian" with its index.

#include <QString>
#include <optional>

namespace tf {

// A control's name and, for a control array, its index (-1 when it is no array).
struct ControlKey {
    QString name;
    int index = -1;

    bool operator==(const ControlKey &o) const { return index == o.index && name == o.name; }
    bool operator<(const ControlKey &o) const
    {
        const int c = name.compare(o.name);
        return c != 0 ? c < 0 : index < o.index;
    }
    // "txtMondrian(2)" or "XFill".
    QString toString() const;
    // Parses "name" or "name(i)"; nullopt when malformed.
    static std::optional<ControlKey> parse(const QString &text);
};

// The key of a control as the panel tables write it: name and index (-1 for none).
ControlKey controlKey(const char *name, int index = -1);

} // namespace tf
