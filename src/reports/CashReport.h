#pragma once

class App;
class Balances;
class CompanyProfile;
class Journal;
class Selectors;

/// The cash report on paper: the bookings as the journal shows them at this moment, and the totals.
class CashReport {
public:
    CashReport(App &app, Selectors &selectors, Journal &journal, Balances &balances,
               CompanyProfile &company);

    /// Lets the user choose a printer, and prints; nothing happens if the user cancels. A database
    /// error in the totals is told, and the report goes on with what they gave.
    void Print();

private:
    App &app_;
    Selectors &selectors_;
    Journal &journal_;
    Balances &balances_;
    CompanyProfile &company_;
};
