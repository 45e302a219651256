#pragma once

#include "platform/ComboBox.h"

#include <QObject>

class App;

/// Tax and category of a booking, with the rows that its side offers: "E" a receipt, "A" an
/// expense. A tax row's tag is the tax key, a category row's tag the account number.
class PickLists : public QObject {
    Q_OBJECT

public:
    explicit PickLists(App &app);

    ComboBox TaxCombo;
    ComboBox CategoryCombo;

    /// Rewrites the categories. The text stays, so that a corrected amount costs no category; only
    /// a category of the other side goes. A failed query leaves the rows, without a message.
    void LoadAccounts(const QString &type);
    /// Rewrites the taxes and selects the first. A failed query leaves the rows, without a message.
    void LoadTax(const QString &type);

    /// Selects the rows whose texts the user has typed; a text of no row selects nothing.
    void SelectTypedRows();

private:
    void TaxCombo_LostFocus();

    App &app_;
};
