#include "platform/values/Currency.h"

#include "support/GoogleTest.h"

constexpr double largest = 922337203685477.5807;
static const auto money = Currency::FromDouble;

TEST(Currency, RoundsToFourDecimalsAndSaturates) {
    EXPECT_EQ(money(1.00004999).ToDouble(), 1);
    EXPECT_EQ(money(-1.00005).ToDouble(), -1.0001);
    EXPECT_EQ(money(largest).ToDouble(), largest);
    EXPECT_EQ(money(-1e300).ToDouble(), -largest);
    EXPECT_EQ(money(qInf()).ToDouble(), 0);
}

TEST(Currency, AddsExactlyAndSaturates) {
    const Currency unit = money(0.0001);
    const Currency maximum = money(largest);
    const Currency minimum = money(-largest);
    EXPECT_EQ(money(0.1) + money(0.2), money(0.3));
    EXPECT_EQ(maximum + unit, maximum);
    EXPECT_EQ(money(0) - minimum, maximum) << "the minimum is one unit further from 0";
    EXPECT_EQ(minimum - unit, minimum);
    EXPECT_EQ(minimum + minimum, minimum);
    EXPECT_EQ(minimum + unit + maximum, money(0));
}
