#include "platform/menus/MenuItem.h"
#include "support/TestEnvironment.h"

class EntryRowTest : public EnvironmentTest {
protected:
    EntryRowTest() : EnvironmentTest(TestEnvironment::Storage::File) { window.Event_Open(); }

    QString Press(PushButton &button) const {
        button.Press();
        return row.ErrorLabel.Text();
    }
    QString Submit(const QString &receipt, const QString &account = "Erlöse 19% USt",
                   const QString &taxName = "19% USt.") {
        input.SetText(receipt);
        tax.SetText(taxName);
        category.SetText(account);
        return Press(row.SubmitButton);
    }
    void TypeExpense() {
        input.SetText({});
        row.OutputField.SetText("20,5");
        category.SetText("Porto");
    }
    QString Stored(const QString &columns = "*") const {
        return ReadWithShell(env.app, u"SELECT %1 FROM cash_journal"_s.arg(columns));
    }

    EntryRow &row = window.entryRow;
    TextField &input = row.InputField;
    ComboBox &tax = row.pickLists.TaxCombo;
    ComboBox &category = row.pickLists.CategoryCombo;
};

TEST_F(EntryRowTest, WritesAllColumnsClearsTheRowAndShowsTheYear) {
    row.SaleNumberField.SetText("R-1");
    row.NoteField.SetText("'; %1");
    Submit("12,50");
    EXPECT_EQ(tax.Text(), "");
    EXPECT_EQ(category.Text(), "");
    row.DateField.Step(365);
    TypeExpense();
    row.SubmitButton.Press();
    EXPECT_EQ(row.OutputField.Text(), "");
    EXPECT_EQ(window.selectors.PeriodStartSQL(), "2027-03-01");
    EXPECT_EQ(Stored(),
              R"(1|2026-03-15|E|12.50||12.5|3|Erlöse 19% USt|R-1|'; %1|1|2026-03-15 12:00:00|8400
2|2027-03-15|A||20.5|20.5|9|Porto|||1|2026-03-15 12:00:00|4910)");
}

TEST_F(EntryRowTest, StoresAmountsAsTypedAndHintsAtTheNumberRead) {
    input.SetText("1.234");
    EXPECT_EQ(input.Hint(), "wird als 1,23 gelesen");
    Submit("zwölf");
    input.SetText(" -5,");
    EXPECT_EQ(input.Hint(), "");
    Submit(" -5,");
    EXPECT_EQ(Stored("input, typeof(amount)"), "zwölf|text\n -5.|real");
}

TEST_F(EntryRowTest, ReportsInvalidInputAndSavesNothing) {
    EXPECT_FALSE(row.ErrorRect.Visible());
    EXPECT_EQ(Submit(""), "Bitte einen Betrag bei Einnahme oder Ausgabe eintragen!");
    EXPECT_EQ(Submit("1", "", "nirgends"), "Bitte eine Steuer auswählen!");
    EXPECT_EQ(Submit("1", "", "KEINE"), "Bitte Art der Einnahme/Ausgabe auswählen!");
    row.DateField.SetDateValue(Date(QDate(2025, 12, 31)));
    EXPECT_EQ(Submit("1"), "Buchungsdatum darf nicht unter dem Eröffnungsdatum liegen!");
    row.DateField.Step(1);
    EXPECT_FALSE(row.DateField.SetTyped("31.02."));
    EXPECT_EQ(Submit("1", "frei"), "Bitte das Datum prüfen!");
    EXPECT_TRUE(row.ErrorRect.Visible());
    row.SubmitButton.Press();
    EXPECT_EQ(Stored("id, vdate, account"), "1|2026-01-01|") << "the date is reported only once";
    EXPECT_FALSE(row.ErrorRect.Visible());
}

TEST_F(EntryRowTest, ShowsAMissingAccountAndTheTypeOfBooking) {
    const Label &label = row.CategoryLabel;
    category.SetText("frei");
    Q_EMIT row.OutputField.GotFocus();
    EXPECT_EQ(category.Hint(), "") << "no amount was entered yet";
    EXPECT_EQ(label.AccessibleName(), "Art der Ausgabe");
    input.SetText("1");
    EXPECT_EQ(category.Hint(), "ohne Konto");
    EXPECT_EQ(label.AccessibleName(), "Art der Einnahme");
    category.SetText("erlöse 19% ust");
    EXPECT_EQ(category.Hint(), "");
    TypeExpense();
    Q_EMIT input.GotFocus();
    EXPECT_EQ(label.Text(), "Art der Einnahme");
    EXPECT_EQ(label.AccessibleName(), "Art der Ausgabe");
}

