#pragma once

class App;
class Balances;
class CompanyProfile;
class Journal;
class Selectors;

/// Prints the cash report: the bookings as currently shown in the journal, and the totals.
class CashReport {
public:
    CashReport(const App &app, const Selectors &selectors, const Journal &journal,
               const Balances &balances, const CompanyProfile &company);

    /// Shows the printer dialog and prints. Does nothing if the user cancels. A database error in
    /// the totals is shown in a message, and the report is printed with the values obtained.
    void Print();

private:
    const App &app_;
    const Selectors &selectors_;
    const Journal &journal_;
    const Balances &balances_;
    const CompanyProfile &company_;
};
