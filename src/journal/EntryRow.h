#pragma once

#include "journal/PickLists.h"
#include "platform/controls/DateControl.h"
#include "platform/controls/Label.h"
#include "platform/controls/PushButton.h"
#include "platform/controls/TextField.h"

#include <QObject>

class App;
class Balances;
class DatabaseRecord;
class Journal;
class MenuItem;
class Selectors;

/// The row above the journal in which a booking is entered, copied or changed. The filled amount
/// field determines whether it is a receipt or an expense. Also handles the double click and the
/// context menu of the journal list.
class EntryRow : public QObject {
    Q_OBJECT

public:
    EntryRow(const App &app, Selectors &selectors, Journal &journal, const Balances &balances);

    DateControl DateField;
    TextField InputField;
    TextField OutputField;
    PickLists pickLists;
    Label CategoryLabel;
    TextField SaleNumberField;
    TextField NoteField;
    PushButton SubmitButton;
    /// ChangeButton and CancelButton replace SubmitButton while a booking is being changed.
    PushButton ChangeButton;
    PushButton CancelButton;
    /// The red bar under the row, hidden until a check fails.
    Control ErrorRect;
    Label ErrorLabel;

    /// Clears the row, except the date, for a new booking and reloads the selectors and with them
    /// the journal. The journal is loaded and its balances computed once, before this returns.
    void NewSale();

    enum class EditMode { Change, Copy };
    /// Fills the row from the selected booking of the journal. Does nothing without a selection.
    void EditSale(EditMode mode);
    /// Deletes the selected booking at once, without confirmation. Does nothing without a
    /// selection.
    void DeleteSale();

private:
    void SetCategoryCaption(const QString &caption);
    void InputField_TextChange() {
        HandleAmountChange(InputField, OutputField, QStringLiteral("E"));
    }
    void OutputField_TextChange() {
        HandleAmountChange(OutputField, InputField, QStringLiteral("A"));
    }
    void CashList_ConstructContextualMenu(MenuItem &base) const;
    void CashList_ContextualMenuAction(const MenuItem &chosen);
    void SubmitButton_Action();
    void ChangeButton_Action();

    [[nodiscard]] bool CheckFields();
    bool DateIsBeforeOpening();
    /// Returns "E" for a receipt, "A" for an expense and an empty text without an amount.
    QString BookingType() const;
    void ShowButtons(bool isChanging);
    void HandleAmountChange(TextField &field, Control &otherField, const QString &type);
    /// Sets the accessible name of the category and a hint if its text is not an account.
    void UpdateCategoryHint();
    /// Returns the content of the row as the columns that new and changed bookings have in common.
    DatabaseRecord Entry() const;
    /// Writes the row into the booking with mRecID_. Sets the database's Error on failure.
    void UpdateBooking();

    const App &app_;
    Selectors &selectors_;
    Journal &journal_;
    const Balances &balances_;
    /// The id of the booking that EditSale loaded last; not reset when the row is cleared.
    qint64 mRecID_ = 0;
};
