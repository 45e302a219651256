#include "platform/values/Text.h"

#include <QCollator>
#include <QRegularExpression>
#include <QStringTokenizer>

#include <charconv>
#include <string>

using namespace Qt::StringLiterals;

double Val(QStringView text, QChar decimalMark) {
    std::string number;
    for (const QChar character : text.trimmed()) {
        // toLatin1() returns 0 for other characters, which ends the number.
        number += character == decimalMark ? '.' : character.toLatin1();
    }
    const char *begin = number.data();
    const char *end = begin + number.size();
    const bool negative = begin != end && *begin == '-';
    if (begin != end && (*begin == '-' || *begin == '+')) {
        ++begin;
    }
    // std::from_chars() would also accept inf and nan.
    if (begin == end || !((*begin >= '0' && *begin <= '9') || *begin == '.')) {
        return 0;
    }
    double value = 0;
    // A number beyond the range of a double is read as 0, like all non-finite values elsewhere.
    std::from_chars(begin, end, value);
    return negative ? -value : value;
}

QString NthField(QStringView text, QChar separator, int number) {
    for (const QStringView field : qTokenize(text, separator)) {
        if (--number == 0) {
            return field.toString();
        }
    }
    return {};
}

QString Replace(QString text, QChar search, QChar character) {
    if (const qsizetype index = text.indexOf(search); index >= 0) {
        text[index] = character;
    }
    return text;
}

QString ReplaceLineEndings(QString text, const QString &ending) {
    if (text.contains(u'\r')) {
        text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    }
    return text.replace(u'\n', ending);
}

QString OneLine(QString text) {
    // U+2028 and U+2029 are line breaks but not control characters.
    static const QRegularExpression run(u"[\\p{Cc}\\x{2028}\\x{2029}]+"_s);
    return text.replace(run, u" "_s);
}

int CompareTexts(const QString &a, const QString &b) {
    static const QCollator german = [] {
        QCollator collator(QLocale(QLocale::German, QLocale::Germany));
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        return collator;
    }();
    return german.compare(a, b);
}

bool SameText(QStringView a, QStringView b) {
    return a.compare(b, Qt::CaseInsensitive) == 0;
}
