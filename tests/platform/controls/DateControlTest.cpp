#include "platform/controls/DateControl.h"

#include "support/GoogleTest.h"

/// Returns the day or the hint after typing into a field of 15 November 2025, in the year 2026.
static QString Typed(const QString &text) {
    DateControl field("", Date(QDate(2025, 11, 15)), [] { return Date(QDate(2026, 3, 15)); });
    EXPECT_FALSE(field.SetTyped("x")); // Its hint is removed by the next text.
    const bool isDay = field.SetTyped(text);
    EXPECT_EQ(field.Hint().isEmpty(), isDay);
    return isDay ? field.DateValue().SQLDate() : field.Hint();
}

TEST(DateControl, ReadsEveryDateFormat) {
    EXPECT_EQ(Typed("7"), "2025-11-07");
    EXPECT_EQ(Typed("0102"), "2025-02-01");
    EXPECT_EQ(Typed("010226"), "2026-02-01");
    EXPECT_EQ(Typed("01022026"), "2026-02-01");
    EXPECT_EQ(Typed("1.2"), "2025-02-01");
    EXPECT_EQ(Typed("01.02."), "2025-02-01");
    EXPECT_EQ(Typed(" 31.12.99\n"), "2099-12-31");
    EXPECT_EQ(Typed("29.2.2024"), "2024-02-29");
    EXPECT_EQ(Typed("2026-02-01"), "2026-02-01");
}

TEST(DateControl, RefusesTextsThatAreNoDay) {
    EXPECT_EQ(Typed(" "), "Das Datum fehlt.");
    for (const QString text : {"00", "31", "102", "0113", "01022", "0102202", "29.2.", "1..2",
                               "1.2.026", "1.2.2026.", "1.1.0000", "-1", "2026-02", "26-02-01"}) {
        EXPECT_EQ(Typed(text), text + " ist kein gültiges Datum.");
    }
}

TEST(DateControl, StaysInTheYears1To9999) {
    DateControl field("", Date(QDate(2, 1, 1)), [] { return Date(QDate(10000, 1, 1)); });
    field.SetYear(1);
    field.Step(-1);
    field.Today();
    EXPECT_EQ(field.Year(), 1);
    field.SetYear(9999);
    EXPECT_EQ(field.Year(), 9999);
}
