#include "filters/mirrors.h"

#include "core/blit.h"
#include "core/numeric.h"
#include "filters/filtercommand.h"

namespace tf {

namespace {

// StretchBlt of `picture` onto itself (the call reads the source as it stood before), with the
// graphics call's arguments given as the menu handlers reckon them and rounded to whole
// numbers on the way in.
void stretchOnto(QImage &picture, double x, double y, double w, double h, double sx, double sy,
                 double sw, double sh)
{
    DeviceContext dc(&picture, false);
    StretchBlt(dc, CLng(x), CLng(y), CLng(w), CLng(h), dc, CLng(sx), CLng(sy), CLng(sw), CLng(sh),
               SRCCOPY);
}

} // namespace

void mirrorLeftRight(QImage &picture)
{
    const double W = picture.width(), H = picture.height();
    stretchOnto(picture, 0, 0, W, H, W - 1, 0, -W, H);
}

void mirrorTopBottom(QImage &picture)
{
    const double W = picture.width(), H = picture.height();
    stretchOnto(picture, 0, 0, W, H, 0, H - 1, W, -H);
}

void halfMirror(QImage &picture, HalfMirror which)
{
    const double W = picture.width(), H = picture.height();
    const int index = int(which);
    // The prismatic mirror passes through the branches of index 0 and 2 in turn.
    if (index == 0 || index == 5) stretchOnto(picture, W / 2, 0, W / 2, H, W / 2 - 1, 0, -W / 2, H);
    if (index == 1) stretchOnto(picture, 0, 0, W / 2, H, W - 1, 0, -W / 2, H);
    if (index == 2 || index == 5) stretchOnto(picture, 0, H / 2, W, H / 2, 0, H / 2 - 1, W, -H / 2);
    if (index == 3) stretchOnto(picture, 0, 0, W, H / 2, 0, H - 1, W, -H / 2);
}

bool mn_MirrorV(Session &s)
{
    return runOnTarget(s, chooseFilterTarget(s), QStringLiteral("mn_MirrorV"), mirrorLeftRight);
}

bool mn_MirrorH(Session &s)
{
    return runOnTarget(s, chooseFilterTarget(s), QStringLiteral("mn_MirrorH"), mirrorTopBottom);
}

bool mn_KlappH(Session &s, int index)
{
    if (index < 0 || index > 5 || index == 4) return false;
    return runOnTarget(s, chooseFilterTarget(s), QStringLiteral("mn_KlappH"),
                       [index](QImage &p) { halfMirror(p, HalfMirror(index)); });
}

} // namespace tf
