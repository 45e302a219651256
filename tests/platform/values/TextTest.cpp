#include "platform/values/Text.h"

#include "platform/values/Encodings.h"
#include "support/GoogleTest.h"

TEST(Text, ReadsTheLeadingNumber) {
    struct Case {
        QString text;
        double number;
    };
    const Case cases[] = {{"", 0},
                          {"-", 0},
                          {"+", 0},
                          {".", 0},
                          {"abc", 0},
                          {"inf", 0},
                          {"nan", 0},
                          {"1e999", 0},
                          {"--7", 0},
                          {":9", 0},
                          {"/1", 0},
                          {"-.5", -0.5},
                          {"+7", 7},
                          {" 9 EUR", 9},
                          {"1,5", 1},
                          {"0.1", 0.1},
                          {"9/2", 9},
                          {"1\u0661", 1},
                          {"99999999999999.99", 99999999999999.99}};
    for (const Case &each : cases) {
        EXPECT_EQ(Val(each.text), each.number) << each.text;
    }
}

TEST(Text, SplitsReplacesAndComparesTexts) {
    EXPECT_EQ(NthField(u"a--b", u'-', 1) + NthField(u"a--b", u'-', 3), "ab");
    EXPECT_EQ(Replace("1,2,3", u',', u'.') + Replace(",5", u',', u'.'), "1.2,3.5");
    EXPECT_EQ(ReplaceLineEndings("a\r\nb\rc\n\rd\n", "|"), "a|b|c||d|");
    EXPECT_EQ(OneLine(u"a\r\n\tb\u2028\u2029c\u0000d"_s), "a b c d");
    EXPECT_EQ(CompareTexts("ÖL", "öl"), 0);
    EXPECT_TRUE(CompareTexts("öl", "Zins") < 0 && CompareTexts("Zins", "öl") > 0);
}

TEST(Encodings, WriteCodePage1252AndReplaceOtherCharacters) {
    struct Case {
        QString text;
        QByteArray bytes;
    };
    const Case cases[] = {
        {"\u00A0\u00FFAZ az\t;", "\xA0\xFF"_ba + "AZ az\t;"},
        {"€‚ƒ„…†‡ˆ‰Š‹Œ", "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C"},
        {"Ž‘’“”•–—˜™š›œžŸ", "\x8E\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"},
        {"\u0081\u008D\u008F\u0090\u009D", "\x81\x8D\x8F\x90\x9D"},
        {"\u0080\u009F", "??"},
        {"o\u0308 \u2126", "\xF6 O"},
        {u"Łódź "_s.repeated(20) + u"Ж"_s.repeated(70),
         "L\363dz "_ba.repeated(20) + "Z"_ba.repeated(70)}};
    for (const Case &each : cases) {
        EXPECT_EQ(Encodings::WindowsANSI(each.text).toPercentEncoding(),
                  each.bytes.toPercentEncoding());
    }
}
