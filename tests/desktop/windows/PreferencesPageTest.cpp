#include "support/MainWindowTest.h"

/// The preferences page with two accounts: b (E, active) and c (A, inactive).
class PreferencesPage : public MainWindowTest {
protected:
    PreferencesPage() {
        env.Run(u"DELETE FROM cash_accounts"_s);
        env.Run(u"INSERT INTO cash_accounts (name, account, type, active) VALUES "
                "('b', '20', 'E', 1), ('c', '10', 'A', 0)"_s);
        Open();
        SwitchPage();
    }

    void SwitchPage() {
        Find<QAction>(u"PreferencesButton"_s).trigger();
        QApplication::processEvents(); // Paints the page.
    }
};

/// The lists of the page, which exist once it was shown.
class PreferencesPageTest : public PreferencesPage {
protected:
    void PressPlus() { Click(&Find<QWidget>(u"CashBookAdd"_s), {10, 14}); }
    void PressMinus() { Click(&Find<QWidget>(u"CashBookAdd"_s), {40, 14}); }
    QString Accounts() const {
        return env.Value(u"SELECT group_concat(name || account || type || active, ' ') "
                         "FROM (SELECT * FROM cash_accounts ORDER BY id)"_s);
    }
    QString CashBooks() const {
        return env.Value(u"SELECT group_concat(name || account || '=' || opening_balance, ' ') FROM cash_book"_s);
    }

    QTableView &cashBooks = Find<QTableView>(u"CashbookList"_s);
    QTableView &accounts = Find<QTableView>(u"CashaccountList"_s);
};

TEST_F(PreferencesPageTest, EditsCellsByClicksAndKeys) {
    Click(accounts, 0, 0);
    Type(u"bb\t21\tbbb\r"_s);
    Click(accounts, 1, 1);
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), u"Kontonummer"_s);
    Type(u"99\x1b"_s);
    EXPECT_EQ(Accounts(), u"bbb21E1 c10A0"_s);
    Type(u"{F2}d"_s);
    Click(&view, {5, view.height() - 5}); // Outside of all controls.
    EXPECT_EQ(Accounts(), u"bbb21E1 d10A0"_s);
    QApplication::clipboard()->setText(u"d\n"_s);
    Type(u"{F2}{Ctrl+V}e\r"_s);
    EXPECT_EQ(Accounts(), u"bbb21E1 d e10A0"_s);
    Click(accounts, 0, 0);
    Type(u"x"_s);
    SwitchPage();
    EXPECT_EQ(Accounts(), u"x21E1 d e10A0"_s);
}

TEST_F(PreferencesPageTest, TogglesCheckBoxesAndSortsByClicks) {
    DoubleClick(accounts, 0, BookingAccounts::Active);
    EXPECT_EQ(Accounts(), u"b20E1 c10A0"_s) << "a double click toggles twice";
    Click(accounts, 0, BookingAccounts::Active);
    Type(u"{Down} "_s);
    EXPECT_EQ(Accounts(), u"b20E0 c10A1"_s);
    const QHeaderView *heading = accounts.horizontalHeader();
    Click(heading->viewport(), {heading->sectionViewportPosition(BookingAccounts::Account) + 5, 5});
    EXPECT_EQ(window.bookingAccounts.CashaccountList.Cell(-1, BookingAccounts::Name), u"c\nb"_s);
}

TEST_F(PreferencesPageTest, RemovesOnlyOneRecordOnRepeatedInput) {
    Click(accounts, 0, BookingAccounts::Kind); // Selects the row; the menu returns no choice.
    auto &button = Find<QWidget>(u"AccountsAdd"_s);
    Click(&button, {40, 14});
    QTest::mouseDClick(&button, Qt::LeftButton, {}, {40, 14});
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {40, 14});
    EXPECT_EQ(Accounts(), u"c10A0"_s);
    Click(accounts, 0, BookingAccounts::Kind);
    QKeyEvent repeatedDelete(QEvent::KeyPress, Qt::Key_Delete, {}, {}, true);
    QApplication::sendEvent(&accounts, &repeatedDelete);
    QKeyEvent repeatedReturn(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
    QApplication::sendEvent(button.findChild<QAbstractButton *>(), &repeatedReturn);
    EXPECT_EQ(accounts.model()->rowCount(), 1);
}

TEST_F(PreferencesPageTest, AddsAndRemovesOnlyByUnmodifiedKeys) {
    QStringList keys = {u"{Alt+Del}"_s, u"{Ctrl+Shift+Del}"_s, u"{Meta+Del}"_s, u"{Alt+Ins}"_s, u"{Ctrl+Alt+Ins}"_s};
    for (const QString &inACell : keys + QStringList{u"{Ins}"_s, u"{End}{Del}"_s}) {
        accounts.setFocus();
        Type(u"{Home}{F2}"_s + inACell + u"\x1b"_s);
        EXPECT_EQ(Accounts(), u"b20E1 c10A0"_s) << qPrintable(inACell);
    }
    for (const QString &onARow : keys + QStringList{u"{Ctrl+Del}"_s, u"{Shift+Del}"_s, u"{Shift+F2}"_s}) {
        accounts.setFocus();
        Type(u"{Home}"_s + onARow);
        EXPECT_EQ(Accounts(), u"b20E1 c10A0"_s) << qPrintable(onARow);
        EXPECT_FALSE(view.findChild<QWidget *>(u"CellEditor"_s)) << qPrintable(onARow);
    }
    QTest::keyClick(view.windowHandle(), Qt::Key_Delete, Qt::KeypadModifier);
    EXPECT_EQ(Accounts(), u"c10A0"_s);
}

