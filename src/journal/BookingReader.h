#pragma once

#include "core/database/DatabaseField.h"

/// Reads the bookings of a query. The functions return values of the record set's current row.
class BookingReader {
public:
    /// Returns the query of the bookings that meet a condition, ordered by date, each with the name
    /// of its tax. A booking with an unknown tax key is left out.
    static QString Statement(const QString &condition);
    /// The same query, each booking with the account of its cash book. A booking without a cash
    /// book is left out too.
    static QString StatementWithCashBooks(const QString &condition);

    /// The record set must live as long as the reader.
    explicit BookingReader(RecordSet &records);

    QString Id() const { return id_.StringValue(); }
    /// Returns the stored text, which may not be a valid date.
    QString SQLDate() const { return vdate_.StringValue(); }
    /// Any other type than that of a receipt counts as an expense.
    bool IsReceipt() const { return type_.UpperCaseCharacter() == 'E'; }
    double Amount() const { return amount_.DoubleValue(); }
    QString Tax() const { return tax_.StringValue(); }
    QString TaxName() const { return taxname_.StringValue(); }
    QString Category() const { return category_.StringValue(); }
    QString Account() const { return account_.StringValue(); }
    QString SaleNumber() const { return salesnumber_.StringValue(); }
    QString Note() const { return note_.StringValue(); }
    /// Returns an empty text unless the query is StatementWithCashBooks.
    QString CashBookAccount() const { return cbaccount_.StringValue(); }

private:
    DatabaseField id_, vdate_, type_, amount_, tax_, taxname_, category_, account_, salesnumber_,
        note_, cbaccount_;
};
