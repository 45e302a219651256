#include "journal/EntryRow.h"

#include "core/TLXModule.h"
#include "shell/MainWindow.h"
#include "support/Book.h"

#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto wrongDate = u"Buchungsdatum darf nicht unter dem Eröffnungsdatum liegen!";
constexpr auto noAmount = u"Bitte einen Betrag bei Einnahme oder Ausgabe eintragen!";
constexpr auto noTax = u"Bitte eine Steuer auswählen!";
constexpr auto noCategory = u"Bitte Art der Einnahme/Ausgabe auswählen!";

/// The main window on a book, with its entry row at hand.
class EntryRowTest : public testing::Test {
protected:
    EntryRowTest() { window.Event_Open(); }

    void SetDate(int year, int month, int day) {
        row.DateField.SetDateValue(Date(QDate(year, month, day)));
    }
    void TypeReceipt(const QString &amount, const QString &category = u"Erlöse 19% USt"_s) {
        row.InputField.SetText(amount);
        row.pickLists.CategoryCombo.SetText(category);
    }
    void TypeExpense(const QString &amount) {
        row.OutputField.SetText(amount);
        row.pickLists.CategoryCombo.SetText(u"Porto"_s);
    }
    QString Columns(const QString &columns) {
        return book.Value(u"SELECT "_s + columns +
                          u" FROM cash_journal ORDER BY id DESC LIMIT 1"_s);
    }
    QString Count() { return book.Value(u"SELECT count(*) FROM cash_journal"_s); }

    Book book{Book::Place::File};
    MainWindow window{book.app};
    EntryRow &row = window.entryRow;
    Listbox &list = window.journal.CashList;
};

TEST_F(EntryRowTest, WritesEveryColumnOfAReceiptAndOfAnExpense) {
    TypeReceipt(u"12,50"_s);
    row.SaleNumberField.SetText(u"R-1"_s);
    row.NoteField.SetText(u"Barverkauf"_s);
    row.SubmitButton.Press();
    SetDate(2026, 3, 16);
    TypeExpense(u"3"_s);
    row.SubmitButton.Press();

    const QString all = ReadWithShell(book.app.DefaultDatabaseFile().Path(),
                                      u".nullvalue NULL\nSELECT *, typeof(amount), typeof(input), "
                                      "typeof(cashbookID), typeof(bdate) FROM cash_journal"_s);
    EXPECT_EQ(all, u"1|2026-03-15|E|12.50|NULL|12.5|3|Erlöse 19% USt|R-1|Barverkauf|1|"
                   "2026-03-15 12:00:00|8400|real|text|integer|text\n"
                   "2|2026-03-16|A|NULL|3|3.0|9|Porto|||1|"
                   "2026-03-15 12:00:00|4910|real|null|integer|text\n"_s);
    EXPECT_TRUE(book.desktop.messages.isEmpty());
}

TEST_F(EntryRowTest, KeepsAnyAmountAsTypedAndShowsTheNumberAtItsStart) {
    const struct {
        QString typed;
        QString stored;
        QString type;
        QString shown;
        QString balance;
    } cases[] = {
        {u"12.50"_s, u"12.50"_s, u"real"_s, u"12,50"_s, u"112,50"_s},
        {u"0"_s, u"0"_s, u"real"_s, u"0,00"_s, u"100,00"_s},
        {u"-5"_s, u"-5"_s, u"real"_s, u"-5,00"_s, u"95,00"_s},
        {u"1,234,50"_s, u"1.234,50"_s, u"text"_s, u"1,23"_s, u"101,23"_s},
        {u"1.234,56"_s, u"1.234.56"_s, u"text"_s, u"1,23"_s, u"101,23"_s},
        {u"zwölf"_s, u"zwölf"_s, u"text"_s, u"0,00"_s, u"100,00"_s},
        {u" 7 EUR"_s, u" 7 EUR"_s, u"text"_s, u"7,00"_s, u"107,00"_s},
    };
    for (const auto &each : cases) {
        TypeReceipt(each.typed);
        row.SubmitButton.Press();
        EXPECT_EQ(Columns(u"input"_s), each.stored);
        EXPECT_EQ(Columns(u"typeof(amount)"_s), each.type) << qPrintable(each.typed);
        EXPECT_EQ(list.Cell(0, Journal::Input), each.shown);
        EXPECT_EQ(list.Cell(0, Journal::Balance), each.balance);
        book.Run(u"DELETE FROM cash_journal"_s);
    }
    TypeReceipt(QString(1000000, u'9'));
    row.SubmitButton.Press();
    EXPECT_EQ(Columns(u"length(input)"_s), u"1000000"_s);
    EXPECT_EQ(list.ListCount(), 1);
}

