#include "support/MainWindowTest.h"

/// The preferences page with two accounts: b (E, active) and c (A, inactive).
class PreferencesPage : public MainWindowTest {
protected:
    PreferencesPage() {
        env.Run("DELETE FROM cash_accounts");
        env.Run("INSERT INTO cash_accounts (name, account, type, active) VALUES "
                "('b', '20', 'E', 1), ('c', '10', 'A', 0)");
        Open();
        SwitchPage();
    }

    void SwitchPage() {
        Find<QAction>("PreferencesButton").trigger();
        QApplication::processEvents(); // Paints the page.
    }
};

/// The lists of the page, which exist once it was shown.
class PreferencesPageTest : public PreferencesPage {
protected:
    void PressPlus() { Click(&Find<QWidget>("CashBookAdd"), {10, 14}); }
    void PressMinus() { Click(&Find<QWidget>("CashBookAdd"), {40, 14}); }
    QString Accounts() const {
        return env.Value("SELECT group_concat(name || account || type || active, ' ') "
                         "FROM (SELECT * FROM cash_accounts ORDER BY id)");
    }
    QString CashBooks() const {
        return env.Value(
            "SELECT group_concat(name || account || '=' || opening_balance, ' ') FROM cash_book");
    }

    QTableView &cashBooks = Find<QTableView>("CashbookList");
    QTableView &accounts = Find<QTableView>("CashaccountList");
};

TEST_F(PreferencesPageTest, EditsCellsByClicksAndKeys) {
    Click(accounts, 0, 0);
    Type("bb\t21\tbbb\r");
    Click(accounts, 1, 1);
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Kontonummer");
    Type("99\x1b");
    EXPECT_EQ(Accounts(), "bbb21E1 c10A0");
    Type("{F2}d");
    Click(&view, {5, view.height() - 5}); // Outside of all controls.
    EXPECT_EQ(Accounts(), "bbb21E1 d10A0");
    QApplication::clipboard()->setText("d\n");
    Type("{F2}{Ctrl+V}e\r");
    EXPECT_EQ(Accounts(), "bbb21E1 d e10A0");
    Click(accounts, 0, 0);
    Type("x");
    SwitchPage();
    EXPECT_EQ(Accounts(), "x21E1 d e10A0");
}

TEST_F(PreferencesPageTest, TogglesCheckBoxesAndSortsByClicks) {
    DoubleClick(accounts, 0, BookingAccounts::Active);
    EXPECT_EQ(Accounts(), "b20E1 c10A0") << "a double click toggles twice";
    Click(accounts, 0, BookingAccounts::Active);
    Type("{Down} ");
    EXPECT_EQ(Accounts(), "b20E0 c10A1");
    const QHeaderView *heading = accounts.horizontalHeader();
    Click(heading->viewport(), {heading->sectionViewportPosition(BookingAccounts::Account) + 5, 5});
    EXPECT_EQ(window.bookingAccounts.CashaccountList.Cell(-1, BookingAccounts::Name), "c\nb");
}

TEST_F(PreferencesPageTest, RemovesOnlyOneRecordOnRepeatedInput) {
    Click(accounts, 0, BookingAccounts::Kind); // Selects the row; the menu returns no choice.
    auto &button = Find<QWidget>("AccountsAdd");
    Click(&button, {40, 14});
    QTest::mouseDClick(&button, Qt::LeftButton, {}, {40, 14});
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {40, 14});
    EXPECT_EQ(Accounts(), "c10A0");
    Click(accounts, 0, BookingAccounts::Kind);
    QKeyEvent repeatedDelete(QEvent::KeyPress, Qt::Key_Delete, {}, {}, true);
    QApplication::sendEvent(&accounts, &repeatedDelete);
    QKeyEvent repeatedReturn(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QApplication::sendEvent(button.findChild<QAbstractButton *>(), &repeatedReturn);
    EXPECT_EQ(accounts.model()->rowCount(), 1);
}

TEST_F(PreferencesPageTest, AddsAndRemovesOnlyByUnmodifiedKeys) {
    QStringList keys = {"{Alt+Del}", "{Ctrl+Shift+Del}", "{Meta+Del}", "{Alt+Ins}",
                        "{Ctrl+Alt+Ins}"};
    for (const QString &inACell : keys + QStringList{"{Ins}", "{End}{Del}"}) {
        accounts.setFocus();
        Type("{Home}{F2}" + inACell + "\x1b");
        EXPECT_EQ(Accounts(), "b20E1 c10A0") << inACell;
    }
    for (const QString &onARow : keys + QStringList{"{Ctrl+Del}", "{Shift+Del}", "{Shift+F2}"}) {
        accounts.setFocus();
        Type("{Home}" + onARow);
        EXPECT_EQ(Accounts(), "b20E1 c10A0") << onARow;
        EXPECT_FALSE(view.findChild<QWidget *>("CellEditor")) << onARow;
    }
    QTest::keyClick(view.windowHandle(), Qt::Key_Delete, Qt::KeypadModifier);
    EXPECT_EQ(Accounts(), "c10A0");
}

