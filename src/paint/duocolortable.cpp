#include "paint/duocolortable.h"

#include "core/fault.h"
#include "paint/duotable_p.h"
#include "paint/session.h"

#include <cstdlib>

namespace tf {

namespace {

ColorLong paletteAt(const ColourState &c, int i)
{
    if (i < 0 || size_t(i) >= c.Pal256.size())
        throw Fault(Fault::SubscriptOutOfRange);
    return c.Pal256[size_t(i)];
}

void buildSpirale(TableBuild &b)
{
    rampSetUp(b);
    if (b.whites == 1)
        AddWhites(b);
}

void buildKachelMix(TableBuild &b)
{
    rampSetUp(b);
    if (b.whites != 1)
        return;
    for (int i = 1; i <= b.n; ++i) {
        // The draw is made for every cell, also when keep_white spares it.
        const bool hole = Mod(b.rndInt(b.n), 3) == 0;
        if (hole && !b.keep_white)
            b.at(i) = NoColour;
    }
}

void buildMyPicPalette(TableBuild &b)
{
    if (b.c.Pal256.size() <= 2)
        return;
    b.filled = 25;
    for (int i = 1; i <= 25; ++i)
        b.at(i) = paletteAt(b.c, (i - 1) * 10 + 5);
}

void buildMondrian(TableBuild &b)
{
    const int tint = b.rndInt(12) + 1;
    const int dir = b.rndInt(2) == 0 ? 1 : -1;
    const int part = b.rndInt(2) + 1;
    if (part == 1)
        Tint1(b, tint, dir);
    else
        Tint2(b, tint);
    if (b.whites == 1)
        AddWhites(b);
}

void buildLeadGlass(TableBuild &b)
{
    const int tint = b.rndInt(12) + 1;
    const int part = b.rndInt(2) + 1;
    if (part == 1)
        Tint3(b, tint);
    else
        Tint4(b, tint);
    if (b.whites == 1)
        AddWhites(b);
}

void buildRandomTable(TableBuild &b)
{
    for (int i = 0; i <= b.n; ++i)
        b.at(i) = Pick_RandomColor(b.s);
}

void buildRandomText(TableBuild &b)
{
    RandomSetText(b);
    if (b.whites == 1)
        AddWhites(b);
}

struct DuoScheme {
    const char *name;
    void (*build)(TableBuild &);
    // Recolouring from the palette or the two colours may follow the scheme.
    bool recolours = true;
};

const DuoScheme duoSchemes[] = {
    {"Spirale", buildSpirale},
    {"KachelMix", buildKachelMix},
    {"DuoMyPicPalette", buildMyPicPalette},
    {"DuoMondrian", buildMondrian},
    {"DuoMLeadGlass", buildLeadGlass},
    {"RandomMondrian", RandomSetA},
    {"RandomMLeadGlass", RandomSetB},
    {"RandomTableSet", buildRandomTable},
    {"RandomMondrianText", buildRandomText},
    {"MondrianColors", ClassicSet},
    {"MondrianColorsNoWhite", ClassicSetNoWhite, false},
};

const DuoScheme *findScheme(const QString &name)
{
    for (const DuoScheme &scheme : duoSchemes)
        if (name == QLatin1String(scheme.name))
            return &scheme;
    return nullptr;
}

void buildTable(Session &s, int whites, bool keep_white, const QString &scheme, int16_t &cols,
                int16_t &rows)
{
    if (cols <= 0)
        cols = 25;
    if (rows <= 0)
        rows = 25;
    const int n = checkedMul<int16_t>(cols, rows);
    ColourState &c = s.colours();
    c.DuoColors.assign(size_t(n) + 1, 0);
    TableBuild b{s, c, c.DuoColors, n, whites, keep_white};

    const DuoScheme *found = findScheme(scheme);
    if (found)
        found->build(b);
    if (!found || found->recolours) {
        if (!c.RandomColors && c.XDuotones[1]) {
            if (c.XLockPalette)
                c.PalFromFile = true;
            DuoFromColors(b);
        }
    }
    if (b.filled == 25 && n > 25)
        for (int i = 26; i <= n; ++i)
            b.cells[size_t(i)] = b.cells[size_t(i % 25)];
}

// A channel of a ramp step, rounded and kept to 0..255.
int clampedChannel(double v)
{
    const int x = CLng(v);
    return x < 0 ? 0 : (x > 255 ? 255 : x);
}

} // namespace

ColorLong &TableBuild::at(int i)
{
    if (i < 0 || size_t(i) >= cells.size())
        throw Fault(Fault::SubscriptOutOfRange);
    return cells[size_t(i)];
}

Single TableBuild::rnd() { return s.Rnd(); }

int TableBuild::rndInt(int range) { return int(Int(double(rnd() * Single(range)))); }

int TableBuild::w(int a, int b)
{
    const Single scaled = rnd() * Single(a);
    return CLng(double(scaled + Single(b)));
}

ColorLong TableBuild::white() const { return keep_white ? ColorLong(0xFFFFFF) : NoColour; }

void DuoFromColors(TableBuild &b)
{
    const ColourState &c = b.c;
    if (c.Pal256.size() > 2 && c.PalFromFile) {
        const Single k = CSng(256.0 / b.n);
        for (int i = 1; i <= b.n; ++i) {
            const int j = clampedChannel(double(k * Single(i)));
            if (b.at(i) != NoColour)
                b.at(i) = paletteAt(c, j);
        }
        return;
    }
    const ColorLong from = c.ColorFore, to = c.ColorBack;
    const int d = b.n == 0 ? 1 : b.n;
    // A channel's step per cell, towards the second colour.
    auto step = [d](int first, int second) {
        const Single st = CSng(double(std::abs(first - second)) / d);
        return second < first ? -st : st;
    };
    const Single dr = step(RedOf(from), RedOf(to));
    const Single dg = step(GreenOf(from), GreenOf(to));
    const Single db = step(BlueOf(from), BlueOf(to));
    for (int i = 1; i <= b.n; ++i) {
        const int red = clampedChannel(double(dr * Single(i) + Single(RedOf(from))));
        const int green = clampedChannel(double(dg * Single(i) + Single(GreenOf(from))));
        const int blue = clampedChannel(double(db * Single(i) + Single(BlueOf(from))));
        if (b.at(i) != NoColour)
            b.at(i) = RGB(red, green, blue);
    }
}

void Set_Duo_Colortable(Session &s, int whites, bool keep_white, const QString &scheme,
                        int16_t &cols, int16_t &rows)
{
    guarded(QStringLiteral("Set_Duo_Colortable"),
            [&] { buildTable(s, whites, keep_white, scheme, cols, rows); });
}

void Set_Duo_Colortable(Session &s, int whites, bool keep_white, const QString &scheme,
                        int cols, int rows)
{
    guarded(QStringLiteral("Set_Duo_Colortable"), [&] {
        int16_t c = CInt(cols), r = CInt(rows);
        buildTable(s, whites, keep_white, scheme, c, r);
    });
}

QStringList duoSchemeNames()
{
    QStringList names;
    for (const DuoScheme &scheme : duoSchemes)
        names << QLatin1String(scheme.name);
    return names;
}

ColorPair colorPairRule(Session &s, bool use_duos, ColorLong duocolo1, ColorLong duocolo2)
{
    ColorPair p;
    const ColourState &c = s.colours();
    if (c.RandomColors) {
        p.start = Pick_RandomColor(s);
        p.end = Pick_RandomColor(s);
    } else if (use_duos) {
        p.start = duocolo1;
        p.end = duocolo2;
    } else {
        p.start = c.ColorFore;
        p.end = c.ColorBack;
    }
    p.r1 = RedOf(p.start);
    p.g1 = GreenOf(p.start);
    p.b1 = BlueOf(p.start);
    p.r2 = RedOf(p.end);
    p.g2 = GreenOf(p.end);
    p.b2 = BlueOf(p.end);
    return p;
}

std::optional<ColorLong> duoCell(const ColourState &c, int i)
{
    if (i < 0 || size_t(i) >= c.DuoColors.size())
        throw Fault(Fault::SubscriptOutOfRange);
    const ColorLong cell = c.DuoColors[size_t(i)];
    if (cell == NoColour)
        return std::nullopt;
    return cell;
}

} // namespace tf
