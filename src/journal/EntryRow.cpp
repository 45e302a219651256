#include "journal/EntryRow.h"

#include "core/App.h"
#include "core/TLXModule.h"
#include "journal/Balances.h"
#include "journal/Journal.h"
#include "journal/Selectors.h"
#include "platform/menus/MenuItem.h"
#include "platform/outside/DebugLog.h"
#include "platform/values/Text.h"

using namespace Qt::StringLiterals;

namespace {

const auto receiptCaption = u"Art der Einnahme"_s;
const auto expenseCaption = u"Art der Ausgabe"_s;

} // namespace

EntryRow::EntryRow(const App &app, Selectors &selectors, Journal &journal, const Balances &balances)
    : DateField(u"DateField"_s, app.GetDesktop().Now(), [&app] { return app.GetDesktop().Now(); }),
      InputField(u"InputField"_s), OutputField(u"OutputField"_s), pickLists(app),
      CategoryLabel(u"CategoryLabel"_s, receiptCaption), SaleNumberField(u"SaleNumberField"_s),
      NoteField(u"NoteField"_s),
      SubmitButton(u"SubmitButton"_s, u"Eintragen"_s, PushButton::Role::Default),
      ChangeButton(u"ChangeButton"_s, u"Ändern"_s, PushButton::Role::Default),
      CancelButton(u"CancelButton"_s, u"Abbrechen"_s, PushButton::Role::Cancel),
      ErrorRect(u"ErrorRect"_s), ErrorLabel(u"ErrorLabel"_s), app_(app), selectors_(selectors),
      journal_(journal), balances_(balances) {
    ShowButtons(false);
    ErrorRect.SetVisible(false);
    connect(&InputField, &TextField::TextChange, this, &EntryRow::InputField_TextChange);
    connect(&OutputField, &TextField::TextChange, this, &EntryRow::OutputField_TextChange);
    connect(&InputField, &Control::GotFocus, this, [this] { SetCategoryCaption(receiptCaption); });
    connect(&OutputField, &Control::GotFocus, this, [this] { SetCategoryCaption(expenseCaption); });
    connect(&pickLists.CategoryCombo, &ComboBox::TextChanged, this, &EntryRow::UpdateCategoryHint);
    connect(&SubmitButton, &PushButton::Action, this, &EntryRow::SubmitButton_Action);
    connect(&ChangeButton, &PushButton::Action, this, &EntryRow::ChangeButton_Action);
    connect(&CancelButton, &PushButton::Action, this, &EntryRow::NewSale);
    connect(&journal_.CashList, &Listbox::DoubleClick, this,
            [this] { EditSale(EditMode::Change); });
    connect(&journal_.CashList, &Listbox::ConstructContextualMenu, this,
            &EntryRow::CashList_ConstructContextualMenu);
    connect(&journal_.CashList, &Listbox::ContextualMenuAction, this,
            &EntryRow::CashList_ContextualMenuAction);
}

void EntryRow::NewSale() {
    journal_.CashList.SetListIndex(-1);
    InputField.SetText({});
    OutputField.SetText({});
    pickLists.TaxCombo.SetText({});
    pickLists.CategoryCombo.SetText({});
    SaleNumberField.SetText({});
    NoteField.SetText({});
    ShowButtons(false);
    selectors_.ChangeTogether([this] {
        selectors_.GetCashbooks();
        selectors_.GetJournalYears();
    });
    ErrorLabel.SetText({});
    DateField.SetFocus();
}

void EntryRow::ShowButtons(bool isChanging) {
    ChangeButton.SetVisible(isChanging);
    CancelButton.SetVisible(isChanging);
    SubmitButton.SetVisible(!isChanging);
}

void EntryRow::HandleAmountChange(TextField &field, Control &otherField, const QString &type) {
    field.SetHint(TLXModule::AmountHint(field.Text(), app_.Locale()));
    otherField.SetEnabled(field.Text().isEmpty());
    if (!field.Text().isEmpty()) {
        pickLists.LoadTax(type);
        pickLists.LoadAccounts(type);
    }
    UpdateCategoryHint();
}

void EntryRow::SetCategoryCaption(const QString &caption) {
    CategoryLabel.SetText(caption);
    UpdateCategoryHint();
}

void EntryRow::UpdateCategoryHint() {
    const QString type = BookingType();
    CategoryLabel.SetAccessibleName(type == u'E'   ? receiptCaption
                                    : type == u'A' ? expenseCaption
                                                   : CategoryLabel.Text());
    ComboBox &category = pickLists.CategoryCombo;
    const bool isUnknown =
        !type.isEmpty() && !category.Text().isEmpty() && category.FindText(category.Text()) < 0;
    category.SetHint(isUnknown ? u"ohne Konto"_s : QString());
}

bool EntryRow::CheckFields() {
    selectors_.LoadMissing();
    pickLists.LoadMissing(BookingType());
    pickLists.SelectTypedRows();
    // All checks run; the message of the last one that fails is shown.
    QString message;
    if (pickLists.CategoryCombo.Text().isEmpty()) {
        message = u"Bitte Art der Einnahme/Ausgabe auswählen!"_s;
    }
    if (pickLists.TaxCombo.ListIndex() < 0) {
        message = u"Bitte eine Steuer auswählen!"_s;
    }
    if (InputField.Text().isEmpty() && OutputField.Text().isEmpty()) {
        message = u"Bitte einen Betrag bei Einnahme oder Ausgabe eintragen!"_s;
    }
    if (selectors_.CashbookPopup.ListIndex() < 0) {
        message = u"Bitte eine Kasse auswählen!"_s;
    } else if (DateIsBeforeOpening()) {
        message = u"Buchungsdatum darf nicht unter dem Eröffnungsdatum liegen!"_s;
    }
    // A click on the button leaves the date field even if its text is not a valid date. DateValue
    // is then the previous date, not the intended one.
    if (DateField.ResetRefusal()) {
        message = u"Bitte das Datum prüfen!"_s;
    }
    ErrorRect.SetVisible(!message.isEmpty());
    ErrorLabel.SetText(message);
    return message.isEmpty();
}

