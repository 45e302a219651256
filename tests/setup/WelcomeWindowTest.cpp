#include "setup/WelcomeWindow.h"

#include "support/EventLog.h"
#include "support/TestEnvironment.h"

#include <QDir>

#include <sys/stat.h>

/// The first start, before a database file exists.
class WelcomeWindowTest : public testing::Test {
protected:
    WelcomeWindowTest() { welcome.Event_Open(); }

    /// Returns the signals and messages since the last call.
    QString TakeEvents() { return log.Take() + desktop.TakeMessages(); }
    QString Create(const QString &company) {
        welcome.CompanyField.SetText(company);
        welcome.SaveButton.Press();
        return TakeEvents();
    }
    QString Files() const { return QDir(folder.Path()).entryList(QDir::Files).join(' '); }

    FakeDesktop desktop;
    App app{desktop, UserLocale(QLocale::c())};
    WelcomeWindow welcome{app};
    EventLog log{welcome};
    const FolderItem file = app.DefaultDatabaseFile();
    const FolderItem folder = file.Parent();
    const QString success = "MainWindowRequested Closed";
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
    window.MenuAction("preferences");
    EXPECT_EQ(window.bookingAccounts.CashaccountList.ListCount(), 31);
    EXPECT_EQ(window.selectors.YearPopup.Text(), "2031");
    EXPECT_EQ(window.balances.LastAmountLabel.Text(), "280,84");
    EXPECT_FALSE(folder.Exists());
}

TEST_F(WelcomeWindowTest, StoresTheEnteredDataAndTheSelectedChart) {
    welcome.DepartmendField.SetText("Werkstatt");
    welcome.StreetField.SetText("Am Markt 1");
    welcome.ZipField.SetText("50667");
    welcome.CityField.SetText("Köln");
    welcome.PhoneField.SetText("0221");
    welcome.OpeningBalanceField.SetText("12,000");
    EXPECT_EQ(welcome.OpeningBalanceField.Hint(), "wird als 12,00 gelesen");
    welcome.AccountsPopup.SetListIndex(1);
    EXPECT_EQ(welcome.AccountsPopup.Text(), "SKR-03");
    EXPECT_EQ(welcome.AccountField.Text(), "1000");
    welcome.AccountsPopup.SetListIndex(2);
    EXPECT_EQ(welcome.CurrencyPopup.Text(), "EUR");
    EXPECT_EQ(Create("\"Holz\""), success);
    EXPECT_FALSE(app.kvoDB().Error());
    EXPECT_EQ(ReadWithShell(app, "SELECT * FROM cash_book"), "1|Kasse|1600|12.0|2026-01-01|");
    EXPECT_EQ(ReadWithShell(app, "SELECT * FROM core_company"),
              "1|\"Holz\"|||Werkstatt|Am Markt 1|50667|Köln|||0221||||||||SKR-04|||");
    EXPECT_EQ(ReadWithShell(app, "SELECT frameID, count(*) FROM cash_accounts"), "2|31");
}

TEST_F(WelcomeWindowTest, RequiresACompleteCashBook) {
    for (TextField *field :
         {&welcome.AccountNameField, &welcome.AccountField, &welcome.OpeningBalanceField}) {
        const QString text = field->Text();
        field->SetText("");
        EXPECT_TRUE(Create("Muster").startsWith("Bitte füllen Sie alle Felder aus: "));
        field->SetText(text);
    }
    EXPECT_FALSE(welcome.OpeningDate.SetTyped("31.02."));
    EventLog dateLog(welcome.OpeningDate);
    EXPECT_EQ(Create("Muster"), "Bitte das Datum prüfen!");
    EXPECT_EQ(dateLog.Take(), "FocusRequested");
}

TEST_F(WelcomeWindowTest, RemovesTheFilesOfFailedAttempts) {
    const QString leftover = folder.Child("Zolmark.neu-1-journal").Path();
    ASSERT_TRUE(folder.CreateAsFolder());
    ASSERT_TRUE(QFile(leftover).open(QIODevice::WriteOnly));
    EXPECT_EQ(Create("O'Neill"), "Error: near \"Neill\": syntax error");
    EXPECT_EQ(Files(), "");
    EXPECT_FALSE(app.kvoDB().DatabaseFile());
    EXPECT_EQ(Create("Muster"), success);
    ASSERT_TRUE(QFile(leftover).open(QIODevice::WriteOnly));
    welcome.Event_Open();
    EXPECT_EQ(TakeEvents(), "Closed MainWindowRequested");
    EXPECT_EQ(Files(), "Zolmark.sdb");
}

TEST_F(WelcomeWindowTest, ReportsAFolderThatCannotBeCreated) {
    ASSERT_TRUE(QFile(desktop.Path("data")).open(QIODevice::WriteOnly));
    EXPECT_EQ(Create("Muster"),
              "Die Datenbank konnte nicht erstellt werden: unable to open database file");
}

TEST_F(WelcomeWindowTest, CreatesAPrivateFileAndDoesNotReplaceIt) {
    const auto before = umask(0277);
    EXPECT_EQ(Create("Muster"), success);
    umask(before);
    EXPECT_EQ(QFileInfo(file.Path()).permissions(), QFile::Permissions(0x6600));
    EXPECT_EQ(QFileInfo(folder.Path()).permissions(), QFile::Permissions(0x7700));
    EXPECT_TRUE(Create("Andere").contains(file.Path()));
    EXPECT_EQ(ReadWithShell(app, "SELECT company FROM core_company"), "Muster");
    EXPECT_EQ(Files(), "Zolmark.sdb");
}
