#pragma once

#include <QString>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

inline void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << qUtf8Printable(text) << '"';
}
