#include "platform/Text.h"

#include "support/GoogleTest.h"

using namespace Qt::StringLiterals;

namespace {

TEST(Text, ValReadsTheNumberAtTheStart) {
    const std::pair<QString, double> cases[] = {
        {u""_s, 0},       {u"  12.5 EUR"_s, 12.5},
        {u"\t-3"_s, -3},  {u"+7"_s, 7},
        {u"+-7"_s, 0},    {u"-"_s, 0},
        {u"."_s, 0},      {u".5"_s, 0.5},
        {u"5."_s, 5},     {u"1e3x"_s, 1000},
        {u"2e"_s, 2},     {u"1.234.56"_s, 1.234},
        {u"12,5"_s, 12},  {u"EUR 5"_s, 0},
        {u"inf"_s, 0},    {u"-nan"_s, 0},
        {u"0x10"_s, 0},   {u"1 000"_s, 1},
        {u"1e-400"_s, 0}, {u"\u00a09"_s, 9},
        {u"-1e400"_s, 0}, {u"0."_s + QString(400, u'0') + u'1', 0}};
    for (const auto &[text, value] : cases) {
        EXPECT_EQ(Val(text), value) << qPrintable(text);
    }
}

} // namespace
