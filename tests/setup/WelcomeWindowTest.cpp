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
    const QString success = "MainWindowRequested Closed";
    const QString failure = "Die Datenbank konnte nicht erstellt werden: ";
};

TEST_F(WelcomeWindowTest, ShowsAPictureOnEachButton) {
    QStringList drawn;
    DrawingRecorder screen(drawn);
    for (Canvas *canvas : {&welcome.DemoCanvas, &welcome.NewCanvas, &welcome.ManualCanvas}) {
        Q_EMIT canvas->Paint(screen);
    }
    welcome.Canvas1.Backdrop()->DrawOn(screen);
    EXPECT_EQ(drawn, QStringList({"48_copy_record.png 14 26", "48_add_record.png 14 26",
                                  "48_address-book.png 14 26", "welcome_image.png 0 0"}));
}

TEST_F(WelcomeWindowTest, CreatesTheSampleDatabaseInMemory) {
    desktop.now = Date(QDate(2031, 7, 1));
    Q_EMIT welcome.DemoCanvas.MouseDown(1, 1);
    EXPECT_TRUE(TakeEvents().startsWith(success + "In der Demo werden "));
    MainWindow window(app);
    window.Event_Open();
    const Listbox &bookings = window.journal.CashList;
    EXPECT_EQ(bookings.Cell(-1, Journal::DateColumn),
              "07.01.2031\n12.01.2031\n14.01.2031\n14.01.2031\n15.01.2031");
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), "238,89\n234,39\n167,94\n180,84\n280,84");
    EXPECT_FALSE(desktop.ApplicationData().Exists());
}

TEST_F(WelcomeWindowTest, CreatesADatabaseWithTheSelectedChart) {
    struct Case {
        int row;
        QString account, chart, accounts;
    };
    const Case cases[] = {{0, "1000", "Leeren Kontorahmen verwenden", "0|"},
                          {1, "1000", "SKR-03", "31|1"},
                          {2, "1600", "SKR-04", "31|2"}};
    welcome.CompanyField.SetText("Müller & Söhne \"Holz\"");
    welcome.DepartmendField.SetText("Werkstatt");
    welcome.OpeningBalanceField.SetText("12,5");
    for (const Case &each : cases) {
        welcome.AccountsPopup.SetListIndex(each.row);
        welcome.SaveButton.Press();
        EXPECT_EQ(TakeEvents(), success);
        EXPECT_EQ(Read("SELECT company, department, lastname, street FROM core_company"),
                  "Müller & Söhne \"Holz\"||Werkstatt|");
        EXPECT_EQ(Read("SELECT cb.*, account_frame FROM cash_book cb, core_company"),
                  u"1|Kasse|%1|12.5|2026-01-01||%2"_s.arg(each.account, each.chart));
        EXPECT_EQ(Read("SELECT count(*), max(frameID) FROM cash_accounts"), each.accounts);
        app.NewDatabase();
        EXPECT_TRUE(databaseFile.Delete());
    }
}

TEST_F(WelcomeWindowTest, KeepsThePageUntilTheInputIsComplete) {
    EventLog nameLog(welcome.CompanyField);
    Q_EMIT welcome.NewCanvas.MouseDown(1, 1);
    EXPECT_EQ(nameLog.Take(), "FocusRequested");
    welcome.ForwardButton.Press();
    EXPECT_EQ(TakeEvents(), "Bitte geben Sie einen Firmannamen an");
    welcome.CompanyField.SetText(" ");
    welcome.ForwardButton.Press();
    for (TextField *field :
         {&welcome.AccountNameField, &welcome.AccountField, &welcome.OpeningBalanceField}) {
        const QString text = field->Text();
        field->SetText("");
        welcome.SaveButton.Press();
        EXPECT_EQ(
            TakeEvents(),
            "Bitte füllen Sie alle Felder aus: \r\r- Kassenbezeichnung\r- Konto\r- Anfangsbestand");
        field->SetText(text);
    }
    EXPECT_FALSE(welcome.OpeningDate.SetTyped("31.02."));
    EventLog dateLog(welcome.OpeningDate);
    welcome.SaveButton.Press();
    EXPECT_EQ(TakeEvents() + dateLog.Take(), "Bitte das Datum prüfen!FocusRequested");
    EXPECT_EQ(welcome.PagePanel1.Value(), 2);
    EXPECT_FALSE(databaseFile.Parent().Exists());
}

TEST_F(WelcomeWindowTest, DoesNotReplaceAnExistingFileOrLink) {
    const FolderItem elsewhere(desktop.Path("elsewhere"));
    ASSERT_TRUE(databaseFile.Parent().CreateAsFolder() &&
                QFile::link(elsewhere.Path(), databaseFile.Path()));
    welcome.CreateDatabase();
    EXPECT_TRUE(TakeEvents().startsWith(failure + databaseFile.Path())) << "a dangling link";
    EXPECT_TRUE(!elsewhere.Exists() && databaseFile.Delete());
    welcome.CompanyField.SetText("Muster");
    welcome.SaveButton.Press();
    EXPECT_EQ(TakeEvents(), success);
    welcome.CompanyField.SetText("Andere");
    welcome.CreateDatabase();
    EXPECT_TRUE(TakeEvents().startsWith(failure + databaseFile.Path()));
    EXPECT_EQ(Read("SELECT company FROM core_company") + Files(), "MusterZolmark.sdb");
}

TEST_F(WelcomeWindowTest, RemovesTheFilesOfFailedAttempts) {
    QFile leftover(databaseFile.Parent().Child("Zolmark.neu-1-journal").Path());
    ASSERT_TRUE(databaseFile.Parent().CreateAsFolder() && leftover.open(QIODevice::WriteOnly));
    welcome.CompanyField.SetText("O'Neill");
    welcome.SaveButton.Press();
    EXPECT_EQ(TakeEvents(), "Error: near \"Neill\": syntax error");
    EXPECT_EQ(Files(), QString());
    welcome.CompanyField.SetText("Muster");
    welcome.SaveButton.Press();
    leftover.close();
    ASSERT_TRUE(leftover.open(QIODevice::WriteOnly));
    EXPECT_EQ(TakeEvents(), success);
    welcome.Event_Open();
    EXPECT_EQ(TakeEvents(), "Closed MainWindowRequested");
    EXPECT_EQ(Files(), "Zolmark.sdb");
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
