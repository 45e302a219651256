#pragma once

#include <string>

/// What 20,000 rows of the journal take of resident memory, and what their eight shown texts take
/// as bare strings. Each side is measured in a process of its own, which is this program with
/// "--memory" and the side.
struct MemoryOfRows {
    double oursKiB;
    double bareKiB;
};
MemoryOfRows MeasureMemory();

/// Fills one side, "ours" or "bare", and prints by how many KiB the process has grown.
int PrintGrowth(const std::string &side);
