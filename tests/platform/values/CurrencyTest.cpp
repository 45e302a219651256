#include "platform/values/Currency.h"

#include "support/GoogleTest.h"

constexpr double largest = 922337203685477.5807;

TEST(Currency, RoundsToTheTenThousandthAndStaysInItsRange) {
    struct Case {
        double value, held;
    };
    const Case cases[] = {{0.1, 0.1},         {-1.00005, -1.0001}, {1.00004999, 1.0},
                          {largest, largest}, {1e300, largest},    {-1e300, -largest},
                          {qInf(), 0},        {-qInf(), 0},        {qQNaN(), 0}};
    for (const Case &each : cases) { EXPECT_EQ(Currency::FromDouble(each.value).ToDouble(), each.held) << each.value; }
}

TEST(Currency, SumsExactlyAndStaysAtTheEndsOfItsRange) {
    const auto money = [](double value) { return Currency::FromDouble(value); };
    const Currency unit = money(0.0001);
    const Currency most = money(1e300);
    const Currency least = money(-1e300);
    EXPECT_EQ(money(0.1) + money(0.2), money(0.3));
    EXPECT_EQ(money(0.1) - money(0.2), money(-0.1));
    EXPECT_EQ(most + unit, most);
    EXPECT_EQ(most - least, most);
    EXPECT_EQ(Currency() - least, most) << "there is one more below 0 than above";
    EXPECT_EQ(least - unit, least);
    EXPECT_EQ(least + least, least);
    EXPECT_EQ(least + unit + most, Currency());
}
