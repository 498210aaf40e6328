#include "files/presentationfile.h"

#include "core/fault.h"
#include "core/numeric.h"
#include "paint/controls.h"

#include <QCoreApplication>
#include <algorithm>

namespace tf {

namespace {

using PV = PresentationValue;

constexpr PresentationLine Lines[] = {
    {PV::SubDirs, false, 0, 1},      // 4
    {PV::Stretch, false, 0, 1},      // 5
    {PV::Aliasing, false, 0, 1},     // 6
    {PV::Center, false, 0, 1},       // 7
    {PV::Fore, true, 0, 0xFFFFFF},   // 8
    {PV::Back, true, 0, 0xFFFFFF},   // 9
    {PV::Border, true, 0, 0xFFFFFF}, // 10
    {PV::H, false, 1, 20},           // 11
    {PV::V, false, 1, 20},           // 12
    {PV::SymH, false, 0, 1},         // 13
    {PV::SymV, false, 0, 1},         // 14
    {PV::DoSub, false, 0, 1},        // 15
    {PV::Margin, true, 0, -1},       // 16
    {PV::Timer, true, 0, 600},       // 17
    {PV::Pen, false, 1, 50},         // 18
    {PV::Borders, false, 0, 1},      // 19
    {PV::EachFrame, false, 0, 1},    // 20
    {PV::UseSmall, false, 0, 1},     // 21
};
static_assert(std::size(Lines) == size_t(PresentationValueCount));

constexpr int InputPastEndOfFile = 62;

// The classic field input over the file's bytes: lines end in LF (a CR before it is dropped);
// a number field ends at a comma or the line's end.
class FieldReader {
public:
    explicit FieldReader(const QByteArray &bytes) : m_bytes(bytes) {}

    int line() const { return m_line; }

    // The rest of the current line, whole.
    QByteArray wholeLine()
    {
        requireMore();
        const qsizetype end = lineEnd();
        QByteArray text = m_bytes.mid(m_pos, end - m_pos);
        if (text.endsWith('\r')) text.chop(1);
        nextLine(end);
        return text;
    }

    // The next number field as its leading number (0 when it holds none).
    double number()
    {
        requireMore();
        const qsizetype end = lineEnd();
        qsizetype stop = m_bytes.indexOf(',', m_pos);
        const bool comma = stop >= 0 && stop < end;
        if (!comma) stop = end;
        const QString field = QString::fromLatin1(m_bytes.mid(m_pos, stop - m_pos)).trimmed();
        if (comma)
            m_pos = stop + 1;
        else
            nextLine(end);
        return Val(field);
    }

private:
    qsizetype lineEnd() const
    {
        const qsizetype lf = m_bytes.indexOf('\n', m_pos);
        return lf < 0 ? m_bytes.size() : lf;
    }
    void nextLine(qsizetype end)
    {
        m_pos = end + 1;
        ++m_line;
    }
    void requireMore() const
    {
        if (m_pos >= m_bytes.size())
            throw Fault(InputPastEndOfFile,
                        QCoreApplication::translate("Presentation", "Die Datei endet vor Zeile %1")
                            .arg(m_line));
    }

    const QByteArray &m_bytes;
    qsizetype m_pos = 0;
    int m_line = 1;
};

int32_t fieldValue(FieldReader &in, bool wide)
{
    const int line = in.line();
    const double v = in.number();
    try {
        return wide ? CLng(v) : int32_t(CInt(v));
    } catch (const Fault &) {
        throw Fault(Fault::Overflow, QCoreApplication::translate(
                                         "Presentation", "Die Zahl %1 in Zeile %2 ist zu groß")
                                         .arg(v, 0, 'g', 12)
                                         .arg(line));
    }
}

void appendNumber(QByteArray &out, int32_t v)
{
    out.append(QByteArray::number(v));
}

void appendLine(QByteArray &out, const QByteArray &text)
{
    out.append(text).append("\r\n");
}

// The three tables of a block side by side, as the blocks lay them out.
struct Block {
    Table3 PicPresentation::*a, PicPresentation::*b, PicPresentation::*c;
    int fields; // 4 or 3
};
constexpr Block Blocks[] = {
    {&PicPresentation::ArrCellH, &PicPresentation::ArrSubH, &PicPresentation::ArrSubVX, 4},
    {&PicPresentation::ArrCellV, &PicPresentation::ArrSubHY, &PicPresentation::ArrSubV, 3},
};

} // namespace

std::span<const PresentationLine> presentationLines()
{
    return Lines;
}

bool hasPresentationHeader(const QByteArray &firstBytes)
{
    return firstBytes.left(PresentationHeaderLength).toUpper() ==
           QByteArray(PresentationHeader).toUpper();
}

QByteArray presentationBytes(const PicPresentation &p)
{
    QByteArray out;
    appendLine(out, PresentationHeader);
    appendLine(out, p.source.toUtf8());
    appendLine(out, QByteArray::number(p.screenW) + ',' + QByteArray::number(p.screenH));
    for (const PresentationLine &l : Lines) {
        appendNumber(out, p[l.value]);
        out.append("\r\n");
    }
    const int H = p[PV::H];
    const int V = p[PV::V];
    for (const Block &b : Blocks)
        for (int k = 0; k < b.fields; ++k)
            for (int i = 0; i <= H + 1; ++i)
                for (int j = 0; j <= V + 1; ++j) {
                    appendNumber(out, (p.*b.a)(k, i, j));
                    out.append(',');
                    appendNumber(out, (p.*b.b)(k, i, j));
                    out.append(',');
                    appendNumber(out, (p.*b.c)(k, i, j));
                    out.append("\r\n");
                }
    return out;
}

PicPresentation parsePresentation(const QByteArray &bytes)
{
    PicPresentation p;
    FieldReader in(bytes);
    in.wholeLine();
    p.source = QString::fromUtf8(in.wholeLine());
    p.screenW = fieldValue(in, false);
    p.screenH = fieldValue(in, false);
    for (const PresentationLine &l : Lines) {
        int32_t v = fieldValue(in, l.wide);
        if (l.max >= l.min) v = std::clamp(v, l.min, l.max);
        p[l.value] = v;
    }
    const int H = p[PV::H];
    const int V = p[PV::V];
    for (const Block &b : Blocks) {
        (p.*b.a).redim(b.fields - 1, H + 1, V + 1);
        (p.*b.b).redim(b.fields - 1, H + 1, V + 1);
        (p.*b.c).redim(b.fields - 1, H + 1, V + 1);
    }
    for (const Block &b : Blocks)
        for (int k = 0; k < b.fields; ++k)
            for (int i = 0; i <= H + 1; ++i)
                for (int j = 0; j <= V + 1; ++j) {
                    (p.*b.a)(k, i, j) = fieldValue(in, true);
                    (p.*b.b)(k, i, j) = fieldValue(in, true);
                    (p.*b.c)(k, i, j) = fieldValue(in, true);
                }
    return p;
}

} // namespace tf
