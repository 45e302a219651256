#pragma once

#include "platform/controls/Label.h"
#include "platform/values/Currency.h"
#include "platform/values/Date.h"

#include <QObject>

#include <optional>

class App;
class Journal;
class RecordSet;
class Selectors;

/// The balances of the selected period. Nothing of them is stored: all is computed from the cash
/// book's opening balance and the bookings, each time the journal is shown.
class Balances : public QObject {
    Q_OBJECT

public:
    /// Answers every load of the journal with ReCalcAmount.
    Balances(const App &app, const Selectors &selectors, Journal &journal);

    /// The balance before the first booking shown, and after the last one; empty without a booking.
    Label OpeningBalanceLabel;
    Label LastAmountLabel;

    /// Computes the start balance of the period, runs it down the balance column and shows both
    /// ends. A database error is told to the user and leaves the display as it was.
    void ReCalcAmount();

    /// The stored opening balance of the cash book with the id; 0 if there is none. Tells an error.
    Currency GetOpeningBalance(int id) const;
    /// The opening date of the selected cash book, nothing if it is none. Tells an error.
    std::optional<Date> GetOpeningDate() const;
    /// The sum of all bookings of a type, "E" or "A", over all cash books, by the balance mask;
    /// `from` and `to` are SQL dates, an empty `from` means no period. Tells an error.
    QString CalcAmount(const QString &type, const QString &from = {}, const QString &to = {}) const;

private:
    std::unique_ptr<RecordSet> SelectCashbook(int id) const;
    void FillBalanceColumn(Currency balance);

    const App &app_;
    const Selectors &selectors_;
    Journal &journal_;
};
