#pragma once

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

#include <QString>

#include <optional>

class RecordSet;

/// One column of a record set: reads the value of its current row, and follows it from row to row.
class DatabaseField {
public:
    /// The value as text, empty for NULL; a boolean column gives "True" or "False".
    QString StringValue() const;
    /// A text of one letter, as a capital; 0 for any other.
    char Code() const;
    /// Sets the value as text, for RecordSet::Update to write. Takes effect after RecordSet::Edit.
    void SetStringValue(const QString &text);
    /// A text in a column of numbers is read as an amount that somebody typed, comma or dot.
    double DoubleValue() const;
    Currency CurrencyValue() const { return Currency::FromDouble(DoubleValue()); }
    /// Nothing when the text is no SQL date.
    std::optional<Date> DateValue() const;

private:
    friend class RecordSet;
    DatabaseField(RecordSet &records, int column) : records_(&records), column_(column) {}

    RecordSet *records_;
    int column_;
};
