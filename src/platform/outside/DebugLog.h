#pragma once

#include <QString>

/// Writes a line to the debug log, which is never shown to the user. Disabled by default; set
/// QT_LOGGING_RULES="zolmark.debug=true" in the environment to enable it.
void DebugLog(const QString &line);