TEST_F(EntryRowTest, SaysTheLastThingThatIsMissingAndSavesNothing) {
    const QString day = u"2026-03-15"_s;
    const QString tooEarly = u"2025-12-31"_s;
    const struct {
        QString date, amount, tax, category;
        QString message;
    } cases[] = {
        {day, {}, {}, {}, QString::fromUtf16(noAmount)},
        {tooEarly, {}, {}, {}, QString::fromUtf16(wrongDate)},
        {tooEarly, u"1"_s, u"keine"_s, u"Porto"_s, QString::fromUtf16(wrongDate)},
        {day, u"1"_s, u"nirgends"_s, {}, QString::fromUtf16(noTax)},
        {day, u"1"_s, u"KEINE"_s, {}, QString::fromUtf16(noCategory)},
        {u"2026-01-01"_s, u"1"_s, u"KEINE"_s, u"frei"_s, {}},
    };
    for (const auto &each : cases) {
        row.DateField.SetDateValue(*Date::FromSQL(each.date));
        row.InputField.SetText(each.amount);
        row.pickLists.TaxCombo.SetText(each.tax);
        row.pickLists.CategoryCombo.SetText(each.category);
        row.SubmitButton.Press();
        EXPECT_EQ(row.ErrorLabel.Text(), each.message);
        EXPECT_EQ(row.ErrorRect.Visible(), !each.message.isEmpty());
        EXPECT_EQ(Count(), each.message.isEmpty() ? u"1"_s : u"0"_s);
    }
    EXPECT_EQ(Columns(u"tax || '|' || category || '|' || account"_s), u"0|frei|"_s);
}

TEST_F(EntryRowTest, AsksOnceWhenTheTypedDayWasRefused) {
    TypeReceipt(u"1"_s);
    row.DateField.SetTyped(u"31.02."_s);
    row.SubmitButton.Press();
    EXPECT_EQ(row.ErrorLabel.Text(), u"Bitte das Datum prüfen!"_s);
    EXPECT_EQ(Count(), u"0"_s);
    row.SubmitButton.Press();
    EXPECT_EQ(Columns(u"vdate"_s), u"2026-03-15"_s);
}

TEST_F(EntryRowTest, LocksTheOtherAmountAndOffersItsSide) {
    row.InputField.SetText(u"1"_s);
    EXPECT_FALSE(row.OutputField.Enabled());
    EXPECT_EQ(row.pickLists.TaxCombo.Text(), u"19% USt."_s);
    EXPECT_EQ(row.pickLists.TaxCombo.ListCount(), 3);
    EXPECT_EQ(row.pickLists.CategoryCombo.ListCount(), 6);

    row.pickLists.TaxCombo.SetListIndex(2);
    row.pickLists.CategoryCombo.SetText(u"erlöse 7% ust"_s);
    row.InputField.SetText(u"12"_s);
    EXPECT_EQ(row.pickLists.TaxCombo.ListIndex(), 0);
    EXPECT_EQ(row.pickLists.CategoryCombo.Text(), u"erlöse 7% ust"_s);

    row.InputField.SetText({});
    EXPECT_TRUE(row.OutputField.Enabled());
    row.OutputField.SetText(u"1"_s);
    EXPECT_FALSE(row.InputField.Enabled());
    EXPECT_EQ(row.pickLists.TaxCombo.Text(), u"19% VSt."_s);
    EXPECT_TRUE(row.pickLists.CategoryCombo.Text().isEmpty())
        << "a receipt's account on an expense";
}

TEST_F(EntryRowTest, StoresEveryTextAsItStands) {
    const QString odd =
        u"O'Neill; \"x\"\t\r\n'); DROP TABLE cash_journal; -- äöüß €🧾 \u0000?"_s;
    TypeReceipt(u"1"_s, odd);
    row.SaleNumberField.SetText(odd);
    row.NoteField.SetText(odd);
    row.SubmitButton.Press();
    for (const int column : {Journal::Category, Journal::SaleNumber, Journal::Note}) {
        EXPECT_EQ(list.Cell(0, column), odd);
    }
    EXPECT_EQ(Columns(u"account"_s), u""_s);
}

TEST_F(EntryRowTest, TakesTheViewToTheFirstBookingOfANewYearWithOneLoad) {
    TypeReceipt(u"1"_s);
    row.SubmitButton.Press();
    SetDate(2027, 2, 3);
    TypeReceipt(u"2"_s);
    const QSignalSpy refreshes(&window.selectors, &Selectors::RefreshJournal);
    const QSignalSpy scrolls(&list, &Listbox::ScrollRequested);
    const QSignalSpy focus(&row.DateField, &Control::FocusRequested);
    row.SubmitButton.Press();

    EXPECT_EQ(refreshes.count(), 1);
    EXPECT_EQ(scrolls.count(), 1);
    EXPECT_EQ(focus.count(), 1);
    EXPECT_EQ(window.selectors.YearPopup.Text(), u"2027"_s);
    EXPECT_EQ(window.selectors.MonthPopup.Text(), u"Februar"_s);
    EXPECT_EQ(list.Cell(0, Journal::Balance), u"103,00"_s);
    EXPECT_EQ(row.DateField.DateValue().SQLDate(), u"2027-02-03"_s);
    EXPECT_TRUE(row.InputField.Text().isEmpty());
}

