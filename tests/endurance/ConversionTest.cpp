#include "core/TLXModule.h"
#include "endurance/Endurance.h"
#include "platform/controls/DateControl.h"
#include "support/BookTest.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// What the conversions promise, for any amount and day and every German locale.
class Conversions : public Endurance {
protected:
    /// Any number of cents, of up to 15 digits.
    qint64 AnyCents() {
        const auto digits = static_cast<qint64>(std::pow(10, 1 + Any(15)));
        return static_cast<qint64>(random()) * static_cast<qint64>(random() >> 4) % digits;
    }
    UserLocale AnyLocale() {
        static const QList<QLocale> all =
            QLocale::matchingLocales(QLocale::German, QLocale::AnyScript, QLocale::AnyCountry);
        return UserLocale(all[Any(int(all.size()))]);
    }
};

TEST_F(Conversions, ReadEveryAmountAndDayThatTheyShow) {
    Run(20'000, [this] {
        const UserLocale german = AnyLocale();
        const double amount = double(AnyCents()) / 100;
        EXPECT_EQ(TLXModule::AmountText2Value(german.FormatAmount(amount)), amount);
        EXPECT_EQ(TLXModule::AmountText2Value(german.FormatBalance(amount)), amount);
        const double any = std::ldexp(random(), Any(2000) - 1000);
        const double read = TLXModule::AmountText2Value(german.FormatAmount(any));
        EXPECT_TRUE(std::fabs(read - any) <= 0.005 + std::fabs(any) * 1e-15) << any << ' ' << read;
        const Date day(QDate(1, 1, 1).addDays(Any(3'652'059)));
        EXPECT_EQ(german.ParseDate(german.ShortDate(day)), std::optional(day));
        EXPECT_EQ(Date::FromSQL(day.SQLDate()), std::optional(day));
        DateControl control(u""_s, Date(QDate(2026, 3, 15)), [day] { return day; });
        EXPECT_TRUE(control.SetTyped(TLXModule::DateSQL2German(day.SQLDate())));
        EXPECT_EQ(control.DateValue(), day) << qPrintable(day.SQLDate());
    });
}

TEST_F(Conversions, RunTheBalanceExactlyThroughAnyAmounts) {
    Run(4, [this] {
        Book book;
        std::vector<qint64> booked(1); // By id, in cents; what leaves the till is negative.
        for (int i = 0; i < 500; ++i) {
            const qint64 cents = AnyCents() % 10'000'000'000;
            const bool receipt = Any(2) == 0;
            booked.push_back(receipt ? cents : -cents);
            book.Add({QDate(2026, 1, 1).addDays(Any(365)).toString(Qt::ISODate),
                      receipt ? u"E"_s : u"A"_s, QString::number(double(cents) / 100, 'f', 2)});
        }
        MainWindow window(book.app);
        window.Event_Open();
        const Listbox &bookings = window.journal.CashList;
        qint64 balance = 10000;
        for (int row = 0; row < 500; ++row) {
            balance += booked[bookings.RowTag(row).toUInt()];
            ASSERT_EQ(bookings.Cell(row, Journal::Balance).remove(u',').toLongLong(), balance);
        }
        window.selectors.MonthPopup.SetListIndex(12);
        EXPECT_EQ(window.balances.LastAmountLabel.Text().remove(u',').toLongLong(), balance);
    });
}

} // namespace
