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

/// The row above the journal in which a booking is entered, copied or changed. The amount field
/// that is filled makes it a receipt or an expense. It also answers the list's double click and
/// menu.
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
    /// These two show while a booking is being changed, in the place of SubmitButton.
    PushButton ChangeButton;
    PushButton CancelButton;
    /// The red bar under the row, hidden until a check fails.
    Control ErrorRect;
    Label ErrorLabel;

    /// Empties the row for a new booking, rebuilds the selectors and with them the journal. The
    /// date stays. The journal is loaded and balanced once, before this returns.
    void NewSale();

    enum class EditMode { Change, Copy };
    /// Fills the row from the selected booking of the journal; does nothing without one.
    void EditSale(EditMode mode);
    /// Deletes the selected booking at once, without a question; does nothing without one.
    void DeleteSale();

private:
    void SetCategoryCaption(const QString &caption);
    void InputField_TextChange();
    void OutputField_TextChange();
    void CashList_ConstructContextualMenu(MenuItem &base) const;
    void CashList_ContextualMenuAction(const MenuItem &chosen);
    void SubmitButton_Action();
    void ChangeButton_Action();

    [[nodiscard]] bool CheckFields();
    bool DateIsBeforeOpening();
    /// "E" with a receipt in the row, "A" with an expense, empty without an amount.
    QString Side() const;
    void ShowButtons(bool changing);
    void AmountTyped(TextField &field, Control &other, const QString &type);
    /// Says which kind of category is wanted, and whether the typed one is an account.
    void UpdateCategoryHint();
    /// What the row holds, as the columns that a new and a changed booking share.
    DatabaseRecord Entry() const;
    /// Writes the row into the booking; the database's Error tells how that went.
    void RewriteBooking();

    const App &app_;
    Selectors &selectors_;
    Journal &journal_;
    const Balances &balances_;
    /// The booking that EditSale loaded last; it keeps its value when the row is emptied.
    qint64 mRecID_ = 0;
};
