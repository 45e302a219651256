#include "platform/values/UserLocale.h"

#include <array>
#include <charconv>
#include <cmath>
#include <string>

using namespace Qt::StringLiterals;

namespace {

/// Returns the standard German locale, without the user's settings for dates or numbers.
QLocale GermanLocale(const QLocale &systemLocale) {
    // The name of the system locale may be that of a setting for dates or numbers; its UI languages
    // are those of the user.
    QStringList names = systemLocale.uiLanguages();
    names.prepend(systemLocale.name());
    for (const QString &name : names) {
        if (const QLocale locale(name); locale.language() == QLocale::German) {
            return {QLocale::German, locale.territory()};
        }
    }
    return {QLocale::German, QLocale::Germany};
}

QString WithFourDigitYear(QString format) {
    return format.contains(u"yyyy"_s) ? format : format.replace(u"yy"_s, u"yyyy"_s);
}

/// Returns the shortest decimal text of the absolute value, without an exponent.
std::string Digits(double value) {
    std::array<char, 400> text;
    const auto end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                   std::chars_format::fixed);
    return {text.data(), end.ptr};
}

/// Adds one to the last digit of a decimal number, with carry.
void AddOneUnit(std::string &digits) {
    for (size_t i = digits.size(); i-- > 0;) {
        if (digits[i] == '.') {
            continue;
        }
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.insert(0, 1, '1');
}

void RoundTo(std::string &digits, size_t decimals) {
    if (digits.find('.') == std::string::npos) {
        digits += '.';
    }
    const size_t end = digits.find('.') + 1 + decimals;
    const bool up = digits.size() > end && digits[end] >= '5';
    digits.resize(end, '0');
    if (up) {
        AddOneUnit(digits);
    }
}

bool IsZero(const std::string &digits) {
    return digits.find_first_not_of("0.") == std::string::npos;
}

} // namespace

UserLocale::UserLocale(const QLocale &systemLocale)
    : locale_(GermanLocale(systemLocale)), decimalSeparator_(locale_.decimalPoint().front()),
      shortFormat_(WithFourDigitYear(locale_.dateFormat(QLocale::ShortFormat))) {}

QString UserLocale::Format(double value, QStringView mask) const {
    if (!std::isfinite(value)) {
        value = 0;
    }
    const qsizetype dot = mask.indexOf(u'.');
    const qsizetype decimals = mask.size() - dot - 1;
    std::string digits = Digits(value);
    RoundTo(digits, static_cast<size_t>(decimals));
    const bool negative = value < 0 && !IsZero(digits);
    if (digits.starts_with("0.") && !mask.left(dot).contains(u'0')) {
        digits.erase(0, 1);
    }
    if (negative) {
        digits.insert(0, 1, '-');
    }
    QString text = QString::fromLatin1(digits);
    text[text.size() - decimals - 1] = decimalSeparator_;
    return text;
}

QString UserLocale::ShortDate(const Date &date) const {
    return locale_.toString(date.Day(), shortFormat_);
}

QString UserLocale::LongDate(const Date &date) const {
    return locale_.toString(date.Day(), QLocale::LongFormat);
}

std::optional<Date> UserLocale::ParseDate(const QString &text) const {
    const QDate day = locale_.toDate(text, shortFormat_);
    return day.isValid() ? std::optional(Date(day)) : std::nullopt;
}
