#include "platform/menus/MenuItem.h"
#include "support/TestEnvironment.h"

class EntryRowTest : public EnvironmentTest {
protected:
    EntryRowTest() : EnvironmentTest(TestEnvironment::Storage::File) { window.Event_Open(); }

    void Submit(const QString &receipt, const QString &account = u"Erlöse 19% USt"_s) {
        row.InputField.SetText(receipt);
        category.SetText(account);
        row.SubmitButton.Press();
    }
    void TypeExpense(const QString &amount) {
        row.OutputField.SetText(amount);
        category.SetText(u"Porto"_s);
    }
    /// Returns columns of the last booking, separated by vertical bars.
    QString Columns(const QString &columns) const {
        return env.Value(
            u"SELECT %1 FROM cash_journal ORDER BY id DESC LIMIT 1"_s.arg(columns.split(u' ').join(u" || '|' || "_s)));
    }

    EntryRow &row = window.entryRow;
    ComboBox &tax = row.pickLists.TaxCombo;
    ComboBox &category = row.pickLists.CategoryCombo;
};

TEST_F(EntryRowTest, WritesAllColumnsOfAReceiptAndAnExpense) {
    row.SaleNumberField.SetText(u"R-1"_s);
    row.NoteField.SetText(u"'); DROP TABLE cash_journal; -- %1 \"\u202e\U0001F469\u200D"_s);
    Submit(u"12,50"_s);
    row.DateField.SetDateValue(Date(QDate(2026, 3, 16)));
    TypeExpense(u"3"_s);
    row.SubmitButton.Press();
    EXPECT_EQ(ReadWithShell(env.app, u".nullvalue NULL\nSELECT *, typeof(amount), typeof(input), "
                                     "typeof(cashbookID), typeof(bdate) FROM cash_journal"_s),
              u"1|2026-03-15|E|12.50|NULL|12.5|3|Erlöse 19% USt|R-1|'); DROP TABLE cash_journal; "
              u"-- %1 \"\u202e\U0001F469\u200D|1|2026-03-15 12:00:00|8400|real|text|integer|text\n"
              "2|2026-03-16|A|NULL|3|3.0|9|Porto|||1|2026-03-15 12:00:00|4910|real|null|integer|text"_s);
}

TEST_F(EntryRowTest, StoresAmountsAsTypedAndShowsTheLeadingNumber) {
    struct Case {
        QString typed, stored, type, shown, balance, hint;
    };
    const Case cases[] = {{u"12.50"_s, u"12.50"_s, u"real"_s, u"12,50"_s, u"112,50"_s, {}},
                          {u" -5,"_s, u" -5."_s, u"real"_s, u"-5,00"_s, u"95,00"_s, {}},
                          {u"1.234,56"_s, u"1.234.56"_s, u"text"_s, u"1,23"_s, u"101,23"_s, u"wird als 1,23 gelesen"_s},
                          {u"1.234"_s, u"1.234"_s, u"real"_s, u"1,23"_s, u"101,23"_s, u"wird als 1,23 gelesen"_s},
                          {u"12,5O"_s, u"12.5O"_s, u"text"_s, u"12,50"_s, u"112,50"_s, u"wird als 12,50 gelesen"_s},
                          {u"zwölf"_s, u"zwölf"_s, u"text"_s, u"0,00"_s, u"100,00"_s, u"wird als 0,00 gelesen"_s},
                          {u" 7 EUR"_s, u" 7 EUR"_s, u"text"_s, u"7,00"_s, u"107,00"_s, u"wird als 7,00 gelesen"_s}};
    for (const Case &each : cases) {
        row.InputField.SetText(each.typed);
        EXPECT_EQ(row.InputField.Hint(), each.hint);
        Submit(each.typed);
        EXPECT_EQ(row.InputField.Hint(), QString()) << "no hint after the row was cleared";
        EXPECT_EQ(Columns(u"input"_s), each.stored);
        EXPECT_EQ(Columns(u"typeof(amount)"_s), each.type) << qPrintable(each.typed);
        EXPECT_EQ(bookings.Cell(-1, Journal::Input), each.shown);
        EXPECT_EQ(bookings.Cell(-1, Journal::Balance), each.balance) << qPrintable(each.typed);
        env.Run(u"DELETE FROM cash_journal"_s);
    }
}

