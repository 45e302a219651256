#include "PaintWatch.h"
#include "core/App.h"
#include "shell/qt/QtDesktop.h"
#include "shell/qt/TerminationSignals.h"
#include "shell/qt/Windows.h"
#include "shell/qt/ZolmarkApplication.h"

#include <QIcon>

/// The program itself, step by step as its own main, watched from the moment its windows open.
int main(int argc, char *argv[]) {
    QtDesktop desktop;
    ZolmarkApplication application(argc, argv, desktop);
    App app(desktop, UserLocale(QLocale::system()));
    QLocale::setDefault(app.Locale().Locale());
    QApplication::setWindowIcon(QIcon(app.Resource(QStringLiteral("zolmark.png")).Path()));
    const TerminationSignals endOfSession;
    const PaintWatch watch(QStringLiteral("MainWindow"));
    Windows windows(app);
    windows.Open();
    return ZolmarkApplication::exec();
}
