#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

/// A moment by the user's clock, or a day, which is its first moment. Dates compare by the moment.
class Date {
public:
    explicit Date(QDate day) : day_(day), time_(0, 0) {}
    explicit Date(const QDateTime &moment) : day_(moment.date()), time_(moment.time()) {}
    /// The day of a SQL date (YYYY-MM-DD), which a time may follow after a blank or a T; nothing if
    /// the text is anything else, or there is no such day.
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
