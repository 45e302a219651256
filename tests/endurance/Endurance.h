#pragma once

#include "support/GoogleTest.h"

#include <QStringList>

#include <iostream>
#include <map>
#include <random>

/// A test of many rounds, each with random numbers of its own. ENDURANCE_TIMES gives so many times
/// the rounds. ENDURANCE_SEED gives others: the one that a failure names repeats its round as the
/// first. The test ends with a line: its name, the rounds, what was counted, and the rounds in
/// which something was found.
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
        for (const char *between = "\t"; const auto &[what, count] : counts) {
            std::cout << std::exchange(between, ", ") << count << ' ' << what;
        }
        std::cout << (counts.empty() ? "\t" : "") << '\t' << findings << std::endl;
    }

    int Any(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }
    /// A text of pieces that programs stumble over.
    QString OddText() {
        using namespace Qt::StringLiterals;
        static const QStringList pieces =
            u"'|\"|;|\0|%1 %2|?1|NULL|Müller|ßİǅﬃ|e\u0301| \u00A0|\t\r\n|\u001b[2J|\u0085\u2028|"
            "'); DROP TABLE cash_journal; --|\u202Eab\u202C\u200F|\U0001F469\u200D\U0001F4BB|"
            "\U0010FFFF|\uFFFE|\uFDD0|\uFEFF"_s.split(u'|');
        QString text;
        for (int count = 1 + Any(6); count > 0; --count) {
            const QString piece =
                Any(3) > 0 ? pieces[Any(int(pieces.size()))] : QChar(1 + Any(0xd7ff));
            text += piece.repeated(Any(40) == 0 ? 9999 : 1);
        }
        return text;
    }

    std::mt19937 random;
    /// What is counted besides the rounds.
    std::map<std::string, int> counts;

private:
    static int Setting(const char *name, int otherwise) {
        return qEnvironmentVariableIsSet(name) ? qEnvironmentVariableIntValue(name) : otherwise;
    }
};
