#include "setup/WelcomeWindow.h"

#include "shell/MainWindow.h"
#include "support/Book.h"

#include <QDir>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

/// A first start, and the roads through the window's controls to a book.
class WelcomeWindowTest : public testing::Test {
protected:
    WelcomeWindowTest() {
        QObject::connect(&welcome, &WelcomeWindow::Closed, &welcome,
                         [this] { signalled += u"Closed "_s; });
        QObject::connect(&welcome, &WelcomeWindow::MainWindowWanted, &welcome,
                         [this] { signalled += u"MainWindowWanted "_s; });
        welcome.Event_Open();
    }

    void FillCompany(const QString &name) {
        Q_EMIT welcome.NewCanvas.MouseDown(1, 1);
        welcome.CompanyField.SetText(name);
        welcome.ForwardButton.Press();
    }
    QString Read(const QString &sql) const { return ReadWithShell(app, sql); }
    /// What lies where the book is to be.
    QString Files() const {
        return QDir(app.DefaultDatabaseFile().Parent().Path())
            .entryList(QDir::Files | QDir::Hidden)
            .join(u' ');
    }
    /// What the window has signalled and then told since the last time.
    QString Told() { return std::exchange(signalled, {}) + desktop.TakeMessages(); }

    FakeDesktop desktop;
    App app{desktop, UserLocale(QLocale::c())};
    WelcomeWindow welcome{app};
    QString signalled;
};

TEST_F(WelcomeWindowTest, MakesTheSampleBookInMemoryAlone) {
    desktop.now = Date(QDate(2031, 7, 1));
    Q_EMIT welcome.DemoCanvas.MouseDown(1, 1);
    EXPECT_TRUE(Told().startsWith(u"MainWindowWanted Closed In der Demo werden "_s));
    MainWindow window(app);
    window.Event_Open();
    const Listbox &bookings = window.journal.CashList;
    EXPECT_EQ(bookings.Cell(-1, Journal::DateColumn),
              u"07.01.2031\n12.01.2031\n14.01.2031\n14.01.2031\n15.01.2031"_s);
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), u"238,89\n234,39\n167,94\n180,84\n280,84"_s);
    EXPECT_FALSE(desktop.ApplicationData().Exists());
}

TEST_F(WelcomeWindowTest, MakesABookWithTheChosenChart) {
    const std::tuple<int, QString, QString, QString> cases[] = {
        {0, u"1000"_s, u"Leeren Kontorahmen verwenden"_s, u"0|"_s},
        {1, u"1000"_s, u"SKR-03"_s, u"31|1"_s},
        {2, u"1600"_s, u"SKR-04"_s, u"31|2"_s}};
    for (const auto &[row, account, chart, accounts] : cases) {
        FillCompany(u"Müller & Söhne \"Holz\""_s);
        welcome.AccountsPopup.SetListIndex(row);
        welcome.OpeningBalanceField.SetText(u"12,5"_s);
        welcome.DepartmendField.SetText(u"Werkstatt"_s);
        welcome.SaveButton.Press();
        EXPECT_EQ(Told(), u"MainWindowWanted Closed "_s);
        EXPECT_EQ(Read(u"SELECT company, department, lastname, street FROM core_company"_s),
                  u"Müller & Söhne \"Holz\"||Werkstatt|"_s);
        EXPECT_EQ(Read(u"SELECT cb.*, account_frame FROM cash_book cb, core_company"_s),
                  u"1|Kasse|%1|12.5|2026-01-01||%2"_s.arg(account, chart));
        EXPECT_EQ(Read(u"SELECT count(*), max(frameID) FROM cash_accounts"_s), accounts);
        app.NewDatabase();
        EXPECT_TRUE(app.DefaultDatabaseFile().Delete());
    }
}

