#include "desktop/Windows.h"

#include "desktop/QtDesktop.h"
#include "desktop/windows/WelcomeWindowView.h"
#include "setup/WelcomeWindow.h"
#include "support/MainWindowTest.h"
#include "support/ModalWindows.h"

static QWidget *VisibleWindow(const QString &name) {
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// The first start with the real desktop, before a database file exists.
class FirstStartTest : public testing::Test {
protected:
    FirstStartTest() { windows.Open(); }

    void Type(const QString &text) { ::Type(VisibleWindow("WelcomeWindow")->windowHandle(), text); }

    QtDesktop desktop;
    App app{desktop, UserLocale(QLocale::c())};
    Windows windows{app};
};

TEST_F(FirstStartTest, OpensTheSampleDatabaseFromTheWelcomeWindow) {
    auto *welcome = static_cast<QMainWindow *>(VisibleWindow("WelcomeWindow"));
    ASSERT_TRUE(welcome && !VisibleWindow("MainWindow"));
    EXPECT_TRUE(welcome->findChild<QAction *>("AboutItem")->isEnabled());
    const QPoint title = welcome->centralWidget()->pos() + QPoint(700, 22);
    const auto click = [=] {
        QTest::mouseClick(welcome->windowHandle(), Qt::LeftButton, {}, title);
    };
    EXPECT_FALSE(Press(Qt::Key_Return, click).isEmpty());
    const QWidget *main = VisibleWindow("MainWindow");
    ASSERT_TRUE(main && !VisibleWindow("WelcomeWindow"));
    EXPECT_EQ(main->findChild<QTableView *>("CashList")->model()->rowCount(), 5);
    EXPECT_FALSE(app.DefaultDatabaseFile().Exists());
}

TEST_F(FirstStartTest, CreatesADatabaseByKeyboard) {
    const auto pressReturn = [this] { Type("\r"); };
    pressReturn();
    EXPECT_TRUE(
        Press(Qt::Key_Return, pressReturn).contains("Bitte geben Sie einen Firmannamen an"));
    Type("Peter's\r\x1b\r{Down}"); // Escape goes back a page, and Return forward again.
    EXPECT_FALSE(Press(Qt::Key_Return, pressReturn).isEmpty()) << "the apostrophe is reported";
    const QPointer<QWidget> welcome = VisibleWindow("WelcomeWindow");
    Type("\x1b\b\b\r\r");
    QCoreApplication::processEvents();
    EXPECT_FALSE(welcome) << "the welcome window is deleted";
    EXPECT_TRUE(VisibleWindow("MainWindow") && !VisibleWindow("WelcomeWindow"));
    EXPECT_TRUE(app.DefaultDatabaseFile().Delete());
}

TEST(Windows, OpensTheMainWindowIfTheDatabaseExists) {
    TestEnvironment env(TestEnvironment::Storage::File);
    Windows windows(env.app);
    windows.Open();
    EXPECT_TRUE(VisibleWindow("MainWindow") && !VisibleWindow("WelcomeWindow"));
}

TEST(WelcomeWindowView, HighlightsTheHoveredButtonAndOpensTheManual) {
    TestEnvironment env; // Its desktop shows no message boxes and has no pictures.
    WelcomeWindow welcome(env.app);
    MainMenuBar menuBar;
    WelcomeWindowView view(welcome, menuBar, env.app.Locale());
    view.show();
    QTest::mouseMove(view.windowHandle(), {600, 200});
    QTest::mouseMove(view.windowHandle(), {700, 250});
    EXPECT_TRUE(
        QTest::qWaitFor([&view] { return view.grab().toImage().pixel(575, 290) == 0xffe6e6e6; }));
    Type(view.windowHandle(), "\t "); // From the button for a new database to the manual.
    EXPECT_EQ(env.desktop.opened, QStringList(env.desktop.Path("Resources/Zolmark.pdf")));
    auto *manual = view.findChild<QWidget *>("ManualCanvas");
    QTest::mouseClick(manual, Qt::LeftButton);
    QTest::mouseDClick(manual, Qt::LeftButton);
    EXPECT_EQ(env.desktop.opened.size(), 2) << "a double click opens the manual once";
}
