#pragma once

#include "platform/controls/Control.h"
#include "platform/values/Date.h"

#include <functional>
#include <utility>

/// A day that the user types or steps to. There always is one, in the years 1 to 9999; what is no
/// such day leaves the control as it is.
class DateControl : public Control {
    Q_OBJECT

public:
    /// `now` gives the present moment; the day and the century of today are read from it.
    DateControl(const QString &name, const Date &start, std::function<Date()> now);

    int Year() const { return day_.year(); }
    int Month() const { return day_.month(); }
    int Day() const { return day_.day(); }
    /// Keeps month and day; 29 February falls to the 28th in a common year.
    void SetYear(int year) { SetDay(day_.addYears(year - Year())); }

    /// The shown day.
    Date DateValue() const { return Date(day_); }
    void SetDateValue(const Date &date) { SetDay(date.Day()); }

    /// Takes the day of a typed text; false, with a hint that says so, if the text is no day. The
    /// hint goes with the next good day. The forms are 0102, 010226,
    /// 01022026, 1.2, 1.2., 1.2.26, 1.2.2026, 2026-02-01, and 1 for a day of the shown month.
    /// Without a year the shown one is meant, with two digits of it the present century.
    [[nodiscard]] bool SetTyped(const QString &text);
    /// Whether a typed text was refused and no good day has come since; the shown day may then not
    /// be the one that was meant. Tells it once.
    [[nodiscard]] bool ResetRefusal() { return std::exchange(refused_, false); }

    void Step(int days) { SetDay(day_.addDays(days)); }
    /// A day that the other month lacks falls to its last one.
    void StepMonths(int months) { SetDay(day_.addMonths(months)); }
    void Today() { SetDay(now_().Day()); }

private:
    QDate Read(const QString &text) const;
    int YearOf(QStringView digits) const;
    bool SetDay(QDate day);

    QDate day_;
    bool refused_ = false;
    std::function<Date()> now_;
};
