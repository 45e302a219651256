#pragma once

#include <QString>
#include <gtest/gtest.h>

#include <ostream>

/// How a failed expectation shows a text.
inline void PrintTo(const QString &text, std::ostream *out) {
    *out << '"' << qUtf8Printable(text) << '"';
}
