#pragma once

#include <QByteArray>
#include <QString>

namespace Encodings {

/// Returns the text in code page 1252. Characters missing in the code page are transliterated to
/// ASCII where possible (Ł to L), otherwise replaced by a question mark.
QByteArray WindowsANSI(const QString &text);

} // namespace Encodings
