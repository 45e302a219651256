#include "platform/Text.h"

#include <charconv>
#include <cmath>
#include <limits>

double Val(QStringView text) {
    const QByteArray number = text.trimmed().toUtf8();
    const char *begin = number.constData();
    const char *end = begin + number.size();
    const bool negative = begin != end && *begin == '-';
    if (begin != end && (*begin == '-' || *begin == '+')) {
        ++begin;
    }
    // The library would also read names such as inf and nan.
    if (begin == end || !((*begin >= '0' && *begin <= '9') || *begin == '.')) {
        return 0;
    }
    double value = 0;
    if (std::from_chars(begin, end, value).ec == std::errc::result_out_of_range) {
        const bool tiny = number.toLower().contains("e-");
        value = tiny ? 0 : std::numeric_limits<double>::infinity();
    }
    return negative ? -value : value;
}

QString NthField(const QString &text, QChar separator, int number) {
    return text.section(separator, number - 1, number - 1);
}

bool SameText(QStringView a, QStringView b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}
