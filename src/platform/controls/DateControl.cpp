#include "platform/controls/DateControl.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

DateControl::DateControl(const QString &name, const Date &start, std::function<Date()> now)
    : Control(name), day_(start.Day()), now_(std::move(now)) {}

bool DateControl::SetTyped(const QString &text) {
    refused_ = !SetDay(Read(text));
    if (refused_) {
        const QString typed = text.trimmed();
        SetHint(typed.isEmpty() ? u"Das Datum fehlt."_s : typed + u" ist kein gültiges Datum."_s);
    }
    return !refused_;
}

QDate DateControl::Read(const QString &text) const {
    static const QRegularExpression iso(u"^(\\d{4})-(\\d\\d?)-(\\d\\d?)$"_s);
    // Day, month and year, whichever of the forms fits.
    static const QRegularExpression german(u"^(?|(\\d\\d?)|(\\d\\d)(\\d\\d)(\\d\\d|\\d{4})?|"
                                           "(\\d\\d?)\\.(\\d\\d?)(?:\\.(\\d\\d|\\d{4})?)?)$"_s);
    const QString typed = text.trimmed();
    if (const auto parts = iso.match(typed); parts.hasMatch()) {
        return {parts.capturedView(1).toInt(), parts.capturedView(2).toInt(),
                parts.capturedView(3).toInt()};
    }
    const auto parts = german.match(typed);
    if (!parts.hasMatch()) {
        return {};
    }
    const QStringView month = parts.capturedView(2);
    return {YearOf(parts.capturedView(3)), month.isEmpty() ? Month() : month.toInt(),
            parts.capturedView(1).toInt()};
}

int DateControl::YearOf(QStringView digits) const {
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
