#include "generators/mondrianlayout.h"

#include "core/fault.h"
#include "paint/mondriantables.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace tf {

namespace {

const QString LayoutTag = QStringLiteral("CreateArr_Mondrian_Splits");

int32_t rounded(double x)
{
    return CLng(x);
}

// An edge held between the part's start and the end of what is divided: many narrow parts
// rounded one after another would otherwise carry the last ones past the cell's edge, where
// they would overlap the neighbour.
int32_t inside(int32_t edge, int32_t start, int32_t end)
{
    return start <= end ? std::clamp(edge, start, end) : edge;
}

Single single(double x)
{
    return static_cast<Single>(x);
}

// One direction of the layout: columns (x, H, ArrCellH) or rows (y, V, ArrCellV). The tables
// are addressed through `cell(field, i)` so that the same steps serve both.
struct Direction {
    Table3 &cells;    // ArrCellH or ArrCellV
    bool columns;     // true: index (field, i, 0); false: (field, 0, i)
    int16_t count;    // H or V
    int32_t length;   // MondrianW or MondrianH
    int16_t sym;
    int16_t units;

    int32_t &cell(int field, int i) { return columns ? cells(field, i, 0) : cells(field, 0, i); }
};

// The columns (or rows) of the first row (column): steps 2 and 3 of the layout.
void layOut(Session &s, Direction d, const MondrianSplitArgs &a, double &maxLen)
{
    MondrianTables &t = s.mondrian();
    const bool boogie = a.Mode == MondrianBoogie;
    d.cell(0, 0) = 0;
    d.cell(2, 0) = 1;
    double w = 0;
    if (d.sym == 1) {
        if (boogie) {
            w = Int(double(d.units) * double(a.Unit));
            d.cell(1, 0) = inside(rounded(w - double(a.Unit)), 0, d.length);
        } else {
            w = double(d.length - a.Pen) / double(d.count);
            d.cell(1, 0) = inside(rounded(w), 0, d.length);
        }
    } else {
        int32_t out = 0;
        LadeArr_Asym_Mondrian(s, d.count, d.length - a.Pen + 1, out, a.Mode, a.Unit, 0);
        w = double(t.ArrAsym.at(1));
        d.cell(1, 0) = inside(boogie ? rounded(w - double(a.Unit)) : rounded(w), 0, d.length);
    }
    for (int i = 1; i <= d.count - 1; ++i) {
        if (d.sym != 1)
            w = double(t.ArrAsym.at(size_t(i + 1)));
        maxLen = Max(maxLen, w);
        const int32_t left = d.cell(1, i - 1);
        d.cell(0, i) = left;
        d.cell(1, i) = inside(rounded(w + double(left)), left, d.length);
        d.cell(2, i) = 1;
    }
    d.cell(1, d.count - 1) = d.length;
}

// Whether the pass subdivides row (column) `i` after drawing P.
bool chosen(int32_t mode, int16_t p, int16_t count, int i)
{
    if (mode == MondrianBePop || mode == MondrianBoogie)
        return double(p) >= double(count) / 2.0 || p == i;
    return Mod(int32_t(p), 2) == 0;
}

// The sub-frames of one cell along one direction: steps 4 to 7 of a subdivision. `put(field,
// k)` addresses the sub-frame table along the cut (ArrSubH(f,k,r) or ArrSubV(f,c,k)), `across`
// the table of the other coordinate; `start`, `end` are the cell's edges along the cut.
template <typename Put, typename Across>
void cutCell(Session &s, const MondrianSplitArgs &a, int16_t sym, int32_t seed, int n,
             int32_t start, int32_t end, int32_t len, Put put, Across across)
{
    MondrianTables &t = s.mondrian();
    const bool boogie = a.Mode == MondrianBoogie;
    put(0, 0) = start;
    put(2, 0) = n;
    across(0);
    int32_t cnt = n;
    double part = 0;
    if (sym == 1) {
        if (boogie) {
            part = 2.0 * double(a.Unit);
            if (start > 0) {
                put(1, 0) = inside(rounded(part + double(start)), start, end);
            } else {
                start = rounded(double(a.Unit) + double(start));
                put(0, 0) = start;
                put(1, 0) = start;
            }
        } else {
            part = double(len - a.Pen) / double(n);
            put(1, 0) = inside(rounded(part + double(start)), start, end);
        }
    } else {
        LadeArr_Asym_Mondrian(s, int16_t(n), len - a.Pen + 1, cnt, a.Mode, a.Unit, seed);
        part = double(t.ArrAsym.at(1));
        put(1, 0) = inside(rounded(part + double(start)), start, end);
    }
    for (int k = 1; k <= n - 1; ++k) {
        if (sym != 1)
            part = double(t.ArrAsym.at(size_t(k + 1)));
        put(0, k) = put(1, k - 1);
        put(1, k) = inside(rounded(part + double(put(0, k))), put(0, k), end);
        put(2, k) = cnt;
        across(k);
    }
    put(1, n - 1) = end;
}

// Subdivides one cell of row r: the cell is drawn at random until one is long enough.
void subdivideRow(Session &s, const MondrianSplitArgs &a, int r)
{
    MondrianTables &t = s.mondrian();
    const int16_t h = t.MondrianHSplits;
    int tries = 0;
    int c = 0;
    int32_t len = 0;
    for (;;) {
        c = CInt(double(s.Rnd()) * h);
        len = std::abs(t.ArrCellH(1, c, r) - t.ArrCellH(0, c, r));
        if (double(len) / double(h) >= double(a.MinRatio))
            break;
        if (++tries >= h * 15)
            return;
    }
    const int n = checkedMul<int32_t>(h, a.SubH);
    t.ArrCellH(2, c, r) = n;
    const int32_t y1 = t.ArrCellV(0, c, r);
    const int32_t y2 = t.ArrCellV(1, c, r);
    cutCell(
        s, a, a.SymH, a.SeedH, n, t.ArrCellH(0, c, r), t.ArrCellH(1, c, r), len,
        [&](int f, int k) -> int32_t & { return t.ArrSubH(f, k, r); },
        [&](int k) {
            t.ArrSubHY(0, k, r) = y1;
            t.ArrSubHY(1, k, r) = y2;
        });
    t.MondrianFrames = checkedAdd<int16_t>(t.MondrianFrames, int16_t(h - 1));
}

// Subdivides one cell of column c; a cell that its row's pass marked counts as a failed try.
void subdivideColumn(Session &s, const MondrianSplitArgs &a, int c)
{
    MondrianTables &t = s.mondrian();
    const int16_t v = t.MondrianVSplits;
    int tries = 0;
    int r = 0;
    int32_t len = 0;
    for (;;) {
        r = CInt(double(s.Rnd()) * v);
        len = std::abs(t.ArrCellV(1, c, r) - t.ArrCellV(0, c, r));
        if (double(len) / double(v) >= double(a.MinRatio) && t.ArrCellH(2, c, r) <= 1)
            break;
        if (++tries >= v * 15)
            return;
    }
    const int n = checkedMul<int32_t>(v, a.SubV);
    t.ArrCellV(2, c, r) = n;
    const int32_t x1 = t.ArrCellH(0, c, r);
    const int32_t x2 = t.ArrCellH(1, c, r);
    cutCell(
        s, a, a.SymV, a.SeedV, n, t.ArrCellV(0, c, r), t.ArrCellV(1, c, r), len,
        [&](int f, int k) -> int32_t & { return t.ArrSubV(f, c, k); },
        [&](int k) {
            t.ArrSubVX(0, c, k) = x1;
            t.ArrSubVX(1, c, k) = x2;
        });
    t.MondrianFrames = checkedAdd<int16_t>(t.MondrianFrames, int16_t(v - 1));
}

void buildLayout(Session &s, const MondrianSplitArgs &a, MondrianExtent &ext)
{
    MondrianTables &t = s.mondrian();
    const int16_t h = t.MondrianHSplits;
    const int16_t v = t.MondrianVSplits;
    const int maxSubH = 2 + h * Max<int>(1, a.SubH);
    const int maxSubV = 2 + v * Max<int>(1, a.SubV);
    t.ArrCellH.redim(3, h + 1, v + 1);
    t.ArrCellV.redim(2, h + 1, v + 1);
    t.ArrSubH.redim(3, maxSubH, maxSubV);
    t.ArrSubHY.redim(2, maxSubH, maxSubV);
    t.ArrSubVX.redim(3, maxSubH, maxSubV);
    t.ArrSubV.redim(2, maxSubH, maxSubV);
    t.MondrianFrames = 0;
    t.MondrianFrames32 = 0;

    guarded(LayoutTag, [&] {
        layOut(s, Direction{t.ArrCellH, true, h, t.MondrianW, a.SymH, a.UnitsH}, a, ext.MaxW);
        for (int r = 1; r <= v; ++r)
            for (int c = 0; c <= h; ++c)
                for (int f = 0; f <= 2; ++f)
                    t.ArrCellH(f, c, r) = t.ArrCellH(f, c, 0);
    });
    guarded(LayoutTag, [&] {
        layOut(s, Direction{t.ArrCellV, false, v, t.MondrianH, a.SymV, a.UnitsV}, a, ext.MaxH);
        for (int c = 1; c <= h; ++c)
            for (int r = 0; r <= v; ++r)
                for (int f = 0; f <= 2; ++f)
                    t.ArrCellV(f, c, r) = t.ArrCellV(f, 0, r);
    });
    t.MondrianFrames = checkedMul<int16_t>(h, v);
    if (a.DoSub == 0)
        return;

    if (!(a.StripFlag != 0 && v < 2)) {
        for (int r = 0; r <= v - 1; ++r) {
            guarded(LayoutTag, [&] {
                const int16_t p = CInt(double(s.Rnd()) * v);
                if (chosen(a.Mode, p, v, r))
                    subdivideRow(s, a, r);
            });
        }
    }
    for (int c = 0; c <= h - 1; ++c) {
        guarded(LayoutTag, [&] {
            const int16_t p = CInt(double(s.Rnd()) * h);
            if (chosen(a.Mode, p, h, c))
                subdivideColumn(s, a, c);
        });
        if (a.Mode != MondrianBoogie && a.StripFlag != 0 && v == 1 && h < 3)
            break;
    }
}

} // namespace

