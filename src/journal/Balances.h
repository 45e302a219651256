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

/// Computes the balances of the selected period. They are not stored, but computed from the cash
/// book's opening balance and the bookings each time the journal is loaded.
class Balances : public QObject {
    Q_OBJECT

public:
    /// Connects Journal::Loaded to ReCalcAmount.
    Balances(const App &app, const Selectors &selectors, Journal &journal);

    /// The balance before the first booking of the period.
    Label OpeningBalanceLabel;
    /// The balance after the last booking of the period; empty if there are no bookings.
    Label LastAmountLabel;

    /// Computes the opening balance of the period, fills the balance column and updates both
    /// labels. A database error is shown in a message and leaves the display unchanged.
    void ReCalcAmount();

    /// Returns the stored opening balance of the cash book with the id, 0 if there is none. A
    /// database error is shown in a message.
    Currency GetOpeningBalance(int id) const;
    /// Returns the opening date of the selected cash book, std::nullopt if it is not a valid date.
    /// A database error is shown in a message.
    std::optional<Date> GetOpeningDate() const;
    /// Returns the sum of all bookings of a type, "E" or "A", over all cash books, formatted as a
    /// balance. `from` and `to` are SQL dates; an empty `from` means no restriction to a period. A
    /// database error is shown in a message.
    QString CalcAmount(const QString &type, const QString &from = {}, const QString &to = {}) const;

private:
    std::unique_ptr<RecordSet> SelectCashbook(int id) const;
    void FillBalanceColumn(Currency balance);

    const App &app_;
    const Selectors &selectors_;
    Journal &journal_;
};
