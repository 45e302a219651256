#include "desktop/ZolmarkApplication.h"

#include "desktop/QtDesktop.h"

#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QThread>
#include <QTimer>
#include <QTranslator>
#include <QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int retryMs = 20;

bool HasWindow() {
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(),
                       [](const QWidget *window) { return window->isVisible(); });
}

} // namespace

const char *const ZolmarkApplication::version = ZOLMARK_VERSION;

ZolmarkApplication::ZolmarkApplication(int &argc, char **argv, QtDesktop &desktop)
    : QApplication(argc, argv), desktop_(desktop) {
    setApplicationName(u"Zolmark"_s);
    setApplicationVersion(QLatin1StringView(version));
    setDesktopFileName(u"zolmark"_s);
    auto *translator = new QTranslator(this);
    if (translator->load(u"qtbase_de"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(translator);
    } else {
        qWarning("The German texts of Qt are not installed.");
    }
}

bool ZolmarkApplication::notify(QObject *receiver, QEvent *event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &exception) {
        ShowException(exception);
        if (!HasWindow()) {
            exit(EXIT_FAILURE);
        }
        return true;
    }
}

void ZolmarkApplication::ShowException(const std::exception &exception) {
    desktop_.MsgBox(QString::fromLocal8Bit(exception.what()));
}

void ZolmarkApplication::End() {
    desktop_.SuppressDialogs();
    closeAllWindows();
    if (QThread::currentThread()->loopLevel() > 1) {
        // The nested event loop of a dialog returns first; the code after it may open a window.
        QTimer::singleShot(retryMs, this, &ZolmarkApplication::End);
    } else {
        exit(EXIT_SUCCESS);
    }
}
