#pragma once
// The option-control model: every control that painters, filters and tools read.
//
// A control is named as on its panel ("cmbPen", "txtMondrian" with index 2, "XFill") and has a
// kind, a caption in both languages, a default, and the normalising rule the control applies
// when its value changes (a split count below 2 is rewritten as "2"). The definitions are data:
// one `ControlPanel` table per option panel. The GUI builds its widgets from them, the command
// line sets values with --set, tests set them directly, and `controls TYPE` lists them.
//
// Values are held as the control would hold them: text for text fields, a number for check
// boxes (0/1), scroll bars, list indices and colours. Captions and list items are German
// source texts of the "Controls" translation context (write them with QT_TRANSLATE_NOOP), so
// the catalogues translate them like every other text.


#include <QString>
#include <QStringList>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace tf {

enum class ControlKind {
    Text,      // a text field: the value is its text
    Value,     // a scroll bar or spin value: an integer in [min, max]
    Checked,   // a check box: 0 or 1
    ListIndex, // a list or combo box: the index of the chosen item, -1 none
    Colour,    // a colour field: a colour long
};

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

struct ControlSpec {
    ControlKey key;
    ControlKind kind = ControlKind::Text;
    const char *caption = "";        // German source text
    QString defaultValue;            // as text: "2", "1", "Hallo", "16777215"
    int min = 0;                     // range of Value, ListIndex and numeric Text controls
    int max = 0;                     // max < min: no range
    std::vector<const char *> items; // the list of a ListIndex control, German source texts
    const char *unit = "";           // shown behind a Value control's number (" %")
    // Rewrites a value as the control does on change (e.g. clamps to its range); the default
    // rule clamps numbers into [min, max] when a range is given.
    std::function<QString(const QString &)> normalise;

    // Caption and items in the current language.
    QString translatedCaption() const;
    QStringList translatedItems() const;
    bool hasRange() const { return max >= min; }
};

class Session;
enum class PaintOutcome;

// A button of an option panel that runs a command of the engine ("Repaint letztes Set"): its
// name, its caption (a German source text of the "Controls" context) and the routine. The
// window runs it only while nothing runs, as every handler.
struct PanelAction {
    const char *name;    // "BtnMondrian_Repaint"
    const char *caption;
    PaintOutcome (*run)(Session &);
};

// One option panel: its name, its caption, its controls and its buttons.
struct ControlPanel {
    QString name;            // "feat_01Mondrian", "frmGrafDialog"
    const char *caption = ""; // German source text of the "Controls" context
    std::vector<ControlSpec> controls;
    std::vector<PanelAction> actions = {};
};

// A control's definition as the panel tables write it: name and index (-1 for none), kind,
// caption (a German source text of the "Controls" context), default, range (max < min: none),
// list items and unit.
ControlSpec controlSpec(const char *name, int index, ControlKind kind, const char *caption,
                        const char *defaultValue, int min = 0, int max = -1,
                        std::vector<const char *> items = {}, const char *unit = "");

// The panels known to the program, in the order the GUI shows them. Each family registers its
// panel table here once, at start, through `registerControlPanel`.
const std::vector<const ControlPanel *> &controlPanels();
void registerControlPanel(const ControlPanel *panel);
// The definition of a control, searched over all panels; null when unknown.
const ControlSpec *findControlSpec(const ControlKey &key);

// Applies a control's normalising rule (or the default clamp) to a value. Answers nullopt when the
// value does not fit the kind at all (text where a number belongs, an unknown list item).
std::optional<QString> normaliseValue(const ControlSpec &def, const QString &value);

// What the panels that show the controls are told.
class ControlsView {
public:
    virtual ~ControlsView() = default;
    // A control's value changed.
    virtual void controlChanged(const ControlKey &) {}
};

// The live values of all controls of a session.
class Controls {
public:
    // Every registered control at its default.
    Controls();

    // Back to the defaults of every registered panel.
    void resetToDefaults();
    // Adds the defaults of a panel registered after construction (idempotent).
    void addDefaults(const ControlPanel &panel);

    // Sets a value through the control's normalising rule, as a user's change would.
    // Answers false (and changes nothing) for an unknown control or an unfitting value.
    bool set(const ControlKey &key, const QString &value);
    // Sets a value as it stands, without the rule (what a painter does when it writes a field).
    void setRaw(const ControlKey &key, const QString &value);

    bool has(const ControlKey &key) const { return m_values.count(key) != 0; }
    QString text(const ControlKey &key) const;
    // The value as a number: Val() of the text for text fields (leading number, else 0).
    double number(const ControlKey &key) const;
    int value(const ControlKey &key) const;
    bool checked(const ControlKey &key) const { return value(key) != 0; }
    int listIndex(const ControlKey &key) const { return value(key); }

    // Convenience for unindexed names.
    QString text(const QString &name) const { return text(ControlKey{name}); }
    int value(const QString &name) const { return value(ControlKey{name}); }
    bool checked(const QString &name) const { return checked(ControlKey{name}); }

    // The controls whose value differs from their default (for presets and command lines).
    std::vector<std::pair<ControlKey, QString>> changed() const;

    // The panels that show the values (borrowed; null: none), told after every change.
    void setView(ControlsView *view) { m_view = view; }

private:
    std::map<ControlKey, QString> m_values;
    ControlsView *m_view = nullptr;
};

// The classic Val(): the leading number of a text, 0 when there is none.
double Val(const QString &text);

} // namespace tf
