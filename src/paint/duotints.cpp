// The tints: 25 colours in which one or two channels rise from a random start while the
// others stay constant, in one of twelve channel patterns.
#include "paint/duotable_p.h"

namespace tf {

namespace {

// Per pattern, the source of red, green and blue: t the rising value, c the tint's constant,
// k the fixed second constant, u and w the two fixed values of the last pattern.
constexpr const char *tintPatterns[12] = {
    "tcc", "ctc", "cct", "ttc", "tct", "ttt", "tkk", "ktk", "kkt", "ttk", "tkt", "utw",
};

struct Tint {
    int a;   // the start of the rising value
    int c;
    int k;
    int u, w;
    int dir = 1;
};

void paintTint(TableBuild &b, int tint, const Tint &p)
{
    b.filled = 25;
    const char *pattern = tintPatterns[tint - 1];
    for (int i = 1; i <= 25; ++i) {
        const int t = p.a + p.dir * i * 4;
        int rgb[3];
        for (int ch = 0; ch < 3; ++ch) {
            switch (pattern[ch]) {
            case 't': rgb[ch] = t; break;
            case 'c': rgb[ch] = p.c; break;
            case 'k': rgb[ch] = p.k; break;
            case 'u': rgb[ch] = p.u; break;
            default: rgb[ch] = p.w; break;
            }
        }
        b.at(i) = RGB(rgb[0], rgb[1], rgb[2]);
    }
}

} // namespace

void Tint1(TableBuild &b, int tint, int dir)
{
    const int a = b.rndInt(50) + 101;
    paintTint(b, tint, Tint{a, 255 - a, 64, 255, 64, dir});
}

void Tint2(TableBuild &b, int tint)
{
    const int a = b.rndInt(101) + 50;
    paintTint(b, tint, Tint{a, 255 - a, 128, 128, 255});
}

void Tint3(TableBuild &b, int tint)
{
    const int a = b.rndInt(61) + 90;
    const int c = b.rndInt(85) + 170;
    paintTint(b, tint, Tint{a, c, 128, 255, 128});
}

void Tint4(TableBuild &b, int tint)
{
    const int a = b.rndInt(31) + 120;
    const int c = b.rndInt(33) + 222;
    paintTint(b, tint, Tint{a, c, 128, 255, 128});
}

} // namespace tf
