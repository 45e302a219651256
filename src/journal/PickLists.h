#pragma once

#include "platform/lists/ComboBox.h"

#include <QObject>

class App;

/// Tax and category of a booking, with the rows that its side offers: "E" a receipt, "A" an
/// expense. A tax row's tag is the tax key, a category row's tag the account number.
///
/// A list whose query fails keeps its rows, without a message, if they are of the wanted side; it
/// never offers those of the other one.
class PickLists : public QObject {
    Q_OBJECT

public:
    explicit PickLists(const App &app);

    ComboBox TaxCombo;
    ComboBox CategoryCombo;

    /// Rewrites the categories. The text stays, so that a corrected amount costs no category; only
    /// a category of the other side goes.
    void LoadAccounts(const QString &type);
    /// Rewrites the taxes and selects the first.
    void LoadTax(const QString &type);
    /// Loads what could not be loaded for the side before; a tax that was typed meanwhile stays.
    /// Does nothing for an empty side.
    void LoadMissing(const QString &type);
    /// Selects the tax with the key. Its name is shown if the taxes could not be loaded, so that
    /// the booking's own is found when they can; otherwise an unknown key selects none.
    void SelectTax(const QString &key, const QString &name);

    /// Selects the rows whose texts the user has typed; a text of no row selects nothing.
    void SelectTypedRows();

private:
    void TaxCombo_LostFocus();

    /// Puts the rows of a side into a list that holds those of `side`, and says which it holds
    /// then.
    void LoadRows(const QString &sql, QLatin1StringView tagColumn, const QString &type,
                  ComboBox &list, QString &side) const;

    const App &app_;
    /// The sides that the lists hold; empty for none.
    QString sideOfTaxes_;
    QString sideOfAccounts_;
};
