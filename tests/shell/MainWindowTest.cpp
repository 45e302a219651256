#include "support/TestEnvironment.h"

class MainWindowTest : public EnvironmentTest {
protected:
    /// Runs an action while a table is missing, and returns how many messages report it.
    qsizetype Failures(const QString &table, const std::function<void()> &action) {
        window.Event_Open();
        window.MenuAction("preferences");
        bookings.SetListIndex(0);
        window.MenuAction("edit");
        window.companyProfile.CityField.SetText("Köln");
        env.desktop.printout.emplace();
        env.Hide({table});
        action();
        env.Show({table});
        return env.desktop.TakeMessages().count("no such table: " + table);
    }
    qsizetype Failures(const QString &table, const QString &command) {
        return Failures(table, [&] { window.MenuAction(command); });
    }
};

TEST_F(MainWindowTest, ReportsFailedStatements) {
    env.Add({});
    EXPECT_EQ(Failures("cash_journal", "print"), 2);
    EXPECT_EQ(Failures("cash_book", "print"), 1);
    EXPECT_EQ(Failures("cash_tax", "export"), 1);
    EXPECT_EQ(Failures("cash_book", "preferences"), 1);
    EXPECT_EQ(Failures("cash_accounts", "preferences"), 1);
    EXPECT_EQ(Failures("core_company", "preferences"), 1);
    EXPECT_EQ(Failures("core_company", [this] { window.Event_Open(); }), 1);
    EXPECT_EQ(Failures("core_company", [this] { window.Event_Close(); }), 1);
    EXPECT_EQ(Failures("cash_journal", [this] { Q_EMIT window.entryRow.SubmitButton.Action(); }),
              2);
    EXPECT_EQ(Failures("cash_journal", [this] { Q_EMIT window.entryRow.ChangeButton.Action(); }),
              2);
}

TEST_F(MainWindowTest, StoresTheOpenCellBeforeItCloses) {
    window.MenuAction("preferences");
    window.bookingAccounts.CashaccountList.EditCell(0, 0);
    window.bookingAccounts.CashaccountList.SetEditText("neu");
    window.Event_Close();
    EXPECT_EQ(env.Value("SELECT name FROM cash_accounts"), "neu");
}

TEST_F(MainWindowTest, AbortsOnAMissingMenuItem) {
    EXPECT_DEATH(window.menuBar.DataMenu().Child(u"Fehlt"), "Fehlt");
}
