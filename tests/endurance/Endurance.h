#pragma once

#include "support/GoogleTest.h"

#include <iostream>
#include <map>
#include <random>

inline std::mt19937 generator;

inline int RandomBelow(int limit) {
    return int(generator() % unsigned(limit));
}

/// A randomized test. A failure shows the random seed of its round, which ENDURANCE_SEED repeats as
/// the first one. ENDURANCE_TIMES multiplies the rounds.
struct Endurance : testing::Test {
    /// Ends after a round with a failure. Prints the name of the test, the rounds, the counts, and
    /// the rounds with a failure.
    template <class Round>
    void Run(int rounds, const Round &round) {
        rounds *= std::max(1, qEnvironmentVariableIntValue("ENDURANCE_TIMES"));
        int done = 0;
        for (; done < rounds && !HasFailure(); ++done) {
            const int seed = qEnvironmentVariableIntValue("ENDURANCE_SEED") + done;
            SCOPED_TRACE("ENDURANCE_SEED=" + std::to_string(seed));
            generator.seed(unsigned(seed));
            round();
        }
        const auto &test = *testing::UnitTest::GetInstance()->current_test_info();
        std::cout << "endurance\t" << test.test_suite_name() << '.' << test.name() << '\t' << done;
        for (const char *separator = "\t"; const auto &[name, count] : counts) {
            std::cout << std::exchange(separator, ", ") << count << ' ' << name;
        }
        std::cout << '\t' << HasFailure() << std::endl;
    }

    std::map<std::string, int> counts;
};
