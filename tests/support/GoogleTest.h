#pragma once

#include <QString>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

inline std::ostream &operator<<(std::ostream &out, const QString &text) {
    return out << '"' << qUtf8Printable(text) << '"';
}
inline void PrintTo(const QString &text, std::ostream *out) {
    *out << text;
}
