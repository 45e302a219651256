#include "LargeDatabase.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Two expenses per receipt; texts repeat as in a real cash book, every second booking has a note.
const auto fill = u"WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n "
                  "WHERE i < %1 - 1), "
                  "a AS (SELECT i, CASE WHEN i % 3 = 0 THEN 'E' ELSE 'A' END AS type, "
                  "(i * 7919 % 99991) / 100.0 AS amount, "
                  "CASE WHEN i % 3 = 0 THEN 25 + i / 3 % 3 ELSE 1 + i % 22 END AS account FROM n) "
                  "INSERT INTO cash_journal (vdate, type, input, output, amount, tax, category, "
                  "salesnumber, note, cashbookID, bdate, account) SELECT "
                  "date((2017 + i * 10 / %1) || '-01-01', "
                  "'+' || (i % (%1 / 10) * 365 / (%1 / 10)) || ' days'), "
                  "a.type, CASE a.type WHEN 'E' THEN amount END, "
                  "CASE a.type WHEN 'A' THEN amount END, amount, "
                  "CASE a.type WHEN 'E' THEN '3' ELSE '9' END, c.name, 'R-' || i, "
                  "CASE WHEN i % 2 = 0 THEN 'Rechnung Nummer ' || i ELSE '' END, 1, "
                  "'2026-03-15 12:00:00', c.account FROM a JOIN cash_accounts AS c "
                  "ON c.id = a.account ORDER BY i"_s;

} // namespace

LargeDatabase::LargeDatabase(int bookings) {
    env.Run(QString(fill).replace(u"%1"_s, QString::number(bookings)));
    env.Run(u"UPDATE cash_book SET opening_balance_date = '2017-01-01'"_s);
    // Now: closing another handle on the file would drop SQLite's lock.
    EXPECT_TRUE(QFile::copy(env.app.DefaultDatabaseFile().Path(), copy_));
    window.Event_Open();
}
