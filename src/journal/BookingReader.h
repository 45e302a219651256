#pragma once

#include "core/database/DatabaseField.h"

/// Reads the bookings of a query one after the other, each as the record set stands on it.
class BookingReader {
public:
    /// The query of the bookings that meet a condition, in order of date, each with the name of its
    /// tax. A booking whose tax key is unknown is left out.
    static QString Statement(const QString &condition);
    /// The same, each with the account of its cash book; without one it is left out too.
    static QString StatementWithCashBooks(const QString &condition);

    /// The record set must live as long as the reader.
    explicit BookingReader(RecordSet &records);

    QString Id() const { return id_.StringValue(); }
    /// As it is stored, also what is no date.
    QString SQLDate() const { return vdate_.StringValue(); }
    /// A type other than that of a receipt counts as an expense.
    bool IsReceipt() const { return type_.Code() == 'E'; }
    double Amount() const { return amount_.DoubleValue(); }
    QString Tax() const { return tax_.StringValue(); }
    QString TaxName() const { return taxname_.StringValue(); }
    QString Category() const { return category_.StringValue(); }
    QString Account() const { return account_.StringValue(); }
    QString SaleNumber() const { return salesnumber_.StringValue(); }
    QString Note() const { return note_.StringValue(); }
    /// Empty but in a query with cash books.
    QString CashBookAccount() const { return cbaccount_.StringValue(); }

private:
    DatabaseField id_, vdate_, type_, amount_, tax_, taxname_, category_, account_, salesnumber_,
        note_, cbaccount_;
};
