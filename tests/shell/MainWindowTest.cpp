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
        return balances.OpeningBalanceLabel.Text() + bookings.Cell(-1, -1) + balances.LastAmountLabel.Text();
    };
    const auto menuAction = [this](const QString &name) { return [=, this] { window.MenuAction(name); }; };
    const auto load = [this] { Q_EMIT window.selectors.RefreshJournal(); };
    const Case cases[] = {
        {"open", u"core_company"_s, [this] { window.Event_Open(); }},
        {"list", u"cash_journal"_s, load},
        {"list", u"cash_book"_s, load},
        {"new", u"cash_journal"_s, menuAction(u"new"_s)},
        {"submit", u"cash_journal"_s, [&row] { Q_EMIT row.SubmitButton.Action(); }, 2},
        {"change", u"cash_journal"_s, [&row] { Q_EMIT row.ChangeButton.Action(); }, 2},
        {"delete", u"cash_journal"_s, menuAction(u"delete"_s)},
        {"print", u"cash_journal"_s, menuAction(u"print"_s), 2},
        {"print", u"cash_book"_s, menuAction(u"print"_s)},
        {"export", u"cash_tax"_s, menuAction(u"export"_s)},
        {"preferences", u"cash_book"_s, menuAction(u"preferences"_s)},
        {"preferences", u"cash_accounts"_s, menuAction(u"preferences"_s)},
        {"preferences", u"core_company"_s, menuAction(u"preferences"_s)},
        {"a cash book more", u"cash_book"_s, [&cashBookButton] { Q_EMIT cashBookButton.PlusPressed(); }},
        {"a cash book less", u"cash_book"_s, [&cashBookButton] { Q_EMIT cashBookButton.MinusPressed(); }},
        {"an account more", u"cash_accounts"_s, [&accountButton] { Q_EMIT accountButton.PlusPressed(); }},
        {"an account less", u"cash_accounts"_s, [&accountButton] { Q_EMIT accountButton.MinusPressed(); }},
        {"close", u"core_company"_s, [this] { window.Event_Close(); }}};
    env.Add({u"2026-01-01"_s, u"E"_s, u"1"_s});
    env.Add({u"2026-02-01"_s, u"E"_s, u"2"_s});
    env.Run(u"INSERT INTO cash_book (name, account) VALUES ('Laden', '1010')"_s);
    window.MenuAction(u"preferences"_s);
    const QString lists = cashBooks.Cell(-1, -1) + accounts.Cell(-1, -1);
    for (const Case &each : cases) {
        window.Event_Open();
        const QString figures = shown();
        for (Listbox *list : {&bookings, &cashBooks, &accounts}) { list->SetListIndex(1); }
        window.MenuAction(u"edit"_s);
        window.companyProfile.CityField.SetText(u"Köln"_s);
        env.desktop.printout.emplace();
        env.Hide({each.table});
        each.run();
        EXPECT_EQ(env.desktop.TakeMessages().count(u"no such table: "_s + each.table), each.messages) << each.command;
        // The opening balance of a cash book that cannot be read counts as 0.
        EXPECT_TRUE(each.table == u"cash_book"_s || shown() == figures) << each.command;
        EXPECT_EQ(cashBooks.Cell(-1, -1) + accounts.Cell(-1, -1), lists) << each.command;
        env.Show({each.table});
    }
}

TEST_F(MainWindowTest, IgnoresTheCaseOfCommandsAndAbortsOnAMissingItem) {
    window.MenuAction(u"ABOUT"_s);
    window.MenuAction(u"nothing"_s);
    EXPECT_EQ(env.desktop.opened, QStringList(u"about"_s));
    EXPECT_DEATH(window.menuBar.DataMenu().Child(u"Fehlt"), "Fehlt");
}

TEST_F(MainWindowTest, SavesEveryOpenCellBeforeItCloses) {
    window.MenuAction(u"preferences"_s);
    for (Listbox *list : {&window.cashBooks.CashbookList, &window.bookingAccounts.CashaccountList}) {
        list->EditCell(0, 0);
        list->SetEditText(u"neu"_s);
    }
    window.Event_Close();
    EXPECT_EQ(env.Value(u"SELECT count(*) FROM cash_book cb, cash_accounts ca WHERE cb.name || ca.name = 'neuneu'"_s),
              u"1"_s);
}
