#pragma once
// The ten graphics groups of the paint dialog, by number 1..10.

#include <array>

namespace tf {

constexpr int GroupCount = 10;

// The group's title as a German source text of the "Groups" context ("&&" shows as one "&").
const char *groupTitle(int group);

} // namespace tf
