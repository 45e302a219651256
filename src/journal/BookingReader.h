#pragma once

#include "core/database/SharedTexts.h"

/// Reads the bookings of a query one after the other, each as the record set stands on it. Texts of
/// which a book has few are shared between the bookings.
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
    QString SQLDate() { return shared_.Of(vdate_); }
    /// A type other than that of a receipt counts as an expense.
    bool IsReceipt() const { return type_.Code() == 'E'; }
    double Amount() const { return amount_.DoubleValue(); }
    QString Tax() { return shared_.Of(tax_); }
    QString TaxName() { return shared_.Of(taxname_); }
    QString Category() { return shared_.Of(category_); }
    QString Account() { return shared_.Of(account_); }
    QString SaleNumber() const { return salesnumber_.StringValue(); }
    QString Note() const { return note_.StringValue(); }
    /// Empty but in a query with cash books.
    QString CashBookAccount() { return shared_.Of(cbaccount_); }

private:
    DatabaseField id_, vdate_, type_, amount_, tax_, taxname_, category_, account_, salesnumber_,
        note_, cbaccount_;
    SharedTexts shared_;
};
