#include "support/TestEnvironment.h"

using BalancesTest = EnvironmentTest;

TEST_F(BalancesTest, IncludeEarlierBookingsAndSumTypesOverAllCashBooks) {
    env.Add({"2024-12-31", "E", "50"});
    env.Add({"2024-11-30", "EX", "7"}); // An unknown type, which is not counted.
    env.Add({"2026-01-31", "a", "150"});
    env.Add({"2026-02-01", "E", "0.1"});
    env.Add({"2026-03-31", "A", "0.75"});
    env.Add({.date = "2026-02-28", .type = "E", .amount = "0.2", .cashbook = "2"});
    window.Event_Open();
    const Balances &shown = window.balances;
    struct Case {
        int year, month;
        QString opening, last;
    };
    const Case cases[] = {{0, 0, "150,00", "-,65"},   {0, 1, "150,00", ",00"}, {0, 2, ",00", ",10"},
                          {0, 3, ",10", "-,65"},      {0, 12, "-,65", ""},     {1, 1, "100,00", ""},
                          {1, 12, "100,00", "150,00"}};
    for (const Case &each : cases) {
        window.selectors.YearPopup.SetListIndex(each.year);
        window.selectors.MonthPopup.SetListIndex(each.month);
        EXPECT_EQ(shown.OpeningBalanceLabel.Text(), each.opening) << each.month;
        EXPECT_EQ(shown.LastAmountLabel.Text(), each.last) << each.month;
    }
    EXPECT_EQ(window.balances.CalcAmount("E"), "50,30");
    EXPECT_EQ(window.balances.CalcAmount("E", "2026-02-01", "2026-02-28"), ",30");
}
