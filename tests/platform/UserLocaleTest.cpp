#include "platform/UserLocale.h"

#include "support/GoogleTest.h"

using namespace Qt::StringLiterals;

namespace {

TEST(UserLocale, RoundsHalfAwayFromZeroOnTheShortestText) {
    const UserLocale german(QLocale(QLocale::German, QLocale::Germany));
    // A number, as an amount and as a balance.
    const QString cases =
        u"0=0,00 ,00|0.5=0,50 ,50|-0.5=-0,50 -,50|-0.004=0,00 ,00|-0.005=-0,01 -,01|"
        "1.005=1,01 1,01|2.675=2,68 2,68|999.995=1000,00 1000,00|0.995=1,00 1,00|"
        "10=10,00 10,00|1234567.891=1234567,89 1234567,89|5e-324=0,00 ,00|"
        "1e15=1000000000000000,00 1000000000000000,00"_s;
    for (const QString &each : cases.split(u'|')) {
        const double value = each.section(u'=', 0, 0).toDouble();
        EXPECT_EQ(german.FormatAmount(value) + u' ' + german.FormatBalance(value),
                  each.section(u'=', 1));
    }
}

TEST(UserLocale, WritesGermanFormsAndReadsNoOtherDates) {
    const std::pair<QLocale, QString> cases[] = {{QLocale(u"de_AT"_s), u"-1234,50"_s},
                                                 {QLocale(u"de_CH"_s), u"-1234.50"_s},
                                                 {QLocale(u"en_US"_s), u"-1234,50"_s}};
    for (const auto &[desktop, amount] : cases) {
        const UserLocale locale(desktop);
        EXPECT_EQ(locale.FormatAmount(-1234.5), amount);
        EXPECT_EQ(locale.LongDate(Date(QDate(2026, 3, 1))), u"Sonntag, 1. März 2026"_s);
        EXPECT_EQ(locale.ShortDate(Date(QDate(2026, 3, 1))), u"01.03.2026"_s);
        for (const auto &text : {u""_s, u"31.02.2026"_s, u"2026-03-01"_s, u"gestern"_s}) {
            EXPECT_FALSE(locale.ParseDate(text)) << qPrintable(text);
        }
    }
}

} // namespace
