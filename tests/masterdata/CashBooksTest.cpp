#include "masterdata/CashBooks.h"

#include "support/TestEnvironment.h"

class CashBooksTest : public testing::Test {
protected:
    CashBooksTest() { cashBooks.LoadCashBook(); }

    /// Returns all stored cash cashBooks except the first.
    QString Stored() const {
        return env.Value("SELECT group_concat(name || ' ' || account || ' ' || opening_balance "
                         "|| ' ' || opening_balance_date, ', ') FROM cash_book WHERE id > 1");
    }

    TestEnvironment env;
    CashBooks cashBooks{env.app};
    Listbox &list = cashBooks.CashbookList;
    TLXPlusMinusButton &button = cashBooks.CashBookAdd;
};

TEST_F(CashBooksTest, ListsAnyStoredCashBookAfterTheMainOne) {
    env.Run("INSERT INTO cash_book VALUES (7, 'Büro', NULL, '12,50', 'bald', NULL)");
    cashBooks.LoadCashBook();
    list.PressHeading(CashBooks::Name);
    EXPECT_EQ(list.Heading(-1), "Kassen\tKonto\tAnfangsbetsand\tDatum");
    EXPECT_EQ(list.Cell(-1, -1), "Kasse\t1000\t100.0\t01.01.2026\nBüro\t\t12,50\tbald");
    env.Run("UPDATE cash_book SET id = 2 WHERE id = 7");
    env.Break("cash_book");
    cashBooks.LoadCashBook();
    EXPECT_EQ(env.desktop.TakeMessages(), "DB Error: integer overflow");
}

TEST_F(CashBooksTest, NumbersNewCashBooksAndSavesCellsWithTab) {
    Q_EMIT button.PlusPressed();
    EXPECT_EQ(Stored(), "Nebenkasse 0 1010 0.0 2015-01-01");
    QString hints[3];
    for (const int column : {0, 1, 2}) {
        Q_EMIT list.HintRequested(column, "1.250,00", hints[column]);
    }
    EXPECT_EQ(hints[0] + hints[1] + hints[2], "wird als 1,25 gelesen");
    for (const QString text : {"Ö'; \"%1\" --", "990 neu", "12,50", "Laden"}) {
        list.SetEditText(text);
        Q_EMIT list.CellKeyDown(list.EditedRow(), list.EditedColumn(), u'\t');
    }
    list.SetEditText("1000 ");
    Q_EMIT button.PlusPressed(); // Ten more than the number being typed.
    EXPECT_EQ(Stored(), "Laden 1000  12,50 2015-01-01, Nebenkasse 1 1010 0.0 2015-01-01");
    list.EditCell(2, CashBooks::Account);
    list.SetEditText("990");
    Q_EMIT button.PlusPressed();
    EXPECT_EQ(env.desktop.TakeMessages(), "DB Error: UNIQUE constraint failed: cash_book.account");
}

TEST_F(CashBooksTest, RemovesTheSelectedCashBookExceptTheMainOne) {
    env.Add({.date = "2026-01-02", .type = "A", .amount = "2", .cashbook = "2"});
    Q_EMIT button.PlusPressed();
    Q_EMIT button.PlusPressed();
    list.SetEditText("Laden");
    list.SetListIndex(1);
    for (int presses = 0; presses < 2; ++presses) { // The second press removes nothing.
        Q_EMIT button.MinusPressed();
        EXPECT_EQ(Stored(), "Laden 1020 0.0 2015-01-01");
    }
    list.SetListIndex(0);
    Q_EMIT button.MinusPressed();
    EXPECT_EQ(env.desktop.TakeMessages(), "Hauptkasse kann nicht gelöscht werden!");
    EXPECT_EQ(env.Value("SELECT count(*) FROM cash_journal, cash_book"), "2");
}
