#include "support/TestEnvironment.h"

using SelectorsTest = EnvironmentTest;

TEST_F(SelectorsTest, ListTheYearsOfAllCashBooksAndShowAPeriod) {
    Selectors &selectors = window.selectors;
    window.Event_Open();
    EXPECT_EQ(selectors.YearPopup.Text(), "2026") << "the year of the opening balance";
    env.Add({"2024-12-31"});
    env.Add({"2024-01-01"});
    env.Add({.date = "2027-01-01", .cashbook = "2"});
    selectors.GetJournalYears();
    EXPECT_EQ(selectors.YearPopup.List(0), "2027");
    EXPECT_EQ(selectors.YearPopup.ListCount(), 2);
    selectors.ShowPeriod(Date(QDate(2024, 9, 30)));
    selectors.ShowPeriod(Date(QDate(2030, 11, 24)));
    selectors.GetJournalYears();
    EXPECT_EQ(selectors.PeriodStartSQL(), "2024-11-01") << "2030 is not listed";
    for (int month = 1; month <= 12; ++month) {
        const Date date(QDate(2027, month, 1));
        selectors.ShowPeriod(date);
        EXPECT_EQ(selectors.PeriodStartSQL(), date.SQLDate());
        EXPECT_EQ(selectors.MonthPopup.Text(), QLocale(QLocale::German).monthName(month));
    }
}

TEST_F(SelectorsTest, ReadMissingYearsBeforeTheReportAndTheExport) {
    window.Event_Open();
    for (const QString command : {"print", "export"}) {
        env.Hide({"cash_journal"});
        window.selectors.GetJournalYears();
        EXPECT_EQ(env.desktop.TakeMessages(), "DB Error: no such table: cash_journal");
        EXPECT_EQ(window.selectors.YearPopup.ListCount(), 0) << "not even that of the opening";
        env.Show({"cash_journal"});
        window.MenuAction(command);
        EXPECT_EQ(window.selectors.YearPopup.Text(), "2026");
    }
}
