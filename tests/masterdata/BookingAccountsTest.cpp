#include "masterdata/BookingAccounts.h"

#include "support/TestEnvironment.h"

class BookingAccountsTest : public testing::Test {
protected:
    BookingAccountsTest() {
        env.Run(u"DELETE FROM cash_accounts"_s);
        env.Run(u"INSERT INTO cash_accounts (id, name, account, type, active, taxID) VALUES "
                "(1, 'ölig', '0815', 'A', '1', 9), (2, 'b', '4711', 'E', '0', 9), (3, 'A', NULL, 'E', NULL, 9)"_s);
        accounts.LoadCashAccounts();
    }

    /// Returns columns of all stored accounts, in the order of their ids.
    QString Stored(const QString &columns) const {
        return env.Value(u"SELECT group_concat(ifnull(%1, 'NULL'), ' ') FROM cash_accounts"_s.arg(columns));
    }

    TestEnvironment env;
    BookingAccounts accounts{env.app};
    Listbox &list = accounts.CashaccountList;
    TLXPlusMinusButton &button = accounts.AccountsAdd;
};

TEST_F(BookingAccountsTest, ListsByNameAndSortsByTheCheckBox) {
    EXPECT_EQ(list.Cell(-1, -1), u"A\t\tE\t\nb\t4711\tE\t\nölig\t0815\tA\t"_s);
    list.SetListIndex(2);
    for (const auto &names : {u"A\nb\nölig"_s, u"ölig\nA\nb"_s}) {
        list.PressHeading(BookingAccounts::Active);
        EXPECT_EQ(list.Cell(-1, BookingAccounts::Name), names);
        EXPECT_EQ(list.RowTag(list.ListIndex()), u"1"_s);
    }
}

TEST_F(BookingAccountsTest, SavesTheOpenCellToItsRowBeforeRowsChange) {
    const std::function<void()> changes[] = {[this] { accounts.LoadCashAccounts(); }, [this] { list.SetListIndex(0); },
                                             [this] { list.SetListIndex(-1); },       [this] { list.EditCell(0, 0); },
                                             [this] { list.ToggleCheck(0, 3); },      [this] { list.PressHeading(0); }};
    QString typed;
    for (const auto &change : changes) {
        typed += u'7';
        list.EditCell(list.FindRow(u"1"_s), BookingAccounts::Account);
        list.SetEditText(typed);
        change();
        EXPECT_EQ(Stored(u"account"_s), typed + u" 4711 NULL"_s);
    }
}

TEST_F(BookingAccountsTest, ChoosesTheTypeFromAMenu) {
    const auto choose = [this](int row, std::optional<int> choice, int column = BookingAccounts::Kind) {
        bool handled = false;
        env.desktop.menuChoice = choice;
        Q_EMIT list.MouseDown(row, column, handled);
        Q_EMIT list.MouseUp(row, column);
        EXPECT_EQ(handled, column == BookingAccounts::Kind);
        return Stored(u"type"_s);
    };
    EXPECT_EQ(choose(1, std::nullopt), u"A E E"_s);
    EXPECT_EQ(choose(0, 1), u"A E A"_s);
    EXPECT_EQ(choose(2, 0), u"E E A"_s);
    EXPECT_EQ(choose(-1, 1), u"E E A"_s) << "below the rows";
    EXPECT_EQ(choose(0, 0, BookingAccounts::Account), u"E E A"_s);
    EXPECT_EQ(list.Cell(-1, BookingAccounts::Kind), u"A\nE\nE"_s);
}

TEST_F(BookingAccountsTest, AddsWithPlusAndRemovesWithMinus) {
    list.EditCell(0, BookingAccounts::Name);
    list.SetEditText(u"Zins"_s);
    Q_EMIT button.PlusPressed();
    EXPECT_EQ(list.Cell(list.EditedRow(), list.EditedColumn()), u"Neues Konto"_s);
    EXPECT_EQ(list.Cell(-1, BookingAccounts::Name), u"b\nNeues Konto\nölig\nZins"_s);
    EXPECT_EQ(Stored(u"name || type || active"_s), u"öligA1 bE0 NULL Neues KontoE1"_s);
    list.SetListIndex(3);
    Q_EMIT button.MinusPressed();
    Q_EMIT button.MinusPressed(); // No row is selected now.
    EXPECT_EQ(Stored(u"name"_s), u"ölig b Neues Konto"_s);
}
