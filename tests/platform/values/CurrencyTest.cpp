#include "platform/values/Currency.h"

#include "support/GoogleTest.h"

namespace {

TEST(Currency, SumsExactlyAndStaysInItsRange) {
    EXPECT_EQ(Currency::FromDouble(-1.00005).ToDouble(), -1.0001);
    Currency sum;
    for (int i = 0; i < 10000; ++i) {
        sum += Currency::FromDouble(0.1);
    }
    EXPECT_EQ(sum.ToDouble(), 1000.0);
    const Currency largest = Currency::FromDouble(1e300);
    EXPECT_GT(largest.ToDouble(), 9.2e14);
    EXPECT_EQ(largest + sum, largest);
}

} // namespace
