#include "paint/jascpalette.h"

#include "core/fault.h"

#include <QBuffer>
#include <QFile>
#include <optional>

namespace tf {

namespace {

constexpr int InputPastEndOfFile = 62;
constexpr qsizetype MaxLineKept = 65536;

// Reads lines as the palette format ends them; nullopt past the end of the file.
class LineReader {
public:
    explicit LineReader(QIODevice &in) : m_in(in) {}

    bool atEnd() const { return !m_pending && m_in.atEnd(); }

    std::optional<QByteArray> next()
    {
        char ch = 0;
        if (!get(ch))
            return std::nullopt;
        QByteArray line;
        while (ch != '\n' && ch != '\r') {
            if (line.size() < MaxLineKept)
                line.append(ch);
            if (!get(ch))
                return line;
        }
        if (ch == '\r' && get(ch) && ch != '\n')
            unget(ch);
        return line;
    }

private:
    bool get(char &ch)
    {
        if (m_pending) {
            ch = *m_pending;
            m_pending.reset();
            return true;
        }
        return m_in.getChar(&ch);
    }
    void unget(char ch) { m_pending = ch; }

    QIODevice &m_in;
    std::optional<char> m_pending;
};

// The three numbers of an entry line as the scan finds them; an empty text is a missing one.
struct EntryTexts {
    QByteArray number[3];
};

EntryTexts scanEntry(const QByteArray &line)
{
    EntryTexts t;
    qsizetype i = 0;
    while (i < line.size() && line[i] == ' ')
        ++i;
    int k = 0;
    bool afterBlank = false;
    for (; i < line.size(); ++i) {
        const char ch = line[i];
        if (ch == ' ') {
            afterBlank = true;
            continue;
        }
        if (afterBlank) {
            afterBlank = false;
            if (++k == 3)
                break;
        }
        if (ch < '0' || ch > '9')
            break;
        t.number[k].append(ch);
    }
    return t;
}

// The value of a text of digits; above 255 is an Overflow fault.
int channelValue(const QByteArray &digits)
{
    int v = 0;
    for (const char ch : digits) {
        v = v * 10 + (ch - '0');
        if (v > 255)
            throw Fault(Fault::Overflow);
    }
    return v;
}

} // namespace

JascPalette readJascPalette(QIODevice &in)
{
    JascPalette p;
    LineReader lines(in);
    int lineNo = 0;
    auto fail = [&p, &lineNo](int fault) {
        p.outcome = JascPalette::Outcome::Failed;
        p.failedLine = lineNo;
        p.faultNumber = fault;
        return p;
    };

    ++lineNo;
    const std::optional<QByteArray> first = lines.next();
    if (!first)
        return fail(InputPastEndOfFile);
    if (!first->contains("JASC")) {
        p.outcome = JascPalette::Outcome::NotJasc;
        return p;
    }
    for (int header = 0; header < 2; ++header) {
        ++lineNo;
        if (!lines.next())
            return fail(InputPastEndOfFile);
    }
    while (p.entries.size() < 256 && !lines.atEnd()) {
        ++lineNo;
        const QByteArray line = *lines.next();
        const EntryTexts t = scanEntry(line);
        try {
            const int r = channelValue(t.number[0]);
            const int g = channelValue(t.number[1]);
            const int b = channelValue(t.number[2]);
            p.entries.push_back(RGB(r, g, b));
        } catch (const Fault &f) {
            return fail(f.number());
        }
    }
    p.outcome = JascPalette::Outcome::Read;
    return p;
}

JascPalette readJascPalette(const QByteArray &bytes)
{
    QBuffer buffer;
    buffer.setData(bytes);
    buffer.open(QIODevice::ReadOnly);
    return readJascPalette(buffer);
}

JascPalette readJascPaletteFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        JascPalette p;
        p.failedLine = 1;
        p.faultNumber = Fault::FileNotFound;
        return p;
    }
    return readJascPalette(file);
}

} // namespace tf
