#pragma once

#include "BareDatabase.h"
#include "LargeDatabase.h"

#include <benchmark/benchmark.h>
#include <functional>
#include <memory>
#include <string>

/// The program on a database file, and the bare library on a copy of it.
struct DatabasePair {
    explicit DatabasePair(int bookings) : ours(bookings), bare(ours.Copy()) {}

    LargeDatabase ours;
    BareDatabase bare;
};
using Pair = std::shared_ptr<DatabasePair>;

/// Registers the benchmarks name/ours and name/bare.
using Side = std::function<void(benchmark::State &)>;
void AddMeasure(const std::string &name, const Side &ours, const Side &bare,
                bool setsIterationTime = false);
/// Runs the function once per iteration.
Side Repeat(const std::function<void()> &function);

/// Each registers its measures. The large file has 200,000 bookings, the small one 20,000, a tenth
/// of them in the year shown.
void AddJournalMeasures(const Pair &large, const Pair &small);
void AddReportMeasures(const Pair &large);
/// From the start of the process to the painted window.
void AddStartMeasures(const Pair &small);

/// Prints by how many KiB the resident memory of this process grows: for "ours" when the journal
/// loads 20,000 rows, for "bare" by their eight texts as QString.
void PrintMemory(const std::string &side);
