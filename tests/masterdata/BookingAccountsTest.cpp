#include "masterdata/BookingAccounts.h"

#include "support/TestEnvironment.h"

class BookingAccountsTest : public testing::Test {
protected:
    BookingAccountsTest() {
        env.Run("DELETE FROM cash_accounts");
        env.Run("INSERT INTO cash_accounts (id, name, account, type, active, taxID) VALUES "
                "(1, 'ölig', '0815', 'A', '1', 9), (2, 'b', '4711', 'E', '0', 9), (3, 'A', NULL, "
                "'E', NULL, 9)");
        accounts.LoadCashAccounts();
    }

    /// Returns columns of all stored accounts, in the order of their ids.
    QString Stored(const QString &columns) const {
        return env.Value(
            u"SELECT group_concat(ifnull(%1, 'NULL'), ' ') FROM cash_accounts"_s.arg(columns));
    }

    TestEnvironment env;
    BookingAccounts accounts{env.app};
    Listbox &list = accounts.CashaccountList;
    TLXPlusMinusButton &button = accounts.AccountsAdd;
};

TEST_F(BookingAccountsTest, ListsByNameAndSortsByTheCheckBox) {
    EXPECT_EQ(list.Cell(-1, -1), "A\t\tE\t\nb\t4711\tE\t\nölig\t0815\tA\t");
    list.SetListIndex(2);
    for (const QString names : {"A\nb\nölig", "ölig\nA\nb"}) {
        list.PressHeading(BookingAccounts::Active);
        EXPECT_EQ(list.Cell(-1, BookingAccounts::Name), names);
        EXPECT_EQ(list.RowTag(list.ListIndex()), "1");
    }
}

TEST_F(BookingAccountsTest, SavesTheOpenCellToItsRowBeforeRowsChange) {
    const std::function<void()> changes[] = {
        [this] { accounts.LoadCashAccounts(); }, [this] { list.SetListIndex(0); },
        [this] { list.SetListIndex(-1); },       [this] { list.EditCell(0, 0); },
        [this] { list.ToggleCheck(0, 3); },      [this] { list.PressHeading(0); }};
    QString typed;
    for (const auto &change : changes) {
        typed += u'7';
        list.EditCell(list.FindRow("1"), BookingAccounts::Account);
        list.SetEditText(typed);
        change();
        EXPECT_EQ(Stored("account"), typed + " 4711 NULL");
    }
}

TEST_F(BookingAccountsTest, ChoosesTheTypeFromAMenu) {
    const auto choose = [this](int row, std::optional<int> choice,
                               int column = BookingAccounts::Kind) {
        bool handled = false;
        env.desktop.menuChoice = choice;
        Q_EMIT list.MouseDown(row, column, handled);
        Q_EMIT list.MouseUp(row, column);
        EXPECT_EQ(handled, column == BookingAccounts::Kind);
        return Stored("type");
    };
    EXPECT_EQ(choose(1, std::nullopt), "A E E");
    EXPECT_EQ(choose(0, 1), "A E A");
    EXPECT_EQ(choose(2, 0), "E E A");
    EXPECT_EQ(choose(-1, 1), "E E A") << "below the rows";
    EXPECT_EQ(choose(0, 0, BookingAccounts::Account), "E E A");
    EXPECT_EQ(list.Cell(-1, BookingAccounts::Kind), "A\nE\nE");
}

TEST_F(BookingAccountsTest, AddsWithPlusAndRemovesWithMinus) {
    list.EditCell(0, BookingAccounts::Name);
    list.SetEditText("Zins");
    Q_EMIT button.PlusPressed();
    EXPECT_EQ(list.Cell(list.EditedRow(), list.EditedColumn()), "Neues Konto");
    EXPECT_EQ(list.Cell(-1, BookingAccounts::Name), "b\nNeues Konto\nölig\nZins");
    EXPECT_EQ(Stored("name || type || active"), "öligA1 bE0 NULL Neues KontoE1");
    list.SetListIndex(3);
    Q_EMIT button.MinusPressed();
    Q_EMIT button.MinusPressed(); // No row is selected now.
    EXPECT_EQ(Stored("name"), "ölig b Neues Konto");
}
