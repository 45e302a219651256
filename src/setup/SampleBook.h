#pragma once

#include <QString>

/// The statements of the sample book: its company, its cash book and five bookings of the year.
QString SampleBookSQL(int year);
