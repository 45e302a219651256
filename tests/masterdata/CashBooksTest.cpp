#include "masterdata/CashBooks.h"

#include "support/Book.h"

using namespace Qt::StringLiterals;

namespace {

class CashBooksTest : public testing::Test {
protected:
    CashBooksTest() { books.LoadCashBook(); }

    void Type(int row, int column, const QString &text) {
        list.EditCell(row, column);
        list.SetEditText(text);
    }
    /// All cash books, as the database holds them.
    QString Stored() const {
        return book.Value(u"SELECT group_concat(name || ' ' || account || ' ' || opening_balance "
                          "|| ' ' || opening_balance_date, '\n') FROM cash_book"_s);
    }

    Book book;
    CashBooks books{book.app};
    Listbox &list = books.CashbookList;
    TLXPlusMinusButton &button = books.CashBookAdd;
};

TEST_F(CashBooksTest, ListsWhatTheBookHoldsAndKeepsTheMainOneFirst) {
    book.Run(u"INSERT INTO cash_book VALUES (7, 'Büro', NULL, '12,50', 'bald', NULL)"_s);
    books.LoadCashBook();
    list.PressHeading(CashBooks::Name);
    EXPECT_EQ(list.Heading(-1) + u'\n' + list.Cell(-1, -1),
              u"Kassen\tKonto\tAnfangsbetsand\tDatum\n"
              "Kasse\t1000\t100.0\t01.01.2026\nBüro\t\t12,50\tbald"_s);
}

TEST_F(CashBooksTest, PlusNumbersNewBooksAndOpensTheirNames) {
    Q_EMIT button.PlusPressed();
    Q_EMIT button.PlusPressed();
    EXPECT_EQ(Stored(), u"Kasse 1000 100.0 2026-01-01\nNebenkasse 0 1010 0.0 2015-01-01\n"
                        "Nebenkasse 1 1020 0.0 2015-01-01"_s);
    EXPECT_EQ(list.EditedRow() * 10 + list.EditedColumn(), 20);
    Type(2, CashBooks::Account, u"990 neu"_s);
    Q_EMIT button.PlusPressed();
    EXPECT_EQ(book.desktop.TakeMessages(),
              u"DB Error: UNIQUE constraint failed: cash_book.account"_s);
}

TEST_F(CashBooksTest, WritesEachCellAsTypedAndTabRunsInACircle) {
    Q_EMIT button.PlusPressed();
    for (const auto &text : {u"Ö'; \"%1\" --"_s, u"0815"_s, u"12,50"_s, u"Laden"_s}) {
        list.SetEditText(text);
        Q_EMIT list.CellKeyDown(list.EditedRow(), list.EditedColumn(), u'\t');
    }
    Type(1, CashBooks::Account, u"1000"_s); // Taken.
    list.EndEdit();
    EXPECT_EQ(Stored(), u"Kasse 1000 100.0 2026-01-01\nLaden 0815 12,50 2015-01-01"_s);
}

TEST_F(CashBooksTest, MinusRemovesTheSelectedBookButNeverTheMainOne) {
    Q_EMIT button.MinusPressed(); // Nothing is selected.
    book.Add({.date = u"2026-01-02"_s, .type = u"A"_s, .amount = u"2"_s, .cashbook = u"2"_s});
    Q_EMIT button.PlusPressed();
    Q_EMIT button.PlusPressed();
    Type(2, CashBooks::Name, u"Laden"_s);
    list.SetListIndex(1);
    Q_EMIT button.MinusPressed();
    EXPECT_EQ(Stored(), u"Kasse 1000 100.0 2026-01-01\nLaden 1020 0.0 2015-01-01"_s);
    Q_EMIT button.MinusPressed(); // Of two presses the second removes nothing.
    EXPECT_EQ(Stored(), u"Kasse 1000 100.0 2026-01-01\nLaden 1020 0.0 2015-01-01"_s);
    list.SetListIndex(1);
    Q_EMIT button.MinusPressed();
    list.SetListIndex(0);
    Q_EMIT button.MinusPressed();
    EXPECT_EQ(Stored(), u"Kasse 1000 100.0 2026-01-01"_s);
    EXPECT_EQ(book.desktop.TakeMessages(), u"Hauptkasse kann nicht gelöscht werden!"_s);
    EXPECT_EQ(book.Value(u"SELECT count(*) FROM cash_journal"_s), u"1"_s);
}

} // namespace