QString EntryRow::BookingType() const {
    return !InputField.Text().isEmpty()    ? u"E"_s
           : !OutputField.Text().isEmpty() ? u"A"_s
                                           : QString();
}

bool EntryRow::DateIsBeforeOpening() {
    const std::optional<Date> opening = balances_.GetOpeningDate();
    return opening && DateField.DateValue() < *opening;
}

DatabaseRecord EntryRow::Entry() const {
    const ComboBox &tax = pickLists.TaxCombo;
    const ComboBox &category = pickLists.CategoryCombo;
    DatabaseRecord record;
    record.SetColumn(u"vdate"_s, DateField.DateValue().SQLDate());
    record.SetColumn(u"tax"_s, tax.RowTag(tax.ListIndex()));
    record.SetColumn(u"category"_s, category.Text());
    record.SetColumn(u"salesnumber"_s, SaleNumberField.Text());
    record.SetColumn(u"note"_s, NoteField.Text());
    record.SetColumn(u"account"_s, category.RowTag(category.ListIndex()));
    const bool isReceipt = BookingType() == u'E';
    const QString amount =
        TLXModule::AmountText2SQL(isReceipt ? InputField.Text() : OutputField.Text());
    record.SetColumn(u"amount"_s, amount);
    record.SetColumn(isReceipt ? u"input"_s : u"output"_s, amount);
    record.SetColumn(u"type"_s, BookingType());
    return record;
}

void EntryRow::SubmitButton_Action() {
    if (!CheckFields()) {
        return;
    }
    DatabaseRecord record = Entry();
    record.SetColumn(u"bdate"_s, app_.GetDesktop().Now().SQLDateTime());
    record.SetColumn(u"cashbookID"_s,
                     selectors_.CashbookPopup.RowTag(selectors_.CashbookPopup.ListIndex()));
    SQLiteDatabase &database = app_.kvoDB();
    database.InsertRecord(u"cash_journal"_s, record);
    QString id;
    if (database.Error()) {
        app_.GetDesktop().MsgBox(database.ErrorMessage());
    } else {
        id = QString::number(database.LastRowID());
    }
    selectors_.ChangeTogether([this] {
        NewSale();
        // After NewSale, which reloads the years: the booking may be the first of its year.
        selectors_.ShowPeriod(DateField.DateValue());
    });
    journal_.CashList.ScrollTo(journal_.CashList.FindRow(id));
}

void EntryRow::EditSale(EditMode mode) {
    const Listbox &list = journal_.CashList;
    const int row = list.ListIndex();
    if (row < 0) {
        return;
    }
    if (const auto date = app_.Locale().ParseDate(list.Cell(row, Journal::DateColumn))) {
        DateField.SetDateValue(*date);
    }
    mRecID_ = list.RowTag(row).toLongLong();
    // Setting the amounts loads the lists of the booking type and selects the first tax, so set
    // them before the tax.
    InputField.SetText(list.Cell(row, Journal::Input));
    OutputField.SetText(list.Cell(row, Journal::Output));
    const auto *tax = std::get_if<QString>(&list.CellTag(row, Journal::Tax));
    pickLists.SelectTax(tax != nullptr ? *tax : QString(), list.Cell(row, Journal::Tax));
    pickLists.CategoryCombo.SetText(list.Cell(row, Journal::Category));
    SaleNumberField.SetText(list.Cell(row, Journal::SaleNumber));
    NoteField.SetText(list.Cell(row, Journal::Note));
    DateField.SetFocus();
    ErrorLabel.SetText({});
    if (mode == EditMode::Change) {
        ShowButtons(true);
    }
}

void EntryRow::ChangeButton_Action() {
    if (!CheckFields()) {
        return;
    }
    UpdateBooking();
    app_.ReportError();
    NewSale();
}

void EntryRow::UpdateBooking() {
    const QString sql = u"SELECT * FROM cash_journal WHERE id = "_s + QString::number(mRecID_);
    DebugLog(sql);
    const auto records = app_.kvoDB().SQLSelect(sql);
    if (!records) {
        return;
    }
    records->Edit();
    if (app_.kvoDB().Error()) {
        return;
    }
    const DatabaseRecord entry = Entry();
    for (const auto &[column, text] : entry.AllColumns()) {
        records->Field(column).SetStringValue(text);
    }
    records->Update();
}

void EntryRow::DeleteSale() {
    const Listbox &list = journal_.CashList;
    if (list.ListIndex() < 0) {
        return;
    }
    app_.kvoDB().SQLExecute(u"DELETE FROM cash_journal WHERE id = "_s +
                            list.RowTag(list.ListIndex()));
    journal_.Reload();
}

void EntryRow::CashList_ConstructContextualMenu(MenuItem &base) const {
    for (const auto &text : {u"Bearbeiten"_s, u"Duplizieren"_s, u"Löschen"_s}) {
        base.Append(text);
    }
}

void EntryRow::CashList_ContextualMenuAction(const MenuItem &chosen) {
    if (SameText(chosen.Text(), u"Bearbeiten")) {
        EditSale(EditMode::Change);
    } else if (SameText(chosen.Text(), u"Duplizieren")) {
        EditSale(EditMode::Copy);
    } else if (SameText(chosen.Text(), u"Löschen")) {
        DeleteSale();
    }
}