TEST_F(EntryRowTest, ReportsInvalidInputAndSavesNothing) {
    struct Case {
        QString date, amount, tax, category, message;
    };
    const Case cases[] = {
        {u"15.03."_s, {}, {}, u"Porto"_s, u"Bitte einen Betrag bei Einnahme oder Ausgabe eintragen!"_s},
        {u"31.12.2025"_s, u"1"_s, u"keine"_s, u"Porto"_s,
         u"Buchungsdatum darf nicht unter dem Eröffnungsdatum liegen!"_s},
        {u"15.03.2026"_s, u"1"_s, u"nirgends"_s, {}, u"Bitte eine Steuer auswählen!"_s},
        {u"1.1."_s, u"1"_s, u"KEINE"_s, {}, u"Bitte Art der Einnahme/Ausgabe auswählen!"_s},
        {u"31.02."_s, u"1"_s, u"KEINE"_s, u"frei"_s, u"Bitte das Datum prüfen!"_s}};
    for (const Case &each : cases) {
        EXPECT_EQ(row.DateField.SetTyped(each.date), each.date != u"31.02."_s);
        row.InputField.SetText(each.amount);
        tax.SetText(each.tax);
        category.SetText(each.category);
        row.SubmitButton.Press();
        EXPECT_EQ(row.ErrorLabel.Text(), each.message);
        EXPECT_EQ(category.Text(), each.category);
        EXPECT_TRUE(row.ErrorRect.Visible());
    }
    row.SubmitButton.Press(); // An invalid date is reported only once; the date before it, 1 January, is saved.
    EXPECT_EQ(Columns(u"id vdate tax category account"_s), u"1|2026-01-01|0|frei|"_s);
    EXPECT_FALSE(row.ErrorRect.Visible());
}

TEST_F(EntryRowTest, ShowsAMissingAccountAndTheTypeOfBooking) {
    category.SetText(u"frei"_s);
    EXPECT_EQ(category.Hint(), QString()) << "no amount was entered yet";
    row.InputField.SetText(u"1"_s);
    EXPECT_EQ(category.Hint(), u"ohne Konto"_s);
    category.SetText(u"erlöse 19% ust"_s);
    EXPECT_EQ(category.Hint() + row.CategoryLabel.AccessibleName(), u"Art der Einnahme"_s);
    row.InputField.SetText({});
    category.SetText(u"frei"_s);
    Q_EMIT row.OutputField.GotFocus();
    EXPECT_EQ(category.Hint() + row.CategoryLabel.AccessibleName(), u"Art der Ausgabe"_s);
    Q_EMIT row.InputField.GotFocus();
    TypeExpense(u"2"_s);
    EXPECT_EQ(row.CategoryLabel.Text() + category.Hint() + row.CategoryLabel.AccessibleName(),
              u"Art der EinnahmeArt der Ausgabe"_s);
}

TEST_F(EntryRowTest, DisablesTheOtherAmountAndListsMatchingAccounts) {
    env.Run(u"UPDATE cash_accounts SET name = 'Äpfel' WHERE name = 'Privateinlagen'"_s);
    row.InputField.SetText(u"1"_s);
    EXPECT_EQ(category.List(0), u"Äpfel"_s);
    EXPECT_FALSE(row.OutputField.Enabled());
    EXPECT_EQ(tax.Text(), u"19% USt."_s);
    category.SetText(u"erlöse 7% ust"_s);
    row.InputField.SetText({});
    row.OutputField.SetText(u"1"_s);
    EXPECT_FALSE(row.InputField.Enabled());
    EXPECT_EQ(tax.Text() + category.Text(), u"19% VSt."_s) << "the account of the other type is cleared";
}

TEST_F(EntryRowTest, SavesOnlyIntoTheSelectedCashBook) {
    env.Run(u"INSERT INTO cash_book (name, account) VALUES ('Laden', '1010')"_s);
    row.NewSale();
    window.selectors.CashbookPopup.SetListIndex(1);
    const QStringList tables = {u"cash_book"_s, u"cash_journal"_s};
    const QString failure = u"DB Error: no such table: cash_journal"_s;
    const auto failToLoad = [&] {
        env.Hide({tables[1]});
        env.Break(tables[0]);
        row.NewSale();
        bookings.SetListIndex(0);
        row.EditSale(EntryRow::EditMode::Change); // In the second round: the booking of the first round.
        EXPECT_EQ(env.desktop.TakeMessages(), failure);
    };
    QString typed = u"5"_s;
    for (PushButton *button : {&row.SubmitButton, &row.ChangeButton}) {
        failToLoad();
        row.InputField.SetText(typed);
        category.SetText(u"frei"_s);
        button->Press();
        EXPECT_EQ(row.ErrorLabel.Text(), u"Bitte eine Kasse auswählen!"_s);
        EXPECT_EQ(row.InputField.Text(), typed);
        EXPECT_EQ(env.desktop.TakeMessages(), failure) << "the lists are loaded again";
        env.Show(tables);
        button->Press();
        EXPECT_EQ(Columns(u"id cashbookID amount"_s), u"1|2|%1.0"_s.arg(typed));
        typed = u"7"_s;
    }
    for (const auto &command : {u"print"_s, u"export"_s}) {
        failToLoad();
        env.Show(tables);
        window.MenuAction(command);
        EXPECT_EQ(window.selectors.CashbookPopup.Text() + window.selectors.YearPopup.Text(), u"1010:Laden2026"_s);
    }
}

