#include "platform/UserLocale.h"

#include "support/GoogleTest.h"

using namespace Qt::StringLiterals;

namespace {

const UserLocale german(QLocale(QLocale::German, QLocale::Germany));

TEST(UserLocale, RoundsHalfAwayFromZeroOnTheShortestText) {
    const std::tuple<double, QString, QString> cases[] = {
        {0, u"0,00"_s, u",00"_s},
        {0.5, u"0,50"_s, u",50"_s},
        {-0.5, u"-0,50"_s, u"-,50"_s},
        {-0.004, u"0,00"_s, u",00"_s},
        {-0.005, u"-0,01"_s, u"-,01"_s},
        {1.005, u"1,01"_s, u"1,01"_s},
        {2.675, u"2,68"_s, u"2,68"_s},
        {999.995, u"1000,00"_s, u"1000,00"_s},
        {0.995, u"1,00"_s, u"1,00"_s},
        {10, u"10,00"_s, u"10,00"_s},
        {1234567.891, u"1234567,89"_s, u"1234567,89"_s},
        {1e15, u"1000000000000000,00"_s, u"1000000000000000,00"_s},
        {5e-324, u"0,00"_s, u",00"_s},
    };
    for (const auto &[value, amount, balance] : cases) {
        EXPECT_EQ(german.FormatAmount(value), amount);
        EXPECT_EQ(german.FormatBalance(value), balance);
    }
}

TEST(UserLocale, ReadsTheShortDatesThatItWrites) {
    const std::pair<QLocale, QString> cases[] = {{QLocale(u"de_AT"_s), u"-1234,50"_s},
                                                 {QLocale(u"de_CH"_s), u"-1234.50"_s},
                                                 {QLocale(u"en_US"_s), u"-1234,50"_s}};
    for (const auto &[desktop, amount] : cases) {
        const UserLocale locale(desktop);
        EXPECT_EQ(locale.FormatAmount(-1234.5), amount);
        EXPECT_EQ(locale.LongDate(Date(QDate(2026, 3, 1))), u"Sonntag, 1. März 2026"_s);
        EXPECT_EQ(locale.ShortDate(Date(QDate(2026, 3, 1))), u"01.03.2026"_s);
        for (const QDate day : {QDate(1949, 12, 31), QDate(2026, 3, 1), QDate(2124, 2, 29)}) {
            EXPECT_EQ(locale.ParseDate(locale.ShortDate(Date(day))), std::optional(Date(day)));
        }
        for (const auto &text : {u""_s, u"31.02.2026"_s, u"2026-03-01"_s, u"gestern"_s}) {
            EXPECT_FALSE(locale.ParseDate(text)) << qPrintable(text);
        }
    }
}

} // namespace
