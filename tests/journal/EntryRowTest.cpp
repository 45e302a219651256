#include "platform/menus/MenuItem.h"
#include "support/TestEnvironment.h"

class EntryRowTest : public EnvironmentTest {
protected:
    EntryRowTest() : EnvironmentTest(TestEnvironment::Storage::File) { window.Event_Open(); }

    void Submit(const QString &receipt, const QString &account = "Erlöse 19% USt") {
        row.InputField.SetText(receipt);
        category.SetText(account);
        row.SubmitButton.Press();
    }
    void TypeExpense(const QString &amount) {
        row.OutputField.SetText(amount);
        category.SetText("Porto");
    }
    /// Returns columns of the last booking, separated by vertical bars.
    QString Columns(const QString &columns) const {
        return env.Value(u"SELECT %1 FROM cash_journal ORDER BY id DESC LIMIT 1"_s.arg(
            columns.split(u' ').join(" || '|' || ")));
    }

    EntryRow &row = window.entryRow;
    ComboBox &tax = row.pickLists.TaxCombo;
    ComboBox &category = row.pickLists.CategoryCombo;
};

TEST_F(EntryRowTest, WritesAllColumnsOfAReceiptAndAnExpense) {
    row.SaleNumberField.SetText("R-1");
    row.NoteField.SetText("'); DROP TABLE cash_journal; -- %1 \"\u202e\U0001F469\u200D");
    Submit("12,50");
    row.DateField.SetDateValue(Date(QDate(2026, 3, 16)));
    TypeExpense("3");
    row.SubmitButton.Press();
    EXPECT_EQ(
        ReadWithShell(env.app, ".nullvalue NULL\nSELECT *, typeof(amount), typeof(input), "
                               "typeof(cashbookID), typeof(bdate) FROM cash_journal"),
        u"1|2026-03-15|E|12.50|NULL|12.5|3|Erlöse 19% USt|R-1|'); DROP TABLE cash_journal; "
        "-- %1 \"\u202e\U0001F469\u200D|1|2026-03-15 12:00:00|8400|real|text|integer|text\n"
        "2|2026-03-16|A|NULL|3|3.0|9|Porto|||1|2026-03-15 12:00:00|4910|real|null|integer|text");
}

TEST_F(EntryRowTest, StoresAmountsAsTypedAndShowsTheLeadingNumber) {
    struct Case {
        QString typed, stored, type, shown, balance, hint;
    };
    const Case cases[] = {
        {"12.50", "12.50", "real", "12,50", "112,50", {}},
        {" -5,", " -5.", "real", "-5,00", "95,00", {}},
        {"1.234,56", "1.234.56", "text", "1,23", "101,23", "wird als 1,23 gelesen"},
        {"1.234", "1.234", "real", "1,23", "101,23", "wird als 1,23 gelesen"},
        {"12,5O", "12.5O", "text", "12,50", "112,50", "wird als 12,50 gelesen"},
        {"zwölf", "zwölf", "text", "0,00", "100,00", "wird als 0,00 gelesen"},
        {" 7 EUR", " 7 EUR", "text", "7,00", "107,00", "wird als 7,00 gelesen"}};
    for (const Case &each : cases) {
        row.InputField.SetText(each.typed);
        EXPECT_EQ(row.InputField.Hint(), each.hint);
        Submit(each.typed);
        EXPECT_EQ(row.InputField.Hint(), QString()) << "no hint after the row was cleared";
        EXPECT_EQ(Columns("input"), each.stored);
        EXPECT_EQ(Columns("typeof(amount)"), each.type) << each.typed;
        EXPECT_EQ(bookings.Cell(-1, Journal::Input), each.shown);
        EXPECT_EQ(bookings.Cell(-1, Journal::Balance), each.balance) << each.typed;
        env.Run("DELETE FROM cash_journal");
    }
}

