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
    EXPECT_EQ(book.Value(u"SELECT group_concat(id || ' ' || name || ' ' || value || ' ' || type || "
                         "' ' || ifnull(account, '-') || ' ' || active, '\n') FROM cash_tax"_s),
              u"1 keine 0 E - 1\n2 7% USt. 2 E 3801 1\n3 19% USt. 3 E 3806 1\n"
              "5 16% USt. 5 E 3805 0\n7 16% VSt. 7 A 1405 0\n8 7% VSt. 8 A 1401 1\n"
              "9 19% VSt. 9 A 1406 1\n10 keine 0 A - 1"_s);
    // Two charts of 31 rows that differ in their numbers alone.
    const QString rows = u"SELECT count(*) || group_concat(name || groupID || type || quote(taxID) "
                         "|| quote(note) || active) FROM cash_accounts"_s;
    const QString alike = book.Value(rows);
    book.Run(u"DELETE FROM cash_accounts"_s);
    book.Run(ChartSKR04SQL());
    EXPECT_EQ(book.Value(rows), alike);
    EXPECT_EQ(book.Value(u"SELECT group_concat(account) FROM cash_accounts WHERE frameID = 2 "
                         "AND name LIKE 'Erlöse %'"_s),
              u"4400,4300,4200"_s);
}

} // namespace
