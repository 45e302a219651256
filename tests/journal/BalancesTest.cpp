#include "support/BookTest.h"

#include <QFile>

#include <random>

using namespace Qt::StringLiterals;

namespace {

using BalancesTest = BookTest;

TEST_F(BalancesTest, CarryEarlierBookingsIntoThePeriodAndSumATypeOverAllCashBooks) {
    book.Add({u"2024-12-31"_s, u"E"_s, u"50"_s});
    book.Add({u"2026-01-31"_s, u"A"_s, u"150"_s});
    book.Add({u"2026-02-01"_s, u"E"_s, u"0.1"_s});
    book.Add({u"2026-03-31"_s, u"A"_s, u"0.75"_s});
    book.Add({.date = u"2026-02-28"_s, .type = u"E"_s, .amount = u"0.2"_s, .cashbook = u"2"_s});
    window.Event_Open();
    const Balances &shown = window.balances;
    const std::tuple<int, int, QString> cases[] = {
        {0, 0, u"150,00 to -,65"_s},   {0, 1, u"150,00 to ,00"_s}, {0, 2, u",00 to ,10"_s},
        {0, 3, u",10 to -,65"_s},      {0, 12, u"-,65 to "_s},     {1, 1, u"100,00 to "_s},
        {1, 12, u"100,00 to 150,00"_s}};
    for (const auto &[year, month, balances] : cases) {
        window.selectors.YearPopup.SetListIndex(year);
        window.selectors.MonthPopup.SetListIndex(month);
        EXPECT_EQ(shown.OpeningBalanceLabel.Text() + u" to "_s + shown.LastAmountLabel.Text(),
                  balances);
    }
    EXPECT_EQ(window.balances.CalcAmount(u"E"_s), u"50,30"_s);
    EXPECT_EQ(window.balances.CalcAmount(u"E"_s, u"2026-02-01"_s, u"2026-02-28"_s), u",30"_s);
    EXPECT_EQ(window.balances.CalcAmount(u"E"_s, u"2026-01-01"_s, u"2026-01-31"_s), u",00"_s);
}

TEST(Balances, TellOfADamagedPageAndShowNoSum) {
    Book book(Book::Place::File);
    book.Run(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 2000) "
             "INSERT INTO cash_journal (vdate, type, amount, cashbookID) "
             "SELECT '2025-01-01', 'E', 1, 1 FROM n"_s);
    book.app.NewDatabase();
    QFile file(book.app.DefaultDatabaseFile().Path());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(file.size() / 2));
    file.write("damaged");
    file.close();
    ASSERT_TRUE(book.app.DBLoad());
    book.app.Connect();
    MainWindow window(book.app);
    window.Event_Open();
    EXPECT_EQ(window.balances.OpeningBalanceLabel.Text(), u"0,00"_s);
    EXPECT_EQ(book.desktop.TakeMessages(), u"DB Error: database disk image is malformed"_s);
}

TEST_F(BalancesTest, RunExactlyThroughAnyAmounts) {
    std::mt19937 random(20260315);
    std::vector<qint64> booked(1); // By id, in cents; what leaves the till is negative.
    book.Run(u"BEGIN"_s);
    for (int i = 0; i < 500; ++i) {
        const auto cents = qint64(random() % (i % 9 == 0 ? 100'000'000 : 1000));
        const bool receipt = random() % 2 == 0;
        booked.push_back(receipt ? cents : -cents);
        book.Add({QDate(2026, 1, 1).addDays(qint64(random() % 365)).toString(Qt::ISODate),
                  receipt ? u"E"_s : u"A"_s, QString::number(double(cents) / 100, 'f', 2)});
    }
    book.Run(u"COMMIT"_s);
    window.Event_Open();
    ASSERT_EQ(bookings.ListCount(), 500);
    qint64 balance = 10000;
    for (int row = 0; row < 500; ++row) {
        balance += booked[bookings.RowTag(row).toUInt()];
        ASSERT_EQ(bookings.Cell(row, Journal::Balance).remove(u',').toLongLong(), balance) << row;
    }
    window.selectors.MonthPopup.SetListIndex(12);
    EXPECT_EQ(window.balances.LastAmountLabel.Text().remove(u',').toLongLong(), balance);
}

} // namespace
