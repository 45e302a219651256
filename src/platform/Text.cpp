#include "platform/Text.h"

#include <charconv>

using namespace Qt::StringLiterals;

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
    // A number beyond the range of a double stays 0, as what is not finite counts everywhere else.
    std::from_chars(begin, end, value);
    return negative ? -value : value;
}

QString NthField(const QString &text, QChar separator, int number) {
    return text.section(separator, number - 1, number - 1);
}

QString ReplaceLineEndings(QString text, const QString &ending) {
    return text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u"\n"_s, ending);
}

bool SameText(QStringView a, QStringView b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}