class ChangeTest : public EntryRowTest {
protected:
    ChangeTest() {
        TypeReceipt(u"10"_s);
        row.NoteField.SetText(u"alt"_s);
        row.SubmitButton.Press();
        list.SetListIndex(0);
        book.desktop.now = Date(QDateTime(QDate(2026, 4, 1), QTime(8, 0)));
    }
};

TEST_F(ChangeTest, RewritesTheBookingAndKeepsItsEntryTimeAndItsOldSide) {
    Q_EMIT list.DoubleClick();
    EXPECT_EQ(row.InputField.Text(), u"10,00"_s);
    EXPECT_FALSE(row.OutputField.Enabled());
    EXPECT_TRUE(row.ChangeButton.Visible() && row.CancelButton.Visible());
    EXPECT_FALSE(row.SubmitButton.Visible());

    row.InputField.SetText({});
    TypeExpense(u"20,5"_s);
    row.ChangeButton.Press();
    EXPECT_EQ(
        Columns(u"id || '|' || type || '|' || input || '|' || output || '|' || amount || '|' "
                "|| tax || '|' || category || '|' || note || '|' || bdate || '|' || account"_s),
        u"1|A|10|20.5|20.5|9|Porto|alt|2026-03-15 12:00:00|4910"_s);
    EXPECT_TRUE(row.SubmitButton.Visible());
    EXPECT_EQ(list.Cell(0, Journal::Balance), u"79,50"_s);
}

TEST_F(ChangeTest, CancelLeavesTheBookingAlone) {
    row.EditSale(EntryRow::EditMode::Change);
    row.NoteField.SetText(u"neu"_s);
    row.CancelButton.Press();
    EXPECT_EQ(Columns(u"note"_s), u"alt"_s);
    EXPECT_TRUE(row.NoteField.Text().isEmpty());
    EXPECT_EQ(list.ListIndex(), -1);
}

TEST_F(ChangeTest, ACopyBecomesANewBooking) {
    row.EditSale(EntryRow::EditMode::Copy);
    EXPECT_TRUE(row.SubmitButton.Visible());
    row.SubmitButton.Press();
    EXPECT_EQ(Columns(u"id || '|' || input || '|' || note || '|' || bdate"_s),
              u"2|10.00|alt|2026-04-01 08:00:00"_s);
    EXPECT_EQ(list.ListCount(), 2);
}

TEST_F(ChangeTest, DeletesTheSelectedBookingOnce) {
    row.DeleteSale();
    EXPECT_EQ(Count(), u"0"_s);
    EXPECT_EQ(window.balances.LastAmountLabel.Text(), QString());
    row.DeleteSale();
    EXPECT_TRUE(book.desktop.messages.isEmpty());
}

TEST_F(ChangeTest, TellsOfABookingThatHasGoneMeanwhile) {
    row.EditSale(EntryRow::EditMode::Change);
    book.Run(u"DELETE FROM cash_journal"_s);
    row.ChangeButton.Press();
    EXPECT_EQ(book.desktop.messages,
              QStringList{u"DB Error: Der Datensatz ist nicht mehr vorhanden."_s});
    EXPECT_TRUE(row.SubmitButton.Visible());
    EXPECT_EQ(Count(), u"0"_s);
}

TEST_F(ChangeTest, AsksForATaxWhenTheBookingsIsNoLongerOffered) {
    book.Run(u"UPDATE cash_tax SET active = 0 WHERE id = 3"_s);
    row.EditSale(EntryRow::EditMode::Change);
    EXPECT_EQ(row.pickLists.TaxCombo.ListIndex(), -1);
    row.ChangeButton.Press();
    EXPECT_EQ(row.ErrorLabel.Text(), QString::fromUtf16(noTax));
}

TEST_F(ChangeTest, ABookingOfASwitchedOffAccountKeepsItsNameAndLosesItsNumber) {
    book.Run(u"UPDATE cash_accounts SET active = 0 WHERE account = '8400'"_s);
    row.EditSale(EntryRow::EditMode::Change);
    EXPECT_EQ(row.pickLists.CategoryCombo.Text(), u"Erlöse 19% USt"_s);
    row.ChangeButton.Press();
    EXPECT_EQ(Columns(u"category || '|' || account"_s), u"Erlöse 19% USt|"_s);
}

TEST_F(ChangeTest, AReadOnlyBookLosesNothing) {
    row.EditSale(EntryRow::EditMode::Change);
    book.Run(u"PRAGMA query_only = ON"_s);
    row.NoteField.SetText(u"neu"_s);
    row.ChangeButton.Press();
    TypeReceipt(u"1"_s);
    row.SubmitButton.Press();
    list.SetListIndex(0);
    row.DeleteSale();
    EXPECT_EQ(book.desktop.messages,
              (QStringList{u"DB Error: attempt to write a readonly database"_s,
                           u"attempt to write a readonly database"_s}));
    EXPECT_EQ(Columns(u"id || note"_s), u"1alt"_s);
    EXPECT_EQ(list.ListCount(), 1);
}

} // namespace
