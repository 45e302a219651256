#include "support/TestEnvironment.h"

using BalancesTest = EnvironmentTest;

TEST_F(BalancesTest, IncludeAllEarlierBookingsOfTheCashBook) {
    const auto shown = [this](int month) {
        window.selectors.MonthPopup.SetListIndex(month);
        const Balances &balances = window.balances;
        return balances.OpeningBalanceLabel.Text() + " to " + balances.LastAmountLabel.Text();
    };
    EXPECT_EQ(shown(0), "0,00 to 0,00") << "not loaded";
    env.Add({"2024-12-31", "E", "50"});
    env.Add({"2024-11-30", "EX", "7"}); // The type is unknown.
    env.Add({"2026-01-31", "a", "150"});
    env.Add({"2026-02-01", "E", "0.1"});
    env.Add({"2026-03-31", "A", "0.75"});
    env.Add({.date = "2026-02-28", .amount = "0.2", .cashbook = "2"});
    window.Event_Open();
    EXPECT_EQ(shown(1), "150,00 to ,00");
    EXPECT_EQ(shown(2), ",00 to ,10");
    EXPECT_EQ(shown(12), "-,65 to ");
    EXPECT_EQ(window.balances.CalcAmount("E", "2026-02-01", "2026-02-28"), ",30");
}
