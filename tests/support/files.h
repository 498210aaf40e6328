#pragma once
// Whole files as bytes, for tests that lay down inputs and compare what was written.
#include <QByteArray>
#include <QFile>
#include <QString>
#include <gtest/gtest.h>

// The bytes of the file at `path`; empty when it cannot be read.
inline QByteArray bytesOf(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

// Writes `bytes` as the whole file at `path`.
inline void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly)) << path.toStdString();
    f.write(bytes);
}
