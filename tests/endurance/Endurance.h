#pragma once

#include "support/GoogleTest.h"

#include <QMap>
#include <QStringList>

#include <iostream>
#include <random>

inline std::mt19937 generator;

inline int RandomBelow(int limit) {
    return int(generator() % unsigned(limit));
}

/// A randomized test. ENDURANCE_TIMES multiplies its rounds. Each round has its own random seed; a
/// failure shows it, and ENDURANCE_SEED repeats the round as the first one.
class Endurance : public testing::Test {
protected:
    /// Prints a line at its end: the name of the test, the rounds, the counts, and the number of
    /// rounds with a failure.
    template <typename Round>
    void Run(int rounds, const Round &round) {
        rounds *= std::max(1, qEnvironmentVariableIntValue("ENDURANCE_TIMES"));
        const testing::TestInfo &test = *testing::UnitTest::GetInstance()->current_test_info();
        int findings = 0;
        for (int i = 0; i < rounds; ++i) {
            const int seed = qEnvironmentVariableIntValue("ENDURANCE_SEED") + i;
            SCOPED_TRACE("ENDURANCE_SEED=" + std::to_string(seed));
            generator.seed(unsigned(seed));
            const int failures = test.result()->total_part_count();
            round();
            findings += int(test.result()->total_part_count() > failures);
        }
        QStringList texts;
        for (const auto &[name, count] : counts.asKeyValueRange()) {
            texts.append(u"%1 %2"_s.arg(count).arg(name));
        }
        std::cout << "endurance\t" << test.test_suite_name() << '.' << test.name() << '\t' << rounds
                  << '\t' << qUtf8Printable(texts.join(", ")) << '\t' << findings << std::endl;
    }

    QMap<QString, int> counts;
};
