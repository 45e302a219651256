#include "desktop/Windows.h"

#include "desktop/QtDesktop.h"
#include "desktop/windows/WelcomeWindowView.h"
#include "setup/WelcomeWindow.h"
#include "support/MainWindowTest.h"
#include "support/ModalWindows.h"

/// The first start with the real desktop, before a database file exists.
class FirstStartTest : public testing::Test {
protected:
    FirstStartTest() { windows.Open(); }

    static QMainWindow *ActiveWindow() {
        QApplication::processEvents();
        return static_cast<QMainWindow *>(QApplication::activeWindow());
    }

    QtDesktop desktop;
    App app{desktop, UserLocale(QLocale::c())};
    Windows windows{app};
};

TEST_F(FirstStartTest, OpensTheSampleDatabaseByMouse) {
    const QPointer<QMainWindow> welcome = ActiveWindow();
    EXPECT_TRUE(welcome->findChild<QAction *>("AboutItem")->isEnabled());
    EXPECT_FALSE(welcome->findChild<QAction *>("FileExport")->isEnabled());
    const QPoint title = welcome->centralWidget()->pos() + QPoint(700, 22);
    Press(Qt::Key_Return,
          [&] { QTest::mouseClick(welcome->windowHandle(), Qt::LeftButton, {}, title); });
    const auto &list = *ActiveWindow()->findChild<QTableView *>("CashList");
    EXPECT_EQ(list.model()->rowCount(), 5);
    EXPECT_FALSE(welcome) << "the window is deleted";
}

TEST_F(FirstStartTest, CreatesADatabaseByKeyboardAndOpensItTheNextTime) {
    QMainWindow &welcome = *ActiveWindow();
    const auto type = [&](const QString &keys) { Type(welcome.windowHandle(), keys); };
    type("\r");
    Press(Qt::Key_Return, [&] { type("\r"); }); // The name of the company is missing.
    type("Muster\r\x1b\r\r");                   // Escape goes back a page.
    Windows next(app);
    next.Open();
    EXPECT_EQ(ActiveWindow()->objectName(), "MainWindow");
    EXPECT_TRUE(app.DefaultDatabaseFile().Delete());
}

TEST(WelcomeWindowView, HighlightsTheHoveredButtonAndOpensTheManual) {
    TestEnvironment env; // Has no pictures.
    WelcomeWindow welcome(env.app);
    MainMenuBar menuBar;
    WelcomeWindowView view(welcome, menuBar, env.app.Locale());
    view.show();
    QTest::mouseMove(view.windowHandle(), {600, 200});
    QTest::mouseMove(view.windowHandle(), {700, 250});
    EXPECT_TRUE(
        QTest::qWaitFor([&view] { return view.grab().toImage().pixel(575, 290) == 0xffe6e6e6; }));
    auto *manual = view.findChild<QWidget *>("ManualCanvas");
    QTest::mouseClick(manual, Qt::LeftButton);
    QTest::mouseDClick(manual, Qt::LeftButton);
    EXPECT_EQ(env.desktop.opened.size(), 1) << "a double click opens the manual once";
}
