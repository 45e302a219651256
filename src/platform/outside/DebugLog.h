#pragma once

#include <QString>

/// Writes a line to the debug log, which the user never sees. It is off unless the environment asks
/// for it with QT_LOGGING_RULES="zolmark.debug=true".
void DebugLog(const QString &line);
