#pragma once
// Runs the built program as a separate process, headless, and gives its exit code and output.
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

inline Outcome forge(const QStringList &args)
{
    static QTemporaryDir runtime; // private to the user, as the runtime folder must be
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    env.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtime.path());
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(QStringLiteral(TF_EXE), args);
    EXPECT_TRUE(p.waitForFinished(120000));
    return {p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1,
            QString::fromUtf8(p.readAllStandardOutput()), QString::fromUtf8(p.readAllStandardError())};
}

} // namespace forgetest
