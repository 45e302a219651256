#pragma once

#include "platform/controls/Control.h"
#include "platform/values/Date.h"

#include <functional>
#include <utility>

/// A date field that the user types into or steps through. Its value is always a valid day in the
/// years 1 to 9999; setting any other day has no effect.
class DateControl : public Control {
    Q_OBJECT

public:
    /// `now` returns the current time, which determines today and the century of two-digit years.
    DateControl(const QString &name, const Date &start, std::function<Date()> now);

    int Year() const { return day_.year(); }
    int Month() const { return day_.month(); }
    int Day() const { return day_.day(); }
    /// Retains month and day; 29 February becomes the 28th in a common year.
    void SetYear(int year) { SetDay(day_.addYears(year - Year())); }

    /// Returns the displayed day.
    Date DateValue() const { return Date(day_); }
    void SetDateValue(const Date &date) { SetDay(date.Day()); }

    /// Sets the day from typed text. Returns false and sets a hint if the text is not a valid day;
    /// the next valid day clears the hint. Accepted formats: 0102, 010226, 01022026, 1.2, 1.2.,
    /// 1.2.26, 1.2.2026, 2026-02-01, and 1 for a day of the displayed month. A missing year is that
    /// of the displayed day, a two-digit year is in the current century.
    [[nodiscard]] bool SetTyped(const QString &text);
    /// Returns whether typed text was rejected and no valid day has been set since, and clears that
    /// state. The displayed day may then not be the intended one.
    [[nodiscard]] bool ResetRefusal() { return std::exchange(refused_, false); }

    void Step(int days) { SetDay(day_.addDays(days)); }
    /// A day beyond the end of the new month becomes its last day.
    void StepMonths(int months) { SetDay(day_.addMonths(months)); }
    void Today() { SetDay(now_().Day()); }

private:
    QDate ParseDay(const QString &text) const;
    int ParseYear(QStringView digits) const;
    bool SetDay(QDate day);

    QDate day_;
    bool refused_ = false;
    std::function<Date()> now_;
};
