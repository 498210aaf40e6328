#pragma once
// The types that animate, one table from type key to the maker of their animation: what
// "Animation speichern..." and `tarvelle-forge animate` can write.

#include "paint/animation.h"

#include <QString>
#include <memory>
#include <span>

namespace tf {

class Session;

// Makes the animation of a type for a picture of `width` x `height` from the session's panels
// and colours (drawing from its random generator).
using AnimationMaker = std::unique_ptr<Animation> (*)(Session &s, int width, int height);

struct AnimationEntry {
    const char *key;
    AnimationMaker make;
};

std::span<const AnimationEntry> animationTable();
// The entry of a key; null when the type does not animate.
const AnimationEntry *findAnimation(const QString &key);

} // namespace tf
