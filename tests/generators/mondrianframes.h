#pragma once
// The Mondrian painters' tests compare layouts by their rectangles alone.
#include "generators/mondrianlayout.h"

#include <vector>

namespace tf::test {

inline bool sameFrames(const std::vector<MondrianFrame> &a, const std::vector<MondrianFrame> &b)
{
    if (a.size() != b.size())
        return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (a[i].left != b[i].left || a[i].top != b[i].top || a[i].right != b[i].right ||
            a[i].bottom != b[i].bottom)
            return false;
    return true;
}

} // namespace tf::test
