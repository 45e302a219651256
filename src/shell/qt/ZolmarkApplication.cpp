#include "shell/qt/ZolmarkApplication.h"

#include "platform/Desktop.h"

#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QTranslator>

using namespace Qt::StringLiterals;

ZolmarkApplication::ZolmarkApplication(int &argc, char **argv, Desktop &desktop)
    : QApplication(argc, argv), desktop_(desktop) {
    setApplicationName(u"Zolmark"_s);
    setApplicationVersion(QStringLiteral(ZOLMARK_VERSION));
    setDesktopFileName(u"zolmark"_s);
    auto *translator = new QTranslator(this);
    if (translator->load(u"qtbase_de"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        installTranslator(translator);
    } else {
        qWarning("The German texts of the toolkit are not installed.");
    }
}

bool ZolmarkApplication::notify(QObject *receiver, QEvent *event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &exception) {
        desktop_.MsgBox(QString::fromLocal8Bit(exception.what()));
        return true;
    }
}
