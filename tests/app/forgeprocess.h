#pragma once
// Runs the built program as a separate process, headless, and gives its exit code and output.
#include "support/files.h"

#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace forgetest {

struct Outcome {
    int code = -1;
    QString out;
    QString err;
};

// Runs `program` offscreen with a runtime folder of its own (private to the user, as that folder
// must be); `extra` adds to or replaces the environment, `workingDir` is where it runs.
inline Outcome run(const QString &program, const QStringList &args,
                   const QProcessEnvironment &extra = {}, const QString &workingDir = {})
{
    static QTemporaryDir runtime;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
    env.insert(extra);
    QProcess p;
    p.setProcessEnvironment(env);
    if (!workingDir.isEmpty()) p.setWorkingDirectory(workingDir);
    p.start(program, args);
    EXPECT_TRUE(p.waitForFinished(120000)) << program.toStdString();
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
            QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
}

inline Outcome forge(const QStringList &args, const QProcessEnvironment &extra = {},
                     const QString &workingDir = {})
{
    return run(QStringLiteral(TF_EXE), args, extra, workingDir);
}

} // namespace forgetest
