#pragma once

#include <QString>

/// The scripts that make a book, each run in one call: the schema, the reference data of every
/// book, and the booking accounts of a standard chart.
QString CashBookDDL();
QString ReferenceDataSQL();
QString ChartSKR03SQL();
QString ChartSKR04SQL();
/// The company, the cash book and the five bookings of the sample book, dated in the year.
QString SampleDataSQL(int year);