MondrianExtent CreateArr_Mondrian_Splits(Session &s, const MondrianSplitArgs &args)
{
    MondrianExtent ext;
    MondrianTables &t = s.mondrian();
    guarded(LayoutTag, [&] { buildLayout(s, args, ext); });
    t.MondrianFrames32 = t.MondrianFrames;
    return ext;
}

void LadeArr_Asym_Mondrian(Session &s, int16_t Count, int32_t Total, int32_t &OutCount,
                           int32_t Mode, Single Unit, int32_t Seed)
{
    MondrianTables &t = s.mondrian();
    guarded(QStringLiteral("LadeArr_Asym_Mondrian"), [&] {
        if (Count < 0)
            throw Fault(Fault::SubscriptOutOfRange);
        t.ArrAsym.assign(size_t(Count) + 1, 0.0f);
        auto entry = [&](int k) -> Single & { return t.ArrAsym.at(size_t(k)); };
        Single sum = 0;
        if (Seed != 0) {
            s.random().Rnd(-1.0f);
            s.random().Randomize(double(Seed));
        } else {
            s.random().Randomize(double(s.Timer()) + double(CLng(double(s.Rnd()) * 9600)));
        }

        if (Mode == MondrianStandard) {
            OutCount = Count;
            Single rest = single(Total);
            if (Count == 1) {
                entry(1) = single(Total);
                return;
            }
            for (int k = 1; k <= Count - 1; ++k) {
                Single part = rest / single(Count) / 2.0f;
                part = single(Int(double(s.Rnd()) * (Count - 1) + 1) * double(part));
                entry(k) = part;
                sum += part;
                rest -= part;
            }
            entry(Count) = rest;
        } else if (Mode == MondrianBePop) {
            OutCount = Count;
            for (int k = 1; k <= Count; ++k) {
                entry(k) = single(double(s.Rnd()) * 99 + 1);
                sum += entry(k);
            }
            if (!(sum > 0)) {
                s.ask(QStringLiteral("SU=0 in LadeArr_Asym_Mondrian"), Buttons::Ok, Icon::None,
                      QStringLiteral("Intern"));
                return;
            }
            int32_t acc = 0;
            for (int k = 1; k <= Count; ++k) {
                entry(k) = single(CInt(double(entry(k)) * double(Total) / double(sum)));
                acc = CLng(double(entry(k)) + double(acc));
                if (k == Count && acc != Total)
                    entry(k) = single(double(entry(k)) + double(Total - acc));
            }
        } else {
            const int16_t u = CInt(double(Unit));
            int16_t left = CInt(Int(checkedDiv(double(Total), double(u))));
            if (Count == 1) {
                entry(1) = single(Total);
                OutCount = Count;
                return;
            }
            OutCount = 0;
            for (int k = 1; k <= Count; ++k) {
                const double half = Int(double(left) / double(Count) / 2.0);
                const int16_t n =
                    CInt(Max(2.0, double(CInt(double(s.Rnd()) * (Count - 1)) + 1) * half));
                int32_t step = checkedMul<int32_t>(u, n);
                if (std::abs(sum - (single(step) + sum)) >= single(u)) {
                    if (step <= 0)
                        return;
                    ++OutCount;
                } else {
                    step = checkedMul<int32_t>(u, n);
                    if (left - n < 2)
                        return;
                    ++OutCount;
                }
                entry(k) = single(step);
                sum += single(step);
                left = checkedSub<int16_t>(left, n);
            }
        }
    });
}

