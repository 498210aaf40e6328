#pragma once
// The shared folder of real test files; a test that reads them skips when it is not there.
#include <QDir>
#include <QString>
#include <gtest/gtest.h>

inline QString testdataPath(const QString &relative)
{
    return QStringLiteral(TF_TESTDATA_DIR "/") + relative;
}

#define TF_REQUIRE_TESTDATA()                                                                 \
    do {                                                                                       \
        if (QStringLiteral(TF_TESTDATA_DIR).isEmpty() || !QDir(QStringLiteral(TF_TESTDATA_DIR)).exists()) \
            GTEST_SKIP() << "the shared test data folder is not there";                       \
    } while (0)
