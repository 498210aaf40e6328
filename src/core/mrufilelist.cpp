#include "core/mrufilelist.h"

#include "core/settings.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

namespace tf {

namespace {

const QString kSubKey = QString::fromLatin1(SubKey::Common);

// Older lists may have been longer; their surplus entries are removed up to this number.
constexpr int kStoredEntriesMax = 32;

} // namespace

void cMRUFileList::setMaxFileCount(int count)
{
    m_max = std::max(1, count);
    while (m_files.size() > m_max)
        m_files.removeLast();
}

QString cMRUFileList::file(int iIndex) const
{
    return iIndex >= 1 && iIndex <= FileCount() ? m_files.at(iIndex - 1) : QString();
}

bool cMRUFileList::FileExists(int iIndex) const
{
    const QString name = file(iIndex);
    return !name.isEmpty() && QFileInfo(name).isFile();
}

QString cMRUFileList::MenuCaption(int iIndex) const
{
    const QString name = file(iIndex);
    if (name.isEmpty())
        return QString();
    QString shown = shortenPath(name, CaptionMaxPath);
    shown.replace(QLatin1Char('&'), QLatin1String("&&"));
    return QLatin1Char('&') + QString::number(iIndex) + QLatin1Char(' ') + shown;
}

void cMRUFileList::AddFile(const QString &sfileName)
{
    if (sfileName.trimmed().isEmpty())
        return;
    const QString name = QDir::cleanPath(sfileName);
    m_files.removeAll(name);
    m_files.prepend(name);
    while (m_files.size() > m_max)
        m_files.removeLast();
}

void cMRUFileList::Save(SettingsStore &store) const
{
    store.Put_Setting(kSubKey, QStringLiteral("RecMaxCount"), m_max);
    store.Put_Setting(kSubKey, QStringLiteral("RecCount"), FileCount());
    for (int i = 1; i <= FileCount(); ++i)
        store.Put_Setting(kSubKey, QStringLiteral("RecFile%1").arg(i), m_files.at(i - 1));
    for (int i = FileCount() + 1; i <= kStoredEntriesMax; ++i)
        store.removeSetting(kSubKey, QStringLiteral("RecFile%1").arg(i));
}

void cMRUFileList::Load(const SettingsStore &store)
{
    m_files.clear();
    const int count = std::clamp(store.Get_Setting(kSubKey, QStringLiteral("RecCount"), 0), 0,
                                 kStoredEntriesMax);
    for (int i = 1; i <= count && m_files.size() < m_max; ++i) {
        const QString name = store.Get_Setting(kSubKey, QStringLiteral("RecFile%1").arg(i), QString());
        if (name.trimmed().isEmpty())
            continue;
        const QString clean = QDir::cleanPath(name);
        if (!m_files.contains(clean))
            m_files.append(clean);
    }
}

QString shortenPath(const QString &path, int maxLength)
{
    if (path.size() <= maxLength)
        return path;
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    if (slash <= 0)
        return path; // a bare file name, or one in the root, has nothing to shorten
    const QString fileName = path.mid(slash + 1);
    const QString dir = path.left(slash);
    const QString ellipsis = QStringLiteral("...");

    // The head: the root and the first folder ("/home", "C:", "docs").
    const int headEnd = dir.indexOf(QLatin1Char('/'), dir.startsWith(QLatin1Char('/')) ? 1 : 0);
    const QString head = headEnd < 0 ? QString() : dir.left(headEnd);
    QString best = ellipsis + QLatin1Char('/') + fileName;
    if (head.isEmpty())
        return best;

    QString tail; // "/a/b" of the last folders taken so far
    QString candidate = head + QLatin1Char('/') + ellipsis + QLatin1Char('/') + fileName;
    if (candidate.size() > maxLength)
        return best;
    best = candidate;
    int end = dir.size();
    while (true) {
        const int from = dir.lastIndexOf(QLatin1Char('/'), end - 1);
        if (from <= headEnd)
            break; // the next folder would be the head's own
        tail = dir.mid(from, end - from) + tail;
        candidate = head + QLatin1Char('/') + ellipsis + tail + QLatin1Char('/') + fileName;
        if (candidate.size() > maxLength)
            break;
        best = candidate;
        end = from;
    }
    return best;
}

} // namespace tf
