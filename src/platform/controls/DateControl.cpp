#include "platform/controls/DateControl.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

DateControl::DateControl(const QString &name, const Date &start, std::function<Date()> now)
    : Control(name), day_(start.Day()), now_(std::move(now)) {}

bool DateControl::SetTyped(const QString &text) {
    refused_ = !SetDay(ParseDay(text));
    if (refused_) {
        const QString trimmed = text.trimmed();
        SetHint(trimmed.isEmpty() ? u"Das Datum fehlt."_s
                                  : trimmed + u" ist kein gültiges Datum."_s);
    }
    return !refused_;
}

QDate DateControl::ParseDay(const QString &text) const {
    static const QRegularExpression iso(u"^(\\d{4})-(\\d\\d?)-(\\d\\d?)$"_s);
    // The branch reset group numbers day, month and year as 1 to 3 in every alternative.
    static const QRegularExpression german(u"^(?|(\\d\\d?)|(\\d\\d)(\\d\\d)(\\d\\d|\\d{4})?|"
                                           "(\\d\\d?)\\.(\\d\\d?)(?:\\.(\\d\\d|\\d{4})?)?)$"_s);
    const QString trimmed = text.trimmed();
    if (const auto match = iso.match(trimmed); match.hasMatch()) {
        return {match.capturedView(1).toInt(), match.capturedView(2).toInt(),
                match.capturedView(3).toInt()};
    }
    const auto match = german.match(trimmed);
    if (!match.hasMatch()) {
        return {};
    }
    const QStringView month = match.capturedView(2);
    return {ParseYear(match.capturedView(3)), month.isEmpty() ? Month() : month.toInt(),
            match.capturedView(1).toInt()};
}

int DateControl::ParseYear(QStringView digits) const {
    constexpr int century = 100;
    switch (digits.size()) {
    case 0:
        return Year();
    case 2:
        return now_().Year() / century * century + digits.toInt();
    default:
        return digits.toInt();
    }
}

bool DateControl::SetDay(QDate day) {
    if (!day.isValid() || day.year() < 1 || day.year() > 9999) {
        return false;
    }
    refused_ = false;
    SetHint({});
    Assign(day_, day);
    return true;
}
