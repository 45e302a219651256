#include "journal/Selectors.h"

#include "support/Book.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

class SelectorsTest : public testing::Test {
protected:
    QString Years() {
        selectors.GetJournalYears();
        QString years;
        for (int row = 0; row < selectors.YearPopup.ListCount(); ++row) {
            years += selectors.YearPopup.List(row) + u' ';
        }
        return years;
    }

    Book book;
    Selectors selectors{book.app};
};

TEST_F(SelectorsTest, OfferTheYearsOfAllBookingsAndShowThePeriodOfADate) {
    selectors.LoadMonths();
    EXPECT_EQ(Years(), u"2026 "_s) << "the opening year";
    for (const auto &year : {u"2024"_s, u"2027"_s, u"2024"_s, u"2025"_s}) {
        book.Add({year + u"-12-31"_s, u"E"_s, u"1"_s, {}, {}, u"2"_s});
    }
    EXPECT_EQ(Years(), u"2027 2025 2024 "_s);
    EXPECT_EQ(selectors.PeriodStartSQL(), u"2027-01-01"_s);
    selectors.ShowPeriod(Date(QDate(2024, 9, 30)));
    EXPECT_EQ(selectors.PeriodStartSQL(), u"2024-09-01"_s);
    selectors.ShowPeriod(Date(QDate(2030, 12, 24)));
    selectors.GetJournalYears(); // The year is remembered.
    EXPECT_EQ(selectors.PeriodStartSQL(), u"2024-12-01"_s);
}

TEST_F(SelectorsTest, SelectTheRememberedPositionOrTheLastRow) {
    book.Run(u"INSERT INTO cash_book (name, account) VALUES ('b', '2'), ('c', '3')"_s);
    selectors.GetCashbooks();
    selectors.CashbookPopup.SetListIndex(2);
    book.Run(u"UPDATE cash_book SET name = 'C' WHERE account = '3'"_s);
    selectors.GetCashbooks();
    EXPECT_EQ(selectors.CashbookPopup.Text(), u"3:C"_s);
    EXPECT_EQ(selectors.CashbookCondition(), u"cashbookID = '3'"_s);
    book.Run(u"DELETE FROM cash_book WHERE account = '3'"_s);
    selectors.GetCashbooks();
    EXPECT_EQ(selectors.CashbookPopup.ListIndex(), 1);
}

TEST_F(SelectorsTest, AskForOneRefreshAndOnlyAfterAChange) {
    const QSignalSpy refreshes(&selectors, &Selectors::RefreshJournal);
    {
        const Selectors::Hold outer(selectors);
        const Selectors::Hold inner(selectors);
        selectors.GetCashbooks();
        selectors.GetJournalYears();
        selectors.LoadMonths();
        EXPECT_EQ(refreshes.count(), 0);
    }
    { const Selectors::Hold nothing(selectors); }
    selectors.MonthPopup.SetListIndex(0);
    EXPECT_EQ(refreshes.count(), 1);
    selectors.GetJournalYears(); // The same row of a list built anew is a change.
    EXPECT_EQ(refreshes.count(), 2);
    selectors.MonthPopup.SetListIndex(13); // There is no such month: no row is selected.
    selectors.MonthPopup.SetListIndex(13);
    EXPECT_EQ(refreshes.count(), 3);
}

} // namespace
