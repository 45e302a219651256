#include "BookPair.h"
#include "Measures.h"
#include "Memory.h"

#include <QCoreApplication>
#include <QHashSeed>

#include <algorithm>
#include <cstdio>
#include <map>

namespace {

/// Prints the progress as always, and keeps the median of every measure and side, in milliseconds.
class MedianReporter : public benchmark::ConsoleReporter {
public:
    MedianReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run> &runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs) {
            if (run.aggregate_name == "median") {
                medians[run.run_name.function_name] = run.GetAdjustedRealTime();
            }
        }
    }

    std::map<std::string, double> medians;
};

/// What both sides of a measure took in one round.
struct Sides {
    double ours;
    double bare;
    double Ratio() const { return ours / bare; }
};

constexpr int rounds = 3;

std::vector<Measure> AllMeasures() {
    const Books books = {.large = std::make_shared<BookPair>(200000),
                         .middle = std::make_shared<BookPair>(20000),
                         .small = std::make_shared<BookPair>(2000)};
    std::vector<Measure> all;
    for (const auto &room : {JournalMeasures, ReportMeasures, StartMeasures}) {
        for (const Measure &measure : room(books)) {
            all.push_back(measure);
        }
    }
    return all;
}

void Register(const Measure &measure) {
    for (const auto &[side, run] :
         {std::pair("/ours", measure.ours), std::pair("/bare", measure.bare)}) {
        auto *registered = benchmark::RegisterBenchmark((measure.name + side).c_str(), run);
        registered->Unit(benchmark::kMillisecond);
        measure.timesItself ? registered->UseManualTime() : registered->UseRealTime();
    }
}

/// The round of the middle ratio, and how far the others lie from it.
void PrintLine(const std::string &name, std::vector<Sides> sides, const char *unit, double goal) {
    std::sort(sides.begin(), sides.end(),
              [](const Sides &a, const Sides &b) { return a.Ratio() < b.Ratio(); });
    const Sides &middle = sides[sides.size() / 2];
    std::printf("%s\t%.4g %s\t%.4g %s\t%.2f (%.2f to %.2f)\t%.2f\n", name.c_str(), middle.ours,
                unit, middle.bare, unit, middle.Ratio(), sides.front().Ratio(),
                sides.back().Ratio(), goal);
}

} // namespace

int main(int argc, char **argv) {
    // As the program does, for both sides.
    QHashSeed::setDeterministicGlobalSeed();
    const QCoreApplication application(argc, argv);
    if (argc == 3 && std::string(argv[1]) == "--memory") {
        return PrintGrowth(argv[2]);
    }
    benchmark::Initialize(&argc, argv);
    const std::vector<Measure> measures = AllMeasures();
    for (const Measure &measure : measures) {
        Register(measure);
    }
    std::map<std::string, std::vector<Sides>> results;
    std::vector<Sides> memory;
    for (int round = 0; round < rounds; ++round) {
        MedianReporter reporter;
        benchmark::RunSpecifiedBenchmarks(&reporter);
        for (const Measure &measure : measures) {
            // Nothing for a measure that was left out.
            if (const double bare = reporter.medians[measure.name + "/bare"]; bare > 0) {
                results[measure.name].push_back({reporter.medians[measure.name + "/ours"], bare});
            }
        }
        const MemoryOfRows taken = MeasureMemory();
        memory.push_back({taken.oursKiB, taken.bareKiB});
    }
    std::puts("name\tours\tbare\tratio\tgoal");
    for (const Measure &measure : measures) {
        if (!results[measure.name].empty()) {
            PrintLine(measure.name, results[measure.name], "ms", measure.goal);
        }
    }
    PrintLine("memory", memory, "KiB", 1.25);
    return 0;
}
