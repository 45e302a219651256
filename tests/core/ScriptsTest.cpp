#include "core/Scripts.h"

#include "support/Book.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Scripts, MakeTheTablesOfTheFileFormat) {
    const Book book(Book::Place::File);
    QString tables = ReadWithShell(book.app, u"SELECT sql FROM sqlite_master WHERE name LIKE 'c%' "
                                             "ORDER BY rowid"_s);
    tables = tables.simplified().replace(u" ( id integer PRIMARY KEY AUTOINCREMENT,"_s, u":"_s);
    EXPECT_EQ(
        tables.remove(u"CREATE TABLE "_s),
        u"cash_accounts: name text, account text, groupID integer, type text, taxID integer, "
        "note text, frameID integer, active boolean ) "
        "cash_accounts_frame: name text, description text ) "
        "cash_accounts_groups: name text, type text ) "
        "cash_book: name text, account text, opening_balance double, opening_balance_date date, "
        "active boolean, UNIQUE (account) ) "
        "cash_journal: vdate date, type text, input text, output text, amount double, tax text, "
        "category text, salesnumber text, note text, cashbookID integer, bdate datetime, "
        "account text ) "
        "cash_tax: name text, value text, percent double, type text, account text, "
        "active boolean ) "
        "core_company: company text, department text, firstname text, lastname text, street text, "
        "zipcode text, city text, countryID integer, state text, phone text, fax text, "
        "email text, website text, ustid text, taxnumber text, text1 text, text2 text, "
        "account_frame text, clientnumber text, consultant_name text, consultant_number text )"_s);
}

TEST(Scripts, FillTheTablesThatEveryBookStartsWith) {
    const Book book;
    EXPECT_EQ(book.Value(u"SELECT count(*) FROM cash_accounts_frame"_s), u"2"_s);
    EXPECT_EQ(book.Value(u"SELECT count(*) FROM cash_accounts_groups "
                         "WHERE (type = 'E') = (id > 22)"_s),
              u"29"_s);
    EXPECT_EQ(book.Value(u"SELECT group_concat(id || ' ' || name || ' ' || value || ' ' || type || "
                         "' ' || ifnull(account, '-') || ' ' || active, '\n') FROM cash_tax"_s),
              u"1 keine 0 E - 1\n2 7% USt. 2 E 3801 1\n3 19% USt. 3 E 3806 1\n"
              "5 16% USt. 5 E 3805 0\n7 16% VSt. 7 A 1405 0\n8 7% VSt. 8 A 1401 1\n"
              "9 19% VSt. 9 A 1406 1\n10 keine 0 A - 1"_s);
    EXPECT_TRUE(ReferenceDataSQL().startsWith(
        u"INSERT INTO \"cash_accounts_frame\"(\"id\",\"name\",\"description\") "
        "VALUES ( 1,'SKR-03',NULL );"_s));
    // Two charts of 31 rows that differ in their numbers alone.
    const QString rows = u"SELECT group_concat(id || name || groupID || type || quote(taxID) || "
                         "quote(note) || active) FROM cash_accounts"_s;
    const QString chart = u"SELECT frameID || ' ' || group_concat(account, ' ') "
                          "FROM cash_accounts"_s;
    const QString alike = book.Value(rows);
    EXPECT_EQ(book.Value(chart),
              u"1 4730 4190 4980 4650 4930 1590 1360 4630 4530 4910 1800 4250 4660 4670 4805 3720 "
              "3400 3300 3200 4600 4985 4940 1590 8400 8300 8200 1360 1990 1890 8570 1792"_s);
    book.Run(u"INSERT INTO cash_accounts (name) VALUES ('Neues Konto')"_s);
    EXPECT_EQ(book.app.kvoDB().LastRowID(), 34);
    book.Run(u"DELETE FROM cash_accounts"_s);
    book.Run(ChartSKR04SQL());
    EXPECT_EQ(book.Value(rows), alike);
    EXPECT_EQ(book.Value(chart),
              u"2 6740 6030 6300 6640 6815 1370 1460 6610 6570 6800 2100 6330 6650 6670 6460 3720 "
              "5400 5300 5200 6600 6845 6820 1370 4400 4300 4200 1460 2580 2180 4579 3630"_s);
}

} // namespace
