#include "PaintWatch.h"

namespace {

/// Linked beside the program's own main, of which it knows nothing.
void WatchMainWindow() {
    new PaintWatch(QStringLiteral("MainWindow"), QCoreApplication::instance());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(WatchMainWindow)
