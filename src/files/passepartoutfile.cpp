#include "files/passepartoutfile.h"

#include "core/fault.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QIODevice>
#include <QStandardPaths>
#include <algorithm>

namespace tf {

namespace {

constexpr int MagicLength = 12;
// The bytes of a record besides its name: length, gradient, extras, seven width/colour pairs.
constexpr qsizetype RecordFixedBytes = 2 + 2 + 2 + 2 + 4 + 4 + PPFrames * (2 + 4);

// Reads little-endian fields from a byte array; running past the end marks it short.
class Reader {
public:
    explicit Reader(const QByteArray &bytes) : m_bytes(bytes) {}
    bool shortOfBytes() const { return m_short; }
    qsizetype remaining() const { return m_bytes.size() - m_pos; }

    template <typename T> T take()
    {
        if (remaining() < qsizetype(sizeof(T))) {
            m_short = true;
            m_pos = m_bytes.size();
            return T{};
        }
        std::make_unsigned_t<T> value = 0;
        for (size_t i = 0; i < sizeof(T); ++i)
            value |= std::make_unsigned_t<T>(uint8_t(m_bytes[m_pos + qsizetype(i)])) << (8 * i);
        m_pos += qsizetype(sizeof(T));
        return T(value);
    }
    QByteArray takeBytes(qsizetype n)
    {
        if (n < 0 || remaining() < n) {
            m_short = true;
            m_pos = m_bytes.size();
            return {};
        }
        const QByteArray part = m_bytes.mid(m_pos, n);
        m_pos += n;
        return part;
    }

private:
    const QByteArray &m_bytes;
    qsizetype m_pos = 0;
    bool m_short = false;
};

template <typename T> void put(QByteArray &out, T value)
{
    const auto v = std::make_unsigned_t<T>(value);
    for (size_t i = 0; i < sizeof(T); ++i)
        out.append(char((v >> (8 * i)) & 0xFF));
}

bool written(const PPRecord &r)
{
    return r.valid && !r.name.isEmpty();
}

QString wrongFormatText()
{
    return QCoreApplication::translate("Passepartout", "Falsches Dateiformat für Passepartouts.");
}

QString damagedText(const QString &detail)
{
    return QCoreApplication::translate("Passepartout",
                                       "Die Passepartout-Datei ist beschädigt (%1). "
                                       "Sie bleibt, wie sie ist.")
        .arg(detail);
}

} // namespace

int PPRecord::border() const
{
    int sum = 0;
    for (const int16_t w : width)
        if (w >= 1) sum += w;
    return sum;
}

PPRecord standardPassepartout()
{
    PPRecord r;
    r.name = QStringLiteral("Standard");
    r.sortName = r.name;
    r.width = {3, 56, 0, 0, 0, 0, 4};
    r.colour = {RGB(64, 64, 64), RGB(240, 236, 224), 0, 0, 0, 0, RGB(32, 32, 32)};
    return r;
}

PPReadResult parsePPData(const QByteArray &bytes)
{
    PPReadResult result;
    Reader in(bytes);
    const int16_t magicLength = in.take<int16_t>();
    const QByteArray magic = in.takeBytes(std::max<int>(magicLength, 0));
    if (in.shortOfBytes() || magicLength != MagicLength || magic != QByteArray(PPMagic)) {
        result.status = PPReadStatus::WrongFormat;
        result.message = wrongFormatText();
        return result;
    }
    const auto damaged = [&](const QString &detail) {
        result.table.clear();
        result.status = PPReadStatus::Damaged;
        result.message = damagedText(detail);
        return result;
    };
    const int32_t count = in.take<int32_t>();
    if (in.shortOfBytes())
        return damaged(QCoreApplication::translate("Passepartout", "die Anzahl fehlt"));
    // Every record holds at least one character of name: a count the bytes cannot hold is
    // refused before anything is sized by it.
    if (count < 0 || qsizetype(count) > in.remaining() / (RecordFixedBytes + 1))
        return damaged(QCoreApplication::translate("Passepartout", "%1 Sets angegeben").arg(count));
    result.table.reserve(size_t(count));
    for (int32_t i = 1; i <= count; ++i) {
        PPRecord r;
        r.valid = true;
        r.index = i;
        const int16_t length = in.take<int16_t>();
        if (!in.shortOfBytes() && length <= 0)
            return damaged(QCoreApplication::translate("Passepartout", "Set %1 ohne Namen").arg(i));
        r.name = QString::fromLatin1(in.takeBytes(length));
        r.sortName = r.name;
        r.useGradient = in.take<int16_t>();
        r.extra1 = in.take<int16_t>();
        r.extra2 = in.take<int16_t>();
        r.extra3 = in.take<int32_t>();
        r.extra4 = in.take<int32_t>();
        for (int k = 0; k < PPFrames; ++k) {
            r.width[size_t(k)] = in.take<int16_t>();
            r.colour[size_t(k)] = in.take<int32_t>();
        }
        if (in.shortOfBytes())
            return damaged(
                QCoreApplication::translate("Passepartout", "die Datei endet in Set %1").arg(i));
        result.table.push_back(std::move(r));
    }
    if (in.remaining() != 0)
        return damaged(QCoreApplication::translate("Passepartout", "%1 Bytes nach dem letzten Set")
                           .arg(in.remaining()));
    result.status = PPReadStatus::Read;
    return result;
}

QByteArray serializePPData(const PPTable &table)
{
    QByteArray out;
    put<int16_t>(out, MagicLength);
    out.append(PPMagic, MagicLength);
    put<int32_t>(out, int32_t(std::count_if(table.begin(), table.end(), written)));
    for (const PPRecord &r : table) {
        if (!written(r)) continue;
        const QByteArray name = r.name.toLatin1().left(32767);
        put<int16_t>(out, int16_t(name.size()));
        out.append(name);
        put<int16_t>(out, r.useGradient);
        put<int16_t>(out, r.extra1);
        put<int16_t>(out, r.extra2);
        put<int32_t>(out, r.extra3);
        put<int32_t>(out, r.extra4);
        for (int k = 0; k < PPFrames; ++k) {
            put<int16_t>(out, r.width[size_t(k)]);
            put<int32_t>(out, r.colour[size_t(k)]);
        }
    }
    return out;
}

QString ppDataPath(const QString &folder)
{
    return QDir(folder).filePath(QStringLiteral("tvlpassp.dat"));
}

QString defaultPPDataPath()
{
    return ppDataPath(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
}

PPReadResult Read_PPData(const QString &path)
{
    PPReadResult result;
    if (!QFileInfo(path).isFile()) return result;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        result.status = PPReadStatus::Unreadable;
        result.message = QCoreApplication::translate("Passepartout",
                                                     "Die Datei %1 kann nicht gelesen werden: %2")
                             .arg(QDir::toNativeSeparators(path), file.errorString());
        return result;
    }
    return parsePPData(file.readAll());
}

WriteResult Write_PPData(const QString &path, const PPTable &table)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    const QByteArray bytes = serializePPData(table);
    return writeFileSafely(path, [&](QIODevice &out, QString &detail) {
        if (out.write(bytes) == bytes.size()) return true;
        detail = out.errorString();
        return false;
    });
}

void Sort_PPData(PPTable &table)
{
    guarded(QStringLiteral("Sort PPData"), [&] {
        std::stable_sort(table.begin(), table.end(), [](const PPRecord &a, const PPRecord &b) {
            const int c = a.sortName.compare(b.sortName, Qt::CaseInsensitive);
            return c != 0 ? c < 0 : a.sortName < b.sortName;
        });
    });
}

int findPassepartout(const PPTable &table, const QString &name)
{
    for (size_t i = 0; i < table.size(); ++i)
        if (table[i].valid && table[i].name.compare(name, Qt::CaseInsensitive) == 0) return int(i);
    return -1;
}

bool storableName(const QString &name)
{
    return std::all_of(name.begin(), name.end(), [](QChar c) { return c.unicode() < 256; });
}

} // namespace tf