TEST_F(EntryRowTest, DisablesTheOtherAmountAndListsMatchingAccounts) {
    env.Run("UPDATE cash_accounts SET name = 'Äpfel' WHERE name = 'Privateinlagen'");
    input.SetText("1");
    EXPECT_FALSE(row.OutputField.Enabled());
    category.SetListIndex(0);
    input.SetText("12");
    EXPECT_EQ(category.Text(), "Äpfel");
    tax.SetText("19% ust.");
    Q_EMIT tax.LostFocus();
    EXPECT_EQ(tax.Text(), "19% USt.");
    input.SetText({});
    row.OutputField.SetText("1");
    EXPECT_EQ(category.Text(), "") << "the account of the other type is cleared";
}

TEST_F(EntryRowTest, NeedsTheCashBookAndTheListsOfTheTypeOfBooking) {
    env.Run("INSERT INTO cash_book (name, account) VALUES ('Laden', '1010')");
    row.NewSale();
    window.selectors.CashbookPopup.SetListIndex(1);
    input.SetText("1");
    env.Break("cash_book");
    row.NewSale();
    env.Hide({"cash_tax", "cash_accounts"});
    input.SetText("1");
    EXPECT_EQ(tax.ListCount(), 3);
    TypeExpense();
    EXPECT_EQ(category.ListCount(), 0);
    EXPECT_EQ(Press(row.SubmitButton), "Bitte eine Kasse auswählen!");
    env.Show({"cash_book", "cash_tax", "cash_accounts"});
    row.SubmitButton.Press();
    EXPECT_EQ(Stored("id, cashbookID, type, tax, account"), "1|2|A|9|4910");
}

/// A selected booking and a later clock.
class ChangeTest : public EntryRowTest {
protected:
    ChangeTest() {
        row.SaleNumberField.SetText("R-1");
        row.NoteField.SetText("alt");
        Submit("10", "Erlöse 7% USt", "7% USt.");
        bookings.SetListIndex(0);
        row.DateField.Step(1);
        env.desktop.now = Date(QDateTime(QDate(2026, 4, 1), QTime(8, 0)));
    }
    /// Chooses a row of the context menu.
    void Choose(int index) {
        MenuItem menu;
        Q_EMIT bookings.ConstructContextualMenu(menu);
        Q_EMIT bookings.ContextualMenuAction(menu.Item(index));
    }
};

TEST_F(ChangeTest, ReplacesTheButtonsAndTheErrorUntilCancelled) {
    Submit("");
    env.Run("UPDATE cash_tax SET active = 0 WHERE value = '2'");
    Choose(0);
    EXPECT_EQ(row.ErrorLabel.Text(), "");
    EXPECT_FALSE(row.SubmitButton.Visible());
    EXPECT_EQ(Press(row.ChangeButton), "Bitte eine Steuer auswählen!") << "it is not active";
    EXPECT_EQ(Press(row.CancelButton), "");
    EXPECT_FALSE(row.ChangeButton.Visible());
    EXPECT_FALSE(row.CancelButton.Visible());
}

TEST_F(ChangeTest, KeepsTheEntryTimeAndTheReplacedAmount) {
    Q_EMIT bookings.DoubleClick();
    TypeExpense();
    row.ChangeButton.Press();
    EXPECT_EQ(Stored(), "1|2026-03-15|A|10|20.5|20.5|9|Porto|R-1|alt|1|2026-03-15 12:00:00|4910");
}

TEST_F(ChangeTest, SavesACopyAsANewBookingAndDeletesTheOldOne) {
    Choose(1);
    row.SubmitButton.Press();
    bookings.SetListIndex(0);
    Choose(2);
    EXPECT_EQ(Stored(),
              "2|2026-03-15|E|10.00||10.0|2|Erlöse 7% USt|R-1|alt|1|2026-04-01 08:00:00|8300");
    EXPECT_EQ(bookings.ListCount(), 1);
}

TEST_F(ChangeTest, KeepsATaxThatCannotBeReadAndAnInactiveAccount) {
    env.Run("UPDATE cash_accounts SET active = 0 WHERE account = '8300'");
    env.Hide({"cash_tax"});
    row.OutputField.SetText("1");
    Choose(0);
    env.Show({"cash_tax"});
    row.ChangeButton.Press();
    EXPECT_EQ(Stored("type, tax, category, account"), "E|2|Erlöse 7% USt|");
}
