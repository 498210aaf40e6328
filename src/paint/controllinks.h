#pragma once
// Links between the controls of a panel, as data beside the controls themselves.
//
// Two kinds, both written in the panel's table:
//   - `enabledOnlyWith`: a control is enabled only while a condition on other controls holds
//     ("Unterteilung harmonisch" only with "Unterteilung verwenden"). A disabled control keeps
//     the value it holds, but what the engine reads from it is its value at rest: off for a
//     check box, the default for every other kind. So a painter, the command line and a recipe
//     all see the rule hold without applying it themselves.
//   - `setsWhen`: a change that makes a condition hold sets other controls ("Alle Rahmen
//     zeichnen" switching "Ränder" on). The rule fires on a user's change, on --set and on a
//     recipe's values alike, never when a painter writes a field as it stands.
//
// A condition is a list of clauses that must all hold; a clause holds when one of its tests
// does; a test holds while a control's value is one of a few whole numbers (a check box 0 or 1,
// the index of a list). A condition reads the values as the engine reads them, so a link can
// hang on a control that is itself disabled (the Boogie's four colours on " 4 Farben ", which
// only the Boogie types enable).

#include "paint/controlkey.h"

#include <QString>
#include <functional>
#include <vector>

namespace tf {

// A control's value is one of `values`.
struct ValueTest {
    ControlKey key;
    std::vector<int> values;
};

// Holds when one of its tests holds.
struct LinkClause {
    std::vector<ValueTest> anyOf;
    LinkClause(ValueTest test) : anyOf{std::move(test)} {} // NOLINT: a test is a clause of one
    explicit LinkClause(std::vector<ValueTest> tests) : anyOf(std::move(tests)) {}
};

enum class LinkKind {
    EnabledOnlyWith, // the targets are enabled only while the condition holds
    SetsWhen,        // a change of a tested control that makes the condition hold sets the targets
};

struct ControlLink {
    LinkKind kind = LinkKind::EnabledOnlyWith;
    std::vector<ControlKey> targets;
    std::vector<LinkClause> when; // every clause holds
    QString value;                // SetsWhen: the value the targets are given

    // Whether `key` is one of the controls the condition reads.
    bool tests(const ControlKey &key) const;
    // Whether the condition holds over the values `read` answers.
    bool holds(const std::function<int(const ControlKey &)> &read) const;
    // The rule in words of the current language, for listings: "nur mit XMondrian(2) = 1".
    QString describe() const;
};

// The builders the panel tables use.
ValueTest valueIn(const char *name, int index, std::vector<int> values);
ValueTest isOn(const char *name, int index = -1);
ValueTest isOff(const char *name, int index = -1);
LinkClause anyOf(std::vector<ValueTest> tests);
ControlLink enabledOnlyWith(std::vector<ControlKey> targets, std::vector<LinkClause> when);
ControlLink setsWhen(ValueTest trigger, std::vector<ControlKey> targets, const char *value);

} // namespace tf
