#include "PaintWatch.h"

namespace {

/// Linked with the program's own main.
void WatchMainWindow() {
    new PaintWatch(QStringLiteral("MainWindow"), QCoreApplication::instance());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(WatchMainWindow)
