#pragma once

#include "platform/lists/ComboBox.h"

#include <QObject>

class App;

/// The lists of taxes and categories for a booking. They contain the rows of one booking type: "E"
/// for a receipt, "A" for an expense. The tag of a tax row is the tax key, that of a category row
/// the account number.
///
/// If a query fails, its list is left unchanged if its rows are of the requested type, and cleared
/// otherwise, so that rows of the other type are never offered. No message is shown.
class PickLists : public QObject {
    Q_OBJECT

public:
    explicit PickLists(const App &app);

    ComboBox TaxCombo;
    ComboBox CategoryCombo;

    /// Reloads the categories. The text is preserved, so that correcting an amount does not clear
    /// the category; only a category of the other type is cleared.
    void LoadAccounts(const QString &type);
    /// Reloads the taxes and selects the first one.
    void LoadTax(const QString &type);
    /// Loads the lists that are not loaded for the type because a query failed. A tax typed in the
    /// meantime is preserved. Does nothing for an empty type.
    void LoadMissing(const QString &type);
    /// Selects the tax with the key; an unknown key clears the selection. If the taxes could not be
    /// loaded, sets the text to the name instead, so that the tax is found once they are loaded.
    void SelectTax(const QString &key, const QString &name);

    /// Selects the rows whose texts the user has typed; a text without a row selects nothing.
    void SelectTypedRows();

private:
    void TaxCombo_LostFocus();

    /// Loads the rows of a type into the list. `loadedType` is the type of the rows in the list
    /// and is updated; empty if the rows are missing or incomplete.
    void LoadRows(const QString &sql, QLatin1StringView tagColumn, const QString &type,
                  ComboBox &list, QString &loadedType) const;

    const App &app_;
    /// The types of the rows in the lists; empty for none.
    QString loadedTaxType_;
    QString loadedAccountType_;
};
