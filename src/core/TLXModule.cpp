#include "core/TLXModule.h"

#include "platform/lists/SelectionControl.h"
#include "platform/values/Text.h"
#include "platform/values/UserLocale.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace TLXModule {

const std::array<MonthTag, 13> MonthTagTable = {{
    {u"Alle Monate", u""},
    {u"Januar", u"01"},
    {u"Februar", u"02"},
    {u"März", u"03"},
    {u"April", u"04"},
    {u"Mai", u"05"},
    {u"Juni", u"06"},
    {u"Juli", u"07"},
    {u"August", u"08"},
    {u"September", u"09"},
    {u"Oktober", u"10"},
    {u"November", u"11"},
    {u"Dezember", u"12"},
}};

QString AmountText2SQL(const QString &text) {
    return Replace(text, u',', u'.');
}

double AmountText2Value(QStringView text) {
    return Val(text, u',');
}

QString AmountHint(const QString &text, const UserLocale &locale) {
    // With more than 13 digits before the decimal mark, a double can't represent the cents.
    static const QRegularExpression plain(u"^[-+]?\\d{0,13}([.,]\\d{0,2})?$"_s);
    return plain.match(text.trimmed()).hasMatch()
               ? QString()
               : u"wird als %1 gelesen"_s.arg(locale.FormatAmount(AmountText2Value(text)));
}

QString PadAmount8(const QString &text) {
    return (u"        "_s + text).right(8);
}

QString SQLDateYear(const QString &sqlDate) {
    return sqlDate.left(4);
}

int SQLDateMonth(const QString &sqlDate) {
    return static_cast<int>(Val(sqlDate.mid(5, 2)));
}

QString DateSQL2German(const QString &text) {
    if (text.isEmpty()) {
        return {};
    }
    const QString date = text.left(10);
    return NthField(date, u'-', 3) + u'.' + NthField(date, u'-', 2) + u'.' +
           NthField(date, u'-', 1) + text.mid(10);
}

int GetRowTag(const SelectionControl &list, const QString &tag) {
    return list.FindTag(tag);
}

int IndexOf(SelectionControl &list, const QString &text) {
    const int row = list.FindText(text);
    if (row >= 0) {
        list.SetListIndex(row);
    }
    return row;
}

} // namespace TLXModule
