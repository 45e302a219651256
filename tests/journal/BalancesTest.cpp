#include "support/TestEnvironment.h"

using BalancesTest = EnvironmentTest;

TEST_F(BalancesTest, IncludeEarlierBookingsAndSumTypesOverAllCashBooks) {
    env.Add({u"2024-12-31"_s, u"E"_s, u"50"_s});
    env.Add({u"2024-11-30"_s, u"EX"_s, u"7"_s}); // An unknown type, which is not counted.
    env.Add({u"2026-01-31"_s, u"a"_s, u"150"_s});
    env.Add({u"2026-02-01"_s, u"E"_s, u"0.1"_s});
    env.Add({u"2026-03-31"_s, u"A"_s, u"0.75"_s});
    env.Add({.date = u"2026-02-28"_s, .type = u"E"_s, .amount = u"0.2"_s, .cashbook = u"2"_s});
    window.Event_Open();
    const Balances &shown = window.balances;
    struct Case {
        int year, month;
        QString opening, last;
    };
    const Case cases[] = {{0, 0, u"150,00"_s, u"-,65"_s},   {0, 1, u"150,00"_s, u",00"_s}, {0, 2, u",00"_s, u",10"_s},
                          {0, 3, u",10"_s, u"-,65"_s},      {0, 12, u"-,65"_s, u""_s},     {1, 1, u"100,00"_s, u""_s},
                          {1, 12, u"100,00"_s, u"150,00"_s}};
    for (const Case &each : cases) {
        window.selectors.YearPopup.SetListIndex(each.year);
        window.selectors.MonthPopup.SetListIndex(each.month);
        EXPECT_EQ(shown.OpeningBalanceLabel.Text(), each.opening) << each.month;
        EXPECT_EQ(shown.LastAmountLabel.Text(), each.last) << each.month;
    }
    EXPECT_EQ(window.balances.CalcAmount(u"E"_s), u"50,30"_s);
    EXPECT_EQ(window.balances.CalcAmount(u"E"_s, u"2026-02-01"_s, u"2026-02-28"_s), u",30"_s);
}
