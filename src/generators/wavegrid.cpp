// "Wave-Grid": two families of waves woven into a grid.
//
// Rows are candidates every g pixels down the picture (g = 3 to 9 at 712 pixels), row k a
// cosine wave y = k g + A cos(k Δ + x 360 / λ) in degrees; a row is drawn only when the
// cosine is above 0.9 at its start (x = 0), so for a small Δ the rows come in bundles of
// nearly parallel strands and for a large one singly, every 360 / Δ rows. Columns are
// candidates every 4 g pixels across, column j the wave x = j 4g + A' cos(j Δ' + y 360 / λ'),
// drawn only when the sine of its start angle j Δ' is below 0.1: three of four for Δ' near
// 90 degrees, so neighbouring columns lean against each other and cross.
//
// With "Füllen" the drawn rows cut the picture into wavy bands i (0 above the first row) and
// the columns into wavy bands j; cell (i, j) takes the colour of its row band when i + j is
// even and of its column band when it is odd, a woven chequer. A band's colour is a cell of
// the colour table (Int(Rnd*n)+1, n the count) when the table is in force, a pick with random
// colours, else the first colour for rows and the second for columns. Then every drawn wave
// is drawn as a soft line of the pen's width (Draw_Waveline) in ColorBorder. Without "Füllen"
// only the lines are drawn, each in its band's colour.
#include "generators/wavegrid.h"

#include "generators/centrehelpers.h"
#include "generators/figures.h"
#include "generators/longrun.h"

#include "core/picturebox.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "tools/aaline.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace tf {

using namespace fig;

double Wave::at(double t) const
{
    return base + amplitude * std::cos((phase + t * 360.0 / length) * toRad);
}

bool Draw_Waveline(PictureBox &pic, const Wave &wave, bool across, double extent,
                   ColorLong colour, int pen)
{
    if (colour == NoColour) return false;
    // A segment every 2 pixels, from a little before the edge to a little past the other.
    double pt = -4, pv = wave.at(pt);
    for (double t = -2; t <= extent + 4; t += 2) {
        const double v = wave.at(t);
        if (across)
            AA_Line(pic, pt, pv, t, v, colour, pen);
        else
            AA_Line(pic, pv, pt, v, t, colour, pen);
        pt = t;
        pv = v;
    }
    return true;
}

WaveFamilies waveFamilies(PaintContext &ctx)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    const double scale = std::max(0.25, std::min(w, h) / 712.0);
    WaveFamilies F;
    const double g = std::max(2.0, (rounded(rnd(ctx) * 6) + 3) * scale);
    const double rowStep = rnd(ctx) * 60 + 10;
    const double rowAmp = (rnd(ctx) * 1.5 + 0.5) * g * 3;
    const double rowLength = w / (rnd(ctx) * 3 + 1);
    const double colStep = rnd(ctx) * 40 + 70;
    const double colAmp = (rnd(ctx) * 0.8 + 0.3) * g * 4;
    const double colLength = h / (rnd(ctx) * 2 + 0.5);
    for (int k = -int(rowAmp / g) - 2; k * g < h + rowAmp + 2 * g; ++k)
        if (std::cos(k * rowStep * toRad) > 0.9)
            F.rows.push_back({k * g, rowAmp, k * rowStep, rowLength});
    for (int j = -int(colAmp / (4 * g)) - 2; j * 4 * g < w + colAmp + 8 * g; ++j)
        if (std::sin(j * colStep * toRad) < 0.1)
            F.columns.push_back({j * 4 * g, colAmp, j * colStep, colLength});
    return F;
}

namespace {

// The woven chequer, row by row into the picture; false when a Stop came.
bool fillGrid(PaintContext &ctx, const WaveFamilies &F, const std::vector<ColorLong> &rowColour,
              const std::vector<ColorLong> &colColour, StopRule &stop)
{
    const int w = ctx.opt.W, h = ctx.opt.H;
    // Per column the rows' heights there, sorted, and how many lie above the present pixel.
    std::vector<std::vector<double>> rowY(static_cast<size_t>(w));
    for (int x = 0; x < w; ++x) {
        auto &ys = rowY[size_t(x)];
        for (const Wave &r : F.rows) ys.push_back(r.at(x + 0.5));
        std::sort(ys.begin(), ys.end());
    }
    std::vector<size_t> above(size_t(w), 0);
    std::vector<double> colX;
    std::vector<uint32_t> row(static_cast<size_t>(w));
    bool going = true;
    for (int y = 0; y < h; ++y) {
        colX.clear();
        for (const Wave &c : F.columns) colX.push_back(c.at(y + 0.5));
        std::sort(colX.begin(), colX.end());
        size_t left = 0;
        for (int x = 0; x < w; ++x) {
            const auto &ys = rowY[size_t(x)];
            size_t &i = above[size_t(x)];
            while (i < ys.size() && ys[i] <= y + 0.5) ++i;
            while (left < colX.size() && colX[left] <= x + 0.5) ++left;
            const ColorLong c = (i + left) % 2 == 0 ? rowColour[i] : colColour[left];
            row[size_t(x)] = c == NoColour ? toQRgb(ctx.XBild.Point(x, y)) : toQRgb(c);
        }
        putRow(ctx.XBild, y, row.data(), w);
        if (y % 32 == 31 && !stop.next()) {
            going = false;
            break;
        }
    }
    ctx.XBild.markChanged();
    return going;
}

} // namespace

void Create_Wavegrid(PaintContext &ctx, bool use_table)
{
    StopRule stop(ctx);
    const int n = ctx.colours().RandomValues ? rounded(rnd(ctx) * 200) + 2
                                             : std::max<int>(2, ctx.opt.NumberValue);
    ctx.opt.UseDuoTable = use_table;
    begin(ctx, n);
    const WaveFamilies F = waveFamilies(ctx);
    // One colour per band: band 0 lies before the first wave.
    std::vector<ColorLong> rowColour, colColour;
    for (size_t i = 0; i <= F.rows.size(); ++i) rowColour.push_back(figureColour(ctx, n));
    for (size_t j = 0; j <= F.columns.size(); ++j) colColour.push_back(figureColourBack(ctx, n));
    if (!ctx.opt.UseDuoTable && !ctx.colours().RandomColors)
        for (ColorLong &k : colColour) k = apartFrom(ctx.colours().ColorFore, k);

    const int pen = std::max<int>(1, ctx.opt.PenWidth);
    const bool fill = ctx.opt.UseFill;
    bool going = !fill || fillGrid(ctx, F, rowColour, colColour, stop);
    const ColorLong border = ctx.colours().ColorBorder;
    for (size_t i = 0; going && i < F.rows.size(); ++i) {
        Draw_Waveline(ctx.XBild, F.rows[i], true, ctx.opt.W, fill ? border : rowColour[i + 1], pen);
        going = stop.next();
    }
    for (size_t j = 0; going && j < F.columns.size(); ++j) {
        Draw_Waveline(ctx.XBild, F.columns[j], false, ctx.opt.H,
                      fill ? border : colColour[j + 1], pen);
        going = stop.next();
    }
    end(ctx);
}

void paintWaveGrid(PaintContext &ctx) { Create_Wavegrid(ctx, ctx.opt.UseDuoTable); }

} // namespace tf
