#include "platform/values/Currency.h"

#include "support/GoogleTest.h"

constexpr double largest = 922337203685477.5807;

TEST(Currency, RoundsToFourDecimalsAndSaturates) {
    struct Case {
        double value, rounded;
    };
    const Case cases[] = {{0.1, 0.1},         {-1.00005, -1.0001}, {1.00004999, 1.0},
                          {largest, largest}, {1e300, largest},    {-1e300, -largest},
                          {qInf(), 0},        {-qInf(), 0},        {qQNaN(), 0}};
    for (const Case &each : cases) {
        EXPECT_EQ(Currency::FromDouble(each.value).ToDouble(), each.rounded) << each.value;
    }
}

TEST(Currency, AddsExactlyAndSaturates) {
    const auto money = [](double value) { return Currency::FromDouble(value); };
    const Currency unit = money(0.0001);
    const Currency maximum = money(1e300);
    const Currency minimum = money(-1e300);
    EXPECT_EQ(money(0.1) + money(0.2), money(0.3));
    EXPECT_EQ(money(0.1) - money(0.2), money(-0.1));
    EXPECT_EQ(maximum + unit, maximum);
    EXPECT_EQ(maximum - minimum, maximum);
    EXPECT_EQ(Currency() - minimum, maximum)
        << "the minimum is one unit further from 0 than the maximum";
    EXPECT_EQ(minimum - unit, minimum);
    EXPECT_EQ(minimum + minimum, minimum);
    EXPECT_EQ(minimum + unit + maximum, Currency());
}
