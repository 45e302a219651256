#pragma once

#include "platform/lists/Listbox.h"

class App;
class Selectors;

/// The posting records for the accountant: the bookings of the selected cash book and year, with
/// the debit and credit account of each. The selected month and the journal on the screen do not
/// matter. The records pass through a list, since how a list becomes a text file is decided once,
/// for any list.
class AccountingExport {
public:
    AccountingExport(const App &app, const Selectors &selectors);

    static constexpr int columnCount = 11;

    /// The records; the user never sees this list. The row tag is the booking's id.
    Listbox ExportList;

    /// Fills ExportList from the database, in order of date. A database error is told, and leaves
    /// the list as it was.
    void ExportJournal();

private:
    const App &app_;
    const Selectors &selectors_;
};
