#include "shell/qt/Windows.h"

#include "setup/WelcomeWindow.h"
#include "shell/qt/QtDesktop.h"
#include "shell/qt/WelcomeWindowView.h"
#include "support/MainWindowTest.h"
#include "support/ModalWindows.h"

#include <QAction>
#include <QMainWindow>
#include <QMessageBox>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

QWidget *ShownWindow(const QString &name) {
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/// Does what opens message boxes, closes each with Return and gives their texts.
template <typename Action>
QStringList Boxes(const Action &action) {
    QStringList boxes;
    AnswerModalWindows(action, [&boxes](QWidget &window) {
        boxes.append(qobject_cast<QMessageBox *>(&window)->text());
        QTest::keyClick(&window, Qt::Key_Return);
    });
    return boxes;
}

/// A press on a point of the welcome window's 810 by 300 points.
void Click(QWidget *welcome, QPoint place) {
    auto *sheet = static_cast<QMainWindow *>(welcome)->centralWidget();
    QTest::mouseClick(welcome->windowHandle(), Qt::LeftButton, {}, sheet->pos() + place);
}

/// The first start on the real desktop, which has no book yet.
class FirstStartTest : public testing::Test {
protected:
    void SetUp() override {
        windows.Open();
        ASSERT_TRUE(welcome = ShownWindow(u"WelcomeWindow"_s));
        ASSERT_FALSE(ShownWindow(u"MainWindow"_s));
    }

    QtDesktop desktop;
    App app{desktop, UserLocale(QLocale::c())};
    Windows windows{app};
    QWidget *welcome = nullptr;
};

TEST_F(FirstStartTest, LeadsFromTheWelcomeWindowIntoTheSampleBook) {
    // On the title that lies over the button.
    EXPECT_EQ(Boxes([&] { Click(welcome, {700, 22}); }).size(), 1);
    EXPECT_FALSE(ShownWindow(u"WelcomeWindow"_s));
    QWidget *main = ShownWindow(u"MainWindow"_s);
    ASSERT_TRUE(main);
    EXPECT_EQ(main->findChild<QTableView *>(u"CashList"_s)->model()->rowCount(), 5);
    EXPECT_FALSE(app.DefaultDatabaseFile().Exists());
}

TEST_F(FirstStartTest, LeadsByTheKeysToABookOfOnesOwn) {
    const auto *pages = welcome->findChild<QStackedWidget *>(u"PagePanel1"_s);
    Type(welcome->windowHandle(), u"\r"_s);
    ASSERT_TRUE(welcome->focusWidget());
    EXPECT_EQ(welcome->focusWidget()->objectName(), u"CompanyField"_s);
    EXPECT_EQ(Boxes([&] { Type(welcome->windowHandle(), u"\r"_s); }),
              QStringList(u"Bitte geben Sie einen Firmannamen an"_s));
    Type(welcome->windowHandle(), u"Peter's\r"_s);
    EXPECT_EQ(pages->currentIndex(), 2);
    Type(welcome->windowHandle(), u"\x1b"_s);
    EXPECT_EQ(pages->currentIndex(), 1);
    Type(welcome->windowHandle(), u"\r{Down}"_s);
    EXPECT_EQ(Boxes([&] { Type(welcome->windowHandle(), u"\r"_s); }).size(), 1);
    EXPECT_TRUE(app.DefaultDatabaseFile().Exists());
    Type(welcome->windowHandle(), u"\x1b\b\b\r\r"_s);
    EXPECT_FALSE(ShownWindow(u"WelcomeWindow"_s));
    EXPECT_TRUE(ShownWindow(u"MainWindow"_s));
    app.NewDatabase();
    EXPECT_EQ(ReadWithShell(app, u"SELECT company, account_frame FROM core_company"_s),
              u"Peter|SKR-03"_s);
    EXPECT_TRUE(app.DefaultDatabaseFile().Delete());
}

TEST(Windows, OpenTheMainWindowAtOnceOnABookInItsPlace) {
    Book book(Book::Place::File);
    Windows windows(book.app);
    windows.Open();
    EXPECT_TRUE(ShownWindow(u"MainWindow"_s));
    EXPECT_FALSE(ShownWindow(u"WelcomeWindow"_s));
}

TEST(Windows, CloseOnAFailedCreationWithoutItsFile) {
    Book book; // Its desktop tells without a box, and has no pictures.
    WelcomeWindow welcome(book.app);
    WelcomeWindowView view(welcome, book.app.Locale());
    view.show();
    const QImage plain = view.grab().toImage();
    QTest::mouseMove(view.windowHandle(), {600, 200});
    QTest::mouseMove(view.windowHandle(), {700, 250});
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.grab().toImage() != plain; }));
    Type(view.windowHandle(), u"\t "_s); // From the new book to the manual.
    welcome.AccountNameField.SetText(u"'"_s);
    welcome.SaveButton.Press();
    EXPECT_EQ(book.desktop.TakeMessages(), u"Error: near \"1000\": syntax error"_s);
    EXPECT_TRUE(book.app.DefaultDatabaseFile().Exists());
    const QString manual = book.desktop.Path(u"Resources/Zolmark.pdf"_s);
    EXPECT_FALSE(view.findChild<QAction *>(u"FilePrint"_s)->isEnabled());
    view.findChild<QAction *>(u"AboutItem"_s)->trigger();
    Click(&view, {700, 250});
    EXPECT_EQ(book.desktop.opened, QStringList({manual, u"about"_s, manual}));
    view.findChild<QAction *>(u"FileQuit"_s)->trigger();
    EXPECT_FALSE(view.isVisible());
    EXPECT_FALSE(book.app.DefaultDatabaseFile().Exists());
}

} // namespace
