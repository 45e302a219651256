#include "support/TestEnvironment.h"

using JournalTest = EnvironmentTest;

TEST_F(JournalTest, ListsAnyStoredBookingByDateAndId) {
    env.Add({"2026-03-15", "E", "10", "0", "Privateinlagen"});
    env.Add({"2026-01-31", "e", "12,50", "3", "Erlöse", "1", "8400", "07", "a\nb"});
    env.Add({"2026-03-15", "x", "5", "8", ""});
    env.Add({"2026-02-30", "A", "-1.005", "9", "kein Tag"});
    env.Add({"2026-01-02", "A", "viel", "9", "keine Zahl"});
    env.Run("INSERT INTO cash_journal (vdate, tax, cashbookID) VALUES ('2026-03-15', '0', 1), "
            "(NULL, NULL, NULL)");
    env.Add({"2026-03-15", "E", "1000", "99", "Steuer unbekannt"});
    env.Add({"2026-03-15", "E", "1000", "3", "Nebenkasse", "2"});
    env.Add({"2025-03-15", "E", "1000", "3", "Vorjahr"});
    window.Event_Open();
    EXPECT_EQ(bookings.Cell(-1, -1), "2026-02-30\t\t-1,01\t19% VSt.\tkein Tag\t\t\t1101,01\n"
                                     "02.01.2026\t\t0,00\t19% VSt.\tkeine Zahl\t\t\t1101,01\n"
                                     "31.01.2026\t12,50\t\t19% USt.\tErlöse\t07\ta\nb\t1113,51\n"
                                     "15.03.2026\t10,00\t\tkeine\tPrivateinlagen\t\t\t1123,51\n"
                                     "15.03.2026\t\t5,00\t7% VSt.\t\t\t\t1118,51\n"
                                     "15.03.2026\t\t0,00\tkeine\t\t\t\t1118,51");
}

TEST_F(JournalTest, ReportsAFailedLoadOnceAndKeepsTheBalances) {
    env.Add({"2026-01-01", "E", "1"});
    env.Add({"2025-01-01", "E", "20"});
    window.Event_Open();
    env.Hide({"cash_tax"});
    window.selectors.YearPopup.SetListIndex(1);
    EXPECT_EQ(env.desktop.TakeMessages(), "DB Error: no such table: cash_tax");
    EXPECT_EQ(window.balances.OpeningBalanceLabel.Text() + bookings.Cell(0, Journal::Balance),
              "120,00121,00");
    env.Show({"cash_tax"});
    env.Hide({"cash_journal"});
    // Reading the amount of the second booking, which is of the previous year, fails.
    env.Run("CREATE VIEW cash_journal AS SELECT *, abs(-9223372036854775806 - id) AS amount FROM "
            "(SELECT id, vdate, type, tax, category, salesnumber, note, cashbookID, account FROM "
            "hidden_cash_journal)");
    window.selectors.YearPopup.SetListIndex(0);
    EXPECT_EQ(env.desktop.TakeMessages() + window.balances.OpeningBalanceLabel.Text(),
              "DB Error: integer overflow120,00");
}

TEST_F(JournalTest, TreatsTheFirstCashBookAsTheMainOneWhateverItsId) {
    env.Run("UPDATE cash_book SET id = 7");
    env.Run("INSERT INTO cash_book VALUES (9, 'Laden', '1010', '12,50', 'bald', NULL)");
    env.Add({"2026-01-01", "E", "1"});
    env.Add({.date = "2026-01-02", .type = "A", .amount = "2", .cashbook = "9"});
    window.Event_Open();
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), "101,00");
    EXPECT_EQ(window.balances.GetOpeningDate(), std::optional(Date(QDate(2026, 1, 1))));
    window.selectors.CashbookPopup.SetListIndex(1);
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), "10,50");
}
