#include "Measures.h"

#include <QCoreApplication>
#include <QHashSeed>

void AddMeasure(const std::string &name, const Side &ours, const Side &bare,
                bool setsIterationTime) {
    for (const auto &[suffix, side] : {std::pair("/ours", ours), std::pair("/bare", bare)}) {
        auto *registered = benchmark::RegisterBenchmark((name + suffix).c_str(), side);
        registered->Unit(benchmark::kMillisecond);
        setsIterationTime ? registered->UseManualTime() : registered->UseRealTime();
    }
}

Side Repeat(const std::function<void()> &function) {
    return [function](benchmark::State &state) {
        for (auto _ : state) {
            function();
        }
    };
}

int main(int argc, char **argv) {
    QHashSeed::setDeterministicGlobalSeed(); // As the program does.
    const QCoreApplication application(argc, argv);
    if (argc == 3 && std::string(argv[1]) == "--memory") {
        PrintMemory(argv[2]);
        return 0;
    }
    benchmark::Initialize(&argc, argv);
    const auto large = std::make_shared<DatabasePair>(200000);
    const auto small = std::make_shared<DatabasePair>(20000);
    AddJournalMeasures(large, small);
    AddReportMeasures(large);
    AddStartMeasures(small);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
