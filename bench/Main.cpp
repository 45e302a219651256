#include "BookPair.h"
#include "Measures.h"
#include "Memory.h"

#include <QCoreApplication>

#include <cstdio>
#include <map>

namespace {

/// Prints the progress as always, and keeps the median of every measure and side.
class MedianReporter : public benchmark::ConsoleReporter {
public:
    MedianReporter() : ConsoleReporter(OO_Tabular) {}

    void ReportRuns(const std::vector<Run> &runs) override {
        ConsoleReporter::ReportRuns(runs);
        for (const Run &run : runs) {
            if (run.aggregate_name == "median") {
                medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
            }
        }
    }

    /// The median in milliseconds; 0 if the measure was left out.
    double Median(const std::string &name) const {
        const auto found = medians_.find(name);
        return found == medians_.end() ? 0 : found->second;
    }

private:
    std::map<std::string, double> medians_;
};

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

void PrintLine(const std::string &name, double ours, double bare, const char *unit, double goal) {
    std::printf("%s\t%.4g %s\t%.4g %s\t%.2f\t%.1f\n", name.c_str(), ours, unit, bare, unit,
                ours / bare, goal);
}

} // namespace

int main(int argc, char **argv) {
    const QCoreApplication application(argc, argv);
    if (argc == 3 && std::string(argv[1]) == "--memory") {
        return PrintGrowth(argv[2]);
    }
    benchmark::Initialize(&argc, argv);
    const std::vector<Measure> measures = AllMeasures();
    for (const Measure &measure : measures) {
        Register(measure);
    }
    MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    std::puts("name\tours\tbare\tratio\tgoal");
    for (const Measure &measure : measures) {
        const double bare = reporter.Median(measure.name + "/bare");
        if (bare > 0) {
            PrintLine(measure.name, reporter.Median(measure.name + "/ours"), bare, "ms",
                      measure.goal);
        }
    }
    const MemoryOfRows memory = MeasureMemory();
    PrintLine("memory", memory.oursKiB, memory.bareKiB, "KiB", 1.5);
    return 0;
}
