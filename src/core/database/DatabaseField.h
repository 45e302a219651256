#pragma once

#include "platform/values/Currency.h"
#include "platform/values/Date.h"

#include <QString>

#include <optional>

class RecordSet;

/// A column of a record set: reads and writes the value in the current row of the record set.
class DatabaseField {
public:
    /// Returns the value as text: empty for NULL, "True" or "False" for a boolean column.
    QString StringValue() const;
    /// Returns the character of a text of one ASCII character, in upper case; 0 for any other text.
    char UpperCaseCharacter() const;
    /// Sets the value that RecordSet::Update writes. Call RecordSet::Edit first: it discards the
    /// values set before.
    void SetStringValue(const QString &text);
    /// Returns the value as a number. A text is parsed with a comma or a dot as decimal mark.
    double DoubleValue() const;
    Currency CurrencyValue() const { return Currency::FromDouble(DoubleValue()); }
    /// Returns nullopt if the text is not a SQL date.
    std::optional<Date> DateValue() const;

private:
    friend class RecordSet;
    DatabaseField(RecordSet &records, int column) : records_(&records), column_(column) {}

    RecordSet *records_;
    int column_;
};
