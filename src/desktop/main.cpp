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

/// Answers on the terminal, without a display, what is asked there; false if nothing is.
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

/// Where the toolkit finds no display, it would end the program with a list of its plugins.
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
    // In the event loop, which a signal can end also while the first message stands.
    QMetaObject::invokeMethod(&windows, &Windows::Open, Qt::QueuedConnection);
    return ZolmarkApplication::exec();
}

} // namespace

int main(int argc, char *argv[]) {
    if (HandleOption(argc, argv)) {
        return EXIT_SUCCESS;
    }
    // The toolkit's salted hash, as of Qt 6.4, leaves processors with vector AES in a state that
    // slows all code after it, by half again. Without a salt it takes another; whoever could choose
    // texts that collide in it has the book open already.
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