std::vector<MondrianFrame> mondrianFrames(const MondrianTables &t)
{
    std::vector<MondrianFrame> out;
    out.reserve(size_t(Max<int32_t>(0, t.MondrianFrames32)));
    const int cols = t.MondrianHSplits - 1;
    const int rows = t.MondrianVSplits - 1;
    for (int c = 0; c <= cols; ++c) {
        for (int r = 0; r <= rows; ++r) {
            const int32_t markH = t.ArrCellH(2, c, r);
            const int32_t markV = t.ArrCellV(2, c, r);
            if (markH > 1 && t.ArrSubH(2, c, r) > 0) {
                for (int k = 0; k <= t.ArrSubH(2, c, r) - 1; ++k)
                    out.push_back({t.ArrSubH(0, k, r), t.ArrSubHY(0, k, r), t.ArrSubH(1, k, r),
                                   t.ArrSubHY(1, k, r), true});
            }
            if (markV > 1 && t.ArrSubV(2, c, r) > 0) {
                for (int k = 0; k <= t.ArrSubV(2, c, r) - 1; ++k)
                    out.push_back({t.ArrSubVX(0, c, k), t.ArrSubV(0, c, k), t.ArrSubVX(1, c, k),
                                   t.ArrSubV(1, c, k), true});
            }
            if (markH + markV == 2)
                out.push_back({t.ArrCellH(0, c, r), t.ArrCellV(0, c, r), t.ArrCellH(1, c, r),
                               t.ArrCellV(1, c, r), false});
        }
    }
    return out;
}

} // namespace tf
