#include "platform/controls/DateControl.h"

#include "support/GoogleTest.h"

static const auto today = [] { return Date(QDate(2026, 3, 15)); };

TEST(DateControl, ReadsEveryDateFormat) {
    struct Case {
        QString typed, day;
    };
    const Case cases[] = {
        {"0102", "2025-02-01"},       {"010226", "2026-02-01"},      {"01022026", "2026-02-01"},
        {"1.2.", "2025-02-01"},       {"1.2", "2025-02-01"},         {"1.2.26", "2026-02-01"},
        {"01.02.2026", "2026-02-01"}, {"2026-02-01", "2026-02-01"},  {"7", "2025-11-07"},
        {"07", "2025-11-07"},         {" 31.12.99\n", "2099-12-31"}, {"1.1.00", "2000-01-01"},
        {"29.2.24", "2024-02-29"}};
    for (const Case &each : cases) {
        DateControl field("DateField", Date(QDate(2025, 11, 15)), today);
        EXPECT_TRUE(field.SetTyped(each.typed)) << each.typed;
        EXPECT_EQ(field.DateValue().SQLDate(), each.day) << each.typed;
    }
}

TEST(DateControl, KeepsItsDateWhenTheTextIsInvalid) {
    DateControl field("DateField", Date(QDate(2025, 11, 15)), today);
    const char *const invalid[] = {
        "",           " ",         "31.02.",    "29.2.",    "0.1.",    "1.13.",     "31",
        "00",         "0113",      "102",       "01022",    "0102202", "010220260", "1.2.6",
        "1.2.026",    "1.2.12026", "1.2.2026.", "1..2",     "1.2.-26", "-1",        "1-2-2026",
        "2026-02-30", "26-02-01",  "2026-02",   "1/2/2026", "abc",     "1.2.2026x", "01.01.0000"};
    for (const char *typed : invalid) {
        EXPECT_FALSE(field.SetTyped(QString::fromLatin1(typed))) << typed;
        EXPECT_EQ(field.DateValue().SQLDate(), "2025-11-15") << typed;
    }
}
