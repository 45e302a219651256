#include "core/App.h"
#include "desktop/QtDesktop.h"
#include "desktop/TerminationSignals.h"
#include "desktop/Windows.h"
#include "desktop/ZolmarkApplication.h"

#include <QHashSeed>
#include <QIcon>

#include <cstdio>
#include <cstring>

namespace {

/// Handles an option that prints to the terminal and needs no display; returns false without one.
bool HandleOption(int argc, const char *const *argv) {
    const char *option = argc == 2 ? argv[1] : "";
    if (std::strcmp(option, "--version") == 0) {
        std::printf("Zolmark %s\n", ZolmarkApplication::Version());
        return true;
    }
    if (std::strcmp(option, "--help") == 0) {
        std::puts("Zolmark führt Kassenbücher für Selbstständige und Freiberufler.\n\n"
                  "Aufruf: zolmark [--help | --version]\n\n"
                  "Alles andere geschieht im Fenster; Hilfe > Kurzanleitung öffnet das Handbuch.");
        return true;
    }
    return false;
}

/// Replaces the list of Qt's platform plugins by a German message when there is no display.
void ReportMissingDisplay(QtMsgType type, const QMessageLogContext &context,
                          const QString &message) {
    if (type == QtFatalMsg) {
        std::fputs("Zolmark kann kein Fenster öffnen: Es ist keine Anzeige erreichbar.\n", stderr);
        std::_Exit(EXIT_FAILURE);
    }
    if (!QByteArrayView(context.category).startsWith("qt.qpa")) {
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
    }
}

int Run(ZolmarkApplication &application, QtDesktop &desktop) {
    App app(desktop, UserLocale(QLocale::system()));
    QLocale::setDefault(app.Locale().Locale());
    QApplication::setWindowIcon(QIcon(app.Resources().Child(QStringLiteral("zolmark.png")).Path()));
    const TerminationSignals endOfSession;
    QObject::connect(&endOfSession, &TerminationSignals::Raised, &application,
                     &ZolmarkApplication::End);
    Windows windows(app);
    // From the event loop, so that a signal can end the program while a first message box is open.
    QMetaObject::invokeMethod(&windows, &Windows::Open, Qt::QueuedConnection);
    return ZolmarkApplication::exec();
}

} // namespace

int main(int argc, char *argv[]) {
    if (HandleOption(argc, argv)) {
        return EXIT_SUCCESS;
    }
    // The salted hash of Qt 6.4 leaves processors with vector AES in a state that slows all later
    // code by half. Without a salt Qt uses another hash; colliding texts can only come from the
    // user's own database.
    QHashSeed::setDeterministicGlobalSeed();
    QtDesktop desktop;
    qInstallMessageHandler(ReportMissingDisplay);
    ZolmarkApplication application(argc, argv, desktop);
    qInstallMessageHandler(nullptr);
    try {
        return Run(application, desktop);
    } catch (const std::exception &exception) {
        application.ShowException(exception);
        return EXIT_FAILURE;
    }
}
