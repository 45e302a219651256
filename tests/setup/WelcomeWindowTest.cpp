#include "setup/WelcomeWindow.h"

#include "shell/MainWindow.h"
#include "support/Book.h"

#include <QFile>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

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

/// A first start, and the roads through the window's controls to a book of one's own.
class FirstStartTest : public testing::Test {
protected:
    FirstStartTest() { Follow(welcome, signalled); }

    void FillCompany(const QString &name) {
        Q_EMIT welcome.NewCanvas.MouseDown(1, 1);
        welcome.CompanyField.SetText(name);
        welcome.ForwardButton.Press();
    }

    QString Read(const QString &sql) const {
        return ReadWithShell(app.DefaultDatabaseFile().Path(), sql).trimmed();
    }

    QString TakeMessage() {
        EXPECT_EQ(desktop.messages.size(), 1);
        return desktop.messages.isEmpty() ? QString() : desktop.messages.takeFirst();
    }

    FakeDesktop desktop;
    App app{desktop, UserLocale(QLocale::c())};
    WelcomeWindow welcome{app};
    QStringList signalled;
};

TEST_F(FirstStartTest, MakesABookWithTheChosenChart) {
    const struct {
        int row;
        QString chart;
        QString account;
        QString accounts;
    } cases[] = {{0, u"Leeren Kontorahmen verwenden"_s, u"1000"_s, u"0|"_s},
                 {1, u"SKR-03"_s, u"1000"_s, u"31|1"_s},
                 {2, u"SKR-04"_s, u"1600"_s, u"31|2"_s}};
    for (const auto &each : cases) {
        FillCompany(u"Müller & Söhne \"Holz\""_s);
        welcome.AccountField.SetText(u"4711"_s);
        welcome.AccountsPopup.SetListIndex(1 + each.row % 2);
        welcome.AccountsPopup.SetListIndex(each.row);
        welcome.OpeningBalanceField.SetText(u"12,5"_s);
        welcome.DepartmendField.SetText(u"Werkstatt"_s);
        welcome.SaveButton.Press();
        EXPECT_EQ(desktop.messages, QStringList());
        EXPECT_EQ(signalled, QStringList({u"MainWindowWanted"_s, u"Closed"_s}));
        EXPECT_EQ(Read(u"SELECT company, department, lastname, street, account_frame "
                       "FROM core_company"_s),
                  u"Müller & Söhne \"Holz\"||Werkstatt||"_s + each.chart);
        EXPECT_EQ(Read(u"SELECT * FROM cash_book"_s),
                  u"1|Kasse|%1|12.5|2026-01-01|"_s.arg(each.account));
        EXPECT_EQ(Read(u"SELECT count(*), max(frameID) FROM cash_accounts"_s), each.accounts);
        EXPECT_EQ(Read(u"SELECT count(*) FROM sqlite_master WHERE name LIKE 'c%'"_s), u"7"_s);
        welcome.Event_Close();
        signalled.clear();
        welcome.Event_Open();
        EXPECT_EQ(signalled, QStringList({u"Closed"_s, u"MainWindowWanted"_s}));
        signalled.clear();
        app.NewDatabase();
        EXPECT_TRUE(app.DefaultDatabaseFile().Delete());
    }
}

TEST_F(FirstStartTest, KeepsThePageAndWhatWasTypedUntilAllIsThere) {
    FillCompany(u""_s);
    EXPECT_EQ(TakeMessage(), u"Bitte geben Sie einen Firmannamen an"_s);
    EXPECT_EQ(welcome.PagePanel1.Value(), 1);
    FillCompany(u" "_s);
    EXPECT_EQ(welcome.PagePanel1.Value(), 2);
    for (TextField *field :
         {&welcome.AccountNameField, &welcome.AccountField, &welcome.OpeningBalanceField}) {
        const QString text = field->Text();
        field->SetText(u""_s);
        welcome.SaveButton.Press();
        EXPECT_EQ(TakeMessage(), u"Bitte füllen Sie alle Felder aus: \r\r- Kassenbezeichnung\r"
                                 "- Konto\r- Anfangsbestand"_s);
        field->SetText(text);
    }
    EXPECT_FALSE(welcome.OpeningDate.SetTyped(u"31.02."_s));
    welcome.SaveButton.Press();
    EXPECT_EQ(TakeMessage(), u"Bitte das Datum prüfen!"_s);
    welcome.AccountsPopup.SetListIndex(2);
    welcome.BackButton.Press();
    welcome.ForwardButton.Press();
    EXPECT_EQ(welcome.AccountsPopup.Text() + welcome.AccountField.Text(), u"SKR-041600"_s);
    EXPECT_FALSE(app.DefaultDatabaseFile().Parent().Exists());
    EXPECT_EQ(signalled, QStringList());
}

TEST_F(FirstStartTest, UsesTheFileOfAFailedAttemptAgainOrRemovesIt) {
    for (const bool givesUp : {true, false}) {
        FillCompany(u"Peter's Laden"_s);
        welcome.SaveButton.Press();
        EXPECT_TRUE(TakeMessage().startsWith(u"Error: "_s));
        EXPECT_EQ(welcome.PagePanel1.Value(), 2);
        EXPECT_TRUE(app.DefaultDatabaseFile().Exists());
        if (givesUp) {
            welcome.Event_Close();
            EXPECT_FALSE(app.DefaultDatabaseFile().Exists());
        }
    }
    FillCompany(QString(10'000, u'x'));
    welcome.OpeningBalanceField.SetText(u"viel"_s);
    welcome.SaveButton.Press();
    EXPECT_EQ(desktop.messages, QStringList());
    EXPECT_EQ(Read(u"SELECT length(company), opening_balance FROM core_company, cash_book"_s),
              u"10000|viel"_s);
    EXPECT_EQ(signalled, QStringList({u"MainWindowWanted"_s, u"Closed"_s}));
    // A second program would fail on this book, and must leave it where it is.
    welcome.CreateDatabase();
    EXPECT_TRUE(TakeMessage().startsWith(u"Error: "_s));
    welcome.Event_Close();
    EXPECT_EQ(Read(u"SELECT count(*) FROM core_company"_s), u"1"_s);
}

TEST_F(FirstStartTest, TellsWhenTheFolderIsAFile) {
    ASSERT_TRUE(desktop.ApplicationData().CreateAsFolder());
    QFile file(app.DefaultDatabaseFile().Parent().Path());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    FillCompany(u"Holz"_s);
    welcome.SaveButton.Press();
    EXPECT_TRUE(TakeMessage().startsWith(u"Die Datenbank konnte nicht erstellt werden: "_s));
    welcome.Event_Close();
    EXPECT_TRUE(file.exists());
    EXPECT_EQ(signalled, QStringList());
}

TEST_F(FirstStartTest, LeavesNothingBehindOnAFullDisk) {
    const auto withoutLimit = std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    FillCompany(u"Holz"_s);
    for (const rlim_t bytes : {0U, 1024U, 5000U, 9000U}) {
        const rlimit full{bytes, before.rlim_max};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &full), 0);
        welcome.SaveButton.Press();
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
        EXPECT_FALSE(TakeMessage().isEmpty()) << bytes;
        EXPECT_EQ(signalled, QStringList());
    }
    std::signal(SIGXFSZ, withoutLimit);
    welcome.Event_Close();
    EXPECT_FALSE(app.DefaultDatabaseFile().Exists());
    welcome.SaveButton.Press();
    EXPECT_EQ(signalled, QStringList({u"MainWindowWanted"_s, u"Closed"_s}));
}

} // namespace
