#include "journal/BookingReader.h"

#include "core/database/RecordSet.h"

using namespace Qt::StringLiterals;

namespace {

/// The tax table contains the key 0 twice, with the same name; DISTINCT removes the duplicate row.
QString Select(const QString &column, const QString &join, const QString &condition) {
    return u"SELECT DISTINCT cj.*, ct.name AS taxname"_s + column +
           u" FROM cash_journal As cj JOIN cash_tax AS ct ON cj.tax = ct.value "_s + join +
           u"WHERE "_s + condition + u" ORDER BY vdate"_s;
}

} // namespace

QString BookingReader::Statement(const QString &condition) {
    return Select({}, {}, condition);
}

QString BookingReader::StatementWithCashBooks(const QString &condition) {
    return Select(u", cb.account AS cbaccount"_s,
                  u"JOIN cash_book AS cb ON cj.cashbookID = cb.id "_s, condition);
}

BookingReader::BookingReader(RecordSet &records)
    : id_(records.Field("id"_L1)), vdate_(records.Field("vdate"_L1)),
      type_(records.Field("type"_L1)), amount_(records.Field("amount"_L1)),
      tax_(records.Field("tax"_L1)), taxname_(records.Field("taxname"_L1)),
      category_(records.Field("category"_L1)), account_(records.Field("account"_L1)),
      salesnumber_(records.Field("salesnumber"_L1)), note_(records.Field("note"_L1)),
      cbaccount_(records.Field("cbaccount"_L1)) {}
