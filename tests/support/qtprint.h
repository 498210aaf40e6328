#pragma once
// Readable test failures for Qt's value types.
#include <QString>
#include <ostream>

inline void PrintTo(const QString &s, std::ostream *os) { *os << '"' << s.toStdString() << '"'; }
