#pragma once

class App;
class Balances;
class CompanyProfile;
class Journal;
class Selectors;

/// The cash report on paper: the bookings as the journal shows them at this moment, and the totals.
class CashReport {
public:
    CashReport(const App &app, const Selectors &selectors, const Journal &journal,
               const Balances &balances, const CompanyProfile &company);

    /// Lets the user choose a printer, and prints; nothing happens if the user cancels. A database
    /// error in the totals is told, and the report goes on with what they gave.
    void Print();

private:
    const App &app_;
    const Selectors &selectors_;
    const Journal &journal_;
    const Balances &balances_;
    const CompanyProfile &company_;
};
