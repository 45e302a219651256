#include "desktop/QtDesktop.h"
#include "desktop/ZolmarkApplication.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char *argv[]) {
    testing::InitGoogleTest(&argc, argv);
    const QTemporaryDir home;
    for (const char *folder : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"}) {
        qputenv(folder, home.path().toUtf8());
    }
    qputenv("CUPS_SERVER", home.filePath(QStringLiteral("no-printers")).toUtf8());
    qputenv("LANG", "C.UTF-8");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QtDesktop desktop;
    ZolmarkApplication application(argc, argv, desktop);
    QApplication::setDoubleClickInterval(0);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    return RUN_ALL_TESTS();
}