TEST_F(EntryRowTest, ReportsInvalidInputAndSavesNothing) {
    struct Case {
        QString date, amount, tax, category, message;
    };
    const Case cases[] = {
        {"15.03.", {}, {}, "Porto", "Bitte einen Betrag bei Einnahme oder Ausgabe eintragen!"},
        {"31.12.2025", "1", "keine", "Porto",
         "Buchungsdatum darf nicht unter dem Eröffnungsdatum liegen!"},
        {"15.03.2026", "1", "nirgends", {}, "Bitte eine Steuer auswählen!"},
        {"1.1.", "1", "KEINE", {}, "Bitte Art der Einnahme/Ausgabe auswählen!"},
        {"31.02.", "1", "KEINE", "frei", "Bitte das Datum prüfen!"}};
    for (const Case &each : cases) {
        EXPECT_EQ(row.DateField.SetTyped(each.date), each.date != "31.02.");
        row.InputField.SetText(each.amount);
        tax.SetText(each.tax);
        category.SetText(each.category);
        row.SubmitButton.Press();
        EXPECT_EQ(row.ErrorLabel.Text(), each.message);
        EXPECT_EQ(category.Text(), each.category);
        EXPECT_TRUE(row.ErrorRect.Visible());
    }
    row.SubmitButton
        .Press(); // An invalid date is reported only once; the date before it, 1 January, is saved.
    EXPECT_EQ(Columns("id vdate tax category account"), "1|2026-01-01|0|frei|");
    EXPECT_FALSE(row.ErrorRect.Visible());
}

TEST_F(EntryRowTest, ShowsAMissingAccountAndTheTypeOfBooking) {
    category.SetText("frei");
    EXPECT_EQ(category.Hint(), QString()) << "no amount was entered yet";
    row.InputField.SetText("1");
    EXPECT_EQ(category.Hint(), "ohne Konto");
    category.SetText("erlöse 19% ust");
    EXPECT_EQ(category.Hint() + row.CategoryLabel.AccessibleName(), "Art der Einnahme");
    row.InputField.SetText({});
    category.SetText("frei");
    Q_EMIT row.OutputField.GotFocus();
    EXPECT_EQ(category.Hint() + row.CategoryLabel.AccessibleName(), "Art der Ausgabe");
    Q_EMIT row.InputField.GotFocus();
    TypeExpense("2");
    EXPECT_EQ(row.CategoryLabel.Text() + category.Hint() + row.CategoryLabel.AccessibleName(),
              "Art der EinnahmeArt der Ausgabe");
}

TEST_F(EntryRowTest, DisablesTheOtherAmountAndListsMatchingAccounts) {
    env.Run("UPDATE cash_accounts SET name = 'Äpfel' WHERE name = 'Privateinlagen'");
    row.InputField.SetText("1");
    EXPECT_EQ(category.List(0), "Äpfel");
    EXPECT_FALSE(row.OutputField.Enabled());
    EXPECT_EQ(tax.Text(), "19% USt.");
    category.SetText("erlöse 7% ust");
    row.InputField.SetText({});
    row.OutputField.SetText("1");
    EXPECT_FALSE(row.InputField.Enabled());
    EXPECT_EQ(tax.Text() + category.Text(), "19% VSt.")
        << "the account of the other type is cleared";
}

