#include "setup/WelcomeWindow.h"

#include "shell/MainWindow.h"
#include "support/Book.h"

#include <QFile>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Writes down what the window signals, in its order.
void Follow(WelcomeWindow &welcome, QStringList &signalled) {
    QObject::connect(&welcome, &WelcomeWindow::Closed, &welcome,
                     [&] { signalled.append(u"Closed"_s); });
    QObject::connect(&welcome, &WelcomeWindow::MainWindowWanted, &welcome,
                     [&] { signalled.append(u"MainWindowWanted"_s); });
    welcome.Event_Open();
}

TEST(WelcomeWindow, MakesTheSampleBookInMemoryAlone) {
    FakeDesktop desktop;
    desktop.now = Date(QDate(2031, 7, 1));
    App app(desktop, UserLocale(QLocale::c()));
    WelcomeWindow welcome(app);
    QStringList signalled;
    Follow(welcome, signalled);
    EXPECT_EQ(signalled, QStringList());
    Q_EMIT welcome.DemoCanvas.MouseDown(1, 1);
    EXPECT_EQ(signalled, QStringList({u"MainWindowWanted"_s, u"Closed"_s}));
    EXPECT_EQ(desktop.messages.size(), 1);
    EXPECT_TRUE(desktop.messages.join(u""_s).startsWith(u"In der Demo werden Beispieldaten "_s));
    MainWindow window(app);
    window.Event_Open();
    const Listbox &list = window.journal.CashList;
    EXPECT_EQ(list.Cell(-1, Journal::DateColumn),
              u"07.01.2031\n12.01.2031\n14.01.2031\n14.01.2031\n15.01.2031"_s);
    EXPECT_EQ(list.Cell(-1, Journal::Balance), u"238,89\n234,39\n167,94\n180,84\n280,84"_s);
    EXPECT_EQ(window.balances.OpeningBalanceLabel.Text(), u"88,90"_s);
    EXPECT_EQ(window.balances.LastAmountLabel.Text(), u"280,84"_s);
    EXPECT_FALSE(desktop.ApplicationData().Exists());
}

TEST(WelcomeWindow, HandsOverToTheMainWindowEvenOnADamagedFile) {
    Book book(Book::Place::File);
    book.app.NewDatabase();
    ASSERT_TRUE(QFile::resize(book.app.DefaultDatabaseFile().Path(), 1500));
    WelcomeWindow welcome(book.app);
    QStringList signalled;
    Follow(welcome, signalled);
    EXPECT_EQ(signalled, QStringList({u"Closed"_s, u"MainWindowWanted"_s}));
    QStringList &messages = book.desktop.messages;
    ASSERT_EQ(messages.size(), 1);
    EXPECT_TRUE(messages.takeFirst().startsWith(u"DB Connection Error: "_s));
    MainWindow window(book.app);
    window.Event_Open();
    EXPECT_EQ(window.selectors.CashbookPopup.ListCount(), 0);
    EXPECT_FALSE(messages.isEmpty());
    EXPECT_EQ(messages.filter(u"DB Error: "_s), messages);
}

} // namespace
