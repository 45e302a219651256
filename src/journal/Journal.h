#pragma once

#include "platform/lists/Listbox.h"

#include <QObject>

class App;
class Selectors;

/// The list of bookings of the selected cash book and period. The entry row and the report read the
/// bookings only from its rows, through the columns.
class Journal : public QObject {
    Q_OBJECT

public:
    /// The columns of CashList; the row tag is the booking's id. Exactly one of Input and Output is
    /// not empty. The cell tag is the Date in DateColumn, the tax key in Tax and the account number
    /// in Category.
    enum Column { DateColumn, Input, Output, Tax, Category, SaleNumber, Note, Balance };

    /// Connects Selectors::RefreshJournal to Reload.
    Journal(const App &app, const Selectors &selectors);

    Listbox CashList;

    /// Fills CashList from the database, ordered by date and, on the same date, by entry. Leaves
    /// the balance column empty. If the query fails, leaves the rows unchanged and sets the
    /// database's Error, without a message.
    void LoadJournal();
    /// Calls LoadJournal and emits Loaded. A failure is shown in a message and Loaded is not
    /// emitted, because the rows may be those of another period.
    void Reload();

Q_SIGNALS:
    /// Emitted when CashList contains the bookings of the selected period, before their balances
    /// are computed.
    void Loaded();

private:
    void CashList_Open();
    static void CashList_CellBackgroundPaint(Graphics &graphics, int row);
    void CashList_CompareRows(int first, int second, int column, int &result, bool &handled) const;
    QString Condition() const;

    const App &app_;
    const Selectors &selectors_;
};
