#include "journal/Selectors.h"

#include "support/TestEnvironment.h"

TEST(Selectors, ListTheBookingYearsAndShowThePeriodOfADate) {
    TestEnvironment env;
    Selectors selectors(env.app);
    selectors.LoadMonths();
    selectors.GetJournalYears();
    EXPECT_EQ(selectors.PeriodStartSQL(), "2026-01-01") << "the year of the opening balance";
    for (const QString year : {"2024", "2027", "2024", "2025"}) {
        env.Add({year + "-12-31", "E", "1", {}, {}, "2"});
    }
    selectors.GetJournalYears();
    const PopupMenu &years = selectors.YearPopup;
    EXPECT_EQ(years.List(0) + years.List(1) + years.List(2) + years.List(3), "202720252024");
    selectors.ShowPeriod(Date(QDate(2024, 9, 30)));
    EXPECT_EQ(selectors.PeriodStartSQL(), "2024-09-01");
    selectors.ShowPeriod(Date(QDate(2030, 12, 24)));
    selectors.GetJournalYears(); // Keeps the selected year.
    EXPECT_EQ(selectors.PeriodStartSQL(), "2024-12-01");
}

TEST(Selectors, ListNoYearsAfterAFailedQueryUntilReloaded) {
    const TestEnvironment env;
    Selectors selectors(env.app);
    env.Add({"2024-12-31", "E", "1"});
    selectors.GetJournalYears();
    env.Hide({"cash_journal"});
    selectors.GetJournalYears();
    EXPECT_EQ(selectors.YearPopup.ListCount(), 0) << "not even the year of the opening balance";
    env.Show({"cash_journal"});
    selectors.LoadMissing();
    EXPECT_EQ(selectors.YearPopup.Text(), "2024");
}
