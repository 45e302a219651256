#include "shell/qt/Windows.h"

#include "shell/qt/QtDesktop.h"
#include "support/Book.h"

#include <QApplication>
#include <QMessageBox>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

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

TEST(Windows, LeadFromTheWelcomeWindowIntoTheSampleBook) {
    QtDesktop desktop;
    App app(desktop, UserLocale(QLocale::c()));
    ASSERT_FALSE(app.DefaultDatabaseFile().Exists());
    Windows windows(app);
    windows.Open();
    QWidget *welcome = ShownWindow(u"WelcomeWindow"_s);
    ASSERT_TRUE(welcome);
    EXPECT_FALSE(ShownWindow(u"MainWindow"_s));

    QStringList boxes;
    QTimer look; // The box blocks the click that opens it.
    int looks = 0;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            boxes.append(box->text());
            QTest::keyClick(box, Qt::Key_Return);
        } else if (++looks == 1000) {
            look.stop();
        }
    });
    look.start(10);
    // On the title that lies over the button.
    QTest::mouseClick(welcome->windowHandle(), Qt::LeftButton, {}, {700, 22});
    EXPECT_EQ(boxes.size(), 1);
    EXPECT_FALSE(ShownWindow(u"WelcomeWindow"_s));
    QWidget *main = ShownWindow(u"MainWindow"_s);
    ASSERT_TRUE(main);
    EXPECT_EQ(main->findChild<QTableView *>(u"CashList"_s)->model()->rowCount(), 5);
    EXPECT_FALSE(app.DefaultDatabaseFile().Exists());
}

TEST(Windows, OpenTheMainWindowAtOnceOnABookInItsPlace) {
    Book book(Book::Place::File);
    Windows windows(book.app);
    windows.Open();
    EXPECT_TRUE(ShownWindow(u"MainWindow"_s));
    EXPECT_FALSE(ShownWindow(u"WelcomeWindow"_s));
}

} // namespace
