#include "platform/UserLocale.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const UserLocale german(QLocale(QLocale::German, QLocale::Germany));

TEST(UserLocale, RoundsHalfAwayFromZeroOnTheShortestText) {
    const struct {
        double value;
        QString amount;
        QString balance;
    } cases[] = {
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
    for (const auto &each : cases) {
        EXPECT_EQ(german.FormatAmount(each.value), each.amount);
        EXPECT_EQ(german.FormatBalance(each.value), each.balance);
    }
}

} // namespace
