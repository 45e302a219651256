#include "journal/Selectors.h"

#include "support/Book.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

TEST(Selectors, OfferTheYearsOfAllBookingsAndShowThePeriodOfADate) {
    Book book;
    Selectors selectors(book.app);
    selectors.LoadMonths();
    selectors.GetJournalYears();
    EXPECT_EQ(selectors.PeriodStartSQL(), u"2026-01-01"_s) << "the opening year";
    for (const auto &year : {u"2024"_s, u"2027"_s, u"2024"_s, u"2025"_s}) {
        book.Add({year + u"-12-31"_s, u"E"_s, u"1"_s, {}, {}, u"2"_s});
    }
    selectors.GetJournalYears();
    const PopupMenu &years = selectors.YearPopup;
    EXPECT_EQ(years.List(0) + years.List(1) + years.List(2), u"202720252024"_s);
    EXPECT_EQ(years.ListCount(), 3);
    selectors.ShowPeriod(Date(QDate(2024, 9, 30)));
    EXPECT_EQ(selectors.PeriodStartSQL(), u"2024-09-01"_s);
    selectors.ShowPeriod(Date(QDate(2030, 12, 24)));
    selectors.GetJournalYears(); // The year is remembered.
    EXPECT_EQ(selectors.PeriodStartSQL(), u"2024-12-01"_s);
}

TEST(Selectors, SelectTheRememberedCashBookOrTheLastOne) {
    Book book;
    Selectors selectors(book.app);
    book.Run(u"INSERT INTO cash_book (name, account) VALUES ('b', '2'), ('c', '3')"_s);
    const QSignalSpy refreshes(&selectors, &Selectors::RefreshJournal);
    selectors.ChangeTogether([&] {
        selectors.GetCashbooks();
        selectors.CashbookPopup.SetListIndex(2);
    });
    EXPECT_EQ(refreshes.count(), 1);
    book.Run(u"UPDATE cash_book SET name = 'C' WHERE account = '3'"_s);
    selectors.GetCashbooks();
    EXPECT_EQ(selectors.CashbookPopup.Text(), u"3:C"_s);
    book.Run(u"DELETE FROM cash_book WHERE account = '3'"_s);
    selectors.GetCashbooks();
    EXPECT_EQ(selectors.CashbookCondition(), u"cashbookID = '2'"_s);
}

} // namespace
