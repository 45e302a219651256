#include "core/App.h"
#include "desktop/QtDesktop.h"
#include "desktop/TerminationSignals.h"
#include "desktop/Windows.h"
#include "desktop/ZolmarkApplication.h"

#include <QIcon>

namespace {

int Run(ZolmarkApplication &application, QtDesktop &desktop) {
    App app(desktop, UserLocale(QLocale::system()));
    QLocale::setDefault(app.Locale().Locale());
    QApplication::setWindowIcon(QIcon(app.Resource(QStringLiteral("zolmark.png")).Path()));
    const TerminationSignals endOfSession;
    QObject::connect(&endOfSession, &TerminationSignals::Raised, &application,
                     &ZolmarkApplication::End);
    Windows windows(app);
    // In the event loop, which a signal can end also while the first message stands.
    QMetaObject::invokeMethod(&windows, &Windows::Open, Qt::QueuedConnection);
    return ZolmarkApplication::exec();
}

} // namespace

int main(int argc, char *argv[]) {
    QtDesktop desktop;
    ZolmarkApplication application(argc, argv, desktop);
    try {
        return Run(application, desktop);
    } catch (const std::exception &exception) {
        application.Tell(exception);
        return EXIT_FAILURE;
    }
}
