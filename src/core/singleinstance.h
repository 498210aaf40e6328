#pragma once
// One running program per user: a lock file in the user's runtime folder.
//
// The lock is held from a successful tryLock() until the object is destroyed. A lock file
// left by a program that no longer runs (a crash) is taken over; one held by a running
// program is refused, however old it is.

#include <QCoreApplication>
#include <QString>
#include <memory>

class QLockFile;

namespace tf {

class SingleInstance {
    Q_DECLARE_TR_FUNCTIONS(SingleInstance)

public:
    // <RuntimeLocation>/tarvelle-forge.lock
    static QString defaultLockPath();

    explicit SingleInstance(const QString &lockPath = defaultLockPath());
    ~SingleInstance();
    SingleInstance(const SingleInstance &) = delete;
    SingleInstance &operator=(const SingleInstance &) = delete;

    // Takes the lock; false when another running program (or another object of this one)
    // holds it, or the lock file cannot be made.
    bool tryLock();
    bool isLocked() const;
    QString lockPath() const { return m_path; }

    // The box the second program shows before it ends: title "Sorry", "Tarvelle-Forge is
    // running soon!", through the installed prompter.
    static void showAlreadyRunning();

private:
    QString m_path;
    std::unique_ptr<QLockFile> m_lock;
};

} // namespace tf
