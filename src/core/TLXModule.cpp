#include "core/TLXModule.h"

#include "platform/SelectionControl.h"
#include "platform/Text.h"

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
    QString sql = text;
    if (const qsizetype comma = sql.indexOf(u','); comma >= 0) {
        sql[comma] = u'.';
    }
    return sql;
}

double AmountText2Value(const QString &text) {
    return Val(AmountText2SQL(text));
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
    for (int row = 0; row < list.ListCount(); ++row) {
        if (SameText(list.RowTag(row), tag)) {
            return row;
        }
    }
    return -1;
}

int FindText(const SelectionControl &list, const QString &text) {
    for (int row = 0; row < list.ListCount(); ++row) {
        if (SameText(list.List(row), text)) {
            return row;
        }
    }
    return -1;
}

int IndexOf(SelectionControl &list, const QString &text) {
    const int row = FindText(list, text);
    if (row >= 0) {
        list.SetListIndex(row);
    }
    return row;
}

} // namespace TLXModule
