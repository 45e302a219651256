#pragma once

#include <QByteArray>
#include <QString>

namespace Encodings {

/// The text in code page 1252. A character that it lacks is written as its likeness in plain
/// letters where there is one (Ł as L), else as a question mark.
QByteArray WindowsANSI(const QString &text);

} // namespace Encodings
