#include "platform/Date.h"

using namespace Qt::StringLiterals;

std::optional<Date> Date::FromSQL(const QString &text) {
    const QDate day = QDate::fromString(text.left(10), Qt::ISODate);
    return day.isValid() ? std::optional(Date(day)) : std::nullopt;
}

QString Date::SQLDate() const {
    return day_.toString(Qt::ISODate);
}

QString Date::SQLDateTime() const {
    return SQLDate() + u' ' + time_.toString(u"HH:mm:ss"_s);
}
