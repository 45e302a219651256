#include "support/TestEnvironment.h"

using JournalTest = EnvironmentTest;

TEST_F(JournalTest, ListsAnyStoredBookingByDateAndId) {
    env.Add({u"2026-03-15"_s, u"E"_s, u"10"_s, u"0"_s, u"Privateinlagen"_s});
    env.Add({u"2026-01-31"_s, u"e"_s, u"12,50"_s, u"3"_s, u"Erlöse"_s, u"1"_s, u"8400"_s, u"07"_s, u"a\nb"_s});
    env.Add({u"2026-03-15"_s, u"x"_s, u"5"_s, u"8"_s, u""_s});
    env.Add({u"2026-02-30"_s, u"A"_s, u"-1.005"_s, u"9"_s, u"kein Tag"_s});
    env.Add({u"2026-01-02"_s, u"A"_s, u"viel"_s, u"9"_s, u"keine Zahl"_s});
    env.Run(u"INSERT INTO cash_journal (vdate, tax, cashbookID) VALUES ('2026-03-15', '0', 1), (NULL, NULL, NULL)"_s);
    env.Add({u"2026-03-15"_s, u"E"_s, u"1000"_s, u"99"_s, u"Steuer unbekannt"_s});
    env.Add({u"2026-03-15"_s, u"E"_s, u"1000"_s, u"3"_s, u"Nebenkasse"_s, u"2"_s});
    env.Add({u"2025-03-15"_s, u"E"_s, u"1000"_s, u"3"_s, u"Vorjahr"_s});
    window.Event_Open();
    EXPECT_EQ(bookings.Cell(-1, -1), u"2026-02-30\t\t-1,01\t19% VSt.\tkein Tag\t\t\t1101,01\n"
                                     "02.01.2026\t\t0,00\t19% VSt.\tkeine Zahl\t\t\t1101,01\n"
                                     "31.01.2026\t12,50\t\t19% USt.\tErlöse\t07\ta\nb\t1113,51\n"
                                     "15.03.2026\t10,00\t\tkeine\tPrivateinlagen\t\t\t1123,51\n"
                                     "15.03.2026\t\t5,00\t7% VSt.\t\t\t\t1118,51\n"
                                     "15.03.2026\t\t0,00\tkeine\t\t\t\t1118,51"_s);
}

TEST_F(JournalTest, ReportsAFailedLoadOnceAndKeepsTheBalances) {
    env.Add({u"2026-01-01"_s, u"E"_s, u"1"_s});
    env.Add({u"2025-01-01"_s, u"E"_s, u"20"_s});
    window.Event_Open();
    env.Hide({u"cash_tax"_s});
    window.selectors.YearPopup.SetListIndex(1);
    EXPECT_EQ(env.desktop.TakeMessages(), u"DB Error: no such table: cash_tax"_s);
    EXPECT_EQ(window.balances.OpeningBalanceLabel.Text() + bookings.Cell(0, Journal::Balance), u"120,00121,00"_s);
    env.Show({u"cash_tax"_s});
    env.Hide({u"cash_journal"_s});
    // Reading the amount of the second booking, which is of the previous year, fails.
    env.Run(
        u"CREATE VIEW cash_journal AS SELECT *, abs(-9223372036854775806 - id) AS amount FROM "
        "(SELECT id, vdate, type, tax, category, salesnumber, note, cashbookID, account FROM hidden_cash_journal)"_s);
    window.selectors.YearPopup.SetListIndex(0);
    EXPECT_EQ(env.desktop.TakeMessages() + window.balances.OpeningBalanceLabel.Text(),
              u"DB Error: integer overflow120,00"_s);
}

TEST_F(JournalTest, TreatsTheFirstCashBookAsTheMainOneWhateverItsId) {
    env.Run(u"UPDATE cash_book SET id = 7"_s);
    env.Run(u"INSERT INTO cash_book VALUES (9, 'Laden', '1010', '12,50', 'bald', NULL)"_s);
    env.Add({u"2026-01-01"_s, u"E"_s, u"1"_s});
    env.Add({.date = u"2026-01-02"_s, .type = u"A"_s, .amount = u"2"_s, .cashbook = u"9"_s});
    window.Event_Open();
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), u"101,00"_s);
    EXPECT_EQ(window.balances.GetOpeningDate(), std::optional(Date(QDate(2026, 1, 1))));
    window.selectors.CashbookPopup.SetListIndex(1);
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), u"10,50"_s);
}
