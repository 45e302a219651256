#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <string>
#include <vector>

/// Something that the program does, and the bare library doing the same work.
struct Measure {
    std::string name;
    /// How many times as long as the bare library the program may take.
    double goal;
    std::function<void(benchmark::State &)> ours;
    std::function<void(benchmark::State &)> bare;
    /// Whether both sides set the time of each iteration, instead of its being measured.
    bool timesItself = false;
};
