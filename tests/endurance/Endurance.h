#pragma once

#include "support/GoogleTest.h"

#include <QStringList>

#include <iostream>
#include <map>
#include <random>

/// A randomized test. ENDURANCE_TIMES multiplies the number of rounds. Each round has its own
/// random seed; a failure shows it, and ENDURANCE_SEED repeats the round as the first one. Run()
/// prints a line at its end: the name of the test, the rounds, the counts, and the number of rounds
/// with a failure.
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
        std::cout << "endurance\t" << test.test_suite_name() << '.' << test.name() << '\t'
                  << rounds;
        for (const char *separator = "\t"; const auto &[name, count] : counts) {
            std::cout << std::exchange(separator, ", ") << count << ' ' << name;
        }
        std::cout << '\t' << findings << std::endl;
    }

    /// Returns a random number from 0 to below the limit.
    int RandomBelow(int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); }

    std::mt19937 random;
    /// Further counts for the printed line, by name.
    std::map<std::string, int> counts;

private:
    static int Setting(const char *name, int defaultValue) {
        return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : defaultValue;
    }
};
