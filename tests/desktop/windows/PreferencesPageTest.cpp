#include "desktop/fields/HintView.h"
#include "support/MainWindowTest.h"

#include <QAccessible>
#include <QClipboard>
#include <QHeaderView>

/// The preferences page with two accounts: b (E, active) and c (A, inactive).
class PreferencesPage : public MainWindowTest {
protected:
    QTableView &OpenPage() {
        env.Run("DELETE FROM cash_accounts");
        env.Run("INSERT INTO cash_accounts (name, account, type, active) VALUES "
                "('b', '20', 'E', 1), ('c', '10', 'A', 0)");
        Open();
        window.MenuAction("preferences");
        QApplication::processEvents(); // Paints the page.
        return Find<QTableView>("CashaccountList");
    }
    QString Accounts() const {
        return env.Value(
            "SELECT group_concat(name || account || type || active, ' ') FROM cash_accounts");
    }

    QTableView &accounts = OpenPage();
    QTableView &cashBooks = Find<QTableView>("CashbookList");
};

TEST_F(PreferencesPage, StoresOrDiscardsAnOpenCell) {
    Click(accounts, 0, 0);
    Type("bb\t21\tbbb\r");
    EXPECT_EQ(Accounts(), "bbb21E1 c10A0");
    Click(accounts, 1, 1);
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Kontonummer");
    Type("99\x1b{F2}d");
    Click(QApplication::focusWidget(), {1, 9}); // Moves the cursor.
    Type("e");
    EXPECT_EQ(Accounts(), "bbb21E1 c10A0");
    Click(&view, {5, view.height() - 5}); // Outside of all controls.
    EXPECT_EQ(Accounts(), "bbb21E1 ed10A0");
    Type("{F2}f");
    cashBooks.setFocus();
    EXPECT_EQ(Accounts(), "bbb21E1 f10A0");
}

TEST_F(PreferencesPage, StoresALongPastedTextInOneLine) {
    const QString name(40000, 'x');
    QApplication::clipboard()->setText(name + '\n');
    Click(accounts, 0, 0);
    Type("{Ctrl+V}y\r");
    EXPECT_EQ(Accounts(), name + " y20E1 c10A0");
}

TEST_F(PreferencesPage, StoresAndClosesTheOpenCellBeforeACommand) {
    DoubleClick(cashBooks, 0, 0);
    Type("a{Alt+D}x");
    EXPECT_EQ(env.Value("SELECT name FROM cash_book"), "a");
    DoubleClick(cashBooks, 0, 0);
    const QWidget &editor = *QApplication::focusWidget(); // The event loop deletes it.
    window.MenuAction("new");
    EXPECT_FALSE(editor.isVisible());
}

TEST_F(PreferencesPage, StoresTheOpenCellWhenAKeyChangesTheRow) {
    Click(accounts, 0, BookingAccounts::Account);
    Type("{F2}7{Down}{F2}d{Up}{F2}e{PgDown}{F2}f{PgUp}"); // F2 opens a name, or keeps an open cell.
    EXPECT_EQ(Accounts(), "e7E1 f10A0");
}

TEST_F(PreferencesPage, ChangesAccountsAndTheirOrderByClicks) {
    env.desktop.menuChoice = 1;
    Click(accounts, 0, BookingAccounts::Kind);
    EXPECT_EQ(Accounts(), "b20A1 c10A0");
    DoubleClick(accounts, 0, BookingAccounts::Active); // Toggles twice.
    Click(accounts, 0, BookingAccounts::Active);
    Type("{Down} ");
    EXPECT_EQ(Accounts(), "b20A0 c10A1");
    Click(accounts.horizontalHeader()->viewport(), {5, 5});
    EXPECT_EQ(window.bookingAccounts.CashaccountList.Cell(-1, 0), "c\nb");
}

TEST_F(PreferencesPage, AddsAndRemovesOnlyByUnmodifiedKeysOnARow) {
    for (const QString keys : {"{F2}{Ins}", "{F2}{End}{Del}", "{Ctrl+Del}", "{Meta+Del}"}) {
        accounts.setFocus();
        Type("{Home}" + keys);
        EXPECT_EQ(Accounts(), "b20E1 c10A0") << keys;
    }
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Delete, {}, {}, true);
    QApplication::sendEvent(&accounts, &held);
    EXPECT_EQ(Accounts(), "b20E1 c10A0");
    Type("{Num+Del}");
    EXPECT_EQ(Accounts(), "c10A0");
}

TEST_F(PreferencesPage, SendsNoKeysToTheHiddenEntryRow) {
    Find<QLineEdit>("CompanyField").setFocus();
    Type("{Ctrl+N}5");
    EXPECT_EQ(window.companyProfile.CompanyField.Text(), "5Muster");
}

TEST_F(PreferencesPage, AddsAndRemovesTheCashBookOfTheJournal) {
    PopupMenu &shown = window.selectors.CashbookPopup;
    auto &buttons = Find<QWidget>("CashBookAdd");
    Click(&buttons, {10, 14});
    Type("Laden\t\t1.250");
    EXPECT_EQ(QApplication::focusWidget()->accessibleDescription(), "wird als 1,25 gelesen");
    EXPECT_TRUE(view.findChildren<HintView *>().last()->isVisible());
    window.MenuAction("cashbook");
    shown.SetListIndex(1);
    EXPECT_EQ(shown.Text(), "1010:Laden");
    window.MenuAction("preferences");
    DoubleClick(cashBooks, 1, 0);
    Click(&buttons, {40, 14});
    window.MenuAction("cashbook");
    EXPECT_EQ(shown.Text(), "1000:Kasse");
}

TEST_F(PreferencesPage, WorksByKeyboardAndIsAccessible) {
    accounts.setFocus();
    Type("{Home}{Shift+F10}{Down}{Down}\r");
    EXPECT_EQ(Accounts(), "b20A1 c10A0");
    Type("{Ins}a\r");
    const auto &list = *QAccessible::queryAccessibleInterface(&accounts)->tableInterface();
    EXPECT_EQ(list.columnDescription(3), "Aktiv");
    EXPECT_EQ(list.cellAt(2, 3)->text(QAccessible::Name), "Aktiv ja");
    Type("{Del}\t "); // Tab reaches the plus of the cash books.
    EXPECT_EQ(list.rowCount(), 2);
    EXPECT_EQ(cashBooks.model()->rowCount(), 2);
    Type("\x1b\t\t\t "); // From the list to the minus.
    EXPECT_EQ(cashBooks.model()->rowCount(), 1);
}
