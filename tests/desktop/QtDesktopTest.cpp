#include "desktop/QtDesktop.h"

#include "desktop/TerminationSignals.h"
#include "desktop/ZolmarkApplication.h"
#include "platform/menus/MenuItem.h"
#include "support/MainWindowTest.h"
#include "support/ModalWindows.h"

#include <QDir>

#include <csignal>

/// Tests with a window that is shown but not active.
class QtDesktopTest : public testing::Test {
protected:
    QtDesktopTest() {
        window.setAttribute(Qt::WA_ShowWithoutActivating);
        window.show();
    }

    QWidget window;
    QtDesktop desktop;
    const QDir home = QDir::home();
};

TEST_F(QtDesktopTest, ShowsPlainMessagesAndTheAboutPanel) {
    QTimer::singleShot(0, [] {
        const QWidget &box = *QApplication::activeModalWidget();
        EXPECT_EQ(box.property("textFormat").toInt(), Qt::PlainText);
        EXPECT_EQ(box.windowModality(), Qt::WindowModal);
    });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        EXPECT_TRUE(Press(key, [this] { desktop.MsgBox("<b>\r\nfehlt"); }).contains("<b>\nfehlt"));
        EXPECT_TRUE(Press(key, [this] { desktop.ShowAboutPanel(); }).contains("Über Zolmark"));
    }
}

TEST_F(QtDesktopTest, ShowsFileDialogsInGerman) {
    std::optional<FolderItem> chosen;
    const auto save = [&] {
        chosen = desktop.ShowModal(
            {FolderItem(home.path()), "Titel", "export", {"TXT-Datei", ".txt"}, "Text"});
    };
    const QStringList texts = Press(Qt::Key_Return, save);
    for (const QString text : {"Titel", "S&peichern", "Text"}) {
        EXPECT_TRUE(texts.contains(text)) << text;
    }
    EXPECT_EQ(chosen->Path(), home.filePath("export.txt"));
    Press(Qt::Key_Escape, save);
    EXPECT_FALSE(chosen);
    Press(Qt::Key_Escape, [this] { EXPECT_FALSE(desktop.GetOpenFolderItem()); });
}

TEST_F(QtDesktopTest, PrintsToAFileWithoutAPrinter) {
    Press(Qt::Key_Escape, [this] { EXPECT_FALSE(desktop.OpenPrinterDialog("Bericht", {})); });
    Press(Qt::Key_Return, [this] { EXPECT_TRUE(desktop.OpenPrinterDialog("Bericht", {})); });
    QFile file(home.filePath("Bericht.pdf"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("\0B\0e\0r\0i\0c\0h\0t"_ba)) << "the title";
    EXPECT_TRUE(file.remove());
}

TEST_F(QtDesktopTest, ReturnsTheChosenItemOfAMenu) {
    MenuItem base;
    base.Append("Einnahme");
    base.Append("Ausgabe");
    const auto chosen = [&](const QString &keys) {
        QTimer::singleShot(0, [keys] { Type(QApplication::activePopupWidget(), keys); });
        return desktop.PopUp(base).value_or(-1);
    };
    EXPECT_EQ(chosen("{Down}\r"), 0);
    EXPECT_EQ(chosen("{Up}\r"), 1);
    EXPECT_EQ(chosen("\x1b"), -1);
}

TEST_F(QtDesktopTest, IgnoresARelativeDataFolder) {
    EXPECT_EQ(desktop.ApplicationData().Path(), home.path());
    qputenv("XDG_DATA_HOME", "data");
    EXPECT_EQ(desktop.ApplicationData().Path(), home.filePath(".local/share"));
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
}

TEST_F(QtDesktopTest, OpensFilesByTheViewerOrReportsThem) {
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", home.path().toUtf8());
    const auto open = [this] {
        desktop.ShowURL(home.filePath("opened"));
        desktop.Launch(FolderItem(home.path()));
        desktop.Launch(FolderItem("/no/manual.pdf")); // No message for a missing file.
    };
    const QString failures = Press(Qt::Key_Return, open, 2).join(' ');
    EXPECT_TRUE(failures.contains(home.filePath("opened") + " kann nicht geöffnet werden: "));
    EXPECT_TRUE(failures.contains(home.path() + " kann nicht geöffnet werden: "));
    EXPECT_TRUE(QFile::link("/usr/bin/touch", home.filePath("xdg-open")));
    Press(Qt::Key_Return, open, 0);
    EXPECT_TRUE(QTest::qWaitFor([this] { return home.exists("opened"); }));
    qputenv("PATH", before);
}

TEST_F(QtDesktopTest, ShowsAnExceptionInAMessage) {
    QTimer::singleShot(0, [] { throw std::runtime_error("Meldung"); });
    const QStringList texts = Press(Qt::Key_Return, [] { QApplication::processEvents(); });
    EXPECT_TRUE(texts.contains("Meldung"));
}

TEST_F(QtDesktopTest, ShowsNothingAfterTheEndOfTheApplication) {
    auto &application = *static_cast<ZolmarkApplication *>(qApp);
    QApplication::setQuitOnLastWindowClosed(false);
    QWidget later;
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, &application, &ZolmarkApplication::End);
        application.ShowException(std::runtime_error("shown"));
        QTimer::singleShot(0, [] { EXPECT_FALSE(QApplication::activeModalWidget()); });
        application.ShowException(std::runtime_error("not shown"));
        later.show(); // As the main window is shown after the message of the sample database.
    });
    EXPECT_EQ(RunEventLoop(), EXIT_SUCCESS);
    EXPECT_FALSE(window.isVisible());
    EXPECT_FALSE(later.isVisible());
    QTimer::singleShot(0, [] { throw std::runtime_error("not shown"); });
    EXPECT_EQ(RunEventLoop(), EXIT_FAILURE) << "no window is open";
}

TEST(TerminationSignals, AreRaisedOnceEach) {
    int raised = 0;
    const TerminationSignals signals;
    QObject::connect(&signals, &TerminationSignals::Raised, &signals, [&raised] { ++raised; });
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::raise(signal);
        QTest::qWait(1);
    }
    EXPECT_EQ(raised, 3);
}
