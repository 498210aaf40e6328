#include "core/singleinstance.h"

#include "core/prompter.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

namespace tf {

QString SingleInstance::defaultLockPath()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) +
           QStringLiteral("/tarvelle-forge.lock");
}

SingleInstance::SingleInstance(const QString &lockPath)
    : m_path(lockPath), m_lock(std::make_unique<QLockFile>(lockPath))
{
    // Only a lock whose program is gone counts as stale, never one that is merely old.
    m_lock->setStaleLockTime(0);
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::tryLock()
{
    if (m_lock->isLocked())
        return true;
    QDir().mkpath(QFileInfo(m_path).absolutePath());
    return m_lock->tryLock(0);
}

bool SingleInstance::isLocked() const { return m_lock->isLocked(); }

void SingleInstance::showAlreadyRunning()
{
    Prompt p;
    p.title = tr("Sorry");
    p.text = tr("Tarvelle-Forge is running soon!");
    p.icon = Icon::Information;
    currentPrompter().ask(p);
}

} // namespace tf
