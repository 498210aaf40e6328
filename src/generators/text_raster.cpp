// The raster texts: frames from the Mondrian layout, an equal grid or a rectangle spiral,
// and into each frame as many letters (or a word) as its shape holds, in a colour of the
// table, clipped to the frame.
#include "generators/textraster.h"

#include "core/devicecontext.h"
#include "core/fault.h"
#include "core/gdi.h"
#include "core/numeric.h"
#include "core/picturebox.h"
#include "core/status.h"
#include "generators/longrun.h"
#include "generators/mondrianlayout.h"
#include "generators/textdraw.h"
#include "paint/colourstate.h"
#include "paint/duocolortable.h"
#include "paint/mondriantables.h"
#include "paint/paintdriver.h"
#include "paint/painter.h"
#include "paint/session.h"
#include "paint/textstate.h"
#include "paint/transparency.h"

#include <QFontMetricsF>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

namespace tf {

using namespace text;

namespace {

// The smallest font size of a frame; "Mindestschrift +8" adds 8 to it.
constexpr int MinFontSize = 4;
// Draws of the table before a frame takes the text colour itself: the table's white cells
// would vanish on a white picture.
constexpr int ColourDraws = 50;
// The type the text grid leaves in MondrianLastType: no painter of the family repaints it.
constexpr int16_t TextGridType = -1;
const char *const FoxSample = "the quick brown fox jumps over the lazy dog 0123456789";

ControlKey key(const char *name, int index = -1) { return ControlKey{QString::fromLatin1(name), index}; }
double rnd(PaintContext &ctx) { return double(ctx.Rnd()); }
int rounded(double x) { return int(roundHalfEven(x)); }

struct RasterOptions {
    int h = 4, v = 4, margin = 0;
    int16_t symH = 0, symV = 0, doSub = 1;
    bool frames = true;
    bool bigLetters = false;
    int minFont = MinFontSize;
    RasterSplit split = SplitMix;
};

RasterOptions readOptions(PaintContext &ctx)
{
    const Controls &c = ctx.session.controls();
    RasterOptions o;
    o.h = std::clamp(int(Val(c.text(key("txtOrthoT1", 0)))), 2, 64);
    o.v = std::clamp(int(Val(c.text(key("txtOrthoT1", 1)))), 2, 64);
    o.margin = std::clamp(int(Val(c.text(key("txtOrthoT1", 2)))), 0, 256);
    o.symH = int16_t(c.checked(key("XOrthoT1", 0)));
    o.symV = int16_t(c.checked(key("XOrthoT1", 1)));
    o.doSub = int16_t(c.checked(key("XOrthoT1", 2)));
    o.frames = c.checked(key("XOrthoT1", 3));
    o.bigLetters = c.checked(key("XOrthoT1", 4));
    if (c.checked(key("XOrthoT1", 7))) o.minFont += 8;
    o.split = RasterSplit(std::clamp(c.listIndex(key("cmbOrthoT1_Split")), 0, 2));
    if (ctx.colours().RandomValues) {
        o.h = int(Int(rnd(ctx) * 9)) + 2;
        o.v = int(Int(rnd(ctx) * 9)) + 2;
        o.symH = int16_t(Int(rnd(ctx) * 2));
        o.symV = int16_t(Int(rnd(ctx) * 2));
        o.minFont = rounded(rnd(ctx) * 12 + 4);
    }
    return o;
}

// The layout of the Mondrian and the simple form in the session's frame tables.
void buildLayout(Session &s, RasterForm form, const RasterOptions &o, const QRect &area)
{
    MondrianTables &t = s.mondrian();
    t.MondrianW = area.width();
    t.MondrianH = area.height();
    t.MondrianMargin = o.margin;
    t.MondrianLastH = int16_t(o.h);
    t.MondrianLastV = int16_t(o.v);
    t.MondrianLastType = TextGridType;
    t.MondrianHSplits = int16_t(o.h);
    t.MondrianVSplits = int16_t(o.v);
    t.MondrianUnit = 1.0f;
    t.MondrianGridW = 0;
    t.MondrianGridH = 0;
    MondrianSplitArgs a;
    const bool simple = form == RasterForm::Simple;
    a.SymH = simple ? 1 : o.symH;
    a.SymV = simple ? 1 : o.symV;
    a.Pen = o.frames ? 1 : 0;
    a.DoSub = simple ? 0 : o.doSub;
    a.MinRatio = 15;
    a.Mode = MondrianStandard;
    a.Unit = 1.0f;
    CreateArr_Mondrian_Splits(s, a);
}

// The frames of a form, in picture coordinates.
std::vector<QRect> rasterFrames(PaintContext &ctx, RasterForm form, const RasterOptions &o)
{
    const QRect area(o.margin, o.margin, std::max(1, ctx.opt.W - 2 * o.margin),
                     std::max(1, ctx.opt.H - 2 * o.margin));
    if (form == RasterForm::Spiral) return spiralFrames(area, o.h, o.v, o.minFont);

    Session &s = ctx.session;
    MondrianTables &t = s.mondrian();
    // "Repaint letztes Set" keeps the frames of the last text grid while they fit.
    const bool keep = form == RasterForm::Mondrian && t.RepaintAsked && t.holdsLayout() &&
                      t.MondrianLastType == TextGridType && t.MondrianMargin == o.margin &&
                      t.MondrianW == area.width() && t.MondrianH == area.height() &&
                      (ctx.colours().RandomValues ||
                       (t.MondrianLastH == o.h && t.MondrianLastV == o.v));
    if (!keep) buildLayout(s, form, o, area);
    std::vector<QRect> frames;
    for (const MondrianFrame &f : mondrianFrames(t)) {
        if (f.right <= f.left || f.bottom <= f.top) continue;
        frames.emplace_back(QPoint(f.left + o.margin, f.top + o.margin),
                            QPoint(f.right + o.margin - 1, f.bottom + o.margin - 1));
    }
    return frames;
}

// White and the palest greys of the table would hardly show on a white picture.
bool paleColour(ColorLong c)
{
    return RedOf(c) >= 215 && GreenOf(c) >= 215 && BlueOf(c) >= 215;
}

// A text colour from the table: a cell that is neither blank nor pale.
ColorLong frameColour(PaintContext &ctx)
{
    const ColourState &c = ctx.colours();
    const int upper = int(c.DuoColors.size()) - 1;
    for (int i = 0; i < ColourDraws && upper >= 1; ++i) {
        const std::optional<ColorLong> cell = duoCell(c, int(Int(rnd(ctx) * upper)) + 1);
        if (cell && *cell != NoColour && !paleColour(*cell)) return *cell;
    }
    return c.TextFore;
}

// Writes `piece` at `angle` so that its ink's middle lies on the frame's middle.
void printCentred(PictureBox &pic, const QString &piece, const QRectF &frame, double angle,
                  const TextFont &font)
{
    const QRectF ink = inkBox(font, piece, angle);
    if (ink.isEmpty()) return;
    const QPointF c = frame.center();
    Print_Rotated(pic, piece, c.x() - ink.center().x(), c.y() - ink.center().y(), angle, font);
}

// Shrinks the font until `piece` written at `angle` fits `room` (down to 1 point).
void fitFont(TextFont &font, const QString &piece, double angle, const QSizeF &room)
{
    for (int i = 0; i < 40 && font.size > 1; ++i) {
        const QRectF ink = inkBox(font, piece, angle);
        if (ink.width() <= room.width() && ink.height() <= room.height()) return;
        const double k = std::min(room.width() / std::max(1.0, ink.width()),
                                  room.height() / std::max(1.0, ink.height()));
        font.size = std::max(1.0, std::min(font.size - 0.5, std::floor(font.size * k * 2) / 2));
    }
}

void fillFrame(PaintContext &ctx, PictureBox &pic, const QRect &frame, RasterText &text,
               const RasterOptions &o, TextFont font)
{
    // The room inside the frame's outline.
    const int inset = o.frames ? 1 : 0;
    const QRect inner = frame.adjusted(inset, inset, 0, 0);
    const int fw = inner.width(), fh = inner.height();
    const RasterKind kind = rasterKind(fw, fh, o.minFont, o.split);
    if (kind == RasterKind::Empty) return;
    font.size = std::max(1.0, rasterFontSize(kind, fw, fh));
    pic.setForeColor(frameColour(ctx));
    DeviceContext &dc = pic.hDC();
    dc.setClip(inner);
    const QSizeF room(fw, fh);

    if (kind == RasterKind::Q || kind == RasterKind::R) {
        const bool turned = Int(rnd(ctx) * 2) == 1;
        const double angle = turned ? 90.0 : 0.0;
        const QString piece = o.split == SplitWords ? text.takeWord() : text.takeLetters(1);
        fitFont(font, piece, angle, room);
        printCentred(pic, piece, inner, angle, font);
    } else if (kind == RasterKind::H) {
        // As many letters as the width holds; a word when whole words are asked for (in mix
        // mode a frame that holds the next word whole takes it).
        QString piece;
        const QString word = text.peekWord();
        if (o.split == SplitMix && !word.isEmpty() && inkBox(font, word, 0).width() <= fw) {
            piece = text.takeWord();
        } else if (o.split == SplitWords) {
            piece = text.takeWord();
            fitFont(font, piece, 0, room);
        } else {
            const QFontMetricsF m(toQFont(logicalFont(font, 0)));
            const int n = std::max(1, int(fw / std::max(1.0, m.horizontalAdvance(QLatin1Char('M')) * 0.8)));
            piece = text.takeLetters(n);
            while (piece.size() > 1 && inkBox(font, piece, 0).width() > fw) {
                piece.chop(1);
                text.giveBack(1);
            }
            fitFont(font, piece, 0, room);
        }
        printCentred(pic, piece, inner, 0, font);
    } else {
        // Letters stacked down the frame, one a line, each in the middle of its line.
        const QString piece = o.split == SplitWords
                                  ? text.takeWord()
                                  : text.takeLetters(std::max(1, int(fh / std::max(1, lineStep(font)))));
        const int n = std::max(1, int(piece.size()));
        const double step = double(fh) / n;
        double widest = 0;
        for (const QChar ch : piece) widest = std::max(widest, inkBox(font, QString(ch), 0).width());
        TextFont letterFont = font;
        // One jump by the ratio of room to need, then point by point to what fits.
        const double k = std::min((step + 1) / std::max(1, lineStep(letterFont)),
                                  fw / std::max(1.0, widest));
        if (k < 1) {
            letterFont.size = std::max(1.0, std::floor(letterFont.size * k) + 1);
            widest = 0;
            for (const QChar ch : piece)
                widest = std::max(widest, inkBox(letterFont, QString(ch), 0).width());
        }
        while (letterFont.size > 1 &&
               (lineStep(letterFont) > step + 1 || widest > fw)) {
            letterFont.size = std::max(1.0, letterFont.size - 1);
            widest = 0;
            for (const QChar ch : piece)
                widest = std::max(widest, inkBox(letterFont, QString(ch), 0).width());
        }
        for (int i = 0; i < n; ++i) {
            const QRectF line(inner.left(), inner.top() + i * step, fw, step);
            printCentred(pic, QString(piece.at(i)), line, 0, letterFont);
        }
    }
    dc.resetClip();
}

void drawMondrianText(PaintContext &ctx, RasterForm form)
{
    Session &s = ctx.session;
    const RasterOptions o = readOptions(ctx);
    QString prepared = prepareText(ctx, nullptr, -1, false, true);
    // An empty text takes one of two samples.
    if (s.controls().text(key("txtOrthoIn")).isEmpty() && Int(rnd(ctx) * 2) == 1)
        prepared = QString::fromLatin1(FoxSample);
    if (o.bigLetters) prepared = prepared.toUpper();
    // Tabs and other white space part words as blanks do; none of them is a letter.
    static const QRegularExpression space(QStringLiteral("\\s+"));
    QStringList words = prepared.split(space, Qt::SkipEmptyParts);
    if (words.isEmpty()) {
        // Blanks and line breaks only: nothing a frame could hold, so the sample.
        words = QString::fromLatin1(LatinSample).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        if (o.bigLetters)
            for (QString &w : words) w = w.toUpper();
    }
    RasterText text(words);

    const bool duo = s.colours().XDuotones[0] || s.colours().XDuotones[1];
    Set_Duo_Colortable(s, 0, true,
                       duo ? QStringLiteral("DuoMondrian") : QStringLiteral("RandomMondrianText"),
                       5, 5);
    const TextFont font = dialogFont(s.controls());

    ctx.Bild_CLEAR();
    Start_Transparent(s);
    const std::vector<QRect> frames = rasterFrames(ctx, form, o);
    PictureBox &pic = ctx.XBild;
    StopRule stop(ctx);
    for (const QRect &f : frames) {
        if (o.frames) {
            // The top and left lines of each frame; the picture's own edge closes the grid.
            DeviceContext &dc = pic.hDC();
            const ColorLong line = s.colours().ColorBorder;
            for (int x = f.left(); x <= f.right(); ++x) SetPixel(dc, x, f.top(), line);
            for (int y = f.top(); y <= f.bottom(); ++y) SetPixel(dc, f.left(), y, line);
        }
        // With the mix of fonts every frame draws its own; the first is named in the status bar.
        TextFont frameFont = font;
        mixFont(ctx, frameFont);
        if (&f == &frames.front() && s.text().UseMixFonts)
            s.status().setPanelText(sbrFont, QStringLiteral("#1 ") + frameFont.name);
        fillFrame(ctx, pic, f, text, o, frameFont);
        if (!stop.next()) break;
    }
    if (o.frames && !frames.empty()) {
        QRect all;
        for (const QRect &f : frames) all |= f;
        DeviceContext &dc = pic.hDC();
        const ColorLong line = s.colours().ColorBorder;
        for (int x = all.left(); x <= all.right(); ++x) SetPixel(dc, x, all.bottom(), line);
        for (int y = all.top(); y <= all.bottom(); ++y) SetPixel(dc, all.right(), y, line);
    }
    pic.markChanged();
    Ende_Transparent(s);
    pic.Refresh();
}

} // namespace

RasterKind rasterKind(int fw, int fh, int minFont, RasterSplit split)
{
    if (fw <= minFont || fh <= minFont) return RasterKind::Empty;
    if (std::abs(fw - fh) < 8 && split != SplitWords) return RasterKind::Q;
    if (double(fw) / fh < 0.5) return RasterKind::V;
    if (double(fh) / fw < 0.5) return RasterKind::H;
    return RasterKind::R;
}

double rasterFontSize(RasterKind kind, int fw, int fh)
{
    switch (kind) {
    case RasterKind::Q:
    case RasterKind::V: return fw / 2.0 - 2;
    case RasterKind::H: return fh / 2.0 - 2;
    case RasterKind::R: return Int(std::min(fw, fh) / 2.0) - 2;
    case RasterKind::Empty: break;
    }
    return 0;
}

std::vector<QRect> spiralFrames(const QRect &area, int h, int v, int minSide)
{
    h = std::clamp(h, 2, 64);
    v = std::clamp(v, 2, 64);
    const int most = h * v;
    std::vector<QRect> frames;
    QRect rest = area;
    for (int i = 0; int(frames.size()) + 1 < most; ++i) {
        const int side = i % 4;
        const bool across = side == 0 || side == 2; // a strip of the width
        const int length = across ? rest.width() : rest.height();
        const int strip = length / (across ? h : v);
        if (strip < std::max(1, minSide) || length - strip < 2 * std::max(1, minSide)) break;
        QRect cut = rest;
        switch (side) {
        case 0: cut.setWidth(strip); rest.setLeft(rest.left() + strip); break;
        case 1: cut.setHeight(strip); rest.setTop(rest.top() + strip); break;
        case 2: cut.setLeft(rest.right() - strip + 1); rest.setRight(rest.right() - strip); break;
        default: cut.setTop(rest.bottom() - strip + 1); rest.setBottom(rest.bottom() - strip); break;
        }
        frames.push_back(cut);
    }
    frames.push_back(rest);
    return frames;
}

RasterText::RasterText(const QStringList &words)
{
    for (const QString &w : words) {
        m_letters += w;
        m_ends.push_back(int(m_letters.size()));
    }
}

QString RasterText::takeLetters(int n)
{
    QString out;
    if (m_letters.isEmpty()) return out;
    for (int i = 0; i < n; ++i) {
        out += m_letters.at(m_next);
        m_next = (m_next + 1) % int(m_letters.size());
    }
    return out;
}

int RasterText::wordEnd() const
{
    for (const int end : m_ends)
        if (end > m_next) return end;
    return int(m_letters.size());
}

QString RasterText::peekWord() const
{
    return m_letters.mid(m_next, wordEnd() - m_next);
}

QString RasterText::takeWord()
{
    if (m_letters.isEmpty()) return {};
    const QString w = peekWord();
    m_next = wordEnd() % int(m_letters.size());
    return w;
}

void RasterText::giveBack(int n)
{
    if (m_letters.isEmpty()) return;
    const int size = int(m_letters.size());
    m_next = ((m_next - n) % size + size) % size;
}

void Draw_MondrianText(PaintContext &ctx, RasterForm form)
{
    guarded(QStringLiteral("Draw_MondrianText"), [&] { drawMondrianText(ctx, form); });
}

PaintOutcome BtnOrthoText_Repaint(Session &s)
{
    if (s.runState().busy()) return PaintOutcome::Busy;
    PaintState &p = s.paint();
    // The panel serves the three raster texts; from elsewhere the repaint paints the grid.
    if (p.GrafKey != QLatin1String("TEXT-Simple-Raster") &&
        p.GrafKey != QLatin1String("TEXT-Spiral-Raster"))
        p.GrafKey = QStringLiteral("TEXT-Mondrian-Raster");
    MondrianTables &t = s.mondrian();
    t.RepaintAsked = true;
    const PaintOutcome outcome = paintAgain(s);
    t.RepaintAsked = false;
    return outcome;
}

void paintTextMondrianRaster(PaintContext &ctx) { Draw_MondrianText(ctx, RasterForm::Mondrian); }
void paintTextSimpleRaster(PaintContext &ctx) { Draw_MondrianText(ctx, RasterForm::Simple); }
void paintTextSpiralRaster(PaintContext &ctx) { Draw_MondrianText(ctx, RasterForm::Spiral); }

} // namespace tf
