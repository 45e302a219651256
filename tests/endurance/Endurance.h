#pragma once

#include "support/GoogleTest.h"

#include <QStringList>

#include <iostream>
#include <map>
#include <random>

/// A test of many rounds, ENDURANCE_TIMES as many, each with random numbers of its own: the ENDURANCE_SEED that a
/// failure names repeats its round as the first. It ends with a line: name, rounds, counts, and the rounds with a
/// finding.
class Endurance : public testing::Test {
protected:
    template <typename Round>
    void Run(int rounds, const Round &round) {
        rounds *= Setting("ENDURANCE_TIMES", 1);
        const testing::TestInfo &test = *testing::UnitTest::GetInstance()->current_test_info();
        int findings = 0;
        for (int i = 0; i < rounds; ++i) {
            const int seed = Setting("ENDURANCE_SEED", 20260315) + i;
            SCOPED_TRACE("ENDURANCE_SEED=" + std::to_string(seed));
            random.seed(unsigned(seed));
            const int before = test.result()->total_part_count();
            round();
            findings += int(test.result()->total_part_count() > before);
        }
        std::cout << "endurance\t" << test.test_suite_name() << '.' << test.name() << '\t' << rounds;
        for (const char *between = "\t"; const auto &[what, count] : counts) {
            std::cout << std::exchange(between, ", ") << count << ' ' << what;
        }
        std::cout << '\t' << findings << std::endl;
    }

    int Any(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }

    std::mt19937 random;
    /// What is counted besides the rounds.
    std::map<std::string, int> counts;

private:
    static int Setting(const char *name, int otherwise) {
        return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
    }
};
