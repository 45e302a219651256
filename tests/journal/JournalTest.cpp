#include "support/TestEnvironment.h"

using JournalTest = EnvironmentTest;

TEST_F(JournalTest, ListsAnyStoredBookingByDateAndId) {
    env.Add({"2026-03-15", "E", "10", "0", "Einlage"});
    env.Add({"2026-01-31", "e", "12,50", "3", "Erlöse", "1", "8400", "07", "a\nb"});
    env.Add({"2026-03-15", "x", "5", "8", ""});
    env.Add({"2026-02-30", "A", "-1.005", "9", "kein Tag"});
    env.Add({.tax = "99"});
    env.Add({.cashbook = "2"});
    env.Add({"2025-03-15"});
    window.Event_Open();
    EXPECT_EQ(bookings.Cell(-1, -1).replace('\t', '|'),
              R"(2026-02-30||-1,01|19% VSt.|kein Tag|||102,01
31.01.2026|12,50||19% USt.|Erlöse|07|a
b|114,51
15.03.2026|10,00||keine|Einlage|||124,51
15.03.2026||5,00|7% VSt.||||119,51)");
    EXPECT_EQ(std::get<QString>(bookings.CellTag(3, Journal::Category)), "8400");
}

TEST_F(JournalTest, SortsBookingsOfADayByTheValueOfTheirIds) {
    for (int id = 1; id <= 11; ++id) {
        env.Add({});
    }
    window.Event_Open();
    bookings.PressHeading(Journal::DateColumn);
    EXPECT_EQ(bookings.RowTag(2), "9") << "after 11 and 10";
}

TEST_F(JournalTest, KeepsRowsSelectionAndBalancesWhenItCannotBeRead) {
    env.Add({"2026-01-01"});
    env.Add({"2025-01-01", "E", "20"});
    window.Event_Open();
    bookings.SetListIndex(0);
    env.Hide({"cash_tax"});
    window.selectors.YearPopup.SetListIndex(1);
    EXPECT_EQ(bookings.ListIndex(), 0);
    window.MenuAction("new");
    EXPECT_EQ(bookings.ListIndex(), -1);
    EXPECT_EQ(env.desktop.TakeMessages().count("DB Error: no such table: cash_tax"), 2);
    env.Show({"cash_tax"});
    env.Hide({"cash_journal"});
    env.Run("CREATE VIEW cash_journal AS SELECT abs(-9223372036854775806 - id) AS amount, * "
            "FROM hidden_cash_journal");
    window.selectors.YearPopup.SetListIndex(0);
    EXPECT_EQ(env.desktop.TakeMessages(), "DB Error: integer overflow") << "of earlier bookings";
    EXPECT_EQ(window.balances.OpeningBalanceLabel.Text(), "120,00");
}

TEST_F(JournalTest, TreatsTheFirstCashBookAsTheMainOneWhateverItsId) {
    env.Run("UPDATE cash_book SET id = 7");
    env.Run("INSERT INTO cash_book VALUES (9, 'Laden', '1010', '12,50', '', NULL)");
    env.Add({});
    env.Add({.type = "A", .amount = "2", .cashbook = "9"});
    window.Event_Open();
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), "101,00");
    window.selectors.CashbookPopup.SetListIndex(1);
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), "10,50");
}
