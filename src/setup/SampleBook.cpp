#include "setup/SampleBook.h"

#include <QStringList>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/// What follows the year in each booking, from the rest of its date on. The ids count from 1.
constexpr std::array bookings = {
    u"-01-07','E','149.99',NULL,149.99,'3','Erlöse 19% USt','11','Warenverkauf',1,"
    "'2015-05-20 17:14:27','8400' );",
    u"-01-15','E','100.00',NULL,100.0,'0','Privateinlagen','','',1,"
    "'2015-05-20 17:15:09','1890' );",
    u"-01-14','A',NULL,'66.45',66.45,'9','KFZ-Kosten','','Tanken',1,"
    "'2015-05-20 17:15:30','4530' );",
    u"-01-14','E','12.90',NULL,12.9,'3','Erlöse 19% USt','12','Warenverkauf',1,"
    "'2015-05-20 17:16:26','8400' );",
    u"-01-12','A',NULL,'4.50',4.5,'8','Zeitschriften, Bücher','','',1,"
    "'2015-05-20 17:18:11','4940' );",
};

} // namespace

QString SampleBookSQL(int year) {
    const QString digits = QString::number(year);
    QString sql =
        u"INSERT INTO core_company (id, company, account_frame) VALUES ('1', 'Demo', 'SKR-03');"
        "INSERT INTO cash_book (ID, name, account, opening_balance, opening_balance_date) VALUES "
        "('1', 'Kasse', '1000', '88.90', '"_s +
        digits + u"-01-01');"_s;
    int id = 0;
    for (const auto *booking : bookings) {
        sql += u"INSERT INTO cash_journal(id,vdate,type,input,output,amount,tax,category,"
               "salesnumber,note,cashbookID,bdate,account) VALUES ( "_s +
               QString::number(++id) + u",'"_s + digits + QString::fromUtf16(booking);
    }
    return sql;
}
