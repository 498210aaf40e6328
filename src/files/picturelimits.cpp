#include "files/picturelimits.h"

#include "core/numeric.h"

#include <algorithm>

namespace tf {

bool takenWhole(int w, int h)
{
    return qint64(w) * qint64(h) < qint64(BildMaxPixels) + 1;
}

void Fit_Into_Box(int width, int height, int maxW, int maxH, int &resultW, int &resultH)
{
    if (width <= maxW && height <= maxH) {
        resultW = width;
        resultH = height;
        return;
    }
    const float r1 = float(maxW) / float(width);
    const float r2 = float(maxH) / float(height);
    if (r1 >= r2) {
        resultH = maxH;
        resultW = std::max(1, int(CLng(double(r2) * width)));
    } else {
        resultW = maxW;
        resultH = std::max(1, int(CLng(double(r1) * height)));
    }
}

QSize fitIntoBox(QSize size, QSize box)
{
    int w = 0, h = 0;
    Fit_Into_Box(size.width(), size.height(), box.width(), box.height(), w, h);
    return {w, h};
}

} // namespace tf
