#include "platform/UserLocale.h"

#include "support/GoogleTest.h"

using namespace Qt::StringLiterals;

namespace {

TEST(UserLocale, RoundsHalfAwayFromZeroOnTheShortestText) {
    const UserLocale german(QLocale(QLocale::German, QLocale::Germany));
    // A number, as an amount and as a balance.
    const QString cases = u"0=0,00 ,00|-0.5=-0,50 -,50|-0.004=0,00 ,00|-0.005=-0,01 -,01|"
                          "1.005=1,01 1,01|999.995=1000,00 1000,00|0.995=1,00 1,00|"
                          "1234567.891=1234567,89 1234567,89|5e-324=0,00 ,00"_s;
    for (const QString &each : cases.split(u'|')) {
        const double value = each.section(u'=', 0, 0).toDouble();
        EXPECT_EQ(german.FormatAmount(value) + u' ' + german.FormatBalance(value),
                  each.section(u'=', 1));
    }
}

TEST(UserLocale, WritesGermanFormsOnAnyDesktop) {
    const std::pair<QString, QString> cases[] = {{u"de_CH"_s, u"-1234.50 01.03.2026"_s},
                                                 {u"en_US"_s, u"-1234,50 01.03.2026"_s}};
    for (const auto &[desktop, shown] : cases) {
        const UserLocale locale((QLocale(desktop)));
        const Date day(QDate(2026, 3, 1));
        EXPECT_EQ(locale.FormatAmount(-1234.5) + u' ' + locale.ShortDate(day), shown);
        EXPECT_EQ(locale.LongDate(day), u"Sonntag, 1. März 2026"_s);
    }
}

} // namespace
