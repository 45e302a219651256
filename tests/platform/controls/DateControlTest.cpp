#include "platform/controls/DateControl.h"

#include "support/GoogleTest.h"

static const auto today = [] { return Date(QDate(2026, 3, 15)); };

TEST(DateControl, ReadsEveryDateFormat) {
    struct Case {
        QString typed, day;
    };
    const Case cases[] = {
        {u"0102"_s, u"2025-02-01"_s},       {u"010226"_s, u"2026-02-01"_s},      {u"01022026"_s, u"2026-02-01"_s},
        {u"1.2."_s, u"2025-02-01"_s},       {u"1.2"_s, u"2025-02-01"_s},         {u"1.2.26"_s, u"2026-02-01"_s},
        {u"01.02.2026"_s, u"2026-02-01"_s}, {u"2026-02-01"_s, u"2026-02-01"_s},  {u"7"_s, u"2025-11-07"_s},
        {u"07"_s, u"2025-11-07"_s},         {u" 31.12.99\n"_s, u"2099-12-31"_s}, {u"1.1.00"_s, u"2000-01-01"_s},
        {u"29.2.24"_s, u"2024-02-29"_s}};
    for (const Case &each : cases) {
        DateControl field(u"DateField"_s, Date(QDate(2025, 11, 15)), today);
        EXPECT_TRUE(field.SetTyped(each.typed)) << qPrintable(each.typed);
        EXPECT_EQ(field.DateValue().SQLDate(), each.day) << qPrintable(each.typed);
    }
}

TEST(DateControl, KeepsItsDateWhenTheTextIsInvalid) {
    DateControl field(u"DateField"_s, Date(QDate(2025, 11, 15)), today);
    const char *const invalid[] = {"",          " ",     "31.02.",    "29.2.",      "0.1.",      "1.13.",
                                   "31",        "00",    "0113",      "102",        "01022",     "0102202",
                                   "010220260", "1.2.6", "1.2.026",   "1.2.12026",  "1.2.2026.", "1..2",
                                   "1.2.-26",   "-1",    "1-2-2026",  "2026-02-30", "26-02-01",  "2026-02",
                                   "1/2/2026",  "abc",   "1.2.2026x", "01.01.0000"};
    for (const char *typed : invalid) {
        EXPECT_FALSE(field.SetTyped(QString::fromLatin1(typed))) << typed;
        EXPECT_EQ(field.DateValue().SQLDate(), u"2025-11-15"_s) << typed;
    }
}
