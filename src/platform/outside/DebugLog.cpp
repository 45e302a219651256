#include "platform/outside/DebugLog.h"

#include <QLoggingCategory>

Q_LOGGING_CATEGORY(zolmark, "zolmark", QtInfoMsg)

void DebugLog(const QString &line) {
    qCDebug(zolmark).noquote() << line;
}
