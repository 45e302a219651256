#include "platform/controls/DateControl.h"

#include "support/GoogleTest.h"

#include <QSignalSpy>

using namespace Qt::StringLiterals;

namespace {

/// A control that shows the given day.
struct Field : DateControl {
    explicit Field(const QString &day)
        : DateControl(u"DateField"_s, *Date::FromSQL(day),
                      [] { return Date(QDateTime(QDate(2026, 3, 15), QTime(12, 0))); }) {}

    QString Shown() const { return DateValue().SQLDate(); }
};

TEST(DateControl, ReadsEveryFormOfADay) {
    const QString cases =
        u"0102=2025-02-01|010226=2026-02-01|01022026=2026-02-01|1.2.=2025-02-01|1.2=2025-02-01|"
        "1.2.26=2026-02-01|01.02.2026=2026-02-01|2026-02-01=2026-02-01|7=2025-11-07|"
        "07=2025-11-07| 31.12.99\n=2099-12-31|1.1.00=2000-01-01|29.2.24=2024-02-29"_s;
    for (const QString &each : cases.split(u'|')) {
        Field field(u"2025-11-15"_s);
        EXPECT_TRUE(field.SetTyped(each.section(u'=', 0, 0))) << qPrintable(each);
        EXPECT_EQ(field.Shown(), each.section(u'=', 1));
    }
}

TEST(DateControl, KeepsItsDayWhenTheTextIsNoDay) {
    Field field(u"2025-11-15"_s);
    const QSignalSpy updates(&field, &Control::Updated);
    const QString none = u"| |31.02.|29.2.|0.1.|1.13.|31|00|0113|102|01022|0102202|010220260|"
                         "1.2.6|1.2.026|1.2.12026|1.2.2026.|1..2|1.2.-26|-1|1-2-2026|2026-02-30|"
                         "26-02-01|2026-02|1/2/2026|abc|1.2.2026x|01.01.0000"_s;
    for (const QString &typed : none.split(u'|')) {
        EXPECT_FALSE(field.SetTyped(typed)) << qPrintable(typed);
        EXPECT_EQ(field.Shown(), u"2025-11-15"_s) << qPrintable(typed);
    }
    EXPECT_EQ(updates.count(), 0);
}

TEST(DateControl, StepsAcrossMonthsAndYearsAndReplacesTheYearAlone) {
    const std::tuple<QString, int, int, QString> cases[] = {
        {u"2026-01-01"_s, -1, 0, u"2025-12-31"_s}, {u"2024-02-28"_s, 1, 0, u"2024-02-29"_s},
        {u"2025-12-31"_s, 0, 1, u"2026-01-31"_s},  {u"2026-01-15"_s, 0, -1, u"2025-12-15"_s},
        {u"2025-01-31"_s, 0, 1, u"2025-02-28"_s},  {u"9999-12-31"_s, 0, 1, u"9999-12-31"_s}};
    for (const auto &[start, days, months, end] : cases) {
        Field field(start);
        field.Step(days);
        field.StepMonths(months);
        EXPECT_EQ(field.Shown(), end) << qPrintable(start);
    }
    Field field(u"2024-02-29"_s);
    field.SetYear(2026);
    EXPECT_EQ(field.Shown(), u"2026-02-28"_s);
}

} // namespace