TEST_F(EntryRowTest, ClearsThePickListsWhenTheyCannotBeRead) {
    const QStringList tables = {u"cash_tax"_s, u"cash_accounts"_s};
    row.InputField.SetText(u"1"_s);
    category.SetText(u"Erlöse 7% USt"_s);
    row.InputField.SetText({});
    env.Hide(tables);
    row.OutputField.SetText(u"3"_s);
    EXPECT_EQ(tax.ListCount() + category.ListCount(), 0);
    EXPECT_EQ(tax.Text() + category.Text(), QString());
    row.SubmitButton.Press();
    EXPECT_EQ(row.ErrorLabel.Text(), u"Bitte eine Steuer auswählen!"_s);
    env.Show(tables);
    category.SetText(u"Porto"_s);
    row.SubmitButton.Press();
    EXPECT_EQ(Columns(u"type tax category account"_s), u"A|9|Porto|4910"_s);
}

TEST_F(EntryRowTest, ShowsThePeriodOfTheFirstBookingOfANewYear) {
    Submit(u"1"_s);
    row.DateField.SetDateValue(Date(QDate(2027, 2, 3)));
    Submit(u"2"_s);
    EXPECT_EQ(window.selectors.PeriodStartSQL(), u"2027-02-01"_s);
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), u"103,00"_s);
}

/// A selected booking, with another date in the entry row and a later clock.
class ChangeTest : public EntryRowTest {
protected:
    ChangeTest() {
        row.SaleNumberField.SetText(u"R-1"_s);
        row.NoteField.SetText(u"alt"_s);
        Submit(u"10"_s);
        bookings.SetListIndex(0);
        row.DateField.SetDateValue(Date(QDate(2027, 1, 9)));
        env.desktop.now = Date(QDateTime(QDate(2026, 4, 1), QTime(8, 0)));
    }
    void Change() {
        bookings.SetListIndex(0);
        row.EditSale(EntryRow::EditMode::Change);
        row.ChangeButton.Press();
    }
};

TEST_F(ChangeTest, KeepsTheDateTheEntryTimeAndTheReplacedAmount) {
    Q_EMIT bookings.DoubleClick();
    EXPECT_EQ(row.InputField.Text(), u"10,00"_s);
    row.InputField.SetText({});
    TypeExpense(u"20,5"_s);
    row.ChangeButton.Press();
    EXPECT_EQ(Columns(u"id vdate type input output amount tax category salesnumber note bdate account"_s),
              u"1|2026-03-15|A|10|20.5|20.5|9|Porto|R-1|alt|2026-03-15 12:00:00|4910"_s);
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), u"79,50"_s);
}

TEST_F(ChangeTest, SavesACopyAsANewBooking) {
    MenuItem menu;
    Q_EMIT bookings.ConstructContextualMenu(menu);
    EXPECT_EQ(menu.Item(0).Text() + menu.Item(2).Text(), u"BearbeitenLöschen"_s);
    Q_EMIT bookings.ContextualMenuAction(MenuItem(u"Duplizieren"_s));
    row.SubmitButton.Press();
    EXPECT_EQ(Columns(u"id vdate input note category bdate"_s),
              u"2|2026-03-15|10.00|alt|Erlöse 19% USt|2026-04-01 08:00:00"_s);
}

TEST_F(ChangeTest, KeepsAnInactiveAccountAndRejectsAnInactiveTax) {
    env.Run(u"UPDATE cash_accounts SET active = 0 WHERE account = '8400'"_s);
    Change();
    EXPECT_EQ(Columns(u"category account"_s), u"Erlöse 19% USt|"_s);
    env.Run(u"UPDATE cash_tax SET active = 0 WHERE id = 3"_s);
    Change();
    EXPECT_EQ(row.ErrorLabel.Text(), u"Bitte eine Steuer auswählen!"_s);
}
