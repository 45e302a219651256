#include "setup/WelcomeWindow.h"

#include "support/EventLog.h"
#include "support/TestEnvironment.h"

#include <QDir>

#include <sys/stat.h>

/// The first start, before a database file exists.
class WelcomeWindowTest : public testing::Test {
protected:
    WelcomeWindowTest() { welcome.Event_Open(); }

    QString Read(const QString &sql) const { return ReadWithShell(app, sql); }
    QString Files() const {
        return QDir(databaseFile.Parent().Path()).entryList(QDir::Files | QDir::Hidden).join(u' ');
    }
    /// Returns the signals and messages since the last call.
    QString TakeEvents() { return log.Take() + desktop.TakeMessages(); }

    FakeDesktop desktop;
    App app{desktop, UserLocale(QLocale::c())};
    WelcomeWindow welcome{app};
    EventLog log{welcome};
    const FolderItem databaseFile = app.DefaultDatabaseFile();
    const QString success = u"MainWindowRequested Closed"_s;
    const QString failure = u"Die Datenbank konnte nicht erstellt werden: "_s;
};

TEST_F(WelcomeWindowTest, ShowsAPictureOnEachButton) {
    QStringList drawn;
    DrawingRecorder screen(drawn);
    for (Canvas *canvas : {&welcome.DemoCanvas, &welcome.NewCanvas, &welcome.ManualCanvas}) {
        Q_EMIT canvas->Paint(screen);
    }
    welcome.Canvas1.Backdrop()->DrawOn(screen);
    EXPECT_EQ(drawn, QStringList({u"48_copy_record.png 14 26"_s, u"48_add_record.png 14 26"_s,
                                  u"48_address-book.png 14 26"_s, u"welcome_image.png 0 0"_s}));
}

TEST_F(WelcomeWindowTest, CreatesTheSampleDatabaseInMemory) {
    desktop.now = Date(QDate(2031, 7, 1));
    Q_EMIT welcome.DemoCanvas.MouseDown(1, 1);
    EXPECT_TRUE(TakeEvents().startsWith(success + u"In der Demo werden "_s));
    MainWindow window(app);
    window.Event_Open();
    const Listbox &bookings = window.journal.CashList;
    EXPECT_EQ(bookings.Cell(-1, Journal::DateColumn), u"07.01.2031\n12.01.2031\n14.01.2031\n14.01.2031\n15.01.2031"_s);
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), u"238,89\n234,39\n167,94\n180,84\n280,84"_s);
    EXPECT_FALSE(desktop.ApplicationData().Exists());
}

TEST_F(WelcomeWindowTest, CreatesADatabaseWithTheSelectedChart) {
    struct Case {
        int row;
        QString account, chart, accounts;
    };
    const Case cases[] = {{0, u"1000"_s, u"Leeren Kontorahmen verwenden"_s, u"0|"_s},
                          {1, u"1000"_s, u"SKR-03"_s, u"31|1"_s},
                          {2, u"1600"_s, u"SKR-04"_s, u"31|2"_s}};
    welcome.CompanyField.SetText(u"Müller & Söhne \"Holz\""_s);
    welcome.DepartmendField.SetText(u"Werkstatt"_s);
    welcome.OpeningBalanceField.SetText(u"12,5"_s);
    for (const Case &each : cases) {
        welcome.AccountsPopup.SetListIndex(each.row);
        welcome.SaveButton.Press();
        EXPECT_EQ(TakeEvents(), success);
        EXPECT_EQ(Read(u"SELECT company, department, lastname, street FROM core_company"_s),
                  u"Müller & Söhne \"Holz\"||Werkstatt|"_s);
        EXPECT_EQ(Read(u"SELECT cb.*, account_frame FROM cash_book cb, core_company"_s),
                  u"1|Kasse|%1|12.5|2026-01-01||%2"_s.arg(each.account, each.chart));
        EXPECT_EQ(Read(u"SELECT count(*), max(frameID) FROM cash_accounts"_s), each.accounts);
        app.NewDatabase();
        EXPECT_TRUE(databaseFile.Delete());
    }
}

