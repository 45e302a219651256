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
        const auto first = static_cast<unsigned>(Setting("ENDURANCE_SEED", 20260315));
        rounds *= Setting("ENDURANCE_TIMES", 1);
        const testing::TestInfo &test = *testing::UnitTest::GetInstance()->current_test_info();
        int findings = 0;
        for (unsigned seed = first; seed < first + unsigned(rounds); ++seed) {
            SCOPED_TRACE("ENDURANCE_SEED=" + std::to_string(seed));
            random.seed(seed);
            const int before = test.result()->total_part_count();
            round();
            findings += int(test.result()->total_part_count() > before);
        }
        std::cout << "endurance\t" << test.test_suite_name() << test.name() << '\t' << rounds
                  << '\t';
        for (const auto &[what, count] : counts) {
            std::cout << count << ' ' << what << (what == counts.rbegin()->first ? "" : ", ");
        }
        std::cout << '\t' << findings << '\n' << std::flush;
    }

    int Any(int below) { return static_cast<int>(random() % static_cast<unsigned>(below)); }
    /// A text of pieces that programs stumble over.
    QString OddText() {
        using namespace Qt::StringLiterals;
        static const QStringList pieces = {u"'); DROP TABLE cash_journal; --"_s,
                                           u"'"_s,
                                           u"' || 1"_s,
                                           u"\""_s,
                                           u"%1 %2"_s,
                                           u"?1"_s,
                                           u"\0"_s,
                                           u"\t\r\n"_s,
                                           u"\u001b[2J"_s,
                                           u"\u0085\u2028"_s,
                                           u"e\u0301"_s,
                                           u"\U0010FFFF"_s,
                                           u"\u202Eab\u202C\u200F"_s,
                                           u"\uFFFE"_s,
                                           u"\uFDD0"_s,
                                           u"\U0001F469\u200D\U0001F4BB"_s,
                                           u"ßİǅﬃ"_s,
                                           u" \u00A0"_s,
                                           u";"_s,
                                           u"Müller"_s,
                                           u"NULL"_s};
        QString text;
        for (int count = 1 + Any(6); count > 0; --count) {
            const bool known = Any(3) > 0;
            const QString piece = known ? pieces[Any(int(pieces.size()))] : QChar(1 + Any(0xffff));
            text += Any(40) == 0 ? piece.repeated(9999) : piece;
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
