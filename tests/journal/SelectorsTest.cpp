#include "journal/Selectors.h"

#include "support/TestEnvironment.h"

TEST(Selectors, ListTheBookingYearsAndShowThePeriodOfADate) {
    TestEnvironment env;
    Selectors selectors(env.app);
    selectors.LoadMonths();
    selectors.GetJournalYears();
    EXPECT_EQ(selectors.PeriodStartSQL(), u"2026-01-01"_s) << "the year of the opening balance";
    for (const auto &year : {u"2024"_s, u"2027"_s, u"2024"_s, u"2025"_s}) {
        env.Add({year + u"-12-31"_s, u"E"_s, u"1"_s, {}, {}, u"2"_s});
    }
    selectors.GetJournalYears();
    const PopupMenu &years = selectors.YearPopup;
    EXPECT_EQ(years.List(0) + years.List(1) + years.List(2) + years.List(3), u"202720252024"_s);
    selectors.ShowPeriod(Date(QDate(2024, 9, 30)));
    EXPECT_EQ(selectors.PeriodStartSQL(), u"2024-09-01"_s);
    selectors.ShowPeriod(Date(QDate(2030, 12, 24)));
    selectors.GetJournalYears(); // Keeps the selected year.
    EXPECT_EQ(selectors.PeriodStartSQL(), u"2024-12-01"_s);
}

TEST(Selectors, ListNoYearsAfterAFailedQueryUntilReloaded) {
    const TestEnvironment env;
    Selectors selectors(env.app);
    env.Add({u"2024-12-31"_s, u"E"_s, u"1"_s});
    selectors.GetJournalYears();
    env.Hide({u"cash_journal"_s});
    selectors.GetJournalYears();
    EXPECT_EQ(selectors.YearPopup.ListCount(), 0) << "not even the year of the opening balance";
    env.Show({u"cash_journal"_s});
    selectors.LoadMissing();
    EXPECT_EQ(selectors.YearPopup.Text(), u"2024"_s);
}
