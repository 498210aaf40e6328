#include "generators/animations.h"

#include "generators/tunnel.h"

namespace tf {

namespace {

std::unique_ptr<Animation> plasmaTunnel(Session &s, int width, int height)
{
    return makeTunnel(s, width, height);
}

} // namespace

std::span<const AnimationEntry> animationTable()
{
    static constexpr AnimationEntry table[] = {
        {"Plasma", plasmaTunnel},
    };
    return table;
}

const AnimationEntry *findAnimation(const QString &key)
{
    for (const AnimationEntry &e : animationTable())
        if (key == QString::fromUtf8(e.key)) return &e;
    return nullptr;
}

} // namespace tf
