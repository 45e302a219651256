#include "core/App.h"
#include "shell/qt/QtDesktop.h"
#include "shell/qt/TerminationSignals.h"
#include "shell/qt/Windows.h"
#include "shell/qt/ZolmarkApplication.h"

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
