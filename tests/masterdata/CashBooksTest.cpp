#include "masterdata/CashBooks.h"

#include "support/TestEnvironment.h"

class CashBooksTest : public testing::Test {
protected:
    CashBooksTest() { cashBooks.LoadCashBook(); }

    /// Returns all stored cash cashBooks except the first.
    QString Stored() const {
        return env.Value(u"SELECT group_concat(name || ' ' || account || ' ' || opening_balance "
                         "|| ' ' || opening_balance_date, ', ') FROM cash_book WHERE id > 1"_s);
    }

    TestEnvironment env;
    CashBooks cashBooks{env.app};
    Listbox &list = cashBooks.CashbookList;
    TLXPlusMinusButton &button = cashBooks.CashBookAdd;
};

TEST_F(CashBooksTest, ListsAnyStoredCashBookAfterTheMainOne) {
    env.Run(u"INSERT INTO cash_book VALUES (7, 'Büro', NULL, '12,50', 'bald', NULL)"_s);
    cashBooks.LoadCashBook();
    list.PressHeading(CashBooks::Name);
    EXPECT_EQ(list.Heading(-1), u"Kassen\tKonto\tAnfangsbetsand\tDatum"_s);
    EXPECT_EQ(list.Cell(-1, -1), u"Kasse\t1000\t100.0\t01.01.2026\nBüro\t\t12,50\tbald"_s);
    env.Run(u"UPDATE cash_book SET id = 2 WHERE id = 7"_s);
    env.Break(u"cash_book"_s);
    cashBooks.LoadCashBook();
    EXPECT_EQ(env.desktop.TakeMessages(), u"DB Error: integer overflow"_s);
}

TEST_F(CashBooksTest, NumbersNewCashBooksAndSavesCellsWithTab) {
    Q_EMIT button.PlusPressed();
    EXPECT_EQ(Stored(), u"Nebenkasse 0 1010 0.0 2015-01-01"_s);
    QString hints[3];
    for (const int column : {0, 1, 2}) { Q_EMIT list.HintRequested(column, u"1.250,00"_s, hints[column]); }
    EXPECT_EQ(hints[0] + hints[1] + hints[2], u"wird als 1,25 gelesen"_s);
    for (const auto &text : {u"Ö'; \"%1\" --"_s, u"990 neu"_s, u"12,50"_s, u"Laden"_s}) {
        list.SetEditText(text);
        Q_EMIT list.CellKeyDown(list.EditedRow(), list.EditedColumn(), u'\t');
    }
    list.SetEditText(u"1000 "_s);
    Q_EMIT button.PlusPressed(); // Ten more than the number being typed.
    EXPECT_EQ(Stored(), u"Laden 1000  12,50 2015-01-01, Nebenkasse 1 1010 0.0 2015-01-01"_s);
    list.EditCell(2, CashBooks::Account);
    list.SetEditText(u"990"_s);
    Q_EMIT button.PlusPressed();
    EXPECT_EQ(env.desktop.TakeMessages(), u"DB Error: UNIQUE constraint failed: cash_book.account"_s);
}

TEST_F(CashBooksTest, RemovesTheSelectedCashBookExceptTheMainOne) {
    env.Add({.date = u"2026-01-02"_s, .type = u"A"_s, .amount = u"2"_s, .cashbook = u"2"_s});
    Q_EMIT button.PlusPressed();
    Q_EMIT button.PlusPressed();
    list.SetEditText(u"Laden"_s);
    list.SetListIndex(1);
    for (int presses = 0; presses < 2; ++presses) { // The second press removes nothing.
        Q_EMIT button.MinusPressed();
        EXPECT_EQ(Stored(), u"Laden 1020 0.0 2015-01-01"_s);
    }
    list.SetListIndex(0);
    Q_EMIT button.MinusPressed();
    EXPECT_EQ(env.desktop.TakeMessages(), u"Hauptkasse kann nicht gelöscht werden!"_s);
    EXPECT_EQ(env.Value(u"SELECT count(*) FROM cash_journal, cash_book"_s), u"2"_s);
}