TEST_F(WelcomeWindowTest, KeepsThePageUntilTheInputIsComplete) {
    EventLog nameLog(welcome.CompanyField);
    Q_EMIT welcome.NewCanvas.MouseDown(1, 1);
    EXPECT_EQ(nameLog.Take(), u"FocusRequested"_s);
    welcome.ForwardButton.Press();
    EXPECT_EQ(TakeEvents(), u"Bitte geben Sie einen Firmannamen an"_s);
    welcome.CompanyField.SetText(u" "_s);
    welcome.ForwardButton.Press();
    for (TextField *field : {&welcome.AccountNameField, &welcome.AccountField, &welcome.OpeningBalanceField}) {
        const QString text = field->Text();
        field->SetText(u""_s);
        welcome.SaveButton.Press();
        EXPECT_EQ(TakeEvents(),
                  u"Bitte füllen Sie alle Felder aus: \r\r- Kassenbezeichnung\r- Konto\r- Anfangsbestand"_s);
        field->SetText(text);
    }
    EXPECT_FALSE(welcome.OpeningDate.SetTyped(u"31.02."_s));
    EventLog dateLog(welcome.OpeningDate);
    welcome.SaveButton.Press();
    EXPECT_EQ(TakeEvents() + dateLog.Take(), u"Bitte das Datum prüfen!FocusRequested"_s);
    EXPECT_EQ(welcome.PagePanel1.Value(), 2);
    EXPECT_FALSE(databaseFile.Parent().Exists());
}

TEST_F(WelcomeWindowTest, DoesNotReplaceAnExistingFileOrLink) {
    const FolderItem elsewhere(desktop.Path(u"elsewhere"_s));
    ASSERT_TRUE(databaseFile.Parent().CreateAsFolder() && QFile::link(elsewhere.Path(), databaseFile.Path()));
    welcome.CreateDatabase();
    EXPECT_TRUE(TakeEvents().startsWith(failure + databaseFile.Path())) << "a dangling link";
    EXPECT_TRUE(!elsewhere.Exists() && databaseFile.Delete());
    welcome.CompanyField.SetText(u"Muster"_s);
    welcome.SaveButton.Press();
    EXPECT_EQ(TakeEvents(), success);
    welcome.CompanyField.SetText(u"Andere"_s);
    welcome.CreateDatabase();
    EXPECT_TRUE(TakeEvents().startsWith(failure + databaseFile.Path()));
    EXPECT_EQ(Read(u"SELECT company FROM core_company"_s) + Files(), u"MusterZolmark.sdb"_s);
}

TEST_F(WelcomeWindowTest, RemovesTheFilesOfFailedAttempts) {
    QFile leftover(databaseFile.Parent().Child(u"Zolmark.neu-1-journal"_s).Path());
    ASSERT_TRUE(databaseFile.Parent().CreateAsFolder() && leftover.open(QIODevice::WriteOnly));
    welcome.CompanyField.SetText(u"O'Neill"_s);
    welcome.SaveButton.Press();
    EXPECT_EQ(TakeEvents(), u"Error: near \"Neill\": syntax error"_s);
    EXPECT_EQ(Files(), QString());
    welcome.CompanyField.SetText(u"Muster"_s);
    welcome.SaveButton.Press();
    leftover.close();
    ASSERT_TRUE(leftover.open(QIODevice::WriteOnly));
    EXPECT_EQ(TakeEvents(), success);
    welcome.Event_Open();
    EXPECT_EQ(TakeEvents(), u"Closed MainWindowRequested"_s);
    EXPECT_EQ(Files(), u"Zolmark.sdb"_s);
}

TEST_F(WelcomeWindowTest, SetsPrivatePermissionsWhateverTheUmask) {
    const auto before = umask(0277);
    welcome.CreateDatabase();
    umask(before);
    EXPECT_EQ(TakeEvents(), success);
    EXPECT_EQ(QFileInfo(databaseFile.Path()).permissions(), QFile::Permissions(0x6600));
    for (const FolderItem &folder : {databaseFile.Parent(), databaseFile.Parent().Parent()}) {
        EXPECT_EQ(QFileInfo(folder.Path()).permissions(), QFile::Permissions(0x7700));
    }
}
