#include "support/TestEnvironment.h"

class AccountsTest : public EnvironmentTest {
protected:
    using enum BookingAccounts::Column;

    AccountsTest() {
        env.Run("DELETE FROM cash_accounts");
        env.Run("INSERT INTO cash_accounts (name, account, type, active) VALUES ('ölig', '0815', "
                "'A', '1'), ('b', '4711', 'E', '0'), ('A', NULL, 'E', NULL)");
        accounts.LoadCashAccounts();
    }

    /// Returns a column of all stored accounts, in the order of their ids.
    QString Stored(const QString &column) const {
        return env.Value(u"SELECT group_concat(%1, ' ') FROM cash_accounts"_s.arg(column));
    }

    BookingAccounts &accounts = window.bookingAccounts;
    Listbox &list = accounts.CashaccountList;
};

TEST_F(AccountsTest, AreListedByNameAndSortedByTheCheckBox) {
    EXPECT_EQ(list.Heading(-1), "Bezeichnung\tKontonummer\tArt\tAktiv");
    EXPECT_EQ(list.Cell(-1, -1), "A\t\tE\t\nb\t4711\tE\t\nölig\t0815\tA\t");
    list.PressHeading(Active);
    EXPECT_EQ(list.Cell(-1, Name), "A\nb\nölig");
    list.PressHeading(Active);
    EXPECT_EQ(list.Cell(-1, Name), "ölig\nA\nb");
}

TEST_F(AccountsTest, KeepTypedTextAndTheSelectionWhenReloaded) {
    list.EditCell(2, Account);
    list.SetEditText("7");
    accounts.LoadCashAccounts();
    EXPECT_EQ(list.Cell(2, Account), "7");
    EXPECT_EQ(list.ListIndex(), 2);
}

TEST_F(AccountsTest, StoreTheKindChosenFromAMenu) {
    bool handled = false;
    Q_EMIT list.MouseDown(0, Kind, handled);
    EXPECT_TRUE(handled);
    list.EditCell(0, Account);
    list.SetEditText("7");
    Q_EMIT list.MouseUp(0, Kind); // No item is chosen.
    EXPECT_EQ(Stored("account"), "0815 4711 7");
    env.desktop.menuChoice = 1;
    Q_EMIT list.MouseUp(0, Kind);
    Q_EMIT list.MouseUp(1, Account);
    Q_EMIT list.MouseUp(-1, Kind); // Below the rows.
    EXPECT_EQ(Stored("type"), "A E A");
}

TEST_F(AccountsTest, AreAddedAndRemovedOneByOne) {
    Q_EMIT accounts.AccountsAdd.PlusPressed();
    EXPECT_EQ(list.Cell(list.EditedRow(), list.EditedColumn()), "Neues Konto");
    EXPECT_EQ(Stored("name || type || active"), "öligA1 bE0 Neues KontoE1");
    list.SetListIndex(0);
    Q_EMIT accounts.AccountsAdd.MinusPressed();
    Q_EMIT accounts.AccountsAdd.MinusPressed(); // No row is selected now.
    EXPECT_EQ(Stored("name"), "ölig b Neues Konto");
}
