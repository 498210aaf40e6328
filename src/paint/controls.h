#pragma once
// The option-control model: every control that painters, filters and tools read.
//
// A control is named as on its panel ("cmbPen", "txtMondrian" with index 2, "XFill") and has a
// kind, a caption in both languages, a default, and the normalising rule the control applies
// when its value changes (a split count below 2 is rewritten as "2"). The definitions are data:
// one `ControlPanel` table per option panel. The GUI builds its widgets from them, the command
// line sets values with --set, tests set them directly, and `controls TYPE` lists them.
// A panel's links (controllinks.h) say which controls are enabled only with others and which
// change sets another; `Controls` applies them to every change and every read.
//
// Values are held as the control would hold them: text for text fields, a number for check
// boxes (0/1), scroll bars, list indices and colours. Captions and list items are German
// source texts of the "Controls" translation context (write them with QT_TRANSLATE_NOOP), so
// the catalogues translate them like every other text.


#include "paint/controlkey.h"
#include "paint/controllinks.h"

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

// One option panel: its name, its caption, its controls, its buttons and the links between its
// controls (a link may name a control of another panel, as "XBorders" of the paint dialog).
struct ControlPanel {
    QString name;            // "feat_01Mondrian", "frmGrafDialog"
    const char *caption = ""; // German source text of the "Controls" context
    std::vector<ControlSpec> controls;
    std::vector<PanelAction> actions = {};
    std::vector<ControlLink> links = {};
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

    // Sets a value through the control's normalising rule, as a user's change would, and then
    // the controls that the change sets by a link. Answers false (and changes nothing) for an
    // unknown control or an unfitting value. A disabled control takes the value all the same
    // (and keeps it), but is read at rest until it is enabled.
    bool set(const ControlKey &key, const QString &value);
    // Sets a value as it stands, without the rule and without links (what a painter does when
    // it writes a field).
    void setRaw(const ControlKey &key, const QString &value);

    bool has(const ControlKey &key) const { return m_values.count(key) != 0; }
    // Whether every link that enables the control holds.
    bool enabled(const ControlKey &key) const;
    // The value the control holds, enabled or not (what its widget shows).
    QString stored(const ControlKey &key) const;
    // The links of the registered panels that enable `key`, and those whose condition reads it.
    const std::vector<const ControlLink *> &linksEnabling(const ControlKey &key) const;
    const std::vector<const ControlLink *> &linksReading(const ControlKey &key) const;

    // The value as the engine reads it: the stored value of an enabled control; a disabled
    // control at rest (a check box off, any other control its default).
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

    // The controls whose stored value differs from their default (for presets and command
    // lines), in an order that gives the same values back when they are set one after another:
    // the controls that set others by a link first, and a control such a change would set
    // last, at its value, even when that is its default.
    std::vector<std::pair<ControlKey, QString>> changed() const;

    // The panels that show the values (borrowed; null: none), told after every change.
    void setView(ControlsView *view) { m_view = view; }

private:
    QString readAt(const ControlKey &key, int depth) const;
    bool enabledAt(const ControlKey &key, int depth) const;
    void applyLinks(const ControlKey &changed, int depth);
    bool setAt(const ControlKey &key, const QString &value, int depth);

    std::map<ControlKey, QString> m_values;
    std::map<ControlKey, std::vector<const ControlLink *>> m_enabling; // target -> links
    std::map<ControlKey, std::vector<const ControlLink *>> m_reading;  // tested control -> links
    std::vector<const ControlPanel *> m_linked;                        // panels indexed
    ControlsView *m_view = nullptr;
};

// The classic Val(): the leading number of a text, 0 when there is none.
double Val(const QString &text);

} // namespace tf
