// The 25-colour sets of cells 0..25: three random sets for text, Mondrian and lead glass
// pictures, and the two classic sets of primaries and greys.
#include "paint/duocolortable.h"
#include "paint/duotable_p.h"

namespace tf {

namespace {

constexpr ColorLong White = 0xFFFFFF;

ColorLong grey(int v) { return RGB(v, v, v); }

// How the three random sets differ; the draws come in the order of the cells.
struct RandomSetShape {
    // The text set: cells 0, 1, 2, 17, 18, 21, 23 white and cells 19, 22, 24 colours. The other
    // sets copy cell 0 (white or NoColour by keep_white) into all of them.
    bool text;
    int z;                // the constant channel of cells 3, 4, 5, 13, 14
    int grey6a, grey6b;   // cell 6: grey w(a, b)
    int grey7a, grey7b;   // cell 7
    int low;              // the lower bound of the wide draws of cells 15 and 16
    int green1516;        // the green of cells 15 and 16; -1: 255 minus the red
    int (*grey20)(TableBuild &);
    ColorLong (*cell25)(TableBuild &);
};

// A colour from two draws of Rnd * 180 + base: the first gives red and blue, the second green.
ColorLong twoDrawColour(TableBuild &b, int base)
{
    const int p = b.w(180, base);
    const int q = b.w(180, base);
    return RGB(p, q, p);
}

void randomSet(TableBuild &b, const RandomSetShape &shape)
{
    const ColorLong blank = shape.text ? White : b.white();
    const int z = shape.z;
    auto green1516 = [&shape](int red) { return shape.green1516 < 0 ? 255 - red : shape.green1516; };
    int x = 0, y = 0;

    b.at(0) = b.at(1) = b.at(2) = blank;
    b.at(3) = RGB(b.w(55, 190), z, z);
    x = b.w(55, 190);
    b.at(4) = RGB(x, x, z);
    b.at(5) = RGB(z, z, b.w(55, 190));
    b.at(6) = grey(b.w(shape.grey6a, shape.grey6b));
    b.at(7) = grey(b.w(shape.grey7a, shape.grey7b));
    x = b.w(155, 100);
    b.at(8) = RGB(x, 255 - x, 255 - x);
    x = b.w(155, 100);
    b.at(9) = RGB(x, x, 255 - x);
    x = b.w(155, 100);
    b.at(10) = RGB(255 - x, 255 - x, x);
    x = b.w(55, 190);
    b.at(11) = RGB(255 - x, x, 255 - x);
    x = b.w(155, 100);
    b.at(12) = RGB(255 - x, x, 255 - x);
    x = b.w(55, 190);
    y = b.w(155, 100);
    b.at(13) = RGB(x, y, z);
    x = b.w(155, 100);
    y = b.w(55, 190);
    b.at(14) = RGB(x, y, z);
    x = b.w(55, 190);
    y = b.w(155, shape.low);
    b.at(15) = RGB(x, green1516(x), y);
    x = b.w(155, shape.low);
    y = b.w(55, 190);
    b.at(16) = RGB(x, green1516(x), y);
    b.at(17) = b.at(18) = blank;
    b.at(19) = shape.text ? twoDrawColour(b, 40) : blank;
    b.at(20) = grey(shape.grey20(b));
    b.at(21) = blank;
    b.at(22) = shape.text ? twoDrawColour(b, 20) : blank;
    b.at(23) = blank;
    b.at(24) = shape.text ? twoDrawColour(b, 20) : blank;
    b.at(25) = shape.cell25(b);
    b.filled = 25;
}

} // namespace

void RandomSetText(TableBuild &b)
{
    randomSet(b, RandomSetShape{
                     true, 0, 55, 180, 100, 90, 90, -1,
                     [](TableBuild &t) { return t.w(200, 0) + 20; },
                     [](TableBuild &t) {
                         const int x = t.w(200, 0);
                         return RGB(x + 20, 200 - x + 20, 200 - x + 20);
                     },
                 });
}

void RandomSetA(TableBuild &b)
{
    randomSet(b, RandomSetShape{
                     false, 0, 55, 200, 155, 100, 100, -1,
                     [](TableBuild &t) { return t.rndInt(212) + 24; },
                     [](TableBuild &t) { return grey(t.w(256, 0)); },
                 });
}

void RandomSetB(TableBuild &b)
{
    randomSet(b, RandomSetShape{
                     false, 128, 55, 200, 155, 100, 100, 128,
                     [](TableBuild &t) { return t.rndInt(56) + 200; },
                     [](TableBuild &t) { return grey(t.rndInt(66) + 190); },
                 });
}

void ClassicSet(TableBuild &b)
{
    const ColorLong blank = b.white();
    for (int i : {0, 1, 6, 7, 12, 13, 14, 15, 16, 19, 20, 21, 22, 23, 24, 25})
        b.at(i) = blank;
    b.at(2) = b.at(8) = RGB(255, 0, 0);
    b.at(3) = b.at(9) = RGB(255, 255, 0);
    b.at(4) = b.at(10) = RGB(0, 0, 255);
    b.at(5) = grey(b.w(26, 220));
    b.at(11) = grey(24);
    b.at(17) = grey(b.w(26, 190));
    b.at(18) = grey(b.w(26, 180));
    b.filled = 25;
}

void ClassicSetNoWhite(TableBuild &b)
{
    const ColorLong red = RGB(255, 0, 0), yellow = RGB(255, 255, 0), blue = RGB(0, 0, 255);
    b.at(0) = RGB(255, b.w(55, 200), 0);
    b.at(1) = b.at(0);
    b.at(2) = red;
    b.at(3) = yellow;
    b.at(4) = blue;
    b.at(5) = grey(b.w(26, 220));
    b.at(6) = b.at(7) = RGB(255, b.w(55, 200), 0);
    b.at(8) = red;
    b.at(9) = yellow;
    b.at(10) = blue;
    b.at(11) = grey(24);
    b.at(12) = RGB(0, b.w(155, 0), 255);
    // Cell 13 keeps what it had: 0.
    b.at(14) = b.at(0);
    b.at(15) = RGB(255, b.w(55, 170), 0);
    b.at(16) = RGB(255, b.w(55, 170), 0);
    b.at(17) = grey(b.w(26, 190));
    b.at(18) = grey(b.w(26, 180));
    b.at(19) = b.at(0);
    b.at(20) = red;
    b.at(21) = yellow;
    b.at(22) = blue;
    b.at(23) = RGB(0, b.w(128, 0), 255);
    b.at(24) = red;
    b.at(25) = yellow;
    b.filled = 25;
}

} // namespace tf
