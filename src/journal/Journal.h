#pragma once

#include "platform/lists/Listbox.h"

#include <QObject>

class App;
class Selectors;

/// The list of bookings of the selected cash book and period. Its rows are the only copy of the
/// bookings that the entry row and the report read; the columns are their contract.
class Journal : public QObject {
    Q_OBJECT

public:
    /// The cells of a row; the row tag is the booking's id. Exactly one of Input and Output holds
    /// text. The Date column is tagged with the Date, Tax with the tax key, Category with the
    /// account.
    enum Column { DateColumn, Input, Output, Tax, Category, SaleNumber, Note, Balance };

    /// Answers every RefreshJournal of the selectors with a Reload.
    Journal(const App &app, const Selectors &selectors);

    Listbox CashList;

    /// Fills CashList from the database, in order of date and of entry on the same date. The
    /// balance column is left empty. If the query fails the rows stay as they were; the database's
    /// Error then tells it, and no message.
    void LoadJournal();
    /// Loads the journal, and says so. A failure is told, and nobody hears of a load: the rows may
    /// be those of another period.
    void Reload();

Q_SIGNALS:
    /// CashList holds the bookings of the selected period; their balances are still to be computed.
    void Loaded();

private:
    void CashList_Open();
    void CashList_CompareRows(int first, int second, int column, int &result, bool &handled) const;
    QString Condition() const;

    const App &app_;
    const Selectors &selectors_;
};
