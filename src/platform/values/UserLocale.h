#pragma once

#include "platform/values/Date.h"

#include <QLocale>
#include <QString>

#include <optional>

/// The user's way to write numbers and dates; it reads what it writes. The one place for a locale.
class UserLocale {
public:
    /// Plain German in the territory of a German desktop, such as Austria or Switzerland, else in
    /// Germany. What the desktop has set otherwise for dates or numbers does not count.
    explicit UserLocale(const QLocale &desktop);

    const QLocale &Locale() const { return locale_; }

    /// A number by a mask: 0 is a digit always shown, # one shown only if present, the dot stands
    /// for the decimal separator. Rounds half away from zero on the number's shortest decimal text;
    /// a value that rounds to zero has no sign. Thousands are never grouped.
    QString Format(double value, QStringView mask) const;
    /// By the mask "0.00".
    QString FormatAmount(double value) const { return Format(value, u"0.00"); }
    /// By the mask "-#.00": no digit before the separator below 1.
    QString FormatBalance(double value) const { return Format(value, u"-#.00"); }

    /// Numeric, with four digits of the year.
    QString ShortDate(const Date &date) const;
    QString LongDate(const Date &date) const;
    /// Reads the short form; nothing if the text is no date.
    std::optional<Date> ParseDate(const QString &text) const;

private:
    QLocale locale_;
    QChar decimalSeparator_;
    QString shortForm_;
};
