#include "platform/values/Date.h"

using namespace Qt::StringLiterals;

std::optional<Date> Date::FromSQL(const QString &text) {
    constexpr qsizetype length = 10;
    const bool dateEnds = text.size() <= length || text[length] == u' ' || text[length] == u'T';
    const QDate day = QDate::fromString(text.left(length), Qt::ISODate);
    return dateEnds && day.isValid() ? std::optional(Date(day)) : std::nullopt;
}

QString Date::SQLDate() const {
    return day_.toString(Qt::ISODate);
}

QString Date::SQLDateTime() const {
    return SQLDate() + u' ' + time_.toString(u"HH:mm:ss"_s);
}
