#include "platform/values/Text.h"

#include "platform/values/Encodings.h"
#include "support/GoogleTest.h"

TEST(Text, ReadsTheLeadingNumber) {
    struct Case {
        QString text;
        double number;
    };
    const Case cases[] = {{u""_s, 0},
                          {u"-"_s, 0},
                          {u"+"_s, 0},
                          {u"."_s, 0},
                          {u"abc"_s, 0},
                          {u"inf"_s, 0},
                          {u"nan"_s, 0},
                          {u"1e999"_s, 0},
                          {u"--7"_s, 0},
                          {u":9"_s, 0},
                          {u"/1"_s, 0},
                          {u"-.5"_s, -0.5},
                          {u"+7"_s, 7},
                          {u" 9 EUR"_s, 9},
                          {u"1,5"_s, 1},
                          {u"0.1"_s, 0.1},
                          {u"9/2"_s, 9},
                          {u"1\u0661"_s, 1},
                          {u"99999999999999.99"_s, 99999999999999.99}};
    for (const Case &each : cases) { EXPECT_EQ(Val(each.text), each.number) << qPrintable(each.text); }
}

TEST(Text, SplitsReplacesAndComparesTexts) {
    EXPECT_EQ(NthField(u"a--b", u'-', 1) + NthField(u"a--b", u'-', 3), u"ab"_s);
    EXPECT_EQ(Replace(u"1,2,3"_s, u',', u'.') + Replace(u",5"_s, u',', u'.'), u"1.2,3.5"_s);
    EXPECT_EQ(ReplaceLineEndings(u"a\r\nb\rc\n\rd\n"_s, u"|"_s), u"a|b|c||d|"_s);
    EXPECT_EQ(OneLine(u"a\r\n\tb\u2028\u2029c\u0000d"_s), u"a b c d"_s);
    EXPECT_EQ(CompareTexts(u"ÖL"_s, u"öl"_s), 0);
    EXPECT_TRUE(CompareTexts(u"öl"_s, u"Zins"_s) < 0 && CompareTexts(u"Zins"_s, u"öl"_s) > 0);
}

TEST(Encodings, WriteCodePage1252AndReplaceOtherCharacters) {
    struct Case {
        QString text;
        QByteArray bytes;
    };
    const Case cases[] = {
        {u"\u00A0\u00FFAZ az\t;"_s, "\xA0\xFF"_ba + "AZ az\t;"},
        {u"€‚ƒ„…†‡ˆ‰Š‹Œ"_s, "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C"},
        {u"Ž‘’“”•–—˜™š›œžŸ"_s, "\x8E\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"},
        {u"\u0081\u008D\u008F\u0090\u009D"_s, "\x81\x8D\x8F\x90\x9D"},
        {u"\u0080\u009F"_s, "??"},
        {u"o\u0308 \u2126"_s, "\xF6 O"},
        {u"Łódź "_s.repeated(20) + u"Ж"_s.repeated(70), "L\363dz "_ba.repeated(20) + "Z"_ba.repeated(70)}};
    for (const Case &each : cases) {
        EXPECT_EQ(Encodings::WindowsANSI(each.text).toPercentEncoding(), each.bytes.toPercentEncoding());
    }
}
