#include "desktop/Windows.h"

#include "desktop/QtDesktop.h"
#include "desktop/windows/WelcomeWindowView.h"
#include "setup/WelcomeWindow.h"
#include "support/MainWindowTest.h"
#include "support/ModalWindows.h"

static QWidget *Shown(const QString &name) {
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name && window->isVisible()) { return window; }
    }
    return nullptr;
}

/// The first start on the real desktop, which has no book yet.
class FirstStartTest : public testing::Test {
protected:
    FirstStartTest() { windows.Open(); }

    void Type(const QString &text) { ::Type(Shown(u"WelcomeWindow"_s)->windowHandle(), text); }

    QtDesktop desktop;
    App app{desktop, UserLocale(QLocale::c())};
    Windows windows{app};
};

TEST_F(FirstStartTest, LeadsFromTheWelcomeWindowIntoTheSampleBook) {
    auto *welcome = static_cast<QMainWindow *>(Shown(u"WelcomeWindow"_s));
    ASSERT_TRUE(welcome && !Shown(u"MainWindow"_s));
    EXPECT_TRUE(welcome->findChild<QAction *>(u"AboutItem"_s)->isEnabled());
    const QPoint title = welcome->centralWidget()->pos() + QPoint(700, 22);
    const auto click = [=] { QTest::mouseClick(welcome->windowHandle(), Qt::LeftButton, {}, title); };
    EXPECT_FALSE(Press(Qt::Key_Return, click).isEmpty());
    const QWidget *main = Shown(u"MainWindow"_s);
    ASSERT_TRUE(main && !Shown(u"WelcomeWindow"_s));
    EXPECT_EQ(main->findChild<QTableView *>(u"CashList"_s)->model()->rowCount(), 5);
    EXPECT_FALSE(app.DefaultDatabaseFile().Exists());
}

TEST_F(FirstStartTest, LeadsByTheKeysToABookOfOnesOwn) {
    const auto pressReturn = [this] { Type(u"\r"_s); };
    pressReturn();
    EXPECT_TRUE(Press(Qt::Key_Return, pressReturn).contains(u"Bitte geben Sie einen Firmannamen an"_s));
    Type(u"Peter's\r\x1b\r{Down}"_s); // Escape leads back, and Return on again.
    EXPECT_FALSE(Press(Qt::Key_Return, pressReturn).isEmpty()) << "for the apostrophe";
    const QPointer<QWidget> welcome = Shown(u"WelcomeWindow"_s);
    Type(u"\x1b\b\b\r\r"_s);
    QCoreApplication::processEvents();
    EXPECT_FALSE(welcome) << "it is released";
    EXPECT_TRUE(Shown(u"MainWindow"_s) && !Shown(u"WelcomeWindow"_s));
    EXPECT_TRUE(app.DefaultDatabaseFile().Delete());
}

TEST(Windows, OpenTheMainWindowAtOnceOnABookInItsPlace) {
    TestEnvironment env(TestEnvironment::Storage::File);
    Windows windows(env.app);
    windows.Open();
    EXPECT_TRUE(Shown(u"MainWindow"_s) && !Shown(u"WelcomeWindow"_s));
}

TEST(WelcomeWindowView, ShowsThePointedButtonAndOpensTheManualByKeys) {
    TestEnvironment env; // Its desktop tells without a box, and has no pictures.
    WelcomeWindow welcome(env.app);
    MainMenuBar menuBar;
    WelcomeWindowView view(welcome, menuBar, env.app.Locale());
    view.show();
    QTest::mouseMove(view.windowHandle(), {600, 200});
    QTest::mouseMove(view.windowHandle(), {700, 250});
    EXPECT_TRUE(QTest::qWaitFor([&view] { return view.grab().toImage().pixel(575, 290) == 0xffe6e6e6; }));
    Type(view.windowHandle(), u"\t "_s); // From the new book to the manual.
    EXPECT_EQ(env.desktop.opened, QStringList(env.desktop.Path(u"Resources/Zolmark.pdf"_s)));
    auto *manual = view.findChild<QWidget *>(u"ManualCanvas"_s);
    QTest::mouseClick(manual, Qt::LeftButton);
    QTest::mouseDClick(manual, Qt::LeftButton);
    EXPECT_EQ(env.desktop.opened.size(), 2) << "a double click opens it once";
}
