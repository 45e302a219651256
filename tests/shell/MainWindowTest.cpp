#include "support/TestEnvironment.h"

using MainWindowTest = EnvironmentTest;

TEST_F(MainWindowTest, ReportsFailedStatementsAndKeepsTheFigures) {
    struct Case {
        const char *command;
        QString table;
        std::function<void()> run;
        int messages = 1;
    };
    EntryRow &row = window.entryRow;
    Listbox &cashBooks = window.cashBooks.CashbookList;
    Listbox &accounts = window.bookingAccounts.CashaccountList;
    TLXPlusMinusButton &cashBookButton = window.cashBooks.CashBookAdd;
    TLXPlusMinusButton &accountButton = window.bookingAccounts.AccountsAdd;
    const auto shown = [this] {
        const Balances &balances = window.balances;
        return balances.OpeningBalanceLabel.Text() + bookings.Cell(-1, -1) +
               balances.LastAmountLabel.Text();
    };
    const auto menuAction = [this](const QString &name) {
        return [=, this] { window.MenuAction(name); };
    };
    const auto load = [this] { Q_EMIT window.selectors.RefreshJournal(); };
    const Case cases[] = {
        {"open", "core_company", [this] { window.Event_Open(); }},
        {"list", "cash_journal", load},
        {"list", "cash_book", load},
        {"new", "cash_journal", menuAction("new")},
        {"submit", "cash_journal", [&row] { Q_EMIT row.SubmitButton.Action(); }, 2},
        {"change", "cash_journal", [&row] { Q_EMIT row.ChangeButton.Action(); }, 2},
        {"delete", "cash_journal", menuAction("delete")},
        {"print", "cash_journal", menuAction("print"), 2},
        {"print", "cash_book", menuAction("print")},
        {"export", "cash_tax", menuAction("export")},
        {"preferences", "cash_book", menuAction("preferences")},
        {"preferences", "cash_accounts", menuAction("preferences")},
        {"preferences", "core_company", menuAction("preferences")},
        {"a cash book more", "cash_book",
         [&cashBookButton] { Q_EMIT cashBookButton.PlusPressed(); }},
        {"a cash book less", "cash_book",
         [&cashBookButton] { Q_EMIT cashBookButton.MinusPressed(); }},
        {"an account more", "cash_accounts",
         [&accountButton] { Q_EMIT accountButton.PlusPressed(); }},
        {"an account less", "cash_accounts",
         [&accountButton] { Q_EMIT accountButton.MinusPressed(); }},
        {"close", "core_company", [this] { window.Event_Close(); }}};
    env.Add({"2026-01-01", "E", "1"});
    env.Add({"2026-02-01", "E", "2"});
    env.Run("INSERT INTO cash_book (name, account) VALUES ('Laden', '1010')");
    window.MenuAction("preferences");
    const QString lists = cashBooks.Cell(-1, -1) + accounts.Cell(-1, -1);
    for (const Case &each : cases) {
        window.Event_Open();
        const QString figures = shown();
        for (Listbox *list : {&bookings, &cashBooks, &accounts}) {
            list->SetListIndex(1);
        }
        window.MenuAction("edit");
        window.companyProfile.CityField.SetText("Köln");
        env.desktop.printout.emplace();
        env.Hide({each.table});
        each.run();
        EXPECT_EQ(env.desktop.TakeMessages().count("no such table: " + each.table), each.messages)
            << each.command;
        // The opening balance of a cash book that cannot be read counts as 0.
        EXPECT_TRUE(each.table == "cash_book" || shown() == figures) << each.command;
        EXPECT_EQ(cashBooks.Cell(-1, -1) + accounts.Cell(-1, -1), lists) << each.command;
        env.Show({each.table});
    }
}

TEST_F(MainWindowTest, IgnoresTheCaseOfCommandsAndAbortsOnAMissingItem) {
    window.MenuAction("ABOUT");
    window.MenuAction("nothing");
    EXPECT_EQ(env.desktop.opened, QStringList("about"));
    EXPECT_DEATH(window.menuBar.DataMenu().Child(u"Fehlt"), "Fehlt");
}

TEST_F(MainWindowTest, SavesEveryOpenCellBeforeItCloses) {
    window.MenuAction("preferences");
    for (Listbox *list :
         {&window.cashBooks.CashbookList, &window.bookingAccounts.CashaccountList}) {
        list->EditCell(0, 0);
        list->SetEditText("neu");
    }
    window.Event_Close();
    EXPECT_EQ(env.Value("SELECT count(*) FROM cash_book cb, cash_accounts ca WHERE cb.name || "
                        "ca.name = 'neuneu'"),
              "1");
}
