#include "support/TestEnvironment.h"

class CashBooksTest : public EnvironmentTest {
protected:
    using enum CashBooks::Column;

    CashBooksTest() { cashBooks.LoadCashBook(); }

    CashBooks &cashBooks = window.cashBooks;
    Listbox &list = cashBooks.CashbookList;
};

TEST_F(CashBooksTest, ListsAnyStoredCashBookAfterTheMainOne) {
    env.Run("INSERT INTO cash_book VALUES (2, 'Büro', NULL, '12,50', 'bald', NULL)");
    cashBooks.LoadCashBook();
    list.PressHeading(Name); // Does not sort.
    EXPECT_EQ(list.Heading(-1), "Kassen\tKonto\tAnfangsbetsand\tDatum");
    EXPECT_EQ(list.Cell(-1, -1), "Kasse\t1000\t100.0\t01.01.2026\nBüro\t\t12,50\tbald");
    env.Break("cash_book");
    cashBooks.LoadCashBook();
    EXPECT_EQ(env.desktop.TakeMessages(), "DB Error: integer overflow");
}

TEST_F(CashBooksTest, StoresCellsAndNumbersNewCashBooks) {
    Q_EMIT cashBooks.CashBookAdd.PlusPressed();
    EXPECT_EQ(list.Cell(1, -1), "Nebenkasse 0\t1010\t0.0\t01.01.2015");
    list.EditCell(1, OpeningDate);
    for (const QString text : {"not stored", "1020", "12,50", "Ö'; \"%1\" --"}) {
        list.SetEditText(text);
        Q_EMIT list.CellKeyDown(list.EditedRow(), list.EditedColumn(), u'\t');
    }
    list.SetEditText("980 neu");
    Q_EMIT cashBooks.CashBookAdd.PlusPressed();
    EXPECT_EQ(list.Cell(1, -1), "Ö'; \"%1\" --\t980 neu\t12,50\t01.01.2015");
    EXPECT_EQ(list.Cell(2, -1), "Nebenkasse 1\t990\t0.0\t01.01.2015");
}

TEST_F(CashBooksTest, KeepsTheMainCashBookAndItsTypedName) {
    list.EditCell(0, Name);
    list.SetEditText("Haupt");
    Q_EMIT cashBooks.CashBookAdd.MinusPressed();
    EXPECT_EQ(env.desktop.TakeMessages(), "Hauptkasse kann nicht gelöscht werden!");
    EXPECT_EQ(list.Cell(-1, Name), "Haupt");
}
