#pragma once

#include <QString>

/// The SQL scripts that create a database, each of them executed in one call: the schema, the
/// reference data, and the booking accounts of a standard chart of accounts.
QString CashBookDDL();
QString ReferenceDataSQL();
QString ChartSKR03SQL();
QString ChartSKR04SQL();
/// Returns the script for the sample data: the company, the cash book, and five bookings dated in
/// the given year.
QString SampleDataSQL(int year);