TEST_F(PreferencesPageTest, KeepsTheEditedColumnForF2UntilTheRowChanges) {
    Click(accounts, 0, BookingAccounts::Account);
    Type("{F2}7");
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "Kontonummer");
    Type("{Down}{F2}d\r");
    EXPECT_EQ(Accounts(), "b7E1 d10A0");
}

TEST_F(PreferencesPageTest, AddsTwoRecordsOnADoubleClickOnPlus) {
    auto &button = Find<QWidget>("AccountsAdd");
    Click(&button, {10, 14});
    QTest::mouseDClick(&button, Qt::LeftButton, {}, {10, 14});
    EXPECT_EQ(button.grab().toImage().pixel(5, 5), 0xffc0c0c0) << "the colour of a pressed button";
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {10, 14});
    EXPECT_EQ(accounts.model()->rowCount(), 4);
}

TEST_F(PreferencesPageTest, SavesAndClosesTheOpenCellBeforeACommand) {
    env.desktop.printout.emplace();
    QString name = "Kasse";
    for (const QString command : {"{Ctrl+N}", "{Ctrl+P}", "{Alt+D}x"}) {
        DoubleClick(cashBooks, 0, 0);
        Type("{End}x");
        const QPointer<QWidget> editor = view.findChild<QWidget *>("CellEditor");
        window.MenuAction("new");
        EXPECT_FALSE(editor && editor->isVisible());
        DoubleClick(cashBooks, 0, 0);
        Type("{End}y" + command);
        name += "xy";
        EXPECT_EQ(CashBooks(), name + "1000=100.0");
    }
}

TEST_F(PreferencesPageTest, SendsNoKeysToTheHiddenEntryRow) {
    const QString day = window.entryRow.DateField.DateValue().SQLDate();
    Find<QLineEdit>("CompanyField").setFocus();
    Type("{Ctrl+N}5\t");
    EXPECT_TRUE(QApplication::focusWidget()->isVisible());
    SwitchPage();
    EXPECT_EQ(window.entryRow.DateField.DateValue().SQLDate(), day);
    EXPECT_EQ(window.companyProfile.CompanyField.Text(), "5Muster");
}

TEST_F(PreferencesPageTest, AddsAndRemovesCashBooksWhileACellIsOpen) {
    PressPlus();
    Type("Laden\t1000\t1.250"); // 1000 is in use: the cash book keeps its account.
    EXPECT_EQ(QApplication::focusWidget()->accessibleDescription(), "wird als 1,25 gelesen");
    Type("{Ctrl+A}12,50\t");
    window.cashBooks.LoadCashBook();
    PressPlus();
    Type("Markt");
    PressMinus();
    EXPECT_EQ(CashBooks(), "Kasse1000=100.0 Laden1010=12,50");
    DoubleClick(cashBooks, 1, 0);
    Type("Lager\r");
    env.Add({.date = "2026-01-05", .type = "E", .amount = "7", .cashbook = "2"});
    SwitchPage();
    window.selectors.CashbookPopup.SetListIndex(1);
    EXPECT_EQ(bookings.ListCount(), 1);
    SwitchPage();
    Click(cashBooks, 1, 0);
    PressMinus();
    SwitchPage();
    EXPECT_EQ(window.selectors.CashbookPopup.Text(), "1000:Kasse");
    EXPECT_EQ(bookings.ListCount(), 0);
}

TEST_F(PreferencesPageTest, WorksByKeyboardAndIsAccessible) {
    accounts.setFocus();
    Type("{Home}{Shift+F10}{Down}{Down}\r");
    EXPECT_EQ(Accounts(), "b20A1 c10A0");
    Type("{Ins}a\r");
    auto &list = *QAccessible::queryAccessibleInterface(&accounts)->tableInterface();
    ASSERT_EQ(list.rowCount(), 3);
    EXPECT_EQ(list.columnDescription(3) + list.cellAt(2, 3)->text(QAccessible::Name), "Aktivja");
    Type("{Del}");
    EXPECT_EQ(list.rowCount(), 2);
    Type("\t \t"); // Space on the plus of the cash cashBooks opens the new name for editing.
    EXPECT_EQ(CashBooks(), "Kasse1000=100.0 Nebenkasse 01010=0.0");
    Type("\x1b\t\t\t "); // To the minus.
    EXPECT_EQ(CashBooks(), "Kasse1000=100.0");
    Find<QLineEdit>("CompanyField").setFocus();
    Type("!");
    SwitchPage();
    EXPECT_EQ(env.Value("SELECT company FROM core_company"), "!Muster");
}
