#pragma once

#include "Measure.h"

#include <memory>

struct BookPair;

/// The measures by room. Each keeps the books that it needs: of 200,000, 20,000 and 2,000 bookings,
/// a tenth of them in the year shown.
struct Books {
    std::shared_ptr<BookPair> large;
    std::shared_ptr<BookPair> middle;
    std::shared_ptr<BookPair> small;
};
std::vector<Measure> JournalMeasures(const Books &books);
std::vector<Measure> ReportMeasures(const Books &books);
/// From the start of the process to the painted window.
std::vector<Measure> StartMeasures(const Books &books);
