#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// A local date and time; for a day without a time, its start. Compared by date and time.
class Date {
public:
    explicit Date(QDate day) : day_(day), time_(0, 0) {}
    explicit Date(const QDateTime &dateTime) : day_(dateTime.date()), time_(dateTime.time()) {}
    /// Returns the day of a SQL date (YYYY-MM-DD), which may be followed by a space or a T and a
    /// time. Returns nullopt for any other text and for an invalid date.
    static std::optional<Date> FromSQL(const QString &text);

    int Year() const { return day_.year(); }
    QDate Day() const { return day_; }
    /// YYYY-MM-DD
    QString SQLDate() const;
    /// YYYY-MM-DD HH:MM:SS
    QString SQLDateTime() const;

    friend bool operator==(const Date &, const Date &) = default;
    friend bool operator<(const Date &a, const Date &b) {
        return a.day_ != b.day_ ? a.day_ < b.day_ : a.time_ < b.time_;
    }
    friend bool operator>(const Date &a, const Date &b) { return b < a; }

private:
    QDate day_;
    QTime time_;
};
