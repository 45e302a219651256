#pragma once

#include "platform/lists/Listbox.h"

class App;
class Selectors;

/// The posting records for the accountant: the bookings of the selected cash book and year, each
/// with its debit and credit account. They do not depend on the selected month or on the rows of
/// the journal. They are loaded into a list because ExportCSV writes any list to a text file.
class AccountingExport {
public:
    AccountingExport(const App &app, const Selectors &selectors);

    static constexpr int columnCount = 11;

    /// The records. This list is never shown. The row tag is the booking's id.
    Listbox ExportList;

    /// Fills ExportList from the database, ordered by date. A database error is shown in a message
    /// and leaves the list unchanged.
    void ExportJournal();

private:
    const App &app_;
    const Selectors &selectors_;
};