TEST_F(WelcomeWindowTest, KeepsThePageAndWhatWasTypedUntilAllIsThere) {
    EXPECT_EQ(Told(), u""_s) << "there is no book to open yet";
    FillCompany(u""_s);
    EXPECT_EQ(Told(), u"Bitte geben Sie einen Firmannamen an"_s);
    FillCompany(u" "_s);
    for (TextField *field :
         {&welcome.AccountNameField, &welcome.AccountField, &welcome.OpeningBalanceField}) {
        const QString text = field->Text();
        field->SetText(u""_s);
        welcome.SaveButton.Press();
        EXPECT_EQ(Told(), u"Bitte füllen Sie alle Felder aus: \r\r- Kassenbezeichnung\r"
                          "- Konto\r- Anfangsbestand"_s);
        field->SetText(text);
    }
    EXPECT_FALSE(welcome.OpeningDate.SetTyped(u"31.02."_s));
    welcome.SaveButton.Press();
    EXPECT_EQ(Told(), u"Bitte das Datum prüfen!"_s);
    EXPECT_FALSE(app.DefaultDatabaseFile().Parent().Exists());
}

TEST_F(WelcomeWindowTest, LeavesABookAloneThatAnotherProgramHasMade) {
    FillCompany(u"Muster"_s);
    welcome.SaveButton.Press();
    EXPECT_EQ(Told(), u"MainWindowWanted Closed "_s);
    welcome.CompanyField.SetText(u"Andere"_s);
    welcome.CreateDatabase();
    EXPECT_TRUE(Told().startsWith(u"Die Datenbank konnte nicht erstellt werden: "_s));
    EXPECT_EQ(Read(u"SELECT company FROM core_company"_s) + Files(), u"MusterZolmark.sdb"_s);
}

TEST_F(WelcomeWindowTest, MakesNoBookThroughALinkToNowhere) {
    const FolderItem elsewhere(desktop.Path(u"elsewhere"_s));
    ASSERT_TRUE(app.DefaultDatabaseFile().Parent().CreateAsFolder() &&
                QFile::link(elsewhere.Path(), app.DefaultDatabaseFile().Path()));
    welcome.CreateDatabase();
    EXPECT_TRUE(Told().startsWith(u"Die Datenbank konnte nicht erstellt werden: "_s));
    EXPECT_FALSE(elsewhere.Exists());
}

TEST_F(WelcomeWindowTest, LeavesNoFileOfAFailedOrKilledAttempt) {
    const FolderItem leftover =
        app.DefaultDatabaseFile().Parent().Child(u"Zolmark.neu-1-journal"_s);
    ASSERT_TRUE(leftover.Parent().CreateAsFolder() &&
                QFile(leftover.Path()).open(QIODevice::WriteOnly));
    welcome.CompanyField.SetText(u"O'Neill"_s);
    welcome.SaveButton.Press();
    EXPECT_EQ(Told(), u"Error: near \"Neill\": syntax error"_s);
    EXPECT_EQ(Files(), QString());
    welcome.CompanyField.SetText(u"Muster"_s);
    welcome.SaveButton.Press();
    EXPECT_EQ(Told(), u"MainWindowWanted Closed "_s);
    ASSERT_TRUE(QFile(leftover.Path()).open(QIODevice::WriteOnly));
    welcome.Event_Open();
    EXPECT_EQ(Told(), u"Closed MainWindowWanted "_s);
    EXPECT_EQ(Files(), u"Zolmark.sdb"_s);
}

TEST_F(WelcomeWindowTest, KeepsFoldersAndFileFromOthersWhateverTheHabit) {
    const auto before = umask(0277);
    welcome.CreateDatabase();
    umask(before);
    EXPECT_EQ(Told(), u"MainWindowWanted Closed "_s);
    const QFileInfo file(app.DefaultDatabaseFile().Path());
    EXPECT_EQ(file.permissions(), QFile::Permissions(0x6600));
    for (const QString &folder : {file.path(), QFileInfo(file.path()).path()}) {
        EXPECT_EQ(QFileInfo(folder).permissions(), QFile::Permissions(0x7700));
    }
}

} // namespace