TEST_F(EntryRowTest, SavesOnlyIntoTheSelectedCashBook) {
    env.Run("INSERT INTO cash_book (name, account) VALUES ('Laden', '1010')");
    row.NewSale();
    window.selectors.CashbookPopup.SetListIndex(1);
    const QStringList tables = {"cash_book", "cash_journal"};
    const QString failure = "DB Error: no such table: cash_journal";
    const auto failToLoad = [&] {
        env.Hide({tables[1]});
        env.Break(tables[0]);
        row.NewSale();
        bookings.SetListIndex(0);
        row.EditSale(
            EntryRow::EditMode::Change); // In the second round: the booking of the first round.
        EXPECT_EQ(env.desktop.TakeMessages(), failure);
    };
    QString typed = "5";
    for (PushButton *button : {&row.SubmitButton, &row.ChangeButton}) {
        failToLoad();
        row.InputField.SetText(typed);
        category.SetText("frei");
        button->Press();
        EXPECT_EQ(row.ErrorLabel.Text(), "Bitte eine Kasse auswählen!");
        EXPECT_EQ(row.InputField.Text(), typed);
        EXPECT_EQ(env.desktop.TakeMessages(), failure) << "the lists are loaded again";
        env.Show(tables);
        button->Press();
        EXPECT_EQ(Columns("id cashbookID amount"), u"1|2|%1.0"_s.arg(typed));
        typed = "7";
    }
    for (const QString command : {"print", "export"}) {
        failToLoad();
        env.Show(tables);
        window.MenuAction(command);
        EXPECT_EQ(window.selectors.CashbookPopup.Text() + window.selectors.YearPopup.Text(),
                  "1010:Laden2026");
    }
}

TEST_F(EntryRowTest, ClearsThePickListsWhenTheyCannotBeRead) {
    const QStringList tables = {"cash_tax", "cash_accounts"};
    row.InputField.SetText("1");
    category.SetText("Erlöse 7% USt");
    row.InputField.SetText({});
    env.Hide(tables);
    row.OutputField.SetText("3");
    EXPECT_EQ(tax.ListCount() + category.ListCount(), 0);
    EXPECT_EQ(tax.Text() + category.Text(), QString());
    row.SubmitButton.Press();
    EXPECT_EQ(row.ErrorLabel.Text(), "Bitte eine Steuer auswählen!");
    env.Show(tables);
    category.SetText("Porto");
    row.SubmitButton.Press();
    EXPECT_EQ(Columns("type tax category account"), "A|9|Porto|4910");
}

TEST_F(EntryRowTest, ShowsThePeriodOfTheFirstBookingOfANewYear) {
    Submit("1");
    row.DateField.SetDateValue(Date(QDate(2027, 2, 3)));
    Submit("2");
    EXPECT_EQ(window.selectors.PeriodStartSQL(), "2027-02-01");
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), "103,00");
}

/// A selected booking, with another date in the entry row and a later clock.
class ChangeTest : public EntryRowTest {
protected:
    ChangeTest() {
        row.SaleNumberField.SetText("R-1");
        row.NoteField.SetText("alt");
        Submit("10");
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
    EXPECT_EQ(row.InputField.Text(), "10,00");
    row.InputField.SetText({});
    TypeExpense("20,5");
    row.ChangeButton.Press();
    EXPECT_EQ(
        Columns("id vdate type input output amount tax category salesnumber note bdate account"),
        "1|2026-03-15|A|10|20.5|20.5|9|Porto|R-1|alt|2026-03-15 12:00:00|4910");
    EXPECT_EQ(bookings.Cell(-1, Journal::Balance), "79,50");
}

TEST_F(ChangeTest, SavesACopyAsANewBooking) {
    MenuItem menu;
    Q_EMIT bookings.ConstructContextualMenu(menu);
    EXPECT_EQ(menu.Item(0).Text() + menu.Item(2).Text(), "BearbeitenLöschen");
    Q_EMIT bookings.ContextualMenuAction(MenuItem("Duplizieren"));
    row.SubmitButton.Press();
    EXPECT_EQ(Columns("id vdate input note category bdate"),
              "2|2026-03-15|10.00|alt|Erlöse 19% USt|2026-04-01 08:00:00");
}

TEST_F(ChangeTest, KeepsAnInactiveAccountAndRejectsAnInactiveTax) {
    env.Run("UPDATE cash_accounts SET active = 0 WHERE account = '8400'");
    Change();
    EXPECT_EQ(Columns("category account"), "Erlöse 19% USt|");
    env.Run("UPDATE cash_tax SET active = 0 WHERE id = 3");
    Change();
    EXPECT_EQ(row.ErrorLabel.Text(), "Bitte eine Steuer auswählen!");
}
