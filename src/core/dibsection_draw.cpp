// cDIBSection::LineDIB (boxes in raw memory rows) and cDIBSection::PrintDIB (a line of text).
#include "core/dibsection.h"

#include <QFontMetrics>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tf {

void cDIBSection::LineDIB(cDIBSection &cDibTo, int xStart, int yStart, int xEnd, int yEnd,
                          ColorLong Color, const QString &Boxtype, int /*Opacity*/)
{
    const bool filled = Boxtype == QLatin1String("BF");
    if (!cDibTo.hDIB() || (!filled && Boxtype != QLatin1String("B")))
        return;
    const int maxX = cDibTo.dib_width() - 1, maxY = cDibTo.dib_height() - 1;
    int x0 = std::clamp(xStart, 0, maxX), x1 = std::clamp(xEnd, 0, maxX);
    int y0 = std::clamp(yStart, 0, maxY), y1 = std::clamp(yEnd, 0, maxY);
    if (x0 > x1)
        std::swap(x0, x1);
    if (y0 > y1)
        std::swap(y0, y1);
    const DibView v = cDibTo.view();
    // The colour is split without masks and each channel clamped, so a value past white
    // (a blue of 300) draws white and a negative one black, never a wrapped colour.
    const int red = std::clamp(Color % 256, 0, 255);
    const int green = std::clamp((Color / 256) % 256, 0, 255);
    const int blue = std::clamp(Color / 65536, 0, 255);
    Color = RGB(red, green, blue);

    if (filled) {
        fillBox(v, x0, y0, x1, y1, Color);
        return;
    }
    // A box of one row or one column is one line.
    if (x0 == x1) {
        fillBox(v, x0, y0, x0, y1, Color);
        return;
    }
    fillBox(v, x0, y0, x1, y0, Color); // the edge at yStart
    if (y0 == y1)
        return;
    fillBox(v, x0, y1, x1, y1, Color); // the edge at yEnd
    if (y1 - y0 >= 2) {                // the columns between
        fillBox(v, x0, y0 + 1, x0, y1 - 1, Color);
        fillBox(v, x1, y0 + 1, x1, y1 - 1, Color);
    }
}

namespace {

// A logical font as the platform's CreateFont takes it: a positive height is the cell height
// (ascent + descent) in pixels, a negative one the character height, 0 a default; a width
// above 0 is the average character width, reached by stretching. Never anti-aliased.
QFont logicalFont(const QString &face, int height, int width)
{
    QFont f(face);
    f.setStyleStrategy(QFont::NoAntialias);
    if (height < 0) {
        f.setPixelSize(-height);
    } else {
        const int cell = height == 0 ? 16 : height;
        QFont probe(f);
        probe.setPixelSize(100);
        const double cellPerPixel = QFontMetricsF(probe).height() / 100.0;
        f.setPixelSize(std::max(1, int(roundHalfEven(cell / cellPerPixel))));
    }
    if (width > 0) {
        const double average = QFontMetricsF(f).averageCharWidth();
        if (average > 0)
            f.setStretch(std::clamp(int(roundHalfEven(100.0 * width / average)), 1, 4000));
    }
    return f;
}

} // namespace

void cDIBSection::PrintDIB(cDIBSection &toDIB, int X, int Y, const QString &txt, int txtpos,
                           Single txtangle, const QString &Fontname, ColorLong Fontcolor,
                           int FontGroesse, int FontWeite)
{
    if (!toDIB.hDIB() || txt.isEmpty())
        return;
    const int W = toDIB.dib_width(), H = toDIB.dib_height();

    int fontHeight = FontGroesse, fontWidth = FontWeite;
    if (FontGroesse == 0) {
        int n = CLng(W / 110.0);
        n -= Mod(n, 2);
        fontHeight = n;
        fontWidth = CLng(n * 0.66667);
    }
    const QFont font = logicalFont(Fontname, fontHeight, fontWidth);
    const QFontMetrics metrics(font);
    const int tw = metrics.horizontalAdvance(txt), th = metrics.height();

    // The box the text covers, and where its unrotated top left lies in that box.
    int bw = tw, bh = th;
    QPointF origin(0, 0);
    const bool rotated = txtangle != 0;
    if (rotated) {
        // Counter-clockwise on the screen: (x, y) -> (x cos a + y sin a, -x sin a + y cos a).
        // For a in 0..90 degrees the box is th*Cos(b) + tw*Cos(a) by th*Sin(b) + tw*Sin(a),
        // b = pi/2 - a.
        const double a = double(txtangle) * Pi / 180, c = std::cos(a), s = std::sin(a);
        const double xs[4] = {0, tw * c, th * s, tw * c + th * s};
        const double ys[4] = {0, -tw * s, th * c, th * c - tw * s};
        const auto [xMin, xMax] = std::minmax_element(std::begin(xs), std::end(xs));
        const auto [yMin, yMax] = std::minmax_element(std::begin(ys), std::end(ys));
        bw = CLng(*xMax - *xMin);
        bh = CLng(*yMax - *yMin);
        origin = QPointF(-*xMin, -*yMin);
    }
    if (bw <= 0 || bh <= 0)
        return;

    // Margins: unrotated 6 from the edges and a further 40 on the right; rotated 8, and 10 on
    // the right.
    const int margin = rotated ? 8 : 6;
    const int right = rotated ? 10 : 6 + 40;
    int x = X, y = Y;
    switch (txtpos) {
    case 1: x = margin; y = margin; break;
    case 2: x = W - bw - right; y = margin; break;
    case 3: x = W - bw - right; y = H - bh - margin; break;
    case 4: x = margin; y = H - bh - margin; break;
    case 5: x = (W - bw) / 2; y = (H - bh) / 2; break;
    default: break;
    }

    QImage helper(bw, bh, QImage::Format_RGB32);
    helper.fill(Qt::white);
    {
        QPainter p(&helper);
        p.setRenderHint(QPainter::Antialiasing, false);
        p.setRenderHint(QPainter::TextAntialiasing, false);
        p.setFont(font);
        p.setPen(toQColor(Fontcolor));
        p.translate(origin);
        p.rotate(-double(txtangle));
        p.drawText(QPointF(0, metrics.ascent()), txt);
    }
    const DeviceContext helperDc(&helper, false);
    BitBlt(toDIB.dib_hdc(), x, y, bw, bh, helperDc, 0, 0, SRCCOPY);
}

} // namespace tf
