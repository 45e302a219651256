#pragma once

#include "platform/values/Date.h"

#include <QLocale>
#include <QString>

#include <optional>

/// Formats and parses numbers and dates for the user. All locale-dependent code uses this class.
class UserLocale {
public:
    /// Uses German with the territory of the system locale if that is German (for example Austria
    /// or Switzerland), otherwise Germany. The system's settings for dates and numbers are ignored.
    explicit UserLocale(const QLocale &systemLocale);

    const QLocale &Locale() const { return locale_; }

    /// Formats a number by a mask: 0 is a digit that is always shown, # a digit shown only if
    /// present, the dot is the decimal separator. Rounds half away from zero, based on the shortest
    /// decimal text of the number; a value that rounds to zero has no sign. There is no thousands
    /// separator.
    QString Format(double value, QStringView mask) const;
    /// Formats by the mask "0.00".
    QString FormatAmount(double value) const { return Format(value, u"0.00"); }
    /// Formats by the mask "-#.00": values below 1 have no digit before the separator.
    QString FormatBalance(double value) const { return Format(value, u"-#.00"); }

    /// Returns the locale's short format with a four-digit year.
    QString ShortDate(const Date &date) const;
    QString LongDate(const Date &date) const;
    /// Parses the format of ShortDate. Returns nullopt if the text is not a date.
    std::optional<Date> ParseDate(const QString &text) const;

private:
    QLocale locale_;
    QChar decimalSeparator_;
    QString shortFormat_;
};