TEST_F(PreferencesPageTest, KeepsTheEditedColumnForF2UntilTheRowChanges) {
    Click(accounts, 0, BookingAccounts::Account);
    Type(u"{F2}7"_s);
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), u"Kontonummer"_s);
    Type(u"{Down}{F2}d\r"_s);
    EXPECT_EQ(Accounts(), u"b7E1 d10A0"_s);
}

TEST_F(PreferencesPageTest, AddsTwoRecordsOnADoubleClickOnPlus) {
    auto &button = Find<QWidget>(u"AccountsAdd"_s);
    Click(&button, {10, 14});
    QTest::mouseDClick(&button, Qt::LeftButton, {}, {10, 14});
    EXPECT_EQ(button.grab().toImage().pixel(5, 5), 0xffc0c0c0) << "the colour of a pressed button";
    QTest::mouseRelease(&button, Qt::LeftButton, {}, {10, 14});
    EXPECT_EQ(accounts.model()->rowCount(), 4);
}

TEST_F(PreferencesPageTest, SavesAndClosesTheOpenCellBeforeACommand) {
    env.desktop.printout.emplace();
    QString name = u"Kasse"_s;
    for (const auto &command : {u"{Ctrl+N}"_s, u"{Ctrl+P}"_s, u"{Alt+D}x"_s}) {
        DoubleClick(cashBooks, 0, 0);
        Type(u"{End}x"_s);
        const QPointer<QWidget> editor = view.findChild<QWidget *>(u"CellEditor"_s);
        window.MenuAction(u"new"_s);
        EXPECT_FALSE(editor && editor->isVisible());
        DoubleClick(cashBooks, 0, 0);
        Type(u"{End}y"_s + command);
        name += u"xy"_s;
        EXPECT_EQ(CashBooks(), name + u"1000=100.0"_s);
    }
}

TEST_F(PreferencesPageTest, SendsNoKeysToTheHiddenEntryRow) {
    const QString day = window.entryRow.DateField.DateValue().SQLDate();
    Find<QLineEdit>(u"CompanyField"_s).setFocus();
    Type(u"{Ctrl+N}5\t"_s);
    EXPECT_TRUE(QApplication::focusWidget()->isVisible());
    SwitchPage();
    EXPECT_EQ(window.entryRow.DateField.DateValue().SQLDate(), day);
    EXPECT_EQ(window.companyProfile.CompanyField.Text(), u"5Muster"_s);
}

TEST_F(PreferencesPageTest, AddsAndRemovesCashBooksWhileACellIsOpen) {
    PressPlus();
    Type(u"Laden\t1000\t1.250"_s); // 1000 is in use: the cash book keeps its account.
    EXPECT_EQ(QApplication::focusWidget()->accessibleDescription(), u"wird als 1,25 gelesen"_s);
    Type(u"{Ctrl+A}12,50\t"_s);
    window.cashBooks.LoadCashBook();
    PressPlus();
    Type(u"Markt"_s);
    PressMinus();
    EXPECT_EQ(CashBooks(), u"Kasse1000=100.0 Laden1010=12,50"_s);
    DoubleClick(cashBooks, 1, 0);
    Type(u"Lager\r"_s);
    env.Add({.date = u"2026-01-05"_s, .type = u"E"_s, .amount = u"7"_s, .cashbook = u"2"_s});
    SwitchPage();
    window.selectors.CashbookPopup.SetListIndex(1);
    EXPECT_EQ(bookings.ListCount(), 1);
    SwitchPage();
    Click(cashBooks, 1, 0);
    PressMinus();
    SwitchPage();
    EXPECT_EQ(window.selectors.CashbookPopup.Text(), u"1000:Kasse"_s);
    EXPECT_EQ(bookings.ListCount(), 0);
}

TEST_F(PreferencesPageTest, WorksByKeyboardAndIsAccessible) {
    accounts.setFocus();
    Type(u"{Home}{Shift+F10}{Down}{Down}\r"_s);
    EXPECT_EQ(Accounts(), u"b20A1 c10A0"_s);
    Type(u"{Ins}a\r"_s);
    auto &list = *QAccessible::queryAccessibleInterface(&accounts)->tableInterface();
    ASSERT_EQ(list.rowCount(), 3);
    EXPECT_EQ(list.columnDescription(3) + list.cellAt(2, 3)->text(QAccessible::Name), u"Aktivja"_s);
    Type(u"{Del}"_s);
    EXPECT_EQ(list.rowCount(), 2);
    Type(u"\t \t"_s); // Space on the plus of the cash cashBooks opens the new name for editing.
    EXPECT_EQ(CashBooks(), u"Kasse1000=100.0 Nebenkasse 01010=0.0"_s);
    Type(u"\x1b\t\t\t "_s); // To the minus.
    EXPECT_EQ(CashBooks(), u"Kasse1000=100.0"_s);
    Find<QLineEdit>(u"CompanyField"_s).setFocus();
    Type(u"!"_s);
    SwitchPage();
    EXPECT_EQ(env.Value(u"SELECT company FROM core_company"_s), u"!Muster"_s);
}
