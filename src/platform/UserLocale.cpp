#include "platform/UserLocale.h"

#include <QByteArray>

#include <array>
#include <charconv>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QLocale German(const QLocale &desktop) {
    return desktop.language() == QLocale::German ? desktop
                                                 : QLocale(QLocale::German, QLocale::Germany);
}

QString WithFourDigitYear(QString form) {
    return form.contains(u"yyyy"_s) ? form : form.replace(u"yy"_s, u"yyyy"_s);
}

/// The shortest decimal text of the magnitude, without an exponent.
QByteArray Digits(double value) {
    std::array<char, 400> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                   std::chars_format::fixed);
    return {text.data(), end.ptr - text.data()};
}

/// Adds one to the last digit of a text of digits and one dot.
void AddOneUnit(QByteArray &digits) {
    for (qsizetype i = digits.size() - 1; i >= 0; --i) {
        if (digits[i] == '.') {
            continue;
        }
        if (digits[i] != '9') {
            ++digits[i];
            return;
        }
        digits[i] = '0';
    }
    digits.prepend('1');
}

void RoundTo(QByteArray &digits, qsizetype decimals) {
    if (!digits.contains('.')) {
        digits.append('.');
    }
    const qsizetype end = digits.indexOf('.') + 1 + decimals;
    if (digits.size() <= end) {
        digits.append(end - digits.size(), '0');
        return;
    }
    const bool up = digits[end] >= '5';
    digits.truncate(end);
    if (up) {
        AddOneUnit(digits);
    }
}

bool IsZero(const QByteArray &digits) {
    return digits.count('0') + 1 == digits.size();
}

} // namespace

UserLocale::UserLocale(const QLocale &desktop)
    : locale_(German(desktop)), decimalSeparator_(locale_.decimalPoint()),
      shortForm_(WithFourDigitYear(locale_.dateFormat(QLocale::ShortFormat))) {}

QString UserLocale::Format(double value, QStringView mask) const {
    if (!std::isfinite(value)) {
        value = 0;
    }
    const qsizetype dot = mask.indexOf(u'.');
    const bool leadingDigit = mask.left(dot).contains(u'0');
    QByteArray digits = Digits(value);
    RoundTo(digits, mask.size() - dot - 1);
    const bool negative = value < 0 && !IsZero(digits);
    const qsizetype point = digits.indexOf('.');
    QString text;
    text.reserve(digits.size() + 1);
    if (negative) {
        text += u'-';
    }
    if (leadingDigit || point != 1 || digits[0] != '0') {
        text += QLatin1StringView(digits.constData(), point);
    }
    text += decimalSeparator_;
    text += QLatin1StringView(digits.constData() + point + 1, digits.size() - point - 1);
    return text;
}

QString UserLocale::ShortDate(const Date &date) const {
    return locale_.toString(date.Day(), shortForm_);
}

QString UserLocale::LongDate(const Date &date) const {
    return locale_.toString(date.Day(), QLocale::LongFormat);
}

std::optional<Date> UserLocale::ParseDate(const QString &text) const {
    const QDate day = locale_.toDate(text, shortForm_);
    return day.isValid() ? std::optional(Date(day)) : std::nullopt;
}
