#include "platform/DateControl.h"

#include "support/GoogleTest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// A control that shows the given day, on 15 March 2026.
struct Field : DateControl {
    explicit Field(const QString &day)
        : DateControl(u"DateField"_s, *Date::FromSQL(day),
                      [] { return Date(QDateTime(QDate(2026, 3, 15), QTime(12, 0))); }) {}

    QString Shown() const { return DateValue().SQLDate(); }
};

TEST(DateControl, ReadsEveryFormOfADay) {
    const std::pair<QString, QString> cases[] = {
        {u"0102"_s, u"2025-02-01"_s},        {u"010226"_s, u"2026-02-01"_s},
        {u"01022026"_s, u"2026-02-01"_s},    {u"1.2."_s, u"2025-02-01"_s},
        {u"1.2"_s, u"2025-02-01"_s},         {u"1.2.26"_s, u"2026-02-01"_s},
        {u"01.02.2026"_s, u"2026-02-01"_s},  {u"2026-02-01"_s, u"2026-02-01"_s},
        {u"7"_s, u"2025-11-07"_s},           {u"07"_s, u"2025-11-07"_s},
        {u" 31.12.99\n"_s, u"2099-12-31"_s}, {u"1.1.00"_s, u"2000-01-01"_s},
        {u"29.2.24"_s, u"2024-02-29"_s},     {u"01.01.1999"_s, u"1999-01-01"_s},
        {u"31.12.9999"_s, u"9999-12-31"_s},  {u"01.01.0001"_s, u"0001-01-01"_s}};
    for (const auto &[typed, day] : cases) {
        Field field(u"2025-11-15"_s);
        EXPECT_TRUE(field.SetTyped(typed)) << qPrintable(typed);
        EXPECT_EQ(field.Shown(), day) << qPrintable(typed);
    }
}

TEST(DateControl, KeepsItsDayWhenTheTextIsNoDayAndTellsOfAnotherOnly) {
    Field field(u"2025-11-15"_s);
    const QSignalSpy updates(&field, &Control::Updated);
    const QString none = u"| |31.02.|29.2.|29.02.2026|0.1.|1.13.|1.0.|31|00|3102|0113|102|01022|"
                         "0102202|010220260|1.2.6|1.2.026|1.2.12026|1.2.2026.|1..2|.2|1.2.-26|-1|"
                         "1-2-2026|2026-13-01|2026-02-30|26-02-01|2026-02|2026-02-01-|1/2/2026|"
                         "1. 2. 2026|abc|1.2.2026x|01.01.0000|١.٢.٢٠٢٦"_s;
    for (const QString &typed : none.split(u'|')) {
        EXPECT_FALSE(field.SetTyped(typed)) << qPrintable(typed);
        EXPECT_EQ(field.Shown(), u"2025-11-15"_s) << qPrintable(typed);
    }
    // The day that it is already is no news either.
    field.SetDateValue(Date(QDateTime(QDate(2025, 11, 15), QTime(8, 0))));
    field.SetDateValue(Date(QDate()));
    field.SetTyped(u"15.11."_s);
    field.SetYear(2025);
    field.Step(0);
    EXPECT_EQ(updates.count(), 0);
    field.Today();
    EXPECT_EQ(field.Shown() + QString::number(updates.count()), u"2026-03-151"_s);
}

TEST(DateControl, StepsAcrossMonthsAndYearsAndReplacesTheYearAlone) {
    const std::tuple<QString, int, int, QString> cases[] = {
        {u"2025-11-30"_s, 1, 0, u"2025-12-01"_s}, {u"2026-01-01"_s, -1, 0, u"2025-12-31"_s},
        {u"2024-02-28"_s, 1, 0, u"2024-02-29"_s}, {u"2025-02-28"_s, 1, 0, u"2025-03-01"_s},
        {u"2025-12-31"_s, 0, 1, u"2026-01-31"_s}, {u"2026-01-15"_s, 0, -1, u"2025-12-15"_s},
        {u"2025-01-31"_s, 0, 1, u"2025-02-28"_s}, {u"2024-03-31"_s, 0, -1, u"2024-02-29"_s},
        {u"9999-12-31"_s, 1, 0, u"9999-12-31"_s}, {u"0001-01-01"_s, -1, 0, u"0001-01-01"_s},
        {u"9999-12-31"_s, 0, 1, u"9999-12-31"_s}};
    for (const auto &[start, days, months, end] : cases) {
        Field field(start);
        field.Step(days);
        field.StepMonths(months);
        EXPECT_EQ(field.Shown(), end) << qPrintable(start);
    }
    Field field(u"2024-02-29"_s);
    field.SetYear(2028);
    EXPECT_EQ(field.Shown(), u"2028-02-29"_s);
    field.SetYear(2026);
    EXPECT_EQ(field.Shown(), u"2026-02-28"_s);
}

} // namespace
